#!/usr/bin/env bash
# Instala lo que falte, construye optimizado y pasa los programas de medida de bench/. Las cifras que importan son
# los cocientes frente al rival que cada uno nombra, tomados en la misma pasada.
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")"
source cmake/preparar.sh

instalar_paquetes "${PAQUETES_CONSTRUIR[@]}" "${PAQUETES_MEDIR[@]}"
construir banco
for medida in build-banco/bin/banco_*; do
  paso "${medida##*/}"
  QT_QPA_PLATFORM=offscreen "$medida"
done
