#include "vistas/comun/Dialogoguardar.h"

#include "core/Rutas.h"
#include "vistas/comun/Textoqt.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHash>

#include <utility>

namespace tesmo {

namespace {

QString &UltimoDirectorio(const QString &recuerdo) {
  static QHash<QString, QString> ultimos;
  return ultimos[recuerdo];
}

QString DirectorioParaGuardar(const QString &recuerdo) {
  const QString resultados = Texto(DameConfiguracion().RutaResultados(""));
  for (const QString &directorio : {UltimoDirectorio(recuerdo), resultados}) {
    if (!directorio.isEmpty() && QDir(directorio).exists()) return directorio;
  }
  return QDir::homePath();
}

QString ExtensionDe(const QString &filtro) {
  return filtro.mid(filtro.lastIndexOf(QLatin1String("*.")) + 2).chopped(1).toLower();
}

} // namespace

void PedirGuardar(QWidget &padre, const QObject &contexto, const PeticionGuardar &peticion,
                  std::function<bool(const QString &ruta)> guardar) {
  auto *dialogo = new QFileDialog(&padre, peticion.titulo);
  dialogo->setObjectName(peticion.objeto);
  dialogo->setAttribute(Qt::WA_DeleteOnClose);
  dialogo->setOption(QFileDialog::DontUseNativeDialog);
  dialogo->setDirectory(DirectorioParaGuardar(peticion.recuerdo));
  dialogo->setAcceptMode(QFileDialog::AcceptSave);
  dialogo->setNameFilters(peticion.filtros);
  dialogo->setDefaultSuffix(ExtensionDe(peticion.filtros.first()));
  if (!peticion.nombre.isEmpty()) dialogo->selectFile(peticion.nombre);
  QObject::connect(dialogo, &QFileDialog::filterSelected, dialogo,
                   [dialogo](const QString &filtro) { dialogo->setDefaultSuffix(ExtensionDe(filtro)); });
  QObject::connect(
      dialogo, &QFileDialog::fileSelected, &contexto,
      [dialogo, recuerdo = peticion.recuerdo, guardar = std::move(guardar)](const QString &ruta) {
        // Una caja sobre un diálogo que se va deja al gestor sin ventana a la que dar el foco.
        dialogo->hide();
        if (guardar(ruta)) UltimoDirectorio(recuerdo) = QFileInfo(ruta).absolutePath();
      });
  dialogo->open();
}

} // namespace tesmo
