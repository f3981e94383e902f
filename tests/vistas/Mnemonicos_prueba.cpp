// En cada pestaña, ninguna letra subrayada a la vista sirve para dos controles.

#include "tests/vistas/Manejo.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QMenuBar>
#include <QTabBar>
#include <QTabWidget>

#include <map>
#include <optional>

using namespace tesmo;
using namespace tesmo::prueba;

class PruebaMnemonicos : public QObject {
  Q_OBJECT

private slots:
  void init() { marco_.emplace(); }
  void cleanup() { marco_.reset(); }

  void enCadaPestanaCadaLetraEsDeUnSoloControl() {
    const Ventana ventana = marco_->Numero(0);
    auto &paginas = ventana.Buscar<QTabWidget>("pcProgramas");
    QVERIFY(paginas.count() > 1);
    for (int i = 0; i < paginas.count(); ++i) {
      paginas.setCurrentIndex(i);
      QApplication::processEvents();
      std::map<QString, QStringList> duenos;
      for (const QString &texto : TextosALaVista()) Apuntar(duenos, texto);
      QVERIFY2(duenos.size() > 4, qPrintable(paginas.tabText(i))); // menús, provincia, localidad, período…
      for (const auto &[letra, textos] : duenos)
        QVERIFY2(textos.size() == 1, qPrintable(paginas.tabText(i) + ": " + letra + " es de " +
                                                textos.join(QStringLiteral(", "))));
    }
  }

private:
  static void Apuntar(std::map<QString, QStringList> &duenos, const QString &texto) {
    const QKeySequence letra = QKeySequence::mnemonic(texto);
    if (!letra.isEmpty()) duenos[letra.toString()] << texto;
  }
  [[nodiscard]] QStringList TextosALaVista() const {
    QStringList textos;
    for (const QAction *menu : marco_->marco.menuBar()->actions()) textos << menu->text();
    const auto recoger = [&](const auto &controles, auto texto) {
      for (const auto *control : controles)
        if (control->isVisible()) textos << texto(control);
    };
    const QWidget &marco = marco_->marco;
    recoger(marco.findChildren<QAbstractButton *>(), [](const QAbstractButton *c) { return c->text(); });
    recoger(marco.findChildren<QGroupBox *>(), [](const QGroupBox *c) { return c->title(); });
    for (const QLabel *rotulo : marco.findChildren<QLabel *>())
      if (rotulo->isVisible() && rotulo->buddy() != nullptr) textos << rotulo->text();
    for (const QTabBar *pestanas : marco.findChildren<QTabBar *>())
      for (int i = 0; pestanas->isVisible() && i < pestanas->count(); ++i) textos << pestanas->tabText(i);
    return textos;
  }

  std::optional<MarcoPrueba> marco_;
};

TESMO_PRUEBA_QT(PruebaMnemonicos)
#include "Mnemonicos_prueba.moc"
