#include "intercambio/sintesis/Azar.h"

#include <bit>
#include <cmath>
#include <numbers>

namespace tesmo {

namespace {

// Constantes de FNV-1a de 64 bits y de splitmix64, de sus autores.
constexpr std::uint64_t FNV_INICIO = 0xcbf29ce484222325U;
constexpr std::uint64_t FNV_PRIMO = 0x100000001b3U;
constexpr std::uint64_t SPLITMIX_PASO = 0x9e3779b97f4a7c15U;
constexpr std::uint64_t SPLITMIX_A = 0xbf58476d1ce4e5b9U;
constexpr std::uint64_t SPLITMIX_B = 0x94d049bb133111ebU;
/// Bits que caben en la mantisa de un double; los de menos peso se desechan.
constexpr int BITS_MANTISA = 53;

} // namespace

std::uint64_t Splitmix(std::uint64_t &estado) {
  estado += SPLITMIX_PASO;
  std::uint64_t z = estado;
  z = (z ^ (z >> 30U)) * SPLITMIX_A;
  z = (z ^ (z >> 27U)) * SPLITMIX_B;
  return z ^ (z >> 31U);
}

std::uint64_t ResumenFnv(std::string_view texto) {
  std::uint64_t resumen = FNV_INICIO;
  for (char c : texto) resumen = (resumen ^ static_cast<unsigned char>(c)) * FNV_PRIMO;
  return resumen;
}

Azar::Azar(std::string_view semilla) {
  std::uint64_t siembra = ResumenFnv(semilla);
  for (std::uint64_t &palabra : estado_) palabra = Splitmix(siembra);
}

std::uint64_t Azar::Siguiente() {
  auto &[a, b, c, d] = estado_;
  const std::uint64_t resultado = std::rotl(b * 5, 7) * 9;
  const std::uint64_t desplazado = b << 17U;
  c ^= a;
  d ^= b;
  b ^= c;
  a ^= d;
  c ^= desplazado;
  d = std::rotl(d, 45);
  return resultado;
}

double Azar::Uniforme() {
  // Medio escalón por encima de cero: ni 0 ni 1, que romperían los logaritmos.
  constexpr double ESCALON = 1.0 / static_cast<double>(1ULL << (BITS_MANTISA - 1));
  return (static_cast<double>(Siguiente() >> (64 - BITS_MANTISA + 1)) + 0.5) * ESCALON;
}

double Azar::Normal() {
  const double radio = std::sqrt(-2.0 * std::log(Uniforme()));
  return radio * std::cos(2.0 * std::numbers::pi * Uniforme());
}

double ProbabilidadNormal(double x) { return 0.5 * std::erfc(-x / std::numbers::sqrt2); }

std::vector<double> SerieAutorregresiva(Azar &azar, std::size_t n, double r1) {
  std::vector<double> ruido(n);
  for (double &r : ruido) r = azar.Normal();
  const double innovacion = std::sqrt(1.0 - r1 * r1);
  std::vector<double> serie(n);
  double anterior = 0.0;
  // La primera vuelta sólo da a la segunda un valor de arranque que la cierra sobre sí misma.
  for (int vuelta = 0; vuelta < 2; ++vuelta) {
    for (std::size_t i = 0; i < n; ++i) anterior = serie[i] = r1 * anterior + innovacion * ruido[i];
  }
  return serie;
}

} // namespace tesmo
