#include "localidades/Ciudad.h"

#include "core/Rutas.h"
#include "tests/comun/Apoyos.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace tesmo {
namespace {

namespace fs = std::filesystem;

std::string Linea(const std::string &nombre, const std::string &provincia) {
  return nombre + ",Corta," + provincia + ",Cuarto,Ref," + nombre + ".met,36.84,-2.39,-15,21,0\n";
}

class BaseDeDatosDeLocalidades : public ::testing::Test {
protected:
  void SetUp() override {
    PonAvisoLocalidades([this](const std::string &aviso) { avisos_.push_back(aviso); });
    LiberarBaseDeLocalidades();
    raiz_.Escribir("config.ini", "Directorios\nMET = Meteo\\\n");
  }
  void TearDown() override {
    LiberarBaseDeLocalidades();
    PonAvisoLocalidades({});
    LiberarConfiguracion();
    fs::current_path(directorio_);
  }
  /// Base cuyo directorio meteorológico, Meteo, guarda @p contenido como "LocalidadesCC".
  BaseDeLocalidades &Con(const std::string &contenido) {
    raiz_.Escribir("Meteo/LocalidadesCC", contenido);
    return Abrir();
  }
  BaseDeLocalidades &Abrir() {
    IniciarConfiguracion(raiz_.Ruta().string());
    return DameBaseDeLocalidades();
  }

  prueba::DirectorioTemporal raiz_;
  fs::path directorio_ = fs::current_path();
  prueba::MensajesApuntados mensajes_;
  std::vector<std::string> avisos_;
};

TEST_F(BaseDeDatosDeLocalidades, EmpiezaSinLocalidadEnCurso) {
  const BaseDeLocalidades &base = Con("1\n" + Linea("Rota", "Cádiz"));
  EXPECT_TRUE(base.Cargada());
  EXPECT_EQ(base.DameTexto("Ciudad"), "Ninguno");
  EXPECT_EQ(base.DameTexto("Latitud"), "");
  EXPECT_TRUE(mensajes_.apuntes.empty());
}

TEST_F(BaseDeDatosDeLocalidades, AtributosDeLaLocalidadEnCurso) {
  BaseDeLocalidades &base = Con("1\n" + Linea("Rota", "Cádiz"));
  base.PonTexto("Ciudad", "Rota");
  EXPECT_EQ(base.DameTexto("Ciudad"), "Rota");
  EXPECT_EQ(base.DameTexto("Provincia"), "Cádiz");
  EXPECT_EQ(base.DameTexto("Latitud"), "36.84");
  EXPECT_EQ(base.DameTexto("Altura"), "");
}

TEST_F(BaseDeDatosDeLocalidades, LocalidadEnCursoSinComprobarQueExiste) {
  BaseDeLocalidades &base = Con("1\n" + Linea("Rota", "Cádiz"));
  base.PonTexto("Ciudad", "Atlántida");
  EXPECT_EQ(base.DameTexto("Ciudad"), "Atlántida");
  EXPECT_EQ(base.DameTexto("Fichero"), "");
}

TEST_F(BaseDeDatosDeLocalidades, ClavesDesconocidasIgnoradas) {
  BaseDeLocalidades &base = Con("1\n" + Linea("Rota", "Cádiz"));
  base.PonTexto("Provincia", "Jaén");
  EXPECT_EQ(base.DameTextoDe("Rota", "Provincia"), "Cádiz");
  std::vector<std::string> lista;
  base.ListaDe("Comarcas", lista);
  base.ListaDe("Comarcas", "Cádiz", lista);
  EXPECT_TRUE(lista.empty());
  EXPECT_TRUE(mensajes_.apuntes.empty());
}

TEST_F(BaseDeDatosDeLocalidades, AtributoDeLocalidadNombradaSinCambiarLaEnCurso) {
  BaseDeLocalidades &base = Con("2\n" + Linea("Rota", "Cádiz") + Linea("Motril", "Granada"));
  EXPECT_EQ(base.DameTextoDe("Motril", "Fichero"), "Motril.met");
  EXPECT_EQ(base.DameTextoDe("motril", "Fichero"), "");
  EXPECT_EQ(base.DameTexto("Ciudad"), "Ninguno");
}

TEST_F(BaseDeDatosDeLocalidades, ProvinciasDistintasPorOrdenDeAparicion) {
  const BaseDeLocalidades &base =
      Con("3\n" + Linea("Rota", "Cádiz") + Linea("Motril", "Granada") + Linea("Tarifa", "Cádiz"));
  std::vector<std::string> lista{"Todas", "Granada"};
  base.ListaDe("Provincias", lista);
  EXPECT_EQ(lista, (std::vector<std::string>{"Todas", "Granada", "Cádiz"}));
}

TEST_F(BaseDeDatosDeLocalidades, ProvinciaConBlancoFinalEsOtra) {
  const BaseDeLocalidades &base = Con("2\n" + Linea("Rota", "Cádiz") + Linea("Tarifa", "Cádiz "));
  std::vector<std::string> provincias, localidades;
  base.ListaDe("Provincias", provincias);
  base.ListaDe("Localidades", "Cádiz", localidades);
  EXPECT_EQ(provincias, (std::vector<std::string>{"Cádiz", "Cádiz "}));
  EXPECT_EQ(localidades, std::vector<std::string>{"Rota"});
}

TEST_F(BaseDeDatosDeLocalidades, BloqueCortoRepiteRegistrosPeroNoListas) {
  const BaseDeLocalidades &base = Con("3\n" + Linea("Rota", "Cádiz") + Linea("Tarifa", "Cádiz"));
  EXPECT_EQ(base.Registros().size(), 3U);
  EXPECT_EQ(base.Registros()[2]->localidad, "Tarifa");
  std::vector<std::string> provincias, localidades;
  base.ListaDe("Provincias", provincias);
  base.ListaDe("Localidades", "Cádiz", localidades);
  EXPECT_EQ(provincias, std::vector<std::string>{"Cádiz"});
  EXPECT_EQ(localidades, (std::vector<std::string>{"Rota", "Tarifa"}));
}

TEST_F(BaseDeDatosDeLocalidades, ElPrimerRegistroDeUnNombreGana) {
  const BaseDeLocalidades &base = Con("2\n" + Linea("Rota", "Cádiz") + Linea("Rota", "Jaén"));
  ASSERT_NE(base.BuscarLocalidad("Rota"), nullptr);
  EXPECT_EQ(base.BuscarLocalidad("Rota")->provincia, "Cádiz");
  EXPECT_EQ(base.BuscarLocalidad("rota"), nullptr);
}

// El mensaje dice «Meteorológico» y no la ruta. Se conserva.
TEST_F(BaseDeDatosDeLocalidades, FicheroAusenteAvisaYDejaLaBaseVacia) {
  const BaseDeLocalidades &base = Abrir();
  EXPECT_FALSE(base.Cargada());
  EXPECT_TRUE(base.Registros().empty());
  ASSERT_EQ(mensajes_.apuntes.size(), 1U);
  EXPECT_EQ(mensajes_.apuntes[0].texto, "No se puede abrir el fichero: Meteorológico.\n");
  EXPECT_EQ(mensajes_.apuntes[0].titulo, "Información");
  std::vector<std::string> lista;
  base.ListaDe("Provincias", lista);
  EXPECT_TRUE(lista.empty());
  EXPECT_EQ(base.DameTextoDe("Rota", "Fichero"), "");
}

TEST_F(BaseDeDatosDeLocalidades, DirectorioEnLugarDeFicheroNoSeAbre) {
  fs::create_directories(raiz_ / "Meteo/LocalidadesCC");
  EXPECT_FALSE(Abrir().Cargada());
  EXPECT_EQ(mensajes_.apuntes.size(), 1U);
}

TEST_F(BaseDeDatosDeLocalidades, FicheroSinPermisoDeLectura) {
  const std::string ruta = raiz_.Escribir("Meteo/LocalidadesCC", "1\n" + Linea("Rota", "Cádiz"));
  fs::permissions(raiz_.Ruta(), fs::perms::all);
  fs::permissions(ruta, fs::perms::none);
  EXPECT_TRUE(prueba::SinPrivilegios([&] { return !Abrir().Cargada() && mensajes_.apuntes.size() == 1; }));
}

TEST_F(BaseDeDatosDeLocalidades, DirectorioMeteorologicoAusente) {
  EXPECT_FALSE(Abrir().Cargada());
  EXPECT_EQ(mensajes_.apuntes.size(), 1U);
}

TEST_F(BaseDeDatosDeLocalidades, NombreDelFicheroSinDistinguirMayusculas) {
  raiz_.Escribir("Meteo/LOCALIDADESCC", "1\n" + Linea("Rota", "Cádiz"));
  EXPECT_EQ(Abrir().Registros().size(), 1U);
}

TEST_F(BaseDeDatosDeLocalidades, FicheroVacioEsUnaBaseVaciaSinMensajes) {
  EXPECT_TRUE(Con("").Cargada());
  EXPECT_TRUE(mensajes_.apuntes.empty());
  EXPECT_TRUE(avisos_.empty());
}

TEST_F(BaseDeDatosDeLocalidades, LosDefectosVanAlDestinoDeAvisosYNoAUnaCaja) {
  static_cast<void>(Con("1\nRota,Rota,Cádiz,x,y,rota.met,sur,0,0,0,0\n"));
  EXPECT_TRUE(mensajes_.apuntes.empty());
  ASSERT_EQ(avisos_.size(), 1U);
  EXPECT_EQ(avisos_[0], "LocalidadesCC: línea 2: campo 7: \"sur\" no es un número; se toma 0");
}

TEST_F(BaseDeDatosDeLocalidades, UnaSolaBaseLeidaUnaSolaVez) {
  BaseDeLocalidades &base = Con("1\n" + Linea("Rota", "Cádiz"));
  base.PonTexto("Ciudad", "Rota");
  raiz_.Escribir("Meteo/LocalidadesCC", "0\n");
  EXPECT_EQ(&DameBaseDeLocalidades(), &base);
  EXPECT_EQ(DameBaseDeLocalidades().DameTexto("Ciudad"), "Rota");
}

TEST_F(BaseDeDatosDeLocalidades, QuienLaComparteLaConservaTrasLiberarla) {
  static_cast<void>(Con("1\n" + Linea("Rota", "Cádiz")));
  const std::shared_ptr<BaseDeLocalidades> mia = CompartirBaseDeLocalidades();
  LiberarBaseDeLocalidades();
  EXPECT_EQ(mia->Registros().size(), 1U);
  EXPECT_NE(&DameBaseDeLocalidades(), mia.get());
}

ObjetoCiudad Registro(const std::string &nombre, const std::string &provincia, float latitud) {
  ObjetoCiudad ciudad;
  ciudad.localidad = nombre;
  ciudad.provincia = provincia;
  ciudad.latitud = latitud;
  return ciudad;
}

std::vector<std::string> Nombres(const BaseDeLocalidades &base) {
  std::vector<std::string> nombres;
  for (const auto &registro : base.Registros()) nombres.push_back(registro->localidad);
  return nombres;
}

TEST_F(BaseDeDatosDeLocalidades, UnAltaVaDetrasDeLasDeSuProvinciaSinLeerElFichero) {
  BaseDeLocalidades &base =
      Con("2\n" + Linea("Rota", "Cádiz") + Linea("Jerez", "Cádiz") + "1\n" + Linea("Baza", "Granada"));
  fs::remove(raiz_ / "Meteo/LocalidadesCC");
  base.PonRegistro(Registro("Tarifa", "Cádiz", 36));
  base.PonRegistro(Registro("Níjar", "Almería", 37));
  EXPECT_EQ(Nombres(base), (std::vector<std::string>{"Rota", "Jerez", "Tarifa", "Baza", "Níjar"}));
  std::vector<std::string> provincias;
  base.ListaDe("Provincias", provincias);
  EXPECT_EQ(provincias, (std::vector<std::string>{"Cádiz", "Granada", "Almería"}));
}

TEST_F(BaseDeDatosDeLocalidades, UnAltaDelMismoNombreSustituyeSinMoverElRegistro) {
  BaseDeLocalidades &base = Con("2\n" + Linea("Rota", "Cádiz") + Linea("Jerez", "Cádiz"));
  const ObjetoCiudad *antes = base.BuscarLocalidad("Rota");
  base.PonRegistro(Registro("Rota", "Cádiz", 12));
  EXPECT_EQ(base.BuscarLocalidad("Rota"), antes);
  EXPECT_EQ(antes->latitud, 12.0F);
  EXPECT_EQ(Nombres(base), (std::vector<std::string>{"Rota", "Jerez"}));
}

TEST_F(BaseDeDatosDeLocalidades, UnaLocalidadQueCambiaDeProvinciaNoQuedaDosVeces) {
  BaseDeLocalidades &base = Con("1\n" + Linea("Rota", "Cádiz") + "1\n" + Linea("Baza", "Granada"));
  base.PonRegistro(Registro("Rota", "Granada", 12));
  EXPECT_EQ(Nombres(base), (std::vector<std::string>{"Baza", "Rota"}));
}

TEST_F(BaseDeDatosDeLocalidades, QuienSeApuntaSabeDeCadaAltaMientrasGuardeSuPapel) {
  BaseDeLocalidades &base = Con("");
  std::vector<std::string> vistas;
  const auto apuntar = [&](const ObjetoCiudad &ciudad) {
    EXPECT_EQ(base.BuscarLocalidad(ciudad.localidad), &ciudad); // ya está puesta
    vistas.push_back(ciudad.localidad);
  };
  const std::shared_ptr<void> una = base.AlCambiar(apuntar);
  std::shared_ptr<void> otra = base.AlCambiar(apuntar);
  base.PonRegistro(Registro("Rota", "Cádiz", 1));
  otra.reset();
  base.PonRegistro(Registro("Jerez", "Cádiz", 1));
  EXPECT_EQ(vistas, (std::vector<std::string>{"Rota", "Rota", "Jerez"}));
}

TEST_F(BaseDeDatosDeLocalidades, QuienSeBorraDuranteUnAvisoYaNoLoRecibe) {
  BaseDeLocalidades &base = Con("");
  std::shared_ptr<void> segundo;
  int veces = 0;
  const auto primero = base.AlCambiar([&](const ObjetoCiudad &) { segundo.reset(); });
  segundo = base.AlCambiar([&](const ObjetoCiudad &) { ++veces; });
  base.PonRegistro(Registro("Rota", "Cádiz", 1));
  EXPECT_EQ(veces, 0);
}

} // namespace
} // namespace tesmo
