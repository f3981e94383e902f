#include "solar/Posicionsolar.h"
#include "tests/comun/Apoyos.h"

#include <gtest/gtest.h>

namespace tesmo {
namespace {

class Claves : public ::testing::Test {
protected:
  [[nodiscard]] std::int32_t Estado(const char *clave) const {
    std::int32_t estado = -1;
    sol_.DameEstado(clave, estado);
    return estado;
  }
  [[nodiscard]] float Real(const char *clave) const {
    float valor = -999.0F;
    sol_.DameReal(clave, valor);
    return valor;
  }

  PosicionSolar sol_{36.84F, 6, 21, 10.0F};
  prueba::MensajesApuntados mensajes_;
};

TEST_F(Claves, ValoresIniciales) {
  EXPECT_EQ(sol_.DameTexto("Latitud"), "36.84");
  EXPECT_EQ(sol_.DameTexto("Mes"), "6");
  EXPECT_EQ(sol_.DameTexto("Día"), "21");
  EXPECT_EQ(sol_.DameTexto("Hora"), "10.00");
  EXPECT_EQ(sol_.DameTexto("Acimut"), "0.00");
  EXPECT_EQ(sol_.DameTexto("Altura"), "0.00");
  EXPECT_EQ(sol_.DameTexto("Inclinación"), "90.00");
  EXPECT_EQ(sol_.DameTexto("Orientación"), "0.00");
  EXPECT_EQ(sol_.DameTexto("Albedo"), "0.20");
  EXPECT_EQ(sol_.DameTexto("Es de día"), "Es de día");
  EXPECT_EQ(PosicionSolar(36.84F, 6, 21, 1.0F).DameTexto("Es de día"), "Es de noche");
  for (const char *clave : {"Latitud", "Mes", "Día", "Hora", "Acimut", "Altura", "Es de día", "Inclinación",
                            "Orientación", "Albedo"}) {
    EXPECT_EQ(Estado(clave), ENTRADA_BLANCO) << clave;
  }
}

TEST_F(Claves, LosTextosLlevanElSeparadorDeLaRegion) {
  const prueba::ConSeparador coma(',');
  EXPECT_EQ(sol_.DameTexto("Latitud"), "36,84");
}

TEST_F(Claves, LosNumerosPorSuNombre) {
  EXPECT_EQ(Real("Mes"), 6.0F);
  EXPECT_EQ(Real("Día"), 21.0F);
  EXPECT_EQ(Real("Inclinación"), 90.0F);
  EXPECT_EQ(Real("Albedo"), 0.2F);
  bool deDia = false;
  sol_.DameLogico("Es de día", deDia);
  EXPECT_TRUE(deDia);
}

TEST_F(Claves, UnaClaveDesconocidaNoCambiaNada) {
  EXPECT_EQ(sol_.DameTexto("Longitud"), "");
  EXPECT_EQ(Real("Es de día"), -999.0F);
  std::int32_t entero = 77;
  sol_.DameEntero("Latitud", entero);
  EXPECT_EQ(entero, 77);
  bool logico = true;
  sol_.DameLogico("Mes", logico);
  EXPECT_TRUE(logico);
  EXPECT_EQ(Estado("Tamaño horizonte"), -1);
  sol_.PonTexto("Longitud", "3");
  sol_.PonTexto("Es de día", "0");
  EXPECT_TRUE(mensajes_.apuntes.empty());
  EXPECT_TRUE(sol_.EsDeDia());
}

TEST_F(Claves, LoTecleadoPasaAEstadoCeroYNoRecalcula) {
  const float antes = sol_.Angulos().altura;
  sol_.PonTexto("Latitud", "40,5");
  sol_.PonTexto("Mes", "12");
  sol_.PonTexto("Día", "3.9");
  EXPECT_EQ(Real("Latitud"), 40.5F);
  EXPECT_EQ(Real("Mes"), 12.0F);
  EXPECT_EQ(Real("Día"), 3.0F);
  EXPECT_EQ(Estado("Latitud"), ENTRADA_TECLEADA);
  EXPECT_EQ(Estado("Mes"), ENTRADA_TECLEADA);
  EXPECT_EQ(sol_.Angulos().altura, antes);
}

TEST_F(Claves, ElMismoValorDejaElEstadoComoEstaba) {
  sol_.PonTexto("Latitud", "36.84");
  EXPECT_EQ(Estado("Latitud"), ENTRADA_BLANCO);
}

// Un texto vacío no se puede convertir: toma el valor por defecto y queda como no válido.
TEST_F(Claves, UnTextoVacioTomaElValorPorDefecto) {
  struct Caso {
    const char *clave;
    float valor;
  };
  constexpr Caso CASOS[] = {{"Latitud", 1.0F},      {"Mes", 1.0F},         {"Día", 1.0F},
                            {"Hora", 0.0F},         {"Acimut", 0.0F},      {"Altura", 0.0F},
                            {"Inclinación", 90.0F}, {"Orientación", 0.0F}, {"Albedo", 0.2F}};
  for (const Caso &c : CASOS) {
    sol_.PonTexto(c.clave, "1");
    sol_.PonTexto(c.clave, "");
    EXPECT_EQ(Real(c.clave), c.valor) << c.clave;
    EXPECT_EQ(Estado(c.clave), ENTRADA_INVALIDA) << c.clave;
  }
  EXPECT_TRUE(mensajes_.apuntes.empty());
}

TEST_F(Claves, FueraDeLosLimitesAvisaYTomaElValorPorDefecto) {
  sol_.PonTexto("Latitud", "95");
  ASSERT_EQ(mensajes_.apuntes.size(), 1U);
  EXPECT_EQ(mensajes_.apuntes[0].texto, "95.000000 > 89.000000 (máximo), valor por defecto: 1.000000");
  EXPECT_EQ(Real("Latitud"), 1.0F);
  EXPECT_EQ(Estado("Latitud"), ENTRADA_INVALIDA);
  sol_.PonTexto("Mes", "13");
  EXPECT_EQ(mensajes_.apuntes.back().texto, "13 > 12 (maximo), valor por defecto: 1");
}

TEST_F(Claves, LosLimitesSeAdmiten) {
  struct Caso {
    const char *clave, *minimo, *maximo;
  };
  constexpr Caso CASOS[] = {
      {"Latitud", "-89", "89"}, {"Mes", "1", "12"},          {"Día", "1", "31"},
      {"Hora", "0", "24"},      {"Acimut", "0", "10000"},    {"Altura", "0", "10000"},
      {"Albedo", "0", "1"},     {"Inclinación", "0", "180"}, {"Orientación", "-180", "180"}};
  for (const Caso &c : CASOS) {
    for (const char *texto : {c.minimo, c.maximo}) {
      sol_.PonTexto(c.clave, texto);
      EXPECT_EQ(Real(c.clave), std::stof(texto)) << c.clave;
    }
    EXPECT_EQ(Estado(c.clave), ENTRADA_TECLEADA) << c.clave;
    sol_.PonTexto(c.clave, std::string(c.maximo) + "9");
    EXPECT_EQ(Estado(c.clave), ENTRADA_INVALIDA) << c.clave;
  }
}

} // namespace
} // namespace tesmo
