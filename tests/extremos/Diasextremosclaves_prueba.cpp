#include "extremos/Diasextremos.h"
#include "tests/comun/Apoyos.h"

#include <gtest/gtest.h>

namespace tesmo {
namespace {

class Ajustes : public ::testing::Test {
protected:
  [[nodiscard]] std::int32_t Color(const char *clave) const {
    std::int32_t color = -1;
    dias_.DameEstado(clave, color);
    return color;
  }
  DiasExtremos dias_;
  prueba::MensajesApuntados mensajes_;
};

TEST_F(Ajustes, DeFabrica) {
  EXPECT_EQ(dias_.Nombre(), "DiasExtremos");
  EXPECT_EQ(dias_.DameTexto("Localidad"), "Almería");
  EXPECT_EQ(dias_.DameTexto("Provincia"), "Almería");
  EXPECT_EQ(dias_.DameTexto("Percentil calefacción"), "99.0");
  EXPECT_EQ(dias_.DameTexto("Percentil refrigeración"), "1.0");
  EXPECT_EQ(dias_.DameTexto("Mes calefacción"), "1");
  EXPECT_EQ(dias_.DameTexto("Mes refrigeración"), "7");
  MesesDeTemporada meses{};
  dias_.DameTemporada("Temporada calefacción", meses);
  EXPECT_EQ(meses, (MesesDeTemporada{1, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1}));
  dias_.DameTemporada("Temporada refrigeración", meses);
  EXPECT_EQ(meses, (MesesDeTemporada{0, 0, 0, 0, 0, 1, 1, 1, 1, 0, 0, 0}));
  EXPECT_FALSE(dias_.Calculado());
  EXPECT_EQ(dias_.Resultado().calefaccion.dia.exterior[0], 0.0F);
}

TEST_F(Ajustes, LosColoresSiguenElEstadoDelCampo) {
  constexpr std::int32_t VERDE = 32768;
  for (const char *clave : {"Provincia", "Localidad", "Percentil calefacción", "Percentil refrigeración",
                            "Mes calefacción", "Mes refrigeración"}) {
    EXPECT_EQ(Color(clave), VERDE) << clave;
  }
  dias_.PonTexto("Percentil calefacción", "97,5");
  EXPECT_EQ(Color("Percentil calefacción"), 0);
  EXPECT_EQ(dias_.DameTexto("Percentil calefacción"), "97.5");
  dias_.PonTexto("Percentil refrigeración", "mucho");
  EXPECT_EQ(Color("Percentil refrigeración"), 255);
  EXPECT_EQ(dias_.DameTexto("Percentil refrigeración"), "1.0");
  dias_.PonTexto("Localidad", "Motril");
  EXPECT_EQ(Color("Localidad"), 0);
  dias_.PonTexto("Localidad", "");
  EXPECT_EQ(Color("Localidad"), VERDE);
  EXPECT_EQ(Color("Temporada calefacción"), -1);
}

TEST_F(Ajustes, LosPercentilesVanDeCeroACien) {
  for (const char *texto : {"0", "100"}) {
    dias_.PonTexto("Percentil calefacción", texto);
    EXPECT_EQ(Color("Percentil calefacción"), 0);
  }
  dias_.PonTexto("Percentil calefacción", "100.5");
  EXPECT_EQ(dias_.DameTexto("Percentil calefacción"), "99.0");
  ASSERT_EQ(mensajes_.apuntes.size(), 1U);
  dias_.PonTexto("Percentil refrigeración", "0.4567");
  EXPECT_EQ(dias_.DameTexto("Percentil refrigeración"), "0.457");
}

TEST_F(Ajustes, LosNumerosPorSuNombre) {
  dias_.PonTexto("Mes calefacción", "2");
  std::int32_t entero = 0;
  dias_.DameEntero("Mes calefacción", entero);
  EXPECT_EQ(entero, 2);
  float real = 0.0F;
  dias_.DameReal("Percentil calefacción", real);
  EXPECT_EQ(real, 99.0F);
  dias_.DameReal("Mes refrigeración", real);
  EXPECT_EQ(real, 7.0F);
  dias_.PonTexto("Mes refrigeración", "13");
  EXPECT_EQ(dias_.DameTexto("Mes refrigeración"), "7");
  EXPECT_EQ(Color("Mes refrigeración"), 255);
}

TEST_F(Ajustes, LasTemporadasVanEnBloque) {
  const MesesDeTemporada meses{0, 1, 0, 0, 0, 0, 0, 0, 0, 0, 1, 0};
  dias_.PonTemporada("Temporada calefacción", meses);
  dias_.PonTemporada("Temporada", MesesDeTemporada{});
  MesesDeTemporada leidos{};
  dias_.DameTemporada("Temporada calefacción", leidos);
  EXPECT_EQ(leidos, meses);
  EXPECT_TRUE(DiasExtremos::TieneMeses(leidos));
  EXPECT_FALSE(DiasExtremos::TieneMeses(MesesDeTemporada{}));
}

TEST_F(Ajustes, UnaClaveDesconocidaNoHaceNada) {
  dias_.PonTexto("Altitud", "3");
  EXPECT_EQ(dias_.DameTexto("Altitud"), "");
  EXPECT_TRUE(mensajes_.apuntes.empty());
}

} // namespace
} // namespace tesmo
