#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace tesmo {

/// Números al azar que son los mismos en toda máquina y con toda biblioteca: las distribuciones de la
/// biblioteca estándar no lo prometen, así que el generador y las transformaciones son propios.
/// Generador xoshiro256** (Blackman y Vigna, 2018), sembrado con splitmix64 (Steele, Lea y Flood, 2014) a
/// partir de un resumen FNV-1a de 64 bits (Fowler, Noll y Vo) del texto de la semilla.
class Azar {
public:
  /// El mismo texto da siempre la misma sucesión; cada pieza de un año usa la suya para no mover a las demás.
  explicit Azar(std::string_view semilla);
  /// Sigue desde un estado dado, que no puede ser todo ceros.
  explicit Azar(const std::array<std::uint64_t, 4> &estado) : estado_(estado) {}

  /// 64 bits al azar.
  std::uint64_t Siguiente();
  /// Uniforme en el intervalo abierto (0, 1).
  double Uniforme();
  /// Normal de media 0 y desviación 1 (Box y Muller, 1958).
  double Normal();

private:
  std::array<std::uint64_t, 4> estado_{};
};

/// Avanza @p estado y da el siguiente número de splitmix64.
std::uint64_t Splitmix(std::uint64_t &estado);
/// Resumen FNV-1a de 64 bits de @p texto.
[[nodiscard]] std::uint64_t ResumenFnv(std::string_view texto);

/// Probabilidad de que una normal de media 0 y desviación 1 no pase de @p x.
[[nodiscard]] double ProbabilidadNormal(double x);

/// @p n valores de un proceso autorregresivo de primer orden, media 0 y desviación 1, con correlación
/// @p r1 en [0, 1) de un valor al siguiente. La serie está cerrada: el primero sigue al último.
[[nodiscard]] std::vector<double> SerieAutorregresiva(Azar &azar, std::size_t n, double r1);

} // namespace tesmo
