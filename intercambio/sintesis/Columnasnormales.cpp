#include "intercambio/sintesis/Columnasnormales.h"

namespace tesmo {

// Los límites no son climáticos: dejan fuera la cifra mal copiada o de otra unidad, y lo que haría perder el
// sentido a la síntesis (un proceso autorregresivo pide una correlación menor que 1; el sol ha de salir
// todos los días).

std::span<const ColumnaMes> ColumnasMes() {
  static constexpr ColumnaMes TABLA[] = {
      {"tmax_media_c", -40.0, 55.0, &NormalesMes::tmaxMedia},
      {"tmin_media_c", -50.0, 45.0, &NormalesMes::tminMedia},
      {"sd_tmax_c", 0.1, 15.0, &NormalesMes::sdTmax},
      {"sd_tmin_c", 0.1, 15.0, &NormalesMes::sdTmin},
      {"sd_tmax_intrames_c", 0.1, 15.0, &NormalesMes::sdTmaxIntrames},
      {"sd_tmin_intrames_c", 0.1, 15.0, &NormalesMes::sdTminIntrames},
      {"r1_tmax", 0.0, 0.99, &NormalesMes::r1Tmax},
      {"r1_tmin", 0.0, 0.99, &NormalesMes::r1Tmin},
      {"r_tmax_tmin", -1.0, 1.0, &NormalesMes::rTmaxTmin},
      {"hora_tmax_utc", 8.0, 20.0, &NormalesMes::horaTmax},
      {"hr_media_pct", 5.0, 98.0, &NormalesMes::hrMedia},
      {"ghi_kwh_m2_dia", 0.1, 10.0, &NormalesMes::ghi},
      {"viento_ms", 0.1, 30.0, &NormalesMes::viento},
  };
  return TABLA;
}

std::span<const ColumnaSitio> ColumnasSitio() {
  static constexpr ColumnaSitio TABLA[] = {
      {"alt_m", -500.0, 5000.0, &NormalesLocalidad::altitud},
      {"lat", -60.0, 60.0, &NormalesLocalidad::latitud},
      {"lon", -180.0, 180.0, &NormalesLocalidad::longitud},
  };
  return TABLA;
}

std::span<const ColumnaTexto> ColumnasTexto() {
  static const ColumnaTexto TABLA[] = {
      {COLUMNA_LOCALIDAD, &NormalesLocalidad::nombre},
      {"provincia", &NormalesLocalidad::provincia},
      {"capital_referencia", &NormalesLocalidad::capital},
      {"zona", &NormalesLocalidad::zona},
  };
  return TABLA;
}

std::span<const ColumnaClase> ColumnasClase() {
  // La temperatura vale lo que su cifra menos segura: clase_sd se lee después y sólo puede rebajarla.
  static constexpr ColumnaClase TABLA[] = {
      {"clase_t", &NormalesMes::claseTemperatura}, {"clase_sd", &NormalesMes::claseTemperatura},
      {"clase_hr", &NormalesMes::claseHumedad},    {"clase_ghi", &NormalesMes::claseRadiacion},
      {"clase_viento", &NormalesMes::claseViento},
  };
  return TABLA;
}

} // namespace tesmo
