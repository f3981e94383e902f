#include "tests/intercambio/auditoria/Materiadeprueba.h"

#include <gtest/gtest.h>

namespace tesmo::prueba {
namespace {

const std::size_t NOCHE = Posicion(1, 10, 3);

TEST(Rango, UnaHoraQueSeSalePorPocoEsUnAviso) {
  for (const auto &[campo, valor] : {std::pair{Campo::GlobalHorizontal, -5.0},
                                     {Campo::HumedadRelativa, 110.1},
                                     {Campo::InfrarrojaHorizontal, 39.0}}) {
    MateriaAuditoria materia = MateriaLimpia();
    materia.anio[campo].Poner(NOCHE, valor, Procedencia::Copiada);
    const Hallazgo hallazgo = Mirar(materia, "rango");
    EXPECT_EQ(hallazgo.gravedad, Gravedad::Aviso) << hallazgo.texto;
    EXPECT_EQ(hallazgo.lineas, std::vector<int>{LineaDe(NOCHE)});
  }
}

TEST(Rango, MuchasHorasOUnDisparateSonGraves) {
  MateriaAuditoria materia = MateriaLimpia();
  for (std::size_t i = NOCHE; i < NOCHE + 25; ++i)
    materia.anio[Campo::HumedadRelativa].Poner(i, 110.1, Procedencia::Copiada);
  EXPECT_EQ(Mirar(materia, "rango").gravedad, Gravedad::Grave);

  materia = MateriaLimpia();
  materia.anio[Campo::TemperaturaSeca].Poner(NOCHE, 99.0, Procedencia::Copiada);
  EXPECT_EQ(Mirar(materia, "rango").gravedad, Gravedad::Grave);
}

} // namespace
} // namespace tesmo::prueba
