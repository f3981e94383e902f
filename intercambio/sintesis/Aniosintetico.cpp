#include "intercambio/sintesis/Aniosintetico.h"

#include "intercambio/sintesis/Cielosintetico.h"
#include "intercambio/sintesis/Claridad.h"
#include "intercambio/sintesis/Humedadsintetica.h"
#include "intercambio/sintesis/Radiacionhoraria.h"
#include "intercambio/sintesis/Temperaturahoraria.h"
#include "intercambio/sintesis/Vientosintetico.h"
#include "psicro/Atmosfera.h"

#include <utility>

namespace tesmo {

AnioSintetico GenerarAnio(const NormalesLocalidad &localidad) {
  Azar azarTemperatura(localidad.nombre + "/temperatura");
  Azar azarClaridad(localidad.nombre + "/claridad");
  Azar azarViento(localidad.nombre + "/viento");
  Azar azarDireccion(localidad.nombre + "/direccion");

  SolDelAnio sol = CalcularSolDelAnio(localidad.latitud);
  const TemperaturasDiarias dias = GenerarTemperaturasDiarias(localidad, azarTemperatura);
  const SerieDias claridad = GenerarClaridad(localidad, sol, dias, azarClaridad);
  RadiacionSintetica radiacion = GenerarRadiacion(claridad, sol);
  AnioSintetico anio;
  anio.ts = GenerarTemperaturasHorarias(dias, localidad, sol);
  HumedadHoraria humedad = GenerarHumedad(anio.ts, dias, localidad, sol, PresionEnAltitud(localidad.altitud));
  anio.tc = GenerarTemperaturaDeCielo(anio.ts, humedad.rocio, claridad);
  VientoHorario viento = GenerarViento(localidad, azarViento, azarDireccion);
  anio.rdir = std::move(radiacion.directa);
  anio.rdif = std::move(radiacion.difusa);
  anio.w = std::move(humedad.absoluta);
  anio.hr = std::move(humedad.relativa);
  anio.vv = std::move(viento.velocidad);
  anio.dv = std::move(viento.direccion);
  anio.acimut = std::move(sol.acimut);
  anio.cenit = std::move(sol.cenit);
  return anio;
}

ValoresPorMes ClaridadesPedidas(const NormalesLocalidad &localidad) {
  const SolDelAnio sol = CalcularSolDelAnio(localidad.latitud);
  ValoresPorMes claridades{};
  for (std::size_t mes = 0; mes < MESES; ++mes) {
    claridades[mes] = localidad.meses[mes].ghi / MediaDelMes(sol.extraterrestre, mes);
  }
  return claridades;
}

} // namespace tesmo
