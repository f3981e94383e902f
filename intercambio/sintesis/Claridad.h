#pragma once

#include "intercambio/fisica/Soldelanio.h"
#include "intercambio/sintesis/Azar.h"
#include "intercambio/sintesis/Normales.h"
#include "intercambio/sintesis/Temperaturadiaria.h"

namespace tesmo {

/// Distribución de la claridad diaria (global entre extraterrestre) en un mes de claridad media dada: la
/// exponencial acotada de Bendt, Collares-Pereira y Rabl (1981) con el máximo de Hollands y Huget (1983),
/// 0,6313 + 0,267·K − 11,9·(K − 0,75)⁸, y el mínimo 0,05. Aquel máximo, hecho para otros cielos, se recorta a
/// la claridad del día despejado del sitio cuando se conoce.
class DistribucionClaridad {
public:
  /// @p media: claridad media del mes, que se lleva a 0,1..0,78. @p despejado: claridad que ningún día pasa,
  /// salvo que la media casi la alcance.
  explicit DistribucionClaridad(double media, double despejado = 1.0);
  /// Claridad que sólo deja por debajo la fracción @p f de los días, 0 a 1.
  [[nodiscard]] double Cuantil(double f) const;
  [[nodiscard]] double Maximo() const { return maximo_; }

private:
  double maximo_;
  double gamma_;
};

/// Claridad de un día despejado a la @p altitud [m] (Allen et al., 1998, FAO 56, ec. 37).
[[nodiscard]] double ClaridadDespejada(double altitud);

/// Claridad de cada día [-]. Los días de un mes toman los cuantiles de su distribución a partes iguales
/// (Knight, Klein y Duffie, 1991) en el orden que les da un proceso normal autorregresivo de correlación
/// 0,29 de un día al siguiente (Graham, Hollands y Brunger, 1988), ligado al recorrido diario de temperatura:
/// los días despejados son los de más recorrido (Bristow y Campbell, 1984). Escalada a la radiación media del
/// mes.
[[nodiscard]] SerieDias GenerarClaridad(const NormalesLocalidad &localidad, const SolDelAnio &sol,
                                        const TemperaturasDiarias &dias, Azar &azar);

} // namespace tesmo
