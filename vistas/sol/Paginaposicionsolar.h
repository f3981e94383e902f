#pragma once

#include <QString>
#include <QWidget>

#include <array>

class QGridLayout;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QStackedWidget;

namespace tesmo {

class GraficoSolar;

/// Página "Posicion solar  ": las casillas de fecha, hora y superficie, los botones, la carta solar y, en su
/// sitio mientras no hay nada dibujado, una rejilla con una indicación. Sólo controles.
class PaginaPosicionSolar : public QWidget {
  Q_OBJECT

public:
  /// Las casillas, por el orden en que se crean.
  enum class Casilla { Mes, Dia, Hora, Acimut, Altura, Orientacion, Inclinacion, Albedo };
  static constexpr std::size_t NUMERO_CASILLAS = 8;

  explicit PaginaPosicionSolar(QWidget *padre = nullptr);

  [[nodiscard]] GraficoSolar &DameGrafico() { return *graPosSol_; }
  /// La rejilla con la indicación.
  [[nodiscard]] GraficoSolar &DameHueco() { return *graHueco_; }
  /// Enseña la carta en el sitio de la indicación.
  void EnsenarGrafico();

  [[nodiscard]] QString TextoDe(Casilla casilla) const;
  void PonTexto(Casilla casilla, const QString &texto);
  /// Rótulo de la casilla, como se lee en la página.
  [[nodiscard]] static QString Rotulo(Casilla casilla);
  void PonMomento(const QString &texto);
  /// Lo que el horizonte quita, y si hay pasos que deshacer y que rehacer.
  void PonInfluencia(const QString &cielo, const QString &horas);
  void PonPasos(bool hayAnterior, bool haySiguiente);

signals:
  void momentoPedido();
  void diaPedido();
  void mesesPedido();
  void ficheroPedido();
  void imagenPedida();
  void abrirPedido();
  void guardarPedido();
  void deshacerPedido();
  void rehacerPedido();
  void borrarPedido();
  /// Se teclea en una casilla de la superficie.
  void superficieTecleada();

private:
  QWidget *CrearColumna();
  QGroupBox *CrearMomento();
  QGroupBox *CrearCalculos();
  QGroupBox *CrearHorizonte();
  QGroupBox *CrearSuperficie();
  QWidget *CrearCarta();
  void CrearCasilla(QGridLayout &rejilla, Casilla casilla, int fila, int columna);
  QPushButton *CrearBoton(const char *nombre, const QString &texto, const QString &ayuda,
                          void (PaginaPosicionSolar::*senal)());
  void CrearAtajos();

  std::array<QLineEdit *, NUMERO_CASILLAS> casillas_{};
  QLabel *lbMomento_ = nullptr;
  QLabel *lbCielo_ = nullptr;
  QLabel *lbHoras_ = nullptr;
  QPushButton *btnDeshacer_ = nullptr;
  QPushButton *btnRehacer_ = nullptr;
  QStackedWidget *pila_ = nullptr;
  GraficoSolar *graPosSol_ = nullptr;
  GraficoSolar *graHueco_ = nullptr;
};

} // namespace tesmo
