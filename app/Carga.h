#pragma once

namespace tesmo {

class Programa;
class Seleccion;

/// Resultado de llevar una selección hasta los datos.
enum class ResultadoCarga { Cargada, SinLocalidad, FicheroNoAbierto, CasillaVacia };

/// Camino de carga: localidad → fichero → LeerMet → superficie y período → presión por la altitud. Enseña el
/// mensaje 59 o 58 cuando no puede, y entonces no sigue. No deriva: eso ocurre al pedir (AsegurarDerivadas).
ResultadoCarga CargarLocalidad(Programa &programa, const Seleccion &seleccion);

} // namespace tesmo
