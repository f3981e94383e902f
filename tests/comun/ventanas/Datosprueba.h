#pragma once

#include "tests/comun/Apoyos.h"

namespace tesmo::prueba {

/// Directorio base con datos conocidos: provincias Almería (Almería, Níjar), Granada (Granada y Motril, cuyo
/// fichero falta) y Cádiz (Tarifa, con un fichero que se corta). Al nacer lo hace base de la configuración y
/// al morir suelta los servicios compartidos.
class DatosPrueba {
public:
  /// Registros completos del fichero cortado.
  static constexpr int REGISTROS_CORTADO = 100;

  DatosPrueba();
  ~DatosPrueba();
  DatosPrueba(const DatosPrueba &) = delete;
  DatosPrueba &operator=(const DatosPrueba &) = delete;

  [[nodiscard]] const DirectorioTemporal &Directorio() const { return directorio_; }
  /// Un registro de "GDR.TXT" con cifras verosímiles, hechas para la prueba. El fichero trae los de Almería y
  /// Granada; Níjar no está.
  [[nodiscard]] static std::string RegistroGdr(const std::string &cabecera);
  /// Temperatura seca [ºC] y dirección del viento [º N] que los ficheros llevan en la posición @p hora (0 a
  /// 8759).
  [[nodiscard]] static float TemperaturaSeca(int hora, float base);
  [[nodiscard]] static float DireccionViento(int hora);
  static constexpr float BASE_ALMERIA = 10.0F;
  static constexpr float BASE_GRANADA = -5.0F;
  /// Altitudes [m] que llevan los ficheros.
  static constexpr float ALTITUD_COSTA = 21.0F;
  static constexpr float ALTITUD_GRANADA = 680.0F;

private:
  DirectorioTemporal directorio_;
};

} // namespace tesmo::prueba
