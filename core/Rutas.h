#pragma once

#include "core/Lectorclaves.h"

#include <array>
#include <string>
#include <string_view>

namespace tesmo {

/// Servicio de configuración: lee "config.ini" del directorio base y compone las rutas de los ficheros.
/// Sin "config.ini" toda clave está ausente y todo se busca en el directorio base.
class ServicioConfiguracion {
public:
  /// @p base: directorio del programa, con separador final o sin él. Lo hace directorio de trabajo del
  /// proceso.
  explicit ServicioConfiguracion(const std::string &base);

  /// Directorio base, con su separador final.
  [[nodiscard]] const std::string &DirectorioBase() const { return base_; }
  /// ¿Se pudo leer "config.ini"?
  [[nodiscard]] bool HayFichero() const { return hayFichero_; }
  /// 0 si la clave está en "config.ini"; −1 si no, y @p destino queda como estaba.
  int LeerClave(std::string_view clave, std::string &destino) const;
  int LeerClaveReal(std::string_view clave, float &destino) const;

  /// Base + directorio configurado + @p nombre (los '\' son '/'), sin distinguir mayúsculas si no existe así.
  /// Las cuatro comparten un búfer: cada llamada pisa el resultado de la anterior.
  const std::string &RutaPerfiles(std::string_view nombre);
  const std::string &RutaPrograma(std::string_view nombre);
  const std::string &RutaMeteo(std::string_view nombre);
  const std::string &RutaResultados(std::string_view nombre);

private:
  static constexpr std::size_t NUMERO_CLAVES = 11;
  const std::string &Componer(std::size_t directorio, std::string_view nombre);

  std::string base_;
  bool hayFichero_ = false;
  LectorClaves lector_;
  std::array<std::string, NUMERO_CLAVES> directorios_; // sin tope de tamaño, a propósito, como bufer_
  std::string bufer_;
};

/// El servicio compartido; la primera vez toma como base el directorio del ejecutable.
ServicioConfiguracion &DameConfiguracion();
/// Crea de nuevo el servicio sobre @p base (opción de la línea de órdenes y reposición en las pruebas).
void IniciarConfiguracion(const std::string &base);
/// Olvida el servicio; la próxima petición lo crea otra vez.
void LiberarConfiguracion();

} // namespace tesmo
