# Qt y la biblioteca de trazado, para las carpetas que abren ventanas. Los destinos importados sólo se ven en el
# directorio que los busca, así que cada una incluye este fichero.

find_package(Qt6 6.4 REQUIRED COMPONENTS Core Gui Widgets PrintSupport Svg Test)
# Sin los directorios que Qt Test define distintos en cada carpeta: nadie los pide y las pruebas comparten cabeceras
# precompiladas, que exigen las mismas definiciones.
set_property(TARGET Qt6::Test PROPERTY INTERFACE_COMPILE_DEFINITIONS QT_TESTLIB_LIB)
# Después de Qt: su configuración da por hecho que los destinos de Qt ya existen.
if(NOT TARGET QCustomPlotQt6::QCustomPlotQt6)
  find_package(QCustomPlotQt6 REQUIRED)
endif()
set(CMAKE_AUTOMOC ON)
