#pragma once

#include "core/Calendario.h"
#include "meteo/Magnitudes.h"

#include <array>
#include <cstddef>
#include <vector>

namespace tesmo {

/// Un valor por hora del año; la posición de cada hora la da IndiceHora.
using SerieHoraria = std::vector<float>;

inline constexpr std::size_t NUMERO_SERIES_LEIDAS = 10;
inline constexpr std::size_t NUMERO_SERIES_DERIVADAS = 11;

/// Las diez series leídas, indizadas por SerieAlmacenada; siempre de un año entero y a cero antes de leer
/// nada.
class SeriesLeidas {
public:
  SeriesLeidas() { series_.fill(SerieHoraria(static_cast<std::size_t>(HORAS_DEL_ANIO))); }

  [[nodiscard]] SerieHoraria &operator[](SerieAlmacenada serie) {
    return series_[static_cast<std::size_t>(serie)];
  }
  [[nodiscard]] const SerieHoraria &operator[](SerieAlmacenada serie) const {
    return series_[static_cast<std::size_t>(serie)];
  }

private:
  std::array<SerieHoraria, NUMERO_SERIES_LEIDAS> series_;
};

/// Las once series derivadas, indizadas por SerieDerivada: vacías hasta que se reservan.
class SeriesDerivadas {
public:
  /// Libera lo que hubiera y reserva once series de @p horas valores a cero; un número negativo cuenta como
  /// 0.
  void Reservar(int horas) {
    for (auto &serie : series_) serie.assign(horas > 0 ? static_cast<std::size_t>(horas) : 0, 0.0F);
  }
  /// Deja las once series vacías y devuelve su memoria.
  void Liberar() {
    for (auto &serie : series_) SerieHoraria().swap(serie);
  }

  [[nodiscard]] SerieHoraria &operator[](SerieDerivada serie) {
    return series_[static_cast<std::size_t>(serie)];
  }
  [[nodiscard]] const SerieHoraria &operator[](SerieDerivada serie) const {
    return series_[static_cast<std::size_t>(serie)];
  }

private:
  std::array<SerieHoraria, NUMERO_SERIES_DERIVADAS> series_;
};

/// Intervalo de posiciones de una serie, ambos extremos incluidos; vacío si el último va antes que el
/// primero.
struct TramoHoras {
  int primera = 0;
  int ultima = 0;
};

} // namespace tesmo
