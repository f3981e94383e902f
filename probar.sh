#!/usr/bin/env bash
# Instala lo que falte, construye con los avisos como errores, AddressSanitizer en todo y UBSan en lo que calcula, y
# pasa todas las pruebas. Termina con 0 sólo si se ejecutó al menos una y todas pasaron.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")"
source cmake/preparar.sh

instalar_paquetes "${PAQUETES_CONSTRUIR[@]}" "${PAQUETES_PROBAR[@]}"
construir asan

# Las regiones de prueba, que genera la configuración de CMake.
export LOCPATH=$PWD/build-asan/regiones

paso 'Pasando las pruebas'
ctest --preset asan
