#pragma once

#include "intercambio/formatos/Cuaderno.h"
#include "intercambio/formatos/Lineas.h"

#include <array>
#include <cstddef>
#include <functional>
#include <limits>
#include <string_view>
#include <vector>

namespace tesmo {

/// Una línea de datos: la etiqueta que trae escrita y sus valores en las unidades de Campo.
struct FilaClima {
  int linea = 0;
  int anio = 0;
  int mes = 0;
  int dia = 0;
  int hora = 0; ///< 0 a 24, tal como viene
  std::array<double, NUMERO_CAMPOS> valores;
};

/// Una columna de un fichero: qué campo trae y cómo llevarlo a la unidad del año canónico.
struct ColumnaClima {
  std::size_t posicion = 0; ///< desde 0
  Campo campo = Campo::TemperaturaSeca;
  double factor = 1.0;
  double sumando = 0.0;
  /// Código de «sin dato» en la unidad del fichero: si es positivo, desde él hacia arriba; si es negativo,
  /// desde él hacia abajo; si no es un número, no lo hay.
  double ausente = std::numeric_limits<double>::quiet_NaN();
  bool exacto = false; ///< sólo el propio código, y no lo que haya más allá de él
};

/// Los campos de una línea, partida por un separador; un campo entre comillas puede llevarlo dentro.
using CamposLinea = std::vector<std::string_view>;
/// Blancos seguidos como un solo separador.
inline constexpr char SEPARADOR_BLANCOS = ' ';
/// Parte @p linea en @p campos, sin comillas ni blancos alrededor; a partir de @p maximo campos no mira.
void PartirLinea(std::string_view linea, char separador, std::size_t maximo, CamposLinea &campos);

/// Cómo son las líneas de datos de un fichero.
struct EsquemaFilas {
  char separador = ',';
  bool comaDecimal = false;
  std::size_t camposMinimos = 1;
  std::vector<ColumnaClima> columnas = {};
  /// Pone año, mes, día y hora de la fila; falso si no se entienden.
  std::function<bool(const CamposLinea &, FilaClima &)> fecha = {};
  /// Con esta línea se acaban los datos. Puede no estar.
  std::function<bool(std::string_view)> fin = {};
};

/// Lee las líneas de datos desde donde está @p lineas. Las vacías se saltan; de una sin fecha se avisa y su
/// hora queda sin registro; un campo ausente o ilegible queda AUSENTE y se cuenta en el resultado.
[[nodiscard]] std::vector<FilaClima> LeerFilas(Lineas &lineas, const EsquemaFilas &esquema,
                                               Cuaderno &cuaderno);

} // namespace tesmo
