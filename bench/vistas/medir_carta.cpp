// Las 8.760 marcas de un año en la carta psicrométrica: de pulsar «Representar» a verlas, con las derivadas
// por hacer y ya hechas, y sólo el dibujo frente a las mismas cruces pintadas una a una con la pluma por
// defecto (antialias y cambio de pluma en cada una), con el mismo tamaño y en una sola ejecución. Lee los
// datos construidos.

#include "app/Carga.h"
#include "app/Programa.h"
#include "app/Seleccion.h"
#include "bench/comun/Mediana.h"
#include "core/Rutas.h"
#include "localidades/Ciudad.h"
#include "psicro/Marcacarta.h"
#include "psicro/Psicrometrico.h"
#include "vistas/carta/Marcocarta.h"
#include "vistas/carta/Paginapsicrometrico.h"
#include "vistas/carta/Vistapsicrometrico.h"
#include "vistas/comun/Panelseleccion.h"
#include "vistas/comun/Textoqt.h"

#include <QApplication>
#include <QImage>
#include <QPainter>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

namespace {

constexpr QSize TAMANO(1280, 720);
constexpr double OBJETIVO = 100.0; ///< de la pulsación a verse [ms]
constexpr int VECES = 15;

/// La primera localidad de la base con un año entero.
bool ElegirLocalidad(tesmo::Programa &programa, tesmo::Seleccion &seleccion) {
  std::vector<std::string> provincias;
  programa.DameLocalidades()->ListaDe("Provincias", provincias);
  for (const std::string &provincia : provincias) {
    std::vector<std::string> localidades;
    programa.DameLocalidades()->ListaDe("Localidades", provincia, localidades);
    if (localidades.empty()) continue;
    seleccion.PonProvincia(provincia);
    seleccion.PonLocalidad(localidades.front());
    return true;
  }
  return false;
}

/// Las mismas marcas como las pintaría quien no mira el coste.
void PintarUnaAUna(QImage &imagen, const tesmo::ContenidoCarta &contenido) {
  QPainter pintor(&imagen);
  pintor.setRenderHint(QPainter::Antialiasing);
  for (const tesmo::MarcaNube &marca : contenido.marcas) {
    const QPoint centro(static_cast<int>(contenido.carta.x(marca.t)),
                        static_cast<int>(contenido.carta.y(marca.w)));
    pintor.setPen(QPen(tesmo::Color(marca.color), tesmo::GRUESO_MARCA));
    const QPoint brazo(tesmo::BRAZO_MARCA, 0);
    const QPoint alza(0, tesmo::BRAZO_MARCA);
    pintor.drawLine(centro - brazo, centro + brazo);
    pintor.drawLine(centro - alza, centro + alza);
  }
}

} // namespace

int main(int argc, char **argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication aplicacion(argc, argv);
  tesmo::IniciarConfiguracion(TESMO_BIN);
  tesmo::Programa programa;
  tesmo::Seleccion seleccion;
  if (!ElegirLocalidad(programa, seleccion)) {
    std::fprintf(stderr, "no hay localidades en %s: construya antes los datos\n", TESMO_BIN);
    return EXIT_FAILURE;
  }
  tesmo::PaginaPsicrometrico pagina;
  tesmo::PanelSeleccion panel;
  panel.PonPeriodo({{1, 1, 1}, {12, 31, 24}});
  const auto cargar = [&] {
    return tesmo::CargarLocalidad(programa, seleccion) == tesmo::ResultadoCarga::Cargada;
  };
  tesmo::Vistapsicrometrico vista(pagina, panel, programa, seleccion, {cargar, [] {}});
  pagina.resize(TAMANO);
  pagina.show();
  QApplication::processEvents();
  tesmo::MarcoCarta &marco = pagina.DameMarco();
  const auto ver = [&] {
    vista.redibujar(); // sólo las marcas de esta vez
    vista.representar();
    marco.repaint();
  };
  ver(); // la primera vez pone además en memoria el fichero y las letras
  if (vista.Contenido().marcas.size() != tesmo::HORAS_DEL_ANIO) return EXIT_FAILURE;

  const double pulsacion = Mediana(VECES, ver);
  const double conMarcas = Mediana(VECES, [&] {
    marco.Redibujar();
    marco.repaint();
  });
  QImage imagen(marco.TamanoDeCarta(), QImage::Format_RGB32);
  imagen.fill(Qt::white);
  const double unaAUna = Mediana(VECES, [&] { PintarUnaAUna(imagen, vista.Contenido()); });
  vista.redibujar();
  const double sinMarcas = Mediana(VECES, [&] {
    marco.Redibujar();
    marco.repaint();
  });

  std::printf("de la pulsación a verlas         %8.1f ms (objetivo: %g)\n", pulsacion, OBJETIVO);
  std::printf("dibujo con 8.760 marcas          %8.1f ms\n", conMarcas);
  std::printf("dibujo sin marcas                %8.1f ms\n", sinMarcas);
  std::printf("marcas una a una, por defecto    %8.1f ms\n", unaAUna);
  std::printf("cociente marcas/una a una        %8.3f\n", (conMarcas - sinMarcas) / unaAUna);
  return pulsacion <= OBJETIVO ? EXIT_SUCCESS : EXIT_FAILURE;
}
