// La pestaña "Archivos horarios": sus controles y la lista de variables.

#include "tests/vistas/datos/Manejoarchivoshorarios.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QListWidget>
#include <QRadioButton>

using namespace tesmo;
using namespace tesmo::prueba;

namespace {

const QString TS = QStringLiteral("Temperatura seca (ºC)");
const QString HR = QStringLiteral("Humedad relativa (%)");
const QString VV = QStringLiteral("Velocidad del viento (m/s)");

} // namespace

class PruebaArchivosHorariosLista : public QObject, private ManejoArchivosHorarios {
  Q_OBJECT

private slots:
  void init() { Abrir(); }
  void cleanup() { Soltar(); }

  void lasCasillasLlevanElNombreYElRotuloDeSuColumna() {
    const std::vector<std::pair<const char *, const char *>> casillas{
        {"cbTemSec", "Temperatura seca (ºC)"},
        {"cbRadDir", "Radiación solar directa (W/m²)"},
        {"cbRadDif", "Radiación solar difusa (W/m²)"},
        {"cbHumAbs", "Humedad absoluta (kg/kg)"},
        {"cbVelVie", "Velocidad del viento (m/s)"},
        {"cbDirVie", "Dirección del viento (º N)"},
        {"cbCenit", "Cenith (º)"},
        {"cbAltura", "Altura (º)"},
        {"cbAzimut", "Azimuth (º)"},
        {"cbTemRoc", "Temperatura de rocío (ºC)"},
        {"cbTemCie", "Temperatura de cielo (ºC)"},
        {"cbTemHum", "Temperatura húmeda (ºC)"},
        {"cbHumRel", "Humedad relativa (%)"},
        {"cbEnt", "Entalpía (J/kg)"},
        {"cbVolEsp", "Volumen específico (m³/kg)"},
        {"cbCalEsp", "Calor específico (J/(kg K))"},
        {"cbDirNor", "Directa normal (W/m²)"},
        {"cbDir", "Directa (W/m²)"},
        {"cbDif", "Difusa (W/m²)"},
        {"cbRef", "Reflejada (W/m²)"},
        {"cbGlo", "Global (W/m²)"},
    };
    for (const auto &[nombre, rotulo] : casillas) {
      const QString texto = QString::fromUtf8(rotulo);
      QCOMPARE(ventana_->Casilla(nombre).text(), texto);
      ventana_->Marcar(nombre);
      QCOMPARE(Lista(), QStringList(texto));
      ventana_->Marcar(nombre, false);
      QCOMPARE(Lista(), QStringList());
    }
  }

  void laPestanaYSusGruposSeLlamanComoSeDice() {
    const auto &paginas = ventana_->Buscar<QTabWidget>("pcProgramas");
    QCOMPARE(paginas.tabText(paginas.currentIndex()), QStringLiteral("Archivos horarios  "));
    const auto titulo = [this](const char *caja) { return ventana_->Buscar<QGroupBox>(caja).title(); };
    QCOMPARE(titulo("gbVariablesSeleccionadas"), QStringLiteral(" Variables seleccionadas  "));
    QCOMPARE(titulo("gbOpcionesFichero"), QStringLiteral(" Opciones fichero  "));
    QCOMPARE(titulo("gbSeparador"), QStringLiteral(" Separador   "));
    QCOMPARE(titulo("gbBasicasExp"), QStringLiteral("Magnitudes básicas"));
    QCOMPARE(titulo("gbPsicrometricasExp"), QStringLiteral("Magnitudes psicrométricas"));
    QCOMPARE(titulo("gbRadiacionExp"), QStringLiteral("Magnitudes radiación"));
  }

  void alPrincipioHayTabuladorCabeceraYNingunaVariable() {
    QVERIFY(ventana_->Buscar<QRadioButton>("rbTabulador").isChecked());
    QVERIFY(ventana_->Casilla("cbCabecera").isChecked());
    QCOMPARE(Lista(), QStringList());
  }

  void laListaSigueElOrdenEnQueSeMarcaYNingunaSeRepite() {
    Elegir({"cbHumRel", "cbTemSec", "cbVelVie"});
    QCOMPARE(Lista(), QStringList({HR, TS, VV}));
    ventana_->Marcar("cbTemSec", false);
    QCOMPARE(Lista(), QStringList({HR, VV}));
    ventana_->Marcar("cbTemSec");
    QCOMPARE(Lista(), QStringList({HR, VV, TS}));
    emit ventana_->Casilla("cbTemSec").toggled(true); // otra vez la misma
    QCOMPARE(Lista(), QStringList({HR, VV, TS}));
  }

  void subirMueveSoloLaPrimeraElegidaQueNoEstaArriba() {
    Elegir({"cbTemSec", "cbHumRel", "cbVelVie"});
    Seleccionar({1, 2});
    ventana_->Pulsar("btnSubir");
    QCOMPARE(Lista(), QStringList({HR, TS, VV}));
    QCOMPARE(Seleccionadas(), QStringList({HR, VV}));
    ventana_->Pulsar("btnSubir"); // la de arriba se salta: sube la otra
    QCOMPARE(Lista(), QStringList({HR, VV, TS}));
    QCOMPARE(Seleccionadas(), QStringList({HR, VV}));
  }

  void bajarMueveSoloLaPrimeraElegidaQueNoEstaAbajo() {
    Elegir({"cbTemSec", "cbHumRel", "cbVelVie"});
    Seleccionar({0, 2});
    ventana_->Pulsar("btnBajar");
    QCOMPARE(Lista(), QStringList({HR, TS, VV}));
    QCOMPARE(Seleccionadas(), QStringList({TS, VV}));
    Seleccionar({2});
    ventana_->Pulsar("btnBajar");
    QCOMPARE(Lista(), QStringList({HR, TS, VV}));
    QCOMPARE(Seleccionadas(), QStringList(VV));
  }

  void sinElegirNingunaSubirYBajarNoMuevenNada() {
    Elegir({"cbTemSec", "cbHumRel"});
    ListaVariables().clearSelection();
    ventana_->Pulsar("btnSubir");
    ventana_->Pulsar("btnBajar");
    QCOMPARE(Lista(), QStringList({TS, HR}));
  }

  // El arrastre con ratón de verdad pide un servidor de ventanas: aquí, sólo lo que la lista hace al soltar.
  void alMoverUnaFilaComoAlSoltarlaLaListaSigueElNuevoOrden() {
    Elegir({"cbTemSec", "cbHumRel", "cbVelVie"});
    QCOMPARE(ListaVariables().dragDropMode(), QAbstractItemView::InternalMove);
    QVERIFY(ListaVariables().model()->moveRow({}, 0, {}, 3));
    QCOMPARE(Lista(), QStringList({HR, VV, TS}));
    ventana_->Marcar("cbTemSec", false);
    QCOMPARE(Lista(), QStringList({HR, VV}));
  }

private:
  [[nodiscard]] QListWidget &ListaVariables() const {
    return ventana_->Buscar<QListWidget>("lbListaVariables");
  }
  [[nodiscard]] QStringList Lista() const {
    QStringList textos;
    for (int i = 0; i < ListaVariables().count(); ++i) textos << ListaVariables().item(i)->text();
    return textos;
  }
  [[nodiscard]] QStringList Seleccionadas() const {
    QStringList textos;
    for (int i = 0; i < ListaVariables().count(); ++i) {
      if (ListaVariables().item(i)->isSelected()) textos << ListaVariables().item(i)->text();
    }
    return textos;
  }
  void Seleccionar(const QList<int> &filas) const {
    ListaVariables().clearSelection();
    for (const int fila : filas) ListaVariables().item(fila)->setSelected(true);
  }
};

TESMO_PRUEBA_QT(PruebaArchivosHorariosLista)
#include "Archivoshorarioslista_prueba.moc"
