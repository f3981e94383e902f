#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tesmo {

/// Perfil de horizonte: puntos de acimut [°, 0 al sur, oeste positivo] y altura [°] en el orden en que se
/// pusieron.
class PerfilHorizonte {
public:
  /// Tamaño mayor que se admite: un fichero que anuncie más no es un perfil.
  static constexpr int PUNTOS_MAXIMOS = 100'000;

  /// Deja @p n puntos a cero, truncando @p n a entero; fuera de 0..PUNTOS_MAXIMOS se toma el límite y lo que
  /// no es número cuenta como 0.
  void PonTamano(float n);
  /// Da valor al punto @p i; fuera del perfil no hace nada.
  void PonPunto(int i, float x, float y);

  [[nodiscard]] int Tamano() const { return static_cast<int>(x_.size()); }
  [[nodiscard]] const std::vector<float> &X() const { return x_; }
  [[nodiscard]] const std::vector<float> &Y() const { return y_; }
  bool operator==(const PerfilHorizonte &) const = default;

private:
  std::vector<float> x_;
  std::vector<float> y_;
};

/// Lee un perfil de @p contenido: el número de puntos y hasta ese número de parejas "x, y", con las reglas de
/// la lectura con formato de C y punto decimal. Los puntos que falten quedan a 0 y un texto que no es número
/// detiene las parejas, sin rechazar el fichero. Devuelve falso, y @p perfil queda como estaba, si no empieza
/// por un número de puntos de 0 a PUNTOS_MAXIMOS.
[[nodiscard]] bool LeerPerfil(std::string_view contenido, PerfilHorizonte &perfil);

/// El fichero de @p perfil: su número de puntos y sólo los de posición par (se conserva).
[[nodiscard]] std::string TextoDePerfil(const PerfilHorizonte &perfil);

} // namespace tesmo
