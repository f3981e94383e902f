#pragma once

#include "meteo/Lectormet.h"

#include <string>

/// Textos .met hechos a mano y el lector de referencia, escrito con la biblioteca de C.
namespace tesmo::prueba {

/// Valor que TextoMet pone en la columna @p columna (4 a 13) de la hora @p i; exacto en 32 bits.
[[nodiscard]] float ValorMet(int columna, int i);

/// Un registro de quince campos, sin fin de línea.
[[nodiscard]] std::string RegistroMet(int i);

/// Un fichero .met con @p registros registros y @p segundaLinea como línea del sitio.
[[nodiscard]] std::string TextoMet(int registros, const std::string &segundaLinea = "36.84 -2.39 21.0 0.0");

/// La misma lectura con fgets y fscanf de la biblioteca de C; devuelve los registros completos.
int LeerConC(const std::string &texto, SitioMet &sitio, SeriesLeidas &series);

/// ¿Son iguales bit a bit los tres números y las diez series?
[[nodiscard]] bool MismosBits(const SitioMet &a, const SeriesLeidas &series, const SitioMet &b,
                              const SeriesLeidas &otras);

} // namespace tesmo::prueba
