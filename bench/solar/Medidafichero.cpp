#include "core/Calendario.h"
#include "core/Ficheros.h"
#include "solar/Ficheroanual.h"
#include "solar/Posicionsolar.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <filesystem>
#include <unistd.h>

using namespace tesmo;

namespace {

constexpr float LATITUD = 36.84F;
constexpr int MESES = 12;

std::filesystem::path FicheroDeTrabajo() {
  return std::filesystem::temp_directory_path() / ("banco_solar_" + std::to_string(getpid()) + ".txt");
}

/// Llama a @p escribir con mes, hora y ángulos de cada hora del año, en el orden del fichero.
template <typename Escribir>
void RecorrerAnio(Escribir &&escribir) {
  PosicionSolar sol(LATITUD, 1, 1, 12.0F);
  for (int mes = 1; mes <= MESES; ++mes) {
    for (int dia = 1; dia <= DiasDelMes(mes); ++dia) {
      for (int hora = 1; hora <= HORAS_DEL_DIA; ++hora) {
        escribir(mes, hora, sol.CalcularPosicion(LATITUD, mes, dia, static_cast<float>(hora) + 0.5F));
      }
    }
  }
}

/// La referencia: una llamada a fprintf por línea, con el cálculo hora a hora.
void ConFprintf(benchmark::State &state) {
  const std::filesystem::path ruta = FicheroDeTrabajo();
  for (auto _ : state) {
    std::FILE *fichero = std::fopen(ruta.c_str(), "w");
    std::fprintf(fichero, "Latitud = %f\n", static_cast<double>(LATITUD));
    RecorrerAnio([&](int mes, int hora, const AngulosSolares &a) {
      std::fprintf(fichero, "%d %d %d %f %f %f\n", mes, hora, hora, static_cast<double>(a.acimut),
                   static_cast<double>(a.altura), static_cast<double>(a.cenit));
    });
    std::fclose(fichero);
  }
  std::filesystem::remove(ruta);
}

void FicheroAnual(benchmark::State &state) {
  const std::filesystem::path ruta = FicheroDeTrabajo();
  for (auto _ : state) benchmark::DoNotOptimize(EscribirFicheroAnual(LATITUD, ruta.string()));
  std::filesystem::remove(ruta);
}

/// Las partes: sólo el texto, sólo las posiciones, sólo llevar el texto a disco.
void SoloElTexto(benchmark::State &state) {
  for (auto _ : state) benchmark::DoNotOptimize(TextoAnual(LATITUD));
}

void SoloLasPosiciones(benchmark::State &state) {
  for (auto _ : state) {
    float suma = 0.0F;
    RecorrerAnio([&](int, int, const AngulosSolares &a) { suma += a.acimut; });
    benchmark::DoNotOptimize(suma);
  }
}

void SoloElDisco(benchmark::State &state) {
  const std::filesystem::path ruta = FicheroDeTrabajo();
  const std::string texto = TextoAnual(LATITUD);
  for (auto _ : state) benchmark::DoNotOptimize(EscribirFicheroEntero(ruta, texto));
  std::filesystem::remove(ruta);
}

} // namespace

BENCHMARK(ConFprintf)->Unit(benchmark::kMillisecond);
BENCHMARK(FicheroAnual)->Unit(benchmark::kMillisecond);
BENCHMARK(SoloElTexto)->Unit(benchmark::kMillisecond);
BENCHMARK(SoloLasPosiciones)->Unit(benchmark::kMillisecond);
BENCHMARK(SoloElDisco)->Unit(benchmark::kMillisecond);
