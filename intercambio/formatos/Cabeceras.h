#pragma once

#include "intercambio/formatos/Cuaderno.h"

#include <optional>
#include <string_view>

namespace tesmo {

/// Piezas comunes de las cabeceras.

/// Pone latitud y longitud, que han de estar, y altitud, que puede faltar (con aviso). La altitud que @p
/// sitio ya tenga manda sobre la del fichero. Un valor ausente o que no cabe en su ángulo es un error de la
/// @p linea; con 0, del mapa de columnas.
void PonerSitio(std::optional<double> latitud, std::optional<double> longitud, std::optional<double> altitud,
                int linea, SitioClima &sitio, Cuaderno &cuaderno);

/// Un fichero de comas guardado por una hoja de cálculo con punto y coma o tabuladores, y quizá con coma
/// decimal y fechas donde había números: si @p linea, que debía ir con comas, es así, apunta un error y
/// devuelve cierto.
bool RechazarSeparador(std::string_view linea, int numeroDeLinea, Cuaderno &cuaderno);

/// Huso [h] que le toca a una longitud [°] cuando el fichero no lo dice; 0 si no se conoce.
[[nodiscard]] double HusoDeLongitud(double longitud);

/// El @p huso [h] que da la @p linea si es creíble; si falta o pasa de HUSO_MAXIMO, el de la longitud, con
/// aviso.
[[nodiscard]] double HusoCreible(std::optional<double> huso, double longitud, int linea, Cuaderno &cuaderno);

/// El número que sigue a @p clave en @p texto, sin distinguir mayúsculas ni contar los ':' y blancos de en
/// medio; vacío si la clave no está o no la sigue un número, o si lleva coma decimal.
[[nodiscard]] std::optional<double> NumeroTras(std::string_view texto, std::string_view clave);

/// ¿Está @p clave (en minúsculas) en @p texto, sin distinguir mayúsculas?
[[nodiscard]] bool Contiene(std::string_view texto, std::string_view clave);

/// Minutos entre la etiqueta de PVGIS, contada de 1 a 24, y el instante de su radiación cuando el fichero no
/// lo dice: los satélites que cubren Europa pasan hacia el minuto 10 de la hora que se escribe.
inline constexpr double DESFASE_PVGIS_MIN = -50.0;

} // namespace tesmo
