# Las regiones con que se prueba que una coma del sistema no se cuela en ningún número: se generan una vez en
# ${TESMO_REGIONES}, sin tocar las del sistema. Donde no hay localedef se prueba con las que haya.

set(TESMO_REGIONES ${PROJECT_BINARY_DIR}/regiones)
find_program(TESMO_LOCALEDEF localedef)
if(TESMO_LOCALEDEF)
  file(MAKE_DIRECTORY ${TESMO_REGIONES})
  foreach(region es_ES en_US)
    set(destino ${TESMO_REGIONES}/${region}.UTF-8)
    if(NOT EXISTS ${destino})
      message(STATUS "Generando la región ${region}.UTF-8")
      execute_process(COMMAND ${TESMO_LOCALEDEF} -i ${region} -f UTF-8 ${TESMO_REGIONES}/a-medias
                      RESULT_VARIABLE estado OUTPUT_QUIET ERROR_QUIET)
      if(estado EQUAL 0)
        file(RENAME ${TESMO_REGIONES}/a-medias ${destino})
      else()
        file(REMOVE_RECURSE ${TESMO_REGIONES}/a-medias)
        message(WARNING "No se ha podido generar la región ${region}.UTF-8")
      endif()
    endif()
  endforeach()
endif()
