// Los controles del diálogo de importar y lo que enseñan.

#include "intercambio/auditoria/Textoauditoria.h"
#include "vistas/comun/Textoqt.h"
#include "vistas/intercambio/Dialogoimportar.h"
#include "vistas/intercambio/Fichaimportar.h"

#include <QFileInfo>
#include <QFontDatabase>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSplitter>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>

#include <utility>

namespace tesmo {

namespace {

constexpr QSize TAMANO(1240, 680);
constexpr int FILAS_VISIBLES = 4;
constexpr int ANCHO_AUDITORIA = 780, ANCHO_FICHA = 440; ///< reparto del detalle [px]
constexpr int ANCHO_MAXIMO_COLUMNA = 240;               ///< de la lista [px]; lo que no cabe va en su ayuda

QPushButton *CrearBoton(const char *nombre, const QString &texto) {
  auto *boton = new QPushButton(texto);
  boton->setObjectName(QString::fromLatin1(nombre));
  boton->setAutoDefault(false);
  return boton;
}

QPlainTextEdit *CrearTexto(const char *nombre) {
  auto *texto = new QPlainTextEdit;
  texto->setObjectName(QString::fromLatin1(nombre));
  texto->setReadOnly(true);
  texto->setLineWrapMode(QPlainTextEdit::NoWrap);
  texto->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
  return texto;
}

} // namespace

DialogoImportar::DialogoImportar(ServiciosImportar servicios, QWidget *padre)
    : QDialog(padre), servicios_(std::move(servicios)) {
  setObjectName(QStringLiteral("forImportar"));
  setWindowTitle(tr("Importar ficheros climáticos"));
  setAcceptDrops(true);
  resize(TAMANO);
  auto *pila = new QVBoxLayout(this);
  pila->addWidget(CrearLista());
  pila->addWidget(CrearDetalle(), 1);
  pila->addWidget(CrearPie());
  EnsenarElegido();
  EnsenarBotones();
}

QWidget *DialogoImportar::CrearLista() {
  auto *lista = new QWidget;
  auto *fila = new QHBoxLayout(lista);
  fila->setContentsMargins(0, 0, 0, 0);
  tabla_ = new QTableWidget(0, NUMERO_COLUMNAS);
  tabla_->setObjectName(QStringLiteral("tablaFicheros"));
  tabla_->setHorizontalHeaderLabels(
      {tr("Fichero"), tr("Formato"), tr("Auditoría"), tr("Localidad"), tr("Provincia"), tr("Situación")});
  tabla_->setSelectionBehavior(QAbstractItemView::SelectRows);
  tabla_->setSelectionMode(QAbstractItemView::SingleSelection);
  tabla_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  tabla_->setWordWrap(false);
  tabla_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  tabla_->verticalHeader()->hide();
  tabla_->horizontalHeader()->setSectionResizeMode(QHeaderView::Interactive);
  tabla_->horizontalHeader()->setMaximumSectionSize(ANCHO_MAXIMO_COLUMNA);
  tabla_->horizontalHeader()->setStretchLastSection(true);
  const int alto = tabla_->verticalHeader()->defaultSectionSize();
  tabla_->setFixedHeight(tabla_->horizontalHeader()->sizeHint().height() + FILAS_VISIBLES * alto +
                         2 * tabla_->frameWidth());
  fila->addWidget(tabla_, 1);
  auto *botones = new QVBoxLayout;
  btnAnadir_ = CrearBoton("btnAnadir", tr("&Añadir…"));
  btnQuitar_ = CrearBoton("btnQuitar", tr("&Quitar"));
  btnMapa_ = CrearBoton("btnMapa", tr("&Mapa de columnas…"));
  btnMapa_->setToolTip(tr("Qué es cada columna de un texto que no es de ningún formato conocido"));
  for (QPushButton *boton : {btnAnadir_, btnQuitar_, btnMapa_}) botones->addWidget(boton);
  botones->addStretch(1);
  fila->addLayout(botones);
  connect(tabla_, &QTableWidget::itemSelectionChanged, this, &DialogoImportar::EnsenarElegido);
  connect(btnAnadir_, &QPushButton::clicked, this, &DialogoImportar::PedirFicheros);
  connect(btnQuitar_, &QPushButton::clicked, this, &DialogoImportar::Quitar);
  connect(btnMapa_, &QPushButton::clicked, this, &DialogoImportar::PedirMapa);
  return lista;
}

QWidget *DialogoImportar::CrearDetalle() {
  auto *detalle = new QSplitter(Qt::Horizontal);
  detalle->setChildrenCollapsible(false);
  fichas_ = new QTabWidget;
  fichas_->setObjectName(QStringLiteral("fichasImportar"));
  meAuditoria_ = CrearTexto("meAuditoria");
  meResumen_ = CrearTexto("meResumen");
  meResumen_->setLineWrapMode(QPlainTextEdit::WidgetWidth);
  fichas_->addTab(meAuditoria_, tr("Auditoría"));
  fichas_->addTab(meResumen_, tr("Resumen"));
  ficha_ = new FichaImportar(servicios_.provincias);
  detalle->addWidget(fichas_);
  detalle->addWidget(ficha_);
  detalle->setSizes({ANCHO_AUDITORIA, ANCHO_FICHA});
  connect(ficha_, &FichaImportar::cambiada, this, [this] {
    if (const auto i = Elegido()) EnsenarFila(*i);
  });
  connect(ficha_, &FichaImportar::provinciaParaTodos, this, &DialogoImportar::ProvinciaParaTodos);
  return detalle;
}

QWidget *DialogoImportar::CrearPie() {
  auto *pie = new QWidget;
  auto *fila = new QHBoxLayout(pie);
  fila->setContentsMargins(0, 0, 0, 0);
  lbEstado_ = new QLabel;
  lbEstado_->setObjectName(QStringLiteral("lbEstado"));
  progreso_ = new QProgressBar;
  progreso_->setObjectName(QStringLiteral("barProgreso"));
  btnImportar_ = CrearBoton("btnImportar", tr("&Importar"));
  btnCancelar_ = CrearBoton("btnCancelar", tr("&Detener"));
  btnCerrar_ = CrearBoton("btnCerrar", tr("&Cerrar"));
  fila->addWidget(lbEstado_, 1);
  fila->addWidget(progreso_);
  for (QPushButton *boton : {btnImportar_, btnCancelar_, btnCerrar_}) fila->addWidget(boton);
  connect(btnImportar_, &QPushButton::clicked, this, &DialogoImportar::Importar);
  connect(btnCancelar_, &QPushButton::clicked, this, [this] { cancelado_ = true; });
  connect(btnCerrar_, &QPushButton::clicked, this, &DialogoImportar::reject);
  return pie;
}

std::optional<std::size_t> DialogoImportar::Elegido() const {
  const int fila = tabla_->currentRow();
  if (fila < 0 || static_cast<std::size_t>(fila) >= ficheros_.size()) return std::nullopt;
  return static_cast<std::size_t>(fila);
}

void DialogoImportar::EnsenarFila(std::size_t i) {
  const FicheroImportable &fichero = ficheros_[i];
  const bool leido = marchas_[i].estado != Estado::SinLeer;
  const auto poner = [&](Columna columna, const QString &texto) {
    auto *casilla = new QTableWidgetItem(texto);
    casilla->setToolTip(texto);
    tabla_->setItem(static_cast<int>(i), columna, casilla);
  };
  poner(Fichero, QFileInfo(Texto(fichero.ruta)).fileName());
  poner(Formato, leido ? Texto(NombreFormato(fichero.materia.anio.formato)) : QString());
  poner(Dictamen, leido ? Texto(NombreVeredicto(fichero.auditoria.veredicto)) : QString());
  poner(Localidad, Texto(fichero.peticion.nombre));
  poner(Provincia, Texto(fichero.peticion.provincia));
  poner(Situacion, marchas_[i].texto);
  for (int columna = 0; columna < Situacion; ++columna) tabla_->resizeColumnToContents(columna);
}

void DialogoImportar::EnsenarElegido() {
  const auto i = Elegido();
  const bool leido = i && marchas_[*i].estado != Estado::SinLeer;
  ficha_->Poner(leido ? &ficheros_[*i] : nullptr);
  if (leido) {
    meAuditoria_->setPlainText(
        Texto(TextoAuditoria(QFileInfo(Texto(ficheros_[*i].ruta)).fileName().toStdString(),
                             ficheros_[*i].materia, ficheros_[*i].auditoria)));
  } else {
    meAuditoria_->setPlainText(ficheros_.empty()
                                   ? tr("Añada ficheros EPW, PVGIS, TMY3 o .met, o arrástrelos hasta aquí.")
                                   : QString());
  }
  EnsenarBotones();
}

void DialogoImportar::EnsenarBotones() {
  const auto i = Elegido();
  const std::size_t listos = Contar(Estado::Listo) + Contar(Estado::Fallido);
  const bool libre = !Trabajando();
  const FormatoClima formato = i ? ficheros_[*i].materia.anio.formato : FormatoClima::Epw;
  btnQuitar_->setEnabled(libre && i.has_value());
  btnMapa_->setEnabled(libre && i && marchas_[*i].estado != Estado::SinLeer &&
                       (formato == FormatoClima::Desconocido || formato == FormatoClima::Delimitado));
  btnImportar_->setEnabled(libre && listos > 0);
  btnCancelar_->setEnabled(!libre);
  btnCerrar_->setEnabled(trabajo_ != Trabajo::Importar);
  progreso_->setVisible(!libre);
  ficha_->setDisabled(trabajo_ == Trabajo::Importar || !i || marchas_[*i].estado == Estado::SinLeer ||
                      marchas_[*i].estado == Estado::Importado || !ficheros_[*i].legible);
  lbEstado_->setText(
      trabajo_ == Trabajo::Preparar ? tr("Leyendo y auditando…")
      : trabajo_ == Trabajo::Importar
          ? tr("Importando…")
          : (listos == 1 ? tr("1 fichero por importar") : tr("%1 ficheros por importar").arg(listos)));
}

QString DialogoImportar::ResumenDe(std::size_t i, const FicheroImportado &importado) const {
  const QString nombre = QFileInfo(Texto(ficheros_[i].ruta)).fileName();
  const ResultadoImportacion &resultado = importado.resultado;
  QString avisos;
  for (const auto &lista : {importado.avisos, resultado.avisos}) {
    for (const std::string &aviso : lista) avisos += tr("    Aviso: %1\n").arg(Texto(aviso));
  }
  if (resultado.fallo != FalloImportacion::Ninguno)
    return tr("%1: NO se importó\n    %2\n").arg(nombre, Texto(resultado.error)) + avisos + QLatin1Char('\n');
  QString texto = tr("%1: %2, %3 (%4)\n")
                      .arg(nombre, Texto(resultado.registro.localidad), Texto(resultado.registro.provincia),
                           marchas_[i].texto);
  for (const std::string &frase : TextoInforme(importado.informe))
    texto += QStringLiteral("    %1\n").arg(Texto(frase));
  return texto + avisos + QLatin1Char('\n');
}

void DialogoImportar::EscribirResumen() {
  const std::size_t hechas = Contar(Estado::Importado);
  const std::size_t fallidas = Contar(Estado::Fallido);
  QString cabecera = tr("Importadas: %1. No importadas: %2.").arg(hechas).arg(fallidas);
  if (cancelado_) cabecera += tr(" Se detuvo antes de acabar: quedan %1.").arg(Contar(Estado::Listo));
  meResumen_->setPlainText(cabecera + QStringLiteral("\n\n") + resumen_);
  fichas_->setCurrentWidget(meResumen_);
}

} // namespace tesmo
