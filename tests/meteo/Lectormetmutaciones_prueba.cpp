#include "tests/meteo/Textomet.h"

#include <gtest/gtest.h>
#include <random>

using namespace tesmo;
using namespace tesmo::prueba;

namespace {

/// Un fichero corto con números de todas las formas que un .met puede traer.
std::string Semilla(std::mt19937 &azar) {
  std::string texto = "Lugar\n36.84 -2.39 21.0 15.0\n";
  for (int i = 0; i < 6; ++i) texto += RegistroMet(static_cast<int>(azar() % 97)) + "\n";
  texto += "1 2 3 +4.5 -6e-3 .7 8. 0x1p3 nan inf -0.0 123456789.123456789 1e40 1e-50 0 0\r\n";
  return texto;
}

void Mutar(std::string &texto, std::mt19937 &azar) {
  if (texto.empty()) return;
  const std::string trozos[] = {"e",
                                "1e+",
                                "0x",
                                "nan(1)",
                                "infi",
                                "--",
                                " ",
                                "\n",
                                "\r\n",
                                "abc",
                                ",",
                                "1.2.3",
                                std::string(1, '\0'),
                                std::string(400, 'x'),
                                std::string(400, '7')};
  const std::size_t donde = azar() % texto.size();
  switch (azar() % 5) {
  case 0:
    texto[donde] = static_cast<char>(azar());
    break;
  case 1:
    texto.erase(donde, 1 + azar() % 5);
    break;
  case 2:
    texto.insert(donde, trozos[azar() % std::size(trozos)]);
    break;
  case 3:
    texto.insert(donde, texto.substr(azar() % texto.size(), azar() % 30));
    break;
  default:
    texto.resize(1 + donde);
    break;
  }
}

} // namespace

TEST(LectorMetMutaciones, LeeLoMismoQueLaBibliotecaDeC) {
  std::mt19937 azar(36842390);
  SeriesLeidas series, otras; // se reutilizan: lo que no se lee ha de quedar igual en ambas
  int distintos = 0;
  for (int vuelta = 0; vuelta < 8000; ++vuelta) {
    std::string texto = Semilla(azar);
    for (auto n = 1 + azar() % 4; n > 0; --n) Mutar(texto, azar);
    SitioMet sitio, otro;
    const ResumenLectura resumen = LeerTextoMet(texto, sitio, series);
    const int completos = LeerConC(texto, otro, otras);
    ASSERT_EQ(resumen.registros, completos) << texto;
    ASSERT_TRUE(vuelta % 20 != 0 || MismosBits(sitio, series, otro, otras)) << texto;
    distintos += resumen.registros != 7 ? 1 : 0;
  }
  EXPECT_TRUE(MismosBits(SitioMet{}, series, SitioMet{}, otras));
  EXPECT_GT(distintos, 1500) << "las mutaciones han de estropear muchas lecturas";
}
