#include "core/Formato.h"
#include "psicro/Corrienteaire.h"
#include "psicro/Psicrometrico.h"
#include "vistas/Pintorcarta.h"
#include "vistas/Textoqt.h"

#include <QObject>
#include <QPainter>

#include <cmath>

namespace tesmo {

namespace {

constexpr int RAYA = 4;                ///< de las marcas de las escalas [px]
constexpr double G_POR_KG = 1000.0;    ///< humedades en g/kg
constexpr double J_POR_KJ = 1000.0;    ///< entalpías en kJ/kg
constexpr int HUMEDADES_POR_CIFRA = 5; ///< líneas de humedad entre cifra y cifra de la escala
constexpr int VOLUMENES_POR_CIFRA = 2; ///< líneas de volumen entre rótulo y rótulo
constexpr int MAXIMO_ROTULOS = 200;    ///< de una familia: más no se leerían

QString Cifra(double valor, std::string_view patron) { return Texto(FormatearPatron(valor, patron)); }

QColor ColorDe(const Psicro &carta, Familia familia) { return Color(carta.dameColor(familia)); }

/// Texto centrado en @p centro y girado @p grados en el sentido de las agujas, sobre un velo blanco.
void Rotular(QPainter &pintor, const QPointF &centro, const QString &texto, double grados = 0.0,
             bool velo = true) {
  pintor.save();
  pintor.translate(centro);
  pintor.rotate(grados);
  QRectF caja(QPointF(), QSizeF(pintor.fontMetrics().horizontalAdvance(texto) + 2.0,
                                pintor.fontMetrics().height() - 2.0));
  caja.moveCenter(QPointF());
  if (velo) pintor.fillRect(caja, QColor(255, 255, 255, 200));
  pintor.drawText(caja, Qt::AlignCenter, texto);
  pintor.restore();
}

double Giro(const QPointF &a, const QPointF &b) {
  return std::atan2(b.y() - a.y(), b.x() - a.x()) * 180.0 / std::acos(-1.0);
}

/// Humedad absoluta [kg/kg] del aire a @p t [°C] y @p hr [%] a la presión de la carta.
double Humedad(const Psicro &carta, double t, double hr) {
  CorrienteAire aire;
  aire.pont_hr(static_cast<float>(t), static_cast<float>(hr), carta.damePresion());
  return aire.humedadAbsoluta();
}

QPointF Punto(const Psicro &carta, double t, double w) { return {carta.x(t), carta.y(w)}; }

/// Recorre los valores de una familia, de @p cada en @p cada.
template <typename Accion>
void ParaCadaLinea(const Rango &rango, int cada, Accion &&accion) {
  if (!(rango.paso > 0.0F)) return;
  for (int i = 0; i < MAXIMO_ROTULOS; ++i) {
    const double valor = rango.minimo + static_cast<double>(rango.paso) * cada * i;
    if (valor > rango.maximo + rango.paso / 2.0) return;
    accion(valor);
  }
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
    const QPointF sitio = Punto(carta, t, Humedad(carta, t, hr));
    Rotular(pintor, sitio, Cifra(hr, "#0") + QStringLiteral(" %"));
    if (hr != CON_NOMBRE) return;
    const double medio = t * 0.85;
    const QPointF a = Punto(carta, medio - 1.0, Humedad(carta, medio - 1.0, hr));
    const QPointF b = Punto(carta, medio + 1.0, Humedad(carta, medio + 1.0, hr));
    Rotular(pintor, (a + b) / 2.0, QObject::tr("Humedad relativa"), Giro(a, b));
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
    const QPointF sitio = Punto(carta, t, aire.humedadAbsoluta()) + FUERA;
    if (t > 1.0 && sitio.y() > 0.0) Rotular(pintor, sitio, Cifra(h / J_POR_KJ, "#0"));
  });
  constexpr double A = 0.40; // fracciones de la temperatura máxima entre las que va el nombre
  constexpr double B = 0.46;
  const QPointF a = Punto(carta, tMax * A, Humedad(carta, tMax * A, 100.0));
  const QPointF b = Punto(carta, tMax * B, Humedad(carta, tMax * B, 100.0));
  constexpr double APARTE = 36.0; // [px]
  QLineF normal = QLineF(a, b).normalVector();
  normal.setLength(APARTE);
  Rotular(pintor, (a + b) / 2.0 + (normal.p2() - normal.p1()), QObject::tr("Entalpía (kJ/kg)"), Giro(a, b));
}

/// A lo largo de la línea, cerca de su extremo seco; una lleva además el nombre.
void RotularVolumen(QPainter &pintor, const Psicro &carta) {
  constexpr double R_AIRE = 287.0; // [J/(kg·K)], la de las líneas de la carta
  constexpr double T0 = 273.15;    // [K]
  constexpr double EPSILON = 0.62198;
  constexpr double SECO = 0.06; // fracción del máximo de humedad a la que va el rótulo
  constexpr double CON_NOMBRE = 0.88;
  const double wSeco = SECO * carta.dameRango(Familia::W).maximo;
  const auto enLinea = [&](double v, double w) {
    // v = (t + 273,15)·Ra·(1 + w/ε)/p a lo largo de la línea.
    return Punto(carta, v * carta.damePresion() / (R_AIRE * (1.0 + w / EPSILON)) - T0, w);
  };
  ParaCadaLinea(carta.dameRango(Familia::VE), VOLUMENES_POR_CIFRA, [&](double v) {
    const QPointF a = enLinea(v, 1.5 * wSeco);
    const QPointF b = enLinea(v, 0.5 * wSeco);
    Rotular(pintor, (a + b) / 2.0, Cifra(v, "0.00"), Giro(a, b));
    if (std::abs(v - CON_NOMBRE) > 1e-3) return;
    const double arriba = 4.0 * wSeco;
    Rotular(pintor, enLinea(v, arriba), QObject::tr("Volumen específico (m³/kg)"), Giro(a, b));
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

void PintarEscalas(QPainter &pintor, const Psicro &carta) {
  const int ancho = static_cast<int>(carta.dameAncho());
  const int alto = static_cast<int>(carta.dameAlto());
  const int letra = pintor.fontMetrics().height();
  pintor.setPen(Qt::black);
  pintor.drawRect(-1, -1, ancho + 1, alto + 1);
  ParaCadaLinea(carta.dameRango(Familia::T), 1, [&](double t) {
    const int x = static_cast<int>(carta.x(t));
    pintor.drawLine(x, alto, x, alto + RAYA);
    Rotular(pintor, QPointF(x, alto + RAYA + letra / 2.0), Cifra(t, "#0.##"), 0.0, false);
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
