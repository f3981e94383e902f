// El gráfico común manejado con ratón y teclado.

#include "tests/comun/ventanas/Manejo.h"
#include "vistas/grafico/Escalahoras.h"

#include <QWheelEvent>
#include <cmath>
#include <limits>
#include <optional>

using namespace tesmo;
using namespace tesmo::prueba;

namespace {

constexpr int HORAS = 31 * 24;

std::vector<float> Rampa(int numero, float paso) {
  std::vector<float> valores;
  for (int k = 0; k < numero; ++k) valores.push_back(paso * static_cast<float>(k));
  return valores;
}

SerieGrafico SerieDe(const char *rotulo, const QColor &color, bool visible = true) {
  return {QStringLiteral("c"),
          QString::fromUtf8(rotulo),
          QStringLiteral("0.0"),
          color,
          2.0,
          LadoEje::Izquierdo,
          visible};
}

void Rueda(QWidget &control, const QPoint &donde, int pasos, Qt::KeyboardModifiers teclas = Qt::NoModifier) {
  constexpr int GIRO_DE_UN_PASO = 120;
  QWheelEvent suceso(donde, control.mapToGlobal(donde), {}, QPoint(0, pasos * GIRO_DE_UN_PASO), Qt::NoButton,
                     teclas, Qt::NoScrollPhase, false);
  QApplication::sendEvent(&control, &suceso);
}

} // namespace

class PruebaGrafico : public QObject {
  Q_OBJECT

private slots:
  void init() {
    grafico_.emplace();
    grafico_->resize(1000, 500);
    grafico_->PonEscala(std::make_shared<EscalaHoras>(Periodo{{7, 1, 1}, {7, 31, 24}}));
    grafico_->AnadirSerie(SerieDe("Temperatura seca (ºC)", Qt::red), Rampa(HORAS, 0.05F));
    grafico_->show();
    QVERIFY(QTest::qWaitForWindowExposed(&*grafico_));
    grafico_->Redibujar();
    trazo_ = grafico_->findChild<QWidget *>(QStringLiteral("trazo"));
  }
  void cleanup() { grafico_.reset(); }

  void empiezaConTodoElPeriodoALaVista() {
    QCOMPARE(grafico_->Tramo(), (std::pair{0.5, HORAS + 0.5}));
    QVERIFY(grafico_->Limites(LadoEje::Izquierdo).maximo > 37.15);
    QVERIFY(grafico_->Marco().width() > 850);
    QVERIFY(grafico_->Marco().height() > 350);
  }

  void laRuedaAmpliaAlrededorDelPunteroYElDobleClicVuelve() {
    const QPoint centro = grafico_->Marco().center();
    Rueda(*trazo_, centro, 3);
    const auto [desde, hasta] = grafico_->Tramo();
    QVERIFY(hasta - desde < 0.6 * HORAS);
    QVERIFY(std::abs((desde + hasta) / 2.0 - HORAS / 2.0) < 5.0);
    const LimitesEje limites = grafico_->Limites(LadoEje::Izquierdo);
    QVERIFY(limites.minimo < 0.0 && limites.maximo > 37.15); // los valores no se tocan
    QTest::mouseDClick(trazo_, Qt::LeftButton, {}, centro);
    QCOMPARE(grafico_->Tramo(), (std::pair{0.5, HORAS + 0.5}));
  }

  void laRuedaHaciaAtrasNoSaleDelPeriodo() {
    Rueda(*trazo_, grafico_->Marco().center(), -5);
    QCOMPARE(grafico_->Tramo(), (std::pair{0.5, HORAS + 0.5}));
    for (int i = 0; i < 60; ++i) Rueda(*trazo_, grafico_->Marco().center(), 3);
    const auto [desde, hasta] = grafico_->Tramo();
    QVERIFY(std::abs(hasta - desde - 3.0) < 1e-9);
  }

  void conControlLaRuedaAmpliaLosValores() {
    const auto antes = grafico_->Limites(LadoEje::Izquierdo);
    Rueda(*trazo_, grafico_->Marco().center(), 2, Qt::ControlModifier);
    const auto despues = grafico_->Limites(LadoEje::Izquierdo);
    QVERIFY(despues.maximo - despues.minimo < 0.7 * (antes.maximo - antes.minimo));
    QCOMPARE(grafico_->Tramo(), (std::pair{0.5, HORAS + 0.5}));
  }

  void sobreUnEjeDeValoresLaRuedaNoTocaElTiempo() {
    const QRect marco = grafico_->Marco();
    const auto ancho = [&](LadoEje lado) {
      return grafico_->Limites(lado).maximo - grafico_->Limites(lado).minimo;
    };
    const double izquierdo = ancho(LadoEje::Izquierdo);
    for (int x = 2; x < marco.left(); x += 4) Rueda(*trazo_, QPoint(x, marco.center().y()), 1);
    QVERIFY(ancho(LadoEje::Izquierdo) < 0.7 * izquierdo);
    QCOMPARE(grafico_->Tramo(), (std::pair{0.5, HORAS + 0.5}));
    grafico_->PonLado(0, LadoEje::Derecho);
    grafico_->Redibujar();
    const double derecho = ancho(LadoEje::Derecho);
    for (int x = grafico_->Marco().right() + 2; x < trazo_->width() - 2; x += 4) {
      Rueda(*trazo_, QPoint(x, marco.center().y()), 1);
    }
    QVERIFY(ancho(LadoEje::Derecho) < 0.7 * derecho);
    QCOMPARE(grafico_->Tramo(), (std::pair{0.5, HORAS + 0.5}));
  }

  void arrastrarMueveElPeriodoALaVista() {
    grafico_->PonTramo(100.0, 200.0);
    const QPoint centro = grafico_->Marco().center();
    QTest::mousePress(trazo_, Qt::LeftButton, {}, centro);
    QTest::mouseMove(trazo_, centro + QPoint(100, 0));
    QTest::mouseMove(trazo_, centro + QPoint(200, 0));
    QTest::mouseRelease(trazo_, Qt::LeftButton, {}, centro + QPoint(200, 0));
    const auto [desde, hasta] = grafico_->Tramo();
    QVERIFY(std::abs(hasta - desde - 100.0) < 1e-6);
    QVERIFY(std::abs(desde - (100.0 - 200.0 * 100.0 / grafico_->Marco().width())) < 0.5);
  }

  void lasTeclasMuevenYAmplian() {
    grafico_->PonTramo(100.0, 200.0);
    QTest::keyClick(&*grafico_, Qt::Key_Right);
    QCOMPARE(grafico_->Tramo(), (std::pair{110.0, 210.0}));
    QTest::keyClick(&*grafico_, Qt::Key_Left);
    QTest::keyClick(&*grafico_, Qt::Key_Plus);
    QCOMPARE(grafico_->Tramo(), (std::pair{110.0, 190.0}));
    QTest::keyClick(&*grafico_, Qt::Key_Minus);
    QCOMPARE(grafico_->Tramo(), (std::pair{100.0, 200.0}));
    QTest::keyClick(&*grafico_, Qt::Key_Home);
    QCOMPARE(grafico_->Tramo(), (std::pair{0.5, HORAS + 0.5}));
  }

  void elCursorLeeFechaHoraYValoresALaVista() {
    const ConSeparador coma(',');
    grafico_->AnadirSerie(SerieDe("Humedad relativa (%)", Qt::blue), Rampa(HORAS, 0.1F));
    grafico_->AnadirSerie(SerieDe("Oculta (ºC)", Qt::green, false), Rampa(HORAS, 1.0F));
    grafico_->Redibujar();
    const QRect marco = grafico_->Marco();
    const double porHora = marco.width() / static_cast<double>(HORAS);
    const int x =
        marco.left() + static_cast<int>((38.0 - 0.5) * porHora); // la hora 38 es el 2 de julio a las 14
    QTest::mouseMove(trazo_, QPoint(x, marco.center().y()));
    QCOMPARE(grafico_->Lectura(), QStringLiteral("2 de julio, hora 14 (hora 38 del período)\n"
                                                 "Temperatura seca: 1,9 ºC\nHumedad relativa: 3,7 %"));
    QTest::mouseMove(trazo_, QPoint(marco.left() - 20, marco.center().y()));
    QVERIFY(grafico_->Lectura().isEmpty());
  }

  void laLecturaSigueALoQueHayBajoElPunteroQuieto() {
    const QRect marco = grafico_->Marco();
    const QPoint donde(marco.left() + marco.width() / 4, marco.center().y());
    const auto esperada = [&] {
      const auto [desde, hasta] = grafico_->Tramo();
      const double x = desde + (donde.x() - marco.left()) * (hasta - desde) / marco.width();
      return QStringLiteral("(hora %1 del período)").arg(std::lround(x));
    };
    QTest::mouseMove(trazo_, donde);
    QVERIFY(grafico_->Lectura().contains(esperada()));
    const QString antes = esperada();
    for (const int tecla : {Qt::Key_Plus, Qt::Key_Right, Qt::Key_Right, Qt::Key_Left, Qt::Key_Minus}) {
      QTest::keyClick(&*grafico_, static_cast<Qt::Key>(tecla));
      QVERIFY2(grafico_->Lectura().contains(esperada()), qPrintable(grafico_->Lectura()));
    }
    grafico_->PonTramo(500.0, 600.0);
    QVERIFY(esperada() != antes);
    QVERIFY(grafico_->Lectura().contains(esperada()));
    Rueda(*trazo_, donde, 2);
    QVERIFY(grafico_->Lectura().contains(esperada()));
    Rueda(*trazo_, donde + QPoint(200, 0), 2); // la rueda también dice dónde está el puntero
    QVERIFY(!grafico_->Lectura().contains(esperada()));
    grafico_->PonVisible(0, false);
    grafico_->Redibujar();
    QVERIFY(grafico_->Lectura().isEmpty());
  }

  void salirDelGraficoQuitaElCursor() {
    QTest::mouseMove(trazo_, grafico_->Marco().center());
    QVERIFY(!grafico_->Lectura().isEmpty());
    QEvent sale(QEvent::Leave);
    QApplication::sendEvent(trazo_, &sale);
    QVERIFY(grafico_->Lectura().isEmpty());
    grafico_->PonTramo(100.0, 200.0); // y ampliar no lo trae de vuelta
    QVERIFY(grafico_->Lectura().isEmpty());
  }

  void sinSeriesElCursorNoLeeNada() {
    grafico_->Vaciar();
    grafico_->Redibujar();
    QTest::mouseMove(trazo_, grafico_->Marco().center());
    QVERIFY(grafico_->Lectura().isEmpty());
    QVERIFY(grafico_->Marco().width() > 850); // y los ejes siguen ocupando su sitio
  }

  void losNoFinitosNoEstropeanLosEjesNiLaLectura() {
    std::vector<float> valores = Rampa(HORAS, 0.05F);
    valores[10] = std::numeric_limits<float>::infinity();
    valores[11] = std::numeric_limits<float>::quiet_NaN();
    grafico_->Vaciar();
    grafico_->AnadirSerie(SerieDe("Directa normal (W/m²)", Qt::red), valores);
    grafico_->Redibujar();
    QVERIFY(grafico_->Limites(LadoEje::Izquierdo).maximo < 50.0);
    QCOMPARE(grafico_->MayorValor(0), double(0.05F * (HORAS - 1)));
    const QRect marco = grafico_->Marco();
    QTest::mouseMove(
        trazo_, QPoint(marco.left() + static_cast<int>(10.5 * marco.width() / HORAS), marco.center().y()));
    QVERIFY(grafico_->Lectura().contains(QStringLiteral("INF")) ||
            grafico_->Lectura().contains(QStringLiteral("NAN")));
  }

  void unSoloPuntoSeVe() {
    grafico_->Vaciar();
    grafico_->PonEscala(std::make_shared<EscalaHoras>(Periodo{{1, 1, 5}, {1, 1, 5}}));
    grafico_->AnadirSerie(SerieDe("Temperatura seca (ºC)", QColor(1, 2, 3)), std::vector<float>{20.0F});
    grafico_->Redibujar();
    const QImage imagen = grafico_->Imagen();
    QCOMPARE(imagen.pixelColor(grafico_->Marco().center()), QColor(1, 2, 3));
  }

private:
  std::optional<Grafico> grafico_;
  QWidget *trazo_ = nullptr;
};

TESMO_PRUEBA_QT(PruebaGrafico)
#include "Grafico_prueba.moc"
