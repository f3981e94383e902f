#include "vistas/comun/Etiquetapulsable.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include <utility>

namespace tesmo {

EtiquetaPulsable::EtiquetaPulsable(const QString &texto, std::function<void()> pulsada)
    : QLabel(texto), pulsada_(std::move(pulsada)) {
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::PointingHandCursor);
}

void EtiquetaPulsable::mouseReleaseEvent(QMouseEvent *suceso) {
  if (suceso->button() == Qt::LeftButton && rect().contains(suceso->position().toPoint())) pulsada_();
}

void EtiquetaPulsable::keyPressEvent(QKeyEvent *suceso) {
  const int tecla = suceso->key();
  if (tecla == Qt::Key_Space || tecla == Qt::Key_Return || tecla == Qt::Key_Enter) return pulsada_();
  QLabel::keyPressEvent(suceso);
}

void EtiquetaPulsable::focusInEvent(QFocusEvent *suceso) {
  Subrayar(true);
  QLabel::focusInEvent(suceso);
}

void EtiquetaPulsable::focusOutEvent(QFocusEvent *suceso) {
  Subrayar(false);
  QLabel::focusOutEvent(suceso);
}

void EtiquetaPulsable::Subrayar(bool si) {
  QFont letra = font();
  letra.setUnderline(si);
  setFont(letra);
}

} // namespace tesmo
