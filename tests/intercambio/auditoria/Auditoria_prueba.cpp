#include "tests/intercambio/auditoria/Materiadeprueba.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <set>
#include <vector>

namespace tesmo::prueba {
namespace {

void Poner(MateriaAuditoria &materia, Campo campo, std::size_t hora, double valor) {
  materia.anio[campo].Poner(hora, valor, Procedencia::Copiada);
}

/// Un defecto en un fichero limpio y cómo debe verse.
struct Defecto {
  const char *nombre;
  std::function<void(MateriaAuditoria &)> estropear;
  const char *faltas; ///< todas las comprobaciones que han de quejarse
  const char *clave;  ///< la que ha de dar las líneas
  std::vector<int> lineas;
  Veredicto veredicto;
};
void PrintTo(const Defecto &defecto, std::ostream *salida) { *salida << defecto.nombre; }

const std::size_t MEDIODIA = Posicion(6, 21, 13);
const std::size_t NOCHE = Posicion(1, 10, 3);

std::vector<int> Tramo(std::size_t desde, std::size_t horas) {
  std::vector<int> lineas;
  for (std::size_t i = desde; i < desde + horas; ++i) lineas.push_back(LineaDe(i));
  return lineas;
}

void Copiar(MateriaAuditoria &materia, std::size_t desde, std::size_t a, std::size_t horas) {
  for (Campo campo : {Campo::TemperaturaSeca, Campo::HumedadRelativa, Campo::TemperaturaRocio}) {
    for (std::size_t i = 0; i < horas; ++i)
      Poner(materia, campo, a + i, materia.anio[campo].valores[desde + i]);
  }
}

void Parar(MateriaAuditoria &materia, Campo campo, std::size_t desde, std::size_t horas, double en = 3.3) {
  for (std::size_t i = desde; i < desde + horas; ++i) Poner(materia, campo, i, en);
}

const std::vector<Campo> RADIACIONES{Campo::GlobalHorizontal, Campo::DirectaNormal, Campo::DifusaHorizontal};
void Anular(MateriaAuditoria &materia, const std::vector<Campo> &campos, std::size_t desde,
            std::size_t horas) {
  for (Campo campo : campos) Parar(materia, campo, desde, horas, 0.0);
}

/// Las líneas de las horas de un tramo en que el sol del sitio limpio pasa de 11,5° de altura.
std::vector<int> HorasAltas(std::size_t desde, std::size_t horas) {
  const MateriaAuditoria materia = MateriaLimpia();
  std::vector<int> lineas;
  for (std::size_t i = desde; i < desde + horas; ++i)
    if (materia.sol.cosenoCentro[i] > 0.2) lineas.push_back(LineaDe(i));
  return lineas;
}

std::vector<Defecto> Defectos() {
  using M = MateriaAuditoria;
  return {
      {"Codigo",
       [](M &m) { Poner(m, Campo::VelocidadViento, NOCHE, 999.0); },
       "codigos rango saltos",
       "codigos",
       {LineaDe(NOCHE)},
       Veredicto::NoApto},
      {"Rango",
       [](M &m) { Poner(m, Campo::Presion, NOCHE, 120000.0); },
       "rango saltos",
       "rango",
       {LineaDe(NOCHE)},
       Veredicto::NoApto},
      {"Hueco",
       [](M &m) { Poner(m, Campo::DireccionViento, NOCHE, AUSENTE); },
       "huecos",
       "huecos",
       {LineaDe(NOCHE)},
       Veredicto::AptoConAvisos},
      {"Desorden",
       [](M &m) { std::swap(m.anio.lineas[NOCHE], m.anio.lineas[NOCHE + 1]); },
       "orden",
       "orden",
       {LineaDe(NOCHE)},
       Veredicto::NoApto},
      {"CierreDeMuchas",
       [](M &m) {
         for (std::size_t i = 0; i < 8760; ++i)
           Poner(m, Campo::DirectaNormal, i, 0.8 * m.anio[Campo::DirectaNormal].valores[i]);
       },
       "cierre",
       "cierre",
       {},
       Veredicto::NoApto},
      {"Noche",
       [](M &m) { Poner(m, Campo::GlobalHorizontal, NOCHE, 30.0); },
       "noche",
       "noche",
       {LineaDe(NOCHE)},
       Veredicto::AptoConAvisos},
      {"DirectaNormal",
       [](M &m) { Poner(m, Campo::DirectaNormal, MEDIODIA, 1400.0); },
       "cierre directa",
       "directa",
       {LineaDe(MEDIODIA)},
       Veredicto::AptoConAvisos},
      {"GlobalImposible",
       [](M &m) { Poner(m, Campo::GlobalHorizontal, MEDIODIA, 1999.0); },
       "cierre radiacion",
       "radiacion",
       {LineaDe(MEDIODIA)},
       Veredicto::AptoConAvisos},
      {"DifusaMayor",
       [](M &m) { Poner(m, Campo::GlobalHorizontal, MEDIODIA, 60.0); },
       "cierre radiacion",
       "radiacion",
       {LineaDe(MEDIODIA)},
       Veredicto::AptoConAvisos},
      {"SinHazNiDifusa", // y la global, buena: importada, toda sería directa
       [](M &m) {
         Anular(m, {Campo::DirectaNormal, Campo::DifusaHorizontal}, 0, 8760);
       },
       "cierre dia",
       "cierre",
       {},
       Veredicto::NoApto},
      {"UnaSemanaSinHazNiDifusa",
       [](M &m) {
         Anular(m, {Campo::DirectaNormal, Campo::DifusaHorizontal}, Posicion(6, 1, 1), 168);
       },
       "cierre dia",
       "cierre",
       {},
       Veredicto::AptoConAvisos},
      {"UnAnioSinRadiacion",
       [](M &m) { Anular(m, RADIACIONES, 0, 8760); },
       "dia",
       "dia",
       {},
       Veredicto::NoApto},
      {"UnMesSinRadiacion",
       [](M &m) { Anular(m, RADIACIONES, Posicion(6, 1, 1), 720); },
       "dia",
       "dia",
       {},
       Veredicto::NoApto},
      {"UnDiaSinRadiacion", [](M &m) { Anular(m, RADIACIONES, Posicion(6, 1, 1), 24); }, "dia", "dia",
       HorasAltas(Posicion(6, 1, 1), 24), Veredicto::AptoConAvisos},
      {"SinDifusa",
       [](M &m) {
         for (std::size_t i = 0; i < 8760; ++i) {
           const double difusa = m.anio[Campo::DifusaHorizontal].valores[i];
           Poner(m, Campo::GlobalHorizontal, i, m.anio[Campo::GlobalHorizontal].valores[i] - difusa);
           Poner(m, Campo::DifusaHorizontal, i, 0.0);
         }
       },
       "dia",
       "dia",
       {},
       Veredicto::NoApto},
      {"InfrarrojaParada", [](M &m) { Parar(m, Campo::InfrarrojaHorizontal, NOCHE, 60, 300.0); }, "parados",
       "parados", Tramo(NOCHE, 60), Veredicto::AptoConAvisos},
      {"SobreSaturacion",
       [](M &m) {
         Poner(m, Campo::HumedadRelativa, NOCHE, 104.0);
         Poner(m, Campo::TemperaturaRocio, NOCHE, AUSENTE);
       },
       "saturacion",
       "saturacion",
       {LineaDe(NOCHE)},
       Veredicto::AptoConAvisos},
      {"RocioSobreSeca",
       [](M &m) {
         Poner(m, Campo::TemperaturaRocio, NOCHE, m.anio[Campo::TemperaturaSeca].valores[NOCHE] + 1.0);
       },
       "saturacion humedad",
       "saturacion",
       {LineaDe(NOCHE)},
       Veredicto::AptoConAvisos},
      {"RelativaQueNoCasa",
       [](M &m) {
         Poner(m, Campo::HumedadRelativa, NOCHE, m.anio[Campo::HumedadRelativa].valores[NOCHE] - 30.0);
       },
       "humedad",
       "humedad",
       {LineaDe(NOCHE)},
       Veredicto::AptoConAvisos},
      {"CieloMasCalienteQueElAire",
       [](M &m) { Poner(m, Campo::InfrarrojaHorizontal, NOCHE, 690.0); },
       "cielo",
       "cielo",
       {LineaDe(NOCHE)},
       Veredicto::AptoConAvisos},
      {"TemperaturaParada",
       [](M &m) {
         Parar(m, Campo::TemperaturaSeca, NOCHE, 40);
         for (std::size_t i = NOCHE; i < NOCHE + 40; ++i) Poner(m, Campo::TemperaturaRocio, i, AUSENTE);
       },
       "parados", "parados", Tramo(NOCHE, 40), Veredicto::AptoConAvisos},
      {"VientoQueNoCambia", [](M &m) { Parar(m, Campo::VelocidadViento, 0, 8760); }, "parados", "parados",
       Tramo(0, 8760), Veredicto::AptoConAvisos},
      {"MesRepetido", [](M &m) { Copiar(m, Posicion(4, 1, 1), Posicion(11, 1, 1), 720); }, "meses", "meses",
       Tramo(Posicion(11, 1, 1), 720), Veredicto::NoApto},
      {"DiaRepetido", [](M &m) { Copiar(m, Posicion(4, 9, 1), Posicion(4, 10, 1), 24); }, "dias", "dias",
       Tramo(Posicion(4, 10, 1), 24), Veredicto::AptoConAvisos},
      {"Salto", [](M &m) { Poner(m, Campo::VelocidadViento, NOCHE, 45.0); }, "saltos", "saltos",
       Tramo(NOCHE, 2), Veredicto::AptoConAvisos},
      {"Altitud", [](M &m) { m.anio.sitio.altitud = 50.0; }, "altitud", "altitud", {}, Veredicto::NoApto},
      {"Registros", [](M &m) { m.registros = 8759; }, "registros", "registros", {}, Veredicto::NoApto},
      {"Bisiesto",
       [](M &m) {
         m.errores.push_back({ClaseNota::Bisiesto, std::nullopt, 1425, 1448, 24, "29 de febrero"});
       },
       "registros",
       "registros",
       {1425, 1448},
       Veredicto::NoApto},
      {"Reloj",
       [](M &m) {
         m.reloj.propuesto.reloj.desfaseMin = 0.0;
         m.reloj.concuerda = false;
       },
       "reloj",
       "reloj",
       {},
       Veredicto::AptoConAvisos},
      {"RelojDudoso",
       [](M &m) { m.reloj.confianza = ConfianzaReloj::Baja; },
       "reloj",
       "reloj",
       {},
       Veredicto::AptoConAvisos},
  };
}

class AuditoriaConUnDefecto : public ::testing::TestWithParam<Defecto> {};

TEST_P(AuditoriaConUnDefecto, LoEncuentraEnSuLineaYNadaMas) {
  const Defecto &defecto = GetParam();
  MateriaAuditoria materia = MateriaLimpia();
  defecto.estropear(materia);
  EXPECT_EQ(Faltas(materia), defecto.faltas);
  const Hallazgo hallazgo = Mirar(materia, defecto.clave);
  if (!defecto.lineas.empty()) {
    EXPECT_EQ(hallazgo.lineas, defecto.lineas) << hallazgo.texto;
  }
  EXPECT_FALSE(hallazgo.texto.empty());
  EXPECT_EQ(Auditar(materia).veredicto, defecto.veredicto);
}

INSTANTIATE_TEST_SUITE_P(Cada, AuditoriaConUnDefecto, ::testing::ValuesIn(Defectos()),
                         [](const auto &dato) { return std::string(dato.param.nombre); });

TEST(Auditoria, UnFicheroLimpioNoTieneFaltas) {
  EXPECT_EQ(Faltas(MateriaLimpia()), "");
  EXPECT_EQ(Auditar(MateriaLimpia()).veredicto, Veredicto::Apto);
}

TEST(Auditoria, UnMetDeQuinceColumnasLimpioTampoco) {
  const MateriaAuditoria materia = MateriaMetLimpia();
  EXPECT_EQ(Faltas(materia), "");
  // Lo que necesita una columna que no trae se dice, no se da por bueno.
  EXPECT_EQ(Mirar(materia, "cierre").gravedad, Gravedad::NoComprobada);
  EXPECT_EQ(Mirar(materia, "altitud").gravedad, Gravedad::NoComprobada);
  EXPECT_EQ(Mirar(materia, "humedad").gravedad, Gravedad::Conforme);
}

TEST(Auditoria, CadaComprobacionTieneSuClave) {
  std::set<std::string> claves;
  for (const Comprobacion &comprobacion : ComprobacionesDeAuditoria()) claves.insert(comprobacion.clave);
  EXPECT_EQ(claves.size(), ComprobacionesDeAuditoria().size());
}

TEST(Auditoria, DiceQuePresionCasaLasHumedades) {
  // Absoluta calculada a 500 m; la cabecera dice el nivel del mar: la relativa no cuadra con 101,3 kPa.
  MateriaAuditoria materia = MateriaMetLimpia();
  materia.anio.sitio.altitud = 0.0;
  const Hallazgo hallazgo = Mirar(materia, "humedad");
  EXPECT_EQ(hallazgo.gravedad, Gravedad::Aviso);
  EXPECT_NE(hallazgo.texto.find("95.5 kPa (500 m)"), std::string::npos) << hallazgo.texto;
  EXPECT_NE(hallazgo.texto.find("101.3 kPa"), std::string::npos) << hallazgo.texto;
}

TEST(Auditoria, UnaDirectaHorizontalImposibleSeVePorSuNormal) {
  MateriaAuditoria materia = MateriaMetLimpia();
  Poner(materia, Campo::DirectaHorizontal, MEDIODIA, 1350.0);
  EXPECT_EQ(Mirar(materia, "directa").lineas, std::vector<int>{LineaDe(MEDIODIA)});
}

/// Un .met limpio con una columna cambiada en todo el año.
MateriaAuditoria MetCon(Campo campo, double valor) {
  MateriaAuditoria materia = MateriaMetLimpia();
  Parar(materia, campo, 0, 8760, valor);
  return materia;
}

TEST(Auditoria, LasColumnasPropiasDeUnMetTambienSeParan) {
  EXPECT_EQ(Mirar(MetCon(Campo::TemperaturaCielo, 0.0), "parados").gravedad, Gravedad::Grave);
  EXPECT_EQ(Mirar(MetCon(Campo::DirectaHorizontal, 0.0), "dia").gravedad, Gravedad::Grave);
  EXPECT_EQ(Mirar(MetCon(Campo::DirectaHorizontal, 20.0), "parados").gravedad, Gravedad::Grave);
  MateriaAuditoria nublado = MateriaMetLimpia(); // quince días cubiertos son tiempo, no un sensor
  Parar(nublado, Campo::DirectaHorizontal, Posicion(11, 10, 1), 360, 0.0);
  EXPECT_EQ(Faltas(nublado), "");
}

TEST(Auditoria, LaGlobalDeUnMetEsLaSumaDeSusPartes) {
  MateriaAuditoria materia = MateriaMetLimpia();
  Poner(materia, Campo::DirectaHorizontal, MEDIODIA, 1000.0);
  EXPECT_EQ(Mirar(materia, "radiacion").gravedad, Gravedad::Conforme);
  Poner(materia, Campo::DifusaHorizontal, MEDIODIA, 700.0);
  EXPECT_EQ(Mirar(materia, "radiacion").lineas, std::vector<int>{LineaDe(MEDIODIA)});
}

TEST(Auditoria, UnAnioAOscurasNoSeCuentaDosVeces) {
  MateriaAuditoria materia = MateriaLimpia();
  Anular(materia, RADIACIONES, 0, 8760);
  const std::string texto = Mirar(materia, "dia").texto;
  EXPECT_TRUE(texto.starts_with("sin radiación: ")) << texto;
  EXPECT_EQ(texto.find("directa"), std::string::npos) << texto;
}

TEST(Auditoria, LoQueUnaTormentaDejaAOscurasNoEsFalta) {
  MateriaAuditoria materia = MateriaLimpia();
  Anular(materia, RADIACIONES, MEDIODIA, 5);
  EXPECT_EQ(Faltas(materia), "");
  Anular(materia, RADIACIONES, MEDIODIA, 6);
  EXPECT_EQ(Faltas(materia), "dia");
}

TEST(Auditoria, SinSitioLoQueNecesitaElSolNoSeComprueba) {
  MateriaAuditoria materia = MateriaLimpia();
  materia.sol = {};
  for (const char *clave : {"cierre", "noche", "dia", "directa", "radiacion"})
    EXPECT_EQ(Mirar(materia, clave).gravedad, Gravedad::NoComprobada) << clave;
}

TEST(Auditoria, UnaPresionCorrienteNoEsUnCodigo) {
  MateriaAuditoria materia = MateriaLimpia();
  Poner(materia, Campo::Presion, NOCHE, 99999.0);
  EXPECT_EQ(Mirar(materia, "codigos").gravedad, Gravedad::Conforme);
  Poner(materia, Campo::Presion, NOCHE, 999999.0);
  EXPECT_EQ(Mirar(materia, "codigos").gravedad, Gravedad::Grave);
}

TEST(Auditoria, UnAnioVacioNoRevienta) {
  MateriaAuditoria materia;
  materia.registros = 0;
  materia.errores.push_back({ClaseNota::Fichero, std::nullopt, 0, 0, 1, "no se puede abrir"});
  EXPECT_EQ(Auditar(materia).veredicto, Veredicto::NoApto);
  EXPECT_EQ(Faltas(materia), "registros");
}

TEST(Auditoria, LasCosturasEntreMesesNoSonSaltos) {
  MateriaAuditoria materia = MateriaLimpia();
  for (std::size_t i = Posicion(5, 1, 1); i < Posicion(6, 1, 1); ++i)
    Poner(materia, Campo::Presion, i, materia.anio[Campo::Presion].valores[i] + 1500.0);
  EXPECT_EQ(Faltas(materia), "");
}

TEST(Auditoria, LaNocheYElAireSaturadoPuedenDurar) {
  MateriaAuditoria materia = MateriaLimpia();
  for (std::size_t i = NOCHE; i < NOCHE + 60; ++i) {
    Poner(materia, Campo::HumedadRelativa, i, 100.0);
    Poner(materia, Campo::TemperaturaRocio, i, materia.anio[Campo::TemperaturaSeca].valores[i]);
  }
  EXPECT_EQ(Faltas(materia), "");
}

} // namespace
} // namespace tesmo::prueba
