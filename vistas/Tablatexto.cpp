#include "vistas/Tablatexto.h"

#include <QStringList>
#include <QTableWidget>

namespace tesmo {

namespace {

QString TextoDe(const QTableWidgetItem *celda) { return celda == nullptr ? QString() : celda->text(); }

} // namespace

QString TextoDeTabla(const QTableWidget &tabla) {
  QStringList lineas;
  QStringList campos;
  for (int j = 0; j < tabla.columnCount(); ++j) campos << TextoDe(tabla.horizontalHeaderItem(j));
  lineas << campos.join('\t');
  for (int i = 0; i < tabla.rowCount(); ++i) {
    campos.clear();
    for (int j = 0; j < tabla.columnCount(); ++j) campos << TextoDe(tabla.item(i, j));
    lineas << campos.join('\t');
  }
  return lineas.join('\n') + '\n';
}

} // namespace tesmo
