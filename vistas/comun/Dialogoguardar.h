#pragma once

#include <QString>
#include <QStringList>

#include <functional>

class QObject;
class QWidget;

namespace tesmo {

/// Lo propio de cada diálogo de guardar.
struct PeticionGuardar {
  QString objeto;      ///< nombre del control
  QString titulo;      ///< de la ventana
  QString recuerdo;    ///< los diálogos con el mismo comparten el último directorio
  QString nombre;      ///< propuesto; vacío: ninguno
  QStringList filtros; ///< "Texto (*.ext)"; la extensión del que esté puesto se añade si no se escribe otra
};

/// Pregunta dónde guardar sin detener el programa y, elegida la ruta, llama a @p guardar, que dice si pudo,
/// mientras viva @p contexto. Empieza en el directorio de lo último que se guardó y, si ya no está, en el de
/// resultados o en el personal. Sobre un fichero que existe pregunta antes. Se destruye al cerrarse o con
/// @p padre.
void PedirGuardar(QWidget &padre, const QObject &contexto, const PeticionGuardar &peticion,
                  std::function<bool(const QString &ruta)> guardar);

} // namespace tesmo
