#pragma once

#include "intercambio/escritura/Fichacatalogo.h"
#include "localidades/Bloqueslocalidades.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tesmo {

/// El fichero "LocalidadesCC" en memoria, para cambiar en él una localidad sin tocar los demás bytes: ni su
/// codificación, ni sus fines de línea, ni lo que nadie entiende.
class ListaLocalidades {
public:
  /// @p contenido: el fichero entero; vacío si no lo hay.
  explicit ListaLocalidades(std::string contenido);

  [[nodiscard]] const std::string &Contenido() const { return contenido_; }
  [[nodiscard]] std::vector<CamposLocalidad> Localidades() const;
  /// Los campos de la primera de ese nombre exacto; vacío si no está.
  [[nodiscard]] std::optional<CamposLocalidad> Buscar(std::string_view nombre) const;
  /// El texto tal como volverá a leerse: en un fichero en Windows-1252, con '?' donde algo no cabe.
  [[nodiscard]] std::string ComoSeLeera(std::string_view texto) const;

  /// Pone @p ficha: en su línea, si ya está su nombre en su provincia; si no, tras la última localidad de su
  /// provincia, cuya cuenta sube en uno, o en un bloque nuevo al final. Un último bloque con menos líneas que
  /// su cuenta recibe la que tiene: si no, repetiría lo que se le añada. Falso si la línea pasa de los 299
  /// bytes que se leen; entonces nada cambia.
  bool Poner(const FichaLocalidad &ficha);
  /// ¿Hubo que corregir la cuenta de un bloque corto?
  [[nodiscard]] bool CuentaCorregida() const { return cuentaCorregida_; }

private:
  struct Sitio {
    std::size_t bloque, linea;
  };
  [[nodiscard]] std::optional<Sitio> SitioDeNombre(std::string_view nombre) const;
  [[nodiscard]] std::optional<Sitio> UltimoDeProvincia(std::string_view provincia) const;
  void Situar() { bloques_ = BloquesDeLocalidades(contenido_); }
  void Sustituir(std::size_t inicio, std::size_t fin, std::string_view por);
  void PonerCuenta(std::size_t bloque, std::size_t cuenta);
  void CorregirUltimaCuenta();
  void Quitar(Sitio sitio);
  void Insertar(const std::string &linea, const std::string &provincia);

  std::string contenido_;
  std::vector<BloqueDeLocalidades> bloques_;
  bool utf8_ = true;
  std::string fin_ = "\n"; ///< el fin de línea que usa el fichero
  bool cuentaCorregida_ = false;
};

} // namespace tesmo
