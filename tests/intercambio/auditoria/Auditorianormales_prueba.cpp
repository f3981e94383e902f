#include "tests/intercambio/auditoria/Materiadeprueba.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace tesmo::prueba {
namespace {

NormalesLocalidad NormalesDe(const MateriaAuditoria &materia) {
  NormalesLocalidad normales;
  normales.nombre = "Sitio fingido";
  for (NormalesMes &mes : normales.meses) {
    mes.sdTmax = mes.sdTmin = 1.7; // la de un número de −3 a 3 al azar
    mes.ghi = 1.0;
  }
  for (std::size_t mes = 0; mes < 12; ++mes) {
    const auto inicio = static_cast<std::size_t>(DIAS_ANTES_DEL_MES[mes] * 24);
    const auto dias = static_cast<std::size_t>(DIAS_DEL_MES[mes]);
    double maximas = 0.0, minimas = 0.0, global = 0.0;
    for (std::size_t dia = 0; dia < dias; ++dia) {
      const auto t = materia.anio[Campo::TemperaturaSeca].valores.begin() +
                     static_cast<std::ptrdiff_t>(inicio + dia * 24);
      maximas += *std::max_element(t, t + 24);
      minimas += *std::min_element(t, t + 24);
    }
    for (std::size_t i = inicio; i < inicio + dias * 24; ++i)
      global += materia.anio[Campo::GlobalHorizontal].valores[i] / 1000.0;
    normales.meses[mes].tmaxMedia = maximas / static_cast<double>(dias);
    normales.meses[mes].tminMedia = minimas / static_cast<double>(dias);
    normales.meses[mes].ghi = global / static_cast<double>(dias);
  }
  return normales;
}

TEST(AuditoriaNormales, UnAnioComoSusNormalesEsConforme) {
  MateriaAuditoria materia = MateriaLimpia();
  const NormalesLocalidad normales = NormalesDe(materia);
  materia.normales = &normales;
  EXPECT_EQ(Mirar(materia, "normales").gravedad, Gravedad::Conforme) << Mirar(materia, "normales").texto;
}

TEST(AuditoriaNormales, DemasiadoSuaveYDemasiadoDuroSeDicenConSuMes) {
  MateriaAuditoria materia = MateriaLimpia();
  NormalesLocalidad normales = NormalesDe(materia);
  materia.normales = &normales;
  normales.meses[6].sdTmax = 30.0; // julio: ningún día se aleja de la media como debería
  normales.meses[0].tminMedia += 4.0;
  normales.meses[3].ghi *= 2.0;
  const Hallazgo hallazgo = Mirar(materia, "normales");
  EXPECT_EQ(hallazgo.gravedad, Gravedad::Aviso);
  EXPECT_NE(hallazgo.texto.find("julio: la mayor máxima"), std::string::npos) << hallazgo.texto;
  EXPECT_NE(hallazgo.texto.find("muy suave"), std::string::npos) << hallazgo.texto;
  EXPECT_NE(hallazgo.texto.find("enero: mínima media"), std::string::npos) << hallazgo.texto;
  EXPECT_NE(hallazgo.texto.find("abril: global"), std::string::npos) << hallazgo.texto;
}

TEST(AuditoriaNormales, LasDelSitioSonLasDeAlLadoYALaMismaAltura) {
  NormalesLocalidad cerca, lejos, alta;
  cerca.latitud = 37.0, cerca.longitud = -2.4, cerca.altitud = 500.0;
  lejos = cerca, lejos.latitud = 37.5;
  alta = cerca, alta.altitud = 1200.0;
  const std::vector<NormalesLocalidad> todas{lejos, alta, cerca};
  const SitioClima sitio{"", "", "", "", 37.05, -2.4, 520.0};
  EXPECT_EQ(NormalesDelSitio(todas, sitio), &todas[2]);
  EXPECT_EQ(NormalesDelSitio({lejos, alta}, sitio), nullptr);
  EXPECT_EQ(NormalesDelSitio(todas, SitioClima{}), nullptr);
}

} // namespace
} // namespace tesmo::prueba
