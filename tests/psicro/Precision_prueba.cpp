#include "psicro/Corrienteaire.h"
#include "psicro/Saturacion.h"

#include <gtest/gtest.h>

// Valores de referencia_precision.py, una segunda escritura que redondea a 32 bits en los mismos sitios.
// Basta con que un solo redondeo cambie (coeficientes dobles, p_v redondeada, otra ε en el rocío, x o f
// dobles) para que alguno difiera.

using namespace tesmo;

namespace {

constexpr float P_NORMAL = 101325.0F;

float Dame(float t, float hr, const char *codigo) {
  CorrienteAire aire;
  aire.pont_hr(t, hr, P_NORMAL);
  return static_cast<float>(aire.dame(codigo));
}

} // namespace

TEST(PrecisionSimple, LaSaturacionUsaCoeficientesDe32Bits) {
  EXPECT_EQ(presionSaturacion(25.0F), 0x1.8c26b6p+11F);
  EXPECT_EQ(presionSaturacion(-10.0F), 0x1.03e6fap+8F);
  EXPECT_EQ(presionSaturacion(0.0F), 0x1.319b12p+9F);
  EXPECT_EQ(presionSaturacion(60.0F), 0x1.379eep+14F);
}

TEST(PrecisionSimple, LaBusquedaRedondeaLaEstimacionYElResiduo) {
  EXPECT_EQ(tSatVap(101325.0F), 0x1.8fe58ap+6F);
  EXPECT_EQ(tSatVap(700.0F), 0x1.e1ad46p+0F);
  EXPECT_EQ(tSatVap(1234.5F), 0x1.42866ep+3F);
  EXPECT_EQ(tSatVap(2338.0F), 0x1.3fe976p+4F);
}

TEST(PrecisionSimple, LaPresionDeVaporNoSeRedondea) {
  EXPECT_EQ(Dame(11, 10, "w"), 0x1.a7071ap-11F);
  EXPECT_EQ(Dame(11, 90, "w"), 0x1.e0e5ap-8F);
  EXPECT_EQ(Dame(12, 30, "w"), 0x1.53f598p-9F);
}

TEST(PrecisionSimple, ElRocioTieneSuPropiaRazonDeMasas) {
  EXPECT_EQ(Dame(11, 90, "tr"), 0x1.2d97e8p+3F);
  EXPECT_EQ(Dame(21, 30, "tr"), 0x1.63dc96p+1F);
  EXPECT_EQ(Dame(23, 90, "tr"), 0x1.5455a6p+4F);
}

TEST(PrecisionSimple, LaTemperaturaHumedaRedondeaEnCadaVuelta) {
  EXPECT_EQ(Dame(31, 42, "th"), 0x1.53f3e8p+4F);
  EXPECT_EQ(Dame(25, 50, "th"), 0x1.1e391cp+4F);
  EXPECT_EQ(Dame(-5, 77, "th"), -0x1.7c50ccp+2F);
}
