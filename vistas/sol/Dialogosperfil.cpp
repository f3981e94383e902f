#include "vistas/sol/Dialogosperfil.h"

#include "core/Rutas.h"
#include "vistas/comun/Textoqt.h"

#include <QDir>
#include <QFileDialog>

namespace tesmo {

namespace {

QFileDialog *CrearDialogo(QWidget &padre, const char *nombre, const QString &titulo) {
  QDir::setCurrent(Texto(DameConfiguracion().RutaPrograma("")));
  const QString perfiles = Texto(DameConfiguracion().RutaPerfiles(""));
  auto *dialogo = new QFileDialog(&padre, titulo);
  dialogo->setObjectName(QString::fromLatin1(nombre));
  dialogo->setAttribute(Qt::WA_DeleteOnClose);
  dialogo->setOption(QFileDialog::DontUseNativeDialog);
  if (QDir(perfiles).exists()) dialogo->setDirectory(perfiles);
  return dialogo;
}

QString Filtro(FormatoHorizonte formato) { return Texto(DatosDe(formato).descripcion); }

} // namespace

void PedirAbrirPerfil(QWidget &padre, const QObject &contexto,
                      std::function<void(const std::string &)> abrir) {
  QFileDialog *dialogo = CrearDialogo(padre, "odPerfil", QObject::tr("Abrir perfil de horizonte"));
  dialogo->setFileMode(QFileDialog::ExistingFile);
  QStringList filtros;
  for (const DatosFormato &datos : FormatosDeHorizonte()) filtros << Texto(datos.descripcion);
  filtros.first() = QObject::tr("Todos los perfiles de horizonte (*)");
  dialogo->setNameFilters(filtros);
  QObject::connect(dialogo, &QFileDialog::fileSelected, &contexto,
                   [abrir = std::move(abrir)](const QString &ruta) {
                     if (!ruta.isEmpty()) abrir(ruta.toStdString());
                   });
  dialogo->open();
}

void PedirGuardarPerfil(QWidget &padre, const QObject &contexto,
                        std::function<void(const std::string &, FormatoHorizonte)> guardar) {
  QFileDialog *dialogo = CrearDialogo(padre, "sdPerfil", QObject::tr("Guardar perfil de horizonte"));
  dialogo->setAcceptMode(QFileDialog::AcceptSave);
  const QString completo = Filtro(FormatoHorizonte::Completo);
  dialogo->setNameFilters({Filtro(FormatoHorizonte::Nativo), completo});
  QObject::connect(dialogo, &QFileDialog::filterSelected, dialogo,
                   [dialogo, completo](const QString &filtro) {
                     dialogo->setDefaultSuffix(filtro == completo ? QStringLiteral("csv") : QString());
                   });
  QObject::connect(
      dialogo, &QFileDialog::fileSelected, &contexto,
      [guardar = std::move(guardar), dialogo, completo](const QString &ruta) {
        if (ruta.isEmpty()) return;
        const bool entero = dialogo->selectedNameFilter() == completo ||
                            FormatoPorExtension(ruta.toStdString()) == FormatoHorizonte::Completo;
        guardar(ruta.toStdString(), entero ? FormatoHorizonte::Completo : FormatoHorizonte::Nativo);
      });
  dialogo->open();
}

} // namespace tesmo
