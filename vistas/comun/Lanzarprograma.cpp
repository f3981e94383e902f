#include "vistas/comun/Lanzarprograma.h"

#include <QDir>
#include <QObject>
#include <QProcess>

namespace tesmo {

bool LanzarPrograma(const QStringList &orden, const std::function<void(const QString &)> &alFallar) {
  // Sin padre a propósito: un QProcess destruido mata a su programa, y éste ha de sobrevivir al nuestro.
  auto *proceso = new QProcess;
  proceso->setProcessChannelMode(QProcess::ForwardedChannels);
  proceso->setStandardInputFile(QProcess::nullDevice());
  proceso->start(orden.front(), orden.mid(1));
  // Sólo espera a que el sistema lo ponga en marcha, no a que haga nada.
  if (!proceso->waitForStarted()) {
    delete proceso;
    return false;
  }
  const QString programa = QDir::toNativeSeparators(orden.front());
  QObject::connect(proceso, &QProcess::finished, proceso,
                   [proceso, programa, alFallar](int codigo, QProcess::ExitStatus salida) {
                     if (salida != QProcess::NormalExit || codigo != 0)
                       alFallar(QObject::tr("%1 no pudo abrirlo (código %2)").arg(programa).arg(codigo));
                     proceso->deleteLater();
                   });
  return true;
}

} // namespace tesmo
