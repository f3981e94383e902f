#include "meteo/Magnitudes.h"

#include <gtest/gtest.h>
#include <set>
#include <string>

using namespace tesmo;

namespace {

/// Une con blancos un campo de las 21 magnitudes del visor.
template <typename Campo>
std::string Unir(Campo campo) {
  std::string texto;
  for (std::size_t i = 0; i < NUMERO_MAGNITUDES_VISOR; ++i) {
    texto += (i == 0 ? "" : " ") + std::string(campo(MAGNITUDES[i]));
  }
  return texto;
}

} // namespace

TEST(Magnitudes, OrdenDeLosCodigos) {
  EXPECT_EQ(Unir([](const FichaMagnitud &f) { return f.codigo; }),
            "TS RSDr RSDf HA VV DV C Al Az TC TR TH HR E VE CE DN Dr Df R G");
}

TEST(Magnitudes, ClavesDeSerieDelVisor) {
  EXPECT_EQ(
      Unir([](const FichaMagnitud &f) { return f.claveSerie; }),
      "ts rd rdif w vv dv cenith altura azimuth tc tr th hr entalpia ve ce dn directa difusa ref global");
}

TEST(Magnitudes, CasillasYColumnasDeLaExportacionEnSuOrden) {
  std::string columnas, patrones, casillas;
  for (const Magnitud magnitud : ORDEN_DE_EXPORTACION) {
    columnas.append(Ficha(magnitud).columna).append(" ");
    patrones.append(Ficha(magnitud).patron).append(" ");
    casillas.append(Ficha(magnitud).casillaExportacion).append(" ");
  }
  EXPECT_EQ(columnas,
            "ts rd rdif w vv dv cenit h azimuth tr tc th hr entalpia vol_esp cal_esp Dir_nor directa "
            "difusa refle global ");
  EXPECT_EQ(patrones, "0.0 0 0 0.0000 0.0 0 0.0 0.0 0.0 0.0 0.0 0.0 0.0 0 0.000 0 0 0 0 0 0 ");
  EXPECT_EQ(casillas,
            "cbTemSec cbRadDir cbRadDif cbHumAbs cbVelVie cbDirVie cbCenit cbAltura cbAzimut cbTemRoc "
            "cbTemCie cbTemHum cbHumRel cbEnt cbVolEsp cbCalEsp cbDirNor cbDir cbDif cbRef cbGlo ");
}

TEST(Magnitudes, SoloLaHumedadEnGramosNoSeExporta) {
  for (const FichaMagnitud &ficha : MAGNITUDES) {
    EXPECT_EQ(SeExporta(ficha), ficha.magnitud != Magnitud::HA) << ficha.codigo;
  }
}

TEST(Magnitudes, ClavesYColoresDeFabrica) {
  std::string claves;
  for (std::size_t i = 0; i < NUMERO_MAGNITUDES_VISOR; ++i) {
    claves.append(MAGNITUDES[i].claveColor.substr(std::string_view("COLOR-").size())).append(" ");
  }
  EXPECT_EQ(claves, "TS RSDr RSDf HA VV DV C Al Az TC TR TH HR E VE CE DN Dr Df R G ");
  EXPECT_EQ(Ficha(Magnitud::TS).color, 0x8080FFU);
  EXPECT_EQ(Ficha(Magnitud::TC).color, 0x329FDAU);
  EXPECT_EQ(Ficha(Magnitud::G).color, 0xDB9BDAU);
  std::set<std::uint32_t> colores;
  for (std::size_t i = 0; i < NUMERO_MAGNITUDES_VISOR; ++i) colores.insert(MAGNITUDES[i].color);
  EXPECT_EQ(colores.size(), NUMERO_MAGNITUDES_VISOR);
}

TEST(Magnitudes, LasRarezasDelDialogoDeColoresSeConservan) {
  EXPECT_EQ(Ficha(Magnitud::RSDr).leyendaColor, "Radiacion solar directa");
  EXPECT_EQ(Ficha(Magnitud::RSDf).leyendaColor, "Radiación solar difusa");
  EXPECT_EQ(Ficha(Magnitud::TR).leyendaColor, "Temperatura de rocio");
  EXPECT_EQ(Ficha(Magnitud::RSDf).etiquetaColor, "lbDSDf");
}

TEST(Magnitudes, LasListasDeOrdenNoRepitenNiOlvidan) {
  EXPECT_EQ(std::set<Magnitud>(ORDEN_DE_SERIES.begin(), ORDEN_DE_SERIES.end()).size(), NUMERO_MAGNITUDES);
  EXPECT_EQ(std::set<Magnitud>(ORDEN_DE_EXPORTACION.begin(), ORDEN_DE_EXPORTACION.end()).size(), 21U);
  std::set<std::string_view> rotulos, codigos;
  for (const FichaMagnitud &ficha : MAGNITUDES) {
    rotulos.insert(ficha.rotulo);
    codigos.insert(ficha.codigo);
  }
  EXPECT_EQ(rotulos.size(), NUMERO_MAGNITUDES);
  EXPECT_EQ(codigos.size(), NUMERO_MAGNITUDES);
}

TEST(Magnitudes, LaUnidadEsLoQueHayEntreLosParentesisExteriores) {
  EXPECT_EQ(Unidad(Magnitud::CE), "J/(kg K)");
  EXPECT_EQ(Unidad(Magnitud::TS), "ºC");
  EXPECT_EQ(Unidad(Magnitud::DV), "º N");
  EXPECT_EQ(UnidadDeRotulo("sin unidad"), "");
  EXPECT_EQ(UnidadDeRotulo(")al revés("), "");
}

TEST(Magnitudes, SeBuscanPorRotuloExactoYPorCodigo) {
  ASSERT_NE(BuscarPorRotulo("Humedad absoluta (kg/kg)"), nullptr);
  EXPECT_EQ(BuscarPorRotulo("Humedad absoluta (kg/kg)")->magnitud, Magnitud::HAkg);
  EXPECT_EQ(BuscarPorRotulo("temperatura seca (ºC)"), nullptr);
  EXPECT_EQ(BuscarPorRotulo("Temperatura seca"), nullptr);
  EXPECT_EQ(BuscarPorRotulo(""), nullptr);
  ASSERT_NE(BuscarPorCodigo("Dr"), nullptr);
  EXPECT_EQ(BuscarPorCodigo("Dr")->rotulo, "Directa (W/m²)");
  EXPECT_EQ(BuscarPorCodigo("dr"), nullptr);
  EXPECT_EQ(BuscarPorCodigo(""), nullptr);
}

TEST(Magnitudes, LaHumedadEnGramosEscalaLaLeida) {
  EXPECT_EQ(Ficha(Magnitud::HA).fuente.escala, 1000.0F);
  EXPECT_EQ(Ficha(Magnitud::HAkg).fuente.escala, 1.0F);
  EXPECT_FALSE(Ficha(Magnitud::HA).fuente.derivada);
  EXPECT_TRUE(Ficha(Magnitud::Al).fuente.derivada);
}
