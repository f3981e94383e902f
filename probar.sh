#!/usr/bin/env bash
# Instala lo que falte, construye con los avisos como errores, AddressSanitizer y UBSan, y pasa todas las pruebas.
# Termina con 0 sólo si se ejecutó al menos una y todas pasaron.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")"
source cmake/preparar.sh

instalar_paquetes "${PAQUETES_CONSTRUIR[@]}" "${PAQUETES_PROBAR[@]}"
construir asan

# Las regiones con que se prueba que una coma del sistema no se cuela en ningún número; sin tocar las del sistema.
regiones=$PWD/build-asan/regiones
for region in es_ES en_US; do
  [ -d "$regiones/$region.UTF-8" ] && continue
  mkdir -p "$regiones"
  paso "Generando la región $region.UTF-8"
  rm -rf "$regiones/a-medias"
  localedef -i "$region" -f UTF-8 "$regiones/a-medias"
  mv "$regiones/a-medias" "$regiones/$region.UTF-8"
done
export LOCPATH=$regiones

paso 'Pasando las pruebas'
ctest --preset asan
