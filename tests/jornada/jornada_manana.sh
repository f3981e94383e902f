# La mañana entera en una ventana y un rato en otra. Se incluye con source tras jornada_manejo.sh.

TS='#FF8080'
TH='#95AA77'
HR='#800040'
VERDE='#00AA00' # el color nuevo de la temperatura seca
MARCA='#0000FF' # las horas en la carta
CURVA_JUNIO='#6CD800'
HORIZONTE='#604830'
hay_marcas() { [ "$(pixeles $MARCA)" -gt 100 ]; }
hay_horizonte() { [ "$(pixeles $HORIZONTE)" -gt 100 ]; }
selector_de_color() { ! ventana_activa_es '^Colores$' && ! ventana_activa_es 'Tesmo-A'; }

ver_julio() {
  decir 'tres variables de julio'
  esperar 30 'las casillas pintadas' hay_muestra $TS
  esperar 30 'un arranque sin quejas' calla
  elegir_localidad gra Granada
  local color
  for color in $TS $TH $HR; do clic_en_muestra $color; done
  periodo 7 1 7 31
  xdotool key alt+v
  for color in $TS $TH $HR; do esperar 30 "la variable $color dibujada" se_dibuja $color; done
}

# tesmo.inp entero, con los colores de nacimiento salvo el primero. La Altura se escribe como COLOR-AL y la humedad
# absoluta sale dos veces: así es el fichero.
colores_esperados() {
  printf 'Configuraci\363n para el programa Tesmo-A\n'
  local clave color
  while read -r clave color; do printf 'COLOR-%-4s = %d.000000\n' "$clave" $((color)); done <<'FIN'
TS 0x00AA00
RSDr 0x0080FF
RSDf 0x0000FF
HA 0x80FF80
VV 0x008000
DV 0x00FFFF
C 0xFF80FF
AL 0xFF0080
HA 0x80FF80
Az 0xFFFF80
TC 0x329FDA
TR 0x804000
TH 0x77AA95
HR 0x400080
E 0xFF0000
VE 0x000080
CE 0x008080
DN 0x800080
Dr 0xC0C0C0
Df 0xFF8000
R 0xC08080
G 0xDB9BDA
FIN
}

cambiar_colores() {
  decir 'el color de la temperatura seca'
  xdotool key alt+m
  xdotool key c
  esperar 30 'el diálogo de colores' ventana_activa_es '^Colores$'
  xdotool key Tab Tab space # de «Aceptar» a «Cancelar» y al nombre de la primera variable
  esperar 30 'el selector de color' selector_de_color
  xdotool key alt+h
  xdotool key ctrl+a
  xdotool type -- "$VERDE"
  xdotool key Return
  esperar 30 'la vuelta a los colores' ventana_activa_es '^Colores$'
  xdotool key alt+a
  esperar 30 'tesmo.inp' existe "$casa/tesmo.inp"
  colores_esperados >"$trabajo/colores.inp"
  iguales "$casa/tesmo.inp" "$trabajo/colores.inp" 'los colores'
  esperar 30 'la temperatura de otro color' se_dibuja $VERDE
  no_se_dibuja $TS || fallar 'la temperatura sigue con el color de antes'
}

dias_extremos() {
  decir 'los días extremos'
  dias_de Granada "$trabajo/dias"
  calcular_dias
  esperar 30 'extreRef.met' existe "$casa/Resultados/extreRef.met"
  iguales "$casa/Resultados/extreCal.met" "$trabajo/dias/extreCal.met" 'el día de calefacción'
  iguales "$casa/Resultados/extreRef.met" "$trabajo/dias/extreRef.met" 'el día de refrigeración'
  iguales "$casa/salida.txt" "$trabajo/dias/salida.txt" 'el informe'
  hay_resultados=sí
}

# La carta va de -180º (x 326) a 180º (x 1254) y de 0º (y 579) a 90º (y 98). Al tercer punto los dos primeros toman su
# altura: así se empieza un horizonte.
perfil_es() {
  awk -F';' '
    BEGIN { split("558 713 867 1022", x, " "); split("487 487 487 542", y, " ") }
    function lejos(a, b) { return a - b > 1 || b - a > 1 }
    NR > 1 && (lejos($1, (x[NR - 1] - 790) * 360 / 928) || lejos($2, (579 - y[NR - 1]) * 90 / 481)) { mal = 1 }
    END { exit mal || NR != 5 }' "$1" || {
    cat "$1" >&2
    fallar 'el horizonte guardado no es el que se dibujó'
  }
}

dibujar_horizonte() {
  decir 'el sol y el horizonte'
  pestana sol
  xdotool mousemove 73 298 click 1 # «Todos los Meses»
  esperar 30 'los caminos del sol' se_dibuja "$CURVA_JUNIO"
  local punto
  for punto in '558 515' '713 459' '867 487' '1022 542'; do xdotool mousemove $punto click 1; done
  esperar 30 'el horizonte dibujado' hay_horizonte
  xdotool mousemove 200 378 click 1
  escribir_ruta 'Guardar perfil' "$trabajo/sierra.csv"
  esperar 30 'el perfil guardado' existe "$trabajo/sierra.csv"
  esperar 30 'la vuelta a la ventana' ventana_activa_es 'Tesmo-A'
  perfil_es "$trabajo/sierra.csv"
}

# Dos trazos por hora: los de la semana y ninguno más.
nube_de_una_semana() {
  decir 'la nube de una semana'
  periodo 7 1 7 7
  pestana carta
  xdotool key alt+r
  esperar 30 'las marcas' hay_marcas
  guardar "$trabajo/nube.svg" 640 300 g
  local trazos
  trazos=$(awk '/^<g /{azul=/#0000ff/} azul && /^<polyline/' "$trabajo/nube.svg" | wc -l)
  [ "$trazos" -eq $((2 * 7 * 24)) ] || fallar "la nube de la semana tiene $trazos trazos"
}

copiar_resultados() {
  xdotool key alt+o
  "$portapapeles" >"$trabajo/valores.txt" && grep -q '^Máximo' "$trabajo/valores.txt"
}

# Las seis cifras del portapapeles contra las de la orden, redondeadas a una décima.
valores_de_julio() {
  decir 'los valores medios'
  periodo 7 1 7 31
  pestana valores
  xdotool key alt+t
  esperar 30 'los resultados copiados' copiar_resultados
  "$ordenes" estadisticas --base "$base" --localidad Granada --desde 7/1/1 --hasta 7/31/24 TS |
    tail -1 | cut -f3-8 | tr '\t' '\n' >"$trabajo/cifras.txt"
  tail -n +2 "$trabajo/valores.txt" | cut -f2 | tr ',' '.' | paste - "$trabajo/cifras.txt" | awk '
    { d = $1 - $2; if (NF != 2 || d > 0.0501 || d < -0.0501) mal = 1 }
    END { exit mal || NR != 6 }' || {
    cat "$trabajo/valores.txt" "$trabajo/cifras.txt" >&2
    fallar 'los valores de julio no son los de la línea de órdenes'
  }
}

# exportado FICHERO SEPARADOR LOCALIDAD [HORIZONTE]: lo mismo por la línea de órdenes.
exportado() {
  "$ordenes" exportar --base "$base" --localidad "$3" ${4:+--horizonte "$4"} --desde 7/1/1 --hasta 7/31/24 \
    --separador "$2" --decimal coma -o "$1" TS G HR || fallar 'la orden de exportar'
}

exportar_julio() {
  decir 'los archivos horarios'
  pestana archivos
  local punto
  for punto in '24 104' '256 144' '256 337' '540 137'; do xdotool mousemove $punto click 1; done
  xdotool key alt+s # la global, delante de la humedad
  xdotool key alt+c
  exportar "$trabajo/coma.met"
  xdotool key alt+u
  exportar "$trabajo/puntoycoma.met"
  exportado "$trabajo/coma.esperado" coma Granada "$trabajo/sierra.csv"
  exportado "$trabajo/puntoycoma.esperado" puntoycoma Granada "$trabajo/sierra.csv"
  iguales "$trabajo/coma.met" "$trabajo/coma.esperado" 'el fichero con comas'
  iguales "$trabajo/puntoycoma.met" "$trabajo/puntoycoma.esperado" 'el fichero con punto y coma'
  exportado "$trabajo/llano.esperado" puntoycoma Granada
  ! cmp -s "$trabajo/puntoycoma.met" "$trabajo/llano.esperado" || fallar 'el horizonte dibujado no tapa nada'
  maximo_es_el_copiado
}

# El máximo de la columna de la temperatura es el que se copió de los valores medios.
maximo_es_el_copiado() {
  local maximo
  maximo=$(grep -E '^ *7;' "$trabajo/puntoycoma.met" | cut -d';' -f4 | tr ',' '.' | sort -g | tail -1)
  [ "$(grep -cE '^ *7;' "$trabajo/puntoycoma.met")" -eq 744 ] || fallar 'julio no tiene 744 horas'
  grep -q "^Máximo.${maximo/./,}" "$trabajo/valores.txt" || fallar "el máximo exportado, $maximo, no es el copiado"
}

segunda_ventana() {
  decir 'otra ventana, con otra localidad'
  xdotool key ctrl+n
  esperar 30 'la segunda ventana' titulo_contiene 'Sin Nombre2'
  hay_resultados=no
  elegir_localidad c Cádiz
  rm "$casa/Resultados/extreRef.met"
  dias_de Cádiz "$trabajo/dias_otra"
  calcular_dias
  esperar 30 'extreRef.met otra vez' existe "$casa/Resultados/extreRef.met"
  iguales "$casa/Resultados/extreCal.met" "$trabajo/dias_otra/extreCal.met" 'el día de calefacción de Cádiz'
  iguales "$casa/Resultados/extreRef.met" "$trabajo/dias_otra/extreRef.met" 'el día de refrigeración de Cádiz'
  cat "$trabajo/dias/salida.txt" "$trabajo/dias_otra/salida.txt" >"$trabajo/salida.txt"
  iguales "$casa/salida.txt" "$trabajo/salida.txt" 'el informe de las dos ventanas'
}

# Al cerrarla, la primera sigue con lo suyo; con todas cerradas queda el marco y el programa acaba bien.
cerrar_todo() {
  decir 'cerrar'
  xdotool key ctrl+w
  esperar 30 'la vuelta a la primera' titulo_contiene '-Granada'
  rm "$trabajo/puntoycoma.met"
  hay_resultados=sí
  pestana archivos
  exportar "$trabajo/puntoycoma.met"
  iguales "$trabajo/puntoycoma.met" "$trabajo/puntoycoma.esperado" 'la primera ventana tras cerrar la otra'
  xdotool key ctrl+shift+w
  esperar 30 'el marco solo' marco_solo
  salir
}
marco_solo() { [ "$(titulo)" = 'Tesmo-A' ]; }

la_manana() {
  casa=$trabajo/casa
  nueva_base "$casa"
  arrancar_programa "$casa"
  esperar_ventana
  ver_julio
  cambiar_colores
  dias_extremos
  dibujar_horizonte
  nube_de_una_semana
  valores_de_julio
  exportar_julio
  segunda_ventana
  cerrar_todo
}
