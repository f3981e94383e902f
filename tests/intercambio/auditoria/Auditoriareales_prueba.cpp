#include "tests/comun/Datosreales.h"
#include "tests/intercambio/auditoria/Materiadeprueba.h"

#include "core/Ficheros.h"
#include "intercambio/Ficheroimportable.h"
#include "intercambio/auditoria/Materia.h"
#include "intercambio/auditoria/Textoauditoria.h"
#include "tests/comun/Apoyos.h"

#include <gtest/gtest.h>

namespace tesmo::prueba {
namespace {

/// Un fichero real y lo que de verdad tiene de raro, mirado a mano.
struct FicheroReal {
  const char *nombre;
  const char *faltas;
  Veredicto veredicto;
  const char *faltasDelMet; ///< las del .met que da importarlo
};
void PrintTo(const FicheroReal &fichero, std::ostream *salida) { *salida << fichero.nombre; }

class AuditoriaDeFicheroReal : public ::testing::TestWithParam<FicheroReal> {};

TEST_P(AuditoriaDeFicheroReal, SoloSeQuejaDeLoQueEsRaro) {
  TESMO_DATO_REAL(ruta, GetParam().nombre);
  OpcionesLectura opciones;
  opciones.paraAuditar = true;
  const MateriaAuditoria materia = PrepararAuditoria(LeerFicheroClima(ruta, opciones));
  EXPECT_EQ(Faltas(materia), GetParam().faltas);
  EXPECT_EQ(Auditar(materia).veredicto, GetParam().veredicto);
}

TEST_P(AuditoriaDeFicheroReal, SuImportacionTieneSusFaltasYNingunaNuestra) {
  TESMO_DATO_REAL(ruta, GetParam().nombre);
  const DirectorioTemporal raiz;
  FicheroImportable fichero = PrepararFichero(ruta, {});
  fichero.peticion.nombre = "Real";
  fichero.peticion.provincia = "P";
  fichero.huecosLargos = HuecosLargos::RellenarVecinos;
  ASSERT_EQ(ImportarFichero(raiz.Ruta().string(), fichero).resultado.error, "");
  const FicheroImportable met = PrepararFichero((raiz / "Real.met").string(), {});
  EXPECT_EQ(Faltas(met.materia), GetParam().faltasDelMet)
      << TextoAuditoria("Real.met", met.materia, met.auditoria);
  EXPECT_EQ(met.materia.reloj.confianza, ConfianzaReloj::Alta);
}

INSTANTIATE_TEST_SUITE_P(Cada, AuditoriaDeFicheroReal,
                         ::testing::Values(
                             // tres horas de viento de −0,5 m/s, que no es una velocidad
                             FicheroReal{"PVGIS_TMY_37.095_-2.3585_PSA_Tabernas.epw", "huecos rango",
                                         Veredicto::AptoConAvisos, ""},
                             // del 16 al 18 de mayo y otras horas sueltas, ninguna radiación a mediodía
                             FicheroReal{"PVGIS_tmy_45.000_8.000_2005_2023.epw", "dia",
                                         Veredicto::AptoConAvisos, "dia saturacion humedad"},
                             FicheroReal{"PVGIS_tmy_45.000_8.000_2005_2023.csv", "dia",
                                         Veredicto::AptoConAvisos, "dia saturacion humedad"},
                             // (el .met no lleva su presión, que es la de un sitio 130 m más bajo que el de
                             // su cabecera) la misma presión en las 8760 horas
                             FicheroReal{"TMY3_703165TY_SandPoint_Alaska.csv", "parados",
                                         Veredicto::AptoConAvisos, ""}),
                         [](const auto &dato) {
                           std::string nombre;
                           for (char c : std::string(dato.param.nombre)) {
                             if (std::isalnum(static_cast<unsigned char>(c)) != 0) nombre += c;
                           }
                           return nombre;
                         });

} // namespace
} // namespace tesmo::prueba
