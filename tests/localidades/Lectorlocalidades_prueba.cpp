#include "localidades/Lectorlocalidades.h"

#include <gtest/gtest.h>

namespace tesmo {
namespace {

struct Lectura {
  std::vector<std::unique_ptr<ObjetoCiudad>> registros;
  std::vector<std::string> avisos;
};

Lectura Leer(std::string_view contenido) {
  Lectura lectura;
  lectura.registros = LeerLocalidades(contenido, "LocalidadesCC",
                                      [&](const std::string &aviso) { lectura.avisos.push_back(aviso); });
  return lectura;
}

/// Una línea de once campos sin defectos.
std::string Linea(const std::string &nombre, const std::string &provincia) {
  return nombre + ",Corta," + provincia + ",Cuarto,Ref,f.met,36.84,-2.39,-15,21,0";
}

TEST(LectorDeLocalidades, BloquesSeguidosPorOrdenDeFichero) {
  const Lectura l = Leer("2\n" + Linea("A", "P") + "\n" + Linea("B", "P") + "\n1\n" + Linea("C", "Q") + "\n");
  ASSERT_EQ(l.registros.size(), 3U);
  EXPECT_EQ(l.registros[0]->localidad, "A");
  EXPECT_EQ(l.registros[1]->localidad, "B");
  EXPECT_EQ(l.registros[2]->localidad, "C");
  EXPECT_EQ(l.registros[2]->provincia, "Q");
  EXPECT_TRUE(l.avisos.empty());
}

TEST(LectorDeLocalidades, FicheroVacioSinRegistrosNiAvisos) {
  const Lectura l = Leer("");
  EXPECT_TRUE(l.registros.empty());
  EXPECT_TRUE(l.avisos.empty());
}

TEST(LectorDeLocalidades, LineaEnBlancoEsUnBloqueVacio) {
  const Lectura l = Leer("\n  \n1\n" + Linea("A", "P") + "\n\n1\n" + Linea("B", "P") + "\n");
  EXPECT_EQ(l.registros.size(), 2U);
  EXPECT_TRUE(l.avisos.empty());
}

TEST(LectorDeLocalidades, LaCuentaEsElPrimerCampoDeSuLinea) {
  const Lectura l = Leer("1,Almería,3\n" + Linea("A", "P") + "\n");
  EXPECT_EQ(l.registros.size(), 1U);
}

TEST(LectorDeLocalidades, CuentaQueNoEsNumeroValeCeroYSeAvisa) {
  const Lectura l = Leer("dos\n" + Linea("A", "P") + "\n");
  EXPECT_TRUE(l.registros.empty());
  ASSERT_EQ(l.avisos.size(), 2U);
  EXPECT_EQ(l.avisos[0], "LocalidadesCC: línea 1: campo 1: no es el número de localidades de un bloque");
}

TEST(LectorDeLocalidades, CuentaConCifrasYLetrasTomaLasCifras) {
  EXPECT_EQ(Leer("1abc\n" + Linea("A", "P")).registros.size(), 1U);
  EXPECT_TRUE(Leer("-1\n" + Linea("A", "P")).registros.empty());
}

TEST(LectorDeLocalidades, BlancosTrasLaComaSaltadosYAntesConservados) {
  const Lectura l = Leer("1\nA ,\t Corta  ,  P ,x,y,f.met, 1 ,2,3,4,5\n");
  ASSERT_EQ(l.registros.size(), 1U);
  EXPECT_EQ(l.registros[0]->localidad, "A ");
  EXPECT_EQ(l.registros[0]->localidadCorta, "Corta  ");
  EXPECT_EQ(l.registros[0]->provincia, "P ");
  EXPECT_EQ(l.registros[0]->latitud, 1.0F);
}

TEST(LectorDeLocalidades, BlancosAlPrincipioDeLineaConservados) {
  const Lectura l = Leer("1\n  A,c,P,x,y,f,1,2,3,4,5\n");
  ASSERT_EQ(l.registros.size(), 1U);
  EXPECT_EQ(l.registros[0]->localidad, "  A");
}

// El búfer de línea no se vacía al acabarse el fichero. Se conserva.
TEST(LectorDeLocalidades, UltimoBloqueCortoRepiteLaUltimaLinea) {
  const Lectura l = Leer("4\n" + Linea("A", "P") + "\n" + Linea("B", "P") + "\n");
  ASSERT_EQ(l.registros.size(), 4U);
  EXPECT_EQ(l.registros[1]->localidad, "B");
  EXPECT_EQ(l.registros[2]->localidad, "B");
  EXPECT_EQ(l.registros[3]->localidad, "B");
  ASSERT_EQ(l.avisos.size(), 1U);
  EXPECT_EQ(l.avisos[0], "LocalidadesCC: línea 3: al bloque le faltan 2 líneas; se repite la última");
}

TEST(LectorDeLocalidades, SoloLaCuentaRepiteLaPropiaCuenta) {
  const Lectura l = Leer("2");
  ASSERT_EQ(l.registros.size(), 2U);
  EXPECT_EQ(l.registros[0]->localidad, "2");
  EXPECT_EQ(l.registros[1]->provincia, "");
}

TEST(LectorDeLocalidades, RepeticionLimitadaADiezMil) {
  const Lectura l = Leer("2000000000\n" + Linea("A", "P") + "\n");
  EXPECT_EQ(l.registros.size(), 10001U);
  EXPECT_EQ(l.avisos.size(), 1U);
}

TEST(LectorDeLocalidades, AlFinalNoSeTomaOtraCuenta) {
  const std::string linea = "3,c,P,x,y,f,1,2,3,4,5";
  EXPECT_EQ(Leer("1\n" + linea + "\n").registros.size(), 1U);
  EXPECT_EQ(Leer("1\n" + linea).registros.size(), 1U);
}

TEST(LectorDeLocalidades, RetornoDeCarroAlFinalDeLineaNoCuenta) {
  const Lectura l = Leer("1\r\nA,c,P,x,y,f.met,1,2,3,4,5\r\n");
  ASSERT_EQ(l.registros.size(), 1U);
  EXPECT_EQ(l.registros[0]->undecimo, 5.0F);
  EXPECT_TRUE(l.avisos.empty());
  EXPECT_EQ(Leer("1\nA,c,P,x,y,f.met\r\n").registros[0]->fichero, "f.met");
}

TEST(LectorDeLocalidades, CamposDeMenosVaciosOCeroYNombrados) {
  const Lectura l = Leer("1\nA,c,P,x,y,f.met,36.5,-2,-15\n");
  ASSERT_EQ(l.registros.size(), 1U);
  EXPECT_EQ(l.registros[0]->latitud, 36.5F);
  EXPECT_EQ(l.registros[0]->decimo, 0.0F);
  ASSERT_EQ(l.avisos.size(), 2U);
  EXPECT_EQ(l.avisos[0], "LocalidadesCC: línea 2: campo 10: falta; se toma 0");
  EXPECT_EQ(l.avisos[1], "LocalidadesCC: línea 2: campo 11: falta; se toma 0");
}

TEST(LectorDeLocalidades, CamposDeMenosNoHeredanLosDeLaLineaAnterior) {
  const Lectura l = Leer("2\n" + Linea("A", "P") + "\nB\n");
  ASSERT_EQ(l.registros.size(), 2U);
  EXPECT_EQ(l.registros[1]->provincia, "");
  EXPECT_EQ(l.registros[1]->latitud, 0.0F);
  EXPECT_EQ(l.avisos.size(), 10U);
}

TEST(LectorDeLocalidades, CamposDeMasIgnoradosYNombrados) {
  const Lectura l = Leer("1\n" + Linea("A", "P") + ",doce,trece\n");
  ASSERT_EQ(l.registros.size(), 1U);
  EXPECT_EQ(l.registros[0]->undecimo, 0.0F);
  ASSERT_EQ(l.avisos.size(), 1U);
  EXPECT_EQ(l.avisos[0], "LocalidadesCC: línea 2: campo 12: sobra, y los que le sigan");
}

TEST(LectorDeLocalidades, NumeroMaloValeCeroYSeNombra) {
  const Lectura l = Leer("1\nA,c,P,x,y,f.met,norte,-2,-15,21,0\n");
  ASSERT_EQ(l.registros.size(), 1U);
  EXPECT_EQ(l.registros[0]->latitud, 0.0F);
  EXPECT_EQ(l.registros[0]->longitud, -2.0F);
  ASSERT_EQ(l.avisos.size(), 1U);
  EXPECT_EQ(l.avisos[0], "LocalidadesCC: línea 2: campo 7: \"norte\" no es un número; se toma 0");
}

TEST(LectorDeLocalidades, CampoLimitadoACuarentaYNueveBytes) {
  const std::string justo(49, 'a');
  EXPECT_EQ(Leer("1\n" + Linea(justo, "P")).registros[0]->localidad, justo);
  EXPECT_TRUE(Leer("1\n" + Linea(justo, "P")).avisos.empty());
  const Lectura largo = Leer("1\n" + Linea(justo + "b", "P"));
  EXPECT_EQ(largo.registros[0]->localidad, justo);
  ASSERT_EQ(largo.avisos.size(), 1U);
  EXPECT_EQ(largo.avisos[0], "LocalidadesCC: línea 2: campo 1: pasa de 49 bytes; se corta");
}

TEST(LectorDeLocalidades, LimiteDeCampoEnBytesDelFichero) {
  std::string enesUtf8;
  for (int i = 0; i < 30; ++i) enesUtf8 += "ñ";
  EXPECT_EQ(Leer("1\n" + Linea(enesUtf8, "P")).registros[0]->localidad, enesUtf8.substr(0, 48));
  const std::string enes1252(60, '\xF1');
  std::string cuarentaYNueve;
  for (int i = 0; i < 49; ++i) cuarentaYNueve += "ñ";
  EXPECT_EQ(Leer("1\n" + Linea(enes1252, "P")).registros[0]->localidad, cuarentaYNueve);
}

TEST(LectorDeLocalidades, LineaDe299BytesEnteraYLaDe300EnDos) {
  const std::string principio = Linea("A", "P") + ",";
  const std::string justa = principio + std::string(299 - principio.size(), 'x');
  const std::string larga = justa + "y";
  EXPECT_EQ(Leer("2\n" + justa + "\n" + Linea("B", "P")).registros[1]->localidad, "B");
  EXPECT_EQ(Leer("2\n" + justa + "\r\n" + Linea("B", "P")).registros[1]->localidad, "B");
  const Lectura l = Leer("3\n" + larga + "\n" + Linea("B", "P") + "\n");
  ASSERT_EQ(l.registros.size(), 3U);
  EXPECT_EQ(l.registros[1]->localidad, "y");
  EXPECT_EQ(l.registros[2]->localidad, "B");
  EXPECT_EQ(l.avisos[0], "LocalidadesCC: línea 2: pasa de 299 bytes; lo que sigue cuenta como otra línea");
}

TEST(LectorDeLocalidades, LineaEnormeNoSeDesbordaNiSePierdeElFichero) {
  const Lectura l = Leer("1\n" + std::string(1000000, 'z') + "\n1\n" + Linea("B", "P") + "\n");
  ASSERT_EQ(l.registros.size(), 2U);
  EXPECT_EQ(l.registros[0]->localidad, std::string(49, 'z'));
  EXPECT_EQ(l.registros[1]->localidad, "B");
}

TEST(LectorDeLocalidades, Utf8YWindows1252DanLosMismosTextos) {
  const Lectura utf8 = Leer("1\n" + Linea("Jaén", "Cádiz"));
  const Lectura cp1252 = Leer("1\n" + Linea("Ja\xE9n", "C\xE1"
                                                       "diz"));
  EXPECT_EQ(utf8.registros[0]->localidad, "Jaén");
  EXPECT_EQ(cp1252.registros[0]->localidad, "Jaén");
  EXPECT_EQ(cp1252.registros[0]->provincia, "Cádiz");
}

TEST(LectorDeLocalidades, LaCodificacionEsLaDelFicheroEntero) {
  // «Ã©» en Windows-1252 son los dos bytes de «é» en UTF-8: decide el \xF1 de otra línea.
  const Lectura l = Leer("2\n" + Linea("Ja\xC3\xA9n", "P") + "\n" +
                         Linea("Espa\xF1"
                               "a",
                               "P"));
  EXPECT_EQ(l.registros[0]->localidad, "JaÃ©n");
  EXPECT_EQ(l.registros[1]->localidad, "España");
}

TEST(LectorDeLocalidades, MarcaDeOrdenDeBytesIgnorada) {
  EXPECT_EQ(Leer("\xEF\xBB\xBF"
                 "1\n" +
                 Linea("A", "P"))
                .registros.size(),
            1U);
}

TEST(LectorDeLocalidades, ByteNuloTerminaSuLinea) {
  std::string contenido = "1\nA,c,P";
  contenido += '\0';
  contenido += ",x,y\n1\n" + Linea("B", "P");
  const Lectura l = Leer(contenido);
  ASSERT_EQ(l.registros.size(), 2U);
  EXPECT_EQ(l.registros[0]->provincia, "P");
  EXPECT_EQ(l.registros[0]->cuarto, "");
}

TEST(LectorDeLocalidades, SinDestinoDeAvisosNoPasaNada) {
  EXPECT_EQ(LeerLocalidades("1\nA\n", "LocalidadesCC", {}).size(), 1U);
}

} // namespace
} // namespace tesmo
