#include "solar/Ficheroanual.h"

#include "core/Calendario.h"
#include "solar/Posicionsolar.h"
#include "tests/comun/Apoyos.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <sstream>

namespace tesmo {
namespace {

using prueba::Contenido;
using prueba::DirectorioTemporal;
using prueba::MensajesApuntados;

/// El mismo fichero, escrito con la biblioteca de C y el objeto hora a hora.
std::string ConPrintf(float latitud) {
  std::array<char, 128> linea{};
  std::snprintf(linea.data(), linea.size(), "Latitud = %f\n", static_cast<double>(latitud));
  std::string texto = linea.data();
  PosicionSolar sol(latitud, 1, 1, 12.0F);
  for (int m = 1; m <= 12; ++m) {
    for (int d = 1; d <= DiasDelMes(m); ++d) {
      for (int h = 1; h <= 24; ++h) {
        const AngulosSolares a = sol.CalcularPosicion(latitud, m, d, static_cast<float>(h) + 0.5F);
        std::snprintf(linea.data(), linea.size(), "%d %d %d %f %f %f\n", m, h, h,
                      static_cast<double>(a.acimut), static_cast<double>(a.altura),
                      static_cast<double>(a.cenit));
        texto += linea.data();
      }
    }
  }
  return texto;
}

TEST(Ficheroanual, ByteAByteElDeLaBibliotecaDeC) {
  for (const float latitud : {-90.0F, -89.0F, -36.84F, 0.0F, 1e-6F, 23.45F, 36.84F, 66.55F, 89.0F, 90.0F}) {
    const std::string texto = TextoAnual(latitud);
    const std::string esperado = ConPrintf(latitud);
    const auto distinto = std::mismatch(texto.begin(), texto.end(), esperado.begin(), esperado.end());
    ASSERT_TRUE(texto == esperado) << latitud << " en el byte " << distinto.first - texto.begin();
  }
}

TEST(Ficheroanual, UnaLineaDeLatitudYOchoMilSetecientasSesenta) {
  const std::string texto = TextoAnual(36.84F);
  EXPECT_EQ(std::count(texto.begin(), texto.end(), '\n'), 1 + 8760);
  EXPECT_EQ(texto.substr(0, texto.find('\n')), "Latitud = 36.840000");
  std::istringstream lineas(texto);
  std::string linea;
  std::getline(lineas, linea);
  std::getline(lineas, linea);
  EXPECT_EQ(linea, "1 1 1 0.000000 0.000000 90.000000"); // la una y media de la noche
  EXPECT_EQ(texto.substr(texto.rfind('\n', texto.size() - 2) + 1), "12 24 24 0.000000 0.000000 90.000000\n");
}

// El segundo y el tercer número son los dos la hora; el día no aparece.
TEST(Ficheroanual, ElDiaNoSeEscribe) {
  std::istringstream lineas(TextoAnual(36.84F));
  std::string linea;
  std::getline(lineas, linea);
  for (int m = 1; m <= 12; ++m) {
    for (int d = 1; d <= DiasDelMes(m); ++d) {
      for (int h = 1; h <= 24; ++h) {
        ASSERT_TRUE(std::getline(lineas, linea));
        const std::string comienzo =
            std::to_string(m) + ' ' + std::to_string(h) + ' ' + std::to_string(h) + ' ';
        ASSERT_EQ(linea.substr(0, comienzo.size()), comienzo);
      }
    }
  }
  EXPECT_FALSE(std::getline(lineas, linea));
}

TEST(Ficheroanual, SustituyeElQueHabia) {
  const DirectorioTemporal directorio;
  const MensajesApuntados mensajes;
  const std::string ruta = directorio.Escribir(std::string(NOMBRE_FICHERO_ANUAL), "lo de antes");
  EXPECT_TRUE(EscribirFicheroAnual(36.84F, ruta));
  EXPECT_TRUE(Contenido(ruta) == TextoAnual(36.84F));
  EXPECT_EQ(NOMBRE_FICHERO_ANUAL, "FPS.TXT");
  EXPECT_TRUE(mensajes.apuntes.empty());
}

TEST(Ficheroanual, SiNoSePuedeEscribirEnsenaElMensajeDelFichero) {
  const DirectorioTemporal directorio;
  const MensajesApuntados mensajes;
  EXPECT_FALSE(EscribirFicheroAnual(36.84F, directorio.Ruta().string())); // un directorio en su sitio
  ASSERT_EQ(mensajes.apuntes.size(), 1U);
  EXPECT_EQ(mensajes.apuntes[0].texto, "No se puede abrir el fichero: " + directorio.Ruta().string() + ".\n");
  EXPECT_EQ(mensajes.apuntes[0].titulo, "Información");
  EXPECT_TRUE(std::filesystem::is_directory(directorio.Ruta()));
}

} // namespace
} // namespace tesmo
