#pragma once

#include "vistas/carta/Pintorcarta.h"

#include <QPixmap>
#include <QWidget>

#include <functional>
#include <optional>

namespace tesmo {

/// La carta psicrométrica con sus escalas, pintada una vez en memoria. Dentro, el control "imgPsicro" ocupa
/// justo la carta: sus píxeles son los del modelo. La retícula se pinta encima, sin rehacer el dibujo, y se
/// quita cuando el puntero sale.
class MarcoCarta : public QWidget {
  Q_OBJECT

public:
  explicit MarcoCarta(QWidget *padre = nullptr);

  /// @p contenido vive mientras se dibuje; nulo: fondo blanco.
  void PonContenido(ContenidoCarta *contenido);
  /// Cambiaron las líneas, las marcas o los puntos: se dibuja otra vez, una sola, cuando haya que enseñarlo.
  void Redibujar();
  /// Pinta con @p accion sobre el dibujo en memoria, con el origen en el de la carta. Se ve hasta que se
  /// vuelva a dibujar.
  void PintarEncima(const std::function<void(QPainter &)> &accion);
  /// Cuántas veces se ha dibujado.
  [[nodiscard]] int VecesDibujada() const { return vecesDibujada_; }
  /// Tamaño de la carta sin sus escalas [píxeles].
  [[nodiscard]] QSize TamanoDeCarta() const;
  /// Líneas cruzadas en un punto de la carta, o ninguna.
  void PonReticula(std::optional<QPoint> sitio);
  [[nodiscard]] std::optional<QPoint> Reticula() const { return reticula_; }

  /// El dibujo, sin la retícula, a @p escala píxeles por píxel de pantalla.
  [[nodiscard]] QImage Imagen(double escala) const;
  /// Guarda en PNG, SVG o PDF según la extensión de @p ruta; falso si no se pudo.
  [[nodiscard]] bool GuardarImagen(const QString &ruta) const;

signals:
  void punteroMovido(int x, int y);
  /// Sólo el botón izquierdo, también en la segunda pulsación de un doble clic.
  void botonPulsado(int x, int y);
  void menuPedido(const QPoint &donde);

protected:
  void paintEvent(QPaintEvent *suceso) override;
  void resizeEvent(QResizeEvent *suceso) override;
  bool eventFilter(QObject *objeto, QEvent *suceso) override;

private:
  void DibujarSiHaceFalta();
  void PonTamano();
  void PintarReticula();
  void Pintar(QPaintDevice &destino) const;

  ContenidoCarta *contenido_ = nullptr;
  QWidget *imgPsicro_ = nullptr;
  QPixmap dibujo_;
  int vecesDibujada_ = 0;
  std::optional<QPoint> reticula_;
};

} // namespace tesmo
