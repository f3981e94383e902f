#!/usr/bin/env bash
# La mañana de un ingeniero con ratón y teclado de verdad, en un servidor X propio con gestor de ventanas, y después los
# arranques y las escrituras que salen mal. Comprueba ficheros y cifras: lo que deja la ventana ha de ser lo que da la
# línea de órdenes con la misma selección.
#   jornada.sh PROGRAMA DIRECTORIO_BASE ORDENES PORTAPAPELES
set -euo pipefail

[ $# -eq 4 ] || { sed -n '2,5s/^# \{0,1\}//p' "$0" >&2; exit 2; }
aqui=$(dirname "$(readlink -f "$0")")
source "$aqui/pantalla.sh"
ordenes=$3
portapapeles=$4
source "$aqui/jornada_manejo.sh"
source "$aqui/jornada_manana.sh"
source "$aqui/jornada_fallos.sh"
export TESMO_DECIMAL=coma

arrancar_pantalla
la_manana
los_fallos
echo 'La jornada: bien'
