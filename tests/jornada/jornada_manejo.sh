# Lo que hace la jornada con la ventana, y cómo compara lo que deja. Se incluye con source tras pantalla.sh.

decir() { echo "$((SECONDS)) s: $*"; }

# nueva_base DIRECTORIO: una instalación propia con los datos construidos, que sólo se leen.
nueva_base() {
  mkdir -p "$1/Resultados" "$1/Perfiles"
  cp "$base/config.ini" "$1/config.ini"
  ln -s "$base/Meteo" "$1/Meteo"
}

# Dónde se pulsa cada pestaña: las que siguen a los resultados se corren cuando éstos se enseñan.
declare -A PESTANAS=([visor]=60 [dias]=175 [sol]=290 [carta]=403 [archivos]=528 [valores]=690)
declare -A PESTANAS_CON_RESULTADOS=([visor]=60 [dias]=175 [resultados]=327 [sol]=470 [carta]=583 [archivos]=708
  [valores]=870)
hay_resultados=no
pestana() {
  local x=${PESTANAS[$1]:-0}
  [ $hay_resultados = no ] || x=${PESTANAS_CON_RESULTADOS[$1]}
  xdotool mousemove "$x" 51 click 1
}

elegir_localidad() { # elegir_localidad PROVINCIA TITULO: la primera de la provincia que empieza así
  xdotool key alt+p
  xdotool type "$1"
  xdotool key alt+l Down
  esperar 30 "el título $2" titulo_contiene "-$2"
}

periodo() { # periodo MES DIA MES DIA
  xdotool key alt+d
  xdotool type "$1"
  xdotool key Tab
  xdotool type "$2"
  xdotool key Tab alt+h
  xdotool type "$3"
  xdotool key Tab
  xdotool type "$4"
  xdotool key Tab
}

existe() { [ -s "$1" ]; }

# escribir_ruta TITULO RUTA: en el diálogo de ficheros de ese título, que queda apuntado.
escribir_ruta() {
  esperar 30 "el diálogo $1" ventana_activa_es "$1"
  dialogo=$(xdotool getactivewindow)
  xdotool type -- "$2"
  xdotool key Return
}

# sustituir: contesta que sí a la pregunta del diálogo por el fichero que ya existe.
sustituir() {
  esperar 30 'la pregunta por el fichero que existe' otra_ventana
  xdotool key alt+s
}
otra_ventana() { [ "$(xdotool getactivewindow)" != "$dialogo" ] && ! ventana_activa_es 'Tesmo-A'; }

# exportar FICHERO: «Escribir» en la pestaña de los archivos horarios.
exportar() {
  xdotool key alt+e
  escribir_ruta 'Escribir archivo horario' "$1"
  esperar 30 "el fichero $1" existe "$1"
  esperar 30 'la vuelta a la ventana' ventana_activa_es 'Tesmo-A'
}

# dice_algo [DESDE]: la línea de estado tiene letras de esa columna en adelante. Lo que dicen lo miran otras pruebas.
dice_algo() {
  foto
  [ "$(convert "$trabajo/foto.png" -crop 1270x18+"${1:-4}"+700 +repage -colorspace Gray -threshold 40% \
    -format '%[fx:round(w*h*(1-mean))]' info:)" -gt 40 ]
}
calla() { ! dice_algo; }

# La caja de un mensaje, que se cierra. El gestor puede dejar sin foco a la ventana si con ella se cierra un diálogo.
cerrar_caja() {
  esperar 30 "la caja de $1" hay_caja
  xdotool key Return
  esperar 30 'el cierre de la caja' no_hay_caja
  esperar 30 'la vuelta a la ventana' activar_ventana
}
no_hay_caja() { ! hay_caja && ! ventana_activa_es '^Escribir'; }
activar_ventana() { ventana_activa_es 'Tesmo-A' || { xdotool mousemove 640 9 click 1 && ventana_activa_es 'Tesmo-A'; }; }
hay_caja() { ventana_activa_es '^Error$\|^Informaci'; }

iguales() { # iguales FICHERO ESPERADO QUÉ
  cmp -s "$1" "$2" || {
    diff <(head -40 "$2") <(head -40 "$1") >&2 || true
    fallar "$3: $1 no es lo que da la línea de órdenes"
  }
}

# dias_de LOCALIDAD DIRECTORIO: los dos días y el informe, por la línea de órdenes.
dias_de() {
  mkdir -p "$2"
  "$ordenes" dias-extremos --base "$base" --localidad "$1" --decimal coma -o "$2" --salida "$2/salida.txt" ||
    fallar "la orden de los días extremos de $1"
}

# calcular_dias: el botón es lo último de su pestaña, justo antes de la provincia.
calcular_dias() {
  pestana dias
  xdotool key alt+p shift+Tab space
}
