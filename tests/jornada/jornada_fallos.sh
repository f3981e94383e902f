# Los arranques y las escrituras que salen mal: lo que había queda entero y el programa lo dice. Se incluye con source
# tras jornada_manejo.sh.

DE_ANTES='lo que había'
# Donde ya no llega el «leídas las 8760 horas» de una carga buena, y sí lo que dice una mala [px].
COLUMNA_DE_AVISO=400

empezar() { # empezar BASE [ORDEN…]
  hay_resultados=no
  arrancar_programa "$@"
  esperar_ventana
  esperar 30 'la ventana pintada' hay_muestra '#FF8080'
}

sigue_siendo() { # sigue_siendo FICHERO…: lo que había, entero
  local fichero
  for fichero in "$@"; do
    [ "$(cat "$fichero")" = "$DE_ANTES" ] || fallar "$fichero ya no es lo que era"
  done
}

sin_config_ini() {
  decir 'sin config.ini'
  local mala=$trabajo/sin_config nombre
  mkdir "$mala"
  for nombre in LocalidadesCC GDR.TXT Granada.met; do ln -s "$base/Meteo/$nombre" "$mala/$nombre"; done
  empezar "$mala"
  esperar 30 'el aviso de que falta config.ini' dice_algo
  elegir_localidad gra Granada
  dias_de Granada "$trabajo/dias_sin_config"
  calcular_dias
  esperar 30 'extreRef.met en el directorio base' existe "$mala/extreRef.met"
  iguales "$mala/extreRef.met" "$trabajo/dias_sin_config/extreRef.met" 'el día de refrigeración sin config.ini'
  salir
}

sin_directorio_meteorologico() {
  decir 'sin directorio meteorológico'
  local mala=$trabajo/sin_meteo
  mkdir "$mala"
  cp "$base/config.ini" "$mala/config.ini"
  arrancar_programa "$mala"
  cerrar_caja 'que falta el directorio meteorológico'
  hay_resultados=no
  esperar_ventana
  calcular_dias
  cerrar_caja 'que no hay localidad'
  salir
}

con_un_met_ilegible() {
  decir 'con un .met ilegible'
  local mala=$trabajo/ilegible
  nueva_base "$mala"
  rm "$mala/Meteo"
  mkdir "$mala/Meteo"
  ln -s "$base/Meteo/LocalidadesCC" "$mala/Meteo/LocalidadesCC"
  echo "$DE_ANTES" >"$mala/Meteo/Granada.met"
  empezar "$mala"
  esperar 30 'un arranque sin quejas' calla
  elegir_localidad gra Granada
  esperar 30 'el aviso de las horas que faltan' dice_algo $COLUMNA_DE_AVISO
  xdotool key alt+v
  esperar 30 'el aviso tras visualizar' dice_algo $COLUMNA_DE_AVISO
  ventana_activa_es 'Tesmo-A' || fallar 'hay una caja de más'
  sigue_siendo "$mala/Meteo/Granada.met"
  salir
}

# no_se_escribe BASE [ORDEN…]: los días de proyecto y un archivo horario, con unos resultados que no se dejan escribir.
no_se_escribe() {
  local resultados=$1/Resultados
  empezar "$@"
  elegir_localidad gra Granada
  calcular_dias
  esperar 30 'el aviso de que no se pudieron escribir' dice_algo $COLUMNA_DE_AVISO
  ventana_activa_es 'Tesmo-A' || fallar 'hay una caja de más'
  sigue_siendo "$resultados/extreCal.met" "$resultados/extreRef.met"
  hay_resultados=sí
  pestana archivos
  xdotool mousemove 24 104 click 1
  xdotool key alt+e
  escribir_ruta 'Escribir archivo horario' "$resultados/extreCal.met"
  sustituir
  cerrar_caja 'que no se escribió el archivo horario'
  sigue_siendo "$resultados/extreCal.met" "$resultados/extreRef.met"
  salir
}

llenar_de_antes() {
  echo "$DE_ANTES" >"$1/Resultados/extreCal.met"
  echo "$DE_ANTES" >"$1/Resultados/extreRef.met"
}

con_resultados_protegidos() {
  decir 'con los resultados protegidos'
  local mala=$trabajo/protegida sin_poderes=()
  nueva_base "$mala"
  llenar_de_antes "$mala"
  chmod 444 "$mala"/Resultados/* # a un fichero que se deja, se le escribe en su sitio
  chmod 555 "$mala/Resultados"
  [ "$(id -u)" -ne 0 ] || sin_poderes=(setpriv --bounding-set=-all --inh-caps=-all)
  if ${sin_poderes[@]+"${sin_poderes[@]}"} touch "$mala/Resultados/sonda" 2>/dev/null; then
    echo 'AVISO: aquí no se puede proteger un directorio: ese caso no se prueba'
    return
  fi
  no_se_escribe "$mala" ${sin_poderes[@]+"${sin_poderes[@]}"}
}

con_el_disco_lleno() {
  decir 'con el disco lleno'
  local mala=$trabajo/llena
  nueva_base "$mala"
  if ! mount -t tmpfs -o size=64k tmpfs "$mala/Resultados" 2>/dev/null; then
    echo 'AVISO: no hay derechos para montar un disco pequeño: el disco lleno no se prueba'
    return
  fi
  montados+=("$mala/Resultados")
  llenar_de_antes "$mala"
  dd if=/dev/zero of="$mala/Resultados/relleno" bs=512 2>/dev/null || true
  no_se_escribe "$mala"
  [ "$(find "$mala/Resultados" -type f | wc -l)" -eq 3 ] || fallar 'quedó algo a medias en el disco lleno'
}

# pedir_anio FICHERO: el año entero de la temperatura seca, sobre un fichero que ya existe.
pedir_anio() {
  elegir_localidad gra Granada
  periodo 1 1 12 31
  pestana archivos
  xdotool mousemove 24 104 click 1
  xdotool key alt+e
  escribir_ruta 'Escribir archivo horario' "$1"
  sustituir
}

ha_muerto() { ! kill -0 "$tesmo"; }

# El sistema mata al programa en el octeto en que el fichero pasa del límite: siempre a mitad de escribirlo.
con_una_muerte_a_mitad() {
  decir 'con una muerte a mitad de escribir'
  local mala=$trabajo/muerte estado=0
  nueva_base "$mala"
  echo "$DE_ANTES" >"$mala/anio.met"
  empezar "$mala" bash -c 'ulimit -c 0; ulimit -f 64; exec "$@"' limitado
  pedir_anio "$mala/anio.met"
  esperar 30 'la muerte del programa' ha_muerto
  wait "$tesmo" || estado=$?
  [ $estado -eq $((128 + $(kill -l XFSZ))) ] || fallar "el programa no murió escribiendo: terminó con $estado"
  sigue_siendo "$mala/anio.met"
  empezar "$mala"
  pedir_anio "$mala/anio.met"
  esperar 30 'la vuelta a la ventana' ventana_activa_es 'Tesmo-A'
  "$ordenes" exportar --base "$base" --localidad Granada --decimal coma -o "$trabajo/anio.esperado" TS
  esperar 30 'el año entero' cmp "$mala/anio.met" "$trabajo/anio.esperado"
  salir
}

los_fallos() {
  sin_config_ini
  sin_directorio_meteorologico
  con_un_met_ilegible
  con_resultados_protegidos
  con_el_disco_lleno
  con_una_muerte_a_mitad
}
