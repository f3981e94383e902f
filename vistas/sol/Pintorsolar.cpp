#include "vistas/sol/Pintorsolar.h"

#include "vistas/carta/Nubecarta.h"
#include "vistas/comun/Textoqt.h"
#include "vistas/grafico/Recorte.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tesmo {

namespace {

/// Sitio del título y de los rótulos alrededor del marco [px].
constexpr QMargins MARGENES(50, 30, 22, 58);
constexpr int LETRA = 11;           ///< altura de los textos [px]
constexpr int LETRA_TITULO = 14;    ///< [px]
constexpr double ANCHO_CURVA = 2.0; ///< [px]
constexpr double PASO_MINIMO = 1.5; ///< entre dos puntos que se unen [px]
constexpr double RADIO_HORA = 2.5;  ///< [px]
constexpr double RADIO_MOMENTO = 6.0;
constexpr double ADORNO = 4.0;              ///< separación de un rótulo y su punto [px]
constexpr QMarginsF AIRE_AVISO(8, 8, 8, 8); ///< alrededor del aviso [px]
const QColor COLOR_DIA(208, 48, 32);
const QColor COLOR_HORAS(110, 110, 110);
const QColor COLOR_HORIZONTE(96, 72, 48);
const QColor COLOR_ELEGIDO(230, 0, 110);
const QColor COLOR_MOMENTO(255, 196, 0);

void PintarTramo(QPainter &pintor, const EscalaSolar &escala, const CurvaSolar &tramo) {
  QPolygonF linea;
  for (std::size_t i = 0; i < tramo.size(); ++i) {
    const QPointF sitio = escala.Sitio(tramo[i].acimut, tramo[i].altura);
    const bool extremo = linea.isEmpty() || i + 1 == tramo.size();
    if (extremo || (sitio - linea.last()).manhattanLength() >= PASO_MINIMO) linea << sitio;
  }
  if (linea.size() > 1) pintor.drawPolyline(linea);
}

void PintarCurva(QPainter &pintor, const EscalaSolar &escala, const CurvaSolar &curva, const QPen &pluma) {
  pintor.setPen(pluma);
  for (const CurvaSolar &tramo : TramosDeCurva(curva)) PintarTramo(pintor, escala, tramo);
}

/// El punto más alto de una serie, que es donde se rotula; nulo si no hay ninguno de día.
const PuntoSolar *MasAlto(const CurvaSolar &curva) {
  const auto alto =
      std::max_element(curva.begin(), curva.end(),
                       [](const PuntoSolar &a, const PuntoSolar &b) { return a.altura < b.altura; });
  return alto == curva.end() || EsDeNoche(*alto) ? nullptr : &*alto;
}

void Rotular(QPainter &pintor, const QPointF &sitio, Qt::Alignment lado, const QString &texto) {
  QRectF caja(QPointF(), pintor.fontMetrics().boundingRect(texto).size() + QSizeF(2, 0));
  caja.moveCenter(sitio);
  if (lado.testFlag(Qt::AlignLeft)) caja.moveRight(sitio.x() - ADORNO);
  if (lado.testFlag(Qt::AlignRight)) caja.moveLeft(sitio.x() + ADORNO);
  if (lado.testFlag(Qt::AlignTop)) caja.moveBottom(sitio.y() - ADORNO);
  pintor.fillRect(caja, QColor(255, 255, 255, 190));
  pintor.drawText(caja, Qt::AlignCenter, texto);
}

void PintarHoras(QPainter &pintor, const EscalaSolar &escala, const ContenidoSolar &contenido) {
  for (const CurvaSolar &hora : contenido.horas) {
    if (contenido.dibujo == DibujoSolar::Meses)
      PintarCurva(pintor, escala, hora, QPen(COLOR_HORAS, 1, Qt::DotLine));
    pintor.setPen(Qt::NoPen);
    pintor.setBrush(COLOR_HORAS);
    for (const PuntoSolar &punto : hora) {
      if (!EsDeNoche(punto))
        pintor.drawEllipse(escala.Sitio(punto.acimut, punto.altura), RADIO_HORA, RADIO_HORA);
    }
    pintor.setBrush(Qt::NoBrush);
  }
}

void RotularHoras(QPainter &pintor, const EscalaSolar &escala, const ContenidoSolar &contenido) {
  pintor.setPen(COLOR_HORAS.darker());
  for (std::size_t h = 0; h < contenido.horas.size(); ++h) {
    const PuntoSolar *punto = MasAlto(contenido.horas[h]);
    if (punto == nullptr) continue;
    Rotular(pintor, escala.Sitio(punto->acimut, punto->altura), Qt::AlignTop, QStringLiteral("%1 h").arg(h));
  }
}

/// De enero a junio a la izquierda de la cumbre y los demás a la derecha: las curvas van casi a pares.
void RotularMeses(QPainter &pintor, const EscalaSolar &escala, const ContenidoSolar &contenido,
                  const std::vector<EntradaNube> &colores) {
  for (std::size_t m = 0; m < contenido.meses.size(); ++m) {
    const PuntoSolar *punto = MasAlto(contenido.meses[m]);
    if (punto == nullptr) continue;
    pintor.setPen(Color(colores[m].color).darker(130));
    Rotular(pintor, escala.Sitio(punto->acimut, punto->altura),
            m < MESES_DEL_ANIO / 2 ? Qt::AlignLeft : Qt::AlignRight,
            Texto(ConMayuscula(MesCorto(static_cast<int>(m) + 1))));
  }
}

void PintarCaminos(QPainter &pintor, const EscalaSolar &escala, const ContenidoSolar &contenido) {
  if (contenido.dibujo == DibujoSolar::Ninguno) return;
  if (contenido.dibujo == DibujoSolar::Dia) {
    PintarCurva(pintor, escala, contenido.dia, QPen(COLOR_DIA, ANCHO_CURVA));
    PintarHoras(pintor, escala, contenido);
  } else {
    const std::vector<EntradaNube> colores = LeyendaDeNube(ColoreoNube::Mes);
    PintarHoras(pintor, escala, contenido);
    for (std::size_t m = 0; m < contenido.meses.size(); ++m)
      PintarCurva(pintor, escala, contenido.meses[m], QPen(Color(colores[m].color), ANCHO_CURVA));
    RotularMeses(pintor, escala, contenido, colores);
  }
  RotularHoras(pintor, escala, contenido);
}

/// El contorno de @p area acaba con los dos puntos que lo cierran por abajo. Se recorta aquí porque el
/// formato SVG no recorta, y un perfil leído puede salirse del marco.
void PintarHorizonte(QPainter &pintor, const QRectF &marco, const EscalaSolar &escala,
                     const ContenidoSolar &contenido) {
  QPolygonF area;
  for (const PuntoHorizonte &punto : AreaDeHorizonte(contenido.horizonte))
    area << escala.Sitio(punto.acimut, punto.altura);
  QColor relleno = COLOR_HORIZONTE;
  relleno.setAlpha(110);
  pintor.setPen(Qt::NoPen);
  pintor.setBrush(relleno);
  pintor.drawPolygon(RecortarPoligono(area, marco));
  pintor.setBrush(Qt::NoBrush);
  pintor.setPen(QPen(COLOR_HORIZONTE, ANCHO_CURVA));
  if (area.isEmpty()) return;
  area.resize(area.size() - 2);
  for (const QVector<QPointF> &tramo : RecortarPolilinea(area, marco)) pintor.drawPolyline(tramo);
}

/// Encima de todo, y sin recortar: un punto en el borde del eje también ha de poder verse entero.
void PintarPuntosDeHorizonte(QPainter &pintor, const EscalaSolar &escala, const ContenidoSolar &contenido) {
  for (std::size_t i = 0; i < contenido.horizonte.size(); ++i) {
    const PuntoHorizonte &punto = contenido.horizonte[i];
    if (!std::isfinite(punto.acimut) || !std::isfinite(punto.altura)) continue;
    if (std::fabs(punto.acimut) > EscalaSolar::ACIMUT_MAXIMO || punto.altura < 0.0F ||
        punto.altura > EdicionHorizonte::ALTURA_MAXIMA)
      continue;
    const bool elegido = static_cast<int>(i) == contenido.elegido;
    const double medio = elegido ? MEDIA_MARCA : MEDIA_MARCA - 2.0;
    QRectF marca(0, 0, 2 * medio, 2 * medio);
    marca.moveCenter(escala.Sitio(punto.acimut, punto.altura));
    pintor.setPen(QPen(Qt::white, 1));
    pintor.setBrush(elegido ? COLOR_ELEGIDO : COLOR_HORIZONTE);
    pintor.drawRect(marca);
  }
  pintor.setBrush(Qt::NoBrush);
}

void PintarMomento(QPainter &pintor, const EscalaSolar &escala, const ContenidoSolar &contenido) {
  if (!contenido.momento) return;
  pintor.setPen(QPen(Qt::black, 1));
  pintor.setBrush(COLOR_MOMENTO);
  pintor.drawEllipse(escala.Sitio(contenido.momento->acimut, contenido.momento->altura), RADIO_MOMENTO,
                     RADIO_MOMENTO);
  pintor.setBrush(Qt::NoBrush);
}

void PintarTextos(QPainter &pintor, const QSize &total, const QRectF &marco, const QString &titulo,
                  const QString &aviso) {
  QFont letra = pintor.font();
  letra.setPixelSize(LETRA_TITULO);
  pintor.setFont(letra);
  const QRectF sitio =
      pintor.boundingRect(marco.marginsRemoved(AIRE_AVISO), Qt::AlignCenter | Qt::TextWordWrap, aviso);
  pintor.setPen(QColor(90, 90, 90));
  if (!aviso.isEmpty()) pintor.fillRect(sitio.marginsAdded(AIRE_AVISO), Qt::white);
  pintor.drawText(sitio, Qt::AlignCenter | Qt::TextWordWrap, aviso);
  letra.setBold(true);
  pintor.setFont(letra);
  pintor.setPen(Qt::black);
  pintor.drawText(QRectF(0, 0, total.width(), marco.top()), Qt::AlignCenter, titulo);
}

} // namespace

QRectF MarcoSolar(const QSize &total) {
  const QRectF dentro = QRectF(QPointF(), total).marginsRemoved(MARGENES);
  return {dentro.topLeft(), dentro.size().expandedTo(QSizeF(1, 1))};
}

void PintarSolar(QPainter &pintor, const QSize &total, const ContenidoSolar &contenido, double alturaMaxima,
                 const QString &aviso) {
  const QRectF marco = MarcoSolar(total);
  const EscalaSolar escala(marco, alturaMaxima);
  QFont letra = pintor.font();
  letra.setPixelSize(LETRA);
  pintor.setFont(letra);
  pintor.fillRect(QRectF(QPointF(), total), Qt::white);
  PintarRejillaSolar(pintor, marco, escala, alturaMaxima);
  pintor.setRenderHint(QPainter::Antialiasing);
  pintor.setClipRect(marco);
  PintarHorizonte(pintor, marco, escala, contenido);
  PintarCaminos(pintor, escala, contenido);
  PintarMomento(pintor, escala, contenido);
  pintor.setClipping(false);
  PintarPuntosDeHorizonte(pintor, escala, contenido);
  pintor.setRenderHint(QPainter::Antialiasing, false);
  PintarEjesSolares(pintor, marco, escala, alturaMaxima);
  PintarTextos(pintor, total, marco, Texto(contenido.titulo), aviso);
}

} // namespace tesmo
