#pragma once

#include <nlohmann/json_fwd.hpp>

#include <cstddef>
#include <memory>
#include <string>

namespace tesmo::prueba {

/// Un valor de JSON que escribió tesmo-cli, para mirarlo. Lo que no esté o no sea de la clase que se pide
/// lanza, y la prueba falla.
class JsonLeido {
public:
  /// Lanza si @p texto no es JSON.
  explicit JsonLeido(const std::string &texto);

  [[nodiscard]] JsonLeido operator[](std::size_t lugar) const;
  [[nodiscard]] JsonLeido operator[](const std::string &nombre) const;
  /// De una lista, sus elementos; de un objeto, sus miembros.
  [[nodiscard]] std::size_t Tamano() const;
  [[nodiscard]] bool Tiene(const std::string &nombre) const;
  [[nodiscard]] bool EsNulo() const;
  [[nodiscard]] bool EsLista() const;
  [[nodiscard]] bool EsObjeto() const;
  [[nodiscard]] double Numero() const;
  [[nodiscard]] std::string Texto() const;
  /// Como se escribe, sin blancos.
  [[nodiscard]] std::string Escrito() const;

private:
  /// @p valor vive dentro de @p raiz
  JsonLeido(std::shared_ptr<const nlohmann::json> raiz, const nlohmann::json &valor);

  std::shared_ptr<const nlohmann::json> raiz_;
  const nlohmann::json *valor_;
};

} // namespace tesmo::prueba
