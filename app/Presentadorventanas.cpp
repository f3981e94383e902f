#include "app/Presentadorventanas.h"

#include <QApplication>
#include <QMainWindow>
#include <QMessageBox>
#include <QPointer>

#include <algorithm>

namespace tesmo {

namespace {

QMessageBox::Icon IconoDeCaja(Icono icono) {
  switch (icono) {
  case Icono::Informacion:
    return QMessageBox::Information;
  case Icono::Aviso:
    return QMessageBox::Warning;
  case Icono::Error:
    return QMessageBox::Critical;
  default:
    return QMessageBox::NoIcon;
  }
}

/// La ventana activa o, si se está yendo, la primera a la vista por debajo de ella.
QWidget *VentanaDeDebajo() {
  QWidget *ventana = QApplication::activeWindow();
  while (ventana != nullptr && !ventana->isVisible())
    ventana = ventana->parentWidget() == nullptr ? nullptr : ventana->parentWidget()->window();
  if (ventana != nullptr) return ventana;
  const QWidgetList todas = QApplication::topLevelWidgets();
  const auto principal = std::ranges::find_if(todas, [](const QWidget *una) {
    return una->isVisible() && qobject_cast<const QMainWindow *>(una) != nullptr;
  });
  return principal == todas.end() ? nullptr : *principal;
}

} // namespace

void PresentadorVentanas::Presentar(const std::string &texto, const std::string &titulo, Icono icono) {
  const QPointer<QWidget> debajo = VentanaDeDebajo();
  QMessageBox caja(debajo);
  caja.setObjectName(QStringLiteral("cajaMensaje"));
  caja.setTextFormat(Qt::PlainText);
  caja.setIcon(IconoDeCaja(icono));
  caja.setWindowTitle(QString::fromStdString(titulo));
  caja.setText(QString::fromStdString(texto));
  caja.setStandardButtons(QMessageBox::Ok);
  const bool ocupado = QGuiApplication::overrideCursor() != nullptr;
  if (ocupado) QGuiApplication::setOverrideCursor(Qt::ArrowCursor);
  caja.exec();
  // Si con la caja se cierra otra ventana, el gestor puede no saber a cuál volver.
  if (debajo) debajo->activateWindow();
  if (ocupado) QGuiApplication::restoreOverrideCursor();
}

} // namespace tesmo
