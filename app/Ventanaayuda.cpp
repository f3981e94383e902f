#include "app/Ventanaayuda.h"

#include "app/Manual.h"
#include "vistas/comun/Botones.h"

#include <QHBoxLayout>
#include <QImageReader>
#include <QPushButton>
#include <QTextBrowser>
#include <QUrl>
#include <QVBoxLayout>

namespace tesmo {

namespace {

constexpr QSize TAMANO(860, 640);
constexpr int ANCHO_IMAGEN = 780; ///< el que cabe en la ventana recién abierta [px]

/// Lee las páginas del disco y encoge las imágenes con suavizado, que el texto enriquecido no tiene.
class LectorManual : public QTextBrowser {
public:
  using QTextBrowser::QTextBrowser;
  QVariant loadResource(int tipo, const QUrl &nombre) override {
    if (tipo != QTextDocument::ImageResource) return QTextBrowser::loadResource(tipo, nombre);
    QImage imagen = QImageReader(source().resolved(nombre).toLocalFile()).read();
    const int ancho = qRound(ANCHO_IMAGEN * devicePixelRatioF());
    if (imagen.width() > ancho) imagen = imagen.scaledToWidth(ancho, Qt::SmoothTransformation);
    imagen.setDevicePixelRatio(devicePixelRatioF());
    return imagen;
  }
};

} // namespace

VentanaAyuda::VentanaAyuda(QWidget *padre) : QWidget(padre, Qt::Window) {
  setObjectName(QStringLiteral("forAyuda"));
  setWindowTitle(tr("Manual de Tesmo-A"));
  resize(TAMANO);
  tbManual_ = new LectorManual(this);
  tbManual_->setObjectName(QStringLiteral("tbManual"));
  tbManual_->document()->setDocumentMargin(16);
  auto *fila = new QHBoxLayout;
  QPushButton *portada = CrearBoton("btnPortada", tr("&Portada"));
  QPushButton *atras = CrearBoton("btnAtras", tr("&Atrás"));
  QPushButton *adelante = CrearBoton("btnAdelante", tr("A&delante"));
  for (QPushButton *boton : {portada, atras, adelante}) fila->addWidget(boton);
  fila->addStretch(1);
  atras->setEnabled(false);
  adelante->setEnabled(false);
  connect(portada, &QPushButton::clicked, this,
          [this] { tbManual_->setSource(tbManual_->source().resolved(QUrl(PaginaDelManual({})))); });
  connect(atras, &QPushButton::clicked, tbManual_, &QTextBrowser::backward);
  connect(adelante, &QPushButton::clicked, tbManual_, &QTextBrowser::forward);
  connect(tbManual_, &QTextBrowser::backwardAvailable, atras, &QWidget::setEnabled);
  connect(tbManual_, &QTextBrowser::forwardAvailable, adelante, &QWidget::setEnabled);
  auto *disposicion = new QVBoxLayout(this);
  disposicion->addLayout(fila);
  disposicion->addWidget(tbManual_, 1);
}

void VentanaAyuda::Ensenar(const QString &directorio, const QString &pagina) {
  tbManual_->setSource(QUrl::fromLocalFile(directorio + QLatin1Char('/')).resolved(QUrl(pagina)));
  show();
  raise();
  activateWindow();
}

} // namespace tesmo
