#include "psicro/Corrienteaire.h"

#include <gtest/gtest.h>
#include <memory>
#include <vector>

using namespace tesmo;

namespace {

std::vector<const CorrienteAire *> Vivas() {
  std::vector<const CorrienteAire *> corrientes;
  for (auto *i = InscripcionCorriente::Primera(); i != nullptr; i = i->Siguiente())
    corrientes.push_back(&i->Corriente());
  return corrientes;
}

} // namespace

TEST(RegistroCorrientes, GuardaElOrdenDeCreacion) {
  EXPECT_TRUE(Vivas().empty());
  const CorrienteAire a("a");
  auto b = std::make_unique<CorrienteAire>("b");
  const CorrienteAire c("c");
  EXPECT_EQ(Vivas(), (std::vector<const CorrienteAire *>{&a, b.get(), &c}));
  b.reset(); // la de en medio
  EXPECT_EQ(Vivas(), (std::vector<const CorrienteAire *>{&a, &c}));
  const CorrienteAire d("d");
  EXPECT_EQ(Vivas(), (std::vector<const CorrienteAire *>{&a, &c, &d}));
}

TEST(RegistroCorrientes, SeVaciaPorCualquierLado) {
  auto a = std::make_unique<CorrienteAire>("a");
  auto b = std::make_unique<CorrienteAire>("b");
  auto c = std::make_unique<CorrienteAire>("c");
  a.reset();
  c.reset();
  EXPECT_EQ(Vivas(), (std::vector<const CorrienteAire *>{b.get()}));
  b.reset();
  EXPECT_TRUE(Vivas().empty());
}

TEST(RegistroCorrientes, GanaLaPrimeraDeIgualNombreExacto) {
  const CorrienteAire a("igual");
  const CorrienteAire b("igual");
  EXPECT_EQ(BuscarCorriente("igual"), &a);
  EXPECT_EQ(BuscarCorriente("Igual"), nullptr);
  EXPECT_EQ(BuscarCorriente("igua"), nullptr);
  EXPECT_EQ(BuscarCorriente(""), nullptr);
}

TEST(RegistroCorrientes, LaCopiaEsOtraCorrienteViva) {
  CorrienteAire a("a");
  a.pont_hr(11.0F, 22.0F, 90000.0F);
  const CorrienteAire copia = a;
  EXPECT_EQ(Vivas(), (std::vector<const CorrienteAire *>{&a, &copia}));
  EXPECT_EQ(copia.Nombre(), "a");
  EXPECT_EQ(copia.temperatura(), 11.0F);
  CorrienteAire b("b");
  b = a;
  EXPECT_EQ(b.Nombre(), "a");
  EXPECT_EQ(b.presion(), 90000.0F);
  EXPECT_EQ(b.humedadAbsoluta(), a.humedadAbsoluta());
  EXPECT_EQ(Vivas(), (std::vector<const CorrienteAire *>{&a, &copia, &b}));
}
