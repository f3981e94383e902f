#pragma once

#include "meteo/Magnitudes.h"

#include <QWidget>

#include <string>
#include <vector>

class QCheckBox;
class QGroupBox;
class QListWidget;
class QPushButton;
class QRadioButton;

namespace tesmo {

/// Página "Archivos horarios": una casilla por variable que se exporta, la lista de las elegidas en su orden
/// (que también se cambia arrastrando) y las opciones del fichero. Sólo controles.
class PaginaExportacion : public QWidget {
  Q_OBJECT

public:
  explicit PaginaExportacion(QWidget *padre = nullptr);

  /// Añade @p rotulo al final de la lista, si no está ya.
  void Anadir(const QString &rotulo);
  /// Quita @p rotulo de la lista, si está.
  void Quitar(const QString &rotulo);
  /// Mueve un lugar hacia arriba, y la deja elegida, la primera variable elegida que no es ya la primera;
  /// sólo ésa.
  void Subir();
  /// Lo mismo hacia abajo con la primera elegida que no es la última.
  void Bajar();

  /// Los rótulos de la lista, en su orden.
  [[nodiscard]] std::vector<std::string> Rotulos() const;
  /// El del botón marcado; vacío si no hay ninguno.
  [[nodiscard]] std::string Separador() const;
  [[nodiscard]] bool Cabecera() const;

signals:
  void casillaCambiada(const QString &rotulo, bool puesta);
  void subirPedido();
  void bajarPedido();
  void escribirPedido();

private:
  QWidget *CrearMagnitudes();
  QCheckBox *CrearCasilla(const FichaMagnitud &ficha);
  QGroupBox *CrearLista();
  QWidget *CrearOpciones();
  QGroupBox *CrearSeparadores();
  void Mover(int paso);

  QListWidget *lbListaVariables_ = nullptr;
  QCheckBox *cbCabecera_ = nullptr;
  std::vector<std::pair<QRadioButton *, const char *>> separadores_;
};

} // namespace tesmo
