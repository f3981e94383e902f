#pragma once

#include "psicro/Psicrometrico.h"
#include "tests/comun/ventanas/Manejo.h"
#include "vistas/carta/Marcocarta.h"
#include "vistas/carta/Vistapsicrometrico.h"

#include <QLineEdit>
#include <QTabWidget>

#include <optional>

namespace tesmo::prueba {

/// La página psicrométrica de una ventana recién abierta, y lo que una persona hace en ella.
class ManejoCarta {
protected:
  void Abrir() {
    marco_.emplace();
    ventana_.emplace(marco_->Numero(0));
    Control<QTabWidget>("pcProgramas").setCurrentWidget(&Control<QWidget>("tsPsicrometrico"));
    QApplication::processEvents();
  }
  void Cerrar() {
    ventana_.reset();
    marco_.reset();
  }

  template <typename T>
  [[nodiscard]] T &Control(const char *nombre) const {
    return ventana_->Buscar<T>(nombre);
  }
  [[nodiscard]] Vistapsicrometrico &Vista() const { return ventana_->Controlador().DameVistaPsicrometrico(); }
  [[nodiscard]] MarcoCarta &Marco() const { return Control<MarcoCarta>("marcoCarta"); }
  [[nodiscard]] Psicro &Carta() const { return *ventana_->Controlador().DamePsicro(); }
  [[nodiscard]] QString Valor(const char *casilla) const { return Control<QLineEdit>(casilla).text(); }
  void Mover(int x, int y) const { QTest::mouseMove(&Control<QWidget>("imgPsicro"), QPoint(x, y)); }
  void Pulsar(int x, int y) const {
    QTest::mouseClick(&Control<QWidget>("imgPsicro"), Qt::LeftButton, {}, QPoint(x, y));
  }
  void FijarDosPuntos() const {
    const QSize carta = Marco().TamanoDeCarta();
    Pulsar(carta.width() / 3, carta.height() - 40);
    Pulsar(carta.width() / 2, carta.height() - 90);
  }

  std::optional<MarcoPrueba> marco_;
  std::optional<Ventana> ventana_;
};

} // namespace tesmo::prueba
