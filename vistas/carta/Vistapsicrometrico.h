#pragma once

#include "vistas/carta/Bandaelastica.h"
#include "vistas/carta/Pintorcarta.h"

#include <QColor>
#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QString>

#include <functional>
#include <optional>
#include <string>
#include <utility>

namespace tesmo {

class MarcoCarta;
class PaginaPsicrometrico;
class PanelSeleccion;
class Programa;
class Seleccion;

/// La carta psicrométrica de una ventana de trabajo: lee el estado bajo el puntero, fija puntos y marca las
/// horas del período. La presión sale de la altitud en uso.
class Vistapsicrometrico {
public:
  /// Lo que pide a su ventana.
  struct Ventana {
    std::function<bool()> cargar;          ///< lee otra vez la localidad; si no se puede, lo dice y es falso
    std::function<void()> altitudCambiada; ///< el usuario pone o quita su altitud, que vale para todas
  };

  /// Todo lo que recibe le sobrevive.
  Vistapsicrometrico(PaginaPsicrometrico &pagina, PanelSeleccion &panel, Programa &programa,
                     Seleccion &seleccion, Ventana ventana);
  ~Vistapsicrometrico();
  Vistapsicrometrico(const Vistapsicrometrico &) = delete;
  Vistapsicrometrico &operator=(const Vistapsicrometrico &) = delete;

  /// Pone la presión por la altitud, quita las marcas y dibuja la carta desde el principio: tras cada carga
  /// del programa, la pida quien la pida, y al limpiar.
  void redibujar();
  /// Enseña lo que hay en el píxel (@p x, @p y) de la carta, aunque caiga fuera de la imagen; por encima de
  /// la saturación no cambia nada. Si cambia la presión se enseña el mismo sitio con la nueva.
  void lecturaPuntero(int x, int y);
  /// Botón del ratón en un píxel de la carta: suelta la banda elástica con el modo de pluma @p modo o, sin
  /// banda, lleva a él sus esquinas y fija ahí un punto, si hay estado.
  void botonPulsado(int x, int y, ModoPluma modo = ModoPluma::Inversion);
  /// Lee la localidad y marca las horas del período que caen en el horario. Sin localidad se enseña el
  /// mensaje y no cambia nada; sin fichero, además, la ventana queda sin datos y la carta sin marcas.
  void representar();
  /// Añade la marca del estado @p t [°C], @p w [kg/kg] de una hora; se ve al volver a dibujar.
  void marcarPunto(float t, float w, int mes, int hora);

  void PonColorMarca(const QColor &color);
  [[nodiscard]] const ContenidoCarta &Contenido() const { return contenido_; }
  /// La banda elástica: ningún control la activa.
  [[nodiscard]] BandaElastica &Banda() { return banda_; }
  [[nodiscard]] bool GuardarImagen(const QString &ruta) const;

private:
  void Conectar();
  void CambioLaCarga();
  void PonPresion();
  void PonAltitud(std::optional<float> altitud);
  bool EnsenarLectura(float t, float w);
  void FijarPunto(int x, int y);
  void MarcarPeriodo();
  void ActualizarPuntos();
  void BorrarPuntos();
  void PedirColor();
  void PedirGuardar();
  void EnsenarMenu(const QPoint &donde);

  PaginaPsicrometrico &pagina_;
  PanelSeleccion &panel_;
  Programa &programa_;
  Seleccion &seleccion_;
  Ventana ventana_;
  ContenidoCarta contenido_;
  ColorBgr color_;
  QPointer<MarcoCarta> marco_;
  int puntosFijados_ = 0; ///< desde que se abrió la ventana: da nombre al siguiente
  BandaElastica banda_;
  std::string dibujada_;                         ///< localidad con la que se dibujó; vacía sin datos
  std::optional<std::pair<float, float>> leido_; ///< t y w a la vista en el panel
  QObject avisos_;                               ///< corta con su muerte las señales que llegan aquí
};

} // namespace tesmo
