#pragma once

#include "meteo/Magnitudes.h"

#include <QColor>
#include <QWidget>

#include <array>

class QCheckBox;
class QHBoxLayout;
class QMenu;
class QPushButton;
class QVBoxLayout;

namespace tesmo {

class Grafico;

/// Página "Visualizar datos": una casilla con su muestra de color por magnitud, en sus tres grupos, el
/// gráfico y sus botones. Sólo controles.
class PaginaEntorno : public QWidget {
  Q_OBJECT

public:
  explicit PaginaEntorno(QWidget *padre = nullptr);

  [[nodiscard]] Grafico &DameGrafico() { return *graEntorno_; }
  /// Casilla de la magnitud @p i (0 a 20, orden del visor).
  [[nodiscard]] QCheckBox &Casilla(int i) { return *casillas_.at(static_cast<std::size_t>(i)); }
  void PonColor(int i, const QColor &color);
  /// ¿Se pide que las líneas se distingan también por su trazo?
  [[nodiscard]] bool TrazosDistintos() const;

signals:
  void visualizarPedido();
  void ejesPorUnidadPedidos();
  void casillaCambiada(int i);
  void trazosCambiados();
  /// Se va a enseñar el menú de la casilla @p i; quien escucha le añade sus órdenes.
  void menuPreparado(QMenu *menu, int i);

private:
  QWidget *CrearColumna();
  QWidget *CrearCasillas();
  QHBoxLayout *CrearBotones();
  QCheckBox *CrearCasilla(const FichaMagnitud &ficha);
  void EnsenarMenu(int i, const QPoint &donde);

  std::array<QCheckBox *, NUMERO_MAGNITUDES_VISOR> casillas_{};
  QCheckBox *cbTrazosDistintos_ = nullptr;
  Grafico *graEntorno_ = nullptr;
};

} // namespace tesmo
