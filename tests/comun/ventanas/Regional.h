#pragma once

#include <QString>

namespace tesmo::prueba {

/// El separador que tocaría enseñar según las variables de entorno con que se llamó a la prueba.
inline QChar SeparadorEsperado() {
  const QByteArray forzado = qgetenv("TESMO_DECIMAL");
  if (forzado == "coma") return ',';
  if (forzado == "punto") return '.';
  return qgetenv("LC_ALL").startsWith("es") ? ',' : '.';
}

/// @p texto con el separador de la región en el sitio de la coma.
inline QString Regional(QString texto) { return texto.replace(',', SeparadorEsperado()); }

} // namespace tesmo::prueba
