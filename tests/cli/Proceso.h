#pragma once

#include "tests/comun/Apoyos.h"
#include "tests/comun/Lugares.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tesmo::prueba {

/// Lo que dejó una ejecución de tesmo-cli.
struct Ejecucion {
  int estado = -1;
  std::string salida;
  std::string error;
  [[nodiscard]] std::vector<std::string> Lineas() const;
};

/// Parte por tabuladores.
[[nodiscard]] std::vector<std::string> Campos(const std::string &linea);

/// Directorio base con una pequeña base de localidades y dos días de datos, y tesmo-cli sobre él.
class LineaDeOrdenes : public ::testing::Test {
protected:
  void SetUp() override;
  /// Ejecuta tesmo-cli en el directorio de trabajo con @p argumentos, en un proceso aparte, con la entrada en
  /// el fichero @p entrada.
  [[nodiscard]] Ejecucion Orden(const std::vector<std::string> &argumentos, const std::string &salida = {},
                                const std::string &entrada = "/dev/null") const;
  /// Lo mismo con "--base" y el directorio base al final.
  [[nodiscard]] Ejecucion ConBase(std::vector<std::string> argumentos) const;
  /// Un fichero de dos días cuya hora i (desde 0) tiene i/4 ºC de temperatura seca y 100 + i W/m² de directa.
  [[nodiscard]] static std::string Met();

  DirectorioTemporal raiz_;
  std::string base_ = (raiz_ / "base").string();
  std::string trabajo_ = (raiz_ / "trabajo").string();
  std::string programa_ = Programas() + "/tesmo-cli"; ///< el que se ejecuta
};

} // namespace tesmo::prueba
