#pragma once

#include "intercambio/formatos/Cuaderno.h"

namespace tesmo {

/// Tapa los huecos de @p anio, que se toma cerrado sobre sí mismo. Hasta HORAS_INTERPOLABLES seguidas se
/// interpola entre las vecinas (la dirección del viento, por el arco menor; la radiación es cero donde lo es
/// a la misma hora la víspera y al día siguiente). Un hueco más largo es un error con su primera y su última
/// línea, o se rellena de los días vecinos si @p largos lo dice; pero si otro campo lo suple (la presión, la
/// infrarroja, una de las tres radiaciones, una de las tres humedades…) el campo queda ausente y se avisa.
void TaparHuecos(AnioCanonico &anio, HuecosLargos largos, Cuaderno &cuaderno);

} // namespace tesmo
