#include "bench/comun/Mejorestiempos.h"
#include "core/Ficheros.h"
#include "core/Formato.h"
#include "intercambio/formatos/Lectura.h"
#include "intercambio/formatos/Montaje.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <string>
#include <thread>
#include <vector>

using namespace tesmo;

namespace {

namespace fs = std::filesystem;

/// Un EPW de 35 campos con los decimales de los corrientes: 1,4 millones de bytes.
std::string TextoEpw() {
  std::string texto = "LOCATION,Muestra,-,ESP,Hecho a mano,000000,37.18,-3.78,1.0,567.0\n"
                      "DESIGN CONDITIONS,0\nTYPICAL/EXTREME PERIODS,0\nGROUND TEMPERATURES,0\n"
                      "HOLIDAYS/DAYLIGHT SAVINGS,No,0,0,0\nCOMMENTS 1,\nCOMMENTS 2,\n"
                      "DATA PERIODS,1,1,Data,Sunday, 1/ 1,12/31\n";
  const PatronNumero centesimas("0.00");
  const auto numero = [&](double valor) {
    centesimas.Escribir(texto, valor, '.');
    texto += ',';
  };
  for (int i = 0; i < HORAS_DEL_ANIO; ++i) {
    const auto [mes, dia, hora] = FechaDeIndice(i);
    texto += "2005," + std::to_string(mes) + "," + std::to_string(dia) + "," + std::to_string(hora) +
             ",60,B8E7B8B8?9?0?0?0?0?0?0?0B8B8B8B8?0?0F8F8A7E7,";
    const double sol = std::max(0, 6 - std::abs(hora - 13));
    for (const double valor : {12.34 + sol, 7.89, 65.0 - sol, 95012.34, 0.0, 0.0, 301.25, sol * 120.5,
                               sol * 110.25, sol * 40.75, 999999.0, 999999.0, 999999.0, 9999.0, 252.0, 3.65})
      numero(valor);
    texto += "7,5,16.1,77777,9,999999999,139,0.0700,0,88,0.200,0.0,1.0\n";
  }
  return texto;
}

const std::string &Ruta() {
  static const std::string ruta = [] {
    const fs::path directorio = fs::temp_directory_path() / "tesmo-banco-intercambio";
    fs::create_directories(directorio);
    (void)EscribirFicheroEntero(directorio / "muestra.epw", TextoEpw());
    return TextoDeRuta(directorio / "muestra.epw");
  }();
  return ruta;
}

void Contar(benchmark::State &estado) {
  estado.SetItemsProcessed(estado.iterations());
  estado.SetBytesProcessed(estado.iterations() *
                           static_cast<std::int64_t>(fs::file_size(RutaDesdeTexto(Ruta()))));
}

void LeerLosBytes(benchmark::State &estado) {
  for (auto _ : estado) {
    const auto texto = LeerFicheroEntero(RutaDesdeTexto(Ruta()));
    benchmark::DoNotOptimize(texto->data());
  }
  Contar(estado);
}

void LeerElEpw(benchmark::State &estado) {
  for (auto _ : estado) {
    if (!LeerFicheroClima(Ruta()).SinErrores()) estado.SkipWithError("no se lee");
  }
  Contar(estado);
}

/// Cuatro años por núcleo: los lectores no comparten nada.
void LeerConTodosLosNucleos(benchmark::State &estado) {
  constexpr unsigned ANIOS_POR_NUCLEO = 4;
  const unsigned nucleos = std::max(1U, std::thread::hardware_concurrency());
  for (auto _ : estado) {
    std::vector<std::jthread> hilos;
    for (unsigned i = 0; i < nucleos; ++i) {
      hilos.emplace_back([] {
        for (unsigned k = 0; k < ANIOS_POR_NUCLEO; ++k)
          benchmark::DoNotOptimize(LeerFicheroClima(Ruta()).registros);
      });
    }
  }
  estado.SetItemsProcessed(estado.iterations() * nucleos * ANIOS_POR_NUCLEO);
}

/// Da la proporción al final.
class ConProporcion : public ConMejoresTiempos {
public:
  void Finalize() override {
    constexpr double MICROSEGUNDOS_POR_SEGUNDO = 1e6;
    std::printf("EPW por segundo y núcleo: %.0f\n", MICROSEGUNDOS_POR_SEGUNDO / Mejor("LeerElEpw"));
    std::printf("Leer el EPW / leer sus bytes: %.1f\n", Mejor("LeerElEpw") / Mejor("LeerLosBytes"));
  }
};

} // namespace

BENCHMARK(LeerLosBytes)->Unit(benchmark::kMicrosecond)->Repetitions(5);
BENCHMARK(LeerElEpw)->Unit(benchmark::kMicrosecond)->Repetitions(5);
BENCHMARK(LeerConTodosLosNucleos)->Unit(benchmark::kMicrosecond)->UseRealTime()->Repetitions(3);

int main(int argc, char **argv) {
  benchmark::Initialize(&argc, argv);
  ConProporcion informe;
  benchmark::RunSpecifiedBenchmarks(&informe);
  return 0;
}
