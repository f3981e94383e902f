#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tesmo {

/// Una línea de números de un texto y su número de línea, desde 1.
struct FilaNumerica {
  int linea;
  std::vector<double> numeros;
};

/// Un texto con una tabla de números: lo escrito antes y después, y las filas.
struct TablaNumerica {
  std::vector<FilaNumerica> filas;
  std::vector<std::string> textos;   ///< las líneas que no empiezan por un número, en su orden
  std::vector<std::string> columnas; ///< los campos de la última línea de texto anterior a las filas
};

/// Por qué no se pudo leer un texto, con la línea (desde 1); 0 si es todo el texto.
struct FalloLectura {
  int linea = 0;
  std::string texto;
};

/// Lee la tabla de @p texto (UTF-8), con los campos separados por punto y coma, tabulador, coma o blancos, lo
/// que antes sirva para todas las filas. Los decimales van con punto, o con coma si no es el separador. Una
/// línea que no empieza por un número es texto, y sólo puede ir antes o después de las filas, salvo que
/// empiece por '#'. Devuelve falso y @p fallo si no hay ninguna fila, o si una tiene algo que no es un número
/// finito o un número de campos distinto de las demás.
[[nodiscard]] bool LeerTablaNumerica(std::string_view texto, TablaNumerica &tabla, FalloLectura &fallo);

/// Las líneas de @p texto sin su fin, sea LF, CR LF o CR.
[[nodiscard]] std::vector<std::string_view> PartirLineas(std::string_view texto);
/// @p texto sin los blancos de los extremos.
[[nodiscard]] std::string_view SinBlancos(std::string_view texto);
/// Los campos de @p linea; los blancos y los tabuladores seguidos separan una sola vez.
[[nodiscard]] std::vector<std::string_view> PartirCampos(std::string_view linea, char separador);
/// El número que es todo @p campo, sin mirar la región; falso si no lo es. Acepta "inf" y "nan".
[[nodiscard]] bool LeerNumeroDeCampo(std::string_view campo, bool comaDecimal, double &valor);

} // namespace tesmo
