#include "intercambio/Aniodefichero.h"
#include "intercambio/Ficheroimportable.h"
#include "intercambio/auditoria/Textoauditoria.h"
#include "intercambio/escritura/Textoanio.h"
#include "tests/comun/Apoyos.h"
#include "tests/intercambio/formatos/Generadorclima.h"
#include "tests/intercambio/reloj/Aniofisico.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tesmo {
namespace {

class ImportacionDeUnFichero : public ::testing::Test {
protected:
  std::string Epw(prueba::LineasFichero lineas) const {
    return raiz_.Escribir("x.epw", prueba::Unir(lineas));
  }
  FicheroImportado Importar(FicheroImportable fichero) const {
    fichero.peticion.provincia = "P";
    return ImportarFichero((raiz_ / "m").string(), fichero);
  }
  prueba::DirectorioTemporal raiz_;
};

bool Dice(const std::vector<std::string> &avisos, const std::string &trozo) {
  return std::ranges::any_of(
      avisos, [&](const std::string &aviso) { return aviso.find(trozo) != std::string::npos; });
}

TEST_F(ImportacionDeUnFichero, LaAltitudQueSeDaMandaSobreLaDelFichero) {
  prueba::LineasFichero lineas = prueba::LineasEpw();
  prueba::CambiarCampo(lineas[0], 9, "99999");
  FicheroImportable fichero = PrepararFichero(Epw(lineas), {});
  const FicheroImportado sin = Importar(fichero);
  EXPECT_TRUE(Dice(sin.avisos, "no da una altitud creíble"));
  EXPECT_EQ(sin.resultado.registro.decimo, 0.0F);
  fichero.altitud = 1500.0;
  fichero.peticion.reemplazar = true;
  const FicheroImportado con = Importar(fichero);
  EXPECT_EQ(con.resultado.error, "");
  EXPECT_FALSE(Dice(con.avisos, "altitud"));
  EXPECT_EQ(con.resultado.registro.decimo, 1500.0F);
}

TEST_F(ImportacionDeUnFichero, LaZonaDeLasNormalesSoloSePropone) {
  NormalesLocalidad normales;
  normales.latitud = 37.18, normales.longitud = -3.78, normales.altitud = 567.0; // el sitio del EPW
  normales.zona = ZONA_COSTA;
  FicheroImportable fichero = PrepararFichero(Epw(prueba::LineasEpw()), {normales});
  EXPECT_EQ(fichero.peticion.zona, "");
  EXPECT_EQ(fichero.peticion.zonaPropuesta, ZONA_COSTA);
}

TEST_F(ImportacionDeUnFichero, ElHusoEscritoEsElMismoQueEnUnLote) {
  prueba::LineasFichero lineas = prueba::LineasEpw();
  prueba::CambiarCampo(lineas[0], 7, "-75.2"); // y la cabecera sigue diciendo UTC+1
  const std::string epw = Epw(lineas);
  FicheroImportable fichero = PrepararFichero(epw, {});
  fichero.reloj.tiempo = TiempoEtiqueta::OficialEstandar;
  const double delLote =
      LeerAnioDeFichero(epw, {.tiempo = TiempoEtiqueta::OficialEstandar}).conversion.anio->husoHoras;
  EXPECT_EQ(delLote, -5.0);
  fichero.reloj.husoHoras = 1.0;
  EXPECT_EQ(Importar(fichero).resultado.registro.longitudRef, -75.0F);
  fichero.reloj.husoHoras = -4.5; // el que se dice se escribe
  fichero.peticion.reemplazar = true;
  EXPECT_EQ(Importar(fichero).resultado.registro.longitudRef, -67.5F);
}

TEST_F(ImportacionDeUnFichero, LosAvisosDeLaLecturaLleganConElResultado) {
  prueba::LineasFichero lineas = prueba::LineasEpw();
  prueba::CambiarCampo(lineas[prueba::CABECERA_EPW + 100], 6, "99.9"); // la temperatura de una hora
  const FicheroImportado hecho = Importar(PrepararFichero(Epw(lineas), {}));
  EXPECT_EQ(hecho.resultado.error, "");
  EXPECT_TRUE(Dice(hecho.avisos, "línea 109")) << (hecho.avisos.empty() ? "" : hecho.avisos.front());
  EXPECT_EQ(hecho.avisos, AvisosDe(LeerAnioDeFichero((raiz_ / "x.epw").string(), {})));
}

TEST_F(ImportacionDeUnFichero, ElMetQueResultaEsAptoComoSuFuente) {
  const RelojFichero reloj{TiempoEtiqueta::OficialEstandar, 1.0, -30.0};
  AnioCanonico anio = prueba::AnioFisico({.reloj = reloj});
  for (std::size_t i = 0; i < anio.lineas.size(); ++i) { // las suyas duran días sin cambiar
    const double kelvin = anio[Campo::TemperaturaSeca].valores[i] + 273.15;
    const double marea = 150.0 * std::cos(static_cast<double>(i) * std::numbers::pi / 6.0);
    anio[Campo::Presion].valores[i] += marea;
    anio[Campo::InfrarrojaHorizontal].Poner(i, 0.8 * 5.67e-8 * std::pow(kelvin, 4.0), Procedencia::Copiada);
  }
  const ResultadoConversion conversion = LlevarAHoraSolar(anio, reloj);
  ASSERT_TRUE(conversion.anio) << conversion.error;
  const FicheroImportable fuente =
      PrepararFichero(raiz_.Escribir("x.epw", TextoDeAnio(*conversion.anio, FormatoSalida::Epw)), {});
  EXPECT_EQ(fuente.auditoria.veredicto, Veredicto::Apto)
      << TextoAuditoria("x.epw", fuente.materia, fuente.auditoria);
  const FicheroImportado hecho = Importar(fuente);
  ASSERT_EQ(hecho.resultado.error, "");
  const FicheroImportable met =
      PrepararFichero((raiz_ / ("m/" + hecho.resultado.registro.fichero)).string(), {});
  EXPECT_EQ(met.auditoria.veredicto, Veredicto::Apto) << TextoAuditoria("x.met", met.materia, met.auditoria);
}

} // namespace
} // namespace tesmo
