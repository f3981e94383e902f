// Repintado de un año con las 21 series a la vista: el gráfico del programa frente al trazado por defecto de
// la biblioteca, con la misma pluma de ancho 2, las mismas series y el mismo tamaño, en una sola ejecución.

#include "bench/comun/Mediana.h"
#include "core/Calendario.h"
#include "vistas/grafico/Escalahoras.h"
#include "vistas/grafico/Grafico.h"

#include <QApplication>
#include <qcustomplot.h>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <numbers>
#include <vector>

namespace {

constexpr int SERIES = 21;
constexpr int ANCHO = 1200;
constexpr int ALTO = 700;
constexpr double PLUMA = 2.0;
/// Lo más que puede tardar el propio en fracción del trazado por defecto.
constexpr double COCIENTE_MAXIMO = 0.02;

/// Un año con curso diario y anual y un ruido reproducible, parecido a una serie meteorológica.
std::vector<float> Serie(int numero) {
  std::vector<float> valores;
  valores.reserve(tesmo::HORAS_DEL_ANIO);
  std::uint32_t estado = 2463534242U + static_cast<std::uint32_t>(numero);
  for (int k = 0; k < tesmo::HORAS_DEL_ANIO; ++k) {
    estado ^= estado << 13U;
    estado ^= estado >> 17U;
    estado ^= estado << 5U;
    const double ruido = estado / 4294967296.0 - 0.5;
    const double dia = std::sin(2.0 * std::numbers::pi * k / tesmo::HORAS_DEL_DIA);
    const double anio = std::cos(2.0 * std::numbers::pi * k / tesmo::HORAS_DEL_ANIO);
    valores.push_back(static_cast<float>(15.0 + numero - 10.0 * anio + 6.0 * dia + 4.0 * ruido));
  }
  return valores;
}

QColor Color(int numero) { return QColor::fromHsv(numero * 17, 200, 200); }

void LlenarPropio(tesmo::Grafico &grafico) {
  grafico.resize(ANCHO, ALTO);
  grafico.PonEscala(std::make_shared<tesmo::EscalaHoras>(tesmo::Periodo{{1, 1, 1}, {12, 31, 24}}));
  for (int i = 0; i < SERIES; ++i) {
    grafico.AnadirSerie({QString::number(i), QStringLiteral("Serie %1 (ºC)").arg(i), QStringLiteral("0.0"),
                         Color(i), PLUMA, tesmo::LadoEje::Izquierdo, true},
                        Serie(i));
  }
  grafico.show();
  grafico.Redibujar();
}

void LlenarPorDefecto(QCustomPlot &trazo) {
  trazo.resize(ANCHO, ALTO);
  for (int i = 0; i < SERIES; ++i) {
    QCPGraph *curva = trazo.addGraph();
    curva->setPen(QPen(Color(i), PLUMA));
    const std::vector<float> valores = Serie(i);
    for (std::size_t k = 0; k < valores.size(); ++k) curva->addData(static_cast<double>(k + 1), valores[k]);
  }
  trazo.rescaleAxes();
  trazo.show();
}

} // namespace

int main(int argc, char **argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication aplicacion(argc, argv);

  tesmo::Grafico grafico;
  LlenarPropio(grafico);
  auto *trazoPropio = grafico.findChild<QCustomPlot *>();
  const double propio = Mediana(21, [&] { trazoPropio->replot(QCustomPlot::rpImmediateRefresh); });
  const double imagen = Mediana(5, [&] { (void)grafico.Imagen(2.0); });
  grafico.PonTramo(1.0, 25.0);
  const double dia = Mediana(21, [&] { trazoPropio->replot(QCustomPlot::rpImmediateRefresh); });
  double peor = 0.0;
  for (const double horas : {50.0, 100.0, 200.0, 400.0, 800.0, 1100.0, 2000.0, 4000.0}) {
    grafico.PonTramo(1.0, 1.0 + horas);
    const double este = Mediana(5, [&] { trazoPropio->replot(QCustomPlot::rpImmediateRefresh); });
    std::printf("tramo de %.0f h           %10.1f ms\n", horas, este);
    peor = std::max(peor, este);
  }

  QCustomPlot trazo;
  LlenarPorDefecto(trazo);
  const double porDefecto = Mediana(3, [&] { trazo.replot(QCustomPlot::rpImmediateRefresh); });

  std::printf("por defecto, un año       %10.1f ms\n", porDefecto);
  std::printf("propio, un año            %10.1f ms\n", propio);
  std::printf("propio, un día            %10.1f ms\n", dia);
  std::printf("propio, peor tramo        %10.1f ms\n", peor);
  std::printf("propio, imagen al doble   %10.1f ms\n", imagen);
  std::printf("cociente propio/defecto   %10.5f (objetivo: %g)\n", propio / porDefecto, COCIENTE_MAXIMO);
  return propio / porDefecto <= COCIENTE_MAXIMO ? EXIT_SUCCESS : EXIT_FAILURE;
}
