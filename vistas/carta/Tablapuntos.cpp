#include "vistas/carta/Tablapuntos.h"

#include "vistas/carta/Valoresaire.h"
#include "vistas/comun/Botones.h"
#include "vistas/comun/Tablatexto.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace tesmo {

namespace {

constexpr int ALTO = 118;       ///< con tres filas a la vista [px]
constexpr int AIRE_DE_FILA = 4; ///< [px]

} // namespace

TablaPuntos::TablaPuntos(QWidget *padre) : QWidget(padre) {
  CrearTabla();
  lbProceso_ = new QLabel;
  lbProceso_->setObjectName(QStringLiteral("lbProceso"));
  lbProceso_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  copiar_ = CrearBoton("btnCopiarPuntos", tr("&Copiar tabla"),
                       tr("Copia los puntos elegidos o, sin elegir, todos"));
  borrar_ =
      CrearBoton("btnBorrarPuntos", tr("&Borrar puntos"), tr("Borra los elegidos o, sin elegir, todos"));
  connect(copiar_, &QPushButton::clicked, this,
          [this] { QGuiApplication::clipboard()->setText(ComoTexto()); });
  connect(borrar_, &QPushButton::clicked, this, &TablaPuntos::borrarPedido);
  auto *fila = new QHBoxLayout;
  fila->addWidget(lbProceso_, 1);
  fila->addWidget(copiar_);
  fila->addWidget(borrar_);
  auto *pila = new QVBoxLayout(this);
  pila->setContentsMargins(0, 0, 0, 0);
  pila->addWidget(tabla_);
  pila->addLayout(fila);
  setFixedHeight(ALTO);
  Poner({}, {});
}

void TablaPuntos::CrearTabla() {
  tabla_ = new QTableWidget(0, static_cast<int>(VALORES_AIRE.size()) + 1);
  tabla_->setObjectName(QStringLiteral("tablaPuntos"));
  QStringList titulos{tr("Punto")};
  for (const ValorAire &valor : VALORES_AIRE) {
    const QString unidad = QString::fromUtf8(valor.unidad);
    titulos << QString::fromUtf8(valor.rotulo) + (unidad.isEmpty() ? QString() : " (" + unidad + ")");
  }
  tabla_->setHorizontalHeaderLabels(titulos);
  tabla_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  tabla_->verticalHeader()->hide();
  tabla_->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + AIRE_DE_FILA);
  tabla_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  tabla_->setSelectionBehavior(QAbstractItemView::SelectRows);
  connect(tabla_, &QTableWidget::itemSelectionChanged, this, &TablaPuntos::elegidosCambiados);
}

void TablaPuntos::Poner(const QList<QStringList> &filas, const QString &proceso) {
  const QSignalBlocker callada(tabla_);
  tabla_->setRowCount(static_cast<int>(filas.size()));
  for (int i = 0; i < filas.size(); ++i)
    for (int j = 0; j < filas[i].size(); ++j) {
      auto *campo = new QTableWidgetItem(filas[i][j]);
      campo->setTextAlignment(Qt::AlignCenter);
      tabla_->setItem(i, j, campo);
    }
  lbProceso_->setText(proceso.isEmpty()
                          ? tr("Pulse en la carta para fijar un punto; dos puntos enseñan su proceso.")
                          : proceso);
  copiar_->setEnabled(!filas.isEmpty());
  borrar_->setEnabled(!filas.isEmpty());
}

QList<int> TablaPuntos::Elegidos() const {
  QList<int> filas;
  for (const QModelIndex &indice : tabla_->selectionModel()->selectedRows()) filas << indice.row();
  std::sort(filas.begin(), filas.end());
  return filas;
}

void TablaPuntos::QuitarEleccion() {
  const QSignalBlocker callada(tabla_);
  tabla_->clearSelection();
}

QString TablaPuntos::ComoTexto() const { return TextoDeTabla(*tabla_, Elegidos()); }

} // namespace tesmo
