#include "psicro/Psicrometrico.h"

#include "psicro/Atmosfera.h"
#include "psicro/Constantes.h"

namespace tesmo {

namespace {

constexpr ColorBgr FUCSIA = 0xFF00FF;
constexpr ColorBgr ROJO = 0x0000FF;
constexpr ColorBgr NEGRO = 0x000000;
constexpr ColorBgr VERDE_AZULADO = 0x808000;
constexpr ColorBgr GRANATE = 0x000080;

/// En el orden de Familia.
constexpr std::array<AspectoFamilia, NUMERO_FAMILIAS> ASPECTO_INICIAL{{
    {{0.0F, 50.0F, 5.0F}, FUCSIA, true},
    {{0.001F, 0.03F, 0.001F}, ROJO, true},
    {{0.0F, 120000.0F, 10000.0F}, NEGRO, true},
    {{0.0F, 100.0F, 10.0F}, VERDE_AZULADO, true},
    {{0.74F, 0.93F, 0.01F}, GRANATE, true},
}};

} // namespace

Psicro::Psicro() : ObjetoBase("Psicro"), presion_(aire::PRESION_NORMAL), familias_(ASPECTO_INICIAL) {}

Psicro::~Psicro() = default;

void Psicro::ponVista(std::int32_t desplazamientoX, std::int32_t desplazamientoY, std::int32_t vista3,
                      std::int32_t vista4, std::int8_t zoom) {
  vista_ = {desplazamientoX, desplazamientoY, vista3, vista4, zoom};
}

void Psicro::ponAltitud(float z) { presion_ = static_cast<float>(PresionEnAltitud(static_cast<double>(z))); }

void Psicro::ponPresion(float presion) { presion_ = presion; }

float Psicro::dameParametro(int i) const {
  constexpr std::array<Familia, NUMERO_FAMILIAS> ORDEN{Familia::H, Familia::HR, Familia::T, Familia::W,
                                                       Familia::VE};
  constexpr int POR_FAMILIA = 3;
  constexpr int INDICE_PRESION = POR_FAMILIA * static_cast<int>(NUMERO_FAMILIAS);
  if (i == INDICE_PRESION) return presion_;
  if (i < 0 || i > INDICE_PRESION) return -1.0F;
  const Rango &rango = dameRango(ORDEN[static_cast<std::size_t>(i / POR_FAMILIA)]);
  const std::array<float, POR_FAMILIA> valores{rango.maximo, rango.minimo, rango.paso};
  return valores[static_cast<std::size_t>(i % POR_FAMILIA)];
}

void Psicro::ponTamano(float ancho, float alto) {
  ancho_ = ancho;
  alto_ = alto;
}

float Psicro::x(double t) const {
  return static_cast<float>(static_cast<double>(ancho_) / dameRango(Familia::T).maximo * t);
}

float Psicro::y(double w) const {
  const double wMax = dameRango(Familia::W).maximo;
  const auto humedad = static_cast<double>(static_cast<float>(w)); // wMax también es de 32 bits
  return static_cast<float>(-static_cast<double>(alto_) / wMax * (humedad - wMax));
}

float Psicro::t(std::int32_t x) const {
  return static_cast<float>(static_cast<double>(x) * dameRango(Familia::T).maximo / ancho_);
}

float Psicro::w(std::int32_t y) const {
  const double wMax = dameRango(Familia::W).maximo;
  return static_cast<float>(static_cast<double>(y) * wMax / -static_cast<double>(alto_) + wMax);
}

} // namespace tesmo
