#include "intercambio/escritura/Textocsv.h"

#include "core/Formato.h"
#include "meteo/Leermet.h"
#include "psicro/Psicrometrico.h"
#include "solar/Posicionsolar.h"

#include <array>
#include <charconv>
#include <cmath>

namespace tesmo {

namespace {

constexpr std::size_t BYTES_POR_REGISTRO = 220;

float OCero(double valor) { return std::isfinite(valor) ? static_cast<float>(valor) : 0.0F; }

void Anadir(std::string &texto, float valor) {
  if (!std::isfinite(valor)) return;
  std::array<char, 32> bufer{};
  const auto fin = std::to_chars(bufer.data(), bufer.data() + bufer.size(), valor + 0.0F).ptr;
  texto.append(bufer.data(), fin);
}

/// Los motores con el año puesto y sus magnitudes derivadas.
void Derivar(const AnioSolar &anio, const SuperficieCsv &superficie, LeerMet &meteo) {
  const SitioMet sitio{OCero(anio.sitio.latitud), OCero(anio.sitio.longitud), OCero(anio.sitio.altitud)};
  meteo.PonAnio(sitio, SeriesDe(anio));
  meteo.PonTexto("Inclinación", FormatoG9(static_cast<double>(superficie.inclinacion)));
  meteo.PonTexto("Orientación", FormatoG9(static_cast<double>(superficie.orientacion)));
  meteo.PonTexto("Albedo", FormatoG9(static_cast<double>(superficie.albedo)));
  meteo.PonPeriodo(1, 1, 1, 12, 31, HORAS_DEL_DIA);
  Psicro carta;
  carta.ponAltitud(sitio.tercerDato);
  meteo.AsegurarDerivadas(carta.damePresion(), PosicionSolar());
}

} // namespace

SeriesLeidas SeriesDe(const AnioSolar &anio) {
  SeriesLeidas series;
  for (std::size_t s = 0; s < NUMERO_SERIES_LEIDAS; ++s) {
    SerieHoraria &serie = series[static_cast<SerieAlmacenada>(s)];
    for (std::size_t i = 0; i < serie.size(); ++i) serie[i] = static_cast<float>(anio.series[s].valores[i]);
  }
  return series;
}

std::string TextoCsv(const AnioSolar &anio, const SuperficieCsv &superficie) {
  LeerMet meteo;
  Derivar(anio, superficie, meteo);
  std::string texto = "mes,día,hora";
  std::array<SerieHoraria, NUMERO_MAGNITUDES_VISOR> columnas;
  for (std::size_t m = 0; m < columnas.size(); ++m) {
    texto.append(1, ',').append(MAGNITUDES[m].rotulo);
    columnas[m].resize(static_cast<std::size_t>(HORAS_DEL_ANIO));
    meteo.DameSerie(MAGNITUDES[m].rotulo, columnas[m].data());
  }
  texto += '\n';
  texto.reserve(static_cast<std::size_t>(HORAS_DEL_ANIO) * BYTES_POR_REGISTRO);
  for (std::size_t i = 0; i < static_cast<std::size_t>(HORAS_DEL_ANIO); ++i) {
    const FechaHora fecha = FechaDeIndice(static_cast<int>(i));
    texto += std::to_string(fecha.mes) + ',' + std::to_string(fecha.dia) + ',' + std::to_string(fecha.hora);
    for (const SerieHoraria &columna : columnas) {
      texto += ',';
      Anadir(texto, columna[i]);
    }
    texto += '\n';
  }
  return texto;
}

} // namespace tesmo
