#pragma once

#include <array>
#include <cstddef>
#include <vector>

namespace tesmo {

/// π de un real de 32 bits, con el que se derivan las series solares, y su paso de grados a radianes.
inline constexpr float PI_DE_SERIES = 3.14159274F;
inline constexpr double RADIANES_DE_SERIES = PI_DE_SERIES * (1.0 / 180.0);

/// Altura del horizonte en cada grado entero de acimut, de −180 a 180 (0 al sur, oeste positivo), tendida en
/// línea recta entre puntos consecutivos del perfil cuyo acimut crece. Donde dos tramos comparten un grado
/// gana el primero; un punto de grado entero fuera de todo tramo da su altura; en lo demás el horizonte está
/// a 0. Un punto que no es un número finito no cuenta.
class AlturasDeHorizonte {
public:
  static constexpr int ACIMUT_MAXIMO = 180;

  AlturasDeHorizonte() = default;
  /// @param x acimutes [°]; @param y alturas [°], tantas como acimutes.
  AlturasDeHorizonte(const std::vector<float> &x, const std::vector<float> &y);

  /// Altura [°] en el grado entero @p acimut, de −180 a 180.
  [[nodiscard]] float EnGrado(int acimut) const { return alturas_[Posicion(acimut)]; }
  /// ¿Tapa el horizonte un sol a @p altura en @p acimut [°]? El acimut se trunca a grados; fuera de −180..180
  /// no tapa nada.
  [[nodiscard]] bool Tapa(float acimut, float altura) const;
  /// Factor de visión del cielo de una superficie de @p orientacion [°, −180 a 180]: 0,5 sin horizonte, sea
  /// cual sea su inclinación.
  [[nodiscard]] float FactorDeCielo(float orientacion) const;

private:
  static constexpr std::size_t GRADOS = 2 * ACIMUT_MAXIMO + 1;
  using Marcas = std::array<bool, GRADOS>;

  [[nodiscard]] static std::size_t Posicion(int acimut) {
    const int posicion = acimut + ACIMUT_MAXIMO;
    return static_cast<std::size_t>(posicion);
  }
  void TenderTramo(float x0, float y0, float x1, float y1, Marcas &puestos);
  void PonerPunto(float x, float y, Marcas &puestos);

  std::array<float, GRADOS> alturas_{};
};

} // namespace tesmo
