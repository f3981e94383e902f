#include "app/Manual.h"

#include "core/Rutas.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <array>
#include <utility>

namespace tesmo {

namespace {

constexpr const char *PORTADA = "index.html";

constexpr std::array<std::pair<const char *, const char *>, 7> PAGINAS{{
    {"tsDatosGenerales", "visualizar.html"},
    {"tsDiasExtremos", "diasextremos.html"},
    {"tsResultadosDiasExtremos", "diasextremos.html#resultados"},
    {"tsPosicionSolar", "posicionsolar.html"},
    {"tsPsicrometrico", "psicrometrico.html"},
    {"tsArchivosHorarios", "archivoshorarios.html"},
    {"tsValores", "valores.html"},
}};

} // namespace

QString DirectorioManual() {
  const QString delPrograma = QString::fromStdString(DameConfiguracion().RutaPrograma("manual"));
  const QString delEjecutable = QCoreApplication::applicationDirPath() + QStringLiteral("/manual");
  for (const QString &directorio : {delPrograma, delEjecutable}) {
    if (QFileInfo::exists(QDir(directorio).filePath(QString::fromLatin1(PORTADA))))
      return QDir::cleanPath(directorio);
  }
  return {};
}

QString PaginaDelManual(const QString &pestana) {
  for (const auto &[nombre, pagina] : PAGINAS) {
    if (pestana == QLatin1String(nombre)) return QString::fromLatin1(pagina);
  }
  return QString::fromLatin1(PORTADA);
}

} // namespace tesmo
