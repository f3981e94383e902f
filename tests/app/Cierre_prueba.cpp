// Cerrar con algo a medio teclear o con un mensaje a la vista, con los mensajes como en el programa: los
// presenta un bucle de sucesos que atiende lo que haya en la cola.

#include "tests/comun/ventanas/Manejo.h"

#include <QAbstractSpinBox>
#include <QAction>
#include <QEventLoop>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTimer>
#include <optional>

using namespace tesmo;
using namespace tesmo::prueba;

namespace {

constexpr int TIEMPO_A_LA_VISTA = 20; ///< de un mensaje [ms]

/// Presenta cada mensaje en un bucle de sucesos, como una caja modal, y hace lo que se le diga con él
/// delante.
class MensajesConBucle : public MensajesApuntados {
public:
  void Presentar(const std::string &texto, const std::string &titulo, Icono icono) override {
    MensajesApuntados::Presentar(texto, titulo, icono);
    if (conElDelante) conElDelante();
    QEventLoop bucle;
    QTimer::singleShot(TIEMPO_A_LA_VISTA, &bucle, &QEventLoop::quit);
    bucle.exec();
  }
  std::function<void()> conElDelante;
};

} // namespace

class PruebaCierre : public QObject {
  Q_OBJECT

private slots:
  void init() {
    marco_.emplace();
    mensajes_.emplace();
  }
  void cleanup() {
    mensajes_.reset();
    marco_.reset();
  }

  void loQueSeTecleabaNoCuentaAlCerrar_data() {
    QTest::addColumn<QString>("orden");
    QTest::addColumn<QString>("casilla");
    for (const char *orden : {"mnuCerrar", "mnuCerrarTodo", "mnuSalir"}) {
      for (const char *casilla : {"csVHorIni", "csBaseCal", "csAltitud"})
        QTest::addRow("%s %s", orden, casilla) << orden << casilla;
    }
  }
  void loQueSeTecleabaNoCuentaAlCerrar() {
    QFETCH(const QString, orden);
    QFETCH(const QString, casilla);
    if (casilla == QLatin1String("csAltitud"))
      DejarLaAltitudAMedias();
    else
      DejarUnaEstadisticaAMedias(casilla);
    mensajes_->apuntes.clear();
    marco_->Orden(orden.toLatin1().constData()).trigger();
    QTRY_COMPARE(Ventanas(), 0);
    QVERIFY(mensajes_->apuntes.empty());
  }

  void laVentanaSigueEnPieMientrasHayUnMensajeDelante_data() {
    QTest::addColumn<QString>("control");
    QTest::addColumn<bool>("conGrafico");
    for (const char *boton : {"btnActualizar", "btnSimulacion", "btnNubes", "btnCalDiaExt"})
      QTest::addRow("%s sin localidad", boton) << boton << false;
    for (const char *control : {"btnActualizar", "btnSimulacion", "btnNubes", "csAltitud"})
      QTest::addRow("%s con una casilla vacía", control) << control << true;
  }
  void laVentanaSigueEnPieMientrasHayUnMensajeDelante() {
    QFETCH(const QString, control);
    QFETCH(const bool, conGrafico);
    if (conGrafico) DejarUnaCasillaVacia();
    mensajes_->conElDelante = [this] { marco_->Orden("mnuCerrar").trigger(); };
    Usar(control.toLatin1().constData());
    QCOMPARE(mensajes_->apuntes.size(), 1U);
    QCOMPARE(Ventanas(), 1);
    QVERIFY(marco_->Numero(0).Controlador().DameFormulario().isVisible());
    marco_->Orden("mnuCerrar").trigger();
    QTRY_COMPARE(Ventanas(), 0);
  }

private:
  /// La localidad sin fichero: calcular lo diría.
  void DejarUnaEstadisticaAMedias(const QString &casilla) {
    const Ventana ventana = marco_->Numero(0);
    ventana.Provincia("Granada");
    ventana.Localidad("Motril");
    QCOMPARE(mensajes_->apuntes.size(), 1U);
    TeclearSinTerminar("tsValores", casilla);
  }
  void DejarLaAltitudAMedias() {
    DejarUnaCasillaVacia();
    TeclearSinTerminar("tsPsicrometrico", QStringLiteral("csAltitud"));
  }
  /// Con el gráfico a la vista y una casilla de la superficie vacía: rehacerlo lo diría.
  void DejarUnaCasillaVacia() {
    const Ventana ventana = marco_->Numero(0);
    ventana.Localidad("Almería");
    ventana.Pulsar("btnSimulacion");
    ventana.Buscar<QLineEdit>("edInclinacion").clear();
  }
  /// Pulsa el botón, o teclea en la casilla y termina.
  void Usar(const char *control) {
    const Ventana ventana = marco_->Numero(0);
    if (auto *boton = ventana.Controlador().DameFormulario().findChild<QPushButton *>(QLatin1String(control)))
      return boton->click();
    TeclearSinTerminar("tsPsicrometrico", QLatin1String(control));
    QTest::keyClick(&ventana.Buscar<QAbstractSpinBox>(control), Qt::Key_Return);
  }
  void TeclearSinTerminar(const char *pagina, const QString &casilla) {
    const Ventana ventana = marco_->Numero(0);
    ventana.Buscar<QTabWidget>("pcProgramas").setCurrentWidget(&ventana.Buscar<QWidget>(pagina));
    auto &numero = ventana.Buscar<QAbstractSpinBox>(casilla.toLatin1().constData());
    numero.setFocus();
    numero.selectAll();
    QTest::keyClicks(&numero, QStringLiteral("20"));
    QVERIFY(numero.hasFocus());
  }
  [[nodiscard]] int Ventanas() const { return static_cast<int>(marco_->marco.Controladores().size()); }

  std::optional<MarcoPrueba> marco_;
  std::optional<MensajesConBucle> mensajes_;
};

TESMO_PRUEBA_QT(PruebaCierre)
#include "Cierre_prueba.moc"
