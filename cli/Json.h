#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace tesmo::cli {

struct Json;
struct MiembroJson;
using ListaJson = std::vector<Json>;
/// Sus miembros salen por su orden; de los que repitan nombre, sólo el último y en el sitio del primero.
using ObjetoJson = std::vector<MiembroJson>;

/// Un valor de JSON: nulo, de verdad, entero, real, texto, lista u objeto. Lo que lo escribe, nlohmann-json,
/// se incluye sólo en Json.cpp.
struct Json {
  Json(std::nullptr_t = nullptr);
  Json(bool cierto);
  Json(int entero);
  Json(double real); ///< si no es finito se escribe null
  Json(std::string texto);
  Json(std::string_view texto);
  Json(const char *texto);
  Json(ListaJson lista);
  Json(ObjetoJson objeto);
  // En Json.cpp: dentro de cada fichero que compone un objeto cuestan dos segundos de compilar.
  ~Json();
  Json(const Json &);
  Json(Json &&) noexcept;
  Json &operator=(const Json &);
  Json &operator=(Json &&) noexcept;

  std::variant<std::nullptr_t, bool, int, double, std::string, ListaJson, ObjetoJson> valor;
};

struct MiembroJson {
  std::string nombre;
  Json valor;
};

/// @p valor en una línea, sin el fin de línea. Lo que no sea UTF-8 se sustituye: un texto del disco o de la
/// línea de órdenes puede no serlo y JSON no lo admite.
[[nodiscard]] std::string TextoJson(const Json &valor);

/// @p real con las nueve cifras que lleva en texto: un float pasado a double arrastraría otras diez.
[[nodiscard]] double ConNueveCifras(double real);

} // namespace tesmo::cli
