#!/usr/bin/env bash
# La carta psicrométrica con ratón y teclado de verdad, en un servidor X propio con gestor de ventanas: marca las horas
# de un día, mueve el puntero, fija dos puntos, guarda la imagen desde el menú, limpia y sale.
#   extremo_a_extremo_carta.sh PROGRAMA DIRECTORIO_BASE
set -euo pipefail
source "$(dirname "$(readlink -f "$0")")/pantalla.sh"

zona=900x400+40+90
SECA='#FF00FF'  # las líneas de temperatura seca
MARCA='#0000FF' # las marcas
hay_carta() { [ "$(pixeles $SECA)" -gt 500 ]; }
hay_marcas() { [ "$(pixeles $MARCA)" -gt 100 ]; }
no_hay_marcas() { [ "$(pixeles $MARCA)" -eq 0 ]; }

# Recorre las pestañas hasta la que enseña la carta.
abrir_carta() {
  local x
  for x in $(seq 60 60 780); do
    xdotool mousemove "$x" 51 click 1
    sleep 0.3
    if hay_carta; then return 0; fi
  done
  return 1
}

arrancar
xdotool key alt+p
xdotool type gra
xdotool key alt+l Down
esperar 30 'el título de la localidad' titulo_contiene '-Granada'
esperar 60 'la carta' abrir_carta
no_hay_marcas || fallar 'la carta tiene marcas antes de pedirlas'

# --- las horas del primero de enero
xdotool key alt+r
esperar 30 'las marcas' hay_marcas

# --- el puntero y dos puntos fijados
foto
cp "$trabajo/foto.png" "$trabajo/antes.png"
xdotool mousemove 640 400
reticula_a_la_vista() { foto && ! cmp -s "$trabajo/foto.png" "$trabajo/antes.png"; }
esperar 30 'la retícula' reticula_a_la_vista
xdotool click 1
xdotool mousemove 760 430 click 1
guardar "$trabajo/carta.svg" 640 300 g
texto=$(cat "$trabajo/carta.svg")
for esperado in '>A</text>' '>B</text>' 'Temperatura seca (ºC)' 'Humedad absoluta (g/kg)' 'Entalpía (kJ/kg)' '#0000ff'; do
  [[ $texto == *"$esperado"* ]] || fallar "la imagen no lleva «$esperado»"
done
[[ $texto != *'>C</text>'* ]] || fallar 'la imagen lleva un punto de más'

# --- limpiar quita las marcas y deja los puntos
xdotool key alt+i
esperar 30 'la carta sin marcas' no_hay_marcas
guardar "$trabajo/limpia.svg" 640 300 g
texto=$(cat "$trabajo/limpia.svg")
[[ $texto == *'>B</text>'* && $texto != *'#0000ff'* ]] || fallar 'limpiar no dejó los puntos sin las marcas'
salir
echo 'La carta, de extremo a extremo: bien'
