#include "core/Ficheros.h"
#include "vistas/Graficointerno.h"
#include "vistas/Lectura.h"

#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QFileInfo>
#include <QPdfWriter>
#include <QSvgGenerator>

#include <cmath>
#include <limits>

namespace tesmo {

namespace {

/// La imagen guardada dobla la resolución de la pantalla, para informes impresos.
constexpr double ESCALA_DE_GUARDADO = 2.0;
/// Resolución en que un píxel del dibujo vectorial es un píxel de pantalla [puntos por pulgada].
constexpr int RESOLUCION = 96;
constexpr double PUNTOS_POR_PULGADA = 72.0;

/// Valor de la curva en @p x; no es un número si la curva no llega a ese punto.
double ValorEn(const QCPGraph &curva, double x) {
  const auto punto = curva.data()->findBegin(x, false);
  const bool esta = punto != curva.data()->constEnd() && punto->key == x;
  return esta ? punto->value : std::numeric_limits<double>::quiet_NaN();
}

} // namespace

QImage Grafico::Imagen(double escala) const {
  return interno_->trazo->toPixmap(interno_->trazo->width(), interno_->trazo->height(), escala).toImage();
}

QByteArray Grafico::ImagenPng() const {
  QByteArray bytes;
  QBuffer destino(&bytes);
  destino.open(QIODevice::WriteOnly);
  Imagen(ESCALA_DE_GUARDADO).save(&destino, "PNG");
  return bytes;
}

void Grafico::PintarVectorial(QPaintDevice &destino) const {
  QCPPainter pintor;
  pintor.begin(&destino);
  pintor.setMode(QCPPainter::pmVectorized);
  pintor.setMode(QCPPainter::pmNoCaching);
  interno_->trazo->toPainter(&pintor, interno_->trazo->width(), interno_->trazo->height());
  pintor.end();
}

QByteArray Grafico::ImagenSvg() const {
  QByteArray bytes;
  QBuffer destino(&bytes);
  destino.open(QIODevice::WriteOnly);
  QSvgGenerator generador;
  generador.setOutputDevice(&destino);
  generador.setResolution(RESOLUCION);
  generador.setSize(interno_->trazo->size());
  generador.setViewBox(interno_->trazo->rect());
  generador.setTitle(windowTitle());
  PintarVectorial(generador);
  return bytes;
}

QByteArray Grafico::ImagenPdf() const {
  QByteArray bytes;
  QBuffer destino(&bytes);
  destino.open(QIODevice::WriteOnly);
  QPdfWriter escritor(&destino);
  escritor.setResolution(RESOLUCION);
  const QSizeF puntos = QSizeF(interno_->trazo->size()) * (PUNTOS_POR_PULGADA / RESOLUCION);
  escritor.setPageSize(QPageSize(puntos, QPageSize::Point, QString(), QPageSize::ExactMatch));
  escritor.setPageMargins(QMarginsF());
  PintarVectorial(escritor);
  return bytes;
}

bool Grafico::GuardarImagen(const QString &ruta) const {
  const QString extension = QFileInfo(ruta).suffix().toLower();
  const QByteArray bytes = extension == QLatin1String("svg")   ? ImagenSvg()
                           : extension == QLatin1String("pdf") ? ImagenPdf()
                                                               : ImagenPng();
  return EscribirFicheroEntero(RutaDesdeTexto(ruta.toStdString()),
                               std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())));
}

void Grafico::CopiarImagen() const { QApplication::clipboard()->setImage(Imagen(ESCALA_DE_GUARDADO)); }

void Grafico::CopiarDatos() const { QApplication::clipboard()->setText(TextoDatos()); }

QString Grafico::TextoDatos() const {
  if (!interno_->escala) return {};
  const auto [desde, hasta] = Tramo();
  const int primero = static_cast<int>(std::ceil(std::max(desde, interno_->escala->Primero())));
  const int ultimo = static_cast<int>(std::floor(std::min(hasta, interno_->escala->Ultimo())));
  std::vector<double> x;
  for (int k = primero; k <= ultimo; ++k) x.push_back(k);
  std::vector<std::string> rotulos;
  std::vector<std::vector<double>> valores;
  for (const auto &[serie, curva] : interno_->series) {
    if (!serie.visible) continue;
    rotulos.push_back(serie.rotulo.toStdString());
    std::vector<double> &y = valores.emplace_back();
    for (const double en : x) y.push_back(ValorEn(*curva, en));
  }
  std::vector<ColumnaTexto> columnas;
  for (std::size_t i = 0; i < valores.size(); ++i) columnas.push_back({rotulos[i], valores[i]});
  return QString::fromStdString(TablaDeTexto(*interno_->escala, x, columnas));
}

} // namespace tesmo
