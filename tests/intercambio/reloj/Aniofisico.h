#pragma once

#include "intercambio/comun/Aniocanonico.h"

#include <functional>

namespace tesmo::prueba {

/// Un año inventado con física: cada registro es el instante del centro de su hora, con el sol verdadero, un
/// cielo de cada día más o menos claro y temperatura, humedad, presión y viento que van y vienen.
struct PeticionAnio {
  RelojFichero reloj;
  double latitud = 40.0;
  double longitud = -3.7;
  double altitud = 600.0;
  int anioCalendario = 2002;
  double ruido = 0.0; ///< de la directa normal, en tanto por uno
};
[[nodiscard]] AnioCanonico AnioFisico(const PeticionAnio &peticion);

/// Quita un campo entero.
void Quitar(AnioCanonico &anio, Campo campo);
/// El mismo año con los registros @p horas más tarde.
[[nodiscard]] AnioCanonico Corrido(const AnioCanonico &anio, int horas);
/// Media de los desvíos al cuadrado, en raíz, entre dos series de un campo.
[[nodiscard]] double Separacion(const std::vector<double> &a, const std::vector<double> &b);
/// La mayor diferencia entre dos series.
[[nodiscard]] double MayorDiferencia(const std::vector<double> &a, const std::vector<double> &b);

} // namespace tesmo::prueba
