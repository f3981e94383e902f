#pragma once

#include "intercambio/comun/Aniocanonico.h"
#include "intercambio/formatos/Lectura.h"

#include <string>
#include <vector>

/// Ficheros climáticos pequeños, hechos a mano de fórmulas que se comprueban de cabeza.
namespace tesmo::prueba {

/// Las líneas de un fichero, para estropearlas de una en una.
using LineasFichero = std::vector<std::string>;

/// Valores de la posición @p i (0 a 8759) en todos los formatos.
struct HoraDePrueba {
  int mes, dia, hora; ///< hora de 1 a 24
  int temperatura;    ///< décimas de °C, de −100 a 299
  int humedad;        ///< %, de 30 a 89
  int presion;        ///< Pa, múltiplo de 100
  int global;         ///< W/m²; cero salvo de las horas 8 a 18
  int normal;         ///< W/m²
  int difusa;         ///< W/m²
  int infrarroja;     ///< W/m²
  int viento;         ///< décimas de m/s
  int direccion;      ///< °
};
[[nodiscard]] HoraDePrueba HoraPrueba(int i);

/// Año de calendario del mes, como en un año típico: cada mes, uno distinto.
[[nodiscard]] int AnioDelMes(int mes);

[[nodiscard]] LineasFichero LineasEpw();
[[nodiscard]] LineasFichero LineasPvgisEpw();
[[nodiscard]] LineasFichero LineasPvgisCsv();
[[nodiscard]] LineasFichero LineasTmy3();
[[nodiscard]] LineasFichero LineasMetTrece();
[[nodiscard]] LineasFichero LineasMetQuince();
/// Punto y coma, coma decimal y una fecha "DD/MM/AAAA hh:00" de 0 a 23; MapaDePrueba lo describe.
[[nodiscard]] LineasFichero LineasDelimitado();
[[nodiscard]] std::string MapaDePrueba();

/// Líneas que van delante del primer registro en cada formato.
inline constexpr std::size_t CABECERA_EPW = 8;
inline constexpr std::size_t CABECERA_PVGIS = 18;
inline constexpr std::size_t CABECERA_TMY3 = 2;
inline constexpr std::size_t CABECERA_MET = 2;
inline constexpr std::size_t CABECERA_DELIMITADO = 1;

[[nodiscard]] std::string Unir(const LineasFichero &lineas, const std::string &fin = "\n");
/// Cambia el campo @p campo (desde 0) de una línea separada por @p separador.
void CambiarCampo(std::string &linea, std::size_t campo, const std::string &valor, char separador = ',');

/// El valor de @p campo en la posición @p i.
[[nodiscard]] double Valor(const AnioCanonico &anio, Campo campo, int i);
/// La primera nota de esa clase, o una vacía si no la hay.
[[nodiscard]] NotaLectura NotaDe(const std::vector<NotaLectura> &notas, ClaseNota clase);
[[nodiscard]] int CuantasDe(const std::vector<NotaLectura> &notas, ClaseNota clase);
/// Los textos de las notas, para decir por qué falla una prueba.
[[nodiscard]] std::string Textos(const std::vector<NotaLectura> &notas);

} // namespace tesmo::prueba
