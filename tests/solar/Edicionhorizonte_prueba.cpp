#include "solar/Edicionhorizonte.h"

#include "core/Ficheros.h"
#include "solar/Posicionsolar.h"
#include "tests/comun/Apoyos.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace tesmo {

/// Para que un fallo enseñe el punto.
static void PrintTo(const PuntoHorizonte &punto, std::ostream *salida) {
  *salida << '(' << punto.acimut << ", " << punto.altura << ')';
}

namespace {

constexpr AlcanceRaton MARCA{2.0F, 1.0F};
const float NULO = std::nanf("");

PerfilHorizonte Perfil(const PuntosHorizonte &puntos) {
  PerfilHorizonte perfil;
  perfil.PonTamano(static_cast<float>(puntos.size()));
  for (std::size_t i = 0; i < puntos.size(); ++i) {
    perfil.PonPunto(static_cast<int>(i), puntos[i].acimut, puntos[i].altura);
  }
  return perfil;
}

EdicionHorizonte Edicion(const PuntosHorizonte &puntos) {
  EdicionHorizonte edicion;
  edicion.Tomar(Perfil(puntos));
  return edicion;
}

bool Pulsar(EdicionHorizonte &edicion, float acimut, float altura) {
  edicion.PulsarIzquierdo(acimut, altura, false, MARCA);
  return edicion.SoltarIzquierdo(acimut, altura, false);
}

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

const PuntosHorizonte TRES{{-60, 10}, {0, 20}, {60, 30}};

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
  edicion.Tomar(Perfil({{5, 5}}));
  EXPECT_FALSE(edicion.Pendiente());
  EXPECT_TRUE(edicion.Deshacer());
  EXPECT_EQ(edicion.Serie(), TRES);
  EXPECT_TRUE(edicion.Pendiente()) << "el objeto tiene el perfil abierto";
}

// ---- El objeto.

class EdicionConObjeto : public ::testing::Test {
protected:
  void SetUp() override {
    CopiarHorizonte(Perfil(DESORDENADO), sol_);
    edicion_.Tomar(sol_.Horizonte());
  }
  /// Pone en el objeto algo que no es de la edición, para ver si ésta lo pisa.
  void Marcar() {
    sol_.PonTamanoHorizonte(1.0F);
    sol_.PonPuntoHorizonte(0, 77.0F, 7.0F);
  }
  const PuntosHorizonte DESORDENADO{{60, 30}, {-60, 10}, {0, 20}};
  PosicionSolar sol_{36.84F, 6, 21, 12.0F};
  EdicionHorizonte edicion_;
};

TEST_F(EdicionConObjeto, SeDibujaPorAcimutYElObjetoConservaElOrdenLeido) {
  EXPECT_EQ(edicion_.Serie(), TRES);
  EXPECT_FALSE(edicion_.CopiarEn(sol_));
  EXPECT_EQ(sol_.HorizonteX(), (std::vector<float>{60, -60, 0}));
}

TEST_F(EdicionConObjeto, SinEditarNoSeCopia) {
  Marcar();
  edicion_.PulsarIzquierdo(0, 20, true, MARCA);
  edicion_.SoltarIzquierdo(0, 20, true);
  EXPECT_FALSE(Pulsar(edicion_, 30, 120));
  EXPECT_FALSE(edicion_.PulsarDerecho(30, 30));
  EXPECT_FALSE(edicion_.CopiarEn(sol_));
  EXPECT_EQ(sol_.HorizonteX(), (std::vector<float>{77}));
}

TEST_F(EdicionConObjeto, TrasEditarSeCopiaPorAcimutYUnaSolaVez) {
  EXPECT_TRUE(Pulsar(edicion_, 120, 5));
  EXPECT_TRUE(edicion_.CopiarEn(sol_));
  EXPECT_EQ(sol_.HorizonteX(), (std::vector<float>{-60, 0, 60, 120}));
  EXPECT_EQ(sol_.HorizonteY(), (std::vector<float>{10, 20, 30, 5}));
  Marcar();
  EXPECT_FALSE(edicion_.CopiarEn(sol_));
}

TEST_F(EdicionConObjeto, DeshacerHastaLoLeidoDevuelveSuOrden) {
  edicion_.PulsarIzquierdo(0, 20, true, MARCA);
  edicion_.Mover(50);
  edicion_.SoltarIzquierdo(0, 50, true);
  EXPECT_TRUE(edicion_.CopiarEn(sol_));
  EXPECT_EQ(sol_.HorizonteX(), (std::vector<float>{-60, 0, 60}));
  EXPECT_TRUE(edicion_.Deshacer());
  EXPECT_TRUE(edicion_.CopiarEn(sol_));
  EXPECT_EQ(sol_.HorizonteX(), (std::vector<float>{60, -60, 0}));
  EXPECT_EQ(sol_.HorizonteY(), (std::vector<float>{30, 10, 20}));
}

TEST_F(EdicionConObjeto, LoPropuestoQuedaPendienteDeCopiar) {
  edicion_.Proponer(Perfil({{1, 2}}));
  EXPECT_TRUE(edicion_.CopiarEn(sol_));
  EXPECT_EQ(sol_.HorizonteX(), (std::vector<float>{1}));
}

TEST_F(EdicionConObjeto, UnPerfilDeCincoPuntosSeGuardaConCabeceraCincoYTresLineas) {
  edicion_.Tomar({});
  for (const PuntoHorizonte punto : {PuntoHorizonte{-120, 4}, {-60, 8}, {0, 12}, {60, 16}, {120, 20}}) {
    EXPECT_TRUE(Pulsar(edicion_, punto.acimut, punto.altura));
  }
  EXPECT_TRUE(edicion_.CopiarEn(sol_));
  const prueba::DirectorioTemporal directorio;
  const std::string ruta = (directorio / "perfil.txt").string();
  ASSERT_TRUE(sol_.GuardarHorizonte(ruta));
  EXPECT_EQ(prueba::Contenido(ruta),
            "5\n-120.000000, 12.000000\n0.000000, 12.000000\n120.000000, 20.000000\n");
  ASSERT_TRUE(sol_.LeerHorizonte(ruta)); // los que faltan quedan a 0
  edicion_.Tomar(sol_.Horizonte());
  EXPECT_EQ(edicion_.Serie(), (PuntosHorizonte{{-120, 12}, {0, 12}, {0, 0}, {0, 0}, {120, 20}}));
}

// ---- Perfiles que un fichero puede traer y el ratón no.

TEST(Edicion, LosPuntosQueNoSonNumerosVanAlFinalYNoEstorban) {
  constexpr float INFINITO = std::numeric_limits<float>::infinity();
  EdicionHorizonte edicion = Edicion({{NULO, 1}, {50, 2}, {-INFINITO, 3}, {NULO, 4}, {0, NULO}});
  ASSERT_EQ(edicion.Serie().size(), 5U);
  EXPECT_EQ(edicion.Serie()[0].altura, 3.0F);
  EXPECT_EQ(edicion.Serie()[2], (PuntoHorizonte{50, 2}));
  EXPECT_TRUE(std::isnan(edicion.Serie()[3].acimut));
  EXPECT_EQ(edicion.Serie()[3].altura, 1.0F);
  EXPECT_TRUE(Pulsar(edicion, 100, 9));
  EXPECT_EQ(edicion.Serie()[3], (PuntoHorizonte{100, 9}));
  EXPECT_FALSE(edicion.PulsarDerecho(0, 0)); // el de altura sin número no está en ningún sitio
  edicion.PulsarIzquierdo(50, 2, true, MARCA);
  EXPECT_EQ(edicion.Elegido(), 2);
}

TEST(Edicion, UnPerfilLlenoNoAdmiteMas) {
  PerfilHorizonte lleno;
  lleno.PonTamano(static_cast<float>(PerfilHorizonte::PUNTOS_MAXIMOS));
  EdicionHorizonte edicion;
  edicion.Tomar(lleno);
  EXPECT_FALSE(Pulsar(edicion, 90, 10));
  EXPECT_TRUE(edicion.PulsarDerecho(0, 0));
  EXPECT_TRUE(Pulsar(edicion, 90, 10));
}

} // namespace
} // namespace tesmo
