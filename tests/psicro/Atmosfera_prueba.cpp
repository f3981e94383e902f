#include "psicro/Atmosfera.h"

#include "psicro/Psicrometrico.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>

namespace tesmo {
namespace {

TEST(Atmosfera, LaPresionEsLaDeLaTablaPublicada) {
  // ASHRAE Fundamentals (2017), cap. 1, tabla 1 [kPa].
  EXPECT_NEAR(PresionEnAltitud(0.0), 101325.0, 1e-9);
  EXPECT_NEAR(PresionEnAltitud(500.0), 95461.0, 5.0);
  EXPECT_NEAR(PresionEnAltitud(1000.0), 89875.0, 5.0);
  EXPECT_NEAR(PresionEnAltitud(2000.0), 79495.0, 5.0);
}

TEST(Atmosfera, LaAltitudDeshaceLaPresion) {
  for (double z = -500.0; z <= 9000.0; z += 250.0)
    EXPECT_NEAR(AltitudDePresion(PresionEnAltitud(z)), z, 1e-6);
}

TEST(Atmosfera, SeCreenLasAltitudesDeLaTierraHabitada) {
  for (const double creible : {ALTITUD_MINIMA, -480.0, 0.0, ALTITUD_MAXIMA})
    EXPECT_TRUE(AltitudCreible(creible));
  for (const double no : {-500.5, 9000.5, -9999.0, std::nan(""), HUGE_VAL}) EXPECT_FALSE(AltitudCreible(no));
}

TEST(Atmosfera, PorEncimaDelModeloLaPresionNoEsUnNumero) {
  EXPECT_FALSE(std::isnan(PresionEnAltitud(44330.0)));
  EXPECT_TRUE(std::isnan(PresionEnAltitud(44332.0)));
}

// La carta guarda la presión en 32 bits: la altitud entra en 32, la cuenta va en 64 y sólo el final se
// redondea.
TEST(Atmosfera, LaCartaRedondeaSoloElFinal) {
  Psicro carta;
  for (float z = -500.0F; z <= 9000.0F; z += 0.37F) {
    carta.ponAltitud(z);
    const double entera = 101325.0 * std::pow(1.0 - 2.25577e-5 * static_cast<double>(z), 5.2559);
    ASSERT_EQ(std::bit_cast<std::uint32_t>(carta.damePresion()),
              std::bit_cast<std::uint32_t>(static_cast<float>(entera)))
        << z;
    ASSERT_EQ(carta.damePresion(), static_cast<float>(PresionEnAltitud(static_cast<double>(z)))) << z;
  }
}

} // namespace
} // namespace tesmo
