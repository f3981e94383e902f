#pragma once

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace tesmo {
class CorrienteAire;
}

namespace tesmo::cli {

/// Una línea partida en palabras.
struct LineaPartida {
  std::vector<std::string> palabras;
  bool comillasSinCerrar = false; ///< las últimas comillas llegan hasta el final de la línea
};
/// Parte @p linea por blancos. Las comillas dobles juntan lo que encierran, también si no encierran nada, y
/// un '#' fuera de ellas empieza un comentario. El CR final sobra.
[[nodiscard]] LineaPartida PartirLinea(std::string_view linea);

/// Las órdenes de las corrientes con sus argumentos, una por línea.
[[nodiscard]] const std::string &AyudaCorrientes();

/// Ejecuta líneas "NOMBRE ORDEN [ARGUMENTOS…]" sobre corrientes de aire que crea la primera vez que se
/// nombran y que viven lo que este objeto. Mientras vive, lo que escriben las corrientes va a su destino.
class GuionCorrientes {
public:
  using Destino = std::function<void(std::string_view)>;

  /// @param destino recibe cada texto, sin fin de línea
  explicit GuionCorrientes(Destino destino);
  ~GuionCorrientes();
  GuionCorrientes(const GuionCorrientes &) = delete;
  GuionCorrientes &operator=(const GuionCorrientes &) = delete;

  /// Ejecuta una línea ya partida; sin palabras no hace nada. Falso si era un "escribir" cuyo fichero no se
  /// pudo escribir.
  bool Ejecutar(const std::vector<std::string> &palabras);
  /// Lo que puede seguir a @p anteriores en una línea: nombres, órdenes o nombres otra vez.
  [[nodiscard]] static std::vector<std::string> Candidatos(const std::vector<std::string> &anteriores);

private:
  CorrienteAire &Corriente(const std::string &nombre);

  Destino destino_;
  std::vector<std::unique_ptr<CorrienteAire>> corrientes_;
};

} // namespace tesmo::cli
