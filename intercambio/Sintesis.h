#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tesmo {

/// Por qué no se pudo hacer la síntesis.
enum class FalloSintesis {
  Ninguno,
  Entrada,   ///< el fichero de normales falta, no es regular o no se puede abrir
  Contenido, ///< el fichero de normales se abrió pero no se entiende; nada se ha escrito
  Salida,    ///< un directorio o un fichero de salida no se pudo escribir
};

/// Lo que cuenta una síntesis a quien la pide.
struct ResultadoSintesis {
  FalloSintesis fallo = FalloSintesis::Ninguno;
  std::vector<std::string> errores; ///< en español y sin fin de línea; los de contenido, "fichero:línea: …"
  std::vector<std::string> avisos;   ///< lo que no impidió terminar
  std::vector<std::string> ficheros; ///< rutas escritas, en el orden en que se escribieron
  std::size_t localidades = 0;       ///< localidades leídas
};

/// Hace de las medias mensuales de @p normales_csv un año sintético por localidad y escribe
/// <directorio>/Meteo/<nombre corto>.met, <directorio>/Meteo/LocalidadesCC y <directorio>/Meteo/GDR.TXT,
/// creando los directorios que falten. El mismo fichero de normales da siempre los mismos bytes.
/// Un .met que ya esté y que no haya hecho esta síntesis es el año de una persona: se respeta y se avisa;
/// lo mismo una lista a la que se le añadieron localidades.
/// Rutas en UTF-8. Devuelve verdadero si todo se escribió; si no, @p resultado dice qué y por qué.
bool Sintetizar(const std::string &normales_csv, const std::string &directorio, ResultadoSintesis &resultado);

} // namespace tesmo
