#include "vistas/grafico/Graficointerno.h"

#include <QVBoxLayout>

#include <cmath>
#include <limits>

namespace tesmo {

namespace {

/// Con menos puntos que estos un círculo señala cada uno.
constexpr int PUNTOS_SENALADOS = 2;
constexpr double DIAMETRO_SENAL = 6.0;
constexpr QSize TAMANO_MINIMO(320, 220);

/// Pone en el eje de QCustomPlot las marcas que decide la escala.
class MarcadorDeEscala : public QCPAxisTicker {
public:
  MarcadorDeEscala(std::shared_ptr<const EscalaX> escala, const QCPAxisRect *marco)
      : escala_(std::move(escala)), marco_(marco) {}

  void generate(const QCPRange &tramo, const QLocale &, QChar, int, QVector<double> &marcas,
                QVector<double> *submarcas, QVector<QString> *textos) override {
    const double ancho = marco_->width();
    marcas.clear();
    if (textos) textos->clear();
    for (const MarcaEje &marca : escala_->Marcas(tramo.lower, tramo.upper, ancho)) {
      marcas.append(marca.posicion);
      if (textos) textos->append(QString::fromStdString(marca.texto));
    }
    if (!submarcas) return;
    const std::vector<double> posiciones = escala_->Submarcas(tramo.lower, tramo.upper, ancho);
    *submarcas = QVector<double>(posiciones.begin(), posiciones.end());
  }

private:
  std::shared_ptr<const EscalaX> escala_;
  const QCPAxisRect *marco_;
};

void PrepararEjes(QCustomPlot &trazo, const QFont &letra) {
  QFont pequena = letra;
  pequena.setPointSizeF(letra.pointSizeF() * 0.9);
  for (QCPAxis *eje : {trazo.xAxis, trazo.yAxis, trazo.yAxis2}) {
    eje->setTickLabelFont(pequena);
    eje->setLabelFont(letra);
    eje->setNumberFormat(QStringLiteral("g"));
    eje->setBasePen(QPen(QColor(90, 90, 90)));
    eje->grid()->setZeroLinePen(QPen(QColor(150, 150, 150)));
  }
  trazo.yAxis2->grid()->setVisible(false);
}

/// La leyenda va sobre los datos, en su propia fila, para no taparlos.
void SacarLeyenda(QCustomPlot &trazo) {
  trazo.axisRect()->insetLayout()->take(trazo.legend);
  trazo.plotLayout()->insertRow(0);
  trazo.plotLayout()->addElement(0, 0, trazo.legend);
  trazo.plotLayout()->setRowStretchFactor(0, 0.001);
  trazo.plotLayout()->setRowSpacing(0);
  trazo.legend->setBorderPen(Qt::NoPen);
  trazo.legend->setRowSpacing(0);
  trazo.legend->setMargins(QMargins(0, 0, 0, 0));
  // Sin esto, una leyenda vacía limitaría a cero el ancho de su columna, que es también la de los ejes.
  trazo.legend->setMaximumSize(QWIDGETSIZE_MAX - 1, QWIDGETSIZE_MAX);
  trazo.legend->setVisible(false);
}

QPen Pluma(const SerieGrafico &serie) {
  QPen pluma(serie.color, serie.grosor);
  if (serie.trazo.isEmpty()) return pluma;
  pluma.setDashPattern(serie.trazo);
  pluma.setCapStyle(Qt::FlatCap); // unas puntas salientes cerrarían los huecos
  return pluma;
}

} // namespace

Grafico::Grafico(QWidget *padre) : QWidget(padre), interno_(std::make_unique<Interno>()) {
  interno_->trazo = new QCustomPlot(this);
  interno_->trazo->setObjectName(QStringLiteral("trazo"));
  interno_->trazo->setLocale(QLocale());
  interno_->trazo->setFocusProxy(this);
  interno_->capa = new CapaCursor(this);
  auto *disposicion = new QVBoxLayout(this);
  disposicion->setContentsMargins(0, 0, 0, 0);
  disposicion->addWidget(interno_->trazo);
  setMinimumSize(TAMANO_MINIMO);
  setFocusPolicy(Qt::StrongFocus);
  PrepararEjes(*interno_->trazo, font());
  SacarLeyenda(*interno_->trazo);
  ConectarRaton();
  Redibujar();
}

Grafico::~Grafico() = default;

void Grafico::PonEscala(std::shared_ptr<const EscalaX> escala) {
  interno_->escala = std::move(escala);
  interno_->trazo->xAxis->setTicker(
      QSharedPointer<MarcadorDeEscala>::create(interno_->escala, interno_->trazo->axisRect()));
  interno_->trazo->xAxis->setLabel(QString::fromStdString(interno_->escala->Titulo()));
  PonTramo(interno_->escala->Primero() - AIRE_X, interno_->escala->Ultimo() + AIRE_X);
}

void Grafico::PonAviso(const QString &aviso) {
  interno_->aviso = aviso;
  Redibujar();
}

void Grafico::Vaciar() {
  interno_->capa->Ocultar();
  interno_->trazo->legend->clearItems();
  for (const SerieTrazada &trazada : interno_->series) interno_->trazo->removePlottable(trazada.curva);
  interno_->series.clear();
}

int Grafico::AnadirSerie(const SerieGrafico &serie, std::span<const float> valores) {
  auto *curva = new CurvaDiezmada(interno_->trazo->xAxis, interno_->Eje(serie.lado));
  curva->removeFromLegend();
  curva->setName(serie.clave);
  curva->setPen(Pluma(serie));
  curva->setVisible(serie.visible);
  QVector<QCPGraphData> puntos;
  puntos.reserve(static_cast<qsizetype>(valores.size()));
  const double primera = interno_->PrimeraAbscisa();
  for (const float valor : valores) puntos.append({primera + static_cast<double>(puntos.size()), valor});
  curva->data()->set(puntos, true);
  if (puntos.size() < PUNTOS_SENALADOS) {
    curva->setScatterStyle(QCPScatterStyle(QCPScatterStyle::ssDisc, DIAMETRO_SENAL));
  }
  interno_->series.push_back({serie, curva});
  return NumeroSeries() - 1;
}

int Grafico::NumeroSeries() const { return static_cast<int>(interno_->series.size()); }

const SerieGrafico &Grafico::Serie(int indice) const { return interno_->En(indice).serie; }

int Grafico::NumeroPuntos(int indice) const { return interno_->En(indice).curva->data()->size(); }

QPointF Grafico::Punto(int indice, int k) const {
  const auto punto = interno_->En(indice).curva->data()->at(k);
  return {punto->key, punto->value};
}

double Grafico::MayorValor(int indice) const {
  double mayor = 0.0;
  for (const QCPGraphData &punto : *interno_->En(indice).curva->data()) {
    if (std::isfinite(punto.value)) mayor = std::max(mayor, std::abs(punto.value));
  }
  return mayor;
}

void Grafico::PonVisible(int indice, bool visible) {
  interno_->En(indice).serie.visible = visible;
  interno_->En(indice).curva->setVisible(visible);
}

void Grafico::PonLado(int indice, LadoEje lado) {
  interno_->En(indice).serie.lado = lado;
  interno_->En(indice).curva->setValueAxis(interno_->Eje(lado));
}

void Grafico::PonColor(int indice, const QColor &color) {
  SerieTrazada &trazada = interno_->En(indice);
  trazada.serie.color = color;
  trazada.curva->setPen(Pluma(trazada.serie));
}

void Grafico::PonTrazo(int indice, const QList<qreal> &trazo) {
  SerieTrazada &trazada = interno_->En(indice);
  trazada.serie.trazo = trazo;
  trazada.curva->setPen(Pluma(trazada.serie));
}

void Grafico::FijarLimites(LadoEje lado, const LimitesEje &limites) {
  interno_->LimitesFijos(lado) = limites;
}

void Grafico::Redibujar() {
  RehacerLeyenda();
  RehacerEje(LadoEje::Izquierdo);
  RehacerEje(LadoEje::Derecho);
  interno_->trazo->replot();
  interno_->capa->PonAviso(rect(), Leyenda().isEmpty() ? interno_->aviso : QString());
}

void Grafico::RehacerLeyenda() {
  QCPLegend &leyenda = *interno_->trazo->legend;
  leyenda.clearItems();
  int ancho = 1;
  std::vector<EntradaLeyenda *> entradas;
  for (int i = 0; i < NumeroSeries(); ++i) {
    const SerieGrafico &serie = Serie(i);
    if (!serie.visible) continue;
    const QString texto =
        serie.leyenda.isEmpty() ? serie.clave + QStringLiteral(": ") + serie.rotulo : serie.leyenda;
    entradas.push_back(new EntradaLeyenda(&leyenda, i, texto, Pluma(serie)));
    entradas.back()->setFont(interno_->trazo->xAxis->tickLabelFont());
    ancho = std::max(ancho, entradas.back()->AnchoNecesario());
  }
  leyenda.setFillOrder(QCPLayoutGrid::foColumnsFirst, false);
  leyenda.setWrap(std::max(1, interno_->trazo->width() / (ancho + leyenda.columnSpacing())));
  for (EntradaLeyenda *entrada : entradas) leyenda.addItem(entrada);
  leyenda.simplify();
  leyenda.setVisible(!entradas.empty());
}

void Grafico::RehacerEje(LadoEje lado) {
  double minimo = std::numeric_limits<double>::infinity();
  double maximo = -minimo;
  std::vector<std::string> rotulos;
  for (const auto &[serie, curva] : interno_->series) {
    if (!serie.visible || serie.lado != lado) continue;
    rotulos.push_back(serie.rotulo.toStdString());
    for (const QCPGraphData &punto : *curva->data()) {
      if (!std::isfinite(punto.value)) continue;
      minimo = std::min(minimo, punto.value);
      maximo = std::max(maximo, punto.value);
    }
  }
  const LimitesEje limites = interno_->LimitesFijos(lado).value_or(LimitesConAire(minimo, maximo));
  QCPAxis &eje = *interno_->Eje(lado);
  eje.setRange(limites.minimo, limites.maximo);
  eje.setLabel(QString::fromStdString(TituloDeEje(rotulos)));
  eje.setVisible(lado == LadoEje::Izquierdo || !rotulos.empty());
}

void Grafico::VerTodo() {
  if (!interno_->escala) return;
  interno_->trazo->xAxis->setRange(interno_->escala->Primero() - AIRE_X, interno_->escala->Ultimo() + AIRE_X);
  Redibujar();
}

std::pair<double, double> Grafico::Tramo() const {
  const QCPRange tramo = interno_->trazo->xAxis->range();
  return {tramo.lower, tramo.upper};
}

void Grafico::PonTramo(double desde, double hasta) {
  interno_->trazo->xAxis->setRange(desde, hasta);
  interno_->trazo->replot();
}

LimitesEje Grafico::Limites(LadoEje lado) const {
  const QCPRange limites = interno_->Eje(lado)->range();
  return {limites.lower, limites.upper};
}

QString Grafico::TituloEje(LadoEje lado) const { return interno_->Eje(lado)->label(); }

bool Grafico::EjeALaVista(LadoEje lado) const { return interno_->Eje(lado)->visible(); }

QStringList Grafico::Leyenda() const {
  QStringList textos;
  const QCPLegend &leyenda = *interno_->trazo->legend;
  for (int i = 0; i < leyenda.itemCount(); ++i) {
    if (const auto *entrada = dynamic_cast<EntradaLeyenda *>(leyenda.item(i)))
      textos.append(entrada->Texto());
  }
  return textos;
}

QRect Grafico::Marco() const { return interno_->trazo->axisRect()->rect(); }

} // namespace tesmo
