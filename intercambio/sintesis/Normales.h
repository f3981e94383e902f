#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace tesmo {

/// De dónde sale un grupo de cifras.
enum class ClaseCifra { Medida, Calculada, Estimada };

/// Medias de un mes; en cada una, su columna del fichero.
struct NormalesMes {
  double tmaxMedia = 0.0; ///< tmax_media_c: media de las máximas diarias [°C]
  double tminMedia = 0.0; ///< tmin_media_c: media de las mínimas diarias [°C]
  double sdTmax = 0.0; ///< sd_tmax_c: desviación de la máxima entre todos los días de todos los años [K]
  double sdTmin = 0.0; ///< sd_tmin_c: lo mismo de la mínima [K]
  double sdTmaxIntrames = 0.0; ///< sd_tmax_intrames_c: desviación de la máxima dentro de un mismo mes [K]
  double sdTminIntrames = 0.0; ///< sd_tmin_intrames_c: lo mismo de la mínima [K]
  double r1Tmax = 0.0;         ///< r1_tmax: correlación de la máxima de un día al siguiente, 0 a 0,99
  double r1Tmin = 0.0;         ///< r1_tmin: lo mismo de la mínima
  double rTmaxTmin = 0.0;      ///< r_tmax_tmin: correlación entre máxima y mínima del mismo día, −1 a 1
  double horaTmax = 0.0;       ///< hora_tmax_utc: hora media de la máxima [h UTC]
  double hrMedia = 0.0;        ///< hr_media_pct: humedad relativa media [%]
  double ghi = 0.0;            ///< ghi_kwh_m2_dia: radiación global horizontal media [kWh/m² al día]
  double viento = 0.0;         ///< viento_ms: velocidad media del viento [m/s]
  ClaseCifra claseTemperatura = ClaseCifra::Estimada; ///< clase_t y clase_sd, la menos segura de las dos
  ClaseCifra claseHumedad = ClaseCifra::Estimada;     ///< clase_hr
  ClaseCifra claseRadiacion = ClaseCifra::Estimada;   ///< clase_ghi
  ClaseCifra claseViento = ClaseCifra::Estimada;      ///< clase_viento
};

/// Una localidad con sus doce meses.
struct NormalesLocalidad {
  std::string nombre;    ///< localidad: sin comas, 49 bytes como mucho
  std::string provincia; ///< provincia: igual
  std::string capital;   ///< capital_referencia: igual
  std::string zona;      ///< zona: "COSTA" o "INTERIOR"
  double altitud = 0.0;  ///< alt_m [m]
  double latitud = 0.0;  ///< lat [°, norte positivo]
  double longitud = 0.0; ///< lon [°, este positivo]
  std::array<NormalesMes, 12> meses{};
};

/// Lee las normales de @p texto: CSV en UTF-8, separado por comas, con punto decimal, líneas en blanco o que
/// empiezan por '#' aparte, un encabezamiento y doce filas por localidad. Las columnas se buscan por su
/// nombre; las que sobran no se miran. Cada falta añade a @p errores "nombre:línea: qué pasa"; con alguna, lo
/// devuelto no sirve.
[[nodiscard]] std::vector<NormalesLocalidad> LeerNormales(std::string_view texto, const std::string &nombre,
                                                          std::vector<std::string> &errores);

} // namespace tesmo
