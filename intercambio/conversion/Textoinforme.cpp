#include "intercambio/conversion/Aniosolar.h"
#include "intercambio/reloj/Detectorreloj.h"
#include "intercambio/reloj/Textoreloj.h"

#include <cmath>

namespace tesmo {

namespace {

constexpr std::array<const char *, NUMERO_SERIES_LEIDAS> NOMBRES{
    "temperatura seca", "temperatura de cielo", "directa horizontal",   "difusa horizontal",
    "humedad absoluta", "humedad relativa",     "velocidad del viento", "dirección del viento",
    "acimut solar",     "cenit solar"};
constexpr double CIEN = 100.0;

std::string De(const char *que, const AntesDespues &cifra, const char *patron, const char *unidad) {
  return std::string(que) + " " + Cifra(cifra.antes, patron) + " → " + Cifra(cifra.despues, patron) + unidad;
}

std::string LineaDeRadiacion(const char *nombre, const CambioRadiacion &cambio) {
  return std::string("Radiación ") + nombre + ": " + De("año", cambio.energia, "0.0", " kWh/m²") + ", " +
         De("máxima", cambio.maxima, "0", " W/m²") + "; el día que más cambia, " +
         Cifra(CIEN * cambio.mayorDesvioDiario, "0.000") + " %.";
}

std::string LineaDeMagnitud(const char *nombre, const CambioMagnitud &cambio, const char *unidad) {
  return std::string(nombre) + ": " + De("máxima", cambio.maxima, "0.0", unidad) + ", " +
         De("mínima", cambio.minima, "0.0", unidad) + ", " + De("media", cambio.media, "0.00", unidad) + ".";
}

std::string LineaDeCuenta(const char *nombre, const CuentaProcedencias &cuenta) {
  return "De " + std::to_string(HORAS_DEL_ANIO) + " horas de " + nombre + ": " +
         std::to_string(cuenta.copiadas) + " copiadas, " + std::to_string(cuenta.calculadas) +
         " calculadas, " + std::to_string(cuenta.inventadas) + " inventadas.";
}

} // namespace

std::vector<std::string> TextoInforme(const InformeConversion &informe) {
  std::vector<std::string> lineas{
      "Reloj: " + TextoReloj(informe.reloj) +
      (informe.intacto ? ". Ya es la hora de los cálculos: nada se movió." : ".")};
  if (!informe.intacto) {
    lineas.push_back(LineaDeMagnitud("Temperatura seca", informe.temperatura, " °C"));
    lineas.push_back(LineaDeMagnitud("Humedad relativa", informe.humedadRelativa, " %"));
    lineas.push_back(LineaDeMagnitud("Velocidad del viento", informe.viento, " m/s"));
    lineas.push_back(LineaDeRadiacion("global horizontal", informe.global));
    lineas.push_back(LineaDeRadiacion("directa horizontal", informe.directa));
    lineas.push_back(LineaDeRadiacion("difusa horizontal", informe.difusa));
  }
  if (!std::isnan(informe.cierre.despues)) {
    lineas.push_back("Cierre del haz (global − difusa − directa normal · cos z, media cuadrática): " +
                     De("", informe.cierre, "0.0", " W/m²").substr(1) + ".");
  }
  for (std::size_t s = 0; s < NOMBRES.size(); ++s)
    lineas.push_back(LineaDeCuenta(NOMBRES[s], informe.cuentas[s]));
  lineas.insert(lineas.end(), informe.avisos.begin(), informe.avisos.end());
  return lineas;
}

} // namespace tesmo
