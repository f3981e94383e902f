#include "tests/meteo/Textomet.h"

#include <gtest/gtest.h>

using namespace tesmo;
using namespace tesmo::prueba;

namespace {

/// Una lectura sobre series marcadas con −9, para ver lo que no se toca.
struct Lectura {
  SitioMet sitio{-1, -2, -3};
  SeriesLeidas series;
  ResumenLectura resumen;

  explicit Lectura(const std::string &texto) {
    for (std::size_t c = 0; c < NUMERO_SERIES_LEIDAS; ++c) {
      auto &serie = series[static_cast<SerieAlmacenada>(c)];
      std::fill(serie.begin(), serie.end(), -9.0F);
    }
    resumen = LeerTextoMet(texto, sitio, series);
  }
  [[nodiscard]] float Seca(std::size_t i) const { return series[SerieAlmacenada::TemperaturaSeca][i]; }
  [[nodiscard]] float Cenit(std::size_t i) const { return series[SerieAlmacenada::Cenit][i]; }
};

std::string Reemplazar(std::string texto, const std::string &que, const std::string &por) {
  for (std::size_t p = texto.find(que); p != std::string::npos; p = texto.find(que, p + por.size())) {
    texto.replace(p, que.size(), por);
  }
  return texto;
}

} // namespace

TEST(LectorMet, CadaColumnaVaASuSerie) {
  const Lectura lectura(TextoMet(HORAS_DEL_ANIO));
  EXPECT_TRUE(lectura.resumen.Completa());
  EXPECT_EQ(lectura.resumen.linea, 0);
  for (int c = 0; c < 10; ++c) {
    const SerieHoraria &serie = lectura.series[static_cast<SerieAlmacenada>(c)];
    for (int i = 0; i < HORAS_DEL_ANIO; ++i) {
      ASSERT_EQ(serie[static_cast<std::size_t>(i)], ValorMet(c + 4, i))
          << "columna " << c + 4 << " hora " << i;
    }
  }
  EXPECT_EQ(lectura.sitio.latitud, 36.84F);
  EXPECT_EQ(lectura.sitio.longitud, -2.39F);
  EXPECT_EQ(lectura.sitio.tercerDato, 21.0F);
}

TEST(LectorMet, ConCuatroNumerosEnLaSegundaLineaLosRegistrosEmpiezanEnLaTercera) {
  const Lectura lectura(TextoMet(3, "36.84 -2.39 21.0 0.0"));
  EXPECT_EQ(lectura.resumen.registros, 3);
  EXPECT_EQ(lectura.Seca(0), ValorMet(4, 0));
}

TEST(LectorMet, ConTresNumerosEnLaSegundaLineaSePierdeElPrimerRegistro) {
  const Lectura lectura(TextoMet(3, "36.84 -2.39 21.0"));
  EXPECT_EQ(lectura.resumen.registros, 2);
  EXPECT_EQ(lectura.Seca(0), ValorMet(4, 1));
}

TEST(LectorMet, UnRegistroPartidoEnDosLineasEsElMismoRegistro) {
  const Lectura lectura(Reemplazar(TextoMet(5), " 8", "\n\n 8"));
  EXPECT_EQ(lectura.resumen.registros, 5);
  EXPECT_EQ(lectura.Cenit(4), ValorMet(13, 4));
}

TEST(LectorMet, UnFicheroCortoDejaLasHorasSiguientesComoEstaban) {
  const Lectura lectura(TextoMet(100));
  EXPECT_EQ(lectura.resumen.registros, 100);
  EXPECT_EQ(lectura.resumen.linea, 102);
  EXPECT_EQ(lectura.Seca(99), ValorMet(4, 99));
  EXPECT_EQ(lectura.Seca(100), -9.0F);
  EXPECT_EQ(lectura.Seca(8759), -9.0F);
}

TEST(LectorMet, UnCampoQueNoEsNumeroDetieneAhiLaLectura) {
  std::string texto = TextoMet(2) + "1 1 1 12.5 13.5 s/d 14 15 16 17 18 19 20 0 0\n" + RegistroMet(0) + "\n";
  const Lectura lectura(texto);
  EXPECT_EQ(lectura.resumen.registros, 2);
  EXPECT_EQ(lectura.resumen.linea, 5);
  EXPECT_EQ(lectura.Seca(2), 12.5F) << "lo ya leído de ese registro se guarda";
  EXPECT_EQ(lectura.series[SerieAlmacenada::TemperaturaCielo][2], 13.5F);
  EXPECT_EQ(lectura.series[SerieAlmacenada::RadiacionDirecta][2], -9.0F);
  EXPECT_EQ(lectura.Seca(3), -9.0F);
}

TEST(LectorMet, LaComaDecimalParteElCampo) {
  const Lectura lectura(TextoMet(0) + "1 1 1 37,5 1 2\n");
  EXPECT_EQ(lectura.Seca(0), 37.0F);
  EXPECT_EQ(lectura.series[SerieAlmacenada::TemperaturaCielo][0], -9.0F);
  EXPECT_EQ(lectura.resumen.registros, 0);
}

TEST(LectorMet, UnSignoSueltoSeConsumeYLaLecturaSigueEnLaHoraSiguiente) {
  const Lectura lectura(TextoMet(0) + "1 1 1 -\n" + RegistroMet(3) + "\n");
  EXPECT_EQ(lectura.Seca(0), -9.0F);
  EXPECT_EQ(lectura.Seca(1), ValorMet(4, 3));
  EXPECT_EQ(lectura.resumen.registros, 1);
  EXPECT_EQ(lectura.resumen.linea, 3);
}

TEST(LectorMet, LosNumerosQueSobranSonElRegistroSiguiente) {
  const Lectura lectura(TextoMet(1) + "99 " + RegistroMet(1) + "\n");
  EXPECT_EQ(lectura.resumen.registros, 2);
  EXPECT_EQ(lectura.Seca(1), 1.0F) << "un campo de más corre los siguientes una columna";
  EXPECT_EQ(Lectura(TextoMet(8760) + "1 2 3 4\n").resumen.registros, HORAS_DEL_ANIO);
}

TEST(LectorMet, FinesDeLineaConRetorno) {
  const Lectura lectura(Reemplazar(TextoMet(4), "\n", "\r\n"));
  EXPECT_EQ(lectura.resumen.registros, 4);
  EXPECT_EQ(lectura.Seca(3), ValorMet(4, 3));
}

TEST(LectorMet, FinesDeLineaSoloConRetornoEsTodoUnaLinea) {
  const Lectura lectura(Reemplazar(TextoMet(4), "\n", "\r"));
  EXPECT_EQ(lectura.resumen.registros, 0);
  EXPECT_EQ(lectura.sitio.latitud, 25.0F) << "lo que sigue al byte 299 de la primera línea";
}

TEST(LectorMet, DeUnaPrimeraLineaLargaSoloSeDescartan299Bytes) {
  const std::string resto = "\n1 2 3 4\n" + RegistroMet(0) + "\n";
  EXPECT_EQ(Lectura(std::string(299, 'a') + resto).sitio.latitud, 1.0F);
  EXPECT_EQ(Lectura(std::string(299, 'a') + "5 6 7 8\n").sitio.latitud, 5.0F);
  EXPECT_EQ(Lectura(std::string(300, 'a') + resto).sitio.latitud, -1.0F) << "la letra 300 no es un número";
}

TEST(LectorMet, DelRestoDeLaSegundaLineaSoloSeDescartan299Bytes) {
  const auto con = [](std::size_t n) {
    return Lectura("x\n1 2 3 " + std::string(n, 'b') + "\n" + RegistroMet(0) + "\n").resumen.registros;
  };
  EXPECT_EQ(con(298), 1);
  EXPECT_EQ(con(299), 1) << "el fin de línea que queda es un blanco";
  EXPECT_EQ(con(300), 0);
}

TEST(LectorMet, UnaSegundaLineaSinNumerosDejaElSitioComoEstaba) {
  const Lectura lectura(TextoMet(2, "lat lon alt"));
  EXPECT_EQ(lectura.sitio.latitud, -1.0F);
  EXPECT_EQ(lectura.resumen.registros, 2) << "se descarta la línea y los registros siguen en la tercera";
  EXPECT_EQ(Lectura(TextoMet(2, "40.5 x")).sitio.latitud, 40.5F);
}

TEST(LectorMet, TextosQueNoSonUnMet) {
  for (const std::string &texto :
       {std::string(), std::string("una sola línea"), std::string("a\n"), std::string("a\n\n\n\n"),
        std::string("\x7F"
                    "ELF\x01\0\0\0\n\0\0",
                    11),
        std::string(5000, '\0'), std::string(100000, ' '),
        std::string("\xFF\xFE"
                    "1\0\n\0",
                    6),
        std::string(2000000, '9'), std::string(1000000, '-')}) {
    const Lectura lectura(texto);
    EXPECT_EQ(lectura.resumen.registros, 0);
    EXPECT_GE(lectura.resumen.linea, 1);
    EXPECT_EQ(lectura.Cenit(8759), -9.0F);
  }
}

TEST(LectorMet, UnByteNuloDetieneLaLectura) {
  std::string texto = TextoMet(3);
  texto[texto.size() - 10] = '\0';
  EXPECT_EQ(Lectura(texto).resumen.registros, 2);
}

TEST(LectorMet, UnTextoEnWindows1252SeLeeIgual) {
  EXPECT_EQ(Lectura("Almer\355a\n36.84 -2.39 21.0 15.0 \xBA\n" + RegistroMet(0)).resumen.registros, 1);
}
