#!/usr/bin/env bash
# Instala lo que falte, construye y abre Tesmo con los datos que lo acompañan.
#   ./ejecutar.sh             construye y abre la aplicación
#   ./ejecutar.sh --compilar  sólo construye
# Sin pantalla, la misma ventana hace su trabajo principal fuera de pantalla y deja el resultado en salida/.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")"
source cmake/preparar.sh

[ $# -le 1 ] || { echo 'Sobran argumentos (vea ./ejecutar.sh --ayuda)' >&2; exit 2; }
case ${1:-} in
  -h | --help | --ayuda) sed -n '2,5s/^# \{0,1\}//p' "$0"; exit 0 ;;
  '' | --compilar) ;;
  *) echo "Opción desconocida: $1 (vea ./ejecutar.sh --ayuda)" >&2; exit 2 ;;
esac

instalar_paquetes "${PAQUETES_CONSTRUIR[@]}"
construir release
[ "${1:-}" != --compilar ] || { paso 'Listo: build/bin/tesmo y build/bin/tesmo-cli'; exit 0; }

# Un DISPLAY heredado de una sesión cerrada no es una pantalla.
hay_pantalla() {
  [ -n "${DISPLAY:-}" ] || return 1
  case $DISPLAY in
    :*) [ -S "/tmp/.X11-unix/X$(sed 's/^:\([0-9]*\).*/\1/' <<<"$DISPLAY")" ] ;;
  esac
}

if hay_pantalla; then
  paso 'Abriendo Tesmo'
  exec build/bin/tesmo
fi
paso 'No hay pantalla: la ventana trabaja fuera de pantalla y deja imágenes y resultados en salida/'
mkdir -p salida
QT_QPA_PLATFORM=offscreen build/bin/tesmo --demostracion salida
paso 'Contenido de salida/:'
ls -l salida
