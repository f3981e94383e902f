#pragma once

namespace tesmo::aire {

// Aire húmedo como mezcla de gases ideales con calores específicos constantes (ASHRAE Handbook of
// Fundamentals, 1997, cap. 6). No son erratas: las ediciones recientes (2017, cap. 1) dan, entre otras,
// 0,621945 a EPSILON, 287,042 a RA, 1860 a CPV y 2326 a PENDIENTE_BULBO_HUMEDO. Cada valor guarda la
// precisión con que el modelo lo conoce: los que son float lo son exactamente, y de ello dependen las últimas
// cifras de los resultados.

/// Cociente de masas molares agua / aire seco (18.01528 / 28.9645).
inline constexpr double EPSILON = 0.6219779385109357;
/// El mismo cociente tal como lo usa sólo el punto de rocío. La pequeña diferencia se conserva.
inline constexpr double EPSILON_ROCIO = 0.6219779305666405;
/// Cociente de masas molares aire seco / agua, redondeado.
inline constexpr double MASA_AIRE_ENTRE_AGUA = 1.6078;
/// Constante del aire seco [J/(kg·K)].
inline constexpr double RA = 287.055;
/// La misma constante tal como la usan sólo las líneas de volumen específico de la carta. La diferencia se
/// conserva.
inline constexpr double RA_CARTA = 287.0;
/// Calor específico del aire seco [J/(kg·K)].
inline constexpr float CPA = 1006.0F;
/// Calor específico del vapor de agua [J/(kg·K)].
inline constexpr float CPV = 1805.0F;
/// Calor de vaporización a 0 °C [J/kg].
inline constexpr float H0 = 2501000.0F;
/// Pendiente del calor de vaporización en la relación del bulbo húmedo [J/(kg·K)].
inline constexpr float PENDIENTE_BULBO_HUMEDO = 2381.0F;
/// Calor específico del agua líquida [J/(kg·K)].
inline constexpr float CW = 4186.0F;
/// Paso de °C a K, en las dos precisiones en que se usa.
inline constexpr double T0 = 273.15;
inline constexpr float T0_FLOAT = 273.15F;
/// Presión normal [Pa].
inline constexpr float PRESION_NORMAL = 101325.0F;

/// Temperaturas secas que el modelo admite [°C].
inline constexpr float T_MINIMA = -100.0F;
inline constexpr float T_MAXIMA = 99.0F;
/// Presiones que el modelo admite [Pa].
inline constexpr float P_MINIMA = 0.0014F;
inline constexpr float P_MAXIMA = 1555070.0F;
/// Entalpía máxima que admite ponw_h [J/kg].
inline constexpr float H_MAXIMA = 211514.0F;
/// Caudal máximo que admite ponm, sea cual sea su unidad.
inline constexpr float CAUDAL_MAXIMO = 1e10F;

} // namespace tesmo::aire
