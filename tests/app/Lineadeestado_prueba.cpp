// La línea de estado del marco: lo que se dice dura hasta que deja de venir a cuento.

#include "tests/comun/ventanas/Manejo.h"

#include <QAction>
#include <QMdiArea>
#include <QMenuBar>
#include <QPushButton>
#include <QStatusBar>
#include <QStatusTipEvent>
#include <QTabWidget>

#include <filesystem>
#include <optional>

using namespace tesmo;
using namespace tesmo::prueba;

class PruebaLineaDeEstado : public QObject {
  Q_OBJECT

private slots:
  void init() { marco_.emplace(); }
  void cleanup() { marco_.reset(); }

  void pasarPorLosMenusNoBorraLoDicho() {
    marco_->Numero(0).Localidad("Almería");
    const QString dicho = Estado();
    QVERIFY(dicho.contains(QStringLiteral("Almería")));
    QStatusTipEvent vacio{QString()};
    QApplication::sendEvent(&marco_->marco, &vacio);
    QCOMPARE(Estado(), dicho);
    QMenuBar &barra = *marco_->marco.menuBar();
    for (QAction *menu : barra.actions()) {
      barra.setActiveAction(menu);
      barra.setActiveAction(nullptr);
    }
    QCOMPARE(Estado(), dicho);
  }

  void unAvisoDeEstadoConTextoSeEnsena() {
    QStatusTipEvent lleno{QStringLiteral("una ayuda")};
    QApplication::sendEvent(&marco_->marco, &lleno);
    QCOMPARE(Estado(), QStringLiteral("una ayuda"));
  }

  void cerrarUnaVentanaSoloQuitaLoSuyo() {
    marco_->Orden("mnuNuevo").trigger();
    marco_->Orden("mnuNuevo").trigger();
    marco_->Numero(0).Localidad("Almería");
    const QString dicho = Estado();
    marco_->Orden("mnuCerrar").trigger(); // la tercera
    QTRY_COMPARE(marco_->marco.Controladores().size(), 2U);
    QCOMPARE(Estado(), dicho);
    auto &area = *marco_->marco.findChild<QMdiArea *>();
    area.setActiveSubWindow(area.subWindowList().first());
    marco_->Orden("mnuCerrar").trigger(); // la que habló
    QTRY_COMPARE(marco_->marco.Controladores().size(), 1U);
    QCOMPARE(Estado(), QString());
  }

  void cambiarDePestanaQuitaLoQueSeDijoEnLaOtra() {
    const Ventana ventana = marco_->Numero(0);
    ventana.Localidad("Almería");
    Pestana("tsPosicionSolar");
    ventana.Pulsar("btnMeses");
    QVERIFY(Estado().contains(QStringLiteral("de cada mes")));
    Pestana("tsDatosGenerales");
    QCOMPARE(Estado(), QString());
  }

  void loQueDijoOtraVentanaNoLoQuitaUnaPestana() {
    marco_->Orden("mnuNuevo").trigger();
    marco_->Numero(1).Localidad("Almería");
    const QString dicho = Estado();
    Pestana("tsPosicionSolar"); // de la primera
    QCOMPARE(Estado(), dicho);
  }

  void representarDiceQueElFicheroYaNoEstaEntero_data() {
    QTest::addColumn<QString>("fichero");
    QTest::addColumn<QString>("leidas");
    QTest::newRow("corto") << "Meteo/tarifa.met" << QString::number(DatosPrueba::REGISTROS_CORTADO);
    QTest::newRow("ilegible") << "config.ini"
                              << "0";
  }
  void representarDiceQueElFicheroYaNoEstaEntero() {
    QFETCH(const QString, fichero);
    QFETCH(const QString, leidas);
    const Ventana ventana = marco_->Numero(0);
    ventana.Localidad("Almería");
    Pestana("tsPsicrometrico");
    ventana.Pulsar("btnNubes");
    QCOMPARE(Estado(), QString()); // entero: nada que decir
    const DirectorioTemporal &directorio = marco_->datos.Directorio();
    std::filesystem::copy_file(directorio / fichero.toStdString(), directorio / "Meteo/almeria.met",
                               std::filesystem::copy_options::overwrite_existing);
    ventana.Pulsar("btnNubes");
    QVERIFY2(Estado().contains(QStringLiteral("Almería: sólo se pudieron leer %1 de las 8760").arg(leidas)),
             qPrintable(Estado()));
  }

  void laCargaIncompletaSigueALaVistaAlCambiarDePestana() {
    const Ventana ventana = marco_->Numero(0);
    ventana.Provincia("Cádiz");
    ventana.Localidad("Tarifa");
    const QString dicho = Estado();
    QVERIFY(dicho.contains(QStringLiteral("100")));
    Pestana("tsPsicrometrico");
    QCOMPARE(Estado(), dicho);
    ventana.Localidad("Localidad");
    ventana.Provincia("Almería");
    ventana.Localidad("Níjar");
    QVERIFY(Estado().contains(QStringLiteral("Níjar")));
    Pestana("tsDatosGenerales");
    QCOMPARE(Estado(), QString());
  }

private:
  [[nodiscard]] QString Estado() const { return marco_->marco.statusBar()->currentMessage(); }
  void Pestana(const char *nombre) const {
    const Ventana ventana = marco_->Numero(0);
    ventana.Buscar<QTabWidget>("pcProgramas").setCurrentWidget(&ventana.Buscar<QWidget>(nombre));
  }

  std::optional<MarcoPrueba> marco_;
};

TESMO_PRUEBA_QT(PruebaLineaDeEstado)
#include "Lineadeestado_prueba.moc"
