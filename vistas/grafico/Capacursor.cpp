#include "vistas/grafico/Capacursor.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tesmo {

namespace {

constexpr int MARGEN = 6;         ///< alrededor del texto de la lectura [px]
constexpr int SEPARACION = 12;    ///< entre la cruz y la lectura [px]
constexpr int ANCHO_MUESTRA = 10; ///< cuadrado de color de cada serie [px]
constexpr double RADIO_MARCA = 3.5;

const QColor COLOR_CRUZ(90, 90, 90);
const QColor COLOR_FONDO(255, 255, 255, 248);
const QColor COLOR_TEXTO(30, 30, 30);
const QColor COLOR_AVISO(120, 120, 120);

} // namespace

CapaCursor::CapaCursor(QWidget *padre) : QWidget(padre) {
  setObjectName(QStringLiteral("capaCursor"));
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setAttribute(Qt::WA_NoSystemBackground);
}

void CapaCursor::Ensenar(const QRect &marco, const QPointF &cruz, const QString &titulo,
                         std::vector<LineaCursor> lineas) {
  marco_ = marco;
  cruz_ = cruz;
  titulo_ = titulo;
  lineas_ = std::move(lineas);
  leyendo_ = true;
  update();
}

void CapaCursor::Ocultar() {
  if (!leyendo_) return;
  leyendo_ = false;
  update();
}

void CapaCursor::PonAviso(const QRect &marco, const QString &aviso) {
  marcoAviso_ = marco;
  aviso_ = aviso;
  update();
}

QString CapaCursor::Texto() const {
  if (!leyendo_) return {};
  QString texto = titulo_;
  for (const LineaCursor &linea : lineas_) texto += QLatin1Char('\n') + linea.texto;
  return texto;
}

void CapaCursor::paintEvent(QPaintEvent *) {
  QPainter pintor(this);
  if (!aviso_.isEmpty()) {
    pintor.setPen(COLOR_AVISO);
    pintor.drawText(marcoAviso_, Qt::AlignCenter | Qt::TextWordWrap, aviso_);
  }
  if (!leyendo_) return;
  PintarCruz(pintor);
  PintarLectura(pintor);
}

void CapaCursor::PintarCruz(QPainter &pintor) const {
  pintor.setPen(QPen(COLOR_CRUZ, 1.0, Qt::DashLine));
  pintor.drawLine(QPointF(cruz_.x(), marco_.top()), QPointF(cruz_.x(), marco_.bottom()));
  pintor.drawLine(QPointF(marco_.left(), cruz_.y()), QPointF(marco_.right(), cruz_.y()));
  pintor.setRenderHint(QPainter::Antialiasing);
  pintor.setPen(QPen(Qt::white, 1.0));
  for (const LineaCursor &linea : lineas_) {
    if (!std::isfinite(linea.y) || linea.y < marco_.top() || linea.y > marco_.bottom()) continue;
    pintor.setBrush(linea.color);
    pintor.drawEllipse(QPointF(cruz_.x(), linea.y), RADIO_MARCA, RADIO_MARCA);
  }
  pintor.setRenderHint(QPainter::Antialiasing, false);
}

QSize CapaCursor::TamanoLectura() const {
  const QFontMetrics medidas = fontMetrics();
  int ancho = medidas.horizontalAdvance(titulo_);
  for (const LineaCursor &linea : lineas_) {
    ancho = std::max(ancho, medidas.horizontalAdvance(linea.texto) + ANCHO_MUESTRA + MARGEN);
  }
  const int renglones = static_cast<int>(lineas_.size()) + 1;
  return {ancho + 2 * MARGEN, renglones * medidas.height() + 2 * MARGEN};
}

QRect CapaCursor::SitioDeLectura() const {
  const QSize tamano = TamanoLectura();
  int x = static_cast<int>(cruz_.x()) + SEPARACION;
  if (x + tamano.width() > marco_.right()) x = static_cast<int>(cruz_.x()) - SEPARACION - tamano.width();
  const int y = std::min(marco_.top() + MARGEN, std::max(height() - tamano.height(), 0));
  return {QPoint(std::max(x, 0), y), tamano};
}

void CapaCursor::PintarLectura(QPainter &pintor) const {
  const QRect caja = SitioDeLectura();
  pintor.setPen(COLOR_CRUZ);
  pintor.setBrush(COLOR_FONDO);
  pintor.drawRect(caja);
  const int alto = fontMetrics().height();
  QRect renglon(caja.left() + MARGEN, caja.top() + MARGEN, caja.width() - 2 * MARGEN, alto);
  pintor.setPen(COLOR_TEXTO);
  pintor.drawText(renglon, Qt::AlignLeft | Qt::AlignVCenter, titulo_);
  for (const LineaCursor &linea : lineas_) {
    renglon.translate(0, alto);
    const int hueco = (alto - ANCHO_MUESTRA) / 2;
    pintor.fillRect(renglon.left(), renglon.top() + hueco, ANCHO_MUESTRA, ANCHO_MUESTRA, linea.color);
    pintor.drawText(renglon.adjusted(ANCHO_MUESTRA + MARGEN, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                    linea.texto);
  }
}

} // namespace tesmo
