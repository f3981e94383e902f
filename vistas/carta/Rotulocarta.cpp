#include "vistas/carta/Rotulocarta.h"

#include "core/Formato.h"
#include "vistas/comun/Guardardibujo.h"
#include "vistas/comun/Textoqt.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>

namespace tesmo {

namespace {

/// Comienzo de la línea de base que deja @p texto centrado en el origen.
QPointF Base(const QPainter &pintor, const QString &texto) {
  const QFontMetricsF medidas(pintor.font());
  return {-medidas.horizontalAdvance(texto) / 2.0, (medidas.ascent() - medidas.descent()) / 2.0};
}

void Perfilar(QPainter &pintor, const QPointF &base, const QString &texto) {
  constexpr double GRUESO = 3.0; // [px], la mitad por fuera de la letra
  QPainterPath letras;
  letras.addText(base, pintor.font(), texto);
  pintor.save();
  pintor.setRenderHint(QPainter::Antialiasing);
  pintor.strokePath(letras, QPen(Qt::white, GRUESO, Qt::SolidLine, Qt::FlatCap, Qt::BevelJoin));
  pintor.restore();
}

void Rotular(QPainter &pintor, const QPointF &centro, const QString &texto, double grados, bool perfil) {
  pintor.save();
  pintor.translate(centro);
  pintor.rotate(grados);
  const QPointF base = Base(pintor, texto);
  if (perfil) Perfilar(pintor, base, texto);
  pintor.drawText(base, texto);
  pintor.restore();
}

} // namespace

QString Cifra(double valor, std::string_view patron) { return Texto(FormatearPatron(valor, patron)); }

QColor ColorDe(const Psicro &carta, Familia familia) { return Color(carta.dameColor(familia)); }

QPointF SitioEnCarta(const Psicro &carta, double t, double w) { return {carta.x(t), carta.y(w)}; }

void Rotular(QPainter &pintor, const QPointF &centro, const QString &texto, double grados) {
  Rotular(pintor, centro, texto, grados, false);
}

void RotularSobreLineas(QPainter &pintor, const QPointF &centro, const QString &texto, double grados) {
  if (!RecortaElDestino(pintor) && !pintor.clipBoundingRect().contains(centro)) return;
  Rotular(pintor, centro, texto, grados, true);
}

} // namespace tesmo
