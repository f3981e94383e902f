# Falla si una de las FUENTES, o una cabecera del proyecto a la que se llega desde ellas, incluye una carpeta que no
# está en PERMITIDAS o una biblioteca ajena: las cabeceras de Qt y de CLI11 empiezan por mayúscula; la de JSON y la de
# trazado se conocen por su nombre. Las listas llegan separadas por barras.

cmake_minimum_required(VERSION 3.25)
set(AJENAS "<([A-Z]|q|nlohmann/)")
string(REPLACE "|" ";" por_mirar "${FUENTES}")
string(REPLACE "|" ";" PERMITIDAS "${PERMITIDAS}")

set(miradas)
while(por_mirar)
  list(POP_FRONT por_mirar fichero)
  list(APPEND miradas ${fichero})
  file(STRINGS ${fichero} lineas REGEX "^[ \t]*#[ \t]*include")
  foreach(linea IN LISTS lineas)
    string(REGEX REPLACE "^[ \t]*#[ \t]*include[ \t]*" "" incluida "${linea}")
    if(incluida MATCHES "^\"(([a-z]+)/[^\"]+)\"")
      set(cabecera ${RAIZ}/${CMAKE_MATCH_1})
      if(NOT CMAKE_MATCH_2 IN_LIST PERMITIDAS)
        message(SEND_ERROR "${fichero} incluye ${incluida}")
      elseif(NOT cabecera IN_LIST miradas AND NOT cabecera IN_LIST por_mirar)
        list(APPEND por_mirar ${cabecera})
      endif()
    elseif(incluida MATCHES "${AJENAS}")
      message(SEND_ERROR "${fichero} incluye ${incluida}")
    endif()
  endforeach()
endwhile()

list(LENGTH miradas cuantas)
if(cuantas EQUAL 0)
  message(FATAL_ERROR "No hay fuentes que mirar")
endif()
message(STATUS "${cuantas} ficheros mirados")
