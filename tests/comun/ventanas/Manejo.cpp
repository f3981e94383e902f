#include "tests/comun/ventanas/Manejo.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDialog>
#include <QMenu>
#include <QPushButton>
#include <QSpinBox>
#include <QTimer>

namespace tesmo::prueba {

namespace {

/// Baja por la lista con las flechas hasta el elemento, como haría una persona.
void ElegirEnLista(QComboBox &lista, const char *texto) {
  const int sitio = lista.findText(QString::fromUtf8(texto));
  if (sitio < 0) qFatal("no hay %s en %s", texto, qPrintable(lista.objectName()));
  lista.setFocus();
  while (lista.currentIndex() != sitio) {
    QTest::keyClick(&lista, lista.currentIndex() < sitio ? Qt::Key_Down : Qt::Key_Up);
  }
}

} // namespace

QString Ventana::Titulo() const { return controlador_.DameFormulario().windowTitle(); }

QCheckBox &Ventana::Casilla(const char *nombre) const { return Buscar<QCheckBox>(nombre); }

QSpinBox &Ventana::Numero(const char *nombre) const { return Buscar<QSpinBox>(nombre); }

QString Ventana::Localidad() const { return Buscar<QComboBox>("cbLocalidades").currentText(); }

void Ventana::Provincia(const char *nombre) const {
  ElegirEnLista(Buscar<QComboBox>("cbProvincias"), nombre);
}

void Ventana::Localidad(const char *nombre) const {
  auto &lista = Buscar<QComboBox>("cbLocalidades");
  lista.setCurrentIndex(lista.findText(QString::fromUtf8(nombre)));
}

void Ventana::Pulsar(const char *boton) const {
  QTest::mouseClick(&Buscar<QPushButton>(boton), Qt::LeftButton);
}

void Ventana::Marcar(const char *casilla, bool puesta) const {
  QCheckBox &caja = Casilla(casilla);
  if (caja.isChecked() != puesta) QTest::keyClick(&caja, Qt::Key_Space);
}

void Ventana::Teclear(const char *casilla, const char *texto) const {
  QSpinBox &numero = Numero(casilla);
  numero.setFocus();
  numero.selectAll();
  QTest::keyClicks(&numero, QString::fromLatin1(texto));
}

void Ventana::Poner(const char *casilla, int valor) const {
  Teclear(casilla, std::to_string(valor).c_str());
  QTest::keyClick(&Numero(casilla), Qt::Key_Return);
}

void Ventana::PonAnioEntero() const {
  Poner("csMesFin", 12);
  Poner("csDiaFin", 31);
}

MarcoPrueba::MarcoPrueba() {
  marco.resize(1280, 720);
  marco.show();
  marco.AbrirPrimera();
  marco.activateWindow();
  (void)QTest::qWaitForWindowActive(&marco);
}

QAction &MarcoPrueba::Orden(const char *nombre) const {
  auto *orden = marco.findChild<QAction *>(QString::fromLatin1(nombre));
  if (!orden) qFatal("falta la orden %s", nombre);
  return *orden;
}

QString AlRechazar(const std::function<void()> &accion) {
  QString abierto;
  QTimer::singleShot(0, qApp, [&abierto] {
    auto *dialogo = qobject_cast<QDialog *>(QApplication::activeModalWidget());
    if (!dialogo) return;
    abierto = dialogo->objectName();
    if (abierto.isEmpty()) abierto = QString::fromLatin1(dialogo->metaObject()->className());
    dialogo->reject();
  });
  accion();
  return abierto;
}

void ElegirEnMenu(QWidget &control, const QPoint &donde, const char *accion) {
  QContextMenuEvent suceso(QContextMenuEvent::Mouse, donde, control.mapToGlobal(donde));
  QApplication::sendEvent(&control, &suceso);
  auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
  if (!menu) qFatal("no se abrió el menú");
  auto *orden = menu->findChild<QAction *>(QString::fromLatin1(accion));
  if (!orden) qFatal("el menú no tiene la orden %s", accion);
  orden->trigger();
  menu->close();
}

} // namespace tesmo::prueba
