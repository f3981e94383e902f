# Piezas de las pruebas con ratón y teclado de verdad: un servidor X propio con gestor de ventanas y el programa en él.
# Se incluye con source; el programa y el directorio base son los dos argumentos de quien lo incluye.

programa=$1
base=$2
trabajo=$(mktemp -d)
procesos=()
montados=()

limpiar() {
  local proceso montado
  for proceso in "${procesos[@]}"; do kill "$proceso" 2>/dev/null || true; done
  for montado in "${montados[@]}"; do umount -l "$montado" 2>/dev/null || true; done
  rm -rf "$trabajo"
}
trap limpiar EXIT

fallar() {
  echo "FALLO: $*" >&2
  import -silent -window root "${TESMO_FOTO_FALLO:-$PWD/$(basename "$0" .sh)_fallo.png}" 2>/dev/null || true
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

# Píxeles de un color en la zona que mira la prueba.
zona=900x480+300+110
pixeles() {
  foto
  convert "$trabajo/foto.png" -crop $zona +repage -fill white +opaque "$1" -fill black -opaque "$1" \
    -format '%[fx:round(w*h*(1-mean))]' info:
}

# guardar FICHERO X Y TECLA: lo pide en el menú contextual del punto dado, con su letra.
guardar() {
  xdotool mousemove "$2" "$3" click 3
  xdotool key "$4"
  esperar 30 'el diálogo de guardar' ventana_activa_es 'Guardar imagen'
  xdotool type -- "$1"
  xdotool key Return
  esperar 30 "el fichero $1" fichero_completo "$1"
  esperar 30 'la vuelta a la ventana' ventana_activa_es 'Tesmo-A'
}

# Casillas del visor por su color: el sitio, «+X+Y», de la muestra que llevan en la columna izquierda; vacío si no la hay.
muestra() {
  foto
  convert "$trabajo/foto.png" -crop 260x720+0+0 +repage -fill white +opaque "$1" -fill black -opaque "$1" \
    -trim -format '%O' info: 2>/dev/null | grep -v -e '-1' || true
}
hay_muestra() { [ -n "$(muestra "$1")" ]; }
clic_en_muestra() {
  local x y
  IFS=+ read -r _ x y <<<"$(muestra "$1")"
  [ -n "${y:-}" ] || fallar "no se ve la muestra $1"
  xdotool mousemove $((x + 30)) $((y + 5)) click 1
}
se_dibuja() { [ "$(pixeles "$1")" -gt 200 ]; }
no_se_dibuja() { [ "$(pixeles "$1")" -lt 20 ]; }

arrancar_pantalla() {
  local aviso numero
  exec {aviso}<> <(:)
  Xvfb -displayfd $aviso -screen 0 1280x720x24 >"$trabajo/xvfb.txt" 2>&1 &
  procesos+=($!)
  read -r -t 30 -u $aviso numero || fallar 'Xvfb no arranca'
  export DISPLAY=:$numero
  openbox >"$trabajo/openbox.txt" 2>&1 &
  procesos+=($!)
  esperar 20 'el gestor de ventanas' hay_gestor
  mkdir -m 700 "$trabajo/xdg"
}

# arrancar_programa BASE [ORDEN…]: lo pone en marcha sobre esa base, con la orden dada delante, y no espera.
arrancar_programa() {
  local con_base=$1
  shift
  QT_QPA_PLATFORM=xcb XDG_RUNTIME_DIR=$trabajo/xdg "$@" "$programa" --base "$con_base" >"$trabajo/tesmo.txt" 2>&1 &
  tesmo=$!
  procesos+=($tesmo)
}

esperar_ventana() {
  esperar 60 'la ventana' titulo_contiene 'Sin Nombre1'
  esperar 30 'el foco' ventana_activa_es 'Tesmo-A'
}

arrancar() {
  arrancar_pantalla
  arrancar_programa "$base"
  esperar_ventana
}

salir() {
  local estado=0
  xdotool key ctrl+q
  wait "$tesmo" || estado=$?
  [ $estado -eq 0 ] || { cat "$trabajo/tesmo.txt" >&2; fallar "el programa terminó con $estado"; }
}
