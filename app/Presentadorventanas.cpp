#include "app/Presentadorventanas.h"

#include <QApplication>
#include <QMessageBox>

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

} // namespace

void PresentadorVentanas::Presentar(const std::string &texto, const std::string &titulo, Icono icono) {
  QMessageBox caja(QApplication::activeWindow());
  caja.setObjectName(QStringLiteral("cajaMensaje"));
  caja.setTextFormat(Qt::PlainText);
  caja.setIcon(IconoDeCaja(icono));
  caja.setWindowTitle(QString::fromStdString(titulo));
  caja.setText(QString::fromStdString(texto));
  caja.setStandardButtons(QMessageBox::Ok);
  const bool ocupado = QGuiApplication::overrideCursor() != nullptr;
  if (ocupado) QGuiApplication::setOverrideCursor(Qt::ArrowCursor);
  caja.exec();
  if (ocupado) QGuiApplication::restoreOverrideCursor();
}

} // namespace tesmo
