#include "core/Rutas.h"
#include "extremos/Diasextremos.h"
#include "localidades/Ciudad.h"
#include "tests/comun/Apoyos.h"
#include "tests/extremos/Gdrdeprueba.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <utility>

namespace tesmo {
namespace {

class Dias : public ::testing::Test {
protected:
  Dias() {
    base_.Escribir("config.ini", "Directorios\nMET = Meteo/\nRES = Resultados/\n");
    base_.Escribir("Meteo/LocalidadesCC",
                   "1\nMotril,otra,Granada,x,Granada,m.met,36.7,-3.5,-15,20,0\n"
                   "1\nAlmería,almeria,Almería,x,Almería,a.met,36.84,-2.39,-15,21,0\n");
    std::filesystem::create_directories(base_ / "Resultados");
    PonGdr(prueba::RegistroDeTexto("otra", "COSTA 36.7 0 0 10") + prueba::RegistroDeTexto("almeria"));
    IniciarConfiguracion(TextoDeRuta(base_.Ruta()));
    LiberarBaseDeLocalidades();
  }
  ~Dias() override {
    LiberarBaseDeLocalidades();
    LiberarConfiguracion();
    std::filesystem::current_path(actual_);
  }
  void PonGdr(const std::string &texto) { gdr_ = base_.Escribir("Meteo/GDR.TXT", texto); }
  [[nodiscard]] bool Calcular(DiasExtremos &dias) const { return dias.CalcularDesde(gdr_, "almeria"); }

  prueba::DirectorioTemporal base_;
  prueba::MensajesApuntados mensajes_;
  std::string gdr_;
  std::filesystem::path actual_ = std::filesystem::current_path();
};

TEST_F(Dias, UnCalculoLogradoDejaSusResultados) {
  DiasExtremos dias;
  ASSERT_TRUE(Calcular(dias));
  EXPECT_TRUE(dias.Calculado());
  EXPECT_EQ(dias.Resultado().clave, "almeria");
  EXPECT_EQ(dias.ClaridadDiaria(), static_cast<float>(dias.Resultado().refrigeracion.traza.claridadDiaria));
  EXPECT_TRUE(mensajes_.apuntes.empty());
}

TEST_F(Dias, UnFalloConservaElResultadoAnterior) {
  DiasExtremos dias;
  ASSERT_TRUE(Calcular(dias));
  const float antes = dias.Resultado().calefaccion.dia.exterior[5];
  EXPECT_FALSE(dias.CalcularDesde(gdr_, "nadie"));
  EXPECT_FALSE(dias.CalcularDesde(gdr_ + "x", "almeria"));
  EXPECT_FALSE(dias.CalcularDesde(TextoDeRuta(base_.Ruta()), "almeria"));
  PonGdr("almeria COSTA 36 0 0 10\ncalor\n");
  EXPECT_FALSE(Calcular(dias));
  EXPECT_EQ(dias.Resultado().calefaccion.dia.exterior[5], antes);
  EXPECT_TRUE(dias.Calculado());
}

TEST_F(Dias, UnMesQueNoExisteNoSeCalcula) {
  DiasExtremos dias;
  const MesesDeTemporada todo{1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1};
  EXPECT_FALSE(dias.CalcularDias("almeria", 99.0F, 1.0F, todo, todo, 0, 7));
  EXPECT_FALSE(dias.CalcularDias("almeria", 99.0F, 1.0F, todo, todo, 1, 13));
}

TEST_F(Dias, CalcularVaDeLaLocalidadASuNombreCorto) {
  DiasExtremos dias;
  ASSERT_TRUE(dias.Calcular());
  EXPECT_EQ(dias.Resultado().clave, "almeria");
  dias.PonTexto("Localidad", "Motril");
  ASSERT_TRUE(dias.Calcular());
  EXPECT_EQ(dias.Resultado().clave, "otra");
  EXPECT_EQ(dias.Resultado().latitud, 36.7F);
  EXPECT_TRUE(mensajes_.apuntes.empty());
}

TEST_F(Dias, SinEstadisticasSaleElMensajeConLaLocalidad) {
  DiasExtremos dias;
  dias.PonTexto("Localidad", "Motril");
  PonGdr(prueba::RegistroDeTexto("almeria"));
  EXPECT_FALSE(dias.Calcular()); // la clave no está
  std::filesystem::remove(gdr_);
  EXPECT_FALSE(dias.Calcular()); // el fichero falta
  ASSERT_EQ(mensajes_.apuntes.size(), 2U);
  for (const auto &apunte : mensajes_.apuntes) EXPECT_NE(apunte.texto.find("Motril"), std::string::npos);
  EXPECT_FALSE(dias.Calculado());
}

TEST_F(Dias, LasListasSonLasDeLaBaseDeDatos) {
  DiasExtremos dias;
  std::vector<std::string> lista;
  dias.ListaDe("Provincias", lista);
  EXPECT_EQ(lista, (std::vector<std::string>{"Granada", "Almería"}));
  lista.clear();
  dias.PonTexto("Provincia", "Granada");
  dias.ListaDe("Localidades", lista);
  EXPECT_EQ(lista, std::vector<std::string>{"Motril"});
}

TEST_F(Dias, ConAjustesDadosNoUsaLosDelObjeto) {
  DiasExtremos dias;
  const MesesDeTemporada todo{1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1};
  ASSERT_TRUE(dias.CalcularDias("almeria", 97.5F, 2.5F, todo, todo, 2, 8));
  EXPECT_NEAR(static_cast<double>(dias.Resultado().calefaccion.traza.fraccion), 0.025, 1e-12);
  EXPECT_EQ(dias.DameTexto("Percentil calefacción"), "99.0");
  ASSERT_TRUE(dias.EscribirFicheros());
  EXPECT_NE(prueba::Contenido(base_ / "Resultados" / "extreCal.met").find("\n2\t15\t0\t"), std::string::npos);
}

// Los primeros valores son los del primer cálculo tras crear un objeto cualquiera, no los de cada uno.
TEST_F(Dias, LosPrimerosValoresSonDelPrimerCalculo) {
  DiasExtremos uno;
  ASSERT_TRUE(Calcular(uno));
  const std::array<float, 2> primeros = uno.PrimerosValores();
  EXPECT_EQ(primeros[0], static_cast<float>(uno.Resultado().calefaccion.traza.parteDelMes));
  EXPECT_GT(primeros[1], 0.5F);
  uno.PonTexto("Percentil calefacción", "90");
  ASSERT_TRUE(Calcular(uno));
  EXPECT_EQ(uno.PrimerosValores(), primeros);
  const DiasExtremos otro; // crear otro vuelve a poner la marca común
  ASSERT_TRUE(Calcular(uno));
  EXPECT_NE(uno.PrimerosValores(), primeros);
  EXPECT_EQ(otro.PrimerosValores()[0], 0.0F);
}

TEST_F(Dias, LosAjustesMandan) {
  DiasExtremos dias;
  ASSERT_TRUE(Calcular(dias));
  const long double frio = dias.Resultado().calefaccion.traza.temperaturaMes;
  dias.PonTexto("Percentil calefacción", "90");
  ASSERT_TRUE(Calcular(dias));
  EXPECT_GT(dias.Resultado().calefaccion.traza.temperaturaMes, frio);
}

TEST_F(Dias, EscribeLosDosFicheros) {
  DiasExtremos dias;
  dias.PonTexto("Mes refrigeración", "8");
  ASSERT_TRUE(Calcular(dias));
  const std::string directorio = TextoDeRuta(base_ / "Resultados");
  ASSERT_TRUE(dias.EscribirFicherosEn(directorio));
  const std::string cal = prueba::Contenido(base_ / "Resultados" / "extreCal.met");
  const std::string ref = prueba::Contenido(base_ / "Resultados" / "extreRef.met");
  EXPECT_EQ(cal.substr(0, cal.find('\n')), "Almería Almería");
  EXPECT_EQ(std::count(cal.begin(), cal.end(), '\n'), 26);
  EXPECT_NE(cal.find("\n1\t15\t0\t"), std::string::npos);
  EXPECT_NE(ref.find("\n8\t15\t23\t"), std::string::npos);
}

TEST_F(Dias, ConLosMesesDeFabricaTodaFilaLlevaUnoYSiete) {
  DiasExtremos dias;
  ASSERT_TRUE(Calcular(dias));
  ASSERT_TRUE(dias.EscribirFicherosEn(TextoDeRuta(base_ / "Resultados")));
  for (const auto &[fichero, mes] : {std::pair{"extreCal.met", "1"}, std::pair{"extreRef.met", "7"}}) {
    const std::string texto = prueba::Contenido(base_ / "Resultados" / fichero);
    for (int hora = 0; hora < 24; ++hora) {
      const std::string comienzo = std::string("\n") + mes + "\t15\t" + std::to_string(hora) + "\t";
      EXPECT_NE(texto.find(comienzo), std::string::npos) << fichero << " " << hora;
    }
    EXPECT_EQ(std::count(texto.begin(), texto.end(), '\n'), 26);
  }
}

// El mes de los ficheros es el que se calculó, aunque luego se teclee otro.
TEST_F(Dias, LosFicherosLlevanElMesYLosNombresCalculados) {
  DiasExtremos dias;
  dias.PonTexto("Localidad", "Níjar");
  dias.PonTexto("Provincia", "La de Níjar");
  ASSERT_TRUE(Calcular(dias));
  dias.PonTexto("Mes calefacción", "3");
  dias.PonTexto("Localidad", "Otra");
  dias.PonTexto("Provincia", "Otra");
  ASSERT_TRUE(dias.EscribirFicherosEn(TextoDeRuta(base_ / "Resultados")));
  const std::string calefaccion = prueba::Contenido(base_ / "Resultados" / "extreCal.met");
  EXPECT_NE(calefaccion.find("\n1\t15\t0\t"), std::string::npos);
  EXPECT_TRUE(calefaccion.starts_with("Níjar La de Níjar\n")) << calefaccion.substr(0, 40);
  EXPECT_TRUE(prueba::Contenido(base_ / "Resultados" / "extreRef.met").starts_with("Níjar La de Níjar\n"));
}

TEST_F(Dias, SiElPrimerFicheroNoSePuedeAbrirNoSeEscribeElSegundo) {
  DiasExtremos dias;
  ASSERT_TRUE(Calcular(dias));
  std::filesystem::create_directories(base_ / "Resultados" / "extreCal.met");
  EXPECT_FALSE(dias.EscribirFicherosEn(TextoDeRuta(base_ / "Resultados")));
  EXPECT_FALSE(std::filesystem::exists(base_ / "Resultados" / "extreRef.met"));
  EXPECT_TRUE(mensajes_.apuntes.empty());
}

TEST_F(Dias, SiElSegundoNoSePuedeAbrirQuedaElPrimero) {
  DiasExtremos dias;
  ASSERT_TRUE(Calcular(dias));
  std::filesystem::create_directories(base_ / "Resultados" / "extreRef.met");
  EXPECT_FALSE(dias.EscribirFicherosEn(TextoDeRuta(base_ / "Resultados")));
  EXPECT_TRUE(std::filesystem::is_regular_file(base_ / "Resultados" / "extreCal.met"));
}

TEST_F(Dias, CadaCalculoLogradoAnadeUnBloqueALaSalida) {
  DiasExtremos dias;
  const std::string salida = TextoDeRuta(base_ / "salida.txt");
  ASSERT_TRUE(Calcular(dias)); // sin fichero de salida no escribe nada
  EXPECT_FALSE(std::filesystem::exists(base_ / "salida.txt"));
  dias.PonFicheroSalida(salida);
  ASSERT_TRUE(Calcular(dias));
  EXPECT_FALSE(dias.CalcularDesde(gdr_, "nadie"));
  ASSERT_TRUE(Calcular(dias));
  const std::string texto = prueba::Contenido(base_ / "salida.txt");
  EXPECT_EQ(std::count(texto.begin(), texto.end(), '\n'), 2 * 106);
  EXPECT_EQ(texto.substr(0, texto.size() / 2), texto.substr(texto.size() / 2));
  EXPECT_EQ(DiasExtremos::RutaSalida(), salida);
}

TEST_F(Dias, UnaSalidaQueNoSePuedeEscribirNoEstropeaElCalculo) {
  DiasExtremos dias;
  const prueba::RegistroApuntado registro;
  dias.PonFicheroSalida(TextoDeRuta(base_.Ruta()));
  EXPECT_TRUE(Calcular(dias));
  EXPECT_EQ(registro.textos.size(), 1U);
}

} // namespace
} // namespace tesmo
