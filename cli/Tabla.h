#pragma once

#include <string>
#include <variant>
#include <vector>

namespace tesmo::cli {

/// Contenido de una casilla: un texto, un entero o un real.
using Celda = std::variant<std::string, int, double>;

/// Resultado de una orden, para escribirlo como líneas separadas por tabuladores o como JSON. Los reales
/// salen como "%.9g" en los dos; los que no son finitos, null en JSON.
class Tabla {
public:
  enum class Forma {
    ConCabecera, ///< una línea de títulos y una por fila; en JSON, lista de objetos
    SinCabecera, ///< una línea por fila; en JSON, lista de objetos
    Registro,    ///< una sola fila sin títulos; en JSON, un objeto
    Propiedades, ///< una línea "título TAB valor" por columna de la única fila; en JSON, un objeto
  };
  Tabla(Forma forma, std::vector<std::string> titulos) : forma_(forma), titulos_(std::move(titulos)) {}

  /// @p fila tiene tantas casillas como títulos la tabla.
  void Anadir(std::vector<Celda> fila) { filas_.push_back(std::move(fila)); }
  [[nodiscard]] std::string ATexto() const;
  [[nodiscard]] std::string AJson() const;
  [[nodiscard]] std::string Como(bool json) const { return json ? AJson() : ATexto(); }

private:
  Forma forma_;
  std::vector<std::string> titulos_;
  std::vector<std::vector<Celda>> filas_;
};

} // namespace tesmo::cli
