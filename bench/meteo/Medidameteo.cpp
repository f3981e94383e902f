#include "bench/meteo/Medidameteo.h"

#include "core/Ficheros.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <numbers>

namespace tesmo::medida {

namespace fs = std::filesystem;

namespace {

/// Un año en senos con los decimales de un .met corriente.
std::string TextoDeMuestra() {
  std::string texto = "Muestra\n36.84 -2.39 21.0 15.0\n";
  std::array<char, 256> linea{};
  for (int i = 0; i < HORAS_DEL_ANIO; ++i) {
    const FechaHora fecha = FechaDeIndice(i);
    const double dia = std::sin(2.0 * std::numbers::pi * (fecha.hora - 9) / 24.0);
    const double sol = std::max(0.0, dia);
    const int n = std::snprintf(
        linea.data(), linea.size(), "%d %d %d %.1f %.1f %.1f %.1f %.5f %.1f %.1f %.0f %.1f %.1f 0 0\n",
        fecha.mes, fecha.dia, fecha.hora, 15.0 + 10.0 * dia, 2.0 + 8.0 * dia, 600.0 * sol, 120.0 * sol,
        0.008 + 0.001 * dia, 65.0 - 20.0 * dia, 3.0 + dia, 180.0 + 90.0 * dia, 90.0 * dia, 90.0 - 60.0 * sol);
    texto.append(linea.data(), static_cast<std::size_t>(n));
  }
  return texto;
}

} // namespace

fs::path DirectorioTemporal() {
  const fs::path directorio = fs::temp_directory_path() / "tesmo-banco-meteo";
  fs::create_directories(directorio);
  return directorio;
}

std::string FicheroMet() {
  std::error_code error;
  for (const fs::directory_entry &entrada : fs::directory_iterator(fs::path(TESMO_BIN) / "Meteo", error)) {
    if (entrada.path().extension() == ".met") return TextoDeRuta(entrada.path());
  }
  const fs::path muestra = DirectorioTemporal() / "muestra.met";
  (void)EscribirFicheroEntero(muestra, TextoDeMuestra());
  return TextoDeRuta(muestra);
}

LeerMet AnioCargado() {
  LeerMet met;
  met.LeerFichero(FicheroMet());
  met.PonPeriodo(1, 1, 1, 12, 31, 24);
  return met;
}

} // namespace tesmo::medida
