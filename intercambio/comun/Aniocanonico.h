#pragma once

#include "core/Calendario.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

namespace tesmo {

/// Magnitudes horarias que traen los formatos ajenos, cada una en una sola unidad.
enum class Campo : std::uint8_t {
  TemperaturaSeca,      ///< [°C]
  TemperaturaRocio,     ///< [°C]
  TemperaturaCielo,     ///< [°C]
  HumedadRelativa,      ///< [%], de 0 a 100
  HumedadAbsoluta,      ///< [kg de vapor por kg de aire seco]
  Presion,              ///< [Pa]
  GlobalHorizontal,     ///< [W/m²]
  DirectaNormal,        ///< [W/m²]
  DirectaHorizontal,    ///< [W/m²]
  DifusaHorizontal,     ///< [W/m²]
  InfrarrojaHorizontal, ///< radiación de onda larga que baja del cielo [W/m²]
  NubosidadTotal,       ///< [décimos], de 0 a 10
  NubosidadOpaca,       ///< [décimos], de 0 a 10
  VelocidadViento,      ///< [m/s]
  DireccionViento,      ///< [°], de 0 a 360, desde el norte y hacia el este
  AcimutSolar,          ///< [°], 0 al sur, oeste positivo
  CenitSolar            ///< [°], de 0 a 180
};
inline constexpr std::size_t NUMERO_CAMPOS = 17;

/// De dónde sale el valor de un campo en una hora.
enum class Procedencia : std::uint8_t {
  Ausente,   ///< no hay valor: es AUSENTE
  Copiada,   ///< el número del fichero, con otra unidad si acaso
  Calculada, ///< de otros campos de la misma hora, o de las vecinas por interpolación
  Inventada  ///< de una correlación o de otros días: el fichero no lo sabe
};

/// El valor de un campo que no se conoce.
inline constexpr double AUSENTE = std::numeric_limits<double>::quiet_NaN();

/// Un campo en las 8760 horas del año; la posición de cada hora la da IndiceHora.
struct SerieCanonica {
  std::vector<double> valores = std::vector<double>(static_cast<std::size_t>(HORAS_DEL_ANIO), AUSENTE);
  std::vector<Procedencia> procedencias =
      std::vector<Procedencia>(static_cast<std::size_t>(HORAS_DEL_ANIO), Procedencia::Ausente);

  void Poner(std::size_t hora, double valor, Procedencia procedencia) {
    valores[hora] = valor;
    procedencias[hora] = std::isnan(valor) ? Procedencia::Ausente : procedencia;
  }
};

/// En qué tiempo están escritas las etiquetas de un fichero.
enum class TiempoEtiqueta : std::uint8_t { SolarVerdadero, OficialEstandar, Utc };

/// Mayor adelanto o atraso [h] de una hora oficial sobre UTC.
inline constexpr double HUSO_MAXIMO = 14.0;
/// Mayor desfase [min], en los dos sentidos, que se admite.
inline constexpr double DESFASE_MAXIMO_MIN = 90.0;

/// Qué instante cubre la etiqueta h (1 a 24) de un fichero: el centro de su hora es h + desfaseMin, en su
/// tiempo. Con −30 la etiqueta es el final de la hora que cubre; con 0, su centro.
struct RelojFichero {
  TiempoEtiqueta tiempo = TiempoEtiqueta::OficialEstandar;
  double husoHoras = 0;    ///< adelanto de la hora oficial de invierno sobre UTC [h], este positivo
  double desfaseMin = -30; ///< [min], de −DESFASE_MAXIMO_MIN a DESFASE_MAXIMO_MIN
  bool operator==(const RelojFichero &) const = default;
};

/// De qué formato salió un año.
enum class FormatoClima : std::uint8_t {
  Desconocido,
  Epw,
  PvgisCsv,
  PvgisEpw,
  Tmy3,
  MetTrece,
  MetQuince,
  Delimitado
};

/// Dónde se midió un año.
struct SitioClima {
  std::string nombre;
  std::string region;
  std::string pais;
  std::string identificador; ///< número de estación o fuente, tal como venga
  double latitud = AUSENTE;  ///< [°], norte positiva
  double longitud = AUSENTE; ///< [°], este positiva
  double altitud = AUSENTE;  ///< [m]
};

/// El año típico de un fichero ajeno antes de llevarlo a la hora solar: 8760 registros con sus unidades, su
/// sitio y su reloj. La posición 0 es la primera etiqueta del 1 de enero.
struct AnioCanonico {
  FormatoClima formato = FormatoClima::Desconocido;
  SitioClima sitio;
  RelojFichero reloj;
  std::array<SerieCanonica, NUMERO_CAMPOS> series;
  /// Línea del fichero, desde 1, de cada registro; 0 en los que se inventaron.
  std::vector<int> lineas = std::vector<int>(static_cast<std::size_t>(HORAS_DEL_ANIO));
  /// Año de calendario de cada registro; 0 si el fichero no lo dice.
  std::vector<int> anios = std::vector<int>(static_cast<std::size_t>(HORAS_DEL_ANIO));

  [[nodiscard]] SerieCanonica &operator[](Campo campo) { return series[static_cast<std::size_t>(campo)]; }
  [[nodiscard]] const SerieCanonica &operator[](Campo campo) const {
    return series[static_cast<std::size_t>(campo)];
  }
};

} // namespace tesmo
