#pragma once

#include "intercambio/comun/Perfilmensual.h"
#include "intercambio/reloj/Cortes.h"
#include "intercambio/reloj/Soldereparto.h"

#include <vector>

namespace tesmo {

/// El reparto de la radiación de unas horas entre otras que no caen en ellas. Lo que una hora de origen
/// recibe se da a los trozos de las de destino en proporción a la energía extraterrestre horizontal de cada
/// trozo: el cociente con ella se conserva y no se gana ni se pierde energía.
class RepartoRadiacion {
public:
  /// De los registros de un fichero a las horas solares con sol en su centro (@p diurna, 8760): las demás no
  /// reciben nada.
  RepartoRadiacion(const std::vector<Corte> &cortes, const SolDeReparto &sol,
                   const std::vector<bool> &diurna);
  /// De las horas solares a los registros.
  RepartoRadiacion(const std::vector<Corte> &cortes, const SolDeReparto &sol);

  /// Reparte @p valores [W/m², 8760]. Lo que cae donde no hay sol pasa a la hora de destino con él que esté a
  /// dos o menos; si no la hay, se pierde y se suma a @p perdida [Wh/m²].
  [[nodiscard]] SerieHoras Repartir(const SerieHoras &valores, double &perdida) const;
  /// La media de @p valores en cada hora de destino, con el peso de la energía de los trozos: para lo que no
  /// es energía horizontal (un cociente, una directa normal). 0 donde no hay sol.
  [[nodiscard]] SerieHoras Promediar(const SerieHoras &valores) const;
  /// Energía extraterrestre horizontal de cada hora de origen, entera [Wh/m²].
  [[nodiscard]] const SerieHoras &Extraterrestre() const { return extraterrestre_; }

private:
  struct Trozo {
    std::size_t origen;
    std::size_t destino;
    double peso;   ///< [Wh/m²]
    double centro; ///< desde el de la hora de origen [h], de −0,5 a 0,5
  };
  void Sumar();
  /// Lo que va en recta dentro de una hora de origen: el valor de su centro y lo que cambia por hora.
  struct Recta {
    double cociente;
    double pendiente;
  };
  [[nodiscard]] static std::vector<Recta> Rectas(const SerieHoras &cocientes);
  [[nodiscard]] SerieHoras Cocientes(const SerieHoras &valores) const;
  [[nodiscard]] std::size_t DestinoVecino(std::size_t destino) const;

  std::vector<Trozo> trozos_;
  SerieHoras extraterrestre_ = SerieHoras(HORAS);
  SerieHoras pesoDeDestino_ = SerieHoras(HORAS);
};

} // namespace tesmo
