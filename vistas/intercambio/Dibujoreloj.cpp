#include "vistas/intercambio/Dibujoreloj.h"

#include "vistas/intercambio/Cajacurso.h"

#include <QFontMetricsF>
#include <QLocale>
#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace tesmo {

namespace {

constexpr double SEPARACION = 16.0; ///< entre los dos lados [px]
constexpr double PUNTO = 3.0;       ///< radio de un dato [px]
constexpr int LETRAS_DE_ANCHO = 28; ///< de un lado
constexpr int LINEAS_DE_ALTO = 12;
constexpr QColor COLOR_SOL(0xE0, 0x8A, 0x00);
constexpr QColor COLOR_HAZ(0x1F, 0x5F, 0xA8);

/// El desfase no se parte entre dos renglones.
QString DesfaseJunto(QString reloj) {
  const qsizetype desfase = reloj.lastIndexOf(QLatin1String("etiqueta"));
  return desfase < 0 ? reloj
                     : reloj.left(desfase) + reloj.mid(desfase).replace(QLatin1Char(' '), QChar(QChar::Nbsp));
}

void PintarEjes(QPainter &pintor, const CajaCurso &caja, double linea) {
  pintor.setPen(QPen(pintor.pen().color(), 0));
  pintor.drawLine(QPointF(caja.x, caja.Y(0.0)), QPointF(caja.x + caja.ancho, caja.Y(0.0)));
  for (double hora = caja.primeraHora; hora <= caja.ultimaHora; hora += 2.0) {
    const QRectF sitio(caja.X(hora) - linea, caja.Y(0.0) + 2.0, 2.0 * linea, linea);
    pintor.drawLine(QPointF(caja.X(hora), caja.Y(0.0)), QPointF(caja.X(hora), caja.Y(0.0) - 3.0));
    pintor.drawText(sitio, Qt::AlignHCenter | Qt::AlignTop, QString::number(static_cast<int>(hora)));
  }
}

void PintarCurso(QPainter &pintor, const CajaCurso &caja, const CursoReloj &curso) {
  QPainterPath camino;
  for (std::size_t i = 0; i < curso.sol.size(); ++i) {
    const QPointF punto(caja.X(curso.sol[i].hora), caja.Y(curso.sol[i].valor));
    if (i == 0)
      camino.moveTo(punto);
    else
      camino.lineTo(punto);
  }
  pintor.setPen(QPen(COLOR_SOL, 2.0));
  pintor.setBrush(Qt::NoBrush);
  pintor.drawPath(camino);
  pintor.setPen(Qt::NoPen);
  pintor.setBrush(COLOR_HAZ);
  for (const PuntoCurso &punto : curso.haz) {
    if (punto.valor <= 1.05 && punto.hora >= caja.primeraHora && punto.hora <= caja.ultimaHora)
      pintor.drawEllipse(QPointF(caja.X(punto.hora), caja.Y(punto.valor)), PUNTO, PUNTO);
  }
}

} // namespace

DibujoReloj::DibujoReloj(QWidget *padre) : QWidget(padre) {
  setObjectName(QStringLiteral("dibReloj"));
  declarado_.titulo = tr("Declarado");
  elegido_.titulo = tr("Elegido");
  setToolTip(tr("Coseno del cenit que dicen los datos (puntos) y el del sol (curva), a la hora solar que da "
                "cada reloj. Con el bueno, los puntos caen sobre la curva."));
}

QSize DibujoReloj::sizeHint() const {
  const QFontMetrics letra = fontMetrics();
  return {2 * LETRAS_DE_ANCHO * letra.averageCharWidth(), LINEAS_DE_ALTO * letra.height()};
}
QSize DibujoReloj::minimumSizeHint() const { return sizeHint() * 3 / 4; }

void DibujoReloj::Poner(const QString &dia, const CursoReloj &declarado, const QString &relojDeclarado,
                        const CursoReloj &elegido, const QString &relojElegido) {
  dia_ = dia;
  motivo_.clear();
  declarado_.curso = declarado;
  declarado_.reloj = relojDeclarado;
  elegido_.curso = elegido;
  elegido_.reloj = relojElegido;
  update();
}

void DibujoReloj::Vaciar(const QString &motivo) {
  motivo_ = motivo;
  declarado_.curso = elegido_.curso = {};
  update();
}

void DibujoReloj::PintarLado(QPainter &pintor, const QRectF &caja, const Lado &lado) const {
  const QFontMetricsF letra(font());
  const double linea = letra.height();
  const auto renglon = [&](double arriba, const QString &texto) {
    pintor.drawText(QRectF(caja.left(), arriba, caja.width(), linea), Qt::AlignLeft | Qt::AlignVCenter,
                    letra.elidedText(texto, Qt::ElideRight, caja.width()));
  };
  pintor.setPen(palette().color(QPalette::WindowText));
  const QString reparto = std::isnan(lado.curso.desviacion)
                              ? QString()
                              : tr(", se aparta %1").arg(locale().toString(lado.curso.desviacion, 'f', 3));
  renglon(caja.top(), lado.titulo + reparto);
  pintor.drawText(QRectF(caja.left(), caja.top() + linea, caja.width(), 2.0 * linea),
                  Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, DesfaseJunto(lado.reloj));
  const std::vector<PuntoCurso> &sol = lado.curso.sol;
  const HorasCurso horas = sol.empty() ? HorasCurso{} : HorasDelCurso(sol.front().hora, sol.back().hora);
  const CajaCurso dibujo{caja.left() + linea,
                         caja.top() + 3.4 * linea,
                         caja.width() - 2.0 * linea,
                         caja.height() - 5.8 * linea,
                         horas.primera,
                         horas.ultima};
  PintarEjes(pintor, dibujo, linea);
  renglon(caja.bottom() - 1.1 * linea, tr("hora solar, %1").arg(dia_));
  PintarCurso(pintor, dibujo, lado.curso);
}

void DibujoReloj::paintEvent(QPaintEvent *) {
  QPainter pintor(this);
  pintor.setRenderHint(QPainter::Antialiasing);
  if (!motivo_.isEmpty()) {
    pintor.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, motivo_);
    return;
  }
  const double ancho = (width() - SEPARACION) / 2.0;
  PintarLado(pintor, QRectF(0.0, 0.0, ancho, height()), declarado_);
  PintarLado(pintor, QRectF(ancho + SEPARACION, 0.0, ancho, height()), elegido_);
}

} // namespace tesmo
