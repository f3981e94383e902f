#pragma once

#include "core/Objetobase.h"
#include "localidades/Lectorlocalidades.h"
#include "localidades/Objetociudad.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tesmo {

/// Base de datos de localidades, leída una sola vez de "LocalidadesCC" en el directorio meteorológico. Guarda
/// también el nombre de la localidad en curso, al empezar "Ninguno".
class BaseDeLocalidades : public ObjetoBase {
public:
  /// Lee el fichero. Si no se puede abrir, enseña el mensaje 0 y la base queda vacía.
  BaseDeLocalidades();

  /// "Ciudad": la localidad en curso; cualquier otro nombre, ese atributo de su registro (vacío si no lo
  /// hay).
  [[nodiscard]] std::string DameTexto(std::string_view clave) const override;
  /// "Ciudad": pasa a ser la localidad en curso, exista o no. Las demás claves no hacen nada.
  void PonTexto(std::string_view clave, const std::string &texto) override;
  /// Atributo @p nombre de la localidad nombrada; vacío si no se conoce.
  [[nodiscard]] std::string DameTextoDe(std::string_view localidad, std::string_view nombre) const;
  /// "Provincias": añade a @p lista las provincias que no estén ya en ella, por orden de aparición.
  void ListaDe(std::string_view clave, std::vector<std::string> &lista) const;
  /// "Localidades": añade a @p lista las de @p provincia (comparada exactamente) que no estén ya en ella.
  void ListaDe(std::string_view clave, std::string_view provincia, std::vector<std::string> &lista) const;
  /// El primer registro de ese nombre exacto; nulo si no lo hay.
  [[nodiscard]] const ObjetoCiudad *BuscarLocalidad(std::string_view nombre) const;
  [[nodiscard]] const std::vector<std::unique_ptr<ObjetoCiudad>> &Registros() const { return registros_; }
  /// Da de alta @p registro sin leer otra vez el fichero: sustituye al de su nombre si es de la
  /// misma provincia; si no, va detrás del último de su provincia (al final si es nueva), que es donde lo
  /// deja quien lo escribe en la lista. Los punteros a los demás registros siguen valiendo. Después avisa.
  void PonRegistro(const ObjetoCiudad &registro);
  /// @p aviso se llama tras cada PonRegistro, con el registro ya puesto, mientras viva lo que se devuelve.
  [[nodiscard]] std::shared_ptr<void> AlCambiar(std::function<void(const ObjetoCiudad &)> aviso);
  /// ¿Se pudo leer el fichero?
  [[nodiscard]] bool Cargada() const { return cargada_; }

private:
  using AvisoDeAlta = std::function<void(const ObjetoCiudad &)>;
  void Avisar(const ObjetoCiudad &registro) const;

  std::string actual_ = "Ninguno";
  std::vector<std::unique_ptr<ObjetoCiudad>> registros_;
  std::vector<std::weak_ptr<AvisoDeAlta>> avisos_;
  bool cargada_ = false;
};

/// La base compartida, creada y leída la primera vez que se pide.
BaseDeLocalidades &DameBaseDeLocalidades();
/// La misma, para quien deba asegurarse de que le sobrevive.
[[nodiscard]] std::shared_ptr<BaseDeLocalidades> CompartirBaseDeLocalidades();
/// Olvida la base; la siguiente petición la lee otra vez (cambio de directorio base y pruebas). Quien la
/// comparte conserva la suya.
void LiberarBaseDeLocalidades();

/// Pone el destino de los avisos (vacío: se pierden) y devuelve el anterior.
AvisoLocalidades PonAvisoLocalidades(AvisoLocalidades aviso);

} // namespace tesmo
