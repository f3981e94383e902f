#pragma once

#include "psicro/Lienzo.h"

class QPainter;

namespace tesmo {

/// Lienzo sobre un QPainter, que ha de vivir más que él. Los grosores son píxeles del lienzo.
class LienzoPintor : public Lienzo {
public:
  explicit LienzoPintor(QPainter &pintor) : pintor_(pintor) {}

  void PonColor(ColorBgr color) override;
  void PonGrueso(int grueso) override;
  void MoverA(int x, int y) override;
  void LineaA(int x, int y) override;

private:
  void PonPluma();
  void PintarRecta(int x, int y);

  QPainter &pintor_;
  ColorBgr color_ = 0;
  int grueso_ = 1;
  bool plumaPuesta_ = false;
  bool seguido_ = false; ///< una línea acaba donde está la pluma
  int x_ = 0;
  int y_ = 0;
};

} // namespace tesmo
