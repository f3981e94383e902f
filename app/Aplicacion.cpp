#include "app/Aplicacion.h"

#include "core/Configuracionregional.h"

#include <QApplication>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
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

/// Una curva diaria bajo el sol, en los colores de fábrica de la temperatura y la radiación.
QIcon Icono() {
  constexpr int LADO = 64;
  QPixmap dibujo(LADO, LADO);
  dibujo.fill(Qt::transparent);
  QPainter pintor(&dibujo);
  pintor.setRenderHint(QPainter::Antialiasing);
  pintor.setPen(Qt::NoPen);
  pintor.setBrush(QColor(255, 128, 0));
  pintor.drawEllipse(QPointF(44.0, 20.0), 13.0, 13.0);
  QPainterPath curva(QPointF(4.0, 50.0));
  curva.cubicTo(QPointF(20.0, 50.0), QPointF(20.0, 22.0), QPointF(32.0, 36.0));
  curva.cubicTo(QPointF(42.0, 48.0), QPointF(48.0, 56.0), QPointF(60.0, 56.0));
  pintor.setBrush(Qt::NoBrush);
  pintor.setPen(QPen(QColor(0, 64, 128), 6.0, Qt::SolidLine, Qt::RoundCap));
  pintor.drawPath(curva);
  return dibujo;
}

} // namespace

void PrepararAplicacion(QApplication &aplicacion) {
  QApplication::setApplicationName(QString::fromLatin1(TITULO));
  QApplication::setWindowIcon(Icono());
  const QString separador = QLocale::system().decimalPoint();
  Configuracionregional::IniciarDesdeEntorno(separador == QLatin1String(".") ? '.' : ',');
  QLocale::setDefault(RegionDeLosNumeros());
  auto *traductor = new QTranslator(&aplicacion);
  if (traductor->load(QStringLiteral("qtbase_es"), QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QApplication::installTranslator(traductor);
  }
}

} // namespace tesmo
