# Puesta a punto común de ejecutar.sh y probar.sh: paquetes de Debian y construcción. Se lee con «source».

PAQUETES_CONSTRUIR=(g++ cmake ninja-build
  qt6-base-dev qt6-svg-dev libqcustomplot-dev qt6-qpa-plugins qt6-translations-l10n fonts-dejavu-core
  libcli11-dev nlohmann-json3-dev libreadline-dev)
PAQUETES_PROBAR=(libgtest-dev xvfb openbox xdotool imagemagick x11-utils locales)
PAQUETES_MEDIR=(libbenchmark-dev)

paso() { printf '== %s\n' "$*"; }

es_debian() {
  command -v dpkg-query >/dev/null && command -v apt-get >/dev/null &&
    grep -qiE '^(ID|ID_LIKE)=.*(debian|ubuntu)' /etc/os-release 2>/dev/null
}

faltan_paquetes() {
  local paquete
  for paquete in "$@"; do
    dpkg-query -W -f='${Status}' "$paquete" 2>/dev/null | grep -q 'install ok installed' || printf '%s\n' "$paquete"
  done
}

# instalar_paquetes PAQUETE…: instala los que falten. No pregunta nada y, si no falta ninguno, no toca la red.
instalar_paquetes() {
  if ! es_debian; then
    paso "Esta distribución no es Debian; hace falta el equivalente de: $*"
    return 0
  fi
  local faltan como=()
  mapfile -t faltan < <(faltan_paquetes "$@")
  [ ${#faltan[@]} -gt 0 ] || return 0
  if [ "$(id -u)" -ne 0 ]; then
    if command -v sudo >/dev/null && sudo -n true 2>/dev/null; then
      como=(sudo -n)
    else
      printf 'Faltan paquetes y no hay permiso para instalarlos. Ejecute como root:\n  apt-get install -y %s\n' \
        "${faltan[*]}" >&2
      return 1
    fi
  fi
  paso "Instalando paquetes que faltan (puede tardar unos minutos): ${faltan[*]}"
  "${como[@]}" apt-get update -qq || echo 'No se pudo actualizar la lista de paquetes; se sigue con la que hay.' >&2
  "${como[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -y -qq --no-install-recommends "${faltan[@]}" >/dev/null
}

# construir PREAJUSTE [OBJETIVO…]
construir() {
  local preajuste=$1
  shift
  paso "Configurando ($preajuste)"
  cmake --preset "$preajuste" >/dev/null
  paso "Construyendo ($preajuste); la primera vez tarda unos minutos"
  cmake --build --preset "$preajuste" --parallel "$(nproc)" ${1:+--target "$@"}
}
