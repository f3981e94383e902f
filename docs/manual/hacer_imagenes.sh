#!/usr/bin/env bash
# Hace las imágenes del manual con el programa en marcha, en un servidor X propio con gestor de ventanas: todas las
# pestañas a 1280×720 en img/ y a 1920×1080 en img/1920/.
#   hacer_imagenes.sh PROGRAMA DIRECTORIO_BASE
set -euo pipefail

[ $# -eq 2 ] || { sed -n '2,4s/^# \{0,1\}//p' "$0" >&2; exit 2; }
programa=$(readlink -f "$1")
base=$(readlink -f "$2")
cd "$(dirname "$(readlink -f "$0")")"
trabajo=$(mktemp -d)
procesos=()
trap 'kill "${procesos[@]}" 2>/dev/null || true; rm -rf "$trabajo"' EXIT

hacer() { # hacer ANCHO ALTO DIRECTORIO
  local aviso numero
  exec {aviso}<> <(:)
  Xvfb -displayfd "$aviso" -screen 0 "${1}x${2}x24" >"$trabajo/xvfb.txt" 2>&1 &
  procesos+=($!)
  read -r -t 30 -u "$aviso" numero || { echo 'Xvfb no arranca' >&2; exit 1; }
  DISPLAY=:$numero openbox >"$trabajo/openbox.txt" 2>&1 &
  procesos+=($!)
  until DISPLAY=:$numero xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id'; do sleep 0.05; done
  DISPLAY=:$numero QT_QPA_PLATFORM=xcb XDG_RUNTIME_DIR=$trabajo TESMO_DECIMAL=coma \
    "$programa" --base "$base" --imagenes "$3"
}
estado=0
hacer 1280 720 "$PWD/img" || estado=1
hacer 1920 1080 "$PWD/img/1920" || estado=1
exit $estado
