#include "tests/solar/Edicionprueba.h"

#include <gtest/gtest.h>

namespace tesmo {
namespace {

using namespace prueba;

// ---- Añadir: puntos de antes, dónde se pulsa y puntos de después.

struct CasoAnadir {
  const char *nombre;
  PuntosHorizonte antes;
  PuntoHorizonte pulsado;
  PuntosHorizonte despues;
};

class AnadirPunto : public ::testing::TestWithParam<CasoAnadir> {};

TEST_P(AnadirPunto, Regla) {
  const CasoAnadir &caso = GetParam();
  EdicionHorizonte edicion = Edicion(caso.antes);
  EXPECT_EQ(Pulsar(edicion, caso.pulsado.acimut, caso.pulsado.altura), caso.antes != caso.despues);
  EXPECT_EQ(edicion.Serie(), caso.despues);
  EXPECT_EQ(edicion.Pendiente(), caso.antes != caso.despues);
}

INSTANTIATE_TEST_SUITE_P(
    Edicion, AnadirPunto,
    ::testing::Values(
        CasoAnadir{"ElPrimero", {}, {-20, 15}, {{-20, 15}}},
        CasoAnadir{"ElSegundoDelante", {{10, 5}}, {-20, 15}, {{-20, 15}, {10, 5}}},
        CasoAnadir{"ElSegundoJuntoAlUnicoQueEsElUltimo", {{10, 5}}, {11, 15}, {{10, 5}, {11, 15}}},
        CasoAnadir{
            "ConDosLosDosTomanLaAltura", {{-20, 15}, {10, 5}}, {50, 30}, {{-20, 30}, {10, 30}, {50, 30}}},
        CasoAnadir{"ConTresLosDemasNoCambian", TRES, {30, 7}, {{-60, 10}, {0, 20}, {30, 7}, {60, 30}}},
        CasoAnadir{"AlturaCientoVeinteNoAnadeNada", TRES, {30, 120}, TRES},
        CasoAnadir{"AlturaCienSi", TRES, {30, 100}, {{-60, 10}, {0, 20}, {30, 100}, {60, 30}}},
        CasoAnadir{"AlturaDeCienYPicoNo", TRES, {30, 100.01F}, TRES},
        CasoAnadir{"AlturaCeroSi", TRES, {30, 0}, {{-60, 10}, {0, 20}, {30, 0}, {60, 30}}},
        CasoAnadir{"AlturaNegativaNo", TRES, {30, -0.01F}, TRES},
        CasoAnadir{"AcimutCientoOchentaSi", TRES, {180, 1}, {{-60, 10}, {0, 20}, {60, 30}, {180, 1}}},
        CasoAnadir{"AcimutMenosCientoOchentaSi", TRES, {-180, 1}, {{-180, 1}, {-60, 10}, {0, 20}, {60, 30}}},
        CasoAnadir{"AcimutFueraPorElOesteNo", TRES, {180.01F, 1}, TRES},
        CasoAnadir{"AcimutFueraPorElEsteNo", TRES, {-180.01F, 1}, TRES},
        CasoAnadir{"AcimutQueNoEsNumeroNo", TRES, {NULO, 1}, TRES},
        CasoAnadir{"AlturaQueNoEsNumeroNo", TRES, {30, NULO}, TRES},
        CasoAnadir{"ACincoGradosJustosNo", TRES, {5, 1}, TRES},
        CasoAnadir{"ACincoGradosJustosPorElOtroLadoNo", TRES, {-65, 1}, TRES},
        CasoAnadir{"AMasDeCincoGradosSi", TRES, {5.01F, 1}, {{-60, 10}, {0, 20}, {5.01F, 1}, {60, 30}}},
        CasoAnadir{"EnElMismoAcimutNo", TRES, {0, 70}, TRES},
        CasoAnadir{"JuntoAlUltimoSi", TRES, {58, 1}, {{-60, 10}, {0, 20}, {58, 1}, {60, 30}}},
        CasoAnadir{"EnElAcimutDelUltimoSiYVaDetras", TRES, {60, 1}, {{-60, 10}, {0, 20}, {60, 30}, {60, 1}}},
        CasoAnadir{"JuntoAlPrimeroDeDosNoIgualaNada", {{0, 1}, {50, 2}}, {3, 9}, {{0, 1}, {50, 2}}},
        CasoAnadir{
            "JuntoAlSegundoDeDosIgualaLosDos", {{0, 1}, {50, 2}}, {47, 9}, {{0, 9}, {47, 9}, {50, 9}}}),
    [](const auto &caso) { return std::string(caso.param.nombre); });

TEST(Edicion, ConMayusculasAlSoltarNoSeAnade) {
  EdicionHorizonte edicion = Edicion(TRES);
  edicion.PulsarIzquierdo(30, 50, true, MARCA);
  EXPECT_FALSE(edicion.SoltarIzquierdo(30, 50, true));
  EXPECT_EQ(edicion.Serie(), TRES);
}

TEST(Edicion, LaReglaEsLaDelAlSoltar) {
  EdicionHorizonte edicion = Edicion(TRES);
  edicion.PulsarIzquierdo(30, 50, true, MARCA); // sin punto debajo no hay arrastre
  EXPECT_TRUE(edicion.SoltarIzquierdo(30, 50, false));
  EXPECT_EQ(edicion.Serie().size(), 4U);
}

// ---- Borrar.

struct CasoBorrar {
  const char *nombre;
  PuntoHorizonte pulsado;
  PuntosHorizonte despues;
};

class BorrarPunto : public ::testing::TestWithParam<CasoBorrar> {};

TEST_P(BorrarPunto, Regla) {
  EdicionHorizonte edicion = Edicion(TRES);
  const CasoBorrar &caso = GetParam();
  EXPECT_EQ(edicion.PulsarDerecho(caso.pulsado.acimut, caso.pulsado.altura), caso.despues != TRES);
  EXPECT_EQ(edicion.Serie(), caso.despues);
}

const PuntosHorizonte SIN_EL_SEGUNDO{{-60, 10}, {60, 30}};

INSTANTIATE_TEST_SUITE_P(Edicion, BorrarPunto,
                         ::testing::Values(CasoBorrar{"Encima", {0, 20}, SIN_EL_SEGUNDO},
                                           CasoBorrar{"AMedioGradoJusto", {0.5F, 20.5F}, SIN_EL_SEGUNDO},
                                           CasoBorrar{"PorElOtroLado", {-0.5F, 19.5F}, SIN_EL_SEGUNDO},
                                           CasoBorrar{"LejosEnAcimut", {0.51F, 20}, TRES},
                                           CasoBorrar{"LejosEnAltura", {0, 20.51F}, TRES},
                                           CasoBorrar{"LejosEnLosDos", {30, 50}, TRES},
                                           CasoBorrar{"QueNoEsNumero", {NULO, 20}, TRES},
                                           CasoBorrar{"ElUltimo", {60, 30}, {{-60, 10}, {0, 20}}}),
                         [](const auto &caso) { return std::string(caso.param.nombre); });

TEST(Edicion, EntreDosPuntosSeBorraElMasCercano) {
  EdicionHorizonte edicion = Edicion({{0, 10}, {0.4F, 10}});
  EXPECT_TRUE(edicion.PulsarDerecho(0.3F, 10));
  EXPECT_EQ(edicion.Serie(), (PuntosHorizonte{{0, 10}}));
  EdicionHorizonte iguales = Edicion({{0, 10}, {0, 10}, {90, 5}});
  EXPECT_TRUE(iguales.PulsarDerecho(0, 10)); // uno cada vez
  EXPECT_EQ(iguales.Serie(), (PuntosHorizonte{{0, 10}, {90, 5}}));
}

// ---- Elegir y arrastrar.

TEST(Edicion, ConMayusculasSeEligeElPuntoQueAlcanzaLaMarca) {
  EdicionHorizonte edicion = Edicion(TRES);
  EXPECT_EQ(edicion.Elegido(), EdicionHorizonte::NINGUNO);
  EXPECT_TRUE(edicion.PulsarIzquierdo(2, 21, true, MARCA)); // justo en el borde de la marca
  EXPECT_EQ(edicion.Elegido(), 1);
  EXPECT_TRUE(edicion.Arrastrando());
  EXPECT_FALSE(edicion.SoltarIzquierdo(2, 21, true));
  EXPECT_FALSE(edicion.Arrastrando());
  EXPECT_EQ(edicion.Elegido(), 1);
  EXPECT_TRUE(edicion.PulsarIzquierdo(2.1F, 21, true, MARCA)); // fuera: no queda ninguno
  EXPECT_EQ(edicion.Elegido(), EdicionHorizonte::NINGUNO);
  EXPECT_FALSE(edicion.PulsarIzquierdo(60, 30, false, MARCA)); // sin Mayúsculas no se elige
  EXPECT_EQ(edicion.Elegido(), EdicionHorizonte::NINGUNO);
}

TEST(Edicion, ElArrastreMueveEnVerticalEntreCeroYCien) {
  EdicionHorizonte edicion = Edicion(TRES);
  EXPECT_FALSE(edicion.Mover(50)); // nada elegido
  edicion.PulsarIzquierdo(0, 20, true, MARCA);
  EXPECT_TRUE(edicion.Mover(35.5F));
  EXPECT_EQ(edicion.Serie()[1], (PuntoHorizonte{0, 35.5F}));
  EXPECT_FALSE(edicion.Mover(35.5F));
  EXPECT_TRUE(edicion.Mover(140));
  EXPECT_EQ(edicion.Serie()[1].altura, 100.0F);
  EXPECT_TRUE(edicion.Mover(-3));
  EXPECT_EQ(edicion.Serie()[1].altura, 0.0F);
  EXPECT_FALSE(edicion.Mover(NULO));
  EXPECT_EQ(edicion.Serie()[1].acimut, 0.0F);
}

TEST(Edicion, SoltarAcabaElArrastreYNoAnadeNiSinMayusculas) {
  for (const bool mayusculas : {true, false}) {
    EdicionHorizonte edicion = Edicion(TRES);
    edicion.PulsarIzquierdo(0, 20, true, MARCA);
    EXPECT_TRUE(edicion.Mover(40));
    EXPECT_FALSE(edicion.SoltarIzquierdo(30, 40, mayusculas));
    EXPECT_EQ(edicion.Serie().size(), 3U);
    EXPECT_FALSE(edicion.Mover(50)) << "el punto se queda donde se soltó";
    EXPECT_EQ(edicion.Serie()[1].altura, 40.0F);
    EXPECT_TRUE(Pulsar(edicion, 30, 40)) << "la pulsación siguiente ya es otra";
  }
}

TEST(Edicion, BorrarEnMitadDelArrastreNoDejaNadaColgado) {
  EdicionHorizonte edicion = Edicion(TRES);
  edicion.PulsarIzquierdo(0, 20, true, MARCA);
  EXPECT_TRUE(edicion.BorrarElegido());
  EXPECT_FALSE(edicion.Arrastrando());
  EXPECT_FALSE(edicion.Mover(50));
  EXPECT_FALSE(edicion.SoltarIzquierdo(30, 50, false)) << "sigue siendo el final de un arrastre";
  EXPECT_EQ(edicion.Serie(), SIN_EL_SEGUNDO);
}

TEST(Edicion, ElElegidoEsElMismoPuntoAunqueCambieSuSitio) {
  EdicionHorizonte edicion = Edicion(TRES);
  edicion.PulsarIzquierdo(60, 30, true, MARCA);
  edicion.SoltarIzquierdo(60, 30, true);
  EXPECT_EQ(edicion.Elegido(), 2);
  EXPECT_TRUE(Pulsar(edicion, -100, 5));
  EXPECT_EQ(edicion.Elegido(), 3);
  EXPECT_TRUE(edicion.PulsarDerecho(-60, 10));
  EXPECT_EQ(edicion.Elegido(), 2);
  EXPECT_TRUE(Pulsar(edicion, 120, 5));
  EXPECT_EQ(edicion.Elegido(), 2);
  EXPECT_TRUE(edicion.BorrarElegido());
  EXPECT_EQ(edicion.Serie(), (PuntosHorizonte{{-100, 5}, {0, 20}, {120, 5}}));
  EXPECT_EQ(edicion.Elegido(), EdicionHorizonte::NINGUNO);
  EXPECT_FALSE(edicion.BorrarElegido());
}

// ---- Deshacer y rehacer.

TEST(Edicion, DeshacerYRehacerCadaEdicion) {
  EdicionHorizonte edicion = Edicion({{-20, 15}, {10, 5}});
  EXPECT_FALSE(edicion.Rehacer());
  EXPECT_TRUE(Pulsar(edicion, 50, 30));
  const PuntosHorizonte tres = edicion.Serie();
  EXPECT_TRUE(edicion.PulsarDerecho(10, 30));
  EXPECT_TRUE(edicion.Deshacer());
  EXPECT_EQ(edicion.Serie(), tres);
  EXPECT_TRUE(edicion.Deshacer());
  EXPECT_EQ(edicion.Serie(), (PuntosHorizonte{{-20, 15}, {10, 5}})) << "con las alturas de antes de igualar";
  EXPECT_TRUE(edicion.PuedeRehacer());
  EXPECT_TRUE(edicion.Rehacer());
  EXPECT_TRUE(edicion.Rehacer());
  EXPECT_FALSE(edicion.Rehacer());
  EXPECT_EQ(edicion.Serie(), (PuntosHorizonte{{-20, 30}, {50, 30}}));
}

TEST(Edicion, UnArrastreSeDeshaceDeUnaVez) {
  EdicionHorizonte edicion = Edicion(TRES);
  edicion.PulsarIzquierdo(0, 20, true, MARCA);
  for (int i = 21; i < 60; ++i) edicion.Mover(static_cast<float>(i));
  edicion.SoltarIzquierdo(0, 59, true);
  EXPECT_TRUE(edicion.Deshacer());
  EXPECT_EQ(edicion.Serie(), TRES);
  EXPECT_TRUE(edicion.Rehacer());
  EXPECT_EQ(edicion.Serie()[1].altura, 59.0F);
}

TEST(Edicion, ElegirSinMoverNoDejaNadaQueDeshacer) {
  EdicionHorizonte edicion;
  edicion.Tomar({});
  edicion.PulsarIzquierdo(0, 20, true, MARCA);
  edicion.SoltarIzquierdo(0, 20, true);
  EXPECT_FALSE(edicion.PuedeDeshacer());
  EXPECT_FALSE(edicion.Deshacer());
  EXPECT_FALSE(edicion.Pendiente());
}

TEST(Edicion, EditarTrasDeshacerOlvidaLoDeshecho) {
  EdicionHorizonte edicion = Edicion(TRES);
  EXPECT_TRUE(Pulsar(edicion, 30, 7));
  EXPECT_TRUE(edicion.Deshacer());
  EXPECT_TRUE(Pulsar(edicion, -30, 8));
  EXPECT_FALSE(edicion.PuedeRehacer());
}

TEST(Edicion, SoloSeGuardanLosUltimosPasos) {
  EdicionHorizonte edicion;
  for (std::size_t i = 0; i < EdicionHorizonte::PASOS + 10; ++i) {
    EXPECT_TRUE(Pulsar(edicion, 0, static_cast<float>(i % 50)));
    EXPECT_TRUE(edicion.PulsarDerecho(0, static_cast<float>(i % 50)));
  }
  std::size_t pasos = 0;
  while (edicion.Deshacer()) ++pasos;
  EXPECT_EQ(pasos, EdicionHorizonte::PASOS);
}

TEST(Edicion, AbrirOtroPerfilTambienSeDeshace) {
  EdicionHorizonte edicion = Edicion(TRES);
  edicion.Tomar(PerfilDe({{5, 5}}));
  EXPECT_FALSE(edicion.Pendiente());
  EXPECT_TRUE(edicion.Deshacer());
  EXPECT_EQ(edicion.Serie(), TRES);
  EXPECT_TRUE(edicion.Pendiente()) << "el objeto tiene el perfil abierto";
}

} // namespace
} // namespace tesmo
