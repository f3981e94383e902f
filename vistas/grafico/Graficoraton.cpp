#include "vistas/comun/Guardardibujo.h"
#include "vistas/grafico/Encuadre.h"
#include "vistas/grafico/Graficointerno.h"
#include "vistas/grafico/Lectura.h"

#include <QAction>
#include <QKeyEvent>
#include <QMenu>

#include <cmath>
#include <limits>

namespace tesmo {

namespace {

/// Lo más que se puede ampliar, en unidades del eje horizontal.
constexpr double TRAMO_MINIMO = 3.0;
/// Parte del tramo que mueve una flecha, y lo que amplía una tecla o un paso de rueda.
constexpr double PASO_DE_FLECHA = 0.1;
constexpr double FACTOR_DE_AMPLIACION = 0.8;

} // namespace

void Grafico::ConectarRaton() {
  QCustomPlot &trazo = *interno_->trazo;
  trazo.setInteractions(QCP::iRangeDrag | QCP::iRangeZoom);
  trazo.axisRect()->setRangeDragAxes({trazo.xAxis}, {trazo.yAxis, trazo.yAxis2});
  trazo.axisRect()->setRangeZoomFactor(FACTOR_DE_AMPLIACION);
  trazo.setContextMenuPolicy(Qt::CustomContextMenu);
  trazo.installEventFilter(this);
  connect(&trazo, &QWidget::customContextMenuRequested, this, &Grafico::EnsenarMenu);
  connect(&trazo, &QCustomPlot::mouseDoubleClick, this, &Grafico::VerTodo);
  connect(&trazo, &QCustomPlot::mouseMove, this,
          [this](const QMouseEvent *suceso) { MoverCursor(suceso->position().toPoint()); });
  // Lo que hay bajo un ratón quieto cambia con la rueda, las teclas y las series.
  connect(&trazo, &QCustomPlot::afterReplot, this, &Grafico::LeerBajoElPuntero);
  connect(&trazo, &QCustomPlot::mouseWheel, this, [this](const QWheelEvent *suceso) {
    interno_->puntero = suceso->position().toPoint();
    ElegirEjesDeRueda(suceso->position(), suceso->modifiers().testFlag(Qt::ControlModifier));
  });
  connect(trazo.xAxis, qOverload<const QCPRange &>(&QCPAxis::rangeChanged), this, &Grafico::LimitarTramo);
}

void Grafico::LimitarTramo() {
  if (!interno_->escala) return;
  auto [desde, hasta] = Tramo();
  AjustarTramo(desde, hasta, interno_->escala->Primero() - AIRE_X, interno_->escala->Ultimo() + AIRE_X,
               TRAMO_MINIMO);
  const QSignalBlocker sinAvisos(interno_->trazo->xAxis);
  interno_->trazo->xAxis->setRange(desde, hasta);
}

/// Sobre los datos la rueda amplía el tiempo; con Control, o sobre un eje de valores, amplía los valores.
void Grafico::ElegirEjesDeRueda(const QPointF &donde, bool conControl) {
  QCustomPlot &trazo = *interno_->trazo;
  const QRect marco = trazo.axisRect()->rect();
  QList<QCPAxis *> verticales;
  if (conControl || donde.x() < marco.left()) verticales.append(trazo.yAxis);
  if (conControl || (donde.x() > marco.right() && trazo.yAxis2->visible())) verticales.append(trazo.yAxis2);
  QList<QCPAxis *> horizontales;
  if (verticales.isEmpty()) horizontales.append(trazo.xAxis);
  trazo.axisRect()->setRangeZoomAxes(horizontales, verticales);
}

void Grafico::LeerBajoElPuntero() {
  if (interno_->puntero) {
    MoverCursor(*interno_->puntero);
  } else {
    interno_->capa->Ocultar();
  }
}

void Grafico::MoverCursor(const QPoint &donde) {
  interno_->puntero = donde;
  const QCustomPlot &trazo = *interno_->trazo;
  const QRect marco = trazo.axisRect()->rect();
  if (!interno_->escala || !marco.contains(donde) || Leyenda().isEmpty()) {
    interno_->capa->Ocultar();
    return;
  }
  const auto [desde, hasta] = Tramo();
  const Encuadre encuadre{desde, hasta, static_cast<double>(marco.left()),
                          static_cast<double>(marco.right() + 1)};
  const double x = interno_->escala->Ajustar(encuadre.AValor(donde.x()));
  std::vector<LineaCursor> lineas;
  for (const auto &[serie, curva] : interno_->series) {
    const auto punto = curva->data()->findBegin(x, false);
    if (!serie.visible || punto == curva->data()->constEnd()) continue;
    const std::string linea =
        LineaDeLectura(serie.rotulo.toStdString(), punto->value, serie.patron.toStdString());
    const double y = std::isfinite(punto->value) ? interno_->Eje(serie.lado)->coordToPixel(punto->value)
                                                 : std::numeric_limits<double>::quiet_NaN();
    lineas.push_back({QString::fromStdString(linea), serie.color, y});
  }
  interno_->capa->Ensenar(marco, QPointF(encuadre.APixel(x), donde.y()),
                          QString::fromStdString(interno_->escala->Nombrar(x)), std::move(lineas));
}

QString Grafico::Lectura() const { return interno_->capa->Texto(); }

bool Grafico::eventFilter(QObject *objeto, QEvent *suceso) {
  if (objeto == interno_->trazo && suceso->type() == QEvent::Leave) {
    interno_->puntero.reset();
    interno_->capa->Ocultar();
  }
  return QWidget::eventFilter(objeto, suceso);
}

void Grafico::resizeEvent(QResizeEvent *suceso) {
  QWidget::resizeEvent(suceso);
  interno_->capa->setGeometry(rect());
  interno_->capa->raise();
  RehacerLeyenda();
  interno_->trazo->replot(QCustomPlot::rpQueuedReplot);
  interno_->capa->PonAviso(rect(), Leyenda().isEmpty() ? interno_->aviso : QString());
}

void Grafico::keyPressEvent(QKeyEvent *suceso) {
  const auto [desde, hasta] = Tramo();
  const double paso = PASO_DE_FLECHA * (hasta - desde);
  const double centro = 0.5 * (desde + hasta);
  const auto ampliar = [&](double factor) {
    const double medio = 0.5 * (hasta - desde) * factor;
    PonTramo(centro - medio, centro + medio);
  };
  switch (suceso->key()) {
  case Qt::Key_Left:
    PonTramo(desde - paso, hasta - paso);
    break;
  case Qt::Key_Right:
    PonTramo(desde + paso, hasta + paso);
    break;
  case Qt::Key_Plus:
    ampliar(FACTOR_DE_AMPLIACION);
    break;
  case Qt::Key_Minus:
    ampliar(1.0 / FACTOR_DE_AMPLIACION);
    break;
  case Qt::Key_Home:
    VerTodo();
    break;
  default:
    QWidget::keyPressEvent(suceso);
  }
}

int Grafico::SerieEnLeyenda(const QPoint &donde) const {
  const QCPLegend &leyenda = *interno_->trazo->legend;
  for (int i = 0; i < leyenda.itemCount(); ++i) {
    const auto *entrada = dynamic_cast<EntradaLeyenda *>(leyenda.item(i));
    if (entrada && entrada->outerRect().contains(donde)) return entrada->Indice();
  }
  return -1;
}

void Grafico::EnsenarMenu(const QPoint &donde) {
  auto *menu = new QMenu(this);
  menu->setObjectName(QStringLiteral("menuGrafico"));
  menu->setAttribute(Qt::WA_DeleteOnClose);
  const int indice = SerieEnLeyenda(donde);
  if (indice < 0) AnadirOrdenes(*menu);
  emit menuPreparado(menu, indice);
  menu->popup(interno_->trazo->mapToGlobal(donde));
}

void Grafico::AnadirOrdenes(QMenu &menu) {
  const auto anadir = [&menu](const QString &nombre, const QString &texto) {
    QAction *accion = menu.addAction(texto);
    accion->setObjectName(nombre);
    return accion;
  };
  connect(anadir(QStringLiteral("acVerTodo"), tr("&Ver todo")), &QAction::triggered, this, &Grafico::VerTodo);
  menu.addSeparator();
  const auto guardar = [&](const QString &extension, const QString &texto) {
    QAction *accion = anadir(QStringLiteral("acGuardar") + extension.toUpper(), texto);
    connect(accion, &QAction::triggered, this, [this, extension] { PedirGuardarImagen(extension); });
  };
  guardar(QStringLiteral("png"), tr("Guardar imagen como &PNG…"));
  guardar(QStringLiteral("svg"), tr("Guardar imagen como &SVG…"));
  guardar(QStringLiteral("pdf"), tr("Guardar imagen como PD&F…"));
  connect(anadir(QStringLiteral("acCopiarImagen"), tr("&Copiar imagen")), &QAction::triggered, this,
          &Grafico::CopiarImagen);
  QAction *datos = anadir(QStringLiteral("acCopiarDatos"), tr("Copiar &datos a la vista"));
  datos->setEnabled(!Leyenda().isEmpty());
  connect(datos, &QAction::triggered, this, &Grafico::CopiarDatos);
}

void Grafico::PedirGuardarImagen(const QString &extension) {
  PedirGuardarDibujo(*this, *this, QStringLiteral("sdGuardarImagen"), {extension},
                     [this](const QString &ruta) { return GuardarImagen(ruta); });
}

} // namespace tesmo
