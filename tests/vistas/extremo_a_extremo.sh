#!/usr/bin/env bash
# Un rato de trabajo con ratón y teclado de verdad, en un servidor X propio con gestor de ventanas: elige provincia y
# localidad, marca variables, pide julio, dibuja, amplía, guarda la imagen desde el menú y sale. Comprueba el título
# de la ventana y lo que quedó en los ficheros.
#   extremo_a_extremo.sh PROGRAMA DIRECTORIO_BASE
set -euo pipefail

programa=$1
base=$2
trabajo=$(mktemp -d)
procesos=()

limpiar() {
  local proceso
  for proceso in "${procesos[@]}"; do kill "$proceso" 2>/dev/null || true; done
  rm -rf "$trabajo"
}
trap limpiar EXIT

fallar() {
  echo "FALLO: $*" >&2
  import -silent -window root "${TESMO_FOTO_FALLO:-$PWD/extremo_a_extremo_fallo.png}" 2>/dev/null || true
  exit 1
}

# esperar SEGUNDOS DESCRIPCIÓN ORDEN…: repite la orden hasta que se cumpla.
esperar() {
  local fin=$((SECONDS + $1)) que=$2
  shift 2
  until "$@" >/dev/null 2>&1; do
    [ $SECONDS -lt $fin ] || fallar "no llegó: $que"
    sleep 0.05
  done
}

titulo() { xdotool search --onlyvisible --name '^Tesmo-A' getwindowname 2>/dev/null | head -1; }
titulo_contiene() { titulo | grep -qF -- "$1"; }
ventana_activa_es() { xdotool getactivewindow getwindowname | grep -q -- "$1"; }
hay_gestor() { xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id'; }
foto() { import -silent -window root "$trabajo/foto.png"; }
fichero_completo() { [ -s "$1" ] && tail -c 20 "$1" | grep -q '</svg>'; }

# Punto de la columna izquierda pintado con un color: la muestra de una casilla.
muestra() {
  foto
  convert "$trabajo/foto.png" -crop 260x720+0+0 +repage txt:- 2>/dev/null | grep -i -m1 -- "$1" | cut -d: -f1 | tr ',' ' '
}
hay_muestra() { [ -n "$(muestra "$1")" ]; }
clic_en_muestra() {
  local x y
  read -r x y <<<"$(muestra "$1")"
  [ -n "${y:-}" ] || fallar "no se ve la muestra $1"
  xdotool mousemove $((x + 30)) $((y + 5)) click 1
}
# Píxeles del color de una serie en la zona del gráfico.
pixeles() {
  foto
  convert "$trabajo/foto.png" -crop 900x480+300+110 +repage -fill white +opaque "$1" -fill black -opaque "$1" \
    -format '%[fx:round(w*h*(1-mean))]' info:
}
se_dibuja() { [ "$(pixeles "$1")" -gt 200 ]; }
no_se_dibuja() { [ "$(pixeles "$1")" -lt 20 ]; }

# --- servidor, gestor y programa
exec {aviso}<> <(:)
Xvfb -displayfd $aviso -screen 0 1280x720x24 >"$trabajo/xvfb.txt" 2>&1 &
procesos+=($!)
read -r -t 30 -u $aviso numero || fallar 'Xvfb no arranca'
export DISPLAY=:$numero
openbox >"$trabajo/openbox.txt" 2>&1 &
procesos+=($!)
esperar 20 'el gestor de ventanas' hay_gestor
mkdir -m 700 "$trabajo/xdg"
QT_QPA_PLATFORM=xcb XDG_RUNTIME_DIR=$trabajo/xdg "$programa" --base "$base" >"$trabajo/tesmo.txt" 2>&1 &
tesmo=$!
procesos+=($tesmo)
esperar 60 'la ventana' titulo_contiene 'Sin Nombre1'
esperar 30 'el foco' ventana_activa_es 'Tesmo-A'
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
guardar() {
  xdotool mousemove 760 350 click 3
  xdotool key s
  esperar 30 'el diálogo de guardar' ventana_activa_es 'Guardar imagen'
  xdotool type -- "$1"
  xdotool key Return
  esperar 30 "el fichero $1" fichero_completo "$1"
  esperar 30 'la vuelta a la ventana' ventana_activa_es 'Tesmo-A'
}
guardar "$trabajo/julio.svg"
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
guardar "$trabajo/ampliado.svg"
hay_horas "$trabajo/ampliado.svg" || fallar 'la rueda no amplió hasta las horas'
clic_en_muestra $HR
esperar 30 'la humedad oculta' no_se_dibuja $HR
xdotool mousemove 760 350 click --repeat 2 --delay 60 1
guardar "$trabajo/vuelta.svg"
grep -q '1 jul<\|1 jul$' "$trabajo/vuelta.svg" || fallar 'el doble clic no volvió al período entero'

# --- otra ventana y salir
xdotool key ctrl+n
esperar 30 'la segunda ventana' titulo_contiene 'Sin Nombre2'
xdotool key ctrl+w
esperar 30 'la vuelta a la primera' titulo_contiene '-Granada'
xdotool key ctrl+q
estado=0
wait $tesmo || estado=$?
[ $estado -eq 0 ] || { cat "$trabajo/tesmo.txt" >&2; fallar "el programa terminó con $estado"; }
echo 'De extremo a extremo: bien'
