// El diálogo de colores, su fichero y las líneas que se distinguen también por el trazo.

#include "tests/comun/ventanas/Manejo.h"
#include "vistas/colores/Configuracion.h"
#include "vistas/colores/Ventanacolores.h"
#include "vistas/grafico/Trazosdistintos.h"

#include <QAction>
#include <QCheckBox>
#include <QColorDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QStatusBar>
#include <optional>

using namespace tesmo;
using namespace tesmo::prueba;

namespace {

const QColor VERDE(0, 255, 0);
constexpr std::uint32_t ROSA = 0xCBC0FF;

} // namespace

class PruebaColores : public QObject {
  Q_OBJECT

private slots:
  void init() {
    LiberarTablaDeColores();
    marco_.emplace();
  }
  void cleanup() {
    marco_.reset();
    LiberarTablaDeColores();
  }

  void cadaVariableTieneSuEtiquetaYSuMuestra() {
    const TforColores &dialogo = Abrir();
    QCOMPARE(dialogo.windowTitle(), QStringLiteral("Colores"));
    QVERIFY(dialogo.isModal());
    const std::vector<std::tuple<const char *, const char *, const char *>> filas{
        {"lbTS", "edTS", "Temperatura seca"},
        {"lbRSDr", "edRSDr", "Radiacion solar directa"},
        {"lbDSDf", "edRSDf", "Radiación solar difusa"},
        {"lbHA", "edHA", "Humedad absoluta"},
        {"lbVV", "edVV", "Velocidad del viento"},
        {"lbDV", "edDV", "Dirección del viento"},
        {"lbC", "edC", "Cenith"},
        {"lbAl", "edAl", "Altura"},
        {"lbAz", "edAz", "Azimuth"},
        {"lbTC", "edTC", "Temperatura de cielo"},
        {"lbTR", "edTR", "Temperatura de rocio"},
        {"lbTH", "edTH", "Temperatura húmeda"},
        {"lbHR", "edHR", "Humedad relativa"},
        {"lbE", "edE", "Entalpía"},
        {"lbVE", "edVE", "Volumen específico"},
        {"lbCE", "edCE", "Calor específico"},
        {"lbDN", "edDN", "Directa normal"},
        {"lbDr", "edDr", "Directa"},
        {"lbDf", "edDf", "Difusa"},
        {"lbR", "edR", "Reflejada"},
        {"lbG", "edG", "Global"},
    };
    for (const auto &[etiqueta, muestra, texto] : filas) {
      QCOMPARE(Control<QLabel>(etiqueta).text(), QString::fromUtf8(texto));
      QVERIFY(!Control<QLineEdit>(muestra).isEnabled());
    }
    QCOMPARE(Control<QGroupBox>("gbBasicasCol").title(), QStringLiteral("Magnitudes básicas"));
    QCOMPARE(Control<QGroupBox>("gbPsicrometricasCol").title(), QStringLiteral("Magnitudes psicrométricas"));
    QCOMPARE(Control<QGroupBox>("gbRadiacionCol").title(), QStringLiteral("Magnitudes radiación"));
  }

  void lasMuestrasEmpiezanConLosColoresDeLaTabla() {
    DameTablaDeColores().ponColor(3, ROSA);
    const TforColores &dialogo = Abrir();
    QCOMPARE(dialogo.Muestra(3), QColor(255, 192, 203));
    QCOMPARE(dialogo.Muestra(0), QColor(255, 128, 128));
  }

  void aceptarSinTocarNadaEscribeLaCabeceraYVeintidosLineas() {
    Abrir();
    QVERIFY(!Fichero());
    Pulsar("btnAceptar");
    const std::optional<std::string> texto = Fichero();
    QVERIFY(texto);
    QCOMPARE(std::count(texto->begin(), texto->end(), '\n'), 23);
    QVERIFY(texto->starts_with("Configuraci\xF3n para el programa Tesmo-A\nCOLOR-TS   = 8421631.000000\n"));
    QVERIFY(Dialogo() == nullptr || !Dialogo()->isVisible());
  }

  void pulsarUnaEtiquetaCambiaSoloSuMuestra_data() {
    QTest::addColumn<int>("tecla");
    QTest::newRow("ratón") << 0;
    QTest::newRow("Espacio") << int(Qt::Key_Space);
    QTest::newRow("Intro") << int(Qt::Key_Return);
  }
  void pulsarUnaEtiquetaCambiaSoloSuMuestra() {
    QFETCH(const int, tecla);
    TforColores &dialogo = Abrir();
    auto &etiqueta = Control<QLabel>("lbHR");
    if (tecla == 0) QTest::mouseClick(&etiqueta, Qt::LeftButton);
    if (tecla != 0) QTest::keyClick(&etiqueta, static_cast<Qt::Key>(tecla));
    auto *selector = dialogo.findChild<QColorDialog *>(QStringLiteral("cdColores"));
    QVERIFY(selector);
    QCOMPARE(selector->currentColor(), dialogo.Muestra(12));
    selector->setCurrentColor(VERDE);
    selector->accept();
    QCOMPARE(dialogo.Muestra(12), VERDE);
    QCOMPARE(dialogo.Muestra(11), QColor(0x95, 0xAA, 0x77));
    QCOMPARE(DameTablaDeColores().dameColor(12, 0), 0x400080U); // fuera del diálogo, nada
  }

  void cancelarElSelectorDejaLaMuestra() {
    TforColores &dialogo = Abrir();
    QTest::mouseClick(&Control<QLabel>("lbHR"), Qt::LeftButton);
    auto *selector = dialogo.findChild<QColorDialog *>(QStringLiteral("cdColores"));
    selector->setCurrentColor(VERDE);
    selector->reject();
    QCOMPARE(dialogo.Muestra(12), QColor(0x80, 0x00, 0x40));
  }

  void aceptarLlevaLosColoresATodasLasVentanasYAlFichero() {
    marco_->Orden("mnuNuevo").trigger();
    for (std::size_t i = 0; i < 2; ++i) {
      marco_->Numero(i).Localidad("Almería");
      marco_->Numero(i).Pulsar("btnSimulacion");
    }
    Abrir().PonMuestra(0, VERDE);
    Pulsar("btnAceptar");
    for (std::size_t i = 0; i < 2; ++i) QCOMPARE(marco_->Numero(i).Chart().Serie(0).color, VERDE);
    QCOMPARE(DameTablaDeColores().dameColor(0, 0), 0x00FF00U);
    QVERIFY(Fichero()->find("COLOR-TS   = 65280.000000\n") != std::string::npos);
  }

  void cancelarNoCambiaNiLaTablaNiElFichero() {
    Abrir().PonMuestra(0, VERDE);
    Pulsar("btnCancelar");
    QCOMPARE(DameTablaDeColores().dameColor(0, 0), 0x8080FFU);
    QVERIFY(!Fichero());
  }

  void funcionaSinNingunaVentanaAbierta() {
    marco_->Orden("mnuCerrarTodo").trigger();
    QTRY_VERIFY(marco_->marco.Controladores().empty());
    Abrir().PonMuestra(20, VERDE);
    Pulsar("btnAceptar");
    QVERIFY(Fichero()->find("COLOR-G    = 65280.000000\n") != std::string::npos);
    marco_->Orden("mnuNuevo").trigger();
    marco_->Numero(0).Localidad("Almería");
    marco_->Numero(0).Pulsar("btnSimulacion");
    QCOMPARE(marco_->Numero(0).Chart().Serie(20).color, VERDE);
  }

  void alAbrirUnaVentanaSeLeeElFichero() {
    marco_->datos.Directorio().Escribir("tesmo.inp", "x COLOR-TS = 65280.000000\nCOLOR-Al = 255.000000\n");
    marco_->Orden("mnuNuevo").trigger();
    marco_->Numero(1).Localidad("Almería");
    marco_->Numero(1).Pulsar("btnSimulacion");
    QCOMPARE(marco_->Numero(1).Chart().Serie(0).color, VERDE);
    QCOMPARE(marco_->Numero(1).Chart().Serie(7).color, QColor(255, 0, 0));
  }

  void siNoSePuedeEscribirSeDiceEnLaLineaDeEstadoYLosColoresValen() {
    std::filesystem::create_directory(marco_->datos.Directorio() / "tesmo.inp"); // en su sitio hay otra cosa
    Abrir().PonMuestra(0, VERDE);
    Pulsar("btnAceptar");
    QCOMPARE(DameTablaDeColores().dameColor(0, 0), 0x00FF00U);
    QVERIFY(marco_->marco.statusBar()->currentMessage().contains(QStringLiteral("tesmo.inp")));
    QVERIFY(marco_->mensajes.apuntes.empty());
  }

  /// El fichero está y se lee, pero no se puede cambiar: sus colores son los de antes.
  void losColoresQueNoSePudieronGuardarValenTambienEnLasVentanasNuevas() {
    const std::filesystem::path intocable("/proc/version"); // ni con todos los permisos
    if (!std::filesystem::is_regular_file(intocable)) QSKIP("no es Linux");
    std::filesystem::create_symlink(intocable, marco_->datos.Directorio() / "tesmo.inp");
    Abrir().PonMuestra(0, VERDE);
    Pulsar("btnAceptar");
    QVERIFY(marco_->marco.statusBar()->currentMessage().contains(QStringLiteral("tesmo.inp")));
    marco_->Orden("mnuNuevo").trigger();
    marco_->Numero(1).Localidad("Almería");
    marco_->Numero(1).Pulsar("btnSimulacion");
    QCOMPARE(marco_->Numero(1).Chart().Serie(0).color, VERDE);
    QCOMPARE(DameTablaDeColores().dameColor(0, 0), 0x00FF00U);
  }

  void losVeintiunTrazosSonDistintosYElPrimeroContinuo() {
    QVERIFY(TrazoDistinto(0).isEmpty());
    for (int i = 0; i < 21; ++i) {
      QCOMPARE(TrazoDistinto(i).size() % 2, 0);
      for (int j = 0; j < i; ++j) QVERIFY(TrazoDistinto(i) != TrazoDistinto(j));
    }
  }

  void trazosDistintosCambiaElDeLasLineasALaVista() {
    const Ventana ventana = marco_->Numero(0);
    ventana.Localidad("Almería");
    for (const char *casilla : {"cbTS", "cbHR", "cbG"}) ventana.Marcar(casilla);
    ventana.Pulsar("btnSimulacion");
    const auto trazo = [&](int i) { return ventana.Chart().Serie(i).trazo; };
    for (const int i : {0, 12, 20}) QVERIFY(trazo(i).isEmpty());
    ventana.Marcar("cbTrazosDistintos");
    QVERIFY(trazo(0).isEmpty()); // la primera sigue continua
    QVERIFY(!trazo(12).isEmpty());
    QVERIFY(!trazo(20).isEmpty());
    QVERIFY(trazo(12) != trazo(20));
    ventana.Marcar("cbTrazosDistintos", false);
    for (const int i : {0, 12, 20}) QVERIFY(trazo(i).isEmpty());
  }

  /// Con guiones se pinta menos, tanto si caben los puntos como si hay más que columnas.
  void losHuecosDelTrazoSeVen_data() {
    QTest::addColumn<bool>("anio");
    QTest::newRow("un día") << false;
    QTest::newRow("un año") << true;
  }
  void losHuecosDelTrazoSeVen() {
    QFETCH(const bool, anio);
    const Ventana ventana = marco_->Numero(0);
    if (anio) ventana.PonAnioEntero();
    ventana.Localidad("Almería");
    for (const char *casilla : {"cbTS", "cbE"}) ventana.Marcar(casilla);
    ventana.Pulsar("btnSimulacion");
    const QColor color = ventana.Chart().Serie(13).color;
    const int entera = Pixeles(ventana.Chart(), color);
    ventana.Marcar("cbTrazosDistintos");
    const int conHuecos = Pixeles(ventana.Chart(), color);
    QVERIFY2(conHuecos > entera / 3 && conHuecos < entera * 9 / 10,
             qPrintable(QStringLiteral("%1 de %2").arg(conHuecos).arg(entera)));
  }

private:
  [[nodiscard]] TforColores *Dialogo() const {
    return marco_->marco.findChild<TforColores *>(QStringLiteral("forColores"));
  }
  TforColores &Abrir() const {
    marco_->Orden("mnuColores").trigger();
    if (Dialogo() == nullptr) qFatal("no se abrió el diálogo de colores");
    return *Dialogo();
  }
  template <class Tipo>
  [[nodiscard]] Tipo &Control(const char *nombre) const {
    auto *control = Dialogo()->findChild<Tipo *>(QString::fromLatin1(nombre));
    if (control == nullptr) qFatal("falta %s", nombre);
    return *control;
  }
  void Pulsar(const char *boton) const { QTest::mouseClick(&Control<QPushButton>(boton), Qt::LeftButton); }
  [[nodiscard]] std::optional<std::string> Fichero() const {
    return LeerFicheroEntero(marco_->datos.Directorio() / "tesmo.inp");
  }
  static int Pixeles(const Grafico &grafico, const QColor &color) {
    const QImage imagen = grafico.Imagen(1.0);
    int cuantos = 0;
    for (int y = 0; y < imagen.height(); ++y)
      for (int x = 0; x < imagen.width(); ++x) cuantos += imagen.pixelColor(x, y) == color ? 1 : 0;
    return cuantos;
  }

  std::optional<MarcoPrueba> marco_;
};

TESMO_PRUEBA_QT(PruebaColores)
#include "Colores_prueba.moc"
