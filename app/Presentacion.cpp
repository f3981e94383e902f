#include "app/Presentacion.h"

#include "app/Aplicacion.h"
#include "app/Imagenprograma.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QPainter>
#include <QScreen>

namespace tesmo {

Presentacion::Presentacion() : QWidget(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint) {
  setObjectName(QStringLiteral("imagen"));
  setWindowTitle(QString::fromLatin1(TITULO));
  // Que se esconda no acaba el programa: detrás viene el marco.
  setAttribute(Qt::WA_QuitOnClose, false);
  setFixedSize(TAMANO_PRESENTACION);
  dibujo_ = ImagenPresentacion(devicePixelRatioF());
  if (const QScreen *pantalla = QGuiApplication::primaryScreen()) {
    QRect sitio = rect();
    sitio.moveCenter(pantalla->availableGeometry().center());
    move(sitio.topLeft());
  }
}

void Presentacion::paintEvent(QPaintEvent *) {
  QPainter pintor(this);
  pintor.drawPixmap(rect(), dibujo_);
}

void Presentacion::closeEvent(QCloseEvent *suceso) {
  suceso->accept();
  emit cerrada();
}

} // namespace tesmo
