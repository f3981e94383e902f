#include "app/Imagenprograma.h"

#include "app/Aplicacion.h"

#include <QCoreApplication>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include <array>
#include <cmath>
#include <numbers>

namespace tesmo {

namespace {

const QColor AZUL(0, 64, 128);
const QColor NARANJA(255, 128, 0);
const QColor SUELO(238, 243, 247);

constexpr double ALTO_HORIZONTE = 300.0; ///< línea del horizonte en la imagen [px]
constexpr double CENTRO = TAMANO_PRESENTACION.width() / 2.0;

void PintarCielo(QPainter &pintor) {
  QLinearGradient cielo(0.0, 0.0, 0.0, ALTO_HORIZONTE);
  cielo.setColorAt(0.0, QColor(28, 84, 142));
  cielo.setColorAt(1.0, QColor(214, 231, 244));
  pintor.fillRect(QRectF(0.0, 0.0, TAMANO_PRESENTACION.width(), ALTO_HORIZONTE), cielo);
  pintor.fillRect(QRectF(0.0, ALTO_HORIZONTE, TAMANO_PRESENTACION.width(), TAMANO_PRESENTACION.height()),
                  SUELO);
}

/// Tres arcos de sol: invierno, equinoccio y verano.
void PintarTrayectorias(QPainter &pintor) {
  constexpr std::array<std::pair<double, double>, 3> ARCOS{{{120.0, 70.0}, {165.0, 130.0}, {205.0, 195.0}}};
  pintor.setBrush(Qt::NoBrush);
  for (const auto &[ancho, alto] : ARCOS) {
    pintor.setPen(QPen(QColor(255, 255, 255, 170), 1.5, Qt::DashLine));
    pintor.drawArc(QRectF(CENTRO - ancho, ALTO_HORIZONTE - alto, 2 * ancho, 2 * alto), 0, 180 * 16);
  }
}

void PintarSol(QPainter &pintor, const QPointF &centro, double radio) {
  constexpr int RAYOS = 12;
  pintor.setPen(QPen(QColor(255, 196, 64), 3.0, Qt::SolidLine, Qt::RoundCap));
  for (int i = 0; i < RAYOS; ++i) {
    const double angulo = 2.0 * std::numbers::pi * i / RAYOS;
    const QPointF rumbo(std::cos(angulo), std::sin(angulo));
    pintor.drawLine(centro + rumbo * (radio + 7.0), centro + rumbo * (radio + 15.0));
  }
  pintor.setPen(Qt::NoPen);
  pintor.setBrush(NARANJA);
  pintor.drawEllipse(centro, radio, radio);
}

/// Temperatura de dos días sobre una rejilla de seis horas.
void PintarCurvaDiaria(QPainter &pintor) {
  constexpr double IZQUIERDA = 40.0;
  constexpr double DERECHA = TAMANO_PRESENTACION.width() - 40.0;
  constexpr double BASE = 352.0;
  constexpr double AMPLITUD = 26.0;
  constexpr int TRAMOS = 8;
  pintor.setPen(QPen(QColor(190, 204, 216), 1.0));
  for (int i = 0; i <= TRAMOS; ++i) {
    const double x = IZQUIERDA + (DERECHA - IZQUIERDA) * i / TRAMOS;
    pintor.drawLine(QPointF(x, BASE - AMPLITUD - 8.0), QPointF(x, BASE + AMPLITUD + 8.0));
  }
  QPainterPath curva;
  for (int i = 0; i <= 96; ++i) {
    const double fase = 4.0 * std::numbers::pi * i / 96.0;
    const QPointF punto(IZQUIERDA + (DERECHA - IZQUIERDA) * i / 96.0,
                        BASE + AMPLITUD * std::cos(fase - 0.5) + 5.0 * std::sin(2.0 * fase));
    if (i == 0) curva.moveTo(punto);
    curva.lineTo(punto);
  }
  pintor.setBrush(Qt::NoBrush);
  pintor.setPen(QPen(AZUL, 3.0, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  pintor.drawPath(curva);
}

void PintarTextos(QPainter &pintor) {
  QFont fuente = pintor.font();
  fuente.setPixelSize(40);
  fuente.setBold(true);
  pintor.setFont(fuente);
  pintor.setPen(Qt::white);
  pintor.drawText(QRectF(24.0, 16.0, 300.0, 52.0), Qt::AlignLeft | Qt::AlignVCenter,
                  QString::fromLatin1(TITULO));
  fuente.setPixelSize(14);
  fuente.setBold(false);
  pintor.setFont(fuente);
  pintor.setPen(AZUL);
  const QRectF pie(24.0, 400.0, TAMANO_PRESENTACION.width() - 48.0, 24.0);
  pintor.drawText(pie, Qt::AlignLeft | Qt::AlignVCenter,
                  QCoreApplication::translate("Imagenprograma", "Año meteorológico, aire húmedo y sol"));
  pintor.drawText(pie, Qt::AlignRight | Qt::AlignVCenter, QString::fromLatin1(VERSION));
}

} // namespace

QPixmap ImagenPresentacion(double densidad) {
  QPixmap imagen(TAMANO_PRESENTACION * densidad);
  imagen.setDevicePixelRatio(densidad);
  QPainter pintor(&imagen);
  pintor.setRenderHint(QPainter::Antialiasing);
  PintarCielo(pintor);
  PintarTrayectorias(pintor);
  PintarSol(pintor, QPointF(CENTRO + 103.0, ALTO_HORIZONTE - 168.0), 22.0);
  PintarCurvaDiaria(pintor);
  PintarTextos(pintor);
  pintor.setPen(QPen(AZUL, 1.0));
  pintor.setBrush(Qt::NoBrush);
  pintor.drawRect(QRectF(QPointF(0.5, 0.5), QSizeF(TAMANO_PRESENTACION) - QSizeF(1.0, 1.0)));
  return imagen;
}

QIcon IconoPrograma() {
  constexpr int LADO = 64;
  QPixmap dibujo(LADO, LADO);
  dibujo.fill(Qt::transparent);
  QPainter pintor(&dibujo);
  pintor.setRenderHint(QPainter::Antialiasing);
  pintor.setPen(Qt::NoPen);
  pintor.setBrush(NARANJA);
  pintor.drawEllipse(QPointF(44.0, 20.0), 13.0, 13.0);
  QPainterPath curva(QPointF(4.0, 50.0));
  curva.cubicTo(QPointF(20.0, 50.0), QPointF(20.0, 22.0), QPointF(32.0, 36.0));
  curva.cubicTo(QPointF(42.0, 48.0), QPointF(48.0, 56.0), QPointF(60.0, 56.0));
  pintor.setBrush(Qt::NoBrush);
  pintor.setPen(QPen(AZUL, 6.0, Qt::SolidLine, Qt::RoundCap));
  pintor.drawPath(curva);
  return dibujo;
}

} // namespace tesmo
