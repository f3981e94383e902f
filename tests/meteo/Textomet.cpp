#include "tests/meteo/Textomet.h"

#include <bit>
#include <cstdint>
#include <cstdio>

namespace tesmo::prueba {

namespace {

constexpr int PRIMERA_COLUMNA = 4;

bool MismosBits(float a, float b) {
  return std::bit_cast<std::uint32_t>(a) == std::bit_cast<std::uint32_t>(b);
}

} // namespace

float ValorMet(int columna, int i) { return static_cast<float>(columna * 100 + i % 97) + 0.25F; }

std::string RegistroMet(int i) {
  std::string registro = "1 1 1";
  for (int columna = PRIMERA_COLUMNA; columna <= 13; ++columna) {
    registro += ' ' + std::to_string(columna * 100 + i % 97) + ".25";
  }
  return registro + " 0 0";
}

std::string TextoMet(int registros, const std::string &segundaLinea) {
  std::string texto = "Lugar de prueba\n" + segundaLinea + "\n";
  for (int i = 0; i < registros; ++i) texto += RegistroMet(i) + "\n";
  return texto;
}

int LeerConC(const std::string &texto, SitioMet &sitio, SeriesLeidas &series) {
  std::string copia = texto;
  std::FILE *f = ::fmemopen(copia.data(), copia.size(), "r");
  char linea[300];
  (void)!std::fgets(linea, sizeof linea, f);
  (void)!std::fscanf(f, "%f %f %f\n", &sitio.latitud, &sitio.longitud, &sitio.tercerDato);
  (void)!std::fgets(linea, sizeof linea, f);
  int completos = 0;
  for (std::size_t i = 0; i < static_cast<std::size_t>(HORAS_DEL_ANIO); ++i) {
    float x = 0;
    const auto d = [&](int c) { return &series[static_cast<SerieAlmacenada>(c)][i]; };
    const int leidos = std::fscanf(f, "%f %f %f %f %f %f %f %f %f %f %f %f %f %f %f\n", &x, &x, &x, d(0),
                                   d(1), d(2), d(3), d(4), d(5), d(6), d(7), d(8), d(9), &x, &x);
    if (leidos == 15) ++completos;
    if (leidos == EOF) break;
  }
  std::fclose(f);
  return completos;
}

bool MismosBits(const SitioMet &a, const SeriesLeidas &series, const SitioMet &b, const SeriesLeidas &otras) {
  if (!MismosBits(a.latitud, b.latitud) || !MismosBits(a.longitud, b.longitud) ||
      !MismosBits(a.tercerDato, b.tercerDato)) {
    return false;
  }
  for (std::size_t c = 0; c < NUMERO_SERIES_LEIDAS; ++c) {
    const auto serie = static_cast<SerieAlmacenada>(c);
    for (std::size_t i = 0; i < static_cast<std::size_t>(HORAS_DEL_ANIO); ++i) {
      if (!MismosBits(series[serie][i], otras[serie][i])) return false;
    }
  }
  return true;
}

} // namespace tesmo::prueba
