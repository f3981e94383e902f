#include "app/Carga.h"

#include "app/Accion.h"
#include "app/Programa.h"
#include "app/Seleccion.h"
#include "core/Rutas.h"
#include "localidades/Ciudad.h"
#include "meteo/Leermet.h"
#include "psicro/Psicrometrico.h"
#include "solar/Posicionsolar.h"
#include "tests/comun/Apoyos.h"

#include <gtest/gtest.h>

#include <cmath>
#include <optional>

namespace tesmo {
namespace {

constexpr int PRESION = 15;
constexpr const char *SECA = "Temperatura seca (ºC)";

/// Dos días con la temperatura @p seca y una altitud de sitio @p altitud.
std::string Met(const std::string &altitud, const std::string &seca) {
  std::string texto = "cabecera\n36.84 -2.39 " + altitud + " 15.0\n";
  for (int dia = 1; dia <= 2; ++dia)
    for (int hora = 1; hora <= 24; ++hora)
      texto += "1 " + std::to_string(dia) + " " + std::to_string(hora) + " " + seca +
               " 5.0 100 50 0.006 60 2 90 10 60 0 0\n";
  return texto;
}

class CaminoDeCarga : public ::testing::Test {
protected:
  void SetUp() override {
    raiz_.Escribir("config.ini", "Directorios\nMET = Meteo\\\n");
    raiz_.Escribir("Meteo/LocalidadesCC", "4\nRota,R,Cádiz,x,y,rota.met,0,0,0,0,0\n"
                                          "Jerez,J,Cádiz,x,y,jerez.met,0,0,0,0,0\n"
                                          "Perdida,P,Cádiz,x,y,nohay.met,0,0,0,0,0\n"
                                          "Muda,M,Cádiz,x,y,,0,0,0,0,0\n");
    raiz_.Escribir("Meteo/rota.met", Met("21.0", "12.5"));
    raiz_.Escribir("Meteo/jerez.met", Met("1000.0", "30.5"));
    LiberarBaseDeLocalidades();
    IniciarConfiguracion(raiz_.Ruta().string());
    programa_.emplace();
  }
  void TearDown() override {
    programa_.reset();
    LiberarBaseDeLocalidades();
    LiberarConfiguracion();
    std::filesystem::current_path(directorio_);
  }
  static float PrimeraSeca(const Programa &programa) {
    std::vector<float> valores(24);
    programa.DameLeerMet()->DameSerie(SECA, valores.data());
    return valores[0];
  }
  /// Presión de la atmósfera normal a una altitud [m] (ASHRAE Handbook of Fundamentals, cap. 1).
  static float PresionA(double altitud) {
    return static_cast<float>(101325.0 * std::pow(1.0 - 2.25577e-5 * altitud, 5.2559));
  }
  void Elegir(const std::string &localidad) {
    seleccion_.PonProvincia("Cádiz");
    seleccion_.PonLocalidad(localidad);
  }

  prueba::DirectorioTemporal raiz_;
  std::filesystem::path directorio_ = std::filesystem::current_path();
  prueba::MensajesApuntados mensajes_;
  std::optional<Programa> programa_;
  Seleccion seleccion_;
};

TEST_F(CaminoDeCarga, CargaDatosPeriodoSuperficieYPresion) {
  Elegir("Rota");
  seleccion_.PonPeriodo({{1, 2, 3}, {1, 2, 4}});
  seleccion_.PonSuperficie({"30", "-45,5", "0.3"});
  ASSERT_EQ(CargarLocalidad(*programa_, seleccion_), ResultadoCarga::Cargada);
  EXPECT_TRUE(programa_->HayDatos());
  EXPECT_EQ(programa_->DameLocalidadCargada(), "Rota");
  const LeerMet &meteo = *programa_->DameLeerMet();
  EXPECT_EQ(PrimeraSeca(*programa_), 12.5F);
  EXPECT_EQ(meteo.PrimeraHora(), 26);
  EXPECT_EQ(meteo.UltimaHora(), 27);
  EXPECT_EQ(meteo.Localidad(), "Rota");
  EXPECT_EQ(meteo.Provincia(), "Cádiz");
  EXPECT_EQ(meteo.Superficie().inclinacion, 30.0F);
  EXPECT_EQ(meteo.Superficie().orientacion, -45.5F);
  EXPECT_EQ(meteo.Superficie().albedo, 0.3F);
  EXPECT_FLOAT_EQ(programa_->DamePsicro()->dameParametro(PRESION), PresionA(21.0));
  EXPECT_FALSE(meteo.DerivadasPresentes());
  EXPECT_TRUE(mensajes_.apuntes.empty());
}

TEST_F(CaminoDeCarga, LaLocalidadQuedaComoCiudadDeLaBase) {
  Elegir("Jerez");
  CargarLocalidad(*programa_, seleccion_);
  EXPECT_EQ(programa_->DameLocalidades()->DameTexto("Ciudad"), "Jerez");
}

TEST_F(CaminoDeCarga, DosProgramasNoCompartenDatos) {
  Programa otro;
  Seleccion otraSeleccion;
  Elegir("Rota");
  otraSeleccion.PonLocalidad("Jerez");
  ASSERT_EQ(CargarLocalidad(*programa_, seleccion_), ResultadoCarga::Cargada);
  ASSERT_EQ(CargarLocalidad(otro, otraSeleccion), ResultadoCarga::Cargada);
  EXPECT_NE(otro.DameLeerMet(), programa_->DameLeerMet());
  EXPECT_NE(otro.DamePosicionSolar(), programa_->DamePosicionSolar());
  EXPECT_EQ(PrimeraSeca(*programa_), 12.5F);
  EXPECT_EQ(PrimeraSeca(otro), 30.5F);
  EXPECT_FLOAT_EQ(programa_->DamePsicro()->dameParametro(PRESION), PresionA(21.0));
  EXPECT_FLOAT_EQ(otro.DamePsicro()->dameParametro(PRESION), PresionA(1000.0));
}

TEST_F(CaminoDeCarga, CadaVentanaPreguntaPorSuPropiaLocalidad) {
  Elegir("Rota");
  ASSERT_EQ(CargarLocalidad(*programa_, seleccion_), ResultadoCarga::Cargada);
  programa_->DameLocalidades()->PonTexto("Ciudad", "Jerez"); // lo que hace otra ventana
  seleccion_.PonAltitudUsuario(50.0F);
  ASSERT_EQ(CargarLocalidad(*programa_, seleccion_), ResultadoCarga::Cargada);
  EXPECT_EQ(PrimeraSeca(*programa_), 12.5F);
}

TEST_F(CaminoDeCarga, SinLocalidadElegidaMensaje59YNadaCambia) {
  Elegir("Rota");
  ASSERT_EQ(CargarLocalidad(*programa_, seleccion_), ResultadoCarga::Cargada);
  seleccion_.PonProvincia("Jaén");
  for (const auto cargar : {CargarLocalidad, PrepararDatos}) {
    mensajes_.apuntes.clear();
    EXPECT_EQ(cargar(*programa_, seleccion_), ResultadoCarga::SinLocalidad);
    ASSERT_EQ(mensajes_.apuntes.size(), 1U);
    EXPECT_EQ(mensajes_.apuntes[0].texto,
              "El fichero meteorológico asociado a la ciudad Localidad no se ha podido abrir.\n ");
    EXPECT_EQ(programa_->DameLocalidadCargada(), "Rota");
  }
}

TEST_F(CaminoDeCarga, FicheroAusenteMensaje59YQuedaSinDatos) {
  Elegir("Rota");
  ASSERT_EQ(CargarLocalidad(*programa_, seleccion_), ResultadoCarga::Cargada);
  for (const char *mala : {"Perdida", "Muda", "Atlántida"}) {
    Elegir(mala);
    mensajes_.apuntes.clear();
    EXPECT_EQ(CargarLocalidad(*programa_, seleccion_), ResultadoCarga::FicheroNoAbierto) << mala;
    ASSERT_EQ(mensajes_.apuntes.size(), 1U) << mala;
    EXPECT_EQ(mensajes_.apuntes[0].texto, std::string("El fichero meteorológico asociado a la ciudad ") +
                                              mala + " no se ha podido abrir.\n ");
    EXPECT_EQ(mensajes_.apuntes[0].titulo, "Información");
    EXPECT_FALSE(programa_->HayDatos()) << mala;
  }
}

TEST_F(CaminoDeCarga, DirectorioEnLugarDelFicheroCuentaComoAusente) {
  std::filesystem::create_directories(raiz_ / "Meteo/nohay.met");
  Elegir("Perdida");
  EXPECT_EQ(CargarLocalidad(*programa_, seleccion_), ResultadoCarga::FicheroNoAbierto);
}

TEST_F(CaminoDeCarga, CasillaVaciaMensaje58ConSuRotuloYSinCargar) {
  const std::pair<Seleccion::Superficie, const char *> casos[] = {
      {{"", "0", "0.2"}, "Inclinación"}, {{"90", "", ""}, "Orientación"}, {{"90", "0", ""}, "Albedo"}};
  Elegir("Rota");
  for (const auto &[superficie, rotulo] : casos) {
    seleccion_.PonSuperficie(superficie);
    mensajes_.apuntes.clear();
    EXPECT_EQ(PrepararDatos(*programa_, seleccion_), ResultadoCarga::CasillaVacia);
    ASSERT_EQ(mensajes_.apuntes.size(), 1U);
    EXPECT_EQ(mensajes_.apuntes[0].texto,
              std::string("La casilla de ") + rotulo + " no tiene ningún valor. Introduzca uno.\n ");
    EXPECT_FALSE(programa_->HayDatos());
  }
}

TEST_F(CaminoDeCarga, CasillaVaciaConDatosLosConserva) {
  Elegir("Rota");
  ASSERT_EQ(PrepararDatos(*programa_, seleccion_), ResultadoCarga::Cargada);
  seleccion_.PonSuperficie({"90", "0", ""});
  EXPECT_EQ(PrepararDatos(*programa_, seleccion_), ResultadoCarga::CasillaVacia);
  EXPECT_TRUE(programa_->HayDatos());
}

TEST_F(CaminoDeCarga, ValorFueraDeLimitesTomaElDeFabricaYSeDice) {
  Elegir("Rota");
  seleccion_.PonSuperficie({"200", "0", "0.2"});
  EXPECT_EQ(CargarLocalidad(*programa_, seleccion_), ResultadoCarga::Cargada);
  EXPECT_EQ(programa_->DameLeerMet()->Superficie().inclinacion, 90.0F);
  ASSERT_EQ(mensajes_.apuntes.size(), 1U);
  EXPECT_EQ(mensajes_.apuntes[0].texto, "200.000000 > 180.000000 (máximo), valor por defecto: 90.000000");
}

TEST_F(CaminoDeCarga, LoQueNoEsUnNumeroMensaje62ConSuRotuloYSigueConElDeFabrica) {
  const std::pair<Seleccion::Superficie, const char *> casos[] = {{{"noventa", "0", "0.2"}, "Inclinación"},
                                                                  {{"90", "1,2,3", "0.2"}, "Orientación"},
                                                                  {{"90", "0", " "}, "Albedo"}};
  Elegir("Rota");
  for (const auto &[superficie, rotulo] : casos) {
    seleccion_.PonSuperficie(superficie);
    mensajes_.apuntes.clear();
    EXPECT_EQ(PrepararDatos(*programa_, seleccion_), ResultadoCarga::Cargada);
    ASSERT_EQ(mensajes_.apuntes.size(), 1U) << rotulo;
    EXPECT_EQ(mensajes_.apuntes[0].texto,
              std::string("La casilla \"") + rotulo + "\" contiene un valor incorrecto.\n ");
    EXPECT_EQ(mensajes_.apuntes[0].titulo, "Información");
    const auto &puesta = programa_->DameLeerMet()->Superficie();
    EXPECT_EQ(puesta.inclinacion, 90.0F);
    EXPECT_EQ(puesta.orientacion, 0.0F);
    EXPECT_EQ(puesta.albedo, 0.2F);
  }
}

TEST_F(CaminoDeCarga, LosDosSeparadoresSonNumeros) {
  Elegir("Rota");
  for (const char separador : {'.', ','}) {
    const prueba::ConSeparador region(separador);
    seleccion_.PonSuperficie({"30.5", "-12,25", "0,3"});
    EXPECT_EQ(PrepararDatos(*programa_, seleccion_), ResultadoCarga::Cargada);
    EXPECT_EQ(programa_->DameLeerMet()->Superficie().inclinacion, 30.5F);
    EXPECT_EQ(programa_->DameLeerMet()->Superficie().orientacion, -12.25F);
  }
  EXPECT_TRUE(mensajes_.apuntes.empty());
}

TEST_F(CaminoDeCarga, EnUnaAccionCadaMensajeSeDiceUnaVezYEnLaSiguienteOtra) {
  Elegir("Rota");
  for (const Seleccion::Superficie &mala :
       {Seleccion::Superficie{"", "0", "0.2"}, {"x", "0", "0.2"}, {"200", "0", "0.2"}}) {
    seleccion_.PonSuperficie(mala);
    for (int vez = 1; vez <= 2; ++vez) {
      mensajes_.apuntes.clear();
      const Accion accion(*programa_);
      CargarLocalidad(*programa_, seleccion_);
      {
        const Accion dentro(*programa_);
        PrepararDatos(*programa_, seleccion_);
      }
      PrepararDatos(*programa_, seleccion_);
      EXPECT_EQ(mensajes_.apuntes.size(), 1U) << mala.inclinacion << " vez " << vez;
    }
  }
  EXPECT_EQ(programa_->DameAccion(), nullptr);
}

TEST_F(CaminoDeCarga, UnaSuperficieCorregidaDentroDeLaAccionSeEntrega) {
  Elegir("Rota");
  const Accion accion(*programa_);
  seleccion_.PonSuperficie({"200", "0", "0.2"});
  PrepararDatos(*programa_, seleccion_);
  seleccion_.PonSuperficie({"45", "0", "0.2"});
  PrepararDatos(*programa_, seleccion_);
  EXPECT_EQ(programa_->DameLeerMet()->Superficie().inclinacion, 45.0F);
}

TEST_F(CaminoDeCarga, PrepararCargaYDejaAlDiaLasDerivadas) {
  Elegir("Rota");
  ASSERT_EQ(PrepararDatos(*programa_, seleccion_), ResultadoCarga::Cargada);
  LeerMet &meteo = *programa_->DameLeerMet();
  EXPECT_TRUE(meteo.DerivadasPresentes());
  std::vector<float> altura(24);
  meteo.DameSerie("Altura (º)", altura.data());
  EXPECT_EQ(altura[0], 30.0F);
}

TEST_F(CaminoDeCarga, PrepararAplicaLosCambiosSinVolverALeer) {
  Elegir("Rota");
  ASSERT_EQ(PrepararDatos(*programa_, seleccion_), ResultadoCarga::Cargada);
  raiz_.Escribir("Meteo/rota.met", Met("21.0", "40.0"));
  seleccion_.PonPeriodo({{1, 2, 1}, {1, 2, 2}});
  seleccion_.PonSuperficie({"45", "0", "0.2"});
  seleccion_.PonAltitudUsuario(700.0F);
  ASSERT_EQ(PrepararDatos(*programa_, seleccion_), ResultadoCarga::Cargada);
  EXPECT_EQ(PrimeraSeca(*programa_), 12.5F);
  EXPECT_EQ(programa_->DameLeerMet()->PrimeraHora(), 24);
  EXPECT_EQ(programa_->DameLeerMet()->Superficie().inclinacion, 45.0F);
  EXPECT_FLOAT_EQ(programa_->DamePsicro()->dameParametro(PRESION), PresionA(700.0));
}

TEST_F(CaminoDeCarga, PrepararLeeOtraVezSiCambioLaLocalidad) {
  Elegir("Rota");
  ASSERT_EQ(PrepararDatos(*programa_, seleccion_), ResultadoCarga::Cargada);
  Elegir("Jerez");
  ASSERT_EQ(PrepararDatos(*programa_, seleccion_), ResultadoCarga::Cargada);
  EXPECT_EQ(PrimeraSeca(*programa_), 30.5F);
}

TEST_F(CaminoDeCarga, ElHorizonteDelProgramaQuitaLaDirectaSobreLaSuperficie) {
  Elegir("Rota");
  std::vector<float> directa(24);
  const auto aMediodia = [&] {
    EXPECT_EQ(PrepararDatos(*programa_, seleccion_), ResultadoCarga::Cargada);
    programa_->DameLeerMet()->DameSerie("Directa (W/m²)", directa.data());
    return directa[11];
  };
  EXPECT_GT(aMediodia(), 0.0F);
  PosicionSolar &sol = *programa_->DamePosicionSolar();
  sol.PonTamanoHorizonte(2.0F); // pared de 80° en todo el contorno; el sol está a 30°
  sol.PonPuntoHorizonte(0, -180.0F, 80.0F);
  sol.PonPuntoHorizonte(1, 180.0F, 80.0F);
  EXPECT_EQ(aMediodia(), 0.0F);
}

TEST_F(CaminoDeCarga, LoPendienteSeEntregaAntesDeCargarYDeDerivar) {
  int entregas = 0;
  seleccion_.AntesDeUsar([&] {
    seleccion_.PonSuperficie({"30", "0", "0.2"});
    ++entregas;
  });
  EXPECT_EQ(PrepararDatos(*programa_, seleccion_), ResultadoCarga::SinLocalidad);
  EXPECT_EQ(entregas, 0);
  Elegir("Rota");
  ASSERT_EQ(PrepararDatos(*programa_, seleccion_), ResultadoCarga::Cargada);
  EXPECT_EQ(entregas, 1);
  EXPECT_EQ(programa_->DameLeerMet()->Superficie().inclinacion, 30.0F);
  ASSERT_EQ(PrepararDatos(*programa_, seleccion_), ResultadoCarga::Cargada);
  EXPECT_EQ(entregas, 2);
}

TEST_F(CaminoDeCarga, AltitudDelFicheroOCeroSiNoEsCreible) {
  Elegir("Rota");
  EXPECT_EQ(AltitudEnUso(*programa_, seleccion_), 0.0F); // nada cargado
  const std::pair<const char *, float> casos[] = {{"21.0", 21.0F},  {"-500", -500.0F}, {"9000", 9000.0F},
                                                  {"-500.5", 0.0F}, {"9000.5", 0.0F},  {"nan", 0.0F},
                                                  {"1e30", 0.0F},   {"inf", 0.0F}};
  for (const auto &[texto, altitud] : casos) {
    raiz_.Escribir("Meteo/rota.met", Met(texto, "12.5"));
    ASSERT_EQ(CargarLocalidad(*programa_, seleccion_), ResultadoCarga::Cargada);
    EXPECT_EQ(AltitudEnUso(*programa_, seleccion_), altitud) << texto;
    EXPECT_FLOAT_EQ(programa_->DamePsicro()->dameParametro(PRESION), PresionA(static_cast<double>(altitud)));
  }
}

TEST_F(CaminoDeCarga, LaAltitudDelUsuarioManda) {
  Elegir("Jerez");
  seleccion_.PonAltitudUsuario(200.0F);
  ASSERT_EQ(CargarLocalidad(*programa_, seleccion_), ResultadoCarga::Cargada);
  EXPECT_EQ(AltitudEnUso(*programa_, seleccion_), 200.0F);
  EXPECT_FLOAT_EQ(programa_->DamePsicro()->dameParametro(PRESION), PresionA(200.0));
}

TEST_F(CaminoDeCarga, FicheroNombradoDirectamente) {
  const std::string ruta = raiz_.Escribir("suelto.met", Met("0", "7.5"));
  ASSERT_EQ(CargarFichero(*programa_, seleccion_, ruta, "suelto"), ResultadoCarga::Cargada);
  EXPECT_EQ(programa_->DameLocalidadCargada(), "suelto");
  EXPECT_EQ(programa_->DameLeerMet()->Localidad(), "suelto");
  EXPECT_EQ(PrimeraSeca(*programa_), 7.5F);
  EXPECT_EQ(CargarFichero(*programa_, seleccion_, ruta + "x", "otro"), ResultadoCarga::FicheroNoAbierto);
  EXPECT_FALSE(programa_->HayDatos());
}

TEST_F(CaminoDeCarga, TrasDestruirLosMotoresNoHayDondeCargar) {
  Elegir("Rota");
  programa_->DestruirMotores();
  EXPECT_EQ(PrepararDatos(*programa_, seleccion_), ResultadoCarga::FicheroNoAbierto);
  EXPECT_EQ(AltitudEnUso(*programa_, seleccion_), 0.0F);
}

} // namespace
} // namespace tesmo
