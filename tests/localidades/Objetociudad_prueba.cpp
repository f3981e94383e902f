#include "localidades/Lectorlocalidades.h"

#include "core/Configuracionregional.h"

#include <gtest/gtest.h>

namespace tesmo {
namespace {

class AtributosDeLocalidad : public ::testing::Test {
protected:
  void TearDown() override { Configuracionregional::PonSeparadorDecimal('.'); }

  static CamposLocalidad Almeria() {
    return {"Almería", "Almeria", "Almería", "Capital", "Roquetas", "almeria.met",
            "36.84",   "-2.39",   "-15",     "21",      "7.5"};
  }
  static ObjetoCiudad Crear(const CamposLocalidad &campos) { return CrearObjetoCiudad(campos, {}); }
};

TEST_F(AtributosDeLocalidad, RegistroNuevoVacioYACero) {
  const ObjetoCiudad nueva;
  EXPECT_EQ(nueva.localidad + nueva.provincia + nueva.localidadCorta + nueva.cuarto + nueva.localidadRef +
                nueva.fichero + nueva.zona,
            "");
  EXPECT_EQ(nueva.latitud + nueva.longitud + nueva.longitudRef + nueva.decimo + nueva.undecimo, 0.0F);
}

TEST_F(AtributosDeLocalidad, CadaCampoVaASuAtributo) {
  const ObjetoCiudad ciudad = Crear(Almeria());
  EXPECT_EQ(ciudad.DameTexto("Ciudad"), "Almería");
  EXPECT_EQ(ciudad.DameTexto("Localidad"), "Almería");
  EXPECT_EQ(ciudad.DameTexto("Localidad Corta"), "Almeria");
  EXPECT_EQ(ciudad.DameTexto("Provincia"), "Almería");
  EXPECT_EQ(ciudad.DameTexto("LocalidadRef"), "Roquetas");
  EXPECT_EQ(ciudad.DameTexto("Fichero"), "almeria.met");
  EXPECT_EQ(ciudad.cuarto, "Capital");
  EXPECT_EQ(ciudad.decimo, 21.0F);
  EXPECT_EQ(ciudad.undecimo, 7.5F);
}

TEST_F(AtributosDeLocalidad, NombresDesconocidosYZonaVacios) {
  const ObjetoCiudad ciudad = Crear(Almeria());
  EXPECT_EQ(ciudad.DameTexto("Zona"), "");
  EXPECT_EQ(ciudad.DameTexto("Altura"), "");
  EXPECT_EQ(ciudad.DameTexto("ciudad"), "");
  EXPECT_EQ(ciudad.DameTexto(""), "");
}

TEST_F(AtributosDeLocalidad, LatitudConDosDecimalesYSeparadorRegional) {
  const ObjetoCiudad ciudad = Crear(Almeria());
  EXPECT_EQ(ciudad.DameTexto("Latitud"), "36.84");
  Configuracionregional::PonSeparadorDecimal(',');
  EXPECT_EQ(ciudad.DameTexto("Latitud"), "36,84");
}

// −2.39 como real de 32 bits es −2.3900001049041748…: quince cifras significativas.
TEST_F(AtributosDeLocalidad, LongitudConQuinceCifrasSinCerosFinales) {
  const ObjetoCiudad ciudad = Crear(Almeria());
  EXPECT_EQ(ciudad.DameTexto("Longitud"), "-2.39000010490417");
  EXPECT_EQ(ciudad.DameTexto("LongitudRef"), "-15");
  Configuracionregional::PonSeparadorDecimal(',');
  EXPECT_EQ(ciudad.DameTexto("Longitud"), "-2,39000010490417");
}

TEST_F(AtributosDeLocalidad, PuntoOComaDecimalConCualquierRegion) {
  for (const char separador : {'.', ','}) {
    Configuracionregional::PonSeparadorDecimal(separador);
    for (const char *texto : {"37.5", "37,5"}) {
      CamposLocalidad campos = Almeria();
      campos[6] = texto;
      EXPECT_EQ(Crear(campos).latitud, 37.5F) << texto << " con " << separador;
    }
  }
}

// El último carácter de un campo no se examina: «37,» no se convierte con región de punto. Se conserva.
TEST_F(AtributosDeLocalidad, SeparadorEnLaUltimaPosicionNoSeConvierte) {
  CamposLocalidad campos = Almeria();
  std::vector<std::size_t> malos;
  const auto anotar = [&](std::size_t i) { malos.push_back(i); };
  campos[6] = "37,";
  EXPECT_EQ(CrearObjetoCiudad(campos, anotar).latitud, 0.0F);
  EXPECT_EQ(malos, std::vector<std::size_t>{6});
  campos[6] = "37.";
  EXPECT_EQ(CrearObjetoCiudad(campos, anotar).latitud, 37.0F);
  EXPECT_EQ(malos.size(), 1U);
}

TEST_F(AtributosDeLocalidad, LoQueNoEsNumeroDaCeroYSeNombra) {
  CamposLocalidad campos = Almeria();
  campos[7] = "oeste";
  campos[8] = "nan";
  campos[10] = "";
  std::vector<std::size_t> malos;
  const ObjetoCiudad ciudad = CrearObjetoCiudad(campos, [&](std::size_t i) { malos.push_back(i); });
  EXPECT_EQ(ciudad.longitud, 0.0F);
  EXPECT_EQ(ciudad.longitudRef, 0.0F);
  EXPECT_EQ(ciudad.undecimo, 0.0F);
  EXPECT_EQ(ciudad.latitud, 36.84F);
  EXPECT_EQ(malos, (std::vector<std::size_t>{7, 8, 10}));
}

} // namespace
} // namespace tesmo
