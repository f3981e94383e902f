#pragma once

#include "meteo/Fecha.h"

#include <QString>
#include <QStringList>
#include <QWidget>

#include <stdexcept>

namespace tesmo {

class TforProgramas;

/// Maneja una ventana de trabajo por los nombres de sus controles, como lo haría una persona. Un control que
/// falta, o un texto que no está en su lista, es un std::runtime_error que lo nombra.
class ManejoVentana {
public:
  explicit ManejoVentana(TforProgramas &ventana) : ventana_(ventana) {}

protected:
  [[nodiscard]] TforProgramas &Formulario() const { return ventana_; }

  template <typename Control>
  [[nodiscard]] Control &Buscar(const QString &nombre) const {
    auto *control = Raiz().findChild<Control *>(nombre);
    if (!control) throw std::runtime_error("falta el control " + nombre.toStdString());
    return *control;
  }
  void Elegir(const QString &selector, const QString &texto) const;
  void PonPeriodo(const FechaHora &inicio, const FechaHora &fin) const;
  /// Deja marcadas en el visor sólo las variables de esos códigos.
  void Marcar(const QStringList &codigos) const;
  /// Pulsa un botón, una casilla o un botón de radio.
  void Pulsar(const QString &nombre) const;

private:
  [[nodiscard]] QWidget &Raiz() const;
  void PonCasilla(const QString &nombre, int valor) const;

  TforProgramas &ventana_;
};

} // namespace tesmo
