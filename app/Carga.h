#pragma once

#include <string>

namespace tesmo {

class Programa;
class Seleccion;

/// Resultado de llevar una selección hasta los datos.
enum class ResultadoCarga {
  Cargada,
  SinLocalidad,     ///< no hay localidad elegida: mensaje 59 con "Localidad"; nada cambia
  FicheroNoAbierto, ///< mensaje 59 con la localidad; el programa queda sin datos
  CasillaVacia,     ///< falta un texto de la superficie: mensaje 58 con su rótulo; nada cambia
};

/// Camino de carga. De la superficie, una casilla que no es un número da el mensaje 62 con su rótulo, y una
/// fuera de límites la caja de la entrada validada; las dos siguen con el valor por defecto.
/// Pasos: lo pendiente de entregar (Seleccion::AntesDeUsar) → localidad → fichero → LeerMet → superficie y
/// período → presión por la altitud. La base de localidades queda con la localidad como "Ciudad". No deriva:
/// las derivadas se hacen al pedirlas (PrepararDatos o LeerMet::AsegurarDerivadas).
ResultadoCarga CargarLocalidad(Programa &programa, const Seleccion &seleccion);

/// El mismo camino con un fichero .met nombrado directamente; @p nombre hace de nombre de la localidad.
ResultadoCarga CargarFichero(Programa &programa, const Seleccion &seleccion, const std::string &ruta,
                             const std::string &nombre);

/// Carga si no hay datos de la localidad elegida; si los hay, pone la superficie, el período y la presión de
/// ahora. No deriva: basta a quien sólo pide series almacenadas.
ResultadoCarga AsegurarCarga(Programa &programa, const Seleccion &seleccion);

/// Lo que toda vista, estadística o exportación llama antes de pedir series: AsegurarCarga y, después, deja
/// al día las series derivadas, con el horizonte del PosicionSolar del programa.
ResultadoCarga PrepararDatos(Programa &programa, const Seleccion &seleccion);

/// Altitud [m] que fija la presión: la del usuario y, si no, el tercer dato del fichero cargado; la que no
/// se cree vale 0.
[[nodiscard]] float AltitudEnUso(const Programa &programa, const Seleccion &seleccion);

} // namespace tesmo
