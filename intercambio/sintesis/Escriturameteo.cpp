#include "intercambio/sintesis/Escriturameteo.h"

#include "core/Formato.h"
#include "intercambio/sintesis/Nombrecorto.h"

#include <algorithm>
#include <array>

namespace tesmo {

namespace {

/// Meridiano de la hora oficial peninsular (Europa central) [°, este positivo].
constexpr double MERIDIANO_OFICIAL = 15.0;
/// Los meses se reparten con esta cola: la clase extrema de los días tiene una probabilidad de
/// 1/(días · factor) en el cálculo de los días extremos.
constexpr int FACTOR_DE_COLA = 10;
constexpr double KILOJULIOS_POR_KWH = 3600.0;
/// Bytes que ocupa, más o menos, un registro: evita crecer a tientas.
constexpr std::size_t BYTES_POR_REGISTRO = 96;

std::string Numero(double valor) { return FormatoGeneral15(valor, '.'); }

/// Una columna de magnitud: de dónde sale y con qué decimales se escribe.
struct ColumnaMet {
  SerieHoras AnioSintetico::*serie;
  PatronNumero patron;
};

const std::array<ColumnaMet, 10> &ColumnasMet() {
  static const std::array<ColumnaMet, 10> TABLA{{
      {&AnioSintetico::ts, PatronNumero("0.00")},
      {&AnioSintetico::tc, PatronNumero("0.00")},
      {&AnioSintetico::rdir, PatronNumero("0.0")},
      {&AnioSintetico::rdif, PatronNumero("0.0")},
      {&AnioSintetico::w, PatronNumero("0.0000000")},
      {&AnioSintetico::hr, PatronNumero("0.00")},
      {&AnioSintetico::vv, PatronNumero("0.0")},
      {&AnioSintetico::dv, PatronNumero("0")},
      {&AnioSintetico::acimut, PatronNumero("0.0#")},
      {&AnioSintetico::cenit, PatronNumero("0.0#")},
  }};
  return TABLA;
}

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

void EscribirRegistro(std::string &texto, const AnioSintetico &anio, std::size_t i) {
  const std::size_t dia = i / HORAS_POR_DIA;
  const std::size_t mes = MesDe(dia);
  texto += std::to_string(mes + 1) + ' ' + std::to_string(dia - PrimerDiaDe(mes) + 1) + ' ' +
           std::to_string(i % HORAS_POR_DIA + 1);
  for (const ColumnaMet &columna : ColumnasMet()) {
    texto += ' ';
    columna.patron.Escribir(texto, (anio.*columna.serie)[i], '.');
  }
  texto += " 0 0\n";
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

std::string LineaDeLocalidad(const NormalesLocalidad &localidad) {
  return localidad.nombre + ',' + NombreCorto(localidad.nombre) + ',' + localidad.provincia + ',' +
         localidad.capital + ',' + localidad.capital + ',' + FicheroMet(localidad) + ',' +
         Numero(localidad.latitud) + ',' + Numero(localidad.longitud) + ',' + Numero(MERIDIANO_OFICIAL) +
         ',' + Numero(localidad.altitud) + ",0\n";
}

/// Una línea de doce cifras, enero primero.
template <typename Cifra>
void EscribirFila(std::string &texto, const NormalesLocalidad &localidad, Cifra cifra) {
  for (std::size_t mes = 0; mes < MESES; ++mes) {
    if (mes > 0) texto += ' ';
    texto += cifra(localidad.meses[mes]);
  }
  texto += '\n';
}

std::string KilojuliosTexto(double kilovatiosHora) {
  static const PatronNumero ENTERO("0");
  std::string texto;
  ENTERO.Escribir(texto, kilovatiosHora * KILOJULIOS_POR_KWH, '.');
  return texto;
}

} // namespace

std::string FicheroMet(const NormalesLocalidad &localidad) { return NombreCorto(localidad.nombre) + ".met"; }

std::string TextoMet(const NormalesLocalidad &localidad, const AnioSintetico &anio) {
  std::string texto;
  texto.reserve(HORAS * BYTES_POR_REGISTRO);
  texto += std::string(MARCA_SINTESIS) + " (no es un año medido): " + localidad.nombre + ", " +
           localidad.provincia + "; hecho de medias mensuales publicadas" + Estimadas(localidad) + '\n';
  texto += Numero(localidad.latitud) + ' ' + Numero(localidad.longitud) + ' ' + Numero(localidad.altitud) +
           " 15.0\n";
  for (std::size_t i = 0; i < HORAS; ++i) EscribirRegistro(texto, anio, i);
  return texto;
}

std::string TextoLocalidades(const std::vector<NormalesLocalidad> &localidades) {
  std::string texto;
  for (const std::string &provincia : Provincias(localidades)) {
    std::string lineas;
    int numero = 0;
    for (const NormalesLocalidad &localidad : localidades) {
      if (localidad.provincia != provincia) continue;
      lineas += LineaDeLocalidad(localidad);
      ++numero;
    }
    texto += std::to_string(numero) + '\n' + lineas;
  }
  return texto;
}

std::string TextoGdr(const std::vector<NormalesLocalidad> &localidades) {
  std::string texto;
  for (const NormalesLocalidad &localidad : localidades) {
    texto += NombreCorto(localidad.nombre) + ' ' + localidad.zona + ' ' + Numero(localidad.latitud) + ' ' +
             Numero(localidad.longitud) + ' ' + Numero(MERIDIANO_OFICIAL) + ' ' +
             std::to_string(FACTOR_DE_COLA) + " ALT=" + Numero(localidad.altitud) + '\n';
    EscribirFila(texto, localidad, [](const NormalesMes &mes) { return Numero(mes.tmaxMedia); });
    EscribirFila(texto, localidad, [](const NormalesMes &mes) { return Numero(mes.tminMedia); });
    EscribirFila(texto, localidad, [](const NormalesMes &mes) { return Numero(mes.sdTmax); });
    EscribirFila(texto, localidad, [](const NormalesMes &mes) { return Numero(mes.sdTmin); });
    EscribirFila(texto, localidad, [](const NormalesMes &mes) { return KilojuliosTexto(mes.ghi); });
    EscribirFila(texto, localidad, [](const NormalesMes &mes) { return Numero(mes.hrMedia); });
  }
  return texto;
}

} // namespace tesmo
