#pragma once

#include "psicro/Pluma.h"
#include "psicro/Psicrometrico.h"

namespace tesmo {

// Las cinco familias de líneas de la carta, cada una con el color ya puesto. Trabajan con una corriente de
// aire propia a la presión de la carta; lo que ella acota o no converge queda en el registro y se sigue
// dibujando con lo último que se sepa.

/// Iteraciones de las intersecciones con los bordes de la carta, y su tolerancia relativa.
inline constexpr int ITERACIONES_CARTA = 30;
inline constexpr double TOLERANCIA_CARTA = 1e-5;

/// Del rocío de cada humedad hasta 30 °C más allá del borde derecho. La humedad se acumula en float y por eso
/// falta la línea de arriba (se conserva).
void DibujarHumedadConstante(const Psicro &carta, Pluma &pluma);
/// De 0 °C a 10 °C más allá del borde derecho, grado a grado.
void DibujarHumedadRelativa(const Psicro &carta, Pluma &pluma);
/// De la saturación y luego desde abajo hasta ella.
void DibujarTemperaturaSeca(const Psicro &carta, Pluma &pluma);
/// Del borde inferior, o del derecho, a la saturación.
void DibujarEntalpia(const Psicro &carta, Pluma &pluma);
/// Lo que las líneas de volumen específico pasan de su máximo [m³/kg]. Se conserva.
inline constexpr double VOLUMEN_DE_MAS = 0.1;
/// De la saturación al borde inferior, con VOLUMEN_DE_MAS.
void DibujarVolumenEspecifico(const Psicro &carta, Pluma &pluma);

} // namespace tesmo
