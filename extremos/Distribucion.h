#pragma once

#include <array>
#include <cstddef>

namespace tesmo::extremos {

inline constexpr int GRADO_MINIMO = -49;
inline constexpr int GRADO_MAXIMO = 50;
inline constexpr std::size_t NUMERO_GRADOS = 100;

/// Una distribución tal como la guarda el objeto: reales de 32 bits por grado entero, de −49 a 50 °C, y el
/// menor y el mayor grado que contiene (50 y −49 si está vacía).
struct DistribucionGuardada {
  std::array<float, NUMERO_GRADOS> valores{};
  int menor = GRADO_MAXIMO;
  int mayor = GRADO_MINIMO;
};

/// Distribución de temperaturas por grado entero mientras se calcula. Fuera de su alcance vale 0.
class Distribucion {
public:
  /// Añade @p valor en @p grado, de −49 a 50, y ensancha el alcance hasta él.
  void Anadir(int grado, long double valor);
  /// Añade todos los valores de @p otra.
  void Anadir(const Distribucion &otra);
  /// Valor en @p grado; 0 fuera de −49..50.
  [[nodiscard]] long double operator[](int grado) const;
  /// Menor y mayor grado que contiene; 50 y −49 si está vacía.
  [[nodiscard]] int Menor() const { return menor_; }
  [[nodiscard]] int Mayor() const { return mayor_; }

  /// Divide todos los valores por @p divisor, que no ha de ser 0.
  void DividirPor(long double divisor);
  /// Cada grado pasa a ser la suma de todos hasta él, desde el menor.
  void Acumular();
  /// Divide por el mayor de sus valores, que así queda en 1.
  void Normalizar();

  /// En una acumulada, la temperatura en que se pasa estrictamente de la fracción @p p. Queda un grado por
  /// encima de la interpolación (se conserva). Si ningún grado pasa, da Valor(@p p).
  [[nodiscard]] long double Buscar(long double p) const;
  /// Valor en el grado @p t truncado hacia cero.
  [[nodiscard]] long double Valor(long double t) const;

  /// La misma, redondeada a 32 bits.
  [[nodiscard]] DistribucionGuardada Guardada() const;

private:
  std::array<long double, NUMERO_GRADOS> valores_{};
  int menor_ = GRADO_MAXIMO;
  int mayor_ = GRADO_MINIMO;
};

} // namespace tesmo::extremos
