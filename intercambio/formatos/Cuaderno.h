#pragma once

#include "intercambio/formatos/Lectura.h"

#include <array>
#include <cstddef>
#include <string>

namespace tesmo {

/// Apunta en un resultado los avisos y errores de su lectura. De cada clase se escriben los primeros; los
/// demás se cuentan, para que un fichero de cien mil líneas malas no dé cien mil notas.
class Cuaderno {
public:
  static constexpr int NOTAS_POR_CLASE = 10;

  explicit Cuaderno(ResultadoLectura &resultado) : resultado_(resultado) {}

  void Aviso(NotaLectura nota) { Apuntar(std::move(nota), resultado_.avisos, callados_[0]); }
  void Error(NotaLectura nota) { Apuntar(std::move(nota), resultado_.errores, callados_[1]); }
  /// Añade, por cada clase con notas calladas, una que dice cuántas son.
  void Cerrar();

  [[nodiscard]] ResultadoLectura &Resultado() const { return resultado_; }

private:
  struct Callados {
    int notas = 0;
    int calladas = 0;
    int ultimaLinea = 0;
  };
  using CalladosPorClase = std::array<Callados, NUMERO_CLASES_NOTA>;

  static void Apuntar(NotaLectura nota, std::vector<NotaLectura> &notas, CalladosPorClase &callados);

  ResultadoLectura &resultado_;
  std::array<CalladosPorClase, 2> callados_{};
};

/// «línea 12», «líneas 12 a 15» (si la última va delante, se dice que da la vuelta), o nada si no es de
/// ninguna.
[[nodiscard]] std::string TextoLineas(int primera, int ultima);
/// @p texto entre comillas, sin caracteres de control y recortado: lo que se cita de un fichero ajeno.
[[nodiscard]] std::string Citado(std::string_view texto);

} // namespace tesmo
