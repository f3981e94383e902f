// Los menús del marco. Una orden nueva es una fila de su menú.

#include "app/Disposicionventanas.h"
#include "app/Ventanaprincipal.h"

#include <QAction>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>

namespace tesmo {

std::vector<TforPrincipal::Orden> TforPrincipal::OrdenesDeArchivo() {
  return {
      {"mnuNuevo", tr("&Nuevo"), QKeySequence::New, [this] { mnuNuevoClick(); }},
      {"mnuImportar", tr("&Importar fichero climático…"), QKeySequence(tr("Ctrl+I")),
       [this] { mnuImportarClick(); }},
      {},
      {"mnuCerrar", tr("&Cerrar"), QKeySequence(tr("Ctrl+W")), [this] { mnuCerrarClick(); }},
      {"mnuCerrarTodo", tr("Cerrar &todo"), QKeySequence(tr("Ctrl+Shift+W")),
       [this] { mnuCerrarTodoClick(); }},
      {},
      {"mnuSalir", tr("&Salir"), QKeySequence(tr("Ctrl+Q")), [this] { close(); }},
  };
}

std::vector<TforPrincipal::Orden> TforPrincipal::OrdenesDeHerramienta() {
  return {
      {"mnuColores", tr("&Colores"), {}, [this] { mnuColoresClick(); }},
      {"mnuAuditar", tr("&Auditar fichero climático…"), {}, [this] { mnuAuditarClick(); }},
  };
}

std::vector<TforPrincipal::Orden> TforPrincipal::OrdenesDeVentana() {
  return {
      {"WindowCascade1", tr("&Cascada"), {}, [this] { area_->cascadeSubWindows(); }},
      {"WindowTileHorizontal1",
       tr("Mosaico &horizontal"),
       {},
       [this] { PonerEnMosaico(*area_, Mosaico::Horizontal); }},
      {"WindowTileVertical1",
       tr("Mosaico &vertical"),
       {},
       [this] { PonerEnMosaico(*area_, Mosaico::Vertical); }},
      {"WindowMinimizeAll1", tr("&Minimizar todo"), {}, [this] { MinimizarTodo(*area_); }},
      {"WindowArrangeAll1", tr("&Organizar iconos"), {}, [this] { OrganizarIconos(*area_); }},
      {},
  };
}

std::vector<TforPrincipal::Orden> TforPrincipal::OrdenesDeAyuda() {
  return {
      {"mnuContenido", tr("&Contenido"), QKeySequence(Qt::Key_F1), [this] { mnuContenidoClick(); }},
      {},
      {"mnuAcercade", tr("&Acerca de ..."), {}, [this] { mnuAcercadeClick(); }},
  };
}

void TforPrincipal::CrearMenus() {
  menuBar()->setObjectName(QStringLiteral("MainMenu1"));
  CrearMenu("mnuArchivo", tr("&Archivo"), OrdenesDeArchivo());
  CrearMenu("mnuHerramienta", tr("Herra&mienta"), OrdenesDeHerramienta());
  QMenu *ventana = CrearMenu("mnuVentana", tr("Ve&ntana"), OrdenesDeVentana());
  connect(ventana, &QMenu::aboutToShow, this, [this, ventana] { ListarVentanas(*ventana); });
  CrearMenu("mnuAyuda", tr("A&yuda"), OrdenesDeAyuda());
}

QMenu *TforPrincipal::CrearMenu(const char *nombre, const QString &titulo,
                                const std::vector<Orden> &ordenes) {
  QMenu *menu = menuBar()->addMenu(titulo);
  menu->setObjectName(QString::fromLatin1(nombre));
  menu->menuAction()->setVisible(false); // hasta que acabe la presentación
  for (const Orden &orden : ordenes) {
    if (orden.nombre == nullptr) {
      menu->addSeparator();
      continue;
    }
    QAction *accion = menu->addAction(orden.texto);
    accion->setObjectName(QString::fromLatin1(orden.nombre));
    accion->setShortcut(orden.atajo);
    connect(accion, &QAction::triggered, this, orden.alElegir);
  }
  return menu;
}

void TforPrincipal::ListarVentanas(QMenu &menu) {
  qDeleteAll(listaVentanas_);
  listaVentanas_.clear();
  for (QMdiSubWindow *ventana : area_->subWindowList()) {
    const qsizetype numero = listaVentanas_.size() + 1;
    const QString titulo = ventana->windowTitle().replace(QLatin1Char('&'), QStringLiteral("&&"));
    // Las nueve primeras, con su cifra como tecla de acceso.
    QAction *orden = menu.addAction((numero < 10 ? QStringLiteral("&%1 %2") : QStringLiteral("%1 %2"))
                                        .arg(QString::number(numero), titulo));
    orden->setCheckable(true);
    orden->setChecked(ventana == area_->activeSubWindow());
    connect(orden, &QAction::triggered, ventana, [this, ventana] {
      if (ventana->isMinimized()) ventana->showNormal();
      area_->setActiveSubWindow(ventana);
    });
    listaVentanas_.append(orden);
  }
}

} // namespace tesmo
