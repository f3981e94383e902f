#include "imagen/Imagencarta.h"

#include "core/Ficheros.h"
#include "imagen/Lienzopintor.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>

namespace tesmo {

namespace {

/// Puntos tipográficos por pulgada.
constexpr int PUNTOS_POR_PULGADA = 72;

bool Escribir(const std::string &ruta, const QByteArray &bytes) {
  return EscribirFicheroEntero(RutaDesdeTexto(ruta),
                               {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

} // namespace

bool GuardarPng(const std::string &ruta, int ancho, int alto, const Dibujo &dibujo) {
  QImage imagen(ancho, alto, QImage::Format_RGB32);
  if (imagen.isNull()) return false;
  imagen.fill(Qt::white);
  {
    QPainter pintor(&imagen);
    LienzoPintor lienzo(pintor);
    dibujo(lienzo);
  }
  QBuffer memoria;
  return memoria.open(QIODevice::WriteOnly) && imagen.save(&memoria, "PNG") && Escribir(ruta, memoria.data());
}

bool GuardarPdf(const std::string &ruta, int ancho, int alto, const Dibujo &dibujo) {
  QBuffer memoria;
  if (!memoria.open(QIODevice::WriteOnly)) return false;
  QPdfWriter hoja(&memoria);
  hoja.setResolution(PUNTOS_POR_PULGADA);
  hoja.setPageMargins(QMarginsF());
  hoja.setPageSize(QPageSize(QSizeF(ancho, alto), QPageSize::Point, QString(), QPageSize::ExactMatch));
  {
    QPainter pintor;
    if (!pintor.begin(&hoja)) return false;
    pintor.setClipRect(0, 0, ancho, alto);
    LienzoPintor lienzo(pintor);
    dibujo(lienzo);
  }
  return Escribir(ruta, memoria.data());
}

} // namespace tesmo
