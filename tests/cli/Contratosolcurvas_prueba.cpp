#include "core/Formato.h"
#include "solar/Curvassol.h"
#include "solar/Ficheroanual.h"
#include "tests/cli/Jsonleido.h"
#include "tests/cli/Proceso.h"

namespace tesmo::prueba {
namespace {

class OrdenSolCurvas : public LineaDeOrdenes {};

std::string Cifras(float valor) { return FormatoG9(static_cast<double>(valor)); }

TEST_F(OrdenSolCurvas, MomentoEsPosicion) {
  const Ejecucion dia = Orden({"sol", "momento", "36.84", "3", "21", "15"});
  EXPECT_EQ(dia.estado, 0) << dia.error;
  EXPECT_EQ(dia.salida, Orden({"sol", "posicion", "36.84", "3", "21", "15"}).salida);
  EXPECT_EQ(Orden({"sol", "momento", "36.84", "3", "21", "2"}).salida, "0\t0\t90\t0\n");
  EXPECT_EQ(Orden({"sol", "momento", "36.84", "2", "29", "15"}).salida,
            Orden({"sol", "posicion", "36.84", "3", "1", "15"}).salida);
}

TEST_F(OrdenSolCurvas, DiaEscribeLaCurvaYDespuesLasHoras) {
  const Ejecucion e = Orden({"sol", "dia", "36.84", "6", "21"});
  ASSERT_EQ(e.estado, 0) << e.error;
  EXPECT_EQ(e.error, "");
  const CurvasDelDia curvas = CurvasDeDia(36.84F, 6, 21);
  std::string esperado;
  for (const PuntoSolar &p : curvas.curva)
    esperado += "curva\t" + Cifras(p.t) + "\t" + Cifras(p.acimut) + "\t" + Cifras(p.altura) + "\n";
  for (std::size_t h = 0; h < 24; ++h) {
    for (const PuntoSolar &p : curvas.horas[h])
      esperado += "hora\t" + std::to_string(h) + "\t" + Cifras(p.acimut) + "\t" + Cifras(p.altura) + "\n";
  }
  EXPECT_TRUE(e.salida == esperado);
  const std::vector<std::string> ultima = Campos(e.Lineas().back());
  ASSERT_EQ(ultima.size(), 4U);
  EXPECT_EQ(ultima[0], "hora");
  EXPECT_EQ(ultima[1], "19");
}

TEST_F(OrdenSolCurvas, UnDiaQueElMesNoTieneCuentaEnElSiguiente) {
  const Ejecucion e = Orden({"sol", "dia", "36.84", "2", "31"});
  EXPECT_EQ(e.estado, 0) << e.error;
  EXPECT_EQ(e.salida, Orden({"sol", "dia", "36.84", "3", "3"}).salida);
}

TEST_F(OrdenSolCurvas, EnElPoloElDiaEsVacioODeVeintiseisHoras) {
  const Ejecucion diciembre = Orden({"sol", "dia", "89", "12", "21"});
  EXPECT_EQ(diciembre.estado, 0);
  EXPECT_EQ(diciembre.salida, "");
  const std::vector<std::string> junio = Orden({"sol", "dia", "89", "6", "21"}).Lineas();
  EXPECT_EQ(Campos(junio.front())[1], "-0.99000001"); // −1 + 0,01 en 32 bits
  EXPECT_NEAR(static_cast<double>(junio.size()), 2600.0 + 24.0, 3.0);
}

TEST_F(OrdenSolCurvas, MesesEscribeLasDoceCurvasYDespuesLasHoras) {
  const Ejecucion e = Orden({"sol", "meses", "-36.84", "21"});
  ASSERT_EQ(e.estado, 0) << e.error;
  const CurvasDeLosMeses curvas = CurvasDeMeses(-36.84F, 21);
  std::string esperado;
  for (std::size_t m = 0; m < 12; ++m) {
    for (const PuntoSolar &p : curvas.meses[m])
      esperado += "mes\t" + std::to_string(m + 1) + "\t" + Cifras(p.t) + "\t" + Cifras(p.acimut) + "\t" +
                  Cifras(p.altura) + "\n";
  }
  for (std::size_t h = 0; h < 24; ++h) {
    for (const PuntoDeMes &p : curvas.horas[h])
      esperado += "hora\t" + std::to_string(h) + "\t" + std::to_string(p.mes) + "\t" +
                  Cifras(p.punto.acimut) + "\t" + Cifras(p.punto.altura) + "\n";
  }
  EXPECT_TRUE(e.salida == esperado);
}

TEST_F(OrdenSolCurvas, Json) {
  const JsonLeido dia(Orden({"sol", "dia", "36.84", "12", "21", "--json"}).salida);
  const CurvasDelDia curvas = CurvasDeDia(36.84F, 12, 21);
  EXPECT_EQ(dia["curva"].Tamano(), curvas.curva.size());
  EXPECT_EQ(dia["horas"].Tamano(), 9U); // de las 8 a las 16
  EXPECT_EQ(dia["horas"][0]["hora"].Numero(), 8);
  EXPECT_NEAR(dia["curva"][0]["t"].Numero(), curvas.curva[0].t, 1e-6);
  const JsonLeido meses(Orden({"sol", "meses", "36.84", "21", "--json"}).salida);
  EXPECT_EQ(meses["meses"][0]["mes"].Numero(), 1);
  EXPECT_EQ(meses["horas"][0]["hora"].Numero(), 5);
  const JsonLeido noche(Orden({"sol", "dia", "89", "12", "21", "--json"}).salida);
  EXPECT_TRUE(noche["curva"].Tamano() == 0 && noche["horas"].Tamano() == 0);
}

TEST_F(OrdenSolCurvas, LoQueNoValeEstado2) {
  for (const std::vector<std::string> &argumentos :
       std::vector<std::vector<std::string>>{{"sol", "dia", "36", "2", "32"},
                                             {"sol", "dia", "36", "13", "1"},
                                             {"sol", "dia", "90", "1", "1"},
                                             {"sol", "dia", "36", "1"},
                                             {"sol", "meses", "36", "0"},
                                             {"sol", "meses", "36", "32"},
                                             {"sol", "meses", "x", "1"},
                                             {"sol", "anual", "90", "-o", "x"},
                                             {"sol", "anual", "36"}}) {
    const Ejecucion e = Orden(argumentos);
    EXPECT_EQ(e.estado, 2) << argumentos[1];
    EXPECT_EQ(e.salida, "");
    EXPECT_TRUE(e.error.starts_with("Error: ")) << e.error;
  }
}

TEST_F(OrdenSolCurvas, AnualEscribeElFicheroDondeSeTecleoLaOrden) {
  const Ejecucion e = Orden({"sol", "anual", "-36.84", "-o", "FPS.TXT"});
  ASSERT_EQ(e.estado, 0) << e.error;
  EXPECT_EQ(e.salida + e.error, "");
  EXPECT_TRUE(Contenido(std::filesystem::path(trabajo_) / "FPS.TXT") == TextoAnual(-36.84F));
}

TEST_F(OrdenSolCurvas, AnualQueNoSePuedeEscribirEstado4) {
  for (const std::string &ruta : {base_, (raiz_ / "no" / "FPS.TXT").string()}) {
    const Ejecucion e = Orden({"sol", "anual", "36.84", "-o", ruta});
    EXPECT_EQ(e.estado, 4);
    EXPECT_EQ(e.error, "Información: No se puede abrir el fichero: " + ruta + ".\n");
  }
  EXPECT_EQ(Orden({"sol", "anual", "36.84", "-o", ""}).estado, 4);
}

} // namespace
} // namespace tesmo::prueba
