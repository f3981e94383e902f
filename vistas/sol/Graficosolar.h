#pragma once

#include "vistas/sol/Contenidosolar.h"

#include <QImage>
#include <QPixmap>
#include <QWidget>

#include <optional>

class QLabel;

namespace tesmo {

class EscalaSolar;

/// Dónde está el ratón sobre la carta solar, en grados, aunque caiga fuera del marco.
struct SitioRaton {
  float acimut;
  float altura;
  bool mayusculas;
  AlcanceRaton alcance;  ///< lo que mide la marca de un punto
  bool repetido = false; ///< al soltar: es la segunda vez de un doble clic
};

/// La carta solar: acimut en horizontal y altura en vertical, con los caminos del sol y el horizonte. No se
/// mueve ni se amplía, y el botón derecho nunca abre un menú. Lo que se hace con el ratón sólo se cuenta.
class GraficoSolar : public QWidget {
  Q_OBJECT

public:
  explicit GraficoSolar(QWidget *padre = nullptr);

  /// @p contenido vive mientras se dibuje; nulo: sólo la rejilla.
  void PonContenido(const ContenidoSolar *contenido);
  /// Texto que se lee en el centro; vacío, ninguno.
  void PonAviso(const QString &aviso);
  /// Vuelve a dibujar: cambiaron las series.
  void Redibujar();
  /// El orden de los meses de la curva más alta a la más baja; vacío: no se ve.
  void PonOrdenDeMeses(const QString &texto);
  /// El control en que se lee, para darle nombre.
  [[nodiscard]] QLabel &OrdenDeMeses() { return *stMeses_; }

  /// Los grados de un punto del control [px] y al revés.
  [[nodiscard]] SitioRaton SitioEn(const QPointF &pixel) const;
  [[nodiscard]] QPointF PixelDe(float acimut, float altura) const;

  [[nodiscard]] QImage Imagen(double escala) const;
  /// Guarda en PNG, SVG o PDF según la extensión de @p ruta; falso si no se pudo.
  [[nodiscard]] bool GuardarImagen(const QString &ruta) const;

signals:
  void izquierdoPulsado(const SitioRaton &sitio);
  void izquierdoSoltado(const SitioRaton &sitio);
  void derechoPulsado(const SitioRaton &sitio);
  void movido(const SitioRaton &sitio);

protected:
  void paintEvent(QPaintEvent *suceso) override;
  void resizeEvent(QResizeEvent *suceso) override;
  void mousePressEvent(QMouseEvent *suceso) override;
  void mouseDoubleClickEvent(QMouseEvent *suceso) override;
  void mouseReleaseEvent(QMouseEvent *suceso) override;
  void mouseMoveEvent(QMouseEvent *suceso) override;
  void leaveEvent(QEvent *suceso) override;

private:
  [[nodiscard]] const ContenidoSolar &Contenido() const;
  [[nodiscard]] EscalaSolar Escala() const;
  [[nodiscard]] double AlturaMaxima() const;
  void SoltarEje();
  [[nodiscard]] SitioRaton Sitio(const QMouseEvent &suceso) const;
  void Pintar(QPaintDevice &destino, bool conOrden) const;
  void ColocarTextos();
  void LeerPuntero(const SitioRaton &sitio);

  const ContenidoSolar *contenido_ = nullptr;
  QString aviso_;
  QPixmap dibujo_;
  QLabel *stMeses_ = nullptr;
  QLabel *lbPuntero_ = nullptr;
  /// Donde acaba el eje de alturas [°] mientras el botón izquierdo está pulsado: si cambiara bajo el ratón,
  /// el punto que se arrastra saltaría.
  std::optional<double> alturaAlPulsar_;
  bool dobleClic_ = false; ///< desde la segunda pulsación del izquierdo hasta que se suelta
};

} // namespace tesmo
