#include "extremos/Registrogdr.h"
#include "tests/comun/Apoyos.h"
#include "tests/extremos/Gdrdeprueba.h"

#include <gtest/gtest.h>

#include <random>

namespace tesmo::extremos {
namespace {

using prueba::LeerBien;
using prueba::RegistroDeTexto;

LecturaGdr Leer(const std::string &contenido, const std::string &clave = "almeria") {
  RegistroGdr registro;
  return LeerRegistroGdr(contenido, clave, "GDR.TXT", registro);
}

std::string Reemplazar(std::string texto, const std::string &que, const std::string &con) {
  return texto.replace(texto.find(que), que.size(), con);
}

/// El diagnóstico que deja un registro estropeado.
std::string Diagnostico(const std::string &contenido) {
  const prueba::RegistroApuntado registro;
  EXPECT_EQ(Leer(contenido), LecturaGdr::Estropeado);
  return registro.textos.size() == 1 ? registro.textos[0] : "no hay un solo diagnóstico";
}

TEST(Registro, LeeLaCabeceraYLasSeisFilas) {
  const RegistroGdr r = LeerBien(RegistroDeTexto("almeria"), "almeria");
  EXPECT_EQ(r.clave, "almeria");
  EXPECT_EQ(r.zona, "COSTA");
  EXPECT_EQ(r.latitud, 36.84F);
  EXPECT_EQ(r.factorDeCola, 10.0F);
  EXPECT_EQ(r.maxima[0], 16.9F);
  EXPECT_EQ(r.minima[11], 9.4F);
  EXPECT_EQ(r.desviacionMaxima[5], 3.1F);
  EXPECT_EQ(r.desviacionMinima[6], 1.9F);
  EXPECT_EQ(r.radiacion[6], 26700.0F);
  EXPECT_EQ(r.sexta[11], 70.0F);
  EXPECT_EQ(r.altitud, 21.0F);
  EXPECT_FALSE(r.humedadCal.has_value());
}

TEST(Registro, LaClaveSeComparaEnteraYConMayusculas) {
  const std::string texto = RegistroDeTexto("almeria");
  EXPECT_EQ(Leer(texto, "Almeria"), LecturaGdr::SinClave);
  EXPECT_EQ(Leer(texto, "almer"), LecturaGdr::SinClave);
  EXPECT_EQ(Leer(texto, ""), LecturaGdr::SinClave);
  EXPECT_EQ(Leer("", "almeria"), LecturaGdr::SinClave);
}

TEST(Registro, GanaElPrimeroDeLaMismaClave) {
  const std::string texto = RegistroDeTexto("a", "COSTA 36 0 0 10") + RegistroDeTexto("a", "COSTA 37 0 0 10");
  EXPECT_EQ(LeerBien(texto, "a").latitud, 36.0F);
}

TEST(Registro, LaClaveEnWindows1252) {
  const std::string texto = RegistroDeTexto("c\xE1"
                                            "diz",
                                            "COSTA 36 0 0 10");
  EXPECT_EQ(LeerBien(texto, "cádiz").clave, "cádiz");
  EXPECT_EQ(LeerBien("\xEF\xBB\xBF" + RegistroDeTexto("cádiz"), "cádiz").clave, "cádiz");
}

TEST(Registro, ElCientoSetentaYOchoNoSeMira) {
  std::string texto;
  for (int i = 1; i <= 178; ++i) texto += RegistroDeTexto("r" + std::to_string(i));
  EXPECT_EQ(Leer(texto, "r177"), LecturaGdr::Leido);
  EXPECT_EQ(Leer(texto, "r178"), LecturaGdr::SinClave);
}

TEST(Registro, ElPropioPuedeRepartirSusNumerosEnOtrasLineas) {
  std::string texto = RegistroDeTexto("almeria");
  const RegistroGdr entero = LeerBien(texto, "almeria");
  texto = Reemplazar(texto, "21.4 24.1", "21.4\n\n24.1");
  texto = Reemplazar(texto, "9.4\n2.7", "9.4 2.7");
  EXPECT_EQ(LeerBien(texto, "almeria").desviacionMaxima, entero.desviacionMaxima);
}

TEST(Registro, UnoAjenoConOtrasLineasDescolocaLosSiguientes) {
  const std::string ajeno = RegistroDeTexto("otro");
  EXPECT_EQ(Leer(ajeno + RegistroDeTexto("almeria")), LecturaGdr::Leido);
  const std::string partido = Reemplazar(ajeno, "21.4 24.1", "21.4\n24.1");
  EXPECT_EQ(Leer(partido + RegistroDeTexto("almeria")), LecturaGdr::SinClave);
}

TEST(Registro, FinesDeLineaDeWindows) {
  std::string texto;
  for (const char c : RegistroDeTexto("otro") + RegistroDeTexto("almeria"))
    texto += c == '\n' ? "\r\n" : std::string(1, c);
  EXPECT_EQ(LeerBien(texto, "almeria").altitud, 21.0F);
}

TEST(Registro, LaColaDeLaCabeceraSeSaltaHastaDoscientosBytes) {
  const std::string cola = " " + std::string(199, 'x');
  for (const char *clave : {"almeria", "otro"}) {
    const std::string justo =
        RegistroDeTexto(clave, "COSTA 36.84 0 0 10" + cola) + RegistroDeTexto("almeria");
    EXPECT_EQ(Leer(justo), LecturaGdr::Leido) << clave;
  }
  const std::string larga = cola + "yz";
  EXPECT_EQ(Leer(RegistroDeTexto("almeria", "COSTA 36.84 0 0 10" + larga)), LecturaGdr::Estropeado);
  EXPECT_EQ(Leer(RegistroDeTexto("otro", "COSTA 36.84 0 0 10" + larga) + RegistroDeTexto("almeria")),
            LecturaGdr::SinClave);
}

TEST(Etiquetas, EnCualquierOrdenEntreOtrasPalabras) {
  const prueba::RegistroApuntado registro;
  const RegistroGdr r = LeerBien(
      RegistroDeTexto("a", "INTERIOR 37 0 0 10 hola WREF=11.5 7 ALT=-3 WCAL=4.25 ALTO=9 wcal=3"), "a");
  EXPECT_EQ(r.altitud, -3.0F);
  EXPECT_EQ(r.humedadCal, 4.25F);
  EXPECT_EQ(r.humedadRef, 11.5F);
  EXPECT_TRUE(registro.textos.empty());
}

TEST(Etiquetas, FueraDeLimitesSeIgnoranConUnDiagnostico) {
  for (const char *etiqueta : {"ALT=5001", "ALT=-501", "WCAL=41", "WREF=-1", "ALT=nan", "WREF=5,5", "ALT="}) {
    const prueba::RegistroApuntado registro;
    const RegistroGdr r = LeerBien(RegistroDeTexto("a", std::string("INTERIOR 37 0 0 10 ") + etiqueta), "a");
    EXPECT_FALSE(r.altitud || r.humedadCal || r.humedadRef) << etiqueta;
    ASSERT_EQ(registro.textos.size(), 1U) << etiqueta;
    EXPECT_NE(registro.textos[0].find(etiqueta), std::string::npos);
    EXPECT_NE(registro.textos[0].find("GDR.TXT, línea 1"), std::string::npos);
  }
  EXPECT_EQ(LeerBien(RegistroDeTexto("a", "x 37 0 0 10 ALT=5000 WCAL=0 WREF=40"), "a").humedadRef, 40.0F);
}

TEST(Estropeado, UnaPalabraEnLugarDeUnNumero) {
  EXPECT_EQ(Diagnostico(Reemplazar(RegistroDeTexto("almeria"), "24.1", "calor")),
            "**Registro mal formado: GDR.TXT, línea 2, temperatura máxima del mes 5");
  EXPECT_EQ(Diagnostico(RegistroDeTexto("almeria", "COSTA norte 0 0 10")),
            "**Registro mal formado: GDR.TXT, línea 1, latitud");
}

TEST(Estropeado, UnRegistroCorto) {
  const std::string texto = RegistroDeTexto("almeria");
  EXPECT_EQ(Diagnostico(texto.substr(0, texto.find("9900"))),
            "**Registro mal formado: GDR.TXT, línea 6, radiación del mes 1");
  EXPECT_NE(Diagnostico("almeria").find("latitud"), std::string::npos);
}

TEST(Estropeado, NumerosSinSentido) {
  for (const char *factor : {"0", "-2", "nan", "inf", "0.01"}) {
    EXPECT_NE(Diagnostico(RegistroDeTexto("almeria", std::string("COSTA 36.84 0 0 ") + factor))
                  .find("factor de cola"),
              std::string::npos)
        << factor;
  }
  EXPECT_NE(Diagnostico(Reemplazar(RegistroDeTexto("almeria"), "24.1", "inf")).find("temperatura máxima"),
            std::string::npos);
  EXPECT_NE(Diagnostico(RegistroDeTexto("almeria", "COSTA 91 0 0 10")).find("latitud"), std::string::npos);
  EXPECT_NE(Diagnostico(RegistroDeTexto("almeria", "COSTA nan 0 0 10")).find("latitud"), std::string::npos);
}

TEST(Estropeado, ElRegistroDelLlamanteQuedaComoEstaba) {
  RegistroGdr registro;
  registro.clave = "previo";
  registro.latitud = 7.0F;
  (void)LeerRegistroGdr(RegistroDeTexto("almeria", "COSTA 36 0 0 0"), "almeria", "GDR.TXT", registro);
  (void)LeerRegistroGdr("", "almeria", "GDR.TXT", registro);
  EXPECT_EQ(registro.clave, "previo");
  EXPECT_EQ(registro.latitud, 7.0F);
}

TEST(Registro, TodosLosDelPrograma) {
  EXPECT_GE(prueba::ClavesDelPrograma().size(), 19U);
  for (const std::string &clave : prueba::ClavesDelPrograma()) {
    const RegistroGdr r = LeerBien(prueba::GdrDelPrograma(), clave);
    EXPECT_TRUE(r.altitud.has_value()) << clave;
    EXPECT_EQ(r.factorDeCola, 10.0F);
  }
}

// Ficheros con bytes cambiados, quitados y repetidos al azar, siempre los mismos.
TEST(Registro, SeSabeQueBytesOcupaCadaUnoAunqueNoSeMiren) {
  const std::string uno = RegistroDeTexto("uno");
  const std::string dos = RegistroDeTexto("dos", "COSTA 36.84 0 0 10 ALT=21 WCAL=5");
  const auto sitios = SituarRegistrosGdr("\xEF\xBB\xBF" + uno + "\n" + dos);
  ASSERT_EQ(sitios.size(), 2U);
  EXPECT_EQ(sitios[0].clave, "uno");
  EXPECT_EQ(sitios[0].inicio, 3U);
  EXPECT_EQ(sitios[0].fin, 3 + uno.size());
  EXPECT_EQ(sitios[1].clave, "dos");
  EXPECT_EQ(sitios[1].inicio, 3 + uno.size() + 1);
  EXPECT_EQ(sitios[1].fin, 3 + uno.size() + 1 + dos.size());
  std::string muchos;
  for (int i = 0; i < 200; ++i) muchos += uno;
  EXPECT_EQ(SituarRegistrosGdr(muchos).size(), 200U);
  EXPECT_TRUE(SituarRegistrosGdr(" \n").empty());
}

TEST(Registro, TextosMutadosNoRompenNada) {
  const std::string semilla =
      RegistroDeTexto("otro") + RegistroDeTexto("almeria", "COSTA 36.84 0 0 10 ALT=21 WCAL=5");
  const std::string alfabeto = "0123456789.-+eExnif \n\r\tALTW=\xE1\xff";
  std::mt19937 azar(7U);
  int leidos = 0;
  int estropeados = 0;
  for (int vuelta = 0; vuelta < 20'000; ++vuelta) {
    std::string texto = semilla;
    for (auto cambios = azar() % 4U; cambios > 0 && !texto.empty(); --cambios) {
      const std::size_t donde = azar() % texto.size();
      switch (azar() % 8U) {
      case 0:
        texto.erase(donde, azar() % 40U);
        break;
      case 1:
        texto.resize(donde);
        break;
      case 2:
        texto.insert(donde, texto.substr(donde, azar() % 300U));
        break;
      default:
        texto[donde] = alfabeto[azar() % alfabeto.size()];
        break;
      }
    }
    RegistroGdr registro;
    const LecturaGdr lectura = LeerRegistroGdr(texto, "almeria", "GDR.TXT", registro);
    leidos += lectura == LecturaGdr::Leido ? 1 : 0;
    estropeados += lectura == LecturaGdr::Estropeado ? 1 : 0;
    if (lectura != LecturaGdr::Leido) {
      ASSERT_TRUE(registro.clave.empty());
    }
  }
  EXPECT_GT(leidos, 1000);
  EXPECT_GT(estropeados, 500);
}

} // namespace
} // namespace tesmo::extremos
