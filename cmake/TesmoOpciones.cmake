# Opciones comunes a todos los destinos y las funciones con que se declaran motores, pruebas y medidas.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
if(NOT CMAKE_BUILD_TYPE)
  set(CMAKE_BUILD_TYPE Release CACHE STRING "Tipo de construcción" FORCE)
endif()

# Los resultados se fijan bit a bit: sin contraer productos y sumas y sin matemática relajada.
add_library(tesmo_opciones INTERFACE)
target_include_directories(tesmo_opciones INTERFACE ${PROJECT_SOURCE_DIR})
if(MSVC)
  target_compile_options(tesmo_opciones INTERFACE /W4 /utf-8 /fp:precise)
else()
  target_compile_options(tesmo_opciones INTERFACE -Wall -Wextra -Wpedantic -Wconversion -ffp-contract=off)
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # g++ 12 da por solapada, sin serlo, la suma de un literal y una cadena (su fallo 105651).
    target_compile_options(tesmo_opciones INTERFACE -Wno-restrict)
  endif()
  if(TESMO_AVISOS_COMO_ERRORES)
    target_compile_options(tesmo_opciones INTERFACE -Werror)
  endif()
  if(TESMO_SANEADORES)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
  endif()
endif()

# Con saneadores, las ventanas, las órdenes y las pruebas llevan sólo AddressSanitizer, sin optimizar: UBSan y -O1
# doblan lo que tarda cada fichero, y las cuentas están en los motores y en la matemática del dibujo, que los conservan.
# Vale para los destinos que declare después la carpeta que la llama.
macro(tesmo_solo_asan)
  if(TESMO_SANEADORES AND NOT MSVC)
    add_compile_options(-O0 -g0 -fno-sanitize=undefined)
  endif()
endmacro()

# tesmo_precompilar(destino cabecera…): cabeceras ajenas y pesadas que se leen una vez por destino. Sólo al construir
# de una vez: con TESMO_PRECOMPILAR apagado cada fichero ha de valerse con las que él mismo incluye.
function(tesmo_precompilar destino)
  if(TESMO_PRECOMPILAR)
    target_precompile_headers(${destino} PRIVATE ${ARGN})
  endif()
endfunction()

# tesmo_precompilar_como(destino otro): las mismas cabeceras, ya leídas, de un destino con las mismas opciones.
function(tesmo_precompilar_como destino otro)
  if(TESMO_PRECOMPILAR)
    target_precompile_headers(${destino} REUSE_FROM ${otro})
  endif()
endfunction()

# tesmo_biblioteca(nombre FUENTES f1 f2… USA m1 m2…): biblioteca estática tesmo_<nombre> sobre otras del proyecto.
function(tesmo_biblioteca nombre)
  cmake_parse_arguments(M "" "" "FUENTES;USA" ${ARGN})
  add_library(tesmo_${nombre} STATIC ${M_FUENTES})
  target_link_libraries(tesmo_${nombre} PUBLIC tesmo_opciones)
  foreach(m IN LISTS M_USA)
    target_link_libraries(tesmo_${nombre} PUBLIC tesmo_${m})
  endforeach()
endfunction()

# tesmo_motor(nombre FUENTES f1 f2… USA m1 m2…): la que sólo incluye la biblioteca estándar, el sistema y lo que USA.
# Lo comprueba tests/capas.
function(tesmo_motor nombre)
  tesmo_biblioteca(${nombre} ${ARGN})
  set_property(GLOBAL APPEND PROPERTY TESMO_MOTORES ${nombre})
endfunction()

# tesmo_prueba(nombre [CON_QT] [DE_UNA_VEZ] FUENTES … USA …): ejecutable GoogleTest con un caso de ctest por prueba, o
# uno solo si sus pruebas comparten datos que cuesta hacer.
function(tesmo_prueba nombre)
  cmake_parse_arguments(P "CON_QT;DE_UNA_VEZ" "" "FUENTES;USA" ${ARGN})
  add_executable(prueba_${nombre} ${P_FUENTES})
  target_link_libraries(prueba_${nombre} PRIVATE tesmo_opciones GTest::gtest_main)
  foreach(m IN LISTS P_USA)
    target_link_libraries(prueba_${nombre} PRIVATE tesmo_${m})
  endforeach()
  if(NOT P_CON_QT) # Qt pide código de posición independiente: otras opciones, otras cabeceras
    tesmo_precompilar_como(prueba_${nombre} tesmo_prueba_cabeceras)
  endif()
  if(P_DE_UNA_VEZ)
    add_test(NAME ${nombre} COMMAND prueba_${nombre})
    set_tests_properties(${nombre} PROPERTIES TIMEOUT 300)
    return()
  endif()
  gtest_discover_tests(prueba_${nombre} TEST_PREFIX "${nombre}." DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 300)
endfunction()

# tesmo_medida(nombre FUENTES … USA …): programa de Google Benchmark en bench/.
function(tesmo_medida nombre)
  cmake_parse_arguments(B "" "" "FUENTES;USA" ${ARGN})
  add_executable(banco_${nombre} ${B_FUENTES})
  target_link_libraries(banco_${nombre} PRIVATE tesmo_opciones benchmark::benchmark)
  target_compile_definitions(banco_${nombre} PRIVATE TESMO_BIN="${CMAKE_RUNTIME_OUTPUT_DIRECTORY}")
  foreach(m IN LISTS B_USA)
    target_link_libraries(banco_${nombre} PRIVATE tesmo_${m})
  endforeach()
endfunction()
