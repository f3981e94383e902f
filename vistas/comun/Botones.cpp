#include "vistas/comun/Botones.h"

#include <QLabel>
#include <QPushButton>

namespace tesmo {

QPushButton *CrearBoton(const char *nombre, const QString &texto) {
  auto *boton = new QPushButton(texto);
  boton->setObjectName(QString::fromLatin1(nombre));
  return boton;
}

QPushButton *CrearBoton(const char *nombre, const QString &texto, const QString &ayuda) {
  QPushButton *boton = CrearBoton(nombre, texto);
  boton->setToolTip(ayuda);
  return boton;
}

QLabel *CrearRotulo(const QString &texto, QWidget &control) {
  auto *rotulo = new QLabel(texto);
  rotulo->setBuddy(&control);
  return rotulo;
}

} // namespace tesmo
