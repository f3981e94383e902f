#include "intercambio/sintesis/Escriturameteo.h"

#include "intercambio/comun/Nombrecorto.h"
#include "intercambio/escritura/Fichacatalogo.h"
#include "intercambio/escritura/Textomet.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tesmo {

namespace {

/// Meridiano de la hora oficial peninsular (Europa central) [°, este positivo].
constexpr double MERIDIANO_OFICIAL = 15.0;
constexpr double KILOJULIOS_POR_KWH = 3600.0;

bool Estimada(const NormalesLocalidad &localidad, ClaseCifra NormalesMes::*clase) {
  return std::any_of(localidad.meses.begin(), localidad.meses.end(),
                     [clase](const NormalesMes &mes) { return mes.*clase == ClaseCifra::Estimada; });
}

std::string Estimadas(const NormalesLocalidad &localidad) {
  struct Grupo {
    ClaseCifra NormalesMes::*clase;
    const char *nombre;
  };
  constexpr std::array<Grupo, 4> GRUPOS{{{&NormalesMes::claseTemperatura, "temperatura"},
                                         {&NormalesMes::claseHumedad, "humedad"},
                                         {&NormalesMes::claseRadiacion, "radiación"},
                                         {&NormalesMes::claseViento, "viento"}}};
  std::string texto;
  for (const Grupo &grupo : GRUPOS) {
    if (Estimada(localidad, grupo.clase))
      texto += (texto.empty() ? "; medias estimadas: " : ", ") + std::string(grupo.nombre);
  }
  return texto;
}

std::vector<std::string> Provincias(const std::vector<NormalesLocalidad> &localidades) {
  std::vector<std::string> provincias;
  for (const NormalesLocalidad &localidad : localidades) {
    if (std::find(provincias.begin(), provincias.end(), localidad.provincia) == provincias.end()) {
      provincias.push_back(localidad.provincia);
    }
  }
  return provincias;
}

FichaLocalidad Ficha(const NormalesLocalidad &localidad) {
  return {localidad.nombre,    NombreCorto(localidad.nombre),
          localidad.provincia, localidad.capital,
          localidad.capital,   FicheroMet(localidad),
          localidad.latitud,   localidad.longitud,
          MERIDIANO_OFICIAL,   localidad.altitud};
}

/// Doce cifras, una de cada mes.
template <typename Cifra>
ValoresPorMes Fila(const NormalesLocalidad &localidad, Cifra cifra) {
  ValoresPorMes fila{};
  for (std::size_t mes = 0; mes < MESES; ++mes) fila[mes] = cifra(localidad.meses[mes]);
  return fila;
}

FichaGdr FichaDeDiasExtremos(const NormalesLocalidad &localidad) {
  FichaGdr ficha;
  ficha.corto = NombreCorto(localidad.nombre);
  ficha.zona = localidad.zona;
  ficha.latitud = localidad.latitud;
  ficha.longitud = localidad.longitud;
  ficha.meridiano = MERIDIANO_OFICIAL;
  ficha.altitud = localidad.altitud;
  ficha.maxima = Fila(localidad, [](const NormalesMes &mes) { return mes.tmaxMedia; });
  ficha.minima = Fila(localidad, [](const NormalesMes &mes) { return mes.tminMedia; });
  ficha.desviacionMaxima = Fila(localidad, [](const NormalesMes &mes) { return mes.sdTmax; });
  ficha.desviacionMinima = Fila(localidad, [](const NormalesMes &mes) { return mes.sdTmin; });
  ficha.radiacion =
      Fila(localidad, [](const NormalesMes &mes) { return std::round(mes.ghi * KILOJULIOS_POR_KWH); });
  ficha.sexta = Fila(localidad, [](const NormalesMes &mes) { return mes.hrMedia; });
  return ficha;
}

} // namespace

std::string FicheroMet(const NormalesLocalidad &localidad) { return NombreCorto(localidad.nombre) + ".met"; }

std::string TextoMetSintetico(const NormalesLocalidad &localidad, const AnioSintetico &anio) {
  CabeceraMet cabecera;
  cabecera.primera = std::string(MARCA_SINTESIS) + " (no es un año medido): " + localidad.nombre + ", " +
                     localidad.provincia + "; hecho de medias mensuales publicadas" + Estimadas(localidad);
  cabecera.latitud = localidad.latitud;
  cabecera.longitud = localidad.longitud;
  cabecera.altitud = localidad.altitud;
  cabecera.meridiano = MERIDIANO_OFICIAL;
  return TextoMet(cabecera, {anio.ts, anio.tc, anio.rdir, anio.rdif, anio.w, anio.hr, anio.vv, anio.dv,
                             anio.acimut, anio.cenit});
}

std::string TextoLocalidades(const std::vector<NormalesLocalidad> &localidades) {
  std::string texto;
  for (const std::string &provincia : Provincias(localidades)) {
    std::string lineas;
    int numero = 0;
    for (const NormalesLocalidad &localidad : localidades) {
      if (localidad.provincia != provincia) continue;
      lineas += LineaDeLocalidad(Ficha(localidad)) + '\n';
      ++numero;
    }
    texto += std::to_string(numero) + '\n' + lineas;
  }
  return texto;
}

std::string TextoGdr(const std::vector<NormalesLocalidad> &localidades) {
  std::string texto;
  for (const NormalesLocalidad &localidad : localidades) {
    texto += TextoRegistroGdr(FichaDeDiasExtremos(localidad));
  }
  return texto;
}

} // namespace tesmo
