#pragma once

#include "intercambio/formatos/Cuaderno.h"

namespace tesmo {

/// Una radiación solar que vale 0 todo el año mientras otras dos no: nadie la midió, y su programa puso un 0
/// donde iba el código de «sin dato». Queda ausente, con un aviso, y se calcula después de las otras. Si sin
/// ella no quedan dos de entre global, difusa y directa, es un error y el año no se toca.
void QuitarRadiacionNula(AnioCanonico &anio, Cuaderno &cuaderno);

} // namespace tesmo
