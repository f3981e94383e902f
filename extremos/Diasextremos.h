#pragma once

#include "core/Objetobase.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace tesmo {

/// Un indicador por mes, enero primero: 1 si el mes pertenece a la temporada.
using MesesDeTemporada = std::array<std::int16_t, 12>;

/// Días de proyecto de calefacción y de refrigeración de una localidad, a partir de sus estadísticas
/// mensuales de temperatura y de un percentil. Los ajustes se leen y escriben por nombre, en UTF-8:
/// "Localidad", "Provincia", "Percentil calefacción" y "Percentil refrigeración" [%, 0 a 100], "Mes
/// calefacción" y "Mes refrigeración" [1 a 12].
class DiasExtremos : public ObjetoBase {
public:
  DiasExtremos();

  /// Los percentiles salen con el patrón "0.0##"; una clave desconocida da un texto vacío.
  [[nodiscard]] std::string DameTexto(std::string_view clave) const override;
  /// Los dos percentiles y los dos meses.
  void DameReal(std::string_view clave, float &valor) const override;
  /// Los dos meses.
  void DameEntero(std::string_view clave, std::int32_t &valor) const override;
  /// Color con que se enseña el rótulo del ajuste: es su estado de entrada (verde en blanco, negro tecleado,
  /// rojo no válido, escritos 0x00BBGGRR).
  void DameEstado(std::string_view clave, std::int32_t &estado) const override;
  /// Percentiles de 0 a 100 y meses de 1 a 12; lo que no se pueda leer toma el valor de fábrica.
  void PonTexto(std::string_view clave, const std::string &texto) override;
  /// "Temporada calefacción" o "Temporada refrigeración", los doce indicadores en bloque; con otra clave nada
  /// cambia.
  void DameTemporada(std::string_view clave, MesesDeTemporada &meses) const;
  void PonTemporada(std::string_view clave, const MesesDeTemporada &meses);

private:
  /// Los ocho colores, en su orden; dos no corresponden a ninguna clave.
  enum Color : std::size_t {
    COLOR_PROVINCIA,
    COLOR_LOCALIDAD,
    COLOR_PER_CAL,
    COLOR_PER_REF,
    COLOR_SIN_CLAVE_1,
    COLOR_SIN_CLAVE_2,
    COLOR_MES_CAL,
    COLOR_MES_REF,
    NUMERO_COLORES
  };

  std::string localidad_ = "Almería";
  std::string provincia_ = "Almería";
  float percentilCalefaccion_ = 99.0F;
  float percentilRefrigeracion_ = 1.0F;
  std::int32_t mesCalefaccion_ = 1;
  std::int32_t mesRefrigeracion_ = 7;
  MesesDeTemporada temporadaCalefaccion_{1, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1};
  MesesDeTemporada temporadaRefrigeracion_{0, 0, 0, 0, 0, 1, 1, 1, 1, 0, 0, 0};
  std::array<std::int32_t, NUMERO_COLORES> colores_;
};

} // namespace tesmo
