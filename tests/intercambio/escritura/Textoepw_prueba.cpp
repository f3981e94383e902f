#include "core/Ficheros.h"
#include "intercambio/comun/Perfilmensual.h"
#include "intercambio/escritura/Textoepw.h"
#include "intercambio/formatos/Lectura.h"
#include "tests/comun/Datosreales.h"
#include "tests/intercambio/escritura/Apoyosescritura.h"
#include "tests/intercambio/reloj/Aniofisico.h"

#include <gtest/gtest.h>

#include <cmath>
#include <sstream>

namespace tesmo {
namespace {

std::vector<std::string> Lineas(const std::string &texto) {
  std::vector<std::string> lineas;
  std::istringstream flujo(texto);
  for (std::string linea; std::getline(flujo, linea);) lineas.push_back(linea);
  return lineas;
}

std::vector<std::string> Campos(const std::string &linea) {
  std::vector<std::string> campos;
  std::istringstream flujo(linea);
  for (std::string campo; std::getline(flujo, campo, ',');) campos.push_back(campo);
  return campos;
}

TEST(EscrituraDeUnEpw, OchoLineasDeCabeceraY8760RegistrosDe35Campos) {
  const std::vector<std::string> lineas = Lineas(TextoEpw(prueba::AnioAMano()));
  ASSERT_EQ(lineas.size(), 8768U);
  EXPECT_EQ(lineas[0], "LOCATION,Prueba,Region,ESP,Tesmo,1,37.25,-3.5,1,680");
  constexpr std::array<const char *, 8> CLAVES{"LOCATION",
                                               "DESIGN CONDITIONS",
                                               "TYPICAL/EXTREME PERIODS",
                                               "GROUND TEMPERATURES",
                                               "HOLIDAYS/DAYLIGHT SAVINGS",
                                               "COMMENTS 1",
                                               "COMMENTS 2",
                                               "DATA PERIODS"};
  for (std::size_t i = 0; i < CLAVES.size(); ++i) EXPECT_EQ(Campos(lineas[i])[0], CLAVES[i]);
  EXPECT_NE(lineas[6].find("Sin dato"), std::string::npos);
  EXPECT_EQ(Campos(lineas[6]).size(), 2U); // un comentario no lleva comas
  for (std::size_t i = 8; i < lineas.size(); ++i) ASSERT_EQ(Campos(lineas[i]).size(), 35U) << lineas[i];
  EXPECT_TRUE(lineas[8].starts_with("2001,1,1,1,60,")) << lineas[8];
  EXPECT_TRUE(lineas.back().starts_with("2001,12,31,24,60,")) << lineas.back();
}

TEST(EscrituraDeUnEpw, LoQueTesmoNoSabeLlevaElCodigoDeSuCampo) {
  AnioSolar anio = prueba::AnioAMano();
  const auto registro = [&] { return Campos(Lineas(TextoEpw(anio))[8 + 4000]); };
  const std::vector<std::string> conPresion = registro();
  // Diccionario de datos del formato: código de «sin dato» de cada campo.
  const std::vector<std::pair<std::size_t, std::string>> sinDato{
      {10, "9999"}, {11, "9999"},      {16, "999999"}, {17, "999999"}, {18, "999999"},
      {19, "9999"}, {22, "99"},        {23, "99"},     {24, "9999"},   {25, "99999"},
      {26, "9"},    {27, "999999999"}, {28, "999"},    {29, "0.999"},  {30, "999"},
      {31, "99"},   {32, "999"},       {33, "999"},    {34, "99"}};
  for (const auto &[campo, codigo] : sinDato) EXPECT_EQ(conPresion[campo], codigo) << campo;
  EXPECT_EQ(conPresion[9], "93500");
  anio.presion.procedencias.assign(8760, Procedencia::Inventada);
  EXPECT_EQ(registro()[9], "999999");
  EXPECT_NE(Lineas(TextoEpw(anio))[6].find("presión"), std::string::npos);
}

TEST(EscrituraDeUnEpw, UnSitioConComasOSinDatosNoRompeLaCabecera) {
  AnioSolar anio = prueba::AnioAMano();
  anio.sitio = {"Palma, Mallorca\n", "", "", "", 39.5, 2.75, AUSENTE};
  EXPECT_EQ(Lineas(TextoEpw(anio))[0], "LOCATION,Palma Mallorca,-,-,Tesmo,-,39.5,2.75,1,0");
}

/// Energía [kWh/m²] o media de un campo cada mes.
std::array<double, 12> PorMeses(const AnioCanonico &anio, Campo campo, bool media) {
  std::array<double, 12> meses{};
  for (std::size_t mes = 0; mes < 12; ++mes) {
    const std::size_t horas = DiasDe(mes) * 24;
    for (std::size_t i = 0; i < horas; ++i) meses[mes] += anio[campo].valores[PrimerDiaDe(mes) * 24 + i];
    meses[mes] /= media ? static_cast<double>(horas) : 1000.0;
  }
  return meses;
}

/// Lleva @p anio a hora solar, lo escribe como EPW, lo lee y compara mes a mes.
void ComprobarVuelta(const AnioCanonico &anio, const RelojFichero &reloj) {
  const ResultadoConversion ida = LlevarAHoraSolar(anio, reloj);
  ASSERT_TRUE(ida.anio) << ida.error;
  const ResultadoLectura vuelta = LeerTextoClima(TextoEpw(*ida.anio));
  ASSERT_TRUE(vuelta.SinErrores());
  EXPECT_EQ(vuelta.formato, FormatoClima::Epw);
  for (const Campo campo : {Campo::GlobalHorizontal, Campo::DifusaHorizontal}) {
    const auto antes = PorMeses(anio, campo, false);
    const auto despues = PorMeses(*vuelta.anio, campo, false);
    for (std::size_t mes = 0; mes < 12; ++mes)
      EXPECT_NEAR(despues[mes], antes[mes], 0.002 * antes[mes]) << static_cast<int>(campo) << " mes " << mes;
  }
  const auto antes = PorMeses(anio, Campo::TemperaturaSeca, true);
  const auto despues = PorMeses(*vuelta.anio, Campo::TemperaturaSeca, true);
  for (std::size_t mes = 0; mes < 12; ++mes) EXPECT_NEAR(despues[mes], antes[mes], 0.05) << "mes " << mes;
}

TEST(EscrituraDeUnEpw, IrYVolverConservaEnergiasDosPorMilYTemperaturasCincoCentesimas) {
  for (const double desfase : {-30.0, 0.0}) {
    const RelojFichero reloj{TiempoEtiqueta::OficialEstandar, 1.0, desfase};
    ComprobarVuelta(prueba::AnioFisico({.reloj = reloj}), reloj);
  }
}

TEST(EscrituraDeUnEpw, IrYVolverConUnAnioDeVerdad) {
  TESMO_DATO_REAL(ruta, "PVGIS_TMY_37.095_-2.3585_PSA_Tabernas.epw");
  const ResultadoLectura lectura = LeerFicheroClima(ruta);
  ASSERT_TRUE(lectura.SinErrores());
  ComprobarVuelta(*lectura.anio, {TiempoEtiqueta::Utc, lectura.anio->reloj.husoHoras, -50.0});
}

} // namespace
} // namespace tesmo
