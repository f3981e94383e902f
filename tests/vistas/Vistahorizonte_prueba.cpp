// El horizonte de la página "Posicion solar  ": el ratón, las teclas, los ficheros y la irradiancia.

#include "core/Ficheros.h"
#include "meteo/Leermet.h"
#include "solar/Influenciahorizonte.h"
#include "tests/vistas/Ventanasolar.h"
#include "vistas/Dialogohorizonte.h"

#include <QCheckBox>
#include <QContextMenuEvent>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>

#include <algorithm>
#include <cmath>
#include <optional>

using namespace tesmo;
using namespace tesmo::prueba;

namespace {

/// Un listado de PVGIS con una sierra de 30° al oeste.
std::string ListadoPvgis() {
  std::string texto =
      "Latitude (decimal degrees):\t36.840\n\nA\tH_hor\tA_sun(w)\tH_sun(w)\tA_sun(s)\tH_sun(s)\n";
  for (int acimut = -180; acimut <= 180; acimut += 30)
    texto += std::to_string(acimut) + ".0\t" + (acimut == 90 ? "30.0" : "2.0") + "\t0.0\t0.0\t0.0\t0.0\n";
  return texto + "\nA: Azimuth (0 = S, 90 = W, -90 = E) (degree)\nH_hor: Horizon height (degree)\n";
}

float AcimutDelMasAlto(const PuntosHorizonte &puntos) {
  return std::max_element(puntos.begin(), puntos.end(),
                          [](const auto &a, const auto &b) { return a.altura < b.altura; })
      ->acimut;
}

} // namespace

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
    Arrastrar(v_->Pixel(acimut, v_->Horizonte()[0].altura), v_->Pixel(0.0F, 50.0F));
    QCOMPARE(v_->Horizonte().size(), std::size_t(2)); // soltar no añade
    QCOMPARE(v_->Horizonte()[0].acimut, acimut);
    QVERIFY(std::abs(v_->Horizonte()[0].altura - 50.0F) < 0.2F);
    QTest::mouseMove(&v_->Carta(), v_->Pixel(0.0F, 20.0F)); // el arrastre ya terminó
    QVERIFY(std::abs(v_->Horizonte()[0].altura - 50.0F) < 0.2F);
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

  void elObjetoConservaElOrdenDelFicheroHastaQueSeEdita() {
    v_->Vista().AbrirPerfil(v_->datos.Directorio().Escribir("p.txt", "3\n50, 5\n-50, 7\n0, 9\n"));
    QVERIFY(v_->Carta().isVisible());
    QCOMPARE(v_->Sol().HorizonteX(), (std::vector<float>{50.0F, -50.0F, 0.0F}));
    QCOMPARE(v_->Horizonte().front().acimut, -50.0F);
    v_->Vista().actualizar();
    QCOMPARE(v_->Sol().HorizonteX(), (std::vector<float>{50.0F, -50.0F, 0.0F}));
    v_->Pulsar(100.0F, 20.0F);
    QCOMPARE(v_->Sol().HorizonteX().size(), std::size_t(3)); // aún no se ha copiado
    v_->Vista().actualizar();
    QCOMPARE(v_->Sol().HorizonteX().size(), std::size_t(4));
    QCOMPARE(v_->Sol().HorizonteX().front(), -50.0F);
  }

  void unPerfilGuardadoDeCincoPuntosLlevaCabeceraCincoYTresLineas() {
    AbrirCincoPuntos();
    v_->Vista().GuardarPerfil(v_->Fichero("g.txt"), FormatoHorizonte::Nativo);
    QCOMPARE(*LeerFicheroEntero(v_->datos.Directorio() / "g.txt"),
             std::string("5\n-100.000000, 1.000000\n0.000000, 3.500000\n100.000000, 5.000000\n"));
    v_->Vista().AbrirPerfil(v_->Fichero("g.txt"));
    QCOMPARE(v_->Sol().HorizonteX(), (std::vector<float>{-100.0F, 0.0F, 100.0F, 0.0F, 0.0F}));
  }

  void unPerfilCompletoVuelveIgual() {
    AbrirCincoPuntos();
    const PerfilHorizonte antes = v_->Sol().Horizonte();
    v_->Vista().GuardarPerfil(v_->Fichero("g.csv"), FormatoHorizonte::Completo);
    v_->Vista().AbrirPerfil(v_->datos.Directorio().Escribir("otro.txt", "1\n0, 0\n"));
    QVERIFY(v_->Sol().Horizonte() != antes);
    v_->Vista().AbrirPerfil(v_->Fichero("g.csv")); // sin preguntar
    QVERIFY(v_->Sol().Horizonte() == antes);
    QVERIFY(Previa() == nullptr);
  }

  void guardarCopiaAntesLoEditado() {
    Dibujar({{-40.0F, 10.0F}, {40.0F, 10.0F}});
    QCOMPARE(v_->Sol().Horizonte().Tamano(), 0);
    v_->Vista().GuardarPerfil(v_->Fichero("g.txt"), FormatoHorizonte::Nativo);
    QCOMPARE(v_->Sol().Horizonte().Tamano(), 2);
    QVERIFY(LeerFicheroEntero(v_->datos.Directorio() / "g.txt")->starts_with("2\n-"));
  }

  void elDialogoDeGuardarOfreceElPerfilCompleto() {
    AbrirCincoPuntos();
    v_->ventana.Pulsar("btnGuardarPerfil");
    auto *dialogo = Pagina().findChild<QFileDialog *>("sdPerfil");
    QVERIFY(dialogo != nullptr);
    QCOMPARE(dialogo->nameFilters().value(1), QStringLiteral("Perfil completo (*.csv)"));
    dialogo->selectNameFilter(dialogo->nameFilters().value(1));
    emit dialogo->fileSelected(QString::fromStdString(v_->Fichero("entero.csv")));
    const auto texto = LeerFicheroEntero(v_->datos.Directorio() / "entero.csv");
    QVERIFY(texto.has_value());
    QCOMPARE(std::count(texto->begin(), texto->end(), '\n'), 6); // los títulos y cinco puntos
    emit dialogo->fileSelected(QString());                       // un nombre vacío no hace nada
    QVERIFY(v_->mensajes.apuntes.empty());
    dialogo->close();
  }

  void abrirHaceDelDirectorioDelProgramaElDeTrabajo() {
    const QString antes = QDir::currentPath();
    QDir::setCurrent(QDir::tempPath());
    v_->ventana.Pulsar("btnAbrirPerfil");
    QCOMPARE(QDir(QDir::currentPath()),
             QDir(QString::fromStdString(TextoDeRuta(v_->datos.Directorio().Ruta()))));
    auto *dialogo = Pagina().findChild<QFileDialog *>("odPerfil");
    QVERIFY(dialogo != nullptr);
    emit dialogo->fileSelected(
        QString::fromStdString(v_->datos.Directorio().Escribir("p.txt", "2\n-10, 5\n10, 6\n")));
    QCOMPARE(v_->Horizonte().size(), std::size_t(2));
    dialogo->close();
    QDir::setCurrent(antes);
  }

  void loQueNoSePuedeLeerEsElMensajeCeroYElPerfilQueda_data() {
    QTest::addColumn<QByteArray>("contenido");
    QTest::newRow("no existe") << QByteArray();
    QTest::newRow("número de puntos negativo") << QByteArray("-1\n1, 2\n");
    QTest::newRow("demasiados puntos") << QByteArray("100001\n1, 2\n");
    QTest::newRow("no es un perfil") << QByteArray("hola\n");
  }
  void loQueNoSePuedeLeerEsElMensajeCeroYElPerfilQueda() {
    QFETCH(const QByteArray, contenido);
    AbrirCincoPuntos();
    const PerfilHorizonte antes = v_->Sol().Horizonte();
    if (!contenido.isEmpty()) (void)v_->datos.Directorio().Escribir("malo.txt", contenido.toStdString());
    v_->Vista().AbrirPerfil(v_->Fichero("malo.txt"));
    QCOMPARE(v_->mensajes.apuntes.size(), std::size_t(1));
    QCOMPARE(v_->mensajes.apuntes[0].texto,
             "No se puede abrir el fichero: " + v_->Fichero("malo.txt") + ".\n");
    QVERIFY(v_->Sol().Horizonte() == antes);
    QCOMPARE(v_->Horizonte().size(), std::size_t(5));
  }

  void loQueNoSePuedeEscribirEsElMensajeCero() {
    AbrirCincoPuntos();
    for (const FormatoHorizonte formato : {FormatoHorizonte::Nativo, FormatoHorizonte::Completo})
      v_->Vista().GuardarPerfil(v_->Fichero("no/hay/perfil"), formato);
    QCOMPARE(v_->mensajes.apuntes.size(), std::size_t(2));
    for (const auto &apunte : v_->mensajes.apuntes)
      QVERIFY(apunte.texto.starts_with("No se puede abrir el fichero: "));
    QCOMPARE(v_->Sol().Horizonte().Tamano(), 5);
  }

  void unListadoDePvgisSeEnsenaAntesDeAceptarlo() {
    AbrirListado();
    QVERIFY(v_->Horizonte().empty()); // todavía no
    QVERIFY(Previa()->findChild<GraficoSolar *>("graPrevia") != nullptr);
    Previa()->accept();
    QCOMPARE(v_->Horizonte().size(), std::size_t(13));
    QCOMPARE(AcimutDelMasAlto(v_->Horizonte()), 90.0F);
    QCOMPARE(v_->Sol().Horizonte().Tamano(), 0); // queda pendiente
    v_->Vista().actualizar();
    QCOMPARE(v_->Sol().Horizonte().Tamano(), 13);
  }

  void laVistaPreviaGiraYReflejaLoQueSeVe() {
    AbrirListado();
    const auto alto = [this] {
      EdicionHorizonte serie;
      serie.Tomar(Previa()->Perfil());
      return AcimutDelMasAlto(serie.Serie());
    };
    const auto pulsar = [this](const char *boton) {
      QTest::mouseClick(Previa()->findChild<QPushButton *>(QString::fromLatin1(boton)), Qt::LeftButton);
    };
    auto *espejo = Previa()->findChild<QCheckBox *>("cbEspejo");
    pulsar("btnGirarEste");
    QCOMPARE(alto(), 0.0F);
    pulsar("btnGirarEste");
    QCOMPARE(alto(), -90.0F);
    espejo->setChecked(true);
    QCOMPARE(alto(), 90.0F);
    pulsar("btnGirarOeste");
    pulsar("btnGirarOeste");
    QCOMPARE(alto(), -90.0F);
    Previa()->accept();
    QCOMPARE(AcimutDelMasAlto(v_->Horizonte()), -90.0F);
  }

  void cancelarLaVistaPreviaDejaElPerfilQueHabia() {
    AbrirCincoPuntos();
    AbrirListado();
    Previa()->reject();
    QCOMPARE(v_->Horizonte().size(), std::size_t(5));
  }

  void cuandoElFicheroNoDiceElOrigenSeAvisa() {
    v_->Vista().AbrirPerfil(v_->datos.Directorio().Escribir("t.txt", "0,1\n90,2\n180,3\n270,4\n"));
    QVERIFY(Previa() != nullptr);
    QVERIFY(Previa()->findChild<QLabel *>("lbExplicacion")->text().contains(QStringLiteral("supuesto")));
    Previa()->reject();
  }

  void trasUnMuroDeNoventaGradosNoQuedaDirecta() {
    v_->ventana.Localidad("Almería");
    v_->ventana.Pulsar("btnSimulacion");
    QVERIFY(Suma("Directa (W/m²)") > 0.0F);
    v_->Vista().AbrirPerfil(v_->datos.Directorio().Escribir("muro.txt", "2\n-180, 90\n180, 90\n"));
    v_->ventana.Pulsar("btnActualizar");
    QCOMPARE(Suma("Directa (W/m²)"), 0.0F);
    QCOMPARE(Suma("Difusa (W/m²)"), 0.0F); // ni cielo a la vista
  }

  void unHorizonteDeCerosNoCambiaNada() {
    v_->ventana.Localidad("Almería");
    v_->ventana.Pulsar("btnSimulacion");
    const std::vector<float> antes = Serie("Global (W/m²)");
    v_->Vista().AbrirPerfil(v_->datos.Directorio().Escribir("llano.txt", "2\n-180, 0\n180, 0\n"));
    v_->ventana.Pulsar("btnActualizar");
    QCOMPARE(Serie("Global (W/m²)"), antes);
    QVERIFY(Suma("Global (W/m²)") > 0.0F);
  }

  void loDibujadoCuentaAlActualizarYAlVisualizar() {
    v_->ventana.Localidad("Almería");
    v_->ventana.Pulsar("btnSimulacion");
    const float antes = Suma("Directa (W/m²)");
    v_->ventana.Pulsar("btnDia");
    Dibujar({{-179.0F, 85.0F}, {179.0F, 85.0F}});
    QCOMPARE(Suma("Directa (W/m²)"), antes); // hasta entonces no
    v_->ventana.Pulsar("btnSimulacion");
    QVERIFY(Suma("Directa (W/m²)") < antes);
  }

private:
  static bool Cerca(const PuntoHorizonte &punto, float acimut, float altura) {
    return std::abs(punto.acimut - acimut) < 0.3F && std::abs(punto.altura - altura) < 0.2F;
  }
  [[nodiscard]] QWidget &Pagina() const { return v_->Control<QWidget>("tsPosicionSolar"); }
  [[nodiscard]] DialogoHorizonte *Previa() const {
    return Pagina().findChild<DialogoHorizonte *>("dlgHorizonte");
  }
  /// Enseña la carta y pulsa en cada punto.
  void Dibujar(const PuntosHorizonte &puntos) const {
    if (v_->Carta().isHidden()) v_->ventana.Pulsar("btnDia");
    QApplication::processEvents();
    for (const PuntoHorizonte &punto : puntos) v_->Pulsar(punto.acimut, punto.altura);
  }
  void Arrastrar(const QPoint &desde, const QPoint &hasta) const {
    QTest::mousePress(&v_->Carta(), Qt::LeftButton, Qt::ShiftModifier, desde);
    QTest::mouseMove(&v_->Carta(), (desde + hasta) / 2);
    QTest::mouseMove(&v_->Carta(), hasta);
    QTest::mouseRelease(&v_->Carta(), Qt::LeftButton, Qt::ShiftModifier, hasta);
  }
  void AbrirCincoPuntos() const {
    v_->Vista().AbrirPerfil(
        v_->datos.Directorio().Escribir("cinco.txt", "5\n-100, 1\n-50, 2.25\n0, 3.5\n50, 4\n100, 5\n"));
  }
  void AbrirListado() const {
    v_->Vista().AbrirPerfil(v_->datos.Directorio().Escribir("pvgis.csv", ListadoPvgis()));
    QVERIFY(Previa() != nullptr);
  }
  [[nodiscard]] std::vector<float> Serie(const char *rotulo) const {
    const LeerMet &datos = *v_->controlador.DameLeerMet();
    std::vector<float> valores(static_cast<std::size_t>(datos.HorasDelPeriodo()));
    datos.DameSerie(rotulo, valores.data());
    return valores;
  }
  [[nodiscard]] float Suma(const char *rotulo) const {
    float suma = 0.0F;
    for (const float valor : Serie(rotulo)) suma += valor;
    return suma;
  }

  std::optional<VentanaSolar> v_;
};

TESMO_PRUEBA_QT(PruebaHorizonte)
#include "Vistahorizonte_prueba.moc"
