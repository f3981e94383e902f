#pragma once

#include "intercambio/Ficheroimportable.h"

#include <QWidget>

#include <string>
#include <vector>

class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;

namespace tesmo {

class CasillaOpcional;
class CasillaReal;
class DibujoReloj;

/// Lo que se elige de un fichero que se va a importar: localidad, provincia, zona y reloj, con el dibujo del
/// reloj. Sólo controles: lee y escribe el fichero que se le pone.
class FichaImportar : public QWidget {
  Q_OBJECT

public:
  explicit FichaImportar(const std::vector<std::string> &provincias, QWidget *padre = nullptr);

  /// Enseña @p fichero, que ha de vivir hasta que se ponga otro; nulo: nada, y los controles quedan apagados.
  void Poner(FicheroImportable *fichero);

  /// Añade @p provincia a las que se ofrecen, si no está.
  void OfrecerProvincia(const QString &provincia);

signals:
  /// La persona cambió algo del fichero.
  void cambiada();
  /// La provincia de este fichero, para todos.
  void provinciaParaTodos();

private:
  /// De dónde sale el reloj, en el orden del selector.
  enum Reloj { DeLosDatos, Declarado, Solar, Oficial, Utc };
  QWidget *CrearDatos(const std::vector<std::string> &provincias);
  QWidget *CrearReloj();
  void Ensenar();
  void EnsenarReloj();
  void Dibujar();
  void LeerDatos();
  void ElegirReloj();
  void PonReloj(double RelojFichero::*numero, double valor);

  FicheroImportable *fichero_ = nullptr;
  bool ensenando_ = false; ///< los controles cambian porque se pone otro fichero
  QLineEdit *edLocalidad_ = nullptr;
  QComboBox *cbProvincia_ = nullptr;
  QPushButton *btnTodos_ = nullptr;
  QComboBox *cbZona_ = nullptr;
  CasillaOpcional *csAltitud_ = nullptr;
  QCheckBox *cbReemplazar_ = nullptr;
  QCheckBox *cbRellenar_ = nullptr;
  QComboBox *cbReloj_ = nullptr;
  CasillaReal *csDesfase_ = nullptr;
  CasillaReal *csHuso_ = nullptr;
  DibujoReloj *dibujo_ = nullptr;
};

} // namespace tesmo
