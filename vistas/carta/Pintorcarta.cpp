#include "vistas/carta/Pintorcarta.h"

#include "imagen/Lienzopintor.h"
#include "psicro/Marcacarta.h"
#include "psicro/Psicrometrico.h"
#include "vistas/carta/Lienzorecortado.h"
#include "vistas/comun/Guardardibujo.h"
#include "vistas/comun/Textoqt.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>
#include <memory>

namespace tesmo {

namespace {

/// Sitio de las escalas y los rótulos alrededor de la carta [px].
constexpr QMargins MARGENES(14, 10, 52, 40);
constexpr int LETRA = 11;          ///< altura de los textos [px]
constexpr int FILAS_LEYENDA = 12;  ///< por columna
constexpr int CASILLA_LEYENDA = 9; ///< lado de la muestra de color [px]
constexpr int RADIO_PUNTO = 4;     ///< [px]
constexpr int ADORNO = 6;          ///< separación de rótulos y leyenda [px]

std::unique_ptr<Lienzo> CrearLienzo(QPainter &pintor, const QRect &area) {
  if (RecortaElDestino(pintor)) return std::make_unique<LienzoPintor>(pintor);
  return std::make_unique<LienzoRecortado>(pintor, area);
}

void PintarMarcas(Lienzo &lienzo, const ContenidoCarta &contenido) {
  for (const MarcaNube &marca : contenido.marcas)
    MarcarPunto(lienzo, contenido.carta, marca.t, marca.w, ColorDeMarca(marca, contenido.coloreo));
}

/// Arriba a la izquierda, donde la carta no tiene estados posibles.
void PintarLeyenda(QPainter &pintor, const ContenidoCarta &contenido) {
  const std::vector<EntradaNube> leyenda = LeyendaDeNube(contenido.coloreo);
  if (contenido.marcas.empty() || leyenda.empty()) return;
  const int paso = pintor.fontMetrics().height() + 1;
  int anchura = 0;
  for (const EntradaNube &entrada : leyenda)
    anchura = std::max(anchura, pintor.fontMetrics().horizontalAdvance(entrada.texto));
  anchura += CASILLA_LEYENDA + 3 * ADORNO;
  for (std::size_t i = 0; i < leyenda.size(); ++i) {
    const int x = ADORNO + anchura * (static_cast<int>(i) / FILAS_LEYENDA);
    const int y = ADORNO + paso * (static_cast<int>(i) % FILAS_LEYENDA);
    pintor.fillRect(x, y + (paso - CASILLA_LEYENDA) / 2, CASILLA_LEYENDA, CASILLA_LEYENDA,
                    Color(leyenda[i].color));
    pintor.setPen(Qt::black);
    pintor.drawText(x + CASILLA_LEYENDA + ADORNO, y + pintor.fontMetrics().ascent(), leyenda[i].texto);
  }
}

QPointF Sitio(const Psicro &carta, const PuntoCarta &punto) { return {carta.x(punto.t), carta.y(punto.w)}; }

void PintarProceso(QPainter &pintor, const QPointF &desde, const QPointF &hasta) {
  constexpr double PUNTA = 9.0; // [px]
  constexpr double APERTURA = 25.0;
  pintor.setPen(QPen(Qt::black, 2));
  pintor.drawLine(desde, hasta);
  QLineF vuelta(hasta, desde);
  if (vuelta.length() < PUNTA) return;
  vuelta.setLength(PUNTA);
  for (const double giro : {-APERTURA, APERTURA}) {
    QLineF lado = vuelta;
    lado.setAngle(vuelta.angle() + giro);
    pintor.drawLine(lado);
  }
}

void PintarPuntos(QPainter &pintor, const ContenidoCarta &contenido) {
  const auto &puntos = contenido.puntos;
  pintor.save();
  pintor.setRenderHint(QPainter::Antialiasing);
  if (contenido.proceso) {
    const auto [desde, hasta] = *contenido.proceso;
    PintarProceso(pintor, Sitio(contenido.carta, puntos.at(desde)), Sitio(contenido.carta, puntos.at(hasta)));
  }
  for (const PuntoCarta &punto : puntos) {
    const QPointF sitio = Sitio(contenido.carta, punto);
    pintor.setPen(QPen(Qt::black, 1));
    pintor.setBrush(Qt::yellow);
    pintor.drawEllipse(sitio, RADIO_PUNTO, RADIO_PUNTO);
    const QRectF caja(sitio + QPointF(ADORNO, -LETRA - ADORNO),
                      pintor.fontMetrics().boundingRect(punto.nombre).size() + QSizeF(4, 2));
    pintor.fillRect(caja, QColor(255, 255, 255, 210));
    pintor.drawText(caja, Qt::AlignCenter, punto.nombre);
  }
  pintor.restore();
}

} // namespace

QRect RectanguloDeCarta(const QSize &total) {
  const QRect dentro = QRect(QPoint(), total).marginsRemoved(MARGENES);
  return {dentro.topLeft(), dentro.size().expandedTo(QSize(1, 1))};
}

void PintarCarta(QPainter &pintor, const QSize &total, ContenidoCarta &contenido) {
  const QRect dentro = RectanguloDeCarta(total);
  const QRect area(QPoint(), dentro.size());
  QFont letra = pintor.font();
  letra.setPixelSize(LETRA);
  pintor.setFont(letra);
  pintor.fillRect(QRect(QPoint(), total), Qt::white);
  pintor.translate(dentro.topLeft());
  pintor.setClipRect(area);
  const std::unique_ptr<Lienzo> lienzo = CrearLienzo(pintor, area);
  contenido.carta.dibujar(*lienzo, area.width(), area.height());
  PintarNombres(pintor, contenido.carta);
  PintarMarcas(*CrearLienzo(pintor, area), contenido); // los nombres han cambiado la pluma del pintor
  PintarLeyenda(pintor, contenido);
  PintarPuntos(pintor, contenido);
  pintor.setClipping(false);
  PintarEscalas(pintor, contenido.carta);
}

} // namespace tesmo
