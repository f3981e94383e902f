#include "vistas/comun/Abrirdocumento.h"

#include "vistas/comun/Lanzarprograma.h"

#include <QObject>

#ifdef Q_OS_WIN
#include <QDesktopServices>
#include <QUrl>
#else
#include <QStandardPaths>
#endif

namespace tesmo {

void AbrirDocumento(const QString &ruta, const std::function<void(const QString &)> &alFallar) {
#ifdef Q_OS_WIN
  const bool abierto = QDesktopServices::openUrl(QUrl::fromLocalFile(ruta));
#else
#ifdef Q_OS_MACOS
  const QString abridor = QStringLiteral("open");
#else
  const QString abridor = QStringLiteral("xdg-open");
#endif
  // Se lanza aquí y no con QDesktopServices, que da por abierto un tipo que el escritorio no conoce.
  const bool abierto =
      !QStandardPaths::findExecutable(abridor).isEmpty() && LanzarPrograma({abridor, ruta}, alFallar);
#endif
  if (!abierto) alFallar(QObject::tr("el sistema no tiene con qué abrir %1").arg(ruta));
}

} // namespace tesmo
