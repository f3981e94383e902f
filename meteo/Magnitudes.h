#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tesmo {

/// Las magnitudes horarias. Las 21 primeras son las del visor, los colores y las estadísticas, en su orden;
/// la última (humedad absoluta sin escalar) sólo se exporta y se pide por su rótulo.
enum class Magnitud : std::uint8_t {
  TS,
  RSDr,
  RSDf,
  HA,
  VV,
  DV,
  C,
  Al,
  Az,
  TC,
  TR,
  TH,
  HR,
  E,
  VE,
  CE,
  DN,
  Dr,
  Df,
  R,
  G,
  HAkg,
};
inline constexpr std::size_t NUMERO_MAGNITUDES = 22;
/// Las que tienen casilla en el visor, color y orden propio.
inline constexpr std::size_t NUMERO_MAGNITUDES_VISOR = 21;

/// Grupo de casillas en que se enseña.
enum class GrupoMagnitud : std::uint8_t { Basicas, Psicrometricas, Radiacion };
/// Rótulos de los grupos, en el orden de GrupoMagnitud.
inline constexpr std::array<std::string_view, 3> ROTULOS_DE_GRUPO{
    "Magnitudes básicas", "Magnitudes psicrométricas", "Magnitudes radiación"};

/// De dónde salen los valores: las diez series del fichero, en el orden de sus columnas 4 a 13…
enum class SerieAlmacenada : std::uint8_t {
  TemperaturaSeca,
  TemperaturaCielo,
  RadiacionDirecta,
  RadiacionDifusa,
  HumedadAbsoluta,
  HumedadRelativa,
  VelocidadViento,
  DireccionViento,
  Acimut,
  Cenit,
};
/// …o las once que se derivan de ellas, en el orden en que se guardan.
enum class SerieDerivada : std::uint8_t {
  Altura,
  Rocio,
  Humeda,
  Entalpia,
  VolumenEspecifico,
  CalorEspecifico,
  DirectaNormal,
  Directa,
  Difusa,
  Reflejada,
  Global,
};

/// Cómo se suman sus estadísticas.
enum class RutinaEstadistica : std::uint8_t {
  Simple,              ///< máximo, mínimo y media
  Temperatura,         ///< además, los tres sumatorios de grados-día
  ConDifusaHorizontal, ///< sólo las horas con radiación difusa horizontal
  ConDifusaSuperficie, ///< sólo las horas con difusa sobre la superficie
};

/// Procedencia de una magnitud: índice en las series almacenadas o en las derivadas, y factor de escala.
struct FuenteMagnitud {
  bool derivada;
  std::uint8_t indice; ///< SerieAlmacenada o SerieDerivada
  float escala;        ///< 1000 en la humedad absoluta en g/kg; 1 en las demás
  constexpr FuenteMagnitud(SerieAlmacenada serie, float factor = 1.0F)
      : derivada(false), indice(static_cast<std::uint8_t>(serie)), escala(factor) {}
  constexpr FuenteMagnitud(SerieDerivada serie)
      : derivada(true), indice(static_cast<std::uint8_t>(serie)), escala(1.0F) {}
};

/// Todo lo que el programa sabe de una magnitud. Añadir una variable es añadir una fila y su cálculo.
struct FichaMagnitud {
  Magnitud magnitud;
  std::string_view codigo; ///< sufijo de su casilla; nombre en la línea de órdenes
  std::string_view rotulo; ///< texto exacto por el que se pide, con su unidad
  GrupoMagnitud grupo;
  FuenteMagnitud fuente;
  RutinaEstadistica rutina;
  std::string_view patron;             ///< cifras de la exportación; vacío si no se exporta
  std::string_view columna;            ///< nombre de su columna en la exportación
  std::string_view casillaExportacion; ///< casilla de la pestaña de exportación
  std::string_view claveSerie;         ///< título de su serie en el gráfico; vacío si no se enseña
  std::string_view claveColor;         ///< clave de lectura en el fichero de colores, sin el blanco final
  std::uint32_t color;                 ///< color de fábrica, 0x00BBGGRR
  std::string_view leyendaColor;       ///< leyenda en el diálogo de colores
  std::string_view etiquetaColor;      ///< nombre de esa leyenda como control
};

// clang-format off
/// La tabla de magnitudes, en el orden de Magnitud.
inline constexpr std::array<FichaMagnitud, NUMERO_MAGNITUDES> MAGNITUDES{{
  {Magnitud::TS, "TS", "Temperatura seca (ºC)", GrupoMagnitud::Basicas, SerieAlmacenada::TemperaturaSeca, RutinaEstadistica::Temperatura,
   "0.0", "ts", "cbTemSec", "ts", "COLOR-TS", 0x8080FF, "Temperatura seca", "lbTS"},
  {Magnitud::RSDr, "RSDr", "Radiación solar directa (W/m²)", GrupoMagnitud::Basicas, SerieAlmacenada::RadiacionDirecta, RutinaEstadistica::ConDifusaHorizontal,
   "0", "rd", "cbRadDir", "rd", "COLOR-RSDr", 0x0080FF, "Radiacion solar directa", "lbRSDr"},
  {Magnitud::RSDf, "RSDf", "Radiación solar difusa (W/m²)", GrupoMagnitud::Basicas, SerieAlmacenada::RadiacionDifusa, RutinaEstadistica::ConDifusaHorizontal,
   "0", "rdif", "cbRadDif", "rdif", "COLOR-RSDf", 0x0000FF, "Radiación solar difusa", "lbDSDf"},
  {Magnitud::HA, "HA", "Humedad absoluta (g/kg)", GrupoMagnitud::Basicas, {SerieAlmacenada::HumedadAbsoluta, 1000.0F}, RutinaEstadistica::Simple,
   "", "", "", "w", "COLOR-HA", 0x80FF80, "Humedad absoluta", "lbHA"},
  {Magnitud::VV, "VV", "Velocidad del viento (m/s)", GrupoMagnitud::Basicas, SerieAlmacenada::VelocidadViento, RutinaEstadistica::Simple,
   "0.0", "vv", "cbVelVie", "vv", "COLOR-VV", 0x008000, "Velocidad del viento", "lbVV"},
  {Magnitud::DV, "DV", "Dirección del viento (º N)", GrupoMagnitud::Basicas, SerieAlmacenada::DireccionViento, RutinaEstadistica::Simple,
   "0", "dv", "cbDirVie", "dv", "COLOR-DV", 0x00FFFF, "Dirección del viento", "lbDV"},
  {Magnitud::C, "C", "Cenith (º)", GrupoMagnitud::Basicas, SerieAlmacenada::Cenit, RutinaEstadistica::Simple,
   "0.0", "cenit", "cbCenit", "cenith", "COLOR-C", 0xFF80FF, "Cenith", "lbC"},
  {Magnitud::Al, "Al", "Altura (º)", GrupoMagnitud::Basicas, SerieDerivada::Altura, RutinaEstadistica::Simple,
   "0.0", "h", "cbAltura", "altura", "COLOR-Al", 0xFF0080, "Altura", "lbAl"},
  {Magnitud::Az, "Az", "Azimuth (º)", GrupoMagnitud::Basicas, SerieAlmacenada::Acimut, RutinaEstadistica::Simple,
   "0.0", "azimuth", "cbAzimut", "azimuth", "COLOR-Az", 0xFFFF80, "Azimuth", "lbAz"},
  {Magnitud::TC, "TC", "Temperatura de cielo (ºC)", GrupoMagnitud::Basicas, SerieAlmacenada::TemperaturaCielo, RutinaEstadistica::Temperatura,
   "0.0", "tc", "cbTemCie", "tc", "COLOR-TC", 0x329FDA, "Temperatura de cielo", "lbTC"},
  {Magnitud::TR, "TR", "Temperatura de rocío (ºC)", GrupoMagnitud::Psicrometricas, SerieDerivada::Rocio, RutinaEstadistica::Temperatura,
   "0.0", "tr", "cbTemRoc", "tr", "COLOR-TR", 0x804000, "Temperatura de rocio", "lbTR"},
  {Magnitud::TH, "TH", "Temperatura húmeda (ºC)", GrupoMagnitud::Psicrometricas, SerieDerivada::Humeda, RutinaEstadistica::Temperatura,
   "0.0", "th", "cbTemHum", "th", "COLOR-TH", 0x77AA95, "Temperatura húmeda", "lbTH"},
  {Magnitud::HR, "HR", "Humedad relativa (%)", GrupoMagnitud::Psicrometricas, SerieAlmacenada::HumedadRelativa, RutinaEstadistica::Simple,
   "0.0", "hr", "cbHumRel", "hr", "COLOR-HR", 0x400080, "Humedad relativa", "lbHR"},
  {Magnitud::E, "E", "Entalpía (J/kg)", GrupoMagnitud::Psicrometricas, SerieDerivada::Entalpia, RutinaEstadistica::Simple,
   "0", "entalpia", "cbEnt", "entalpia", "COLOR-E", 0xFF0000, "Entalpía", "lbE"},
  {Magnitud::VE, "VE", "Volumen específico (m³/kg)", GrupoMagnitud::Psicrometricas, SerieDerivada::VolumenEspecifico, RutinaEstadistica::Simple,
   "0.000", "vol_esp", "cbVolEsp", "ve", "COLOR-VE", 0x000080, "Volumen específico", "lbVE"},
  {Magnitud::CE, "CE", "Calor específico (J/(kg K))", GrupoMagnitud::Psicrometricas, SerieDerivada::CalorEspecifico, RutinaEstadistica::Simple,
   "0", "cal_esp", "cbCalEsp", "ce", "COLOR-CE", 0x008080, "Calor específico", "lbCE"},
  {Magnitud::DN, "DN", "Directa normal (W/m²)", GrupoMagnitud::Radiacion, SerieDerivada::DirectaNormal, RutinaEstadistica::ConDifusaSuperficie,
   "0", "Dir_nor", "cbDirNor", "dn", "COLOR-DN", 0x800080, "Directa normal", "lbDN"},
  {Magnitud::Dr, "Dr", "Directa (W/m²)", GrupoMagnitud::Radiacion, SerieDerivada::Directa, RutinaEstadistica::ConDifusaSuperficie,
   "0", "directa", "cbDir", "directa", "COLOR-Dr", 0xC0C0C0, "Directa", "lbDr"},
  {Magnitud::Df, "Df", "Difusa (W/m²)", GrupoMagnitud::Radiacion, SerieDerivada::Difusa, RutinaEstadistica::ConDifusaSuperficie,
   "0", "difusa", "cbDif", "difusa", "COLOR-Df", 0xFF8000, "Difusa", "lbDf"},
  {Magnitud::R, "R", "Reflejada (W/m²)", GrupoMagnitud::Radiacion, SerieDerivada::Reflejada, RutinaEstadistica::ConDifusaSuperficie,
   "0", "refle", "cbRef", "ref", "COLOR-R", 0xC08080, "Reflejada", "lbR"},
  {Magnitud::G, "G", "Global (W/m²)", GrupoMagnitud::Radiacion, SerieDerivada::Global, RutinaEstadistica::ConDifusaSuperficie,
   "0", "global", "cbGlo", "global", "COLOR-G", 0xDB9BDA, "Global", "lbG"},
  {Magnitud::HAkg, "HAkg", "Humedad absoluta (kg/kg)", GrupoMagnitud::Basicas, SerieAlmacenada::HumedadAbsoluta, RutinaEstadistica::Simple,
   "0.0000", "w", "cbHumAbs", "", "", 0, "", ""},
}};

/// Orden de las casillas del visor, de los colores y de las estadísticas: el de la tabla.
inline constexpr auto ORDEN_DEL_VISOR = [] {
  std::array<Magnitud, NUMERO_MAGNITUDES_VISOR> orden{};
  for (std::size_t i = 0; i < orden.size(); ++i) orden[i] = MAGNITUDES[i].magnitud;
  return orden;
}();

/// Orden en que se comparan los rótulos al pedir una serie.
inline constexpr std::array<Magnitud, NUMERO_MAGNITUDES> ORDEN_DE_SERIES{
  Magnitud::TS, Magnitud::RSDr, Magnitud::RSDf, Magnitud::HAkg, Magnitud::HA, Magnitud::HR, Magnitud::VV, Magnitud::DV,
  Magnitud::Az, Magnitud::C, Magnitud::Al, Magnitud::TR, Magnitud::TC, Magnitud::TH, Magnitud::E, Magnitud::VE,
  Magnitud::CE, Magnitud::DN, Magnitud::Dr, Magnitud::Df, Magnitud::R, Magnitud::G};

/// Orden de las columnas que se pueden exportar.
inline constexpr std::array<Magnitud, 21> ORDEN_DE_EXPORTACION{
  Magnitud::TS, Magnitud::RSDr, Magnitud::RSDf, Magnitud::HAkg, Magnitud::VV, Magnitud::DV, Magnitud::C,
  Magnitud::Al, Magnitud::Az, Magnitud::TR, Magnitud::TC, Magnitud::TH, Magnitud::HR, Magnitud::E,
  Magnitud::VE, Magnitud::CE, Magnitud::DN, Magnitud::Dr, Magnitud::Df, Magnitud::R, Magnitud::G};
// clang-format on

/// La fila de @p magnitud.
[[nodiscard]] constexpr const FichaMagnitud &Ficha(Magnitud magnitud) {
  return MAGNITUDES[static_cast<std::size_t>(magnitud)];
}

/// Texto dentro de los paréntesis exteriores de @p rotulo ("J/(kg K)"); vacío si no los tiene.
[[nodiscard]] constexpr std::string_view UnidadDeRotulo(std::string_view rotulo) {
  const std::size_t abre = rotulo.find('(');
  const std::size_t cierra = rotulo.rfind(')');
  if (abre == std::string_view::npos || cierra == std::string_view::npos || cierra < abre) return {};
  return rotulo.substr(abre + 1, cierra - abre - 1);
}

/// La unidad del rótulo de @p magnitud.
[[nodiscard]] constexpr std::string_view Unidad(Magnitud magnitud) {
  return UnidadDeRotulo(Ficha(magnitud).rotulo);
}

/// Se exporta si tiene columna: todas menos la humedad absoluta en g/kg.
[[nodiscard]] constexpr bool SeExporta(const FichaMagnitud &ficha) { return !ficha.columna.empty(); }

/// La ficha cuyo rótulo es exactamente @p rotulo; nula si no hay ninguna.
[[nodiscard]] const FichaMagnitud *BuscarPorRotulo(std::string_view rotulo);
/// La ficha de código @p codigo (mayúsculas y minúsculas cuentan: "DV" y "Dr"); nula si no hay ninguna.
[[nodiscard]] const FichaMagnitud *BuscarPorCodigo(std::string_view codigo);

} // namespace tesmo
