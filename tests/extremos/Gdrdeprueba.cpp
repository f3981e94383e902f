#include "tests/extremos/Gdrdeprueba.h"

#include "intercambio/sintesis/Escriturameteo.h"
#include "intercambio/sintesis/Normales.h"
#include "tests/comun/Apoyos.h"
#include "tests/comun/Lugares.h"

#include <gtest/gtest.h>

#include <sstream>

namespace tesmo::prueba {

std::string RegistroDeTexto(const std::string &clave, const std::string &resto) {
  return clave + " " + resto + "\n" +
         "16.9 17.6 19.6 21.4 24.1 27.8 30.5 31.0 28.4 24.5 20.4 17.8\n"
         "8.3 8.8 10.5 12.1 15.1 18.8 21.7 22.3 19.9 16.1 12.1 9.4\n"
         "2.7 2.8 3.0 2.9 3.0 3.1 3.0 2.8 2.7 2.9 2.6 2.6\n"
         "2.6 2.5 2.4 2.2 2.1 2.0 1.9 1.8 2.0 2.4 2.5 2.6\n"
         "9900 13100 17300 21400 24600 26900 26700 23700 18900 13900 10500 8800\n"
         "70 69 66 63 64 61 59 62 65 68 69 70\n";
}

const std::string &GdrDelPrograma() {
  static const std::string texto = [] {
    std::vector<std::string> errores;
    const auto normales =
        LeerNormales(Contenido(tesmo::prueba::Raiz() + "/datos/normales.csv"), "normales.csv", errores);
    EXPECT_TRUE(errores.empty());
    return TextoGdr(normales);
  }();
  return texto;
}

const std::vector<std::string> &ClavesDelPrograma() {
  static const std::vector<std::string> claves = [] {
    std::vector<std::string> resultado;
    std::istringstream entrada(GdrDelPrograma());
    std::string linea;
    for (int n = 0; std::getline(entrada, linea); ++n) {
      if (n % 7 == 0) resultado.push_back(linea.substr(0, linea.find(' ')));
    }
    return resultado;
  }();
  return claves;
}

extremos::RegistroGdr LeerBien(const std::string &contenido, const std::string &clave) {
  extremos::RegistroGdr registro;
  EXPECT_EQ(extremos::LeerRegistroGdr(contenido, clave, "GDR.TXT", registro), extremos::LecturaGdr::Leido);
  return registro;
}

extremos::AjustesEstacion Invierno(float percentil, int mes) {
  return {percentil, {1, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1}, mes};
}

extremos::AjustesEstacion Verano(float percentil, int mes) {
  return {percentil, {0, 0, 0, 0, 0, 1, 1, 1, 1, 0, 0, 0}, mes};
}

} // namespace tesmo::prueba
