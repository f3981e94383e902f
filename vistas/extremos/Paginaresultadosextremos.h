#pragma once

#include <QString>
#include <QWidget>

class QHBoxLayout;
class QListWidget;
class QPlainTextEdit;

namespace tesmo {

class Grafico;

/// Página "Resultados Dias extremos": los dos días de proyecto, uno encima de otro, la lista de magnitudes
/// que se ven en ambos y el cálculo en cifras. Sólo controles.
class PaginaResultadosExtremos : public QWidget {
  Q_OBJECT

public:
  explicit PaginaResultadosExtremos(QWidget *padre = nullptr);

  [[nodiscard]] Grafico &DameCalefaccion() { return *graDiaExtCal_; }
  [[nodiscard]] Grafico &DameRefrigeracion() { return *graDiaExtRef_; }

  /// La lista, sin avisar de los cambios. Un elemento nuevo no está marcado.
  void VaciarLista();
  void AnadirElemento(const QString &texto, const QColor &color);
  void Marcar(int elemento);
  [[nodiscard]] bool Marcado(int elemento) const;

  /// Renglones de una o de tres columnas separadas por tabuladores.
  void PonDerivacion(const QString &texto);

signals:
  void CheckListBox1ClickCheck();
  void Button1Click();

private:
  QWidget *CrearLista();
  void CrearCasillas();
  QHBoxLayout *CrearBotones();
  QWidget *CrearGraficos();
  static Grafico *CrearGrafico(const QString &nombre);

  QListWidget *CheckListBox1_ = nullptr;
  bool enNombre_ = false; ///< se bajó el botón del ratón en un nombre de la lista
  QPlainTextEdit *edDerivacion_ = nullptr;
  Grafico *graDiaExtCal_ = nullptr;
  Grafico *graDiaExtRef_ = nullptr;
};

} // namespace tesmo
