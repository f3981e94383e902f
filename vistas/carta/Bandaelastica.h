#pragma once

#include "psicro/Lienzo.h"

#include <array>

namespace tesmo {

class Psicro;

/// Cómo se combina lo que se traza con lo que ya hay en la superficie.
enum class ModoPluma {
  Copia,     ///< lo sustituye
  Inversion, ///< invierte lo que hay, sea cual sea el color: trazar dos veces lo deja como estaba
};

struct Pixel {
  int x = 0;
  int y = 0;
  bool operator==(const Pixel &) const = default;
};

/// Superficie sobre la que se suelta la banda: un lienzo con modo de pluma y rectángulos.
class SuperficieBanda {
public:
  virtual ~SuperficieBanda() = default;
  virtual void PonModo(ModoPluma modo) = 0;
  /// Contorno del rectángulo de esquinas opuestas @p a y @p b.
  virtual void Rectangulo(ColorBgr color, const Pixel &a, const Pixel &b) = 0;
  [[nodiscard]] virtual Lienzo &Trazos() = 0;
};

/// Banda elástica de la carta. Ningún control la activa; mientras no lo está, cada pulsación del ratón lleva
/// al puntero sus dos esquinas.
struct BandaElastica {
  bool activa = false;
  std::array<Pixel, 2> esquinas{}; ///< píxeles de la carta
};

/// Tamaño [píxeles] de la carta que se dibuja al soltar la banda, sea cual sea el de la imagen.
inline constexpr int ANCHO_DE_BANDA = 600;
inline constexpr int ALTO_DE_BANDA = 400;

/// Suelta la banda: traza su rectángulo en negro con @p modo, dibuja la carta desde el principio a 600 × 400,
/// pasa a copia, la dibuja otra vez al mismo tamaño y apaga la banda. La carta se queda con ese tamaño.
void SoltarBanda(BandaElastica &banda, ModoPluma modo, SuperficieBanda &superficie, Psicro &carta);

} // namespace tesmo
