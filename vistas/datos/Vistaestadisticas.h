#pragma once

#include "app/Seleccion.h"
#include "meteo/Estadisticas.h"

#include <QObject>
#include <QString>

#include <functional>

namespace tesmo {

class PaginaEstadisticas;
class PanelSeleccion;
class Programa;

/// La pestaña "Valores medios y globales": enseña las estadísticas que el LeerMet del programa forma de la
/// magnitud elegida, en el período de la selección y mes a mes. Lo que ya no corresponde a la selección se
/// quita.
class VistaEstadisticas {
public:
  /// @param decir enseña un texto en la línea de estado
  /// Todo lo que recibe le sobrevive.
  VistaEstadisticas(PaginaEstadisticas &pagina, PanelSeleccion &panel, Programa &programa,
                    Seleccion &seleccion, std::function<void(const QString &)> decir);
  VistaEstadisticas(const VistaEstadisticas &) = delete;
  VistaEstadisticas &operator=(const VistaEstadisticas &) = delete;

  /// Lee el período, carga si hace falta y enseña las estadísticas. Sin localidad elegida sólo se vacía; si
  /// la carga falla se enseña su mensaje y se vacía.
  void Calcular();
  /// Deja los resultados vacíos hasta que se vuelvan a pedir.
  void cambioPeriodo();

private:
  void SeleccionCambiada(Seleccion::Cambio cambio);
  void Ensenar(Magnitud magnitud, const ResultadoEstadisticas &resultado);
  void EnsenarMeses(Magnitud magnitud, const std::vector<EstadisticasDelMes> &meses);

  PaginaEstadisticas &pagina_;
  PanelSeleccion &panel_;
  Programa &programa_;
  Seleccion &seleccion_;
  std::function<void(const QString &)> decir_;
  QObject avisos_; ///< corta con su muerte las señales que llegan aquí
};

} // namespace tesmo
