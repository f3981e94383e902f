// La rejilla y los ejes de la carta solar.

#include "vistas/sol/Pintorsolar.h"

#include <QObject>
#include <QPainter>

#include <array>
#include <utility>

namespace tesmo {

namespace {

constexpr int INCREMENTO = 10;            ///< entre marcas, de acimut y de altura [°]
constexpr int MARCAS_MENORES = 4;         ///< entre dos marcas de acimut
constexpr int PASO_DE_REJILLA = 30;       ///< entre líneas más visibles [°]
constexpr double MARCA = 6.0;             ///< largo de una marca [px]
constexpr double MARCA_MENOR = 3.0;       ///< [px]
constexpr double FILA = 15.0;             ///< alto de una fila de rótulos [px]
constexpr double HOLGURA_DE_ROTULO = 8.0; ///< entre dos rótulos [px]
constexpr double ANCHO_DE_FILA = 100.0;   ///< caja en que se centra un rótulo [px]
const QColor LINEA_FINA(236, 236, 236);
const QColor LINEA(212, 212, 212);
const QColor LINEA_CARDINAL(150, 170, 200);
constexpr int EXTREMO = static_cast<int>(EscalaSolar::ACIMUT_MAXIMO);
constexpr int CUARTO = 90;

/// Los puntos cardinales del eje: el sur en el centro y el oeste a la derecha.
constexpr std::array<std::pair<int, const char *>, 5> CARDINALES{
    {{-EXTREMO, "N"}, {-CUARTO, "E"}, {0, "S"}, {CUARTO, "O"}, {EXTREMO, "N"}}};

void Centrado(QPainter &pintor, double x, double y, const QString &texto) {
  pintor.drawText(QRectF(x - ANCHO_DE_FILA / 2.0, y, ANCHO_DE_FILA, FILA), Qt::AlignCenter, texto);
}

void EjeDeAcimutes(QPainter &pintor, const QRectF &marco, const EscalaSolar &escala) {
  const double suelo = marco.bottom();
  constexpr int MENOR = INCREMENTO / (MARCAS_MENORES + 1);
  for (int a = -EXTREMO; a <= EXTREMO; a += MENOR) {
    const double largo = a % INCREMENTO == 0 ? MARCA : MARCA_MENOR;
    pintor.drawLine(QPointF(escala.X(a), suelo), QPointF(escala.X(a), suelo + largo));
  }
  const double ancho = pintor.fontMetrics().horizontalAdvance(QStringLiteral("-180")) + HOLGURA_DE_ROTULO;
  const int paso = PasoDeRotulos(marco.width(), ancho);
  for (int a = -EXTREMO; a <= EXTREMO; a += paso)
    Centrado(pintor, escala.X(a), suelo + MARCA, QString::number(a));
  const double fila = suelo + MARCA + FILA;
  QFont negrita = pintor.font();
  negrita.setBold(true);
  pintor.save();
  pintor.setFont(negrita);
  pintor.setPen(LINEA_CARDINAL.darker(200));
  for (const auto &[acimut, letra] : CARDINALES)
    Centrado(pintor, escala.X(acimut), fila, QString::fromLatin1(letra));
  pintor.restore();
  pintor.drawText(QRectF(marco.left(), fila + FILA, marco.width(), FILA), Qt::AlignCenter,
                  QObject::tr("Acimut Solar"));
}

void EjeDeAlturas(QPainter &pintor, const QRectF &marco, const EscalaSolar &escala, double alturaMaxima) {
  const double izquierda = marco.left();
  const double anchura = izquierda - MARCA - FILA - 2;
  for (int h = 0; h <= static_cast<int>(alturaMaxima); h += INCREMENTO) {
    pintor.drawLine(QPointF(izquierda - MARCA, escala.Y(h)), QPointF(izquierda, escala.Y(h)));
    pintor.drawText(QRectF(FILA, escala.Y(h) - FILA / 2.0, anchura, FILA), Qt::AlignRight | Qt::AlignVCenter,
                    QString::number(h));
  }
  pintor.save();
  pintor.translate(0, marco.bottom());
  pintor.rotate(-90);
  pintor.drawText(QRectF(0, 2, marco.height(), FILA), Qt::AlignCenter, QObject::tr("Altura Solar"));
  pintor.restore();
}

} // namespace

void PintarRejillaSolar(QPainter &pintor, const QRectF &marco, const EscalaSolar &escala,
                        double alturaMaxima) {
  const auto vertical = [&](double acimut) {
    pintor.drawLine(QPointF(escala.X(acimut), marco.top()), QPointF(escala.X(acimut), marco.bottom()));
  };
  for (const bool visible : {false, true}) {
    pintor.setPen(visible ? LINEA : LINEA_FINA);
    const int paso = visible ? PASO_DE_REJILLA : INCREMENTO;
    for (int a = -EXTREMO; a <= EXTREMO; a += paso) vertical(a);
    for (int h = 0; h <= static_cast<int>(alturaMaxima); h += paso)
      pintor.drawLine(QPointF(marco.left(), escala.Y(h)), QPointF(marco.right(), escala.Y(h)));
  }
  pintor.setPen(QPen(LINEA_CARDINAL, 1, Qt::DashLine));
  for (const auto &[acimut, letra] : CARDINALES) vertical(acimut);
}

void PintarEjesSolares(QPainter &pintor, const QRectF &marco, const EscalaSolar &escala,
                       double alturaMaxima) {
  pintor.setPen(QColor(60, 60, 60));
  pintor.drawRect(marco);
  EjeDeAcimutes(pintor, marco, escala);
  EjeDeAlturas(pintor, marco, escala, alturaMaxima);
}

} // namespace tesmo
