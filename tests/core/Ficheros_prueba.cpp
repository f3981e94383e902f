#include "core/Ficheros.h"
#include "tests/comun/Apoyos.h"

#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace tesmo;
using namespace tesmo::prueba;
namespace fs = std::filesystem;

namespace {

std::size_t Entradas(const fs::path &directorio) {
  return static_cast<std::size_t>(
      std::distance(fs::directory_iterator(directorio), fs::directory_iterator()));
}

} // namespace

TEST(Ficheros, LeeEnteroUnFicheroRegularYNadaMas) {
  DirectorioTemporal directorio;
  const std::string ruta = directorio.Escribir("a.bin", std::string("a\0b\r\n", 5));
  EXPECT_EQ(LeerFicheroEntero(ruta), std::string("a\0b\r\n", 5));
  EXPECT_FALSE(LeerFicheroEntero(directorio / "falta").has_value());
  EXPECT_FALSE(LeerFicheroEntero(directorio.Ruta()).has_value()) << "un directorio no es un fichero";
  EXPECT_FALSE(LeerFicheroEntero("/dev/null").has_value()) << "un dispositivo no es un fichero regular";
}

TEST(Ficheros, UnFicheroSinPermisoDeLecturaNoSeLee) {
  DirectorioTemporal directorio;
  const std::string ruta = directorio.Escribir("a", "x");
  fs::permissions(ruta, fs::perms::none);
  EXPECT_TRUE(SinPrivilegios(directorio.Ruta(),
                             [] { return fs::exists("a") && !LeerFicheroEntero("a").has_value(); }));
}

TEST(Ficheros, SustituyeEnteroYNoDejaTemporales) {
  DirectorioTemporal directorio;
  const std::string ruta = directorio.Escribir("a.txt", "viejo y largo");
  EXPECT_TRUE(EscribirFicheroEntero(ruta, "nuevo"));
  EXPECT_EQ(Contenido(ruta), "nuevo");
  EXPECT_TRUE(EscribirFicheroEntero(directorio / "b.txt", ""));
  EXPECT_EQ(Entradas(directorio.Ruta()), 2U);
}

TEST(Ficheros, ConservaPermisosYSigueEnlaces) {
  DirectorioTemporal directorio;
  const std::string ruta = directorio.Escribir("real.txt", "viejo");
  fs::permissions(ruta, fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
  fs::create_symlink("real.txt", directorio / "medio");
  fs::create_symlink("medio", directorio / "enlace");
  EXPECT_TRUE(EscribirFicheroEntero(directorio / "enlace", "nuevo"));
  EXPECT_TRUE(fs::is_symlink(directorio / "enlace"));
  EXPECT_EQ(Contenido(ruta), "nuevo");
  EXPECT_EQ(fs::status(ruta).permissions(),
            fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
}

TEST(Ficheros, UnEnlaceAUnFicheroQueFaltaCreaSuDestino) {
  DirectorioTemporal directorio;
  fs::create_symlink("destino.txt", directorio / "enlace");
  EXPECT_TRUE(EscribirFicheroEntero(directorio / "enlace", "x"));
  EXPECT_EQ(Contenido(directorio / "destino.txt"), "x");
}

TEST(Ficheros, UnBucleDeEnlacesFallaSinColgarse) {
  DirectorioTemporal directorio;
  fs::create_symlink("b", directorio / "a");
  fs::create_symlink("a", directorio / "b");
  const bool escrito = EscribirFicheroEntero(directorio / "a", "x");
  EXPECT_TRUE(escrito || Entradas(directorio.Ruta()) == 2U);
}

TEST(Ficheros, ADondeNoSePuedeEscribirDevuelveFalso) {
  DirectorioTemporal directorio;
  EXPECT_FALSE(EscribirFicheroEntero(directorio.Ruta(), "x")) << "un directorio";
  EXPECT_FALSE(EscribirFicheroEntero(directorio / "falta/a.txt", "x")) << "directorio que no existe";
}

TEST(Ficheros, UnFicheroDeSoloLecturaNoSeSustituye) {
  DirectorioTemporal directorio;
  const std::string ruta = directorio.Escribir("a.txt", "viejo");
  fs::permissions(ruta, fs::perms::owner_read | fs::perms::others_read);
  fs::permissions(directorio.Ruta(), fs::perms::all);
  EXPECT_TRUE(SinPrivilegios(directorio.Ruta(), [] { return !EscribirFicheroEntero("a.txt", "nuevo"); }));
  EXPECT_EQ(Contenido(ruta), "viejo");
}

TEST(Ficheros, EnUnDirectorioCerradoEscribeEnSuSitio) {
  DirectorioTemporal directorio;
  const std::string ruta = directorio.Escribir("a.txt", "viejo y bastante largo");
  fs::permissions(ruta,
                  fs::perms::all & ~(fs::perms::owner_exec | fs::perms::group_exec | fs::perms::others_exec));
  fs::permissions(directorio.Ruta(), fs::perms::owner_all | fs::perms::others_read | fs::perms::others_exec);
  EXPECT_TRUE(SinPrivilegios(directorio.Ruta(), [] { return EscribirFicheroEntero("a.txt", "nuevo"); }));
  EXPECT_EQ(Contenido(ruta), "nuevo");
  EXPECT_TRUE(SinPrivilegios(directorio.Ruta(), [] { return !EscribirFicheroEntero("otro.txt", "x"); }));
}

TEST(Ficheros, UnDispositivoSeEscribeEnSuSitio) {
  EXPECT_TRUE(EscribirFicheroEntero("/dev/null", "x"));
  EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST(Ficheros, ConElDiscoLlenoNoSePierdeLoQueHabia) {
  EXPECT_FALSE(EscribirFicheroEntero("/dev/full", "x"));
  DirectorioTemporal directorio;
  const std::string ruta = directorio.Escribir("a.txt", "lo que había");
  fs::permissions(directorio.Ruta(), fs::perms::all);
  fs::permissions(ruta, fs::perms::all);
  const bool fallo = SinPrivilegios(directorio.Ruta(), [] {
    // El límite de tamaño por proceso hace de disco lleno.
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limite{64, 64};
    ::setrlimit(RLIMIT_FSIZE, &limite);
    return !EscribirFicheroEntero("a.txt", std::string(10000, 'x'));
  });
  EXPECT_TRUE(fallo);
  EXPECT_EQ(Contenido(ruta), "lo que había");
  EXPECT_EQ(Entradas(directorio.Ruta()), 1U) << "el temporal a medias se retira";
}

TEST(Ficheros, EnSuSitioTambienSeReponeLoQueHabia) {
  DirectorioTemporal directorio;
  const std::string ruta = directorio.Escribir("a.txt", "lo que había");
  fs::permissions(ruta, fs::perms::all);
  fs::permissions(directorio.Ruta(), fs::perms::owner_all | fs::perms::others_read | fs::perms::others_exec);
  const bool fallo = SinPrivilegios(directorio.Ruta(), [] {
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limite{64, 64};
    ::setrlimit(RLIMIT_FSIZE, &limite);
    return !EscribirFicheroEntero("a.txt", std::string(10000, 'x'));
  });
  EXPECT_TRUE(fallo);
  EXPECT_EQ(Contenido(ruta), "lo que había");
}

TEST(Ficheros, AnadirCreaYAcumula) {
  DirectorioTemporal directorio;
  EXPECT_TRUE(AnadirAFichero(directorio / "a.txt", "uno\n"));
  EXPECT_TRUE(AnadirAFichero(directorio / "a.txt", "dos\n"));
  EXPECT_EQ(Contenido(directorio / "a.txt"), "uno\ndos\n");
  EXPECT_FALSE(AnadirAFichero(directorio.Ruta(), "x"));
}

TEST(Ficheros, BuscarPrefiereElNombreExacto) {
  DirectorioTemporal directorio;
  directorio.Escribir("Datos/a.MET", "1");
  directorio.Escribir("Datos/a.met", "2");
  EXPECT_EQ(BuscarSinMayusculas(directorio / "Datos/a.met"), directorio / "Datos/a.met");
  EXPECT_EQ(BuscarSinMayusculas(directorio / "DATOS/A.met"), directorio / "Datos/a.MET");
  EXPECT_EQ(BuscarSinMayusculas(directorio / "datos/falta"), directorio / "Datos/falta");
  EXPECT_EQ(BuscarSinMayusculas(directorio / "nada/de/esto"), directorio / "nada/de/esto");
}

TEST(Ficheros, NormalizarSeparadoresDaBarras) {
  EXPECT_EQ(NormalizarSeparadores("Meteo\\Sur\\"), "Meteo/Sur/");
}
