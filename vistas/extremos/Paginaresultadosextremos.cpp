#include "vistas/extremos/Paginaresultadosextremos.h"

#include "vistas/comun/Botones.h"
#include "vistas/grafico/Escaladia.h"
#include "vistas/grafico/Grafico.h"

#include <QApplication>
#include <QClipboard>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QListWidget>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTextOption>
#include <QVBoxLayout>

namespace tesmo {

namespace {

constexpr int LADO_MUESTRA = 12;          ///< cuadrado de color de cada magnitud [px]
constexpr int MARGEN = 4;                 ///< [px]
constexpr QSize GRAFICO_MINIMO(320, 130); ///< caben dos en la ventana más baja [px]
constexpr int SITIOS_DEL_NUMERO = 14;     ///< letras de la columna de un número
constexpr const char *NOMBRE_MAS_LARGO = "T de proyecto T1, T2 en el mes (ºC)";

} // namespace

PaginaResultadosExtremos::PaginaResultadosExtremos(QWidget *padre) : QWidget(padre) {
  setObjectName(QStringLiteral("tsResultadosDiasExtremos"));
  auto *disposicion = new QHBoxLayout(this);
  disposicion->setContentsMargins(MARGEN, MARGEN, MARGEN, MARGEN);
  auto *reparto = new QSplitter(Qt::Horizontal);
  reparto->setObjectName(QStringLiteral("Splitter1"));
  reparto->setChildrenCollapsible(false);
  reparto->addWidget(CrearLista());
  reparto->addWidget(CrearGraficos());
  reparto->setStretchFactor(1, 1);
  disposicion->addWidget(reparto);
}

QWidget *PaginaResultadosExtremos::CrearLista() {
  auto *panel = new QWidget;
  panel->setObjectName(QStringLiteral("panelLista"));
  auto *pila = new QVBoxLayout(panel);
  pila->setContentsMargins(0, 0, 0, 0);
  CrearCasillas();
  edDerivacion_ = new QPlainTextEdit;
  edDerivacion_->setObjectName(QStringLiteral("edDerivacion"));
  edDerivacion_->setReadOnly(true);
  edDerivacion_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  pila->addWidget(CheckListBox1_);
  pila->addLayout(CrearBotones());
  pila->addWidget(edDerivacion_, 1);
  return panel;
}

void PaginaResultadosExtremos::CrearCasillas() {
  CheckListBox1_ = new QListWidget;
  CheckListBox1_->setObjectName(QStringLiteral("CheckListBox1"));
  CheckListBox1_->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
  CheckListBox1_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  CheckListBox1_->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
  CheckListBox1_->setIconSize(QSize(LADO_MUESTRA, LADO_MUESTRA));
  // Pulsar en el nombre vale como pulsar en su casilla; ésta cambia sola y no avisa de que se ha pulsado.
  connect(CheckListBox1_, &QListWidget::itemPressed, this, [this] { enNombre_ = true; });
  connect(CheckListBox1_, &QListWidget::itemChanged, this, [this] { enNombre_ = false; });
  connect(CheckListBox1_, &QListWidget::itemClicked, this, [this](QListWidgetItem *elemento) {
    const bool marcado = elemento->checkState() == Qt::Checked;
    if (enNombre_) elemento->setCheckState(marcado ? Qt::Unchecked : Qt::Checked);
  });
  connect(CheckListBox1_, &QListWidget::itemChanged, this,
          &PaginaResultadosExtremos::CheckListBox1ClickCheck);
}

QHBoxLayout *PaginaResultadosExtremos::CrearBotones() {
  QPushButton *visualizar = CrearBoton("Button1", tr("Visualizar Archivos"),
                                       tr("Abre extreCal.met y extreRef.met en el editor de textos"));
  connect(visualizar, &QPushButton::clicked, this, &PaginaResultadosExtremos::Button1Click);
  QPushButton *copiar = CrearBoton("btnCopiarDerivacion", tr("Copiar cifras"),
                                   tr("Copia todo el cálculo como texto separado por tabuladores"));
  connect(copiar, &QPushButton::clicked, this,
          [this] { QApplication::clipboard()->setText(edDerivacion_->toPlainText()); });
  auto *botones = new QHBoxLayout;
  botones->addWidget(visualizar);
  botones->addWidget(copiar);
  return botones;
}

QWidget *PaginaResultadosExtremos::CrearGraficos() {
  auto *reparto = new QSplitter(Qt::Vertical);
  reparto->setObjectName(QStringLiteral("Splitter2"));
  reparto->setChildrenCollapsible(false);
  graDiaExtCal_ = CrearGrafico(QStringLiteral("graDiaExtCal"));
  graDiaExtRef_ = CrearGrafico(QStringLiteral("graDiaExtRef"));
  const auto anadir = [&](const QString &nombre, const QString &titulo, Grafico *grafico) {
    auto *grupo = new QGroupBox(titulo);
    grupo->setObjectName(nombre);
    auto *pila = new QVBoxLayout(grupo);
    pila->setContentsMargins(MARGEN, MARGEN, MARGEN, MARGEN);
    pila->addWidget(grafico);
    reparto->addWidget(grupo);
  };
  anadir(QStringLiteral("gbCal"), tr("Calefacción  "), graDiaExtCal_);
  anadir(QStringLiteral("gbRef"), tr("Refrigeración   "), graDiaExtRef_);
  return reparto;
}

Grafico *PaginaResultadosExtremos::CrearGrafico(const QString &nombre) {
  auto *grafico = new Grafico;
  grafico->setObjectName(nombre);
  grafico->setMinimumSize(GRAFICO_MINIMO);
  grafico->PonEscala(std::make_shared<EscalaDia>());
  grafico->PonAviso(tr("Marque en la lista las magnitudes que quiera ver."));
  return grafico;
}

void PaginaResultadosExtremos::VaciarLista() {
  const QSignalBlocker sinAvisos(CheckListBox1_);
  CheckListBox1_->clear();
}

void PaginaResultadosExtremos::AnadirElemento(const QString &texto, const QColor &color) {
  const QSignalBlocker sinAvisos(CheckListBox1_);
  auto *elemento = new QListWidgetItem(texto, CheckListBox1_);
  elemento->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
  elemento->setCheckState(Qt::Unchecked);
  QPixmap muestra(LADO_MUESTRA, LADO_MUESTRA);
  muestra.fill(color);
  elemento->setIcon(muestra);
  CheckListBox1_->updateGeometry();
}

void PaginaResultadosExtremos::Marcar(int elemento) {
  const QSignalBlocker sinAvisos(CheckListBox1_);
  CheckListBox1_->item(elemento)->setCheckState(Qt::Checked);
}

bool PaginaResultadosExtremos::Marcado(int elemento) const {
  const QListWidgetItem *const casilla = CheckListBox1_->item(elemento); // nulo antes de calcular
  return casilla != nullptr && casilla->checkState() == Qt::Checked;
}

void PaginaResultadosExtremos::PonDerivacion(const QString &texto) {
  const QFontMetrics letra = edDerivacion_->fontMetrics();
  const qreal nombre = letra.horizontalAdvance(QString::fromUtf8(NOMBRE_MAS_LARGO));
  const qreal numero = letra.averageCharWidth() * SITIOS_DEL_NUMERO;
  QTextOption opciones;
  opciones.setWrapMode(QTextOption::WordWrap);
  opciones.setTabs({QTextOption::Tab(nombre + numero, QTextOption::RightTab),
                    QTextOption::Tab(nombre + 2 * numero, QTextOption::RightTab)});
  edDerivacion_->document()->setDefaultTextOption(opciones);
  edDerivacion_->setMinimumWidth(static_cast<int>(nombre + 2 * numero) + 8 * MARGEN);
  edDerivacion_->setPlainText(texto);
}

} // namespace tesmo
