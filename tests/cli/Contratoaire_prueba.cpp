#include "tests/cli/Jsonleido.h"
#include "tests/cli/Proceso.h"

#include "core/Formato.h"
#include "psicro/Corrienteaire.h"

namespace tesmo::prueba {
namespace {

class OrdenAire : public LineaDeOrdenes {};

const std::vector<std::string> CODIGOS{"m", "p", "t", "w", "th", "tr", "hr", "h", "ro", "ve"};

TEST_F(OrdenAire, DiezLineasPorSuOrdenYNadaEnLaSalidaDeErrores) {
  const Ejecucion e = Orden({"aire", "pont_hr", "25", "50"});
  ASSERT_EQ(e.estado, 0);
  EXPECT_EQ(e.error, "");
  CorrienteAire aire;
  aire.pont_hr(25.0F, 50.0F, 101325.0F);
  const std::vector<std::string> lineas = e.Lineas();
  ASSERT_EQ(lineas.size(), CODIGOS.size());
  for (std::size_t i = 0; i < CODIGOS.size(); ++i)
    EXPECT_EQ(lineas[i], CODIGOS[i] + "\t" + FormatoG9(static_cast<double>(aire.dame(CODIGOS[i]))));
}

TEST_F(OrdenAire, LasSeisOrdenesFijanElEstado) {
  for (const auto &[orden, b] : std::vector<std::pair<std::string, std::string>>{{"pont_w", "0.008"},
                                                                                 {"pont_th", "15"},
                                                                                 {"pont_tr", "10"},
                                                                                 {"pont_hr", "55"},
                                                                                 {"pont_h", "45000"}}) {
    const Ejecucion e = Orden({"aire", orden, "25", b, "95000"});
    ASSERT_EQ(e.estado, 0) << orden;
    EXPECT_EQ(e.Lineas()[1], "p\t95000") << orden;
    EXPECT_EQ(e.Lineas()[2], "t\t25") << orden;
  }
  EXPECT_EQ(Orden({"aire", "ponw_h", "0.008", "45000"}).Lineas()[3], "w\t0.00800000038");
}

TEST_F(OrdenAire, NumerosNegativosEnCualquierPosicion) {
  for (const char *a : {"-36.84", "-.5", "-1e-05", "-5"}) {
    const Ejecucion e = Orden({"aire", "pont_hr", a, "50"});
    EXPECT_EQ(e.estado, 0) << a << e.error;
    EXPECT_EQ(e.Lineas()[2], "t\t" + FormatoG9(static_cast<double>(std::stof(a))));
  }
  EXPECT_EQ(Orden({"aire", "pont_tr", "10", "-3"}).estado, 0);
}

TEST_F(OrdenAire, CadaDiagnosticoEnSuLineaYNadaMas) {
  const Ejecucion e = Orden({"aire", "pont_w", "-150", "-1", "101325"});
  EXPECT_EQ(e.estado, 0);
  EXPECT_TRUE(e.error.starts_with(
      "**Minimo revasado -150.000000 < -100.000000, se toma -100.000000: CorrienteAire::pont_w\n"
      "**Minimo revasado -1.000000 < 0.000000, se toma 0.000000: CorrienteAire::pont_w\n"))
      << e.error;
  EXPECT_EQ(e.error.find("Aviso"), std::string::npos);
}

TEST_F(OrdenAire, JsonConLosMismosValores) {
  const Ejecucion texto = Orden({"aire", "pont_th", "30", "20", "95000"});
  const JsonLeido json(Orden({"aire", "pont_th", "30", "20", "95000", "--json"}).salida);
  ASSERT_EQ(json.Tamano(), CODIGOS.size());
  for (const std::string &linea : texto.Lineas())
    EXPECT_EQ(json[Campos(linea)[0]].Numero(), std::stod(Campos(linea)[1])) << linea;
}

TEST_F(OrdenAire, LoQueNoEsNumeroEstado2) {
  for (const char *malo : {"nan", "inf", "veinte", "", "1e99999"}) {
    const Ejecucion e = Orden({"aire", "pont_hr", "25", malo});
    EXPECT_EQ(e.estado, 2) << malo;
    EXPECT_EQ(e.salida, "");
  }
}

} // namespace
} // namespace tesmo::prueba
