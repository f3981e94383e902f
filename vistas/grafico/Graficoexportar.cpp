#include "vistas/comun/Guardardibujo.h"
#include "vistas/grafico/Graficointerno.h"
#include "vistas/grafico/Lectura.h"

#include <QApplication>
#include <QClipboard>

#include <cmath>
#include <limits>

namespace tesmo {

namespace {

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

void Grafico::PintarVectorial(QPaintDevice &destino) const {
  QCPPainter pintor;
  pintor.begin(&destino);
  pintor.setMode(QCPPainter::pmVectorized);
  pintor.setMode(QCPPainter::pmNoCaching);
  interno_->trazo->toPainter(&pintor, interno_->trazo->width(), interno_->trazo->height());
  pintor.end();
}

bool Grafico::GuardarImagen(const QString &ruta) const {
  const QString extension = ExtensionVectorial(ruta);
  return EscribirBytes(ruta,
                       extension.isEmpty()
                           ? BytesPng(Imagen(ESCALA_DE_GUARDADO))
                           : DibujoVectorial(extension, interno_->trazo->size(), windowTitle(),
                                             [this](QPaintDevice &destino) { PintarVectorial(destino); }));
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
