#include "psicro/Constantes.h"
#include "psicro/Corrienteaire.h"
#include "psicro/Familiascarta.h"
#include "psicro/Psicrometrico.h"
#include "vistas/carta/Pintorcarta.h"
#include "vistas/carta/Rotulocarta.h"

#include <QLineF>
#include <QObject>
#include <QPainter>

#include <cmath>
#include <numbers>

namespace tesmo {

namespace {

constexpr double J_POR_KJ = 1000.0;    ///< entalpías en kJ/kg
constexpr int VOLUMENES_POR_CIFRA = 2; ///< líneas de volumen entre rótulo y rótulo

double Giro(const QPointF &a, const QPointF &b) {
  return std::atan2(b.y() - a.y(), b.x() - a.x()) * 180.0 / std::numbers::pi;
}

/// Humedad absoluta [kg/kg] del aire a @p t [°C] y @p hr [%] a la presión de la carta.
double Humedad(const Psicro &carta, double t, double hr) {
  CorrienteAire aire;
  aire.pont_hr(static_cast<float>(t), static_cast<float>(hr), carta.damePresion());
  return aire.humedadAbsoluta();
}

/// Cada curva, cerca de donde sale de la carta; una lleva además el nombre.
void RotularHumedadRelativa(QPainter &pintor, const Psicro &carta) {
  constexpr double ALTURA = 0.94;   // fracción del máximo de humedad absoluta
  constexpr double HASTA = 0.95;    // fracción de la temperatura máxima
  constexpr double CON_NOMBRE = 50; // [%]
  constexpr double PASO = 0.25;     // [°C]
  const double wMax = carta.dameRango(Familia::W).maximo;
  ParaCadaLinea(carta.dameRango(Familia::HR), 1, [&](double hr) {
    if (hr <= 0.0 || hr >= 100.0) return;
    double t = carta.dameRango(Familia::T).maximo * HASTA;
    while (t > 0.0 && Humedad(carta, t, hr) > ALTURA * wMax) t -= PASO;
    const QPointF sitio = SitioEnCarta(carta, t, Humedad(carta, t, hr));
    RotularSobreLineas(pintor, sitio, Cifra(hr, "#0") + QStringLiteral(" %"));
    if (hr != CON_NOMBRE) return;
    const double medio = t * 0.85;
    const QPointF a = SitioEnCarta(carta, medio - 1.0, Humedad(carta, medio - 1.0, hr));
    const QPointF b = SitioEnCarta(carta, medio + 1.0, Humedad(carta, medio + 1.0, hr));
    RotularSobreLineas(pintor, (a + b) / 2.0, QObject::tr("Humedad relativa"), Giro(a, b));
  });
}

/// Cada línea, en su extremo saturado; el nombre, a lo largo de la saturación y por fuera de ella.
void RotularEntalpia(QPainter &pintor, const Psicro &carta) {
  constexpr QPointF FUERA(-13.0, -6.0);
  constexpr double PASO = 0.1; // [°C]
  const double tMax = carta.dameRango(Familia::T).maximo;
  CorrienteAire aire;
  double t = 0.0;
  ParaCadaLinea(carta.dameRango(Familia::H), 1, [&](double h) {
    for (; t < tMax; t += PASO) {
      aire.pont_hr(static_cast<float>(t), 100.0F, carta.damePresion());
      if (static_cast<double>(aire.entalpia()) >= h) break;
    }
    const QPointF sitio = SitioEnCarta(carta, t, aire.humedadAbsoluta()) + FUERA;
    if (t > 1.0 && sitio.y() > 0.0) RotularSobreLineas(pintor, sitio, Cifra(h / J_POR_KJ, "#0"));
  });
  constexpr double A = 0.40; // fracciones de la temperatura máxima entre las que va el nombre
  constexpr double B = 0.46;
  const QPointF a = SitioEnCarta(carta, tMax * A, Humedad(carta, tMax * A, 100.0));
  const QPointF b = SitioEnCarta(carta, tMax * B, Humedad(carta, tMax * B, 100.0));
  constexpr double APARTE = 36.0; // [px]
  QLineF normal = QLineF(a, b).normalVector();
  normal.setLength(APARTE);
  RotularSobreLineas(pintor, (a + b) / 2.0 + (normal.p2() - normal.p1()), QObject::tr("Entalpía (kJ/kg)"),
                     Giro(a, b));
}

/// Temperatura [°C] de la línea de volumen @p v [m³/kg] a la humedad @p w [kg/kg]:
/// v = (t + 273,15)·Ra·(1 + w/ε)/p.
double TemperaturaDeVolumen(const Psicro &carta, double v, double w) {
  return v * carta.damePresion() / (aire::RA_CARTA * (1.0 + w / aire::EPSILON)) - aire::T0;
}

/// A lo largo de la línea, cerca de su extremo seco; lleva además el nombre la que baja por la derecha, donde
/// las líneas son largas.
void RotularVolumen(QPainter &pintor, const Psicro &carta) {
  constexpr double SECO = 0.06;          // fracciones del máximo de humedad a las que van el rótulo
  constexpr double DEL_NOMBRE = 0.42;    // y el nombre
  constexpr double POR_LA_DERECHA = 0.8; // fracción de la temperatura máxima
  constexpr double BORDE = 16.0;         // [px] más cerca del marco, el rótulo saldría cortado
  const double wSeco = SECO * carta.dameRango(Familia::W).maximo;
  const double wNombre = DEL_NOMBRE * carta.dameRango(Familia::W).maximo;
  const auto enLinea = [&](double v, double w) {
    return SitioEnCarta(carta, TemperaturaDeVolumen(carta, v, w), w);
  };
  Rango rango = carta.dameRango(Familia::VE);
  rango.maximo = static_cast<float>(rango.maximo + VOLUMEN_DE_MAS);
  bool nombrada = false;
  ParaCadaLinea(rango, VOLUMENES_POR_CIFRA, [&](double v) {
    const QPointF a = enLinea(v, 1.5 * wSeco);
    const QPointF b = enLinea(v, 0.5 * wSeco);
    const QPointF sitio = (a + b) / 2.0;
    if (sitio.x() > BORDE && sitio.x() < static_cast<double>(carta.dameAncho()) - BORDE)
      RotularSobreLineas(pintor, sitio, Cifra(v, "0.00"), Giro(a, b));
    const double seca = TemperaturaDeVolumen(carta, v, 0.0);
    if (nombrada || seca < POR_LA_DERECHA * carta.dameRango(Familia::T).maximo) return;
    nombrada = true;
    RotularSobreLineas(pintor, enLinea(v, wNombre), QObject::tr("Volumen específico (m³/kg)"), Giro(a, b));
  });
}

} // namespace

void PintarNombres(QPainter &pintor, const Psicro &carta) {
  const auto siSeVe = [&](Familia familia, void (*rotular)(QPainter &, const Psicro &)) {
    if (!carta.esVisible(familia)) return;
    pintor.setPen(ColorDe(carta, familia));
    rotular(pintor, carta);
  };
  siSeVe(Familia::VE, RotularVolumen);
  siSeVe(Familia::HR, RotularHumedadRelativa);
  siSeVe(Familia::H, RotularEntalpia);
}

} // namespace tesmo
