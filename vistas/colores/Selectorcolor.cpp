#include "vistas/colores/Selectorcolor.h"

#include <QColorDialog>

#include <utility>

namespace tesmo {

void AbrirSelectorDeColor(QWidget &padre, const QString &nombre, const QColor &actual,
                          const QObject &receptor, std::function<void(const QColor &)> elegido) {
  auto *selector = new QColorDialog(actual, &padre);
  selector->setObjectName(nombre);
  selector->setAttribute(Qt::WA_DeleteOnClose);
  // El del escritorio habla el idioma del escritorio; el de Qt, el del programa.
  selector->setOption(QColorDialog::DontUseNativeDialog);
  QObject::connect(selector, &QColorDialog::colorSelected, &receptor, std::move(elegido));
  selector->open();
}

} // namespace tesmo
