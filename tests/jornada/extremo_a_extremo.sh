#!/usr/bin/env bash
# Un rato de trabajo con ratón y teclado de verdad, en un servidor X propio con gestor de ventanas: elige provincia y
# localidad, marca variables, pide julio, dibuja, amplía, guarda la imagen desde el menú y sale. Comprueba el título
# de la ventana y lo que quedó en los ficheros.
#   extremo_a_extremo.sh PROGRAMA DIRECTORIO_BASE
set -euo pipefail

source "$(dirname "$(readlink -f "$0")")/pantalla.sh"

arrancar
TS='#FF8080'
HR='#800040'
esperar 30 'las casillas pintadas' hay_muestra $TS

# --- Granada, julio, temperatura seca y humedad
xdotool key alt+p
xdotool type gra
xdotool key alt+l Down
esperar 30 'el título de la localidad' titulo_contiene '-Granada'
clic_en_muestra $TS
clic_en_muestra $HR
xdotool key alt+d
xdotool type 7
xdotool key Tab alt+h
xdotool type 7
xdotool key Tab
xdotool type 31
xdotool key Tab alt+v
esperar 30 'la temperatura dibujada' se_dibuja $TS
esperar 30 'la humedad dibujada' se_dibuja $HR

# --- la imagen guardada desde el menú del gráfico
guardar "$trabajo/julio.svg" 760 350 s
texto=$(cat "$trabajo/julio.svg")
for esperado in '1 jul' 'Temperatura seca' 'Humedad relativa' 'stroke="#ff8080"' 'stroke="#800040"'; do
  [[ $texto == *"$esperado"* ]] || fallar "la imagen no lleva «$esperado»"
done
for sobra in ' ene' ' ago' 'Entalp'; do
  [[ $texto != *"$sobra"* ]] || fallar "la imagen lleva «$sobra»"
done

hay_horas() { grep -q ' h</text>\| h *$' "$1"; }
! hay_horas "$trabajo/julio.svg" || fallar 'el mes entero ya lleva horas: la rueda no probaría nada'

# --- ampliar con la rueda, quitar una variable, volver con doble clic
xdotool mousemove 760 350 click --repeat 12 4
guardar "$trabajo/ampliado.svg" 760 350 s
hay_horas "$trabajo/ampliado.svg" || fallar 'la rueda no amplió hasta las horas'
clic_en_muestra $HR
esperar 30 'la humedad oculta' no_se_dibuja $HR
xdotool mousemove 760 350 click --repeat 2 --delay 60 1
guardar "$trabajo/vuelta.svg" 760 350 s
grep -q '1 jul<\|1 jul$' "$trabajo/vuelta.svg" || fallar 'el doble clic no volvió al período entero'

# --- otra ventana y salir
xdotool key ctrl+n
esperar 30 'la segunda ventana' titulo_contiene 'Sin Nombre2'
xdotool key ctrl+w
esperar 30 'la vuelta a la primera' titulo_contiene '-Granada'
salir
echo 'De extremo a extremo: bien'
