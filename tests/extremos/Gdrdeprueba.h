#pragma once

#include "extremos/Calculodias.h"

#include <string>
#include <vector>

namespace tesmo::prueba {

/// Un registro de siete líneas con la cabecera que se diga tras la clave: zona, cuatro números y lo que siga.
[[nodiscard]] std::string RegistroDeTexto(const std::string &clave,
                                          const std::string &resto = "COSTA 36.84 0 0 10 ALT=21");

/// El fichero de estadísticas de las localidades que trae el programa, y sus claves.
[[nodiscard]] const std::string &GdrDelPrograma();
[[nodiscard]] const std::vector<std::string> &ClavesDelPrograma();

/// El registro ya leído; la prueba falla si no se lee.
[[nodiscard]] extremos::RegistroGdr LeerBien(const std::string &contenido, const std::string &clave);

/// Ajustes de fábrica.
[[nodiscard]] extremos::AjustesEstacion Invierno(float percentil = 99.0F, int mes = 1);
[[nodiscard]] extremos::AjustesEstacion Verano(float percentil = 1.0F, int mes = 7);

} // namespace tesmo::prueba
