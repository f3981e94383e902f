// Arrastrar en la lista de variables de la página de archivos horarios.

#include "tests/comun/ventanas/Manejo.h"

#include <QListWidget>

#include <optional>

using namespace tesmo;
using namespace tesmo::prueba;

class PruebaArrastrevariables : public QObject {
  Q_OBJECT

private slots:
  void init() {
    marco_.emplace();
    ventana_.emplace(marco_->Numero(0));
    for (const char *casilla : {"cbTemSec", "cbTemCie", "cbVelVie"}) ventana_->Marcar(casilla);
    QCOMPARE(Lista().count(), 3);
  }
  void cleanup() {
    ventana_.reset();
    marco_.reset();
  }

  void ningunaVariableAdmiteQueSueltenOtraEncima() {
    for (int i = 0; i < Lista().count(); ++i) {
      const Qt::ItemFlags banderas = Lista().item(i)->flags();
      QVERIFY(!banderas.testFlag(Qt::ItemIsDropEnabled));
      QVERIFY(banderas.testFlag(Qt::ItemIsDragEnabled) && banderas.testFlag(Qt::ItemIsSelectable));
    }
  }

  void alMoverlasSigueSiendoAsi() {
    QVERIFY(Lista().model()->moveRow({}, 0, {}, 3));
    Lista().setCurrentRow(0);
    ventana_->Pulsar("btnBajar");
    ningunaVariableAdmiteQueSueltenOtraEncima();
  }

private:
  [[nodiscard]] QListWidget &Lista() const { return ventana_->Buscar<QListWidget>("lbListaVariables"); }

  std::optional<MarcoPrueba> marco_;
  std::optional<Ventana> ventana_;
};

TESMO_PRUEBA_QT(PruebaArrastrevariables)
#include "Arrastrevariables_prueba.moc"
