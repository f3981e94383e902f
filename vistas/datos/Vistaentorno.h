#pragma once

#include "meteo/Magnitudes.h"
#include "vistas/grafico/Repartoejes.h"

#include <QObject>

#include <array>
#include <cstdint>

class QMenu;

namespace tesmo {

class Configuracion;
class Grafico;
class PaginaEntorno;
class PanelSeleccion;
class Programa;
class Seleccion;

/// Visor de datos: dibuja las magnitudes horarias del período en el gráfico de su página. No calcula ni
/// guarda datos: los pide por su rótulo al LeerMet del programa, y el período es el de la selección de la
/// ventana.
class Vistaentorno {
public:
  /// Lee los colores guardados. Todo lo que recibe le sobrevive.
  Vistaentorno(PaginaEntorno &pagina, PanelSeleccion &panel, Programa &programa, Seleccion &seleccion,
               Configuracion &colores);

  /// De las casillas del período a la selección, y al revés.
  void leerPeriodo();
  void ponPeriodo();
  /// Carga si hace falta y construye las 21 series del período; sólo se ven las marcadas. Sin localidad o sin
  /// fichero se enseña el mensaje y no cambia nada. Devuelve si hay gráfico.
  bool visualizar();
  /// Enseña las series de las casillas marcadas y oculta las demás.
  void actualizarVisibles();
  /// Aplica las reglas del período a lo que dicen las casillas y quita las series.
  void cambioPeriodo();
  /// Copia los 21 colores de la tabla a las casillas y a las series.
  void aplicarColores();

  /// Quita las series: ya no corresponden a la selección.
  void Vaciar();
  [[nodiscard]] bool HaySeries() const;
  /// Eje vertical de la magnitud @p i (0 a 20).
  [[nodiscard]] LadoEje Eje(int i) const { return ejes_.at(static_cast<std::size_t>(i)); }
  /// Elegir un eje a mano deja sin efecto el reparto que estuviera pendiente.
  void PonEje(int i, LadoEje lado);
  /// Reparte las magnitudes marcadas entre los dos ejes según sus unidades; las demás siguen a su unidad.
  /// Sin series no se sabe cuánto vale cada una: el reparto queda pendiente hasta que se dibujen.
  void EjesPorUnidad();

private:
  void ConstruirSeries();
  void AplicarEjes();
  void AnadirOrdenesDeEje(QMenu &menu, int i);

  PaginaEntorno &pagina_;
  PanelSeleccion &panel_;
  Programa &programa_;
  Seleccion &seleccion_;
  const Configuracion &colores_;
  Grafico &grafico_;
  QObject avisos_; ///< corta con su muerte las señales que llegan aquí
  std::array<LadoEje, NUMERO_MAGNITUDES_VISOR> ejes_{};
  bool repartoPendiente_ = false;
  std::array<std::uint32_t, NUMERO_MAGNITUDES_VISOR> color_{};
};

} // namespace tesmo
