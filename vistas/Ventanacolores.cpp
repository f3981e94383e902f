#include "vistas/Ventanacolores.h"

#include "vistas/Configuracion.h"
#include "vistas/Gruposmagnitud.h"
#include "vistas/Textoqt.h"

#include <QColorDialog>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <functional>
#include <utility>

namespace tesmo {

namespace {

constexpr int ANCHO_MUESTRA = 48; ///< [px]
constexpr int MARGEN = 10;        ///< [px]

/// Etiqueta que se pulsa con el ratón, con Espacio o con Intro.
class EtiquetaPulsable : public QLabel {
public:
  EtiquetaPulsable(const QString &texto, std::function<void()> pulsada)
      : QLabel(texto), pulsada_(std::move(pulsada)) {
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
  }

protected:
  void mouseReleaseEvent(QMouseEvent *suceso) override {
    if (suceso->button() == Qt::LeftButton && rect().contains(suceso->position().toPoint())) pulsada_();
  }
  void keyPressEvent(QKeyEvent *suceso) override {
    const int tecla = suceso->key();
    if (tecla == Qt::Key_Space || tecla == Qt::Key_Return || tecla == Qt::Key_Enter) return pulsada_();
    QLabel::keyPressEvent(suceso);
  }
  void focusInEvent(QFocusEvent *suceso) override {
    QFont subrayada = font();
    subrayada.setUnderline(true);
    setFont(subrayada);
    QLabel::focusInEvent(suceso);
  }
  void focusOutEvent(QFocusEvent *suceso) override {
    QFont llana = font();
    llana.setUnderline(false);
    setFont(llana);
    QLabel::focusOutEvent(suceso);
  }

private:
  std::function<void()> pulsada_;
};

QPushButton *CrearBoton(const char *nombre, const QString &texto) {
  auto *boton = new QPushButton(texto);
  boton->setObjectName(QString::fromLatin1(nombre));
  return boton;
}

} // namespace

TforColores::TforColores(Configuracion &tabla, QWidget *padre) : QDialog(padre), tabla_(tabla) {
  setObjectName(QStringLiteral("forColores"));
  setWindowTitle(tr("Colores"));
  const auto crear = [this](const FichaMagnitud &ficha) { return CrearFila(ficha); };
  const auto grupo = [&](GrupoMagnitud cual) {
    return CrearGrupoMagnitudes(cual, QStringLiteral("Col"), ORDEN_DEL_VISOR, crear);
  };
  auto *grupos = new QHBoxLayout;
  grupos->addWidget(grupo(GrupoMagnitud::Basicas), 0, Qt::AlignTop);
  auto *derecha = new QVBoxLayout;
  derecha->addWidget(grupo(GrupoMagnitud::Psicrometricas));
  derecha->addWidget(grupo(GrupoMagnitud::Radiacion));
  derecha->addStretch(1);
  grupos->addLayout(derecha);
  auto *botones = new QHBoxLayout;
  auto *ayuda = new QLabel(tr("Pulse el nombre de una variable para cambiar su color."));
  QPushButton *aceptar = CrearBoton("btnAceptar", tr("&Aceptar"));
  QPushButton *cancelar = CrearBoton("btnCancelar", tr("&Cancelar"));
  aceptar->setDefault(true);
  aceptar->setFocus();
  connect(aceptar, &QPushButton::clicked, this, &TforColores::accept);
  connect(cancelar, &QPushButton::clicked, this, &QDialog::reject);
  botones->addWidget(ayuda, 1);
  botones->addSpacing(2 * MARGEN);
  botones->addWidget(aceptar);
  botones->addWidget(cancelar);
  auto *disposicion = new QVBoxLayout(this);
  disposicion->addLayout(grupos);
  disposicion->addLayout(botones);
  disposicion->setSizeConstraint(QLayout::SetFixedSize);
}

QWidget *TforColores::CrearFila(const FichaMagnitud &ficha) {
  const auto i = static_cast<int>(ficha.magnitud);
  auto *etiqueta = new EtiquetaPulsable(Texto(ficha.leyendaColor), [this, i] { ElegirColor(i); });
  etiqueta->setObjectName(Texto(ficha.etiquetaColor));
  auto *muestra = new QLineEdit;
  muestra->setObjectName(QStringLiteral("ed") + Texto(ficha.codigo));
  muestra->setEnabled(false);
  muestra->setFixedWidth(ANCHO_MUESTRA);
  muestras_[static_cast<std::size_t>(i)] = muestra;
  PonMuestra(i, Color(tabla_.dameColor(i, ficha.color)));
  auto *fila = new QWidget;
  auto *disposicion = new QHBoxLayout(fila);
  disposicion->setContentsMargins(0, 1, 0, 1);
  disposicion->addWidget(etiqueta, 1);
  disposicion->addSpacing(MARGEN);
  disposicion->addWidget(muestra);
  return fila;
}

QColor TforColores::Muestra(int i) const {
  return muestras_.at(static_cast<std::size_t>(i))->palette().color(QPalette::Disabled, QPalette::Base);
}

void TforColores::PonMuestra(int i, const QColor &color) {
  QLineEdit *muestra = muestras_.at(static_cast<std::size_t>(i));
  QPalette paleta = muestra->palette();
  paleta.setColor(QPalette::Disabled, QPalette::Base, color);
  muestra->setPalette(paleta);
}

void TforColores::ElegirColor(int i) {
  auto *selector = new QColorDialog(Muestra(i), this);
  selector->setObjectName(QStringLiteral("cdColores"));
  selector->setAttribute(Qt::WA_DeleteOnClose);
  selector->setOption(QColorDialog::DontUseNativeDialog);
  connect(selector, &QColorDialog::colorSelected, this,
          [this, i](const QColor &color) { PonMuestra(i, color); });
  selector->open();
}

void TforColores::accept() {
  for (int i = 0; i < static_cast<int>(muestras_.size()); ++i) tabla_.ponColor(i, EnteroDeColor(Muestra(i)));
  emit aplicados(tabla_.escribirConfiguracion());
  QDialog::accept();
}

} // namespace tesmo
