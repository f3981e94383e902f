#pragma once

#include "meteo/Fecha.h"

#include <QWidget>

#include <array>
#include <string>
#include <vector>

class QBoxLayout;
class QComboBox;
class QGridLayout;
class QLineEdit;
class QPushButton;
class QSpinBox;

namespace tesmo {

/// Panel bajo las páginas de una ventana de trabajo: provincia, localidad y su latitud, período y
/// "Actualizar". Sólo controles: no decide nada. Si no cabe en una fila se pone en dos. Un valor tecleado
/// cuenta cuando se termina (flechas, Intro o salir de la casilla).
class PanelSeleccion : public QWidget {
  Q_OBJECT

public:
  explicit PanelSeleccion(QWidget *padre = nullptr);

  /// Rellenan los selectores sin emitir señales; el de localidades empieza por SIN_LOCALIDAD, que queda
  /// elegida.
  void PonProvincias(const std::vector<std::string> &provincias);
  void PonLocalidades(const std::vector<std::string> &localidades);
  /// Lo mismo sin cambiar lo elegido, si sigue en la lista.
  void ActualizarProvincias(const std::vector<std::string> &provincias);
  void ActualizarLocalidades(const std::vector<std::string> &localidades);
  [[nodiscard]] std::string Provincia() const;
  [[nodiscard]] std::string Localidad() const;

  /// Texto de la casilla, de sólo lectura, con la latitud de la localidad [°].
  void PonLatitud(const std::string &latitud);
  [[nodiscard]] std::string Latitud() const;

  /// Lo que dicen las seis casillas, terminando antes lo que se esté tecleando.
  [[nodiscard]] Periodo LeerPeriodo() const;
  /// Pone las seis casillas, y el máximo de cada día según su mes, sin emitir señales.
  void PonPeriodo(const Periodo &periodo);

  [[nodiscard]] QSize minimumSizeHint() const override;

signals:
  void provinciaCambiada();
  void localidadCambiada();
  void periodoCambiado();
  void actualizarPedido();

protected:
  void resizeEvent(QResizeEvent *suceso) override;

private:
  /// Las tres casillas de un extremo del período.
  struct Extremo {
    QSpinBox *mes = nullptr;
    QSpinBox *dia = nullptr;
    QSpinBox *hora = nullptr;
  };
  QGridLayout *CrearRejilla();
  QComboBox *CrearSelector(QGridLayout &rejilla, int columna, const QString &nombre, const QString &titulo);
  QLineEdit *CrearLatitud(QGridLayout &rejilla, int columna);
  Extremo CrearExtremo(QGridLayout &rejilla, int columna, const QString &titulo, const QString &sufijo);
  QSpinBox *CrearCasilla(const QString &nombre, int maximo, const QString &ayuda);
  static FechaHora Leer(const Extremo &extremo);
  static void Poner(const Extremo &extremo, const FechaHora &fecha);

  QBoxLayout *caja_ = nullptr; ///< lugar y período, en una fila o en dos
  QComboBox *cbProvincias_ = nullptr;
  QComboBox *cbLocalidades_ = nullptr;
  QLineEdit *edLatitud_ = nullptr;
  Extremo inicio_;
  Extremo fin_;
  QPushButton *btnActualizar_ = nullptr;
};

} // namespace tesmo
