#include "vistas/carta/Marcocarta.h"

#include "psicro/Psicrometrico.h"
#include "vistas/comun/Guardardibujo.h"

#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QPainter>

namespace tesmo {

namespace {

constexpr QSize TAMANO_MINIMO(360, 240);

} // namespace

MarcoCarta::MarcoCarta(QWidget *padre) : QWidget(padre) {
  setObjectName(QStringLiteral("marcoCarta"));
  setMinimumSize(TAMANO_MINIMO);
  setAttribute(Qt::WA_OpaquePaintEvent);
  imgPsicro_ = new QWidget(this);
  imgPsicro_->setObjectName(QStringLiteral("imgPsicro"));
  imgPsicro_->setMouseTracking(true);
  imgPsicro_->setCursor(Qt::CrossCursor);
  imgPsicro_->setContextMenuPolicy(Qt::CustomContextMenu);
  imgPsicro_->installEventFilter(this);
  connect(imgPsicro_, &QWidget::customContextMenuRequested, this,
          [this](const QPoint &donde) { emit menuPedido(imgPsicro_->mapToGlobal(donde)); });
}

void MarcoCarta::PonContenido(ContenidoCarta *contenido) {
  contenido_ = contenido;
  PonTamano();
  Redibujar();
}

QSize MarcoCarta::TamanoDeCarta() const { return imgPsicro_->size(); }

void MarcoCarta::Redibujar() {
  dibujo_ = QPixmap();
  update();
}

void MarcoCarta::PintarEncima(const std::function<void(QPainter &)> &accion) {
  DibujarSiHaceFalta();
  QPainter pintor(&dibujo_);
  pintor.translate(imgPsicro_->pos());
  pintor.setClipRect(imgPsicro_->rect());
  accion(pintor);
  update();
}

void MarcoCarta::PonReticula(std::optional<QPoint> sitio) {
  if (sitio == reticula_) return;
  reticula_ = sitio;
  imgPsicro_->update();
}

void MarcoCarta::Pintar(QPaintDevice &destino) const {
  QPainter pintor(&destino);
  if (contenido_ == nullptr) {
    pintor.fillRect(rect(), Qt::white);
  } else {
    PintarCarta(pintor, size(), *contenido_);
  }
}

void MarcoCarta::DibujarSiHaceFalta() {
  if (!dibujo_.isNull() && dibujo_.deviceIndependentSize().toSize() == size() &&
      dibujo_.devicePixelRatio() == devicePixelRatioF())
    return;
  dibujo_ = QPixmap(size() * devicePixelRatioF());
  dibujo_.setDevicePixelRatio(devicePixelRatioF());
  Pintar(dibujo_);
  ++vecesDibujada_;
}

void MarcoCarta::paintEvent(QPaintEvent *suceso) {
  DibujarSiHaceFalta();
  QPainter pintor(this);
  pintor.setClipRegion(suceso->region());
  pintor.drawPixmap(0, 0, dibujo_);
}

void MarcoCarta::PintarReticula() {
  if (!reticula_) return;
  QPainter pintor(imgPsicro_);
  pintor.setPen(QPen(QColor(0, 0, 0, 150), 0, Qt::DashLine));
  pintor.drawLine(0, reticula_->y(), imgPsicro_->width(), reticula_->y());
  pintor.drawLine(reticula_->x(), 0, reticula_->x(), imgPsicro_->height());
}

void MarcoCarta::resizeEvent(QResizeEvent *) {
  imgPsicro_->setGeometry(RectanguloDeCarta(size()));
  PonTamano();
}

/// Quien lea un estado antes de que se vuelva a pintar ha de usar ya el tamaño nuevo.
void MarcoCarta::PonTamano() {
  if (contenido_ == nullptr) return;
  contenido_->carta.ponTamano(static_cast<float>(imgPsicro_->width()),
                              static_cast<float>(imgPsicro_->height()));
}

bool MarcoCarta::eventFilter(QObject *objeto, QEvent *suceso) {
  if (suceso->type() == QEvent::Paint) {
    PintarReticula();
    return true;
  }
  if (suceso->type() == QEvent::Leave) PonReticula({});
  // Qt cambia por un doble clic la segunda de dos pulsaciones seguidas.
  const bool pulsado =
      suceso->type() == QEvent::MouseButtonPress || suceso->type() == QEvent::MouseButtonDblClick;
  if (pulsado || suceso->type() == QEvent::MouseMove) {
    const auto *raton = static_cast<QMouseEvent *>(suceso);
    const QPoint sitio = raton->position().toPoint();
    if (!pulsado) emit punteroMovido(sitio.x(), sitio.y());
    if (pulsado && raton->button() == Qt::LeftButton) emit botonPulsado(sitio.x(), sitio.y());
  }
  return QWidget::eventFilter(objeto, suceso);
}

QImage MarcoCarta::Imagen(double escala) const {
  return ImagenDeDibujo(size(), escala, [this](QPaintDevice &destino) { Pintar(destino); });
}

bool MarcoCarta::GuardarImagen(const QString &ruta) const {
  return GuardarDibujo(ruta, size(), tr("Carta psicrométrica"),
                       [this](QPaintDevice &destino) { Pintar(destino); });
}

} // namespace tesmo
