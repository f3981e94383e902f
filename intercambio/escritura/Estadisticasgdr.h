#pragma once

#include "intercambio/conversion/Aniosolar.h"
#include "intercambio/escritura/Fichacatalogo.h"

namespace tesmo {

/// Las filas y las humedades del registro de GDR.TXT de @p anio, que ha de tener sus 8.760 valores: medias y
/// desviaciones típicas (con n − 1) de las máximas y mínimas diarias de cada mes, en centésimas; global
/// horizontal diaria [kJ/m²]; humedad relativa media [%]. WCAL y WREF [g/kg] son la humedad absoluta media de
/// la veinteava parte de los días de diciembre a febrero más fríos y de junio a septiembre más cálidos, por
/// su temperatura media. Lo que no es de las estadísticas (nombre, zona y sitio) queda como en una ficha
/// nueva.
[[nodiscard]] FichaGdr EstadisticasDelAnio(const AnioSolar &anio);

} // namespace tesmo
