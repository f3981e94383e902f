#pragma once

#include "vistas/carta/Nubecarta.h"

#include <QWidget>

#include <array>

class QDoubleSpinBox;
class QGridLayout;
class QGroupBox;
class QLineEdit;
class QPushButton;
class QSpinBox;

namespace tesmo {

class MarcoCarta;
class TablaPuntos;

/// Página "Psicrométrico  ": la carta, los valores bajo el puntero, la nube de horas, las familias a la vista
/// y la tabla de puntos fijados. Sólo controles.
class PaginaPsicrometrico : public QWidget {
  Q_OBJECT

public:
  static constexpr int NUMERO_VALORES = 8;
  static constexpr int NUMERO_FAMILIAS_VISTAS = 5;

  explicit PaginaPsicrometrico(QWidget *padre = nullptr);

  [[nodiscard]] MarcoCarta &DameMarco() { return *marco_; }
  [[nodiscard]] TablaPuntos &DameTabla() { return *tabla_; }
  /// Textos del panel de valores, en su orden: T, W, H, HR, VE, TR, TH y presión.
  void PonValores(const QStringList &textos);
  /// Color del punto en su muestra.
  void PonColorPunto(const QColor &color);
  /// Altitud en uso [m], sin emitir señales.
  void PonAltitud(double altitud, bool delUsuario);
  /// Da por terminado lo que se teclea, que puede emitir altitudCambiada: la tecla de un botón lo pulsa sin
  /// salir de la casilla en que se está.
  void TerminarDeTeclear();
  [[nodiscard]] int HoraInicial() const;
  [[nodiscard]] int HoraFinal() const;

signals:
  void representarPedido();
  void limpiarPedido();
  void colorPuntoPedido();
  void coloreoCambiado(ColoreoNube coloreo);
  /// @p familia por el orden de las casillas: T, W, H, HR y VE.
  void familiaCambiada(int familia, bool visible);
  /// @p altitud en metros.
  void altitudCambiada(double altitud);
  void altitudDelFicheroPedida();
  void guardarPedido();

private:
  QWidget *CrearColumna();
  QGroupBox *CrearValores();
  void CrearValor(QGridLayout &rejilla, int i);
  QGroupBox *CrearHorario();
  QGroupBox *CrearNube();
  QGroupBox *CrearFamilias();
  void CrearAltitud(QGridLayout &rejilla);
  QSpinBox *CrearHora(const char *nombre, int valor);

  MarcoCarta *marco_ = nullptr;
  std::array<QLineEdit *, NUMERO_VALORES> valores_{};
  QSpinBox *csPHorIni_ = nullptr;
  QSpinBox *csPHorFin_ = nullptr;
  QLineEdit *edPunto_ = nullptr;
  QDoubleSpinBox *csAltitud_ = nullptr;
  QPushButton *btnAltitudFichero_ = nullptr;
  TablaPuntos *tabla_ = nullptr;
};

} // namespace tesmo
