#pragma once

#include "app/Aplicacion.h"
#include "app/Ventanaprincipal.h"
#include "app/Ventanaprogramas.h"
#include "app/Vistaprograma.h"
#include "tests/comun/ventanas/Datosprueba.h"
#include "vistas/grafico/Grafico.h"

#include <QApplication>
#include <QTest>

#include <functional>

class QAction;
class QCheckBox;
class QComboBox;
class QPushButton;
class QSpinBox;

namespace tesmo::prueba {

/// Una ventana de trabajo con sus controles por su nombre, y lo que una persona hace con ella.
class Ventana {
public:
  explicit Ventana(VistaPrograma &controlador) : controlador_(controlador) {}

  template <typename Control>
  [[nodiscard]] Control &Buscar(const char *nombre) const {
    auto *control = controlador_.DameFormulario().findChild<Control *>(QString::fromLatin1(nombre));
    if (!control) qFatal("falta el control %s", nombre);
    return *control;
  }
  [[nodiscard]] VistaPrograma &Controlador() const { return controlador_; }
  [[nodiscard]] QString Titulo() const;
  [[nodiscard]] Grafico &Chart() const { return Buscar<Grafico>("graEntorno"); }
  [[nodiscard]] QCheckBox &Casilla(const char *nombre) const;
  [[nodiscard]] QSpinBox &Numero(const char *nombre) const;
  [[nodiscard]] QString Localidad() const;

  void Provincia(const char *nombre) const;
  void Localidad(const char *nombre) const;
  void Pulsar(const char *boton) const;
  void Marcar(const char *casilla, bool puesta = true) const;
  /// Teclea @p texto en una casilla de número en el sitio del que tenía, sin terminar.
  void Teclear(const char *casilla, const char *texto) const;
  /// Pone la casilla como quien teclea y pulsa Intro.
  void Poner(const char *casilla, int valor) const;
  void PonAnioEntero() const;

private:
  VistaPrograma &controlador_;
};

/// El marco abierto sobre los datos de prueba, con los mensajes apuntados.
struct MarcoPrueba {
  MarcoPrueba();
  [[nodiscard]] Ventana Numero(std::size_t i) const { return Ventana(*marco.Controladores().at(i)); }
  /// Orden de un menú del marco por su nombre.
  [[nodiscard]] QAction &Orden(const char *nombre) const;

  DatosPrueba datos;
  MensajesApuntados mensajes;
  TforPrincipal marco;
};

/// Hace @p accion, que abre un diálogo y lo espera, y lo rechaza. Su objectName o, si no tiene, su clase;
/// vacío si no se abrió ninguno.
[[nodiscard]] QString AlRechazar(const std::function<void()> &accion);

/// Abre el menú contextual de @p control en @p donde, elige la orden @p accion por su nombre y lo cierra.
void ElegirEnMenu(QWidget &control, const QPoint &donde, const char *accion);

} // namespace tesmo::prueba

/// main() de una prueba de ventanas.
#define TESMO_PRUEBA_QT(Clase)                                                                               \
  int main(int argc, char **argv) {                                                                          \
    QApplication aplicacion(argc, argv);                                                                     \
    tesmo::PrepararAplicacion(aplicacion);                                                                   \
    Clase prueba;                                                                                            \
    return QTest::qExec(&prueba, argc, argv);                                                                \
  }
