#pragma once

#include "solar/Formatoshorizonte.h"
#include "vistas/sol/Contenidosolar.h"

#include <QDialog>

class QCheckBox;
class QLabel;

namespace tesmo {

class GraficoSolar;

/// Vista previa de un perfil que viene de otro programa sobre los caminos del sol: los mismos números pueden
/// ser paisajes distintos, y quien lo conoce lo gira o lo refleja antes de aceptarlo.
class DialogoHorizonte : public QDialog {
  Q_OBJECT

public:
  /// @param leido perfil de otro programa; @param fichero su nombre, para la persona; @param latitud [°], de
  /// los caminos del sol que se ven debajo
  DialogoHorizonte(HorizonteLeido leido, const QString &fichero, float latitud, QWidget *padre);

  /// El perfil como se ve: reflejado, girado y con la vuelta cerrada al norte.
  [[nodiscard]] PerfilHorizonte Perfil() const;

private:
  QWidget *CrearOrdenes();
  void Girar(int cuartos);
  void Reflejar();
  void Redibujar();

  HorizonteLeido leido_;
  int cuartos_ = 0; ///< hacia el oeste
  ContenidoSolar contenido_;
  GraficoSolar *grafico_ = nullptr;
  QCheckBox *cbEspejo_ = nullptr;
  QLabel *lbGiro_ = nullptr;
};

} // namespace tesmo
