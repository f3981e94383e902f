#pragma once

#include "app/Seleccion.h"
#include "cli/Contexto.h"
#include "cli/Interprete.h"
#include "meteo/Magnitudes.h"

#include <optional>
#include <string>
#include <vector>

namespace tesmo {
class Programa;
}

namespace tesmo::cli {

/// Opciones que comparten todas las órdenes que usan el año de una localidad, tal como se teclean.
struct OpcionesSeleccion {
  std::optional<std::string> localidad, fichero, desde, hasta, inclinacion, orientacion, albedo, presion,
      altitud, horizonte, base;
};
void AnadirSeleccion(CLI::App &orden, OpcionesSeleccion &opciones);
/// "--base" solo, para las órdenes que sólo necesitan el directorio del programa.
void AnadirBase(CLI::App &orden, std::optional<std::string> &base);
/// "--registro": los diagnósticos numéricos van a ese fichero.
void AnadirRegistro(CLI::App &orden, std::optional<std::string> &registro);
/// "--json".
void AnadirJson(CLI::App &orden, bool &json);

/// Lo que piden las opciones, ya comprobado y con rutas absolutas.
struct PeticionSeleccion {
  std::string localidad; ///< vacía si se nombra un fichero
  std::string fichero;   ///< vacía si se nombra una localidad
  Periodo periodo{{1, 1, 1}, {12, 31, 24}};
  Seleccion::Superficie superficie;
  std::optional<float> presion; ///< [Pa]
  std::optional<float> altitud; ///< [m]
  std::string horizonte;        ///< vacía: sin horizonte
  std::string base;             ///< vacía: junto al programa
};
/// De dónde sale la presión; ninguna de las dos: de donde diga la orden. Lanza Fallo si van juntas.
struct PeticionPresion {
  std::optional<float> presion; ///< [Pa]
  std::optional<float> altitud; ///< [m]
};
[[nodiscard]] PeticionPresion InterpretarPresion(const OpcionesSeleccion &opciones);
/// Lanza Fallo (uso incorrecto) si algo no vale.
[[nodiscard]] PeticionSeleccion Interpretar(const OpcionesSeleccion &opciones);

/// Magnitud de cada nombre: su rótulo exacto o su código. Lanza Fallo (uso incorrecto) si alguno no se
/// conoce.
[[nodiscard]] std::vector<Magnitud> LeerMagnitudes(const std::vector<std::string> &nombres);

/// Hace de @p base (ruta absoluta; vacía: el directorio del ejecutable) el directorio del programa. Lanza
/// Fallo (falta una entrada) si no es un directorio. Antes de que nadie lea las localidades, termina o
/// deshace la importación que quedara a medias, y lo avisa.
void IniciarBase(const std::string &base, Contexto &contexto);
/// Abre el registro de diagnósticos en @p registro si se da. Lanza Fallo (falta una salida) si no se puede.
void IniciarRegistro(const std::optional<std::string> &registro);

/// La altitud [m] que fija la presión si se pide @p pedida: la que no se cree (AltitudCreible) se avisa y
/// vale 0, haya o no un fichero con la suya.
[[nodiscard]] float AltitudUsada(float pedida, Contexto &contexto);

/// Carga en @p programa lo pedido y deja al día las series derivadas. Lanza Fallo si falta algo; avisa si el
/// fichero es corto.
void Cargar(const PeticionSeleccion &peticion, Contexto &contexto, std::optional<Programa> &programa);

} // namespace tesmo::cli
