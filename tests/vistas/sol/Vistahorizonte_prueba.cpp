// El horizonte de la página "Posicion solar  ": el ratón, las teclas y lo que se lee de él.

#include "core/Ficheros.h"
#include "solar/Influenciahorizonte.h"
#include "tests/comun/ventanas/Ventanasolar.h"

#include <QContextMenuEvent>

#include <algorithm>
#include <cmath>
#include <optional>

using namespace tesmo;
using namespace tesmo::prueba;

class PruebaHorizonte : public QObject {
  Q_OBJECT

private slots:
  void init() { v_.emplace(); }
  void cleanup() { v_.reset(); }

  void elPrimerClicEnLaIndicacionEnsenaLaCartaYPoneElPrimerPunto() {
    auto &hueco = v_->Control<GraficoSolar>("graHueco");
    QTest::mouseClick(&hueco, Qt::LeftButton, {}, hueco.PixelDe(-30.0F, 12.0F).toPoint());
    QVERIFY(v_->Carta().isVisible());
    QCOMPARE(v_->Horizonte().size(), std::size_t(1));
    QVERIFY(Cerca(v_->Horizonte()[0], -30.0F, 12.0F));
  }

  void soltarSinMayusculasAnadePorOrdenDeAcimut() {
    Dibujar({{40.0F, 10.0F}, {-40.0F, 20.0F}, {0.0F, 30.0F}});
    QCOMPARE(v_->Horizonte().size(), std::size_t(3));
    QVERIFY(std::is_sorted(v_->Horizonte().begin(), v_->Horizonte().end(),
                           [](const auto &a, const auto &b) { return a.acimut < b.acimut; }));
  }

  void conDosPuntosElTerceroLosLlevaASuAltura() {
    Dibujar({{-40.0F, 10.0F}, {40.0F, 20.0F}, {0.0F, 30.0F}});
    for (const PuntoHorizonte &punto : v_->Horizonte()) QVERIFY(std::abs(punto.altura - 30.0F) < 0.2F);
    Dibujar({{80.0F, 5.0F}});
    QVERIFY(std::abs(v_->Horizonte()[0].altura - 30.0F) < 0.2F); // el cuarto ya no
  }

  void aCincoGradosOMenosDeOtroNoSeAnadeSalvoDelUltimo() {
    Dibujar({{-40.0F, 10.0F}, {40.0F, 20.0F}});
    v_->Pulsar(-37.0F, 15.0F);
    QCOMPARE(v_->Horizonte().size(), std::size_t(2));
    v_->Pulsar(42.0F, 15.0F); // el último no estorba
    QCOMPARE(v_->Horizonte().size(), std::size_t(3));
  }

  void unClicACientoVeinteGradosNoAnadeNada() {
    Dibujar({{0.0F, 10.0F}});
    emit v_->Carta().izquierdoSoltado({50.0F, 120.0F, false, {1.0F, 1.0F}});
    emit v_->Carta().izquierdoSoltado({50.0F, -1.0F, false, {1.0F, 1.0F}});
    emit v_->Carta().izquierdoSoltado({181.0F, 10.0F, false, {1.0F, 1.0F}});
    QCOMPARE(v_->Horizonte().size(), std::size_t(1));
    emit v_->Carta().izquierdoSoltado({50.0F, 100.0F, false, {1.0F, 1.0F}});
    QCOMPARE(v_->Horizonte().size(), std::size_t(2));
  }

  void porEncimaDeNoventaElEjeLlegaACien() {
    Dibujar({{0.0F, 10.0F}});
    const QPointF antes = v_->Carta().PixelDe(0.0F, 90.0F);
    emit v_->Carta().izquierdoSoltado({50.0F, 95.0F, false, {1.0F, 1.0F}});
    QCOMPARE(v_->Carta().PixelDe(0.0F, 100.0F), antes);
  }

  void elBotonDerechoBorraYNuncaAbreUnMenu() {
    Dibujar({{-40.0F, 10.0F}, {40.0F, 20.0F}});
    const QPoint lejos = v_->Pixel(0.0F, 40.0F);
    const QPoint sitio = v_->Pixel(v_->Horizonte()[0].acimut, v_->Horizonte()[0].altura);
    for (const QPoint &donde : {lejos, sitio}) {
      QTest::mouseClick(&v_->Carta(), Qt::RightButton, {}, donde);
      QContextMenuEvent suceso(QContextMenuEvent::Mouse, donde, v_->Carta().mapToGlobal(donde));
      QApplication::sendEvent(&v_->Carta(), &suceso);
      QVERIFY(QApplication::activePopupWidget() == nullptr);
    }
    QCOMPARE(v_->Horizonte().size(), std::size_t(1));
    QVERIFY(v_->Horizonte()[0].acimut > 0.0F);
  }

  void mayusculasYArrastreMuevenEnVerticalHastaSoltar() {
    Dibujar({{-40.0F, 10.0F}, {40.0F, 10.0F}});
    const float acimut = v_->Horizonte()[0].acimut;
    v_->Arrastrar(v_->Pixel(acimut, v_->Horizonte()[0].altura), v_->Pixel(0.0F, 50.0F));
    QCOMPARE(v_->Horizonte().size(), std::size_t(2)); // soltar no añade
    QCOMPARE(v_->Horizonte()[0].acimut, acimut);
    QVERIFY(std::abs(v_->Horizonte()[0].altura - 50.0F) < 0.2F);
    QTest::mouseMove(&v_->Carta(), v_->Pixel(0.0F, 20.0F)); // el arrastre ya terminó
    QVERIFY(std::abs(v_->Horizonte()[0].altura - 50.0F) < 0.2F);
  }

  void elArrastrePorEncimaDeNoventaSigueAlRaton() {
    Dibujar({{-40.0F, 80.0F}});
    const float acimut = v_->Horizonte()[0].acimut;
    const QPoint desde = v_->Pixel(acimut, v_->Horizonte()[0].altura);
    const int pixelDeNoventa = v_->Pixel(0.0F, 90.0F).y();
    QTest::mousePress(&v_->Carta(), Qt::LeftButton, Qt::ShiftModifier, desde);
    for (int y = pixelDeNoventa + 3; y >= pixelDeNoventa - 12; --y) MoverHasta(desde.x(), y);
    const float arriba = v_->Horizonte()[0].altura;
    QVERIFY(arriba > 90.0F && arriba < 100.0F);
    for (int y = pixelDeNoventa - 12; y <= pixelDeNoventa + 3; ++y) MoverHasta(desde.x(), y);
    QTest::mouseRelease(&v_->Carta(), Qt::LeftButton, Qt::ShiftModifier, {desde.x(), pixelDeNoventa + 3});
    QVERIFY(v_->Horizonte()[0].altura < 90.0F && v_->Horizonte()[0].altura > 85.0F);
  }

  void elEjeCambiaAlSoltarYDesdeCienSeBajaSinSaltos() {
    Dibujar({{-40.0F, 80.0F}});
    const QPoint desde = v_->Pixel(v_->Horizonte()[0].acimut, v_->Horizonte()[0].altura);
    const QPoint arriba(desde.x(), v_->Pixel(0.0F, 90.0F).y() - 12);
    QTest::mousePress(&v_->Carta(), Qt::LeftButton, Qt::ShiftModifier, desde);
    MoverHasta(arriba.x(), arriba.y());
    const double deNoventa = v_->Carta().PixelDe(0.0F, 90.0F).y();
    QTest::mouseRelease(&v_->Carta(), Qt::LeftButton, Qt::ShiftModifier, arriba);
    QVERIFY(v_->Carta().PixelDe(0.0F, 90.0F).y() > deNoventa); // el eje llega ya a 100
    const QPoint otraVez = v_->Pixel(v_->Horizonte()[0].acimut, v_->Horizonte()[0].altura);
    const int hasta = v_->Pixel(0.0F, 85.0F).y();
    QTest::mousePress(&v_->Carta(), Qt::LeftButton, Qt::ShiftModifier, otraVez);
    for (int y = otraVez.y(); y <= hasta; ++y) MoverHasta(otraVez.x(), y);
    QTest::mouseRelease(&v_->Carta(), Qt::LeftButton, Qt::ShiftModifier, {otraVez.x(), hasta});
    QVERIFY(std::abs(v_->Horizonte()[0].altura - 85.0F) < 0.3F);
    QCOMPARE(v_->Carta().PixelDe(0.0F, 90.0F).y(), deNoventa);
  }

  void elArrastreQuedaEntreCeroYCien() {
    Dibujar({{-40.0F, 10.0F}});
    emit v_->Carta().izquierdoPulsado({v_->Horizonte()[0].acimut, 10.0F, true, {2.0F, 2.0F}});
    emit v_->Carta().movido({0.0F, 130.0F, true, {2.0F, 2.0F}});
    QCOMPARE(v_->Horizonte()[0].altura, 100.0F);
    emit v_->Carta().movido({0.0F, -20.0F, true, {2.0F, 2.0F}});
    QCOMPARE(v_->Horizonte()[0].altura, 0.0F);
  }

  void suprBorraElPuntoElegido() {
    Dibujar({{-40.0F, 10.0F}, {40.0F, 10.0F}});
    QTest::keyClick(&v_->Carta(), Qt::Key_Delete); // sin elegir ninguno no borra
    QCOMPARE(v_->Horizonte().size(), std::size_t(2));
    v_->Pulsar(v_->Horizonte()[1].acimut, v_->Horizonte()[1].altura, Qt::LeftButton, Qt::ShiftModifier);
    QCOMPARE(v_->Vista().Contenido().elegido, 1);
    QTest::keyClick(&v_->Carta(), Qt::Key_Delete);
    QCOMPARE(v_->Horizonte().size(), std::size_t(1));
    QVERIFY(v_->Horizonte()[0].acimut < 0.0F);
  }

  void controlZDeshaceYConMayusculasRehace() {
    QVERIFY(!v_->Control<QPushButton>("btnDeshacer").isEnabled());
    Dibujar({{-40.0F, 10.0F}, {40.0F, 10.0F}});
    QTest::keyClick(&v_->Carta(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(v_->Horizonte().size(), std::size_t(1));
    QTest::keyClick(&v_->Carta(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    QCOMPARE(v_->Horizonte().size(), std::size_t(2));
    v_->ventana.Pulsar("btnDeshacer");
    v_->ventana.Pulsar("btnDeshacer");
    QVERIFY(v_->Horizonte().empty());
    QVERIFY(!v_->Control<QPushButton>("btnDeshacer").isEnabled());
    QVERIFY(v_->Control<QPushButton>("btnRehacer").isEnabled());
  }

  void lasTeclasDentroDeUnaCasillaSonDeSuTexto() {
    Dibujar({{-40.0F, 10.0F}});
    auto &casilla = v_->Control<QLineEdit>("edMes");
    casilla.setFocus();
    v_->Teclear("edMes", "12");
    QTest::keyClick(&casilla, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(v_->Horizonte().size(), std::size_t(1));
    QVERIFY(casilla.text() != QStringLiteral("12"));
  }

  void seVeElCieloYLasHorasQueQuita() {
    const QString cielo = v_->Rotulo("lbCielo");
    const QString horas = v_->Rotulo("lbHoras");
    QVERIFY2(cielo.contains(QStringLiteral("100")), qPrintable(cielo));
    QVERIFY2(horas.contains(QStringLiteral("0 de 4380")), qPrintable(horas));
    Dibujar({{-170.0F, 45.0F}, {170.0F, 45.0F}});
    QVERIFY(v_->Rotulo("lbCielo") != cielo);
    const int perdidas = HorasDeSolPerdidas(v_->Vista().Horizonte().Perfil(), 36.82F).perdidas;
    QVERIFY(perdidas > 1000);
    QVERIFY(v_->Rotulo("lbHoras").contains(QStringLiteral(" %1 de ").arg(perdidas)));
    QVERIFY(v_->Rotulo("lbEfecto").contains(QStringLiteral("Actualizar")));
  }

  void laIndicacionDiceComoEmpezar() {
    QVERIFY(v_->Control<GraficoSolar>("graHueco")
                .GuardarImagen(QString::fromStdString(v_->Fichero("hueco.svg"))));
    const auto svg = LeerFicheroEntero(v_->datos.Directorio() / "hueco.svg");
    QVERIFY(svg.has_value());
    const QString texto = QString::fromStdString(*svg).remove(QLatin1Char(' '));
    for (const char *boton : {"«Estedía»", "«TodoslosMeses»", "«Abrir»"})
      QVERIFY2(texto.contains(QString::fromUtf8(boton)), boton);
  }

  void unClicALaIzquierdaDelMarcoNoAnadeNada() {
    Dibujar({{0.0F, 10.0F}});
    const QPoint fuera(1, v_->Pixel(0.0F, 45.0F).y());
    QVERIFY(v_->Carta().SitioEn(fuera).acimut < -180.0F);
    QTest::mouseClick(&v_->Carta(), Qt::LeftButton, {}, fuera);
    QCOMPARE(v_->Horizonte().size(), std::size_t(1));
  }

  // El último punto no estorba: la segunda vez que se suelta pondría otro encima.
  void unDobleClicPoneUnSoloPunto() {
    Dibujar({{-40.0F, 10.0F}});
    DobleClic(v_->Pixel(60.0F, 30.0F), {});
    QCOMPARE(v_->Horizonte().size(), std::size_t(2));
    v_->Pulsar(100.0F, 30.0F); // el clic siguiente ya es otro
    QCOMPARE(v_->Horizonte().size(), std::size_t(3));
  }

  void unDobleClicConMayusculasAcabaElArrastre() {
    Dibujar({{-40.0F, 10.0F}, {40.0F, 10.0F}});
    const PuntoHorizonte punto = v_->Horizonte()[0];
    DobleClic(v_->Pixel(punto.acimut, punto.altura), Qt::ShiftModifier);
    QTest::mouseMove(&v_->Carta(), v_->Pixel(0.0F, 60.0F));
    QCOMPARE(v_->Horizonte()[0].altura, punto.altura);
  }

private:
  /// Mueve el ratón y comprueba que el punto va con él.
  void MoverHasta(int x, int y) const {
    QTest::mouseMove(&v_->Carta(), QPoint(x, y));
    QVERIFY(std::abs(v_->Carta().PixelDe(0.0F, v_->Horizonte()[0].altura).y() - y) <= 1.0);
  }
  static bool Cerca(const PuntoHorizonte &punto, float acimut, float altura) {
    return std::abs(punto.acimut - acimut) < 0.3F && std::abs(punto.altura - altura) < 0.2F;
  }
  /// Los sucesos de un doble clic de verdad: dos pulsaciones, y cada una se suelta.
  void DobleClic(const QPoint &sitio, Qt::KeyboardModifiers teclas) const {
    QTest::mouseClick(&v_->Carta(), Qt::LeftButton, teclas, sitio);
    QTest::mouseDClick(&v_->Carta(), Qt::LeftButton, teclas, sitio);
    QTest::mouseRelease(&v_->Carta(), Qt::LeftButton, teclas, sitio);
  }
  void Dibujar(const PuntosHorizonte &puntos) const { v_->Dibujar(puntos); }

  std::optional<VentanaSolar> v_;
};

TESMO_PRUEBA_QT(PruebaHorizonte)
#include "Vistahorizonte_prueba.moc"
