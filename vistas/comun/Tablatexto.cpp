#include "vistas/comun/Tablatexto.h"

#include <QStringList>
#include <QTableWidget>

namespace tesmo {

namespace {

QString TextoDe(const QTableWidgetItem *celda) { return celda == nullptr ? QString() : celda->text(); }

} // namespace

QString TextoDeTabla(const QTableWidget &tabla) { return TextoDeTabla(tabla, {}); }

QString TextoDeTabla(const QTableWidget &tabla, QList<int> filas) {
  if (filas.isEmpty())
    for (int i = 0; i < tabla.rowCount(); ++i) filas << i;
  QStringList lineas;
  QStringList campos;
  for (int j = 0; j < tabla.columnCount(); ++j) campos << TextoDe(tabla.horizontalHeaderItem(j));
  lineas << campos.join('\t');
  for (const int fila : filas) {
    campos.clear();
    for (int j = 0; j < tabla.columnCount(); ++j) campos << TextoDe(tabla.item(fila, j));
    lineas << campos.join('\t');
  }
  return lineas.join('\n') + '\n';
}

} // namespace tesmo
