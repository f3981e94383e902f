#pragma once

#include "intercambio/sintesis/Csv.h"

#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tesmo {

/// Faltas de un fichero, con su línea. Sólo las primeras se cuentan con detalle: quien ha de arreglar cientos
/// empieza por ellas.
class FaltasFichero {
public:
  /// Las faltas se añaden a @p errores como "@p nombre:línea: texto".
  FaltasFichero(std::string nombre, std::vector<std::string> &errores)
      : nombre_(std::move(nombre)), errores_(errores) {}
  /// @p linea desde 1; 0 si la falta es del fichero entero.
  void Anadir(std::size_t linea, const std::string &texto);
  /// Añade cuántas faltas quedaron sin detallar, si las hay.
  void Resumir();
  [[nodiscard]] std::size_t Numero() const { return numero_; }

private:
  std::string nombre_;
  std::vector<std::string> &errores_;
  std::size_t numero_ = 0;
};

/// Posición de cada columna.
using ColumnasPorNombre = std::map<std::string, std::size_t, std::less<>>;

/// Una fila con tantos campos como columnas, que se piden por su nombre.
class Fila {
public:
  Fila(const RegistroCsv &registro, const ColumnasPorNombre &columnas, FaltasFichero &faltas)
      : registro_(registro), columnas_(columnas), faltas_(faltas) {}

  [[nodiscard]] std::size_t Linea() const { return registro_.linea; }
  /// El campo de @p columna, que ha de existir.
  [[nodiscard]] const std::string &Texto(std::string_view columna) const;
  /// El número de @p columna; si no lo hay o se sale de los límites, una falta y @p minimo.
  [[nodiscard]] double Real(std::string_view columna, double minimo, double maximo) const;
  void Falta(std::string_view columna, const std::string &texto) const;

private:
  const RegistroCsv &registro_;
  const ColumnasPorNombre &columnas_;
  FaltasFichero &faltas_;
};

/// Todo @p texto como número finito con punto decimal; vacío si no lo es.
[[nodiscard]] std::optional<double> NumeroDecimal(std::string_view texto);
/// @p texto entre comillas, recortado a 40 bytes.
[[nodiscard]] std::string Citar(std::string_view texto);

} // namespace tesmo
