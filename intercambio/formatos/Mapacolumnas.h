#pragma once

#include "intercambio/formatos/Lectura.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tesmo {

/// Una columna de un texto delimitado.
struct ColumnaMapa {
  Campo campo = Campo::TemperaturaSeca;
  std::string columna; ///< su número, desde 1, o su rótulo en la última línea de cabecera
  std::string unidad;  ///< de UnidadesDe(campo); vacía, la primera
  bool operator==(const ColumnaMapa &) const = default;
};

/// En qué orden van año, mes y día en una fecha escrita en una sola columna.
enum class OrdenFecha : std::uint8_t { AnioMesDia, DiaMesAnio, MesDiaAnio };

/// Cómo leer un texto delimitado cualquiera. Las columnas de fecha se dan como ColumnaMapa::columna; vacías
/// si no están. Sin mes, día ni fecha, la primera línea es la hora 1 del 1 de enero y las demás la siguen.
struct MapaColumnas {
  std::string nombre; ///< del sitio
  double latitud = AUSENTE;
  double longitud = AUSENTE;
  double altitud = AUSENTE;
  char separador = ','; ///< ',', ';', '\t' o SEPARADOR_BLANCOS
  bool comaDecimal = false;
  int lineasCabecera = 1;
  double sinDato = AUSENTE; ///< código de «sin dato», en la unidad del fichero; AUSENTE si no lo hay
  /// desfaseMin cuenta desde la etiqueta de 1 a 24: si el fichero las escribe de 0 a 23, desde la siguiente.
  RelojFichero reloj;
  bool husoDeLongitud = false; ///< no se sabe el huso: reloj.husoHoras no vale y se toma el de la longitud
  OrdenFecha orden = OrdenFecha::AnioMesDia;
  std::string columnaFecha; ///< "AAAA-MM-DD", con la hora detrás si se quiere ("… hh:mm")
  std::string columnaAnio;
  std::string columnaMes;
  std::string columnaDia;
  std::string columnaHora;
  std::vector<ColumnaMapa> columnas;
};

struct ResultadoMapa {
  std::optional<MapaColumnas> mapa; ///< sólo si no hay errores
  std::vector<NotaLectura> errores;
};

/// Lee un mapa: líneas "clave = valor", comentarios con '#'. Las claves no distinguen mayúsculas ni acentos.
[[nodiscard]] ResultadoMapa LeerMapa(std::string_view texto);
/// El texto de un mapa; LeerMapa lo devuelve igual.
[[nodiscard]] std::string EscribirMapa(const MapaColumnas &mapa);

} // namespace tesmo
