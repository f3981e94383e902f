#include "core/Rutas.h"
#include "tests/comun/Apoyos.h"

#include <gtest/gtest.h>

using namespace tesmo;
using namespace tesmo::prueba;

TEST(Rutas, ComponeBaseDirectorioYNombre) {
  DirectorioTemporal directorio;
  directorio.Escribir("config.ini", "; rutas\nPER = Perfiles\\\nMET = Meteo/\nRES = \"Mis resultados\\\"\n");
  const std::string base = TextoDeRuta(directorio.Ruta()) + "/";
  ServicioConfiguracion servicio(base);
  EXPECT_TRUE(servicio.HayFichero());
  EXPECT_EQ(servicio.DirectorioBase(), base);
  EXPECT_EQ(servicio.RutaPerfiles("a.txt"), base + "Perfiles/a.txt");
  EXPECT_EQ(servicio.RutaMeteo("LocalidadesCC"), base + "Meteo/LocalidadesCC");
  EXPECT_EQ(servicio.RutaResultados("r"), base + "Mis resultados/r");
  EXPECT_EQ(servicio.RutaPrograma("tesmo.inp"), base + "tesmo.inp") << "clave ausente: directorio base";
}

TEST(Rutas, CadaRutaPisaLaAnterior) {
  DirectorioTemporal directorio;
  ServicioConfiguracion servicio(TextoDeRuta(directorio.Ruta()));
  const std::string &primera = servicio.RutaMeteo("a");
  const std::string &segunda = servicio.RutaMeteo("b");
  EXPECT_EQ(primera, segunda);
  EXPECT_EQ(primera.back(), 'b');
}

TEST(Rutas, SinConfigIniTodoCaeEnElDirectorioBase) {
  DirectorioTemporal directorio;
  ServicioConfiguracion servicio(TextoDeRuta(directorio.Ruta()));
  EXPECT_FALSE(servicio.HayFichero());
  EXPECT_EQ(servicio.RutaMeteo("GDR.TXT"), TextoDeRuta(directorio / "GDR.TXT"));
  std::string valor = "intacto";
  EXPECT_EQ(servicio.LeerClave("MET ", valor), -1);
  EXPECT_EQ(valor, "intacto");
}

TEST(Rutas, UnConfigIniQueNoSePuedeLeerCuentaComoAusente) {
  DirectorioTemporal conDirectorio;
  std::filesystem::create_directory(conDirectorio / "config.ini");
  ServicioConfiguracion servicio(TextoDeRuta(conDirectorio.Ruta()));
  EXPECT_EQ(servicio.RutaMeteo("a"), TextoDeRuta(conDirectorio / "a"));

  DirectorioTemporal cerrado;
  const std::string ini = cerrado.Escribir("config.ini", "; x\nMET = M/\n");
  std::filesystem::permissions(ini, std::filesystem::perms::none);
  EXPECT_TRUE(SinPrivilegios([&] {
    ServicioConfiguracion otro(TextoDeRuta(cerrado.Ruta()));
    return otro.RutaMeteo("a") == TextoDeRuta(cerrado / "a");
  }));
}

TEST(Rutas, HaceActualElDirectorioBase) {
  DirectorioTemporal directorio;
  ServicioConfiguracion servicio(TextoDeRuta(directorio.Ruta()));
  EXPECT_TRUE(std::filesystem::equivalent(std::filesystem::current_path(), directorio.Ruta()));
}

TEST(Rutas, EncuentraSinDistinguirMayusculas) {
  DirectorioTemporal directorio;
  directorio.Escribir("Config.INI", "; rutas\nMET = METEO\\\n");
  directorio.Escribir("Meteo/Almería.MET", "x");
  ServicioConfiguracion servicio(TextoDeRuta(directorio.Ruta()));
  EXPECT_EQ(servicio.RutaMeteo("ALMERÍA.met"), TextoDeRuta(directorio / "Meteo/Almería.MET"));
}

TEST(Rutas, ElNombreTambienPuedeTraerDirectoriosALaManeraDeWindows) {
  DirectorioTemporal directorio;
  directorio.Escribir("config.ini", "; rutas\nMET = Meteo\\\n");
  directorio.Escribir("Meteo/sur/Almeria.met", "x");
  ServicioConfiguracion servicio(TextoDeRuta(directorio.Ruta()));
  EXPECT_EQ(servicio.RutaMeteo("Sur\\almeria.met"), TextoDeRuta(directorio / "Meteo/sur/Almeria.met"));
  EXPECT_EQ(servicio.RutaMeteo("Nueva\\b.met"), TextoDeRuta(directorio / "Meteo/Nueva/b.met"));
}

TEST(Rutas, UnDirectorioLarguisimoNoSeCorta) {
  DirectorioTemporal directorio;
  const std::string largo(1000, 'd');
  directorio.Escribir("config.ini", "; rutas\nMET = " + largo + "/\n");
  ServicioConfiguracion servicio(TextoDeRuta(directorio.Ruta()));
  EXPECT_EQ(servicio.RutaMeteo("a"), TextoDeRuta(directorio.Ruta()) + "/" + largo + "/a");
}

TEST(Rutas, ElServicioCompartidoSeReponeEnLasPruebas) {
  DirectorioTemporal directorio;
  IniciarConfiguracion(TextoDeRuta(directorio.Ruta()));
  EXPECT_EQ(DameConfiguracion().RutaMeteo("x"), TextoDeRuta(directorio / "x"));
  LiberarConfiguracion();
  EXPECT_NE(DameConfiguracion().RutaMeteo("x"), TextoDeRuta(directorio / "x"))
      << "la base vuelve a ser el directorio del ejecutable";
  LiberarConfiguracion();
}
