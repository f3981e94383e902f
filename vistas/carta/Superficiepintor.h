#pragma once

#include "imagen/Lienzopintor.h"
#include "vistas/carta/Bandaelastica.h"

class QPainter;

namespace tesmo {

/// La superficie de la banda sobre un QPainter de un mapa de bits, que ha de vivir más que ella.
class SuperficiePintor : public SuperficieBanda {
public:
  explicit SuperficiePintor(QPainter &pintor) : pintor_(pintor), lienzo_(pintor) {}

  void PonModo(ModoPluma modo) override;
  void Rectangulo(ColorBgr color, const Pixel &a, const Pixel &b) override;
  [[nodiscard]] Lienzo &Trazos() override { return lienzo_; }

private:
  QPainter &pintor_;
  LienzoPintor lienzo_;
};

} // namespace tesmo
