#pragma once

#include <string>
#include <vector>

namespace tesmo {

/// Una marca del eje horizontal; el texto puede llevar varias líneas separadas por '\n'.
struct MarcaEje {
  double posicion = 0.0;
  std::string texto;
};

/// Lo que un gráfico necesita saber de su eje horizontal: dónde van las marcas, a qué punto se ajusta el
/// cursor y cómo se nombra ese punto. Cada clase de gráfico pone la suya; no depende de ninguna pantalla.
class EscalaX {
public:
  EscalaX() = default;
  EscalaX(const EscalaX &) = delete;
  EscalaX &operator=(const EscalaX &) = delete;
  virtual ~EscalaX() = default;

  [[nodiscard]] virtual std::string Titulo() const = 0;
  /// Extremos de los datos; @c primero ≤ @c ultimo.
  [[nodiscard]] virtual double Primero() const = 0;
  [[nodiscard]] virtual double Ultimo() const = 0;
  /// Marcas con texto entre @p desde y @p hasta cuando ocupan @p ancho píxeles.
  [[nodiscard]] virtual std::vector<MarcaEje> Marcas(double desde, double hasta, double ancho) const = 0;
  /// Posiciones de las marcas pequeñas, sin texto.
  [[nodiscard]] virtual std::vector<double> Submarcas(double desde, double hasta, double ancho) const = 0;
  /// El punto con datos más cercano a @p x, siempre entre Primero() y Ultimo().
  [[nodiscard]] virtual double Ajustar(double x) const = 0;
  /// Nombre del punto @p x para el cursor.
  [[nodiscard]] virtual std::string Nombrar(double x) const = 0;
  /// Columnas que sitúan un punto al copiar los datos como texto, y sus encabezamientos.
  [[nodiscard]] virtual std::vector<std::string> Encabezamientos() const = 0;
  [[nodiscard]] virtual std::vector<std::string> Campos(double x) const = 0;
};

} // namespace tesmo
