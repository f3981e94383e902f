#!/usr/bin/env bash
# La carta solar con ratón y teclado de verdad, en un servidor X propio con gestor de ventanas: empieza un horizonte,
# sube un punto, deshace, borra, lo guarda entero y sale. Comprueba lo que quedó en el fichero.
#   extremo_a_extremo_sol.sh PROGRAMA DIRECTORIO_BASE
set -euo pipefail
source "$(dirname "$(readlink -f "$0")")/pantalla.sh"

CARDINALES='#96AAC8' # las líneas del este, el sur y el oeste
PUNTO='#604830'      # las marcas y la línea del horizonte
hay_horizonte() { [ "$(pixeles $PUNTO)" -gt "$1" ]; }
fichero_tiene() { [ "$(wc -l <"$1")" -eq "$2" ]; }
punto() { xdotool mousemove "$1" "$2" click 1; }
abrir_pestana() {
  xdotool mousemove 290 52 click 1
  sleep 0.3
  [ "$(pixeles $CARDINALES)" -gt 200 ]
}

arrancar
esperar 60 'la pestaña de la posición solar' abrir_pestana
punto 420 500 # en la indicación que ocupa el sitio de la carta
esperar 30 'el primer punto' hay_horizonte 5
punto 560 480
punto 700 500
punto 900 450
esperar 30 'el horizonte dibujado' hay_horizonte 100

# --- subir un punto, deshacer otro y borrar otro
xdotool mousemove 900 450 keydown shift mousedown 1 mousemove 900 430 mousemove 900 400 mouseup 1 keyup shift
punto 1000 500
xdotool key ctrl+z
punto 1100 480
xdotool mousemove 1100 480 click 3

# --- guardarlo entero
xdotool mousemove 200 378 click 1
esperar 30 'el diálogo del perfil' ventana_activa_es 'Guardar perfil'
xdotool type -- "$trabajo/sierra.csv"
xdotool key Return
esperar 30 'el perfil guardado, con cuatro puntos' fichero_tiene "$trabajo/sierra.csv" 5
esperar 30 'la vuelta a la ventana' ventana_activa_es 'Tesmo-A'
grep -q '^Perfil de horizonte' "$trabajo/sierra.csv" || fallar 'el perfil no lleva su línea de títulos'
tail -n +2 "$trabajo/sierra.csv" | awk -F';' '
  NR > 1 && $1 <= anterior { mal = 1 }
  $2 <= 0 || $2 >= 90 { mal = 1 }
  { anterior = $1; altura = $2 }
  END { exit mal || !(anterior > 0 && altura > 30) }' || {
  cat "$trabajo/sierra.csv" >&2
  fallar 'el perfil no va por acimut, o el punto arrastrado no subió'
}
salir
echo 'La carta solar, de extremo a extremo: bien'
