#pragma once

#include "core/Objetobase.h"
#include "localidades/Objetociudad.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tesmo {

/// Base de datos de localidades, leída una vez de "LocalidadesCC" en el directorio meteorológico.
class BaseDeLocalidades : public ObjetoBase {
public:
  BaseDeLocalidades();

  [[nodiscard]] std::string DameTexto(std::string_view clave) const override;
  void PonTexto(std::string_view clave, const std::string &texto) override;
  [[nodiscard]] std::string DameTextoDe(std::string_view localidad, std::string_view nombre) const;
  void ListaDe(std::string_view clave, std::vector<std::string> &lista) const;
  void ListaDe(std::string_view clave, std::string_view provincia, std::vector<std::string> &lista) const;
  [[nodiscard]] const ObjetoCiudad *BuscarLocalidad(std::string_view nombre) const;
  [[nodiscard]] const std::vector<std::unique_ptr<ObjetoCiudad>> &Registros() const;
};

BaseDeLocalidades &DameBaseDeLocalidades();
void LiberarBaseDeLocalidades(); ///< reposición para las pruebas y para --base

} // namespace tesmo
