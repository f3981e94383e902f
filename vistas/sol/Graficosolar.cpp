#include "vistas/sol/Graficosolar.h"

#include "core/Formato.h"
#include "vistas/comun/Guardardibujo.h"
#include "vistas/comun/Textoqt.h"
#include "vistas/sol/Pintorsolar.h"

#include <QLabel>
#include <QMouseEvent>
#include <QPainter>

#include <utility>

namespace tesmo {

namespace {

constexpr QSize TAMANO_MINIMO(360, 240);
constexpr int SEPARACION = 6; ///< de los textos de dentro al marco [px]
constexpr std::string_view PATRON_LECTURA = "0.0";

QLabel *CrearTexto(QWidget *padre) {
  auto *texto = new QLabel(padre);
  texto->setAttribute(Qt::WA_TransparentForMouseEvents);
  texto->setStyleSheet(QStringLiteral("background: rgba(255, 255, 255, 200); color: black; padding: 1px;"));
  texto->hide();
  return texto;
}

} // namespace

GraficoSolar::GraficoSolar(QWidget *padre) : QWidget(padre) {
  setMinimumSize(TAMANO_MINIMO);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
  setContextMenuPolicy(Qt::PreventContextMenu);
  setCursor(Qt::CrossCursor);
  stMeses_ = CrearTexto(this);
  lbPuntero_ = CrearTexto(this);
}

void GraficoSolar::PonContenido(const ContenidoSolar *contenido) {
  contenido_ = contenido;
  Redibujar();
}

void GraficoSolar::PonAviso(const QString &aviso) {
  aviso_ = aviso;
  Redibujar();
}

void GraficoSolar::Redibujar() {
  dibujo_ = QPixmap();
  update();
}

void GraficoSolar::PonOrdenDeMeses(const QString &texto) {
  stMeses_->setText(texto);
  stMeses_->setVisible(!texto.isEmpty());
  ColocarTextos();
}

void GraficoSolar::ColocarTextos() {
  const QRect marco = MarcoSolar(size()).toRect();
  stMeses_->adjustSize();
  stMeses_->move(marco.left() + SEPARACION, marco.top() + SEPARACION);
  lbPuntero_->adjustSize();
  lbPuntero_->move(marco.right() - SEPARACION - lbPuntero_->width(), marco.top() + SEPARACION);
}

const ContenidoSolar &GraficoSolar::Contenido() const {
  static const ContenidoSolar VACIO;
  return contenido_ != nullptr ? *contenido_ : VACIO;
}

double GraficoSolar::AlturaMaxima() const {
  return alturaAlPulsar_ ? *alturaAlPulsar_ : AlturaDelEje(Contenido().horizonte);
}

EscalaSolar GraficoSolar::Escala() const { return {MarcoSolar(size()), AlturaMaxima()}; }

void GraficoSolar::SoltarEje() {
  const double antes = AlturaMaxima();
  alturaAlPulsar_.reset();
  if (AlturaMaxima() != antes) Redibujar();
}

SitioRaton GraficoSolar::SitioEn(const QPointF &pixel) const {
  const EscalaSolar escala = Escala();
  return {escala.Acimut(pixel.x()), escala.Altura(pixel.y()), false, escala.Alcance(MEDIA_MARCA)};
}

QPointF GraficoSolar::PixelDe(float acimut, float altura) const { return Escala().Sitio(acimut, altura); }

SitioRaton GraficoSolar::Sitio(const QMouseEvent &suceso) const {
  SitioRaton sitio = SitioEn(suceso.position());
  sitio.mayusculas = suceso.modifiers().testFlag(Qt::ShiftModifier);
  return sitio;
}

/// En la pantalla el orden de los meses es un control; en una imagen hay que pintarlo.
void GraficoSolar::Pintar(QPaintDevice &destino, bool conOrden) const {
  QPainter pintor(&destino);
  PintarSolar(pintor, size(), Contenido(), AlturaMaxima(), aviso_);
  if (!conOrden || stMeses_->isHidden()) return;
  pintor.setFont(stMeses_->font());
  pintor.setPen(Qt::black);
  pintor.drawText(stMeses_->geometry().adjusted(0, 0, width(), 0), Qt::AlignVCenter | Qt::AlignLeft,
                  stMeses_->text());
}

void GraficoSolar::paintEvent(QPaintEvent *suceso) {
  if (dibujo_.isNull() || dibujo_.deviceIndependentSize().toSize() != size() ||
      dibujo_.devicePixelRatio() != devicePixelRatioF()) {
    dibujo_ = QPixmap(size() * devicePixelRatioF());
    dibujo_.setDevicePixelRatio(devicePixelRatioF());
    Pintar(dibujo_, false);
  }
  QPainter pintor(this);
  pintor.setClipRegion(suceso->region());
  pintor.drawPixmap(0, 0, dibujo_);
}

void GraficoSolar::resizeEvent(QResizeEvent *) { ColocarTextos(); }

void GraficoSolar::mousePressEvent(QMouseEvent *suceso) {
  dobleClic_ = false;
  if (suceso->button() == Qt::LeftButton) {
    alturaAlPulsar_ = AlturaMaxima();
    emit izquierdoPulsado(Sitio(*suceso));
  }
  if (suceso->button() == Qt::RightButton) emit derechoPulsado(Sitio(*suceso));
}

void GraficoSolar::mouseDoubleClickEvent(QMouseEvent *suceso) {
  mousePressEvent(suceso);
  dobleClic_ = suceso->button() == Qt::LeftButton;
}

void GraficoSolar::mouseReleaseEvent(QMouseEvent *suceso) {
  if (suceso->button() != Qt::LeftButton) return;
  SitioRaton sitio = Sitio(*suceso);
  sitio.repetido = std::exchange(dobleClic_, false);
  emit izquierdoSoltado(sitio);
  SoltarEje();
}

void GraficoSolar::mouseMoveEvent(QMouseEvent *suceso) {
  // Un diálogo en medio del arrastre se queda con el botón que se suelta.
  if (!suceso->buttons().testFlag(Qt::LeftButton)) SoltarEje();
  const SitioRaton sitio = Sitio(*suceso);
  LeerPuntero(sitio);
  emit movido(sitio);
}

void GraficoSolar::LeerPuntero(const SitioRaton &sitio) {
  const QRectF marco = MarcoSolar(size());
  lbPuntero_->setVisible(marco.contains(PixelDe(sitio.acimut, sitio.altura)));
  lbPuntero_->setText(tr("Acimut %1º   Altura %2º")
                          .arg(Texto(FormatearPatron(sitio.acimut, PATRON_LECTURA)),
                               Texto(FormatearPatron(sitio.altura, PATRON_LECTURA))));
  ColocarTextos();
}

void GraficoSolar::leaveEvent(QEvent *) { lbPuntero_->hide(); }

QImage GraficoSolar::Imagen(double escala) const {
  return ImagenDeDibujo(size(), escala, [this](QPaintDevice &destino) { Pintar(destino, true); });
}

bool GraficoSolar::GuardarImagen(const QString &ruta) const {
  return GuardarDibujo(ruta, size(), tr("Carta solar"),
                       [this](QPaintDevice &destino) { Pintar(destino, true); });
}

} // namespace tesmo
