// Reglas del período tecleado en las seis casillas de la ventana.

#include "tests/comun/ventanas/Manejo.h"

#include <QSpinBox>
#include <optional>

using namespace tesmo;
using namespace tesmo::prueba;

class PruebaPeriodo : public QObject {
  Q_OBJECT

private slots:
  void init() { marco_.emplace(); }
  void cleanup() { marco_.reset(); }

  void empiezaEnElPrimerDiaDelAnio() {
    const Ventana ventana = marco_->Numero(0);
    for (const char *nombre : {"csMesIni", "csDiaIni", "csHorIni", "csMesFin", "csDiaFin"}) {
      QCOMPARE(ventana.Numero(nombre).value(), 1);
    }
    QCOMPARE(ventana.Numero("csHorFin").value(), 24);
    QCOMPARE(ventana.Numero("csMesFin").maximum(), 12);
    QCOMPARE(ventana.Numero("csDiaFin").maximum(), 31);
    QCOMPARE(ventana.Numero("csHorIni").minimum(), 1);
  }

  void del31DeEneroAFebreroQuedaEn28YVuelveAEnsancharse() {
    const Ventana ventana = marco_->Numero(0);
    ventana.PonAnioEntero();
    ventana.Poner("csDiaIni", 31);
    ventana.Poner("csMesIni", 2);
    QCOMPARE(ventana.Numero("csDiaIni").value(), 28);
    QCOMPARE(ventana.Numero("csDiaIni").maximum(), 28);
    ventana.Poner("csMesIni", 4);
    QCOMPARE(ventana.Numero("csDiaIni").value(), 28);
    QCOMPARE(ventana.Numero("csDiaIni").maximum(), 30);
    ventana.Poner("csMesIni", 5);
    QCOMPARE(ventana.Numero("csDiaIni").maximum(), 31);
  }

  void laHoraFinalNoQuedaAntesDeLaInicialDelMismoDia() {
    const Ventana ventana = marco_->Numero(0);
    ventana.Poner("csHorFin", 5);
    ventana.Poner("csHorIni", 10);
    QCOMPARE(ventana.Numero("csHorFin").value(), 10);
    QCOMPARE(marco_->marco.Controladores()[0]->DameSeleccion().DamePeriodo().fin, (FechaHora{1, 1, 10}));
  }

  void elDiaYElMesFinalesSiguenALosIniciales() {
    const Ventana ventana = marco_->Numero(0);
    ventana.Poner("csDiaIni", 20);
    QCOMPARE(ventana.Numero("csDiaFin").value(), 20);
    QCOMPARE(ventana.Numero("csHorFin").value(), 24);
    ventana.Poner("csMesIni", 7);
    QCOMPARE(ventana.Numero("csMesFin").value(), 7);
    QCOMPARE(ventana.Numero("csDiaFin").value(), 20);
  }

  void teclearCifrasNoAdelantaLasReglas() {
    const Ventana ventana = marco_->Numero(0);
    ventana.PonAnioEntero();
    ventana.Poner("csDiaIni", 31);
    // Camino del 12 el 1 no cuenta, y camino del 2 tampoco se recorta el día.
    ventana.Teclear("csMesFin", "1");
    QCOMPARE(marco_->marco.Controladores()[0]->DameSeleccion().DamePeriodo().fin, (FechaHora{12, 31, 24}));
    ventana.Teclear("csMesIni", "2");
    QCOMPARE(ventana.Numero("csDiaIni").value(), 31);
    QTest::keyClick(&ventana.Numero("csMesIni"), Qt::Key_Tab); // salir de la casilla termina el valor
    QCOMPARE(ventana.Numero("csDiaIni").value(), 28);
  }

  void lasFlechasAplicanLasReglasEnseguida() {
    const Ventana ventana = marco_->Numero(0);
    ventana.Poner("csMesFin", 3);
    ventana.Poner("csDiaFin", 31);
    ventana.Poner("csDiaIni", 31);
    QTest::keyClick(&ventana.Numero("csMesIni"), Qt::Key_Up);
    QCOMPARE(ventana.Numero("csMesIni").value(), 2);
    QCOMPARE(ventana.Numero("csDiaIni").value(), 28);
  }

  void visualizarTomaElNumeroAunSinTerminar() {
    const Ventana ventana = marco_->Numero(0);
    ventana.Localidad("Almería");
    ventana.Teclear("csDiaFin", "3");
    ventana.Pulsar("btnSimulacion");
    QCOMPARE(ventana.Chart().NumeroPuntos(0), 72);
  }

  void cambiarElPeriodoQuitaLasSeries() {
    const Ventana ventana = marco_->Numero(0);
    ventana.Localidad("Almería");
    ventana.Pulsar("btnSimulacion");
    QCOMPARE(ventana.Chart().NumeroSeries(), 21);
    ventana.Poner("csHorFin", 12);
    QCOMPARE(ventana.Chart().NumeroSeries(), 0);
    QCOMPARE(ventana.Chart().Tramo(), (std::pair{0.5, 12.5})); // el gráfico vacío ya es del período nuevo
    ventana.Pulsar("btnSimulacion");
    QCOMPARE(ventana.Chart().NumeroPuntos(0), 12);
  }

  void ponerElMismoNumeroNoQuitaLasSeries() {
    const Ventana ventana = marco_->Numero(0);
    ventana.Localidad("Almería");
    ventana.Pulsar("btnSimulacion");
    ventana.Poner("csHorFin", 24);
    QCOMPARE(ventana.Chart().NumeroSeries(), 21);
  }

private:
  std::optional<MarcoPrueba> marco_;
};

TESMO_PRUEBA_QT(PruebaPeriodo)
#include "Periodo_prueba.moc"
