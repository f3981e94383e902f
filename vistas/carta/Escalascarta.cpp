#include "psicro/Psicrometrico.h"
#include "vistas/carta/Pintorcarta.h"
#include "vistas/carta/Rotulocarta.h"

#include <QFontMetrics>
#include <QObject>
#include <QPainter>

namespace tesmo {

namespace {

constexpr int RAYA = 4;                ///< de las marcas de las escalas [px]
constexpr double G_POR_KG = 1000.0;    ///< humedades en g/kg
constexpr int HUMEDADES_POR_CIFRA = 5; ///< líneas de humedad entre cifra y cifra de la escala

} // namespace

void PintarEscalas(QPainter &pintor, const Psicro &carta) {
  const int ancho = static_cast<int>(carta.dameAncho());
  const int alto = static_cast<int>(carta.dameAlto());
  const int letra = pintor.fontMetrics().height();
  pintor.setPen(Qt::black);
  pintor.drawRect(-1, -1, ancho + 1, alto + 1);
  ParaCadaLinea(carta.dameRango(Familia::T), 1, [&](double t) {
    const int x = static_cast<int>(carta.x(t));
    pintor.drawLine(x, alto, x, alto + RAYA);
    Rotular(pintor, QPointF(x, alto + RAYA + letra / 2.0), Cifra(t, "#0.##"));
  });
  Rango humedades = carta.dameRango(Familia::W);
  humedades.minimo = 0.0F;
  ParaCadaLinea(humedades, HUMEDADES_POR_CIFRA, [&](double w) {
    const int y = static_cast<int>(carta.y(w));
    pintor.drawLine(ancho, y, ancho + RAYA, y);
    pintor.drawText(ancho + RAYA + 3, y + pintor.fontMetrics().ascent() / 2, Cifra(w * G_POR_KG, "#0.##"));
  });
  constexpr double DERECHO = 36.0; // separación del título del eje derecho [px]
  constexpr double GIRO = -90.0;
  pintor.setPen(ColorDe(carta, Familia::T));
  Rotular(pintor, QPointF(ancho / 2.0, alto + RAYA + 1.5 * letra + 2.0),
          QObject::tr("Temperatura seca (ºC)"));
  pintor.setPen(ColorDe(carta, Familia::W));
  Rotular(pintor, QPointF(ancho + DERECHO, alto / 2.0), QObject::tr("Humedad absoluta (g/kg)"), GIRO);
}

} // namespace tesmo
