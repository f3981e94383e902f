#include "vistas/grafico/Bibliotecagraficos.h"

#include <qcustomplot.h>

namespace tesmo {

QString VersionDeLosGraficos() { return QStringLiteral(QCUSTOMPLOT_VERSION_STR); }

} // namespace tesmo
