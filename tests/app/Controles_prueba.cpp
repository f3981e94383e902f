// Todo control del programa tiene nombre y alguna prueba lo toca; las teclas de acceso no chocan.
//
// Los controles se listan con el programa en marcha. Que una prueba toca uno se ve en que lo nombra, entre
// comillas, en el código de tests/ (o nombra su familia, "CheckBox%1"): quien añade un control añade la
// prueba que lo maneja. Una ventana o un diálogo nuevo se añade a Ventanas().

#include "app/Acercade.h"
#include "app/Ventanaayuda.h"
#include "tests/comun/Lugares.h"
#include "tests/comun/ventanas/Manejo.h"
#include "vistas/colores/Configuracion.h"
#include "vistas/colores/Ventanacolores.h"
#include "vistas/intercambio/Dialogoauditar.h"
#include "vistas/intercambio/Dialogoimportar.h"
#include "vistas/intercambio/Dialogomapa.h"
#include "vistas/sol/Dialogohorizonte.h"

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QCheckBox>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDialogButtonBox>
#include <QDirIterator>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QSlider>
#include <QTabBar>
#include <QTabWidget>
#include <QTextEdit>
#include <QTimer>
#include <algorithm>
#include <optional>

using namespace tesmo;
using namespace tesmo::prueba;

namespace {

/// Una pieza que Qt pone dentro de otra y que nadie maneja por separado.
bool EsPiezaDeQt(const QWidget &control) {
  if (control.objectName().startsWith(QLatin1String("qt_"))) return true;
  for (const QWidget *dueno = control.parentWidget(); dueno; dueno = dueno->parentWidget()) {
    if (qobject_cast<const QComboBox *>(dueno) || qobject_cast<const QAbstractSpinBox *>(dueno) ||
        qobject_cast<const QTabBar *>(dueno) || qobject_cast<const QMenuBar *>(dueno) ||
        qobject_cast<const QDialogButtonBox *>(dueno) || qobject_cast<const QAbstractItemView *>(dueno))
      return true;
    if (qobject_cast<const QMdiSubWindow *>(dueno) && dueno == control.parentWidget()) return true;
  }
  return false;
}

bool EsControl(const QWidget &control) {
  const bool deEntrada =
      qobject_cast<const QAbstractButton *>(&control) || qobject_cast<const QComboBox *>(&control) ||
      qobject_cast<const QAbstractSpinBox *>(&control) || qobject_cast<const QLineEdit *>(&control) ||
      qobject_cast<const QAbstractItemView *>(&control) || qobject_cast<const QTextEdit *>(&control) ||
      qobject_cast<const QSlider *>(&control) || qobject_cast<const QTabWidget *>(&control) ||
      control.objectName().startsWith(QLatin1String("gra"));
  return deEntrada && !EsPiezaDeQt(control);
}

/// Lo que puede abrir un menú contextual del programa: dibujos y controles que lo piden.
bool AbreMenu(const QWidget &control) {
  return control.contextMenuPolicy() == Qt::CustomContextMenu ||
         control.objectName().startsWith(QLatin1String("gra")) ||
         control.objectName().startsWith(QLatin1String("img"));
}

QString CodigoDeLasPruebas() {
  QString codigo;
  QDirIterator it(QString::fromStdString(tesmo::prueba::Raiz() + "/tests"),
                  {QStringLiteral("*.cpp"), QStringLiteral("*.h"), QStringLiteral("*.sh")}, QDir::Files,
                  QDirIterator::Subdirectories);
  while (it.hasNext()) {
    QFile fichero(it.next());
    if (fichero.fileName().endsWith(QLatin1String("/Controles_prueba.cpp"))) continue;
    if (fichero.open(QIODevice::ReadOnly)) codigo += QString::fromUtf8(fichero.readAll());
  }
  return codigo;
}

/// "CheckBox12" es de la familia "CheckBox%1", que una prueba recorre entera con su número.
QString Familia(QString nombre) {
  return nombre.replace(QRegularExpression(QStringLiteral("\\d+$")), QStringLiteral("%1"));
}

/// La letra tras "&" en minúscula; vacía si no hay.
QString TeclaDeAcceso(QString texto) {
  texto.remove(QStringLiteral("&&"));
  const qsizetype sitio = texto.indexOf(QLatin1Char('&'));
  return sitio < 0 ? QString() : texto.mid(sitio + 1, 1).toLower();
}

} // namespace

class PruebaControles : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() {
    marco_.emplace();
    acercade_.emplace();
    ayuda_.emplace(&marco_->marco);
    colores_.emplace(DameTablaDeColores());
    importar_.emplace(ServiciosImportar{});
    mapa_.emplace(QString(), nullptr);
    auditar_.emplace(std::vector<NormalesLocalidad>{});
    horizonte_.emplace(HorizonteLeido(), QStringLiteral("perfil.csv"), 37.0F, nullptr);
    pruebas_ = CodigoDeLasPruebas();
    QVERIFY(pruebas_.size() > 10000); // si no se leyó nada, lo demás no probaría nada
  }
  void cleanupTestCase() {
    auditar_.reset();
    mapa_.reset();
    importar_.reset();
    horizonte_.reset();
    colores_.reset();
    ayuda_.reset();
    acercade_.reset();
    marco_.reset();
  }

  void todoControlTieneNombre() {
    QStringList anonimos;
    for (const QWidget *control : Controles()) {
      if (control->objectName().isEmpty())
        anonimos << QStringLiteral("%1 en %2")
                        .arg(QLatin1String(control->metaObject()->className()),
                             control->parentWidget()->objectName());
    }
    QVERIFY2(anonimos.isEmpty(), qPrintable(anonimos.join(QStringLiteral(", "))));
  }

  void todoControlLoTocaAlgunaPrueba() {
    QStringList nombres;
    for (const QWidget *control : Controles()) nombres << control->objectName();
    QVERIFY(nombres.size() > 40);
    ComprobarTocados(nombres);
  }

  void todaOrdenDeLosMenusLaTocaAlgunaPrueba() {
    QStringList nombres;
    for (const QAction *titulo : marco_->marco.menuBar()->actions()) {
      for (const QAction *orden : titulo->menu()->actions()) {
        if (!orden->isSeparator()) nombres << orden->objectName();
      }
    }
    QVERIFY(nombres.size() >= 12);
    ComprobarTocados(nombres);
  }

  void todaOrdenDeLosMenusContextualesLaTocaAlgunaPrueba() {
    QStringList nombres;
    const Ventana ventana = marco_->Numero(0);
    ventana.Localidad("Almería");
    ventana.Marcar("cbTS");
    ventana.Pulsar("btnSimulacion");
    auto &pestanas = ventana.Buscar<QTabWidget>("pcProgramas");
    for (int i = 0; i < pestanas.count(); ++i) {
      pestanas.setTabVisible(i, true);
      pestanas.setCurrentIndex(i);
      for (QWidget *control : pestanas.widget(i)->findChildren<QWidget *>()) {
        if (AbreMenu(*control)) nombres << OrdenesContextuales(*control);
      }
    }
    nombres.removeDuplicates();
    QVERIFY(nombres.size() > 5);
    ComprobarTocados(nombres);
  }

  void lasCasillasDeHorasYBasesTienenTeclaDeAcceso() {
    const Ventana ventana = marco_->Numero(0);
    const auto &rotulos = marco_->marco.findChildren<QLabel *>();
    for (const char *casilla :
         {"csPHorIni", "csPHorFin", "csAltitud", "csVHorIni", "csBaseCal", "csBaseRef"}) {
      const auto &control = ventana.Buscar<QAbstractSpinBox>(casilla);
      QVERIFY2(std::any_of(rotulos.begin(), rotulos.end(),
                           [&control](const QLabel *rotulo) {
                             return rotulo->buddy() == &control && !TeclaDeAcceso(rotulo->text()).isEmpty();
                           }),
               casilla);
    }
  }

  void lasTeclasDeAccesoNoChocanEnNingunaPestana() {
    auto &pestanas = marco_->Numero(0).Buscar<QTabWidget>("pcProgramas");
    QStringList menus;
    for (const QAction *menu : marco_->marco.menuBar()->actions()) menus << menu->text();
    for (int i = 0; i < pestanas.count(); ++i) {
      pestanas.setTabVisible(i, true);
      pestanas.setCurrentIndex(i);
      ComprobarTeclas(pestanas.tabText(i), menus + TextosConTecla(marco_->marco));
    }
  }

  void lasTeclasDeAccesoNoChocanEnNingunDialogo() {
    for (QWidget *dialogo : {static_cast<QWidget *>(&*importar_), static_cast<QWidget *>(&*mapa_)}) {
      dialogo->show();
      const QStringList textos = TextosConTecla(*dialogo);
      QVERIFY(textos.size() > 5);
      ComprobarTeclas(dialogo->windowTitle(), textos);
      dialogo->hide();
    }
  }

private:
  [[nodiscard]] QList<QWidget *> Ventanas() {
    return {&marco_->marco, &*acercade_, &*ayuda_,   &*colores_,
            &*importar_,    &*mapa_,     &*auditar_, &*horizonte_};
  }

  [[nodiscard]] QList<QWidget *> Controles() {
    QList<QWidget *> controles;
    for (const QWidget *ventana : Ventanas()) {
      for (QWidget *control : ventana->findChildren<QWidget *>()) {
        if (EsControl(*control)) controles << control;
      }
    }
    return controles;
  }

  /// Las órdenes del menú que el programa abre sobre @p control; ninguna si no abre un menú suyo.
  [[nodiscard]] static QStringList OrdenesContextuales(QWidget &control) {
    QStringList nombres;
    // El menú puede esperar en su propio bucle: se lee y se cierra desde dentro.
    QTimer::singleShot(0, &control, [&nombres] {
      auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
      if (!menu) return;
      if (menu->objectName().startsWith(QLatin1String("menu"))) {
        for (const QAction *orden : menu->actions()) {
          if (!orden->isSeparator() && !orden->menu()) nombres << orden->objectName();
        }
      }
      menu->close();
    });
    const QPoint centro = control.rect().center();
    QContextMenuEvent suceso(QContextMenuEvent::Mouse, centro, control.mapToGlobal(centro));
    QApplication::sendEvent(&control, &suceso);
    QCoreApplication::processEvents();
    return nombres;
  }

  void ComprobarTocados(const QStringList &nombres) const {
    QStringList olvidados;
    for (const QString &nombre : nombres) {
      if (!pruebas_.contains(QLatin1Char('"') + nombre + QLatin1Char('"')) &&
          !pruebas_.contains(QLatin1Char('"') + Familia(nombre) + QLatin1Char('"')))
        olvidados << nombre;
    }
    olvidados.removeDuplicates();
    QVERIFY2(olvidados.isEmpty(),
             qPrintable(QStringLiteral("sin prueba: ") + olvidados.join(QStringLiteral(", "))));
  }

  static void ComprobarTeclas(const QString &donde, const QStringList &textos) {
    QMap<QString, QStringList> duenos;
    for (const QString &texto : textos) {
      if (const QString tecla = TeclaDeAcceso(texto); !tecla.isEmpty()) duenos[tecla] << texto;
    }
    for (const QStringList &iguales : duenos)
      QVERIFY2(iguales.size() == 1,
               qPrintable(donde + QStringLiteral(": ") + iguales.join(QStringLiteral(" y "))));
  }

  [[nodiscard]] static QStringList TextosConTecla(const QWidget &ventana) {
    QStringList textos;
    for (const QWidget *control : ventana.findChildren<QWidget *>()) {
      if (!control->isVisible()) continue;
      if (const auto *boton = qobject_cast<const QAbstractButton *>(control)) textos << boton->text();
      if (const auto *caja = qobject_cast<const QGroupBox *>(control)) textos << caja->title();
      const auto *rotulo = qobject_cast<const QLabel *>(control);
      if (!rotulo || TeclaDeAcceso(rotulo->text()).isEmpty()) continue;
      if (!rotulo->buddy()) qFatal("«%s» enseña su &: no es de ningún control", qPrintable(rotulo->text()));
      textos << rotulo->text();
    }
    return textos;
  }

  std::optional<MarcoPrueba> marco_;
  std::optional<TforAcercade> acercade_;
  std::optional<VentanaAyuda> ayuda_;
  std::optional<TforColores> colores_;
  std::optional<DialogoImportar> importar_;
  std::optional<DialogoMapa> mapa_;
  std::optional<DialogoAuditar> auditar_;
  std::optional<DialogoHorizonte> horizonte_;
  QString pruebas_;
};

TESMO_PRUEBA_QT(PruebaControles)
#include "Controles_prueba.moc"
