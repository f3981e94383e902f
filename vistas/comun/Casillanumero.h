#pragma once

#include <QDoubleSpinBox>
#include <QSpinBox>

#include <optional>

namespace tesmo {

/// Casillas de número con flechas que admiten el punto y la coma, los del teclado numérico también, y enseñan
/// el separador regional. Lo tecleado se termina con Intro o al salir: fuera de los límites vale el más
/// cercano; lo que no es un número ("1,2,3", un signo solo) deja el último que lo fue. Ninguna tecla de un
/// número se pierde por el camino: 13,25 nunca es 1325.

/// Casilla de un número entero; de lo tecleado con decimales queda la parte entera (13,9 es 13 y −3,9 es −3).
class CasillaEntera : public QSpinBox {
  Q_OBJECT

public:
  explicit CasillaEntera(QWidget *padre = nullptr);

protected:
  QValidator::State validate(QString &texto, int &cursor) const override;
  void fixup(QString &texto) const override;
  [[nodiscard]] int valueFromText(const QString &texto) const override;
};

/// Casilla de un número real, con los decimales de decimals(): lo tecleado con más se guarda como se enseña.
class CasillaReal : public QDoubleSpinBox {
  Q_OBJECT

public:
  explicit CasillaReal(QWidget *padre = nullptr);

protected:
  QValidator::State validate(QString &texto, int &cursor) const override;
  void fixup(QString &texto) const override;
  [[nodiscard]] double valueFromText(const QString &texto) const override;
  [[nodiscard]] QString textFromValue(double valor) const override;
};

/// Casilla de un número real que puede no saberse: vacía, o bajada del mínimo, enseña un texto en su lugar.
/// Lo que se teclee entre sus palabras, esté donde esté el cursor, las reemplaza.
class CasillaOpcional : public CasillaReal {
  Q_OBJECT

public:
  /// @p sinValor es el texto que se enseña cuando no hay número; así nace.
  CasillaOpcional(double menor, double mayor, int decimales, const QString &sinValor,
                  QWidget *padre = nullptr);

  [[nodiscard]] std::optional<double> Valor() const;
  void PonValor(std::optional<double> valor);
  /// Desde «sin valor» las flechas empiezan en cero.
  void stepBy(int pasos) override;

protected:
  QValidator::State validate(QString &texto, int &cursor) const override;
  void fixup(QString &texto) const override;
  [[nodiscard]] double valueFromText(const QString &texto) const override;
};

} // namespace tesmo
