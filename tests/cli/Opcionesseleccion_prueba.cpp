#include "cli/Opcionesseleccion.h"

#include "tests/comun/Apoyos.h"

#include <gtest/gtest.h>

namespace tesmo::cli {
namespace {

/// El estado del fallo que lanza interpretar @p opciones; Hecho si no lanza.
Estado EstadoDe(const OpcionesSeleccion &opciones) {
  try {
    static_cast<void>(Interpretar(opciones));
  } catch (const Fallo &fallo) {
    return fallo.DameEstado();
  }
  return Estado::Hecho;
}

OpcionesSeleccion DeLocalidad() {
  OpcionesSeleccion opciones;
  opciones.localidad = "Rota";
  return opciones;
}

TEST(SeleccionDeOrden, ValoresDeFabrica) {
  const PeticionSeleccion peticion = Interpretar(DeLocalidad());
  EXPECT_EQ(peticion.localidad, "Rota");
  EXPECT_EQ(peticion.fichero, "");
  EXPECT_EQ(peticion.periodo, (Periodo{{1, 1, 1}, {12, 31, 24}}));
  EXPECT_EQ(peticion.superficie, (Seleccion::Superficie{"90", "0", "0.2"}));
  EXPECT_FALSE(peticion.presion.has_value());
  EXPECT_FALSE(peticion.altitud.has_value());
  EXPECT_EQ(peticion.horizonte + peticion.base, "");
}

TEST(SeleccionDeOrden, LocalidadOFicheroYSoloUno) {
  EXPECT_EQ(EstadoDe({}), Estado::UsoIncorrecto);
  OpcionesSeleccion opciones = DeLocalidad();
  opciones.fichero = "x.met";
  EXPECT_EQ(EstadoDe(opciones), Estado::UsoIncorrecto);
}

TEST(SeleccionDeOrden, PresionOAltitudYSoloUna) {
  OpcionesSeleccion opciones = DeLocalidad();
  opciones.presion = "93000";
  EXPECT_EQ(Interpretar(opciones).presion, 93000.0F);
  opciones.altitud = "650";
  EXPECT_EQ(EstadoDe(opciones), Estado::UsoIncorrecto);
  opciones.presion.reset();
  EXPECT_EQ(Interpretar(opciones).altitud, 650.0F);
}

TEST(SeleccionDeOrden, PresionYAltitudSonNumerosSinMasLimites) {
  OpcionesSeleccion opciones = DeLocalidad();
  opciones.presion = "x";
  EXPECT_EQ(EstadoDe(opciones), Estado::UsoIncorrecto);
  opciones.presion = "-5";
  EXPECT_EQ(Interpretar(opciones).presion, -5.0F);
  opciones.presion.reset();
  opciones.altitud = "x";
  EXPECT_EQ(EstadoDe(opciones), Estado::UsoIncorrecto);
  opciones.altitud = "9001";
  EXPECT_EQ(Interpretar(opciones).altitud, 9001.0F);
}

TEST(SeleccionDeOrden, PeriodoQueAcabaAntesDeEmpezar) {
  OpcionesSeleccion opciones = DeLocalidad();
  opciones.desde = "2/1/5";
  opciones.hasta = "2/1/5";
  EXPECT_EQ(Interpretar(opciones).periodo, (Periodo{{2, 1, 5}, {2, 1, 5}}));
  opciones.hasta = "2/1/4";
  EXPECT_EQ(EstadoDe(opciones), Estado::UsoIncorrecto);
}

TEST(SeleccionDeOrden, SuperficieEnTextosDeNumeros) {
  OpcionesSeleccion opciones = DeLocalidad();
  opciones.inclinacion = "30,5";
  opciones.orientacion = "-45";
  opciones.albedo = ""; // se dirá con su mensaje al cargar
  EXPECT_EQ(Interpretar(opciones).superficie, (Seleccion::Superficie{"30,5", "-45", ""}));
  opciones.albedo = "blanco";
  EXPECT_EQ(EstadoDe(opciones), Estado::UsoIncorrecto);
}

TEST(SeleccionDeOrden, RutaVaciaEsUnaEntradaQueFalta) {
  OpcionesSeleccion opciones;
  opciones.fichero = "";
  EXPECT_EQ(EstadoDe(opciones), Estado::FaltaEntrada);
}

TEST(SeleccionDeOrden, RutasAbsolutas) {
  OpcionesSeleccion opciones;
  opciones.fichero = "a/b.met";
  opciones.horizonte = "h.txt";
  opciones.base = ".";
  const PeticionSeleccion peticion = Interpretar(opciones);
  for (const std::string &ruta : {peticion.fichero, peticion.horizonte, peticion.base})
    EXPECT_TRUE(std::filesystem::path(ruta).is_absolute()) << ruta;
}

TEST(SeleccionDeOrden, MagnitudesPorCodigoOPorRotuloExacto) {
  EXPECT_EQ(LeerMagnitudes({"DV", "Dr", "HAkg", "Temperatura seca (ºC)"}),
            (std::vector<Magnitud>{Magnitud::DV, Magnitud::Dr, Magnitud::HAkg, Magnitud::TS}));
  for (const char *nombre : {"ts", "temperatura seca (ºC)", "Temperatura seca", "", "XX"})
    EXPECT_THROW(static_cast<void>(LeerMagnitudes({"TS", nombre})), Fallo) << nombre;
}

} // namespace
} // namespace tesmo::cli
