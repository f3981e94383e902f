#pragma once

#include "meteo/Magnitudes.h"

#include <QColor>
#include <QDialog>

#include <array>

class QLineEdit;
class QWidget;

namespace tesmo {

class Configuracion;

/// Diálogo "Colores": una etiqueta y una muestra por magnitud. Pulsar la etiqueta (o Espacio o Intro sobre
/// ella) abre el selector de color "cdColores"; hasta "Aceptar" nada cambia fuera del diálogo.
class TforColores : public QDialog {
  Q_OBJECT

public:
  /// @p tabla le sobrevive.
  explicit TforColores(Configuracion &tabla, QWidget *padre = nullptr);

  /// Color de la muestra de la magnitud @p i (0 a 20).
  [[nodiscard]] QColor Muestra(int i) const;
  void PonMuestra(int i, const QColor &color);

  /// "Aceptar": pasa las muestras a la tabla, escribe su fichero y cierra.
  void accept() override;

signals:
  /// La tabla tiene los colores nuevos; @p guardados dice si también se pudieron escribir en su fichero.
  void aplicados(bool guardados);

private:
  QWidget *CrearFila(const FichaMagnitud &ficha);
  void ElegirColor(int i);

  Configuracion &tabla_;
  std::array<QLineEdit *, NUMERO_MAGNITUDES_VISOR> muestras_{};
};

} // namespace tesmo
