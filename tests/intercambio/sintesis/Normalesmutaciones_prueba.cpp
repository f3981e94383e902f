#include "intercambio/sintesis/Azar.h"
#include "intercambio/sintesis/Normales.h"

#include "core/Codificacion.h"
#include "tests/comun/Apoyos.h"
#include "tests/comun/Mutaciones.h"
#include "tests/intercambio/sintesis/Apoyosintesis.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cmath>

namespace tesmo {
namespace {

/// Los bytes que significan algo para el lector.
constexpr prueba::Estropicio ESTROPICIO{std::string_view("\0\n\r\",;#.-+eE9 \xFF\xC3\xA1", 17), 6, 40, 300};

void ComprobarSensatez(const std::vector<NormalesLocalidad> &localidades, const std::string &texto) {
  for (const NormalesLocalidad &localidad : localidades) {
    ASSERT_FALSE(localidad.nombre.empty()) << texto;
    ASSERT_LE(localidad.nombre.size(), 49U) << texto;
    ASSERT_TRUE(EsUtf8(localidad.nombre));
    ASSERT_LE(std::fabs(localidad.latitud), 60.0) << texto;
    for (const NormalesMes &mes : localidad.meses) {
      ASSERT_LT(mes.tminMedia, mes.tmaxMedia) << texto;
      ASSERT_GT(mes.sdTmaxIntrames, 0.0) << texto;
      ASSERT_LT(mes.r1Tmax, 1.0) << texto;
    }
  }
}

TEST(NormalesMutaciones, NingunFicheroEstropeadoRompeElLectorNiPasaSinDecirlo) {
  const std::string entero = prueba::Contenido(RutaDesdeTexto(prueba::RutaNormales()));
  // El comienzo basta y deja dar muchas más vueltas: comentario, encabezamiento y dos localidades.
  std::size_t fin = 0;
  for (int linea = 0; linea < 26; ++linea) fin = entero.find('\n', fin) + 1;
  const std::string semilla = entero.substr(0, fin);
  Azar azar("mutaciones de normales");
  int vueltas = 0;
  int rechazados = 0;
  const auto limite = std::chrono::steady_clock::now() + std::chrono::seconds(3);
  while (std::chrono::steady_clock::now() < limite) {
    const std::string texto = prueba::Mutar(semilla, ESTROPICIO, [&] { return azar.Siguiente(); });
    std::vector<std::string> errores;
    const auto localidades = LeerNormales(texto, "m.csv", errores);
    ++vueltas;
    rechazados += errores.empty() ? 0 : 1;
    if (errores.empty()) ComprobarSensatez(localidades, texto);
    for (const std::string &error : errores) ASSERT_TRUE(error.starts_with("m.csv:")) << error;
  }
  EXPECT_GT(vueltas, 50);
  EXPECT_GT(rechazados, vueltas / 4);
  EXPECT_LT(rechazados, vueltas);
}

} // namespace
} // namespace tesmo
