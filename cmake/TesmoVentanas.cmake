# Qt y la biblioteca de trazado, para las carpetas que abren ventanas. Los destinos importados sólo se ven en el
# directorio que los busca, así que cada una incluye este fichero.

find_package(Qt6 6.4 REQUIRED COMPONENTS Core Gui Widgets PrintSupport Svg Test)
# Después de Qt: su configuración da por hecho que los destinos de Qt ya existen.
if(NOT TARGET QCustomPlotQt6::QCustomPlotQt6)
  find_package(QCustomPlotQt6 REQUIRED)
endif()
set(CMAKE_AUTOMOC ON)
