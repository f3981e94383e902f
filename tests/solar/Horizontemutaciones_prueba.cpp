// Ficheros de horizonte de cada formato, cortados, repetidos y con bytes cambiados al azar, siempre los
// mismos: nada se sale de su sitio, lo leído está dentro de los límites de su formato y todo fallo se
// explica.

#include "solar/Alturashorizonte.h"
#include "solar/Edicionhorizonte.h"
#include "solar/Formatoshorizonte.h"
#include "solar/Giroshorizonte.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <random>

namespace tesmo {
namespace {

constexpr std::array<std::string_view, 8> SEMILLAS{
    "6\n-180.0, 10.5\n-90, 1e1\n-1.5, 0x1p3\n30, inf\n95.25, -2\n180, nan\n",
    "Perfil de horizonte: acimut (0 al sur, oeste positivo) en grados;altura en "
    "grados\n-60;10\n0.1;7,5\n9;nan\n",
    "Latitude (deg.): "
    "1.0\r\n\r\nA\t\tH_hor\t\tA_sun(w)\t\tH_sun(w)\r\n-180.0\t\t3.0\t\t0\t\t0\r\n0.0\t\t1.0\t\t0\t\t5\r\n"
    "\r\nA: Azimuth (0 = S, 90 = W, -90 = E) (degree)\r\n",
    "horizon_azimuth,horizon_elevation\n0,9.9\n7.5,13\n180,4.6\n352.5,2\n",
    "azimut_desde_norte_grados;altura_grados\n0;0\n45;10\n90;20\n360;5\n",
    "-180.0\t3.1\t-180.0\t0.0\t-180.0\t0.0\n0.0\t8.4\t0.0\t29.7\t0.0\t76.6\n",
    "0,10,20,30,40,15,25,5\n",
    "# nota\n-90,5 10\n0 20,5\n90 5\n",
};

void Mutar(std::string &texto, std::mt19937 &azar) {
  static const std::array<std::string, 14> TROZOS{";",
                                                  ",",
                                                  "\t",
                                                  "\n",
                                                  "\r",
                                                  "nan",
                                                  "-",
                                                  "1e308",
                                                  "0=N",
                                                  "\xff\xfe",
                                                  "«",
                                                  "#",
                                                  std::string(1, '\0'),
                                                  std::string(300, '9')};
  const std::size_t donde = azar() % (texto.size() + 1);
  switch (azar() % 5U) {
  case 0:
    if (donde < texto.size()) texto[donde] = static_cast<char>(azar());
    break;
  case 1:
    texto.erase(donde, azar() % 8U);
    break;
  case 2:
    texto.insert(donde, TROZOS[azar() % TROZOS.size()]);
    break;
  case 3:
    texto.insert(donde, texto.substr(azar() % (texto.size() + 1), azar() % 40U));
    break;
  default:
    texto.resize(donde);
    break;
  }
}

void ComprobarAjeno(const PerfilHorizonte &perfil, const std::string &texto) {
  for (std::size_t i = 0; i < perfil.X().size(); ++i) {
    ASSERT_LE(std::fabs(perfil.X()[i]), 180.0F) << texto;
    ASSERT_LE(std::fabs(perfil.Y()[i]), 100.0F) << texto;
    ASSERT_TRUE(i == 0 || perfil.X()[i - 1] <= perfil.X()[i]) << texto;
  }
}

/// Todo lo que se hace con un perfil recién leído.
void Usar(const HorizonteLeido &leido) {
  const PerfilHorizonte usado = PerfilParaUsar(leido);
  (void)AlturasDeHorizonte(usado.X(), usado.Y()).FactorDeCielo(0.0F);
  (void)CerrarVuelta(ReflejarPerfil(GirarPerfil(leido.perfil, 1)));
  EdicionHorizonte edicion;
  edicion.Tomar(leido.perfil);
  edicion.SoltarIzquierdo(12.0F, 30.0F, false);
  edicion.PulsarDerecho(12.0F, 30.0F);
  edicion.Deshacer();
  for (const DatosFormato &datos : FormatosDeHorizonte()) (void)TextoDeHorizonte(leido.perfil, datos.formato);
}

TEST(HorizonteMutaciones, LosLectoresAguantanCualquierTexto) {
  std::mt19937 azar(3684239U);
  std::array<int, SEMILLAS.size()> leidos{};
  int fallos = 0;
  for (int vuelta = 0; vuelta < 24'000; ++vuelta) {
    const std::size_t semilla = static_cast<std::size_t>(vuelta) % SEMILLAS.size();
    std::string texto(SEMILLAS[semilla]);
    for (auto cambios = azar() % 5U; cambios > 0; --cambios) Mutar(texto, azar);
    FalloLectura fallo;
    const auto leido = LeerHorizonteDeTexto(texto, fallo);
    if (!leido) {
      ASSERT_FALSE(fallo.texto.empty()) << texto;
      ++fallos;
      continue;
    }
    ++leidos[semilla];
    ASSERT_LE(leido->perfil.Tamano(), PerfilHorizonte::PUNTOS_MAXIMOS);
    if (!EsPropio(leido->formato)) ComprobarAjeno(leido->perfil, texto);
    if (leido->perfil.Tamano() < 100) Usar(*leido);
  }
  EXPECT_GT(fallos, 3'000) << "las mutaciones han de estropear muchas lecturas";
  for (const int n : leidos) EXPECT_GT(n, 500) << "y dejar bastantes";
}

} // namespace
} // namespace tesmo
