#include "intercambio/escritura/Diarioconjunto.h"
#include "intercambio/escritura/Sustitucionconjunta.h"
#include "tests/comun/Apoyos.h"
#include "tests/intercambio/escritura/Apoyosescritura.h"

#include <gtest/gtest.h>

#include <map>

namespace tesmo {
namespace {

namespace fs = std::filesystem;

class SustitucionConjunta : public ::testing::Test {
protected:
  using Estado = std::map<std::string, std::string>;

  /// Todo lo que hay en el directorio, con su contenido.
  [[nodiscard]] Estado Mirar() const {
    Estado estado;
    for (const auto &entrada : fs::directory_iterator(raiz_.Ruta()))
      estado[entrada.path().filename().string()] = prueba::Contenido(entrada.path());
    return estado;
  }
  void Reponer() const {
    for (const auto &entrada : fs::directory_iterator(raiz_.Ruta())) fs::remove_all(entrada.path());
    for (const auto &[nombre, contenido] : antes_) raiz_.Escribir(nombre, contenido);
  }
  [[nodiscard]] Recuperacion Recuperar() const { return RecuperarConjunto(raiz_.Ruta(), {"dos", "tres"}); }

  prueba::DirectorioTemporal raiz_;
  const std::vector<FicheroConjunto> ficheros_{{"uno", "1 nuevo"}, {"dos", "2 nuevo"}, {"tres", "3 nuevo"}};
  const Estado antes_{{"dos", "2 viejo"}, {"tres", "3 viejo"}, {"ajeno", "x"}};
  const Estado despues_{{"uno", "1 nuevo"}, {"dos", "2 nuevo"}, {"tres", "3 nuevo"}, {"ajeno", "x"}};
};

TEST_F(SustitucionConjunta, CambiaLosTresYNoDejaRestos) {
  Reponer();
  EXPECT_EQ(SustituirJuntos(raiz_.Ruta(), ficheros_), "");
  EXPECT_EQ(Mirar(), despues_);
  EXPECT_FALSE(QuedanRestos(raiz_.Ruta(), {"dos", "tres"}));
}

TEST_F(SustitucionConjunta, MuertaEnCualquierPasoSeTerminaOSeDeshace) {
  int terminadas = 0;
  int deshechas = 0;
  bool acabo = false;
  for (int pasos = 1; !acabo; ++pasos) {
    ASSERT_LT(pasos, 50);
    Reponer();
    acabo = prueba::MuereTras(
        pasos, [&](const auto &tras) { static_cast<void>(SustituirJuntos(raiz_.Ruta(), ficheros_, tras)); });
    const Recuperacion hecho = Recuperar();
    const Estado estado = Mirar();
    EXPECT_TRUE(estado == antes_ || estado == despues_) << "tras el paso " << pasos;
    if (hecho == Recuperacion::Terminada) {
      EXPECT_EQ(estado, despues_) << pasos;
    }
    if (hecho == Recuperacion::Deshecha) {
      EXPECT_EQ(estado, antes_) << pasos;
    }
    terminadas += hecho == Recuperacion::Terminada ? 1 : 0;
    deshechas += hecho == Recuperacion::Deshecha ? 1 : 0;
  }
  EXPECT_EQ(Mirar(), despues_);
  EXPECT_EQ(deshechas, 5);  // tres nuevos y dos copias
  EXPECT_EQ(terminadas, 5); // el diario, tres nombres y los restos
}

TEST_F(SustitucionConjunta, LaRecuperacionTambienPuedeMorir) {
  for (int primero = 1; primero <= 10; ++primero) {
    for (int segundo = 1; segundo <= 8; ++segundo) {
      Reponer();
      static_cast<void>(prueba::MuereTras(primero, [&](const auto &tras) {
        static_cast<void>(SustituirJuntos(raiz_.Ruta(), ficheros_, tras));
      }));
      static_cast<void>(prueba::MuereTras(segundo, [&](const auto &tras) {
        static_cast<void>(RecuperarConjunto(raiz_.Ruta(), {"dos", "tres"}, tras));
      }));
      static_cast<void>(Recuperar());
      const Estado estado = Mirar();
      EXPECT_TRUE(estado == antes_ || estado == despues_) << primero << " " << segundo;
    }
  }
}

TEST_F(SustitucionConjunta, SiAlguienCambioDespuesUnFicheroSeDeshaceSinPisarlo) {
  // Muere tras cambiar el primero de los tres nombres: cinco escrituras, el diario y un nombre.
  Reponer();
  static_cast<void>(prueba::MuereTras(
      7, [&](const auto &tras) { static_cast<void>(SustituirJuntos(raiz_.Ruta(), ficheros_, tras)); }));
  ASSERT_EQ(prueba::Contenido(raiz_ / "uno"), "1 nuevo");
  raiz_.Escribir("tres", "3 a mano");
  EXPECT_EQ(Recuperar(), Recuperacion::Deshecha);
  EXPECT_EQ(Mirar(), (Estado{{"dos", "2 viejo"}, {"tres", "3 a mano"}, {"ajeno", "x"}}));
}

TEST_F(SustitucionConjunta, SiAlguienBorroLoYaCambiadoNoSeSigue) {
  Reponer();
  static_cast<void>(prueba::MuereTras(
      7, [&](const auto &tras) { static_cast<void>(SustituirJuntos(raiz_.Ruta(), ficheros_, tras)); }));
  fs::remove(raiz_ / "uno"); // el primero, ya puesto: los otros dos lo nombrarían sin que lo haya
  EXPECT_EQ(Recuperar(), Recuperacion::Deshecha);
  EXPECT_EQ(Mirar(), antes_);
}

TEST_F(SustitucionConjunta, LoQueSeCambiaTrasAcabarSeRespeta) {
  Reponer();
  static_cast<void>(prueba::MuereTras(
      9, [&](const auto &tras) { static_cast<void>(SustituirJuntos(raiz_.Ruta(), ficheros_, tras)); }));
  raiz_.Escribir("tres", "3 a mano");
  EXPECT_EQ(Recuperar(), Recuperacion::Terminada);
  EXPECT_EQ(prueba::Contenido(raiz_ / "uno"), "1 nuevo");
  EXPECT_EQ(prueba::Contenido(raiz_ / "tres"), "3 a mano");
}

TEST_F(SustitucionConjunta, DeshacerSePuedeInterrumpirYRepetir) {
  for (int pasos = 1; pasos < 8; ++pasos) {
    Reponer();
    static_cast<void>(prueba::MuereTras(
        8, [&](const auto &tras) { static_cast<void>(SustituirJuntos(raiz_.Ruta(), ficheros_, tras)); }));
    raiz_.Escribir("tres", "3 a mano"); // obliga a deshacer
    static_cast<void>(prueba::MuereTras(pasos, [&](const auto &tras) {
      static_cast<void>(RecuperarConjunto(raiz_.Ruta(), {"dos", "tres"}, tras));
    }));
    static_cast<void>(Recuperar());
    EXPECT_EQ(Mirar(), (Estado{{"dos", "2 viejo"}, {"tres", "3 a mano"}, {"ajeno", "x"}})) << pasos;
  }
}

TEST_F(SustitucionConjunta, UnNombreQueNoSePuedeCambiarReponeLosDemas) {
  Reponer();
  fs::create_directories(raiz_ / "uno/dentro");
  const std::string error = SustituirJuntos(raiz_.Ruta(), {ficheros_[1], ficheros_[0]});
  EXPECT_NE(error, "");
  EXPECT_EQ(prueba::Contenido(raiz_ / "dos"), "2 viejo");
  EXPECT_FALSE(QuedanRestos(raiz_.Ruta(), {}));
}

TEST_F(SustitucionConjunta, SinPermisoEnElDirectorioNoCambiaNadaYLoDice) {
  Reponer();
  fs::permissions(raiz_.Ruta(), fs::perms::owner_read | fs::perms::owner_exec | fs::perms::others_read |
                                    fs::perms::others_exec);
  EXPECT_TRUE(prueba::SinPrivilegios(raiz_.Ruta(), [&] { return !SustituirJuntos(".", ficheros_).empty(); }));
  fs::permissions(raiz_.Ruta(), fs::perms::owner_all);
  EXPECT_EQ(Mirar(), antes_);
}

TEST_F(SustitucionConjunta, UnEnlaceSigueSiendoloYCambiaSuDestino) {
  const prueba::DirectorioTemporal otro;
  Reponer();
  fs::remove(raiz_ / "dos");
  otro.Escribir("real", "2 viejo");
  fs::create_symlink(otro / "real", raiz_ / "dos");
  for (int pasos = 1; pasos < 12; ++pasos) {
    static_cast<void>(prueba::MuereTras(
        pasos, [&](const auto &tras) { static_cast<void>(SustituirJuntos(raiz_.Ruta(), ficheros_, tras)); }));
    static_cast<void>(Recuperar());
  }
  EXPECT_TRUE(fs::is_symlink(raiz_ / "dos"));
  EXPECT_EQ(prueba::Contenido(otro / "real"), "2 nuevo");
  EXPECT_EQ(std::distance(fs::directory_iterator(otro.Ruta()), fs::directory_iterator()), 1);
}

TEST_F(SustitucionConjunta, UnDiarioEstropeadoNoTocaNada) {
  for (const char *diario :
       {"", "basura", "Tesmo: ficheros que se cambian juntos (1)\n1\t-\t../fuera\nfin\n"}) {
    Reponer();
    raiz_.Escribir(".tesmo-importacion", diario);
    raiz_.Escribir(".tesmo-importacion-0.nuevo", "x");
    EXPECT_EQ(Recuperar(), Recuperacion::Deshecha) << diario;
    EXPECT_EQ(Mirar(), antes_) << diario;
  }
}

TEST(DiarioConjunto, SeLeeLoQueSeEscribe) {
  const DiarioConjunto diario{true, {{"a b.met", 0xFFFFFFFFFFFFFFFFU, std::nullopt}, {"GDR.TXT", 1, 0}}};
  const auto leido = LeerDiario(TextoDiario(diario));
  ASSERT_TRUE(leido);
  EXPECT_TRUE(leido->deshacer);
  ASSERT_EQ(leido->apuntes.size(), 2U);
  EXPECT_EQ(leido->apuntes[0].nombre, "a b.met");
  EXPECT_EQ(leido->apuntes[0].huellaNueva, 0xFFFFFFFFFFFFFFFFU);
  EXPECT_FALSE(leido->apuntes[0].anterior);
  EXPECT_EQ(leido->apuntes[1].anterior, 0U);
}

TEST(DiarioConjunto, CortadoEnCualquierByteNoVale) {
  const std::string texto = TextoDiario({false, {{"a", 12, 34}, {"b", 56, std::nullopt}}});
  for (std::size_t n = 0; n < texto.size(); ++n) EXPECT_FALSE(LeerDiario(texto.substr(0, n))) << n;
}

TEST(DiarioConjunto, HuellaPublicada) {
  // Valores de la especificación de FNV-1a de 64 bits (Noll).
  EXPECT_EQ(Huella(""), 0xCBF29CE484222325U);
  EXPECT_EQ(Huella("a"), 0xAF63DC4C8601EC8CU);
  EXPECT_EQ(Huella("foobar"), 0x85944171F73967E8U);
}

} // namespace
} // namespace tesmo
