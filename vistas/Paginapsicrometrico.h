#pragma once

#include "vistas/Nubecarta.h"

#include <QWidget>

#include <array>

class QCheckBox;
class QComboBox;
class QGridLayout;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;
class QTableWidget;
class QVBoxLayout;

namespace tesmo {

class MarcoCarta;

/// Página "Psicrométrico  ": la carta, los valores bajo el puntero, la nube de horas, las familias a la vista
/// y la tabla de puntos fijados. Sólo controles.
class PaginaPsicrometrico : public QWidget {
  Q_OBJECT

public:
  static constexpr int NUMERO_VALORES = 8;
  static constexpr int NUMERO_FAMILIAS_VISTAS = 5;

  explicit PaginaPsicrometrico(QWidget *padre = nullptr);

  [[nodiscard]] MarcoCarta &DameMarco() { return *marco_; }
  /// Textos del panel de valores, en su orden: T, W, H, HR, VE, TR, TH y presión.
  void PonValores(const QStringList &textos);
  /// Color del punto en su muestra.
  void PonColorPunto(const QColor &color);
  /// Altitud en uso [m], sin emitir señales.
  void PonAltitud(int altitud, bool delUsuario);
  [[nodiscard]] int HoraInicial() const;
  [[nodiscard]] int HoraFinal() const;
  /// Filas de la tabla de puntos, cada una con su nombre delante, y lo que dice del proceso.
  void PonPuntos(const QList<QStringList> &filas, const QString &proceso);
  /// Filas elegidas en la tabla, de menor a mayor.
  [[nodiscard]] QList<int> PuntosElegidos() const;
  /// La tabla como texto, con cabecera y tabuladores.
  [[nodiscard]] QString TextoDePuntos() const;

signals:
  void representarPedido();
  void limpiarPedido();
  void colorPuntoPedido();
  void coloreoCambiado(ColoreoNube coloreo);
  /// @p familia por el orden de las casillas: T, W, H, HR y VE.
  void familiaCambiada(int familia, bool visible);
  void altitudCambiada(int altitud);
  void altitudDelFicheroPedida();
  void guardarPedido();
  void borrarPuntosPedido();
  void puntosElegidosCambiados();

protected:
  bool eventFilter(QObject *objeto, QEvent *suceso) override;

private:
  QWidget *CrearColumna();
  QGroupBox *CrearValores();
  void CrearValor(QGridLayout &rejilla, int i);
  QGroupBox *CrearHorario();
  QGroupBox *CrearNube();
  QGroupBox *CrearFamilias();
  QGroupBox *CrearAltitud();
  QWidget *CrearTabla();
  QSpinBox *CrearHora(const char *nombre, int valor);
  QPushButton *CrearBoton(const char *nombre, const QString &texto, const QString &ayuda);

  MarcoCarta *marco_ = nullptr;
  std::array<QLineEdit *, NUMERO_VALORES> valores_{};
  QSpinBox *csPHorIni_ = nullptr;
  QSpinBox *csPHorFin_ = nullptr;
  QLabel *lbPunto_ = nullptr;
  QLineEdit *edPunto_ = nullptr;
  QSpinBox *csAltitud_ = nullptr;
  QPushButton *btnAltitudFichero_ = nullptr;
  QWidget *panelPuntos_ = nullptr;
  QTableWidget *tablaPuntos_ = nullptr;
  QLabel *lbProceso_ = nullptr;
};

} // namespace tesmo
