#pragma once

#include "intercambio/auditoria/Auditoria.h"
#include "intercambio/auditoria/Materia.h"

#include <cstddef>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace tesmo {

// Piezas con que las comprobaciones dicen lo que encuentran.

/// Horas del año (0 a 8759) que no pasan una comprobación.
using HorasMalas = std::vector<std::size_t>;

[[nodiscard]] inline Hallazgo NoComprobada(std::string texto) {
  return {Gravedad::NoComprobada, std::move(texto), {}};
}
[[nodiscard]] inline Hallazgo Conforme(std::string texto) {
  return {Gravedad::Conforme, std::move(texto), {}};
}
/// Un hallazgo con las líneas de @p horas, en orden y sin repetir; las horas sin línea no cuentan.
[[nodiscard]] Hallazgo ConLineas(Gravedad gravedad, std::string texto, const MateriaAuditoria &materia,
                                 const HorasMalas &horas);
/// Reúne en un hallazgo las notas de la lectura de las clases dadas; las de los errores son graves, las de
/// los avisos avisos, y si no hay ninguna, @p conforme.
[[nodiscard]] Hallazgo DeNotas(const MateriaAuditoria &materia, std::initializer_list<ClaseNota> clases,
                               const std::string &conforme);
/// Grave si son más de @p graveDesde horas; si no, un aviso.
[[nodiscard]] inline Gravedad SegunCuantas(std::size_t horas, std::size_t graveDesde) {
  return horas > graveDesde ? Gravedad::Grave : Gravedad::Aviso;
}

/// "1 hora", "25 horas".
[[nodiscard]] std::string Cuantas(std::size_t n, std::string_view uno, std::string_view varios);
[[nodiscard]] inline std::string Cuantas(std::size_t n) { return Cuantas(n, "hora", "horas"); }
/// @p valor con el separador regional y el patrón de cifras dado.
[[nodiscard]] std::string Cifra(double valor, std::string_view patron = "0.0");

/// Valores de un campo.
[[nodiscard]] inline const std::vector<double> &Valores(const MateriaAuditoria &materia, Campo campo) {
  return materia.anio[campo].valores;
}
/// ¿Trae el año algún valor de @p campo?
[[nodiscard]] bool Trae(const MateriaAuditoria &materia, Campo campo);
/// Media de los valores que hay; AUSENTE si no hay ninguno.
[[nodiscard]] double MediaDe(const std::vector<double> &valores);
/// El de en medio de @p valores, que se desordenan; AUSENTE si no hay ninguno.
[[nodiscard]] double MedianaDe(std::vector<double> &valores);

} // namespace tesmo
