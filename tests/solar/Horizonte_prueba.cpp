#include "core/Lectornumeros.h"
#include "solar/Posicionsolar.h"
#include "tests/comun/Apoyos.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>
#include <random>

namespace tesmo {
namespace {

class Horizonte : public ::testing::Test {
protected:
  [[nodiscard]] std::string Ruta(const char *nombre) const { return (directorio_ / nombre).string(); }
  /// Lee @p contenido desde un fichero, como lo haría el programa.
  bool Leer(const std::string &contenido) {
    return sol_.LeerHorizonte(directorio_.Escribir("perfil.txt", contenido));
  }
  void PonPrevio() {
    sol_.PonTamanoHorizonte(1.0F);
    sol_.PonPuntoHorizonte(0, 5.0F, 6.0F);
  }
  void EsperaPrevio() const {
    EXPECT_EQ(sol_.HorizonteX(), std::vector<float>{5.0F});
    EXPECT_EQ(sol_.HorizonteY(), std::vector<float>{6.0F});
  }

  prueba::DirectorioTemporal directorio_;
  PosicionSolar sol_{36.84F, 6, 21, 10.0F};
};

using Puntos = std::vector<float>;

TEST_F(Horizonte, ElTamanoSeTruncaYEmpiezaACero) {
  sol_.PonTamanoHorizonte(3.9F);
  std::int32_t n = 0;
  sol_.DameEntero("Tamaño horizonte", n);
  EXPECT_EQ(n, 3);
  EXPECT_EQ(sol_.HorizonteX(), (Puntos{0, 0, 0}));
  EXPECT_EQ(sol_.HorizonteY(), (Puntos{0, 0, 0}));
}

TEST_F(Horizonte, CambiarElTamanoBorraLosPuntos) {
  PonPrevio();
  sol_.PonTamanoHorizonte(2.0F);
  EXPECT_EQ(sol_.HorizonteX(), (Puntos{0, 0}));
}

TEST_F(Horizonte, UnTamanoSinSentidoSeAcota) {
  for (const float n : {-1.0F, std::nanf(""), -std::numeric_limits<float>::infinity()}) {
    sol_.PonTamanoHorizonte(n);
    EXPECT_TRUE(sol_.HorizonteX().empty());
  }
  sol_.PonTamanoHorizonte(1e30F);
  EXPECT_EQ(sol_.Horizonte().Tamano(), PerfilHorizonte::PUNTOS_MAXIMOS);
}

TEST_F(Horizonte, UnPuntoFueraDelPerfilNoHaceNada) {
  PonPrevio();
  sol_.PonPuntoHorizonte(1, 9.0F, 9.0F);
  sol_.PonPuntoHorizonte(-1, 9.0F, 9.0F);
  EsperaPrevio();
}

TEST_F(Horizonte, DameVectorCopiaCadaMitad) {
  std::array<float, 2> bufer{-1.0F, -1.0F};
  sol_.DameVector("Horizonte X", bufer.data()); // sin perfil no copia nada
  EXPECT_EQ(bufer[0], -1.0F);
  PonPrevio();
  sol_.DameVector("Horizonte X", bufer.data());
  EXPECT_EQ(bufer[0], 5.0F);
  sol_.DameVector("Horizonte Y", bufer.data());
  EXPECT_EQ(bufer[0], 6.0F);
  sol_.DameVector("Horizonte", bufer.data());
  EXPECT_EQ(bufer[0], 6.0F);
  EXPECT_EQ(bufer[1], -1.0F);
}

TEST_F(Horizonte, LeeUnPerfilCompleto) {
  ASSERT_TRUE(Leer("3\n-180.000000, 10.000000\n0.000000, 5.500000\n180.000000, 10.000000\n"));
  EXPECT_EQ(sol_.HorizonteX(), (Puntos{-180, 0, 180}));
  EXPECT_EQ(sol_.HorizonteY(), (Puntos{10, 5.5F, 10}));
}

TEST_F(Horizonte, LosFinesDeLineaDeWindowsYLosBlancosNoImportan) {
  ASSERT_TRUE(Leer("  2\r\n  -10,   4\r\n\r\n 20, 8   "));
  EXPECT_EQ(sol_.HorizonteX(), (Puntos{-10, 20}));
  EXPECT_EQ(sol_.HorizonteY(), (Puntos{4, 8}));
}

TEST_F(Horizonte, LasLineasQueFaltanQuedanACero) {
  ASSERT_TRUE(Leer("4\n1, 2\n3, 4\n"));
  EXPECT_EQ(sol_.HorizonteX(), (Puntos{1, 3, 0, 0}));
  EXPECT_EQ(sol_.HorizonteY(), (Puntos{2, 4, 0, 0}));
}

TEST_F(Horizonte, LasLineasQueSobranNoSeLeen) {
  ASSERT_TRUE(Leer("1\n1, 2\n3, 4\n"));
  EXPECT_EQ(sol_.HorizonteX(), (Puntos{1}));
}

TEST_F(Horizonte, UnTextoQueNoEsNumeroDetieneLasParejas) {
  ASSERT_TRUE(Leer("3\n1, 2\nhola, 4\n5, 6\n"));
  EXPECT_EQ(sol_.HorizonteX(), (Puntos{1, 0, 0}));
  ASSERT_TRUE(Leer("2\n1, x\n"));
  EXPECT_EQ(sol_.HorizonteX(), (Puntos{1, 0}));
}

// La coma va pegada al número; sin ella el segundo número pasa a ser el acimut del punto siguiente.
TEST_F(Horizonte, SinComaLosNumerosSeDescolocan) {
  ASSERT_TRUE(Leer("3\n1 2\n"));
  EXPECT_EQ(sol_.HorizonteX(), (Puntos{1, 2, 0}));
  EXPECT_EQ(sol_.HorizonteY(), (Puntos{0, 0, 0}));
}

TEST_F(Horizonte, LoQueNoEsUnPerfilSeRechazaYSeConservaElQueHabia) {
  PonPrevio();
  EXPECT_FALSE(sol_.LeerHorizonte(Ruta("no-existe.txt")));
  EXPECT_FALSE(sol_.LeerHorizonte(directorio_.Ruta().string()));
  for (const char *texto : {"", "  \n", "hola\n", "-1\n1, 2\n", "100001\n1, 2\n", "99999999999999\n1, 2\n"}) {
    EXPECT_FALSE(Leer(texto)) << texto;
  }
  EsperaPrevio();
  ASSERT_TRUE(Leer("0\n"));
  EXPECT_TRUE(sol_.HorizonteX().empty());
  ASSERT_TRUE(Leer("100000\n1, 2\n"));
  EXPECT_EQ(sol_.Horizonte().Tamano(), PerfilHorizonte::PUNTOS_MAXIMOS);
}

TEST_F(Horizonte, UnFicheroSinPermisoDeLecturaConservaElPerfil) {
  PonPrevio();
  const std::string ruta = directorio_.Escribir("cerrado.txt", "1\n1, 2\n");
  std::filesystem::permissions(ruta, std::filesystem::perms::none);
  EXPECT_TRUE(
      prueba::SinPrivilegios([&] { return !sol_.LeerHorizonte(ruta) && sol_.HorizonteX().size() == 1; }));
}

TEST_F(Horizonte, AlGuardarSoloVanLosPuntosPares) {
  sol_.PonTamanoHorizonte(5.0F);
  for (int i = 0; i < 5; ++i) sol_.PonPuntoHorizonte(i, static_cast<float>(i), 0.5F * static_cast<float>(i));
  ASSERT_TRUE(sol_.GuardarHorizonte(Ruta("guardado.txt")));
  const std::string esperado = "5\n0.000000, 0.000000\n2.000000, 1.000000\n4.000000, 2.000000\n";
  EXPECT_EQ(LeerFicheroEntero(Ruta("guardado.txt")), esperado);
  ASSERT_TRUE(sol_.LeerHorizonte(Ruta("guardado.txt")));
  EXPECT_EQ(sol_.HorizonteX(), (Puntos{0, 2, 4, 0, 0}));
  EXPECT_EQ(sol_.HorizonteY(), (Puntos{0, 1, 2, 0, 0}));
}

TEST_F(Horizonte, UnPerfilVacioSeGuardaComoCero) {
  ASSERT_TRUE(sol_.GuardarHorizonte(Ruta("vacio.txt")));
  EXPECT_EQ(LeerFicheroEntero(Ruta("vacio.txt")), "0\n");
}

TEST_F(Horizonte, DondeNoSePuedeEscribirLoDice) {
  EXPECT_FALSE(sol_.GuardarHorizonte(directorio_.Ruta().string()));
  EXPECT_FALSE(sol_.GuardarHorizonte(Ruta("no/existe.txt")));
}

// Perfiles cortados, repetidos y con bytes cambiados al azar, siempre los mismos: nada se sale de su sitio.
TEST_F(Horizonte, TextosMutadosNoRompenNada) {
  const std::string semilla = "6\n-180.0, 10.5\n-90, 1e1\n-1.5, 0x1p3\n30, inf\n95.25, -2\n180, nan\n";
  const std::string alfabeto = std::string("0123456789+-.,eExXpPnaNiInf \n\r\t\xff\xc3") + '\0';
  std::mt19937 azar(20240229U);
  int leidos = 0;
  for (int vuelta = 0; vuelta < 40'000; ++vuelta) {
    std::string texto = semilla;
    for (auto cambios = azar() % 6U; cambios > 0 && !texto.empty(); --cambios) {
      const std::size_t donde = azar() % texto.size();
      switch (azar() % 4U) {
      case 0:
        texto[donde] = alfabeto[azar() % alfabeto.size()];
        break;
      case 1:
        texto.erase(donde, azar() % 8U);
        break;
      case 2:
        texto.insert(donde, 1, alfabeto[azar() % alfabeto.size()]);
        break;
      default:
        texto.resize(donde);
        break;
      }
    }
    PerfilHorizonte perfil;
    perfil.PonTamano(2.0F);
    const PerfilHorizonte antes = perfil;
    if (LeerPerfil(texto, perfil)) {
      ++leidos;
      ASSERT_LE(perfil.Tamano(), PerfilHorizonte::PUNTOS_MAXIMOS);
      ASSERT_EQ(perfil.X().size(), perfil.Y().size());
    } else {
      ASSERT_EQ(perfil, antes);
    }
  }
  EXPECT_GT(leidos, 10'000);
}

} // namespace
} // namespace tesmo
