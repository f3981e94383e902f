#pragma once

#include "extremos/Tipos.h"

#include <QColor>
#include <QWidget>

#include <array>
#include <string>

class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;

namespace tesmo {

/// Página "Dias extremos": meses de proyecto, percentiles y temporadas. La localidad se elige en el panel
/// común de la ventana; aquí sólo se lee. Sólo controles.
class PaginaDiasExtremos : public QWidget {
  Q_OBJECT

public:
  enum class Estacion : std::uint8_t { Calefaccion, Refrigeracion };
  /// Ajustes con rótulo propio.
  enum class Ajuste : std::uint8_t { Provincia, Localidad, MesCal, MesRef, PerCal, PerRef };

  explicit PaginaDiasExtremos(QWidget *padre = nullptr);

  void PonLocalidad(const std::string &localidad, const std::string &provincia);
  void PonMes(Estacion estacion, int mes); ///< 1 a 12
  [[nodiscard]] int Mes(Estacion estacion) const;
  void PonPercentil(Estacion estacion, const std::string &texto);
  [[nodiscard]] std::string Percentil(Estacion estacion) const;
  void PonTemporada(Estacion estacion, const MesesDeTemporada &meses);
  [[nodiscard]] MesesDeTemporada Temporada(Estacion estacion) const;
  /// Lleva el foco a la primera casilla de la temporada.
  void EnfocarTemporada(Estacion estacion);
  void EnfocarPercentil(Estacion estacion);
  void PonColor(Ajuste ajuste, const QColor &color);
  [[nodiscard]] std::string Rotulo(Ajuste ajuste) const;

signals:
  void calcularPedido();

private:
  static constexpr std::size_t ESTACIONES = 2;
  static constexpr std::size_t AJUSTES = 6;

  QLabel *CrearRotulo(Ajuste ajuste, const QString &nombre, const QString &texto);
  QComboBox *CrearMeses(const QString &nombre);
  QLineEdit *CrearPercentil(const QString &nombre, const QString &texto);
  QWidget *CrearAjustes();
  QWidget *CrearTemporada(Estacion estacion, const QString &titulo);
  QWidget *CrearAccion();

  std::array<QLabel *, AJUSTES> rotulos_{};
  QLabel *lbProvincia_ = nullptr;
  QLabel *lbLocalidad_ = nullptr;
  std::array<QComboBox *, ESTACIONES> meses_{};
  std::array<QLineEdit *, ESTACIONES> percentiles_{};
  std::array<std::array<QCheckBox *, 12>, ESTACIONES> temporadas_{};
};

} // namespace tesmo
