// La página "Psicrométrico  ": lectura bajo el puntero, puntos fijados y el proceso entre dos.

#include "psicro/Corrienteaire.h"
#include "tests/comun/ventanas/Manejocarta.h"

#include <QClipboard>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableWidget>

#include <array>
#include <cmath>
#include <optional>

using namespace tesmo;
using namespace tesmo::prueba;

class PruebaPsicrometrico : public QObject, private ManejoCarta {
  Q_OBJECT

private slots:
  void init() { Abrir(); }
  void cleanup() { Cerrar(); }

  void losControlesTienenSusRotulosYValoresDeFabrica() {
    auto &paginas = Control<QTabWidget>("pcProgramas");
    QCOMPARE(paginas.tabText(paginas.currentIndex()), QStringLiteral("Psicrométrico  "));
    QCOMPARE(Control<QGroupBox>("gbValores").title(), QStringLiteral("Valores  "));
    QCOMPARE(Control<QGroupBox>("gbHorario").title(), QStringLiteral(" Horario  "));
    QCOMPARE(Control<QPushButton>("btnNubes").text().remove('&'), QStringLiteral("Representar"));
    QCOMPARE(Control<QPushButton>("btnLimpiar").text().remove('&'), QStringLiteral("Limpiar"));
    QCOMPARE(Control<QLabel>("lbPunto").text(), QStringLiteral("Punto"));
    QCOMPARE(ColorPunto(), QColor(Qt::blue));
    const auto &inicio = Control<QSpinBox>("csPHorIni");
    const auto &final = Control<QSpinBox>("csPHorFin");
    QCOMPARE(inicio.value(), 1);
    QCOMPARE(final.value(), 24);
    QCOMPARE(inicio.minimum(), 1);
    QCOMPARE(final.maximum(), 24);
    for (const char *casilla : {"edT", "edW", "edH", "edHR", "edVE", "edTR", "edTH", "edPresion"})
      QCOMPARE(Valor(casilla), QString());
  }

  void cadaValorTieneSuRotuloYSuUnidad() {
    const auto *rejilla = qobject_cast<QGridLayout *>(Control<QGroupBox>("gbValores").layout());
    QVERIFY(rejilla != nullptr);
    const auto rotulo = [rejilla](int fila, int columna) {
      return qobject_cast<QLabel *>(rejilla->itemAtPosition(fila, columna)->widget())->text();
    };
    const std::vector<std::array<const char *, 3>> esperados{
        {"edT", "T", "ºC"},   {"edW", "W", "kg/ kg"},        {"edH", "H", "J/kg"},
        {"edHR", "HR", ""},   {"edVE", "VE", "m³/kg"},       {"edTR", "TR", "ºC"},
        {"edTH", "TH", "ºC"}, {"edPresion", "Presión", "Pa"}};
    for (int i = 0; i < static_cast<int>(esperados.size()); ++i) {
      const auto &[casilla, nombre, unidad] = esperados[static_cast<std::size_t>(i)];
      QCOMPARE(rejilla->itemAtPosition(i, 1)->widget()->objectName(), QString::fromLatin1(casilla));
      QCOMPARE(rotulo(i, 0), QString::fromUtf8(nombre));
      QCOMPARE(rotulo(i, 2), QString::fromUtf8(unidad));
    }
  }

  void elPunteroLeeElEstadoConLosPatrones() {
    // El centro de la carta: 25 ºC y 0,015 kg/kg, a 101325 Pa.
    const QSize carta = Marco().TamanoDeCarta();
    Mover(carta.width() / 2, carta.height() / 2);
    const float t = Carta().t(carta.width() / 2);
    const float w = Carta().w(carta.height() / 2);
    CorrienteAire aire;
    aire.pont_w(t, w, 101325.0F);
    QCOMPARE(Valor("edT"), Patron(aire.temperatura(), 2));
    QCOMPARE(Valor("edW"), Patron(aire.humedadAbsoluta(), 4));
    QCOMPARE(Valor("edH"), Patron(aire.dame("h"), 2));
    QCOMPARE(Valor("edHR"), Patron(aire.dame("hr"), 2));
    QCOMPARE(Valor("edVE"), Patron(aire.dame("ve"), 4));
    QCOMPARE(Valor("edTR"), Patron(aire.dame("tr"), 2));
    QCOMPARE(Valor("edTH"), Patron(aire.dame("th"), 2));
    QCOMPARE(Valor("edPresion"), QStringLiteral("101325"));
    QCOMPARE(Marco().Reticula(), std::optional(QPoint(carta.width() / 2, carta.height() / 2)));
  }

  void porEncimaDeLaSaturacionNadaCambia() {
    const QSize carta = Marco().TamanoDeCarta();
    Mover(carta.width() / 2, carta.height() / 2);
    const QString antes = Valor("edT") + Valor("edH");
    Mover(5, 5);
    QCOMPARE(Valor("edT") + Valor("edH"), antes);
  }

  void porDebajoDeLaImagenSeEnsenaLaHumedadDeLaCartaYNoLaAcotada() {
    const int alto = Marco().TamanoDeCarta().height();
    const int y = alto + static_cast<int>(std::lround(alto / 30.0)); // 0,001 kg/kg por debajo
    Vista().lecturaPuntero(0, y);
    const QString separador(QLatin1Char(Configuracionregional::SeparadorDecimal()));
    QCOMPARE(Valor("edW"), QStringLiteral("-0") + separador + QStringLiteral("001"));
    QCOMPARE(Valor("edT"), QStringLiteral("0"));
    QCOMPARE(Valor("edH"), QStringLiteral("0")); // la del aire seco: la corriente no admite menos
    QCOMPARE(Valor("edHR"), QStringLiteral("0"));
  }

  void pasadoElBordeDerechoSeEnsenaLaTemperaturaDeLaCarta() {
    const QSize carta = Marco().TamanoDeCarta();
    Vista().lecturaPuntero(3 * carta.width(), carta.height());
    QCOMPARE(Valor("edT"), QStringLiteral("150"));
    QCOMPARE(Valor("edH"), QStringLiteral("99594")); // 1006·99: hasta ahí llega la corriente
  }

  void enLaEsquinaInferiorIzquierdaHayCeroYCero() {
    // El píxel que queda justo debajo de la imagen: la operación, no el ratón.
    Vista().lecturaPuntero(0, Marco().TamanoDeCarta().height());
    QCOMPARE(Valor("edT"), QStringLiteral("0"));
    QCOMPARE(Valor("edW"), QStringLiteral("0"));
  }

  void unClicFijaUnPuntoConSuEstado() {
    const QSize carta = Marco().TamanoDeCarta();
    Pulsar(carta.width() / 2, carta.height() - 40);
    const auto &tabla = Control<QTableWidget>("tablaPuntos");
    QCOMPARE(tabla.rowCount(), 1);
    QCOMPARE(tabla.item(0, 0)->text(), QStringLiteral("A"));
    QCOMPARE(tabla.item(0, 1)->text(), Patron(Vista().Contenido().puntos[0].t, 2));
    Pulsar(5, 5); // por encima de la saturación no hay estado
    QCOMPARE(tabla.rowCount(), 1);
  }

  void laSegundaPulsacionDeUnDobleClicFijaOtroPunto() {
    auto &imagen = Control<QWidget>("imgPsicro");
    const QPoint sitio(imagen.width() / 2, imagen.height() - 40);
    Pulsar(sitio.x(), sitio.y());
    EnviarRaton(imagen, QEvent::MouseButtonDblClick, sitio, Qt::LeftButton);
    QCOMPARE(Vista().Contenido().puntos.size(), std::size_t(2));
    for (const QEvent::Type tipo : {QEvent::MouseButtonPress, QEvent::MouseButtonDblClick})
      EnviarRaton(imagen, tipo, sitio, Qt::RightButton);
    QCOMPARE(Vista().Contenido().puntos.size(), std::size_t(2));
  }

  void laReticulaSeQuitaCuandoElPunteroSale() {
    Mover(Marco().TamanoDeCarta().width() / 2, Marco().TamanoDeCarta().height() - 40);
    QVERIFY(Marco().Reticula());
    const QString leido = Valor("edT");
    QEvent salida(QEvent::Leave);
    QApplication::sendEvent(&Control<QWidget>("imgPsicro"), &salida);
    QVERIFY(!Marco().Reticula());
    QCOMPARE(Valor("edT"), leido);
  }

  void alCambiarLaAltitudLaLecturaEsLaDelMismoSitioConLaPresionNueva() {
    const QSize carta = Marco().TamanoDeCarta();
    Mover(carta.width() / 2, carta.height() / 2);
    const float t = Carta().t(carta.width() / 2);
    const float w = Carta().w(carta.height() / 2);
    Control<QDoubleSpinBox>("csAltitud").setValue(1500.0);
    CorrienteAire aire;
    aire.pont_w(t, w, Carta().damePresion());
    QCOMPARE(Valor("edPresion"), Patron(Carta().damePresion(), 0));
    QCOMPARE(Valor("edT"), Patron(t, 2));
    QCOMPARE(Valor("edHR"), Patron(aire.dame("hr"), 2));
    QCOMPARE(Valor("edVE"), Patron(aire.dame("ve"), 4));
  }

  void dosPuntosEnsenanSuProceso() {
    FijarDosPuntos();
    const auto &puntos = Vista().Contenido().puntos;
    CorrienteAire a;
    CorrienteAire b;
    a.pont_w(puntos[0].t, puntos[0].w, 101325.0F);
    b.pont_w(puntos[1].t, puntos[1].w, 101325.0F);
    a.ponm(1.0F, "kg/s");
    b.ponm(1.0F, "kg/s");
    const QString proceso = Control<QLabel>("lbProceso").text();
    QVERIFY2(proceso.startsWith(QStringLiteral("A → B")), qPrintable(proceso));
    QVERIFY(proceso.contains(QStringLiteral("sensible ") + KiloVatios(dameQSen(a, b)) + " kW"));
    QVERIFY(proceso.contains(QStringLiteral("latente ") + KiloVatios(dameQLat(a, b)) + " kW"));
  }

  void conFilasElegidasSoloSeCopianEsas() {
    FijarDosPuntos();
    Control<QTableWidget>("tablaPuntos").selectRow(1);
    ventana_->Pulsar("btnCopiarPuntos");
    const QStringList lineas = QApplication::clipboard()->text().split('\n');
    QCOMPARE(lineas.size(), 3); // cabecera, el elegido y el final
    QVERIFY(lineas[0].startsWith(QStringLiteral("Punto\tT (ºC)\tW (kg/ kg)")));
    QVERIFY(lineas[1].startsWith(QStringLiteral("B\t")));
  }

  void elPrimerPuntoNoCambiaElTamanoDeLaCarta() {
    QVERIFY(!Control<QPushButton>("btnCopiarPuntos").isEnabled());
    QVERIFY(!Control<QPushButton>("btnBorrarPuntos").isEnabled());
    const QSize antes = Marco().TamanoDeCarta();
    Pulsar(antes.width() / 2, antes.height() - 40);
    QApplication::processEvents();
    QCOMPARE(Control<QTableWidget>("tablaPuntos").rowCount(), 1);
    QCOMPARE(Marco().TamanoDeCarta(), antes);
  }

  void losPuntosSeCopianYSeBorran() {
    FijarDosPuntos();
    QVERIFY(Control<QPushButton>("btnCopiarPuntos").isEnabled());
    ventana_->Pulsar("btnCopiarPuntos");
    const QStringList lineas = QApplication::clipboard()->text().split('\n');
    QCOMPARE(lineas.size(), 4); // cabecera, dos puntos y el final
    QVERIFY(lineas[1].startsWith(QStringLiteral("A\t")));
    Control<QTableWidget>("tablaPuntos").selectRow(0);
    ventana_->Pulsar("btnBorrarPuntos");
    QCOMPARE(Vista().Contenido().puntos.size(), std::size_t(1));
    QCOMPARE(Vista().Contenido().puntos[0].nombre, QStringLiteral("B"));
    Control<QTableWidget>("tablaPuntos").clearSelection();
    ventana_->Pulsar("btnBorrarPuntos");
    QVERIFY(Vista().Contenido().puntos.empty());
  }

  void trasBorrarNingunPuntoQuedaElegido() {
    const QSize carta = Marco().TamanoDeCarta();
    FijarDosPuntos();
    Pulsar(carta.width() - 60, carta.height() - 50);
    Control<QTableWidget>("tablaPuntos").selectRow(0);
    ventana_->Pulsar("btnBorrarPuntos");
    QCOMPARE(Vista().Contenido().puntos.size(), std::size_t(2));
    ventana_->Pulsar("btnCopiarPuntos");
    QCOMPARE(QApplication::clipboard()->text().split('\n').size(), 4); // cabecera, los dos y el final
    ventana_->Pulsar("btnBorrarPuntos");
    QVERIFY(Vista().Contenido().puntos.empty());
  }

  void unaCartaSinTamanoNoEnsenaNada() {
    Carta().ponTamano(0.0F, 0.0F);
    Vista().lecturaPuntero(10, 10);
    QCOMPARE(Valor("edT"), QString());
    QVERIFY(Vista().Contenido().puntos.empty());
  }

private:
  static void EnviarRaton(QWidget &control, QEvent::Type tipo, const QPoint &sitio, Qt::MouseButton boton) {
    QMouseEvent suceso(tipo, sitio, control.mapToGlobal(sitio), boton, boton, Qt::NoModifier);
    QApplication::sendEvent(&control, &suceso);
  }
  QColor ColorPunto() const { return Control<QLineEdit>("edPunto").palette().color(QPalette::Base); }
  /// Hasta @p decimales, sin ceros finales y con el separador de la región.
  static QString Patron(long double valor, int decimales) {
    QString texto = QString::number(static_cast<double>(valor), 'f', decimales);
    while (texto.contains('.') && (texto.endsWith('0') || texto.endsWith('.'))) texto.chop(1);
    return texto.replace('.', QLatin1Char(Configuracionregional::SeparadorDecimal()));
  }
  static QString KiloVatios(float vatios) {
    return QString::number(static_cast<double>(vatios) / 1000.0, 'f', 2)
        .replace('.', QLatin1Char(Configuracionregional::SeparadorDecimal()));
  }
};

TESMO_PRUEBA_QT(PruebaPsicrometrico)
#include "Psicrometrico_prueba.moc"
