#pragma once

#include <QLabel>

#include <functional>

namespace tesmo {

/// Etiqueta que se pulsa con el botón izquierdo, con Espacio o con Intro. Con el foco se ve subrayada.
class EtiquetaPulsable : public QLabel {
public:
  EtiquetaPulsable(const QString &texto, std::function<void()> pulsada);

protected:
  void mouseReleaseEvent(QMouseEvent *suceso) override;
  void keyPressEvent(QKeyEvent *suceso) override;
  void focusInEvent(QFocusEvent *suceso) override;
  void focusOutEvent(QFocusEvent *suceso) override;

private:
  void Subrayar(bool si);

  std::function<void()> pulsada_;
};

} // namespace tesmo
