#include "psicro/Corrienteaire.h"
#include "psicro/Saturacion.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>

using namespace tesmo;

namespace {

constexpr Magnitudaire DERIVADAS[] = {Magnitudaire::TemperaturaHumeda, Magnitudaire::TemperaturaRocio,
                                      Magnitudaire::HumedadRelativa,   Magnitudaire::Entalpia,
                                      Magnitudaire::Densidad,          Magnitudaire::VolumenEspecifico};

} // namespace

TEST(DominioAire, ElTiempoHabitualNoDaNuncaAlgoQueNoSeaNumero) {
  CorrienteAire c;
  long estados = 0;
  for (float p = 60000.0F; p <= 105000.0F; p += 5000.0F) {
    for (float t = -40.0F; t <= 60.0F; t += 0.5F) {
      for (float hr = 0.0F; hr <= 100.0F; hr += 5.0F) {
        c.pont_hr(t, hr, p);
        for (const Magnitudaire m : DERIVADAS)
          ASSERT_TRUE(std::isfinite(c.dame(m))) << t << ' ' << hr << ' ' << p << ' ' << static_cast<int>(m);
        ++estados;
      }
    }
  }
  EXPECT_EQ(estados, 10L * 201 * 21);
}

TEST(DominioAire, LasMagnitudesGuardanElOrdenFisico) {
  CorrienteAire c;
  for (float t = 1.0F; t <= 60.0F; t += 1.0F) {
    for (float hr = 5.0F; hr <= 100.0F; hr += 5.0F) {
      c.pont_hr(t, hr, aire::PRESION_NORMAL);
      const double td = static_cast<double>(t);
      EXPECT_LE(static_cast<double>(c.temperaturaRocio()), td + 1e-3) << t << ' ' << hr;
      EXPECT_NEAR(static_cast<double>(c.humedadRelativa()), static_cast<double>(hr), 1e-3);
      const double th = c.temperaturaHumeda();
      EXPECT_LE(th, td * 1.001 + 1e-3) << t << ' ' << hr;
      if (c.temperaturaRocio() > 0.0F) {
        EXPECT_GE(th, 0.999 * static_cast<double>(c.temperaturaRocio()) - 1e-3);
      }
    }
  }
}

TEST(DominioAire, CualquierArgumentoDejaUnaTemperaturaYUnaPresionAdmitidas) {
  std::mt19937 azar(7);
  const float raros[] = {0.0F,
                         -0.0F,
                         1e38F,
                         -1e38F,
                         std::numeric_limits<float>::infinity(),
                         -std::numeric_limits<float>::infinity(),
                         std::numeric_limits<float>::quiet_NaN(),
                         std::numeric_limits<float>::denorm_min(),
                         100.0F,
                         99.0F,
                         0.0014F,
                         101325.0F};
  const auto sacar = [&] { return raros[azar() % std::size(raros)]; };
  CorrienteAire c;
  for (int i = 0; i < 5000; ++i) {
    const float a = sacar();
    const float b = sacar();
    const float p = sacar();
    switch (azar() % 5) {
    case 0:
      c.pont_w(a, b, p);
      break;
    case 1:
      c.pont_th(a, b, p);
      break;
    case 2:
      c.pont_tr(a, b, p);
      break;
    case 3:
      c.pont_hr(a, b, p);
      break;
    default:
      c.pont_h(a, b, p);
      break;
    }
    ASSERT_GE(c.temperatura(), -100.0F);
    ASSERT_LE(c.temperatura(), 99.0F);
    ASSERT_GE(c.presion(), 0.0014F);
    ASSERT_LE(c.presion(), 1555070.0F);
    for (const Magnitudaire m : DERIVADAS) (void)c.dame(m); // sin vueltas sin fin ni lecturas fuera
  }
}
