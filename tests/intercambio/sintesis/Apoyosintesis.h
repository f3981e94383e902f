#pragma once

#include "intercambio/Sintesis.h"
#include "intercambio/sintesis/Normales.h"

#include <array>
#include <string>
#include <vector>

namespace tesmo::prueba {

/// Ruta de las medias mensuales que vienen con el programa.
[[nodiscard]] std::string RutaNormales();
/// Las medias que vienen con el programa; la prueba falla si tienen alguna falta.
[[nodiscard]] const std::vector<NormalesLocalidad> &NormalesDelPrograma();

/// Un .met leído campo a campo, sin el lector del programa.
struct MetLeido {
  std::string primeraLinea;
  std::vector<double> sitio;
  std::vector<std::array<double, 15>> registros;
};
[[nodiscard]] MetLeido LeerMetDePrueba(const std::string &ruta);

/// Una localidad de las que vienen con el programa y el .met que la síntesis escribe para ella.
struct AnioDePrueba {
  NormalesLocalidad normales;
  MetLeido met;
};
/// Los años de todas las localidades, sintetizados una vez por proceso.
[[nodiscard]] const std::vector<AnioDePrueba> &AniosDelPrograma();

/// Columnas de un registro, como posiciones.
enum Columna : std::size_t { MES, DIA, HORA, TS, TC, RDIR, RDIF, W, HR, VV, DV, ACIMUT, CENIT };

/// Media y desviación típica (con n − 1).
[[nodiscard]] double Media(const std::vector<double> &valores);
[[nodiscard]] double Desviacion(const std::vector<double> &valores);
/// Correlación de dos series igual de largas.
[[nodiscard]] double Correlacion(const std::vector<double> &a, const std::vector<double> &b);
/// Los valores de una columna en un mes (1 a 12), y el mayor o el menor de cada uno de sus días.
[[nodiscard]] std::vector<double> HorasDelMes(const MetLeido &met, int mes, Columna columna);
[[nodiscard]] std::vector<double> MaximosDelMes(const MetLeido &met, int mes, Columna columna);
[[nodiscard]] std::vector<double> MinimosDelMes(const MetLeido &met, int mes, Columna columna);

} // namespace tesmo::prueba
