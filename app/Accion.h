#pragma once

#include <array>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tesmo {

class Programa;

/// Lo que el usuario pide de una vez puede pasar varias veces por el camino de carga (cargar, rehacer el
/// gráfico, las estadísticas…). Mientras vive, cada mensaje de ese camino se dice una sola vez y unos textos
/// de superficie ya entregados no se vuelven a entregar. Una acción dentro de otra es la misma.
class Accion {
public:
  /// @p programa le sobrevive.
  explicit Accion(Programa &programa);
  ~Accion();
  Accion(const Accion &) = delete;
  Accion &operator=(const Accion &) = delete;

  std::vector<std::pair<int, std::string>> dichos;      ///< mensajes ya dichos, con su argumento
  std::optional<std::array<std::string, 3>> superficie; ///< textos ya entregados

private:
  Programa &programa_;
  bool esLaPrimera_;
};

/// Dice el mensaje @p indice con @p argumento, salvo que la acción en curso de @p programa ya lo haya dicho.
void DecirUnaVez(const Programa &programa, int indice, const std::string &argumento);

} // namespace tesmo
