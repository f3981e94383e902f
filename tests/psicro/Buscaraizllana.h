#pragma once

#include "psicro/Buscaraiz.h"

/// Segunda escritura del buscador, seguida y sin funciones auxiliares, hecha aparte de la del motor para
/// compararlas paso a paso.
double BuscaRaizLlana(tesmo::EstadoBuscaRaiz &m, float xFloat, float fFloat, int k, bool &convergido);
