#pragma once

#include "intercambio/conversion/Aniosolar.h"

#include <functional>

namespace tesmo::prueba {

/// Un año que se puede hacer a mano. El día d del mes m (desde 1) tiene m °C de media, uno más los días
/// impares y uno menos los pares; 5 °C menos en la hora 1 y 5 más en la 13. Directa de 300 W/m² en las horas
/// 12 y 13, difusa de 100 de la 9 a la 16; humedad absoluta de m g/kg y relativa del 50 %.
[[nodiscard]] AnioSolar AnioAMano();

/// Ejecuta @p accion en otro proceso, que muere sin despedirse en cuanto @p accion llama @p pasos veces a lo
/// que se le da. Devuelve cierto si acabó sin morir.
[[nodiscard]] bool MuereTras(int pasos, const std::function<void(const std::function<void()> &)> &accion);

} // namespace tesmo::prueba
