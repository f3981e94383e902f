#include "intercambio/sintesis/Normales.h"
#include "intercambio/sintesis/Normalesprograma.h"

#include "tests/comun/Apoyos.h"
#include "tests/intercambio/sintesis/Apoyosintesis.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tesmo {
namespace {

constexpr const char *ENCABEZAMIENTO = "localidad,provincia,capital_referencia,zona,alt_m,lat,lon,mes,tmax_"
                                       "media_c,tmin_media_c,sd_tmax_c,sd_tmin_c,"
                                       "sd_tmax_intrames_c,sd_tmin_intrames_c,r1_tmax,r1_tmin,r_tmax_tmin,"
                                       "hora_tmax_utc,hr_media_pct,ghi_kwh_m2_dia,"
                                       "viento_ms,clase_t,clase_sd,clase_hr,clase_ghi,clase_viento\n";

std::string FilaDe(const std::string &nombre, int mes) {
  return nombre + ",Cádiz,Cádiz,COSTA,10,36.5,-6.2," + std::to_string(mes) +
         ",20,10,3,3,2.5,2.5,0.6,0.5,0.4,14,70,5,4,calculada,calculada,estimada,medida,estimada\n";
}

std::string Fichero(const std::string &nombre = "Sitio") {
  std::string texto = ENCABEZAMIENTO;
  for (int mes = 1; mes <= 12; ++mes) texto += FilaDe(nombre, mes);
  return texto;
}

std::string Cambiar(std::string texto, const std::string &que, const std::string &por) {
  const std::size_t donde = texto.find(que);
  EXPECT_NE(donde, std::string::npos) << que;
  return texto.replace(donde, que.size(), por);
}

std::vector<std::string> Errores(const std::string &texto) {
  std::vector<std::string> errores;
  const auto leidas = LeerNormales(texto, "n.csv", errores);
  return errores;
}

/// Comprueba que @p texto da exactamente una falta y que es la esperada.
void EsperaFalta(const std::string &texto, const std::string &falta) {
  EXPECT_EQ(Errores(texto), std::vector<std::string>{falta});
}

TEST(Normales, LasDelProgramaSon19LocalidadesSinFaltas) {
  const auto &localidades = prueba::NormalesDelPrograma();
  ASSERT_EQ(localidades.size(), 19U);
  const auto &almeria = localidades.front();
  EXPECT_EQ(almeria.nombre, "Almería");
  EXPECT_EQ(almeria.zona, "COSTA");
  EXPECT_DOUBLE_EQ(almeria.latitud, 36.8464);
  EXPECT_DOUBLE_EQ(almeria.meses[0].tmaxMedia, 16.9);
  EXPECT_DOUBLE_EQ(almeria.meses[11].viento, 4.1);
}

TEST(Normales, LaCostaEsLaDeSieteLocalidades) {
  std::vector<std::string> costa;
  for (const auto &localidad : prueba::NormalesDelPrograma()) {
    if (localidad.zona == "COSTA") costa.push_back(localidad.nombre);
  }
  std::sort(costa.begin(), costa.end());
  EXPECT_EQ(costa,
            (std::vector<std::string>{"Almería", "Cádiz", "Huelva", "Motril", "Málaga", "Rota", "Tarifa"}));
}

TEST(Normales, ElVientoQueFaltabaEsElDeLaEstacionMasCercanaYVaMarcado) {
  const auto &todas = prueba::NormalesDelPrograma();
  const auto buscar = [&](const std::string &nombre) {
    return *std::find_if(todas.begin(), todas.end(), [&](const auto &l) { return l.nombre == nombre; });
  };
  const std::vector<std::pair<std::string, std::string>> prestados{
      {"Motril", "Granada"}, {"Ronda", "Málaga"},     {"Baza", "Almería"},
      {"Linares", "Jaén"},   {"Antequera", "Málaga"}, {"Écija", "Córdoba"}};
  for (const auto &[quien, dequien] : prestados) {
    for (std::size_t mes = 0; mes < 12; ++mes) {
      EXPECT_EQ(buscar(quien).meses[mes].viento, buscar(dequien).meses[mes].viento) << quien << mes;
      EXPECT_EQ(buscar(quien).meses[mes].claseViento, ClaseCifra::Estimada) << quien << mes;
      EXPECT_EQ(buscar(dequien).meses[mes].claseViento, ClaseCifra::Calculada) << dequien << mes;
    }
  }
}

TEST(Normales, LeeCadaColumnaPorSuNombreAunqueSobrenOCambienDeSitio) {
  std::string texto = Fichero();
  texto = Cambiar(texto, "localidad,provincia", "localidad,sobra,provincia");
  for (int mes = 1; mes <= 12; ++mes) texto = Cambiar(texto, "\nSitio,Cádiz", "\nSitio,\"x,y\",Cádiz");
  std::vector<std::string> errores;
  const auto localidades = LeerNormales(texto, "n.csv", errores);
  EXPECT_TRUE(errores.empty());
  ASSERT_EQ(localidades.size(), 1U);
  EXPECT_DOUBLE_EQ(localidades[0].longitud, -6.2);
  EXPECT_DOUBLE_EQ(localidades[0].meses[6].rTmaxTmin, 0.4);
  EXPECT_EQ(localidades[0].meses[6].claseTemperatura, ClaseCifra::Calculada);
  EXPECT_EQ(localidades[0].meses[6].claseRadiacion, ClaseCifra::Medida);
}

TEST(Normales, AdmiteMarcaDeBytesYFinesDeLineaDeWindows) {
  std::string texto = "\xEF\xBB\xBF" + Fichero();
  for (std::size_t i = 0; (i = texto.find('\n', i)) != std::string::npos; i += 2) texto.insert(i, "\r");
  EXPECT_TRUE(Errores(texto).empty());
}

TEST(Normales, DiceLaColumnaQueFalta) {
  EsperaFalta(Cambiar(Fichero(), "hr_media_pct", "humedad"), "n.csv:1: falta la columna hr_media_pct");
}

TEST(Normales, DiceLoQueNoEsNumero) {
  EsperaFalta(Cambiar(Fichero(), "2,20,10", "2,veinte,10"),
              "n.csv:3: columna tmax_media_c: «veinte» no es un número con punto decimal");
  EsperaFalta(Cambiar(Fichero(), "2,20,10", "2,,10"), "n.csv:3: columna tmax_media_c: está vacía");
  EsperaFalta(Cambiar(Fichero(), "2,20,10", "2,nan,10"),
              "n.csv:3: columna tmax_media_c: «nan» no es un número con punto decimal");
  EsperaFalta(Cambiar(Fichero(), "2,20,10", "2,20x,10"),
              "n.csv:3: columna tmax_media_c: «20x» no es un número con punto decimal");
}

TEST(Normales, DiceLoQueSeSaleDeLimites) {
  EsperaFalta(Cambiar(Fichero(), "0.6,0.5,0.4", "1.2,0.5,0.4"),
              "n.csv:2: columna r1_tmax: «1.2» queda fuera de 0 a 0.99");
  EsperaFalta(Cambiar(Fichero(), "5,20,10,3", "5,20,21,3"),
              "n.csv:6: columna tmin_media_c: no es menor que tmax_media_c");
}

TEST(Normales, DiceLoQueLeSobraOLeFaltaAUnaFila) {
  EsperaFalta(Fichero() + FilaDe("Sitio", 3),
              "n.csv:14: columna mes: el mes 3 de «Sitio» ya estaba en otra fila");
  EsperaFalta(Fichero() + "Sitio,Cádiz\n", "n.csv:14: tiene 2 campos y el encabezamiento 26");
  EsperaFalta(Cambiar(Fichero(), FilaDe("Sitio", 12), ""), "n.csv:2: a «Sitio» le falta el mes 12");
  EsperaFalta(Fichero() + FilaDe("Sitio", 13), "n.csv:14: columna mes: «13» no es un mes de 1 a 12");
}

TEST(Normales, UnFicheroCortadoDiceDonde) {
  const std::string texto = Fichero();
  const auto errores = Errores(texto.substr(0, texto.size() - 60));
  ASSERT_EQ(errores.size(), 2U);
  EXPECT_TRUE(errores[0].starts_with("n.csv:13: tiene ")) << errores[0];
  EXPECT_EQ(errores[1], "n.csv:2: a «Sitio» le falta el mes 12");
}

TEST(Normales, UnaLocalidadNoCambiaDeSitioEntreFilas) {
  EsperaFalta(Cambiar(Fichero(), "36.5,-6.2,4", "36.6,-6.2,4"),
              "n.csv:5: columna lat: «36.6» no es lo que dice la primera fila de «Sitio»");
}

TEST(Normales, LosNombresNoLlevanComasNiPasanDe49Bytes) {
  const std::string largo(50, 'x');
  EsperaFalta(Fichero(largo), "n.csv:2: columna localidad: «" + std::string(40, 'x') + "» pasa de 49 bytes");
  EsperaFalta(Fichero("\"a,b\""),
              "n.csv:2: columna localidad: «a,b» lleva una coma o un carácter de control");
  EXPECT_TRUE(Errores(Fichero(std::string(49, 'x'))).empty());
  const auto errores = Errores(Fichero(""));
  ASSERT_FALSE(errores.empty());
  EXPECT_EQ(errores[0], "n.csv:2: columna localidad: está vacía");
}

TEST(Normales, DosNombresNoPuedenDarElMismoFichero) {
  const std::string texto =
      Fichero("San Juan") + Fichero("SanJuán").substr(std::string(ENCABEZAMIENTO).size());
  EsperaFalta(texto, "n.csv:14: el nombre corto de «SanJuán», SanJuan, es también el de otra localidad");
}

TEST(Normales, LaClaseYLaZonaSonPalabrasConocidas) {
  EsperaFalta(Cambiar(Fichero(), "estimada,medida", "supuesta,medida"),
              "n.csv:2: columna clase_hr: «supuesta» no es medida, calculada ni estimada");
  std::string texto = Fichero();
  for (int mes = 1; mes <= 12; ++mes) texto = Cambiar(texto, ",COSTA,", ",costa,");
  EsperaFalta(texto, "n.csv:2: columna zona: «costa» no es COSTA ni INTERIOR");
}

TEST(Normales, LaCodificacionEquivocadaSeDiceConSuLinea) {
  EsperaFalta(Cambiar(Fichero(), "Cádiz",
                      "C\xE1"
                      "diz"),
              "n.csv:2: hay bytes que no son UTF-8; guarde el fichero con esa codificación");
}

TEST(Normales, ElPuntoYComaSeReconoce) {
  std::string texto = Fichero();
  std::replace(texto.begin(), texto.end(), ',', ';');
  EsperaFalta(texto, "n.csv:1: los campos van separados por punto y coma; han de separarse por comas");
}

TEST(Normales, LoVacioYLoBinarioSeDicen) {
  EsperaFalta("", "n.csv: está vacío");
  EsperaFalta("# sólo un comentario\n", "n.csv: está vacío");
  EsperaFalta(ENCABEZAMIENTO, "n.csv: no hay ninguna localidad");
  EXPECT_FALSE(Errores(std::string(1000, '\0')).empty());
  EXPECT_FALSE(Errores(std::string(1000000, 'a')).empty());
}

TEST(Normales, MuchasFaltasSeResumen) {
  std::string texto = ENCABEZAMIENTO;
  for (int i = 0; i < 50; ++i) texto += "a,b\n";
  const auto errores = Errores(texto);
  ASSERT_EQ(errores.size(), 21U);
  EXPECT_EQ(errores.back(), "n.csv: y 31 faltas más");
}

TEST(NormalesDeUnaBase, UnaCopiaDeLaBaseLlevaLasSuyas) {
  const prueba::DirectorioTemporal raiz;
  const std::string met = raiz.Escribir("copia/Meteo/Almeria.met", "");
  EXPECT_TRUE(NormalesDeSuBase(met).empty());
  raiz.Escribir("copia/datos/normales.csv", prueba::Contenido(RutaDesdeTexto(prueba::RutaNormales())));
  const std::vector<NormalesLocalidad> normales = NormalesDeSuBase(met);
  ASSERT_EQ(normales.size(), prueba::NormalesDelPrograma().size());
  EXPECT_EQ(normales.front().nombre, prueba::NormalesDelPrograma().front().nombre);
  raiz.Escribir("copia/datos/normales.csv", "no se entiende\n");
  EXPECT_TRUE(NormalesDeSuBase(met).empty());
}

} // namespace
} // namespace tesmo
