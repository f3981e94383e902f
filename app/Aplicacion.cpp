#include "app/Aplicacion.h"

#include "app/Imagenprograma.h"
#include "core/Configuracionregional.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

namespace tesmo {

namespace {

/// Español con el separador decimal en vigor, que puede no ser el de España; sin separador de millares, que
/// se confundiría con él.
QLocale RegionDeLosNumeros() {
  const bool punto = Configuracionregional::SeparadorDecimal() == '.';
  QLocale region(QLocale::Spanish, punto ? QLocale::Mexico : QLocale::Spain);
  region.setNumberOptions(QLocale::OmitGroupSeparator);
  return region;
}

} // namespace

void PonTextosDeQt(QCoreApplication &aplicacion) {
  auto *traductor = new QTranslator(&aplicacion);
  if (traductor->load(QStringLiteral("qtbase_es"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QCoreApplication::installTranslator(traductor);
}

void PrepararAplicacion(QApplication &aplicacion) {
  QApplication::setApplicationName(QString::fromLatin1(TITULO));
  QApplication::setApplicationVersion(QString::fromLatin1(VERSION));
  QApplication::setWindowIcon(IconoPrograma());
  const QString separador = QLocale::system().decimalPoint();
  Configuracionregional::IniciarDesdeEntorno(separador == QLatin1String(".") ? '.' : ',');
  QLocale::setDefault(RegionDeLosNumeros());
  PonTextosDeQt(aplicacion);
}

} // namespace tesmo
