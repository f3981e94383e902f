// Ninguna derivación pide memoria por hora: un año entero pide lo mismo que una sola hora.

#include "meteo/Derivacionespsicrometricas.h"
#include "meteo/Derivacionessolares.h"
#include "meteo/Estadisticas.h"
#include "solar/Posicionsolar.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <new>

namespace {

long peticiones = 0;

void *Pedir(std::size_t bytes) {
  ++peticiones;
  if (void *memoria = std::malloc(bytes != 0 ? bytes : 1)) return memoria;
  throw std::bad_alloc();
}

} // namespace

void *operator new(std::size_t bytes) { return Pedir(bytes); }
void *operator new[](std::size_t bytes) { return Pedir(bytes); }
void operator delete(void *memoria) noexcept { std::free(memoria); }
void operator delete[](void *memoria) noexcept { std::free(memoria); }
void operator delete(void *memoria, std::size_t) noexcept { std::free(memoria); }
void operator delete[](void *memoria, std::size_t) noexcept { std::free(memoria); }

namespace tesmo {
namespace {

constexpr TramoHoras ANIO{0, HORAS_DEL_ANIO - 1};
constexpr TramoHoras UNA_HORA{0, 0};

template <typename Funcion>
long Contar(Funcion funcion) {
  const long antes = peticiones;
  funcion();
  return peticiones - antes;
}

class Memoria : public ::testing::Test {
protected:
  Memoria() {
    leidas_[SerieAlmacenada::TemperaturaSeca].assign(HORAS_DEL_ANIO, 22.0F);
    leidas_[SerieAlmacenada::HumedadAbsoluta].assign(HORAS_DEL_ANIO, 0.009F);
    leidas_[SerieAlmacenada::RadiacionDifusa].assign(HORAS_DEL_ANIO, 50.0F);
    leidas_[SerieAlmacenada::Cenit].assign(HORAS_DEL_ANIO, 40.0F);
    derivadas_.Reservar(HORAS_DEL_ANIO);
  }
  SeriesLeidas leidas_;
  SeriesDerivadas derivadas_;
};

TEST_F(Memoria, ElAireNoPidePorHora) {
  const auto derivar = [&](TramoHoras tramo) {
    return Contar([&] { DerivarPsicrometricas(leidas_, derivadas_, tramo, 101325.0F); });
  };
  EXPECT_EQ(derivar(ANIO), derivar(UNA_HORA));
}

TEST_F(Memoria, ElSolNoPidePorHora) {
  const PosicionSolar horizonte(36.84F, 1, 1, 12.0F);
  const auto derivar = [&](TramoHoras tramo) {
    return Contar([&] {
      (void)DerivarSolares(leidas_, derivadas_, tramo, {1, 1, 1}, {30, 20, 0.2F}, 36.84F, horizonte);
    });
  };
  EXPECT_EQ(derivar(ANIO), derivar(UNA_HORA));
}

TEST_F(Memoria, LasEstadisticasNoPidenPorHora) {
  const auto calcular = [&](TramoHoras tramo) {
    return Contar([&] {
      (void)CalcularEstadisticas(Magnitud::TS, leidas_, derivadas_, {{1, 1, 1}, tramo, 1, 24, 15.0F, 25.0F});
    });
  };
  EXPECT_EQ(calcular(ANIO), calcular(UNA_HORA));
}

TEST_F(Memoria, ElVectorDelSolNoPideNada) {
  PosicionSolar sol(36.84F, 1, 1, 12.0F);
  EXPECT_EQ(Contar([&] { (void)sol.CalcularVectorSolar(36.84F, 6, 21, 10.5F); }), 0);
}

// Que la cuenta cuenta: once series que crecen son once peticiones.
TEST_F(Memoria, CadaSerieQueCreceEsUnaPeticion) {
  EXPECT_EQ(Contar([&] { derivadas_.Reservar(HORAS_DEL_ANIO + 1); }), 11);
}

} // namespace
} // namespace tesmo
