#include "vistas/Marcocarta.h"

#include "core/Ficheros.h"
#include "psicro/Psicrometrico.h"

#include <QBuffer>
#include <QContextMenuEvent>
#include <QFileInfo>
#include <QMouseEvent>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>

namespace tesmo {

namespace {

constexpr QSize TAMANO_MINIMO(360, 240);
/// La imagen guardada dobla la resolución de la pantalla, para informes impresos.
constexpr double ESCALA_DE_GUARDADO = 2.0;
/// Resolución en que un píxel del dibujo vectorial es un píxel de pantalla [puntos por pulgada].
constexpr int RESOLUCION = 96;
constexpr double PUNTOS_POR_PULGADA = 72.0;

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
  dibujo_ = QPixmap();
  update();
}

QSize MarcoCarta::TamanoDeCarta() const { return imgPsicro_->size(); }

void MarcoCarta::Redibujar() {
  Dibujar();
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

void MarcoCarta::Dibujar() {
  dibujo_ = QPixmap(size() * devicePixelRatioF());
  dibujo_.setDevicePixelRatio(devicePixelRatioF());
  Pintar(dibujo_);
  ++vecesDibujada_;
}

void MarcoCarta::paintEvent(QPaintEvent *suceso) {
  if (dibujo_.isNull() || dibujo_.deviceIndependentSize().toSize() != size() ||
      dibujo_.devicePixelRatio() != devicePixelRatioF())
    Dibujar();
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
  // Quien lea un estado antes de que se vuelva a pintar ha de usar ya el tamaño nuevo.
  if (contenido_ != nullptr) {
    contenido_->carta.ponTamano(static_cast<float>(imgPsicro_->width()),
                                static_cast<float>(imgPsicro_->height()));
  }
}

bool MarcoCarta::eventFilter(QObject *objeto, QEvent *suceso) {
  if (suceso->type() == QEvent::Paint) {
    PintarReticula();
    return true;
  }
  if (suceso->type() == QEvent::MouseMove || suceso->type() == QEvent::MouseButtonPress) {
    const auto *raton = static_cast<QMouseEvent *>(suceso);
    const QPoint sitio = raton->position().toPoint();
    if (suceso->type() == QEvent::MouseMove) emit punteroMovido(sitio.x(), sitio.y());
    if (raton->button() == Qt::LeftButton) emit botonPulsado(sitio.x(), sitio.y());
  }
  return QWidget::eventFilter(objeto, suceso);
}

QImage MarcoCarta::Imagen(double escala) const {
  QImage imagen(size() * escala, QImage::Format_RGB32);
  imagen.setDevicePixelRatio(escala);
  Pintar(imagen);
  return imagen;
}

QByteArray MarcoCarta::Vectorial(const QString &extension) const {
  QByteArray bytes;
  QBuffer destino(&bytes);
  destino.open(QIODevice::WriteOnly);
  if (extension == QLatin1String("svg")) {
    QSvgGenerator generador;
    generador.setOutputDevice(&destino);
    generador.setResolution(RESOLUCION);
    generador.setSize(size());
    generador.setViewBox(rect());
    generador.setTitle(tr("Carta psicrométrica"));
    Pintar(generador);
  } else {
    QPdfWriter escritor(&destino);
    escritor.setResolution(RESOLUCION);
    const QSizeF puntos = QSizeF(size()) * (PUNTOS_POR_PULGADA / RESOLUCION);
    escritor.setPageSize(QPageSize(puntos, QPageSize::Point, QString(), QPageSize::ExactMatch));
    escritor.setPageMargins(QMarginsF());
    Pintar(escritor);
  }
  return bytes;
}

bool MarcoCarta::GuardarImagen(const QString &ruta) const {
  const QString extension = QFileInfo(ruta).suffix().toLower();
  QByteArray bytes;
  if (extension == QLatin1String("svg") || extension == QLatin1String("pdf")) {
    bytes = Vectorial(extension);
  } else {
    QBuffer destino(&bytes);
    destino.open(QIODevice::WriteOnly);
    if (!Imagen(ESCALA_DE_GUARDADO).save(&destino, "PNG")) return false;
  }
  return EscribirFicheroEntero(RutaDesdeTexto(ruta.toStdString()),
                               {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

} // namespace tesmo
