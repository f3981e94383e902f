#pragma once

#include "psicro/Lienzo.h"

#include <ostream>
#include <string>

namespace tesmo::cli {

/// Escribe cada llamada, según llega, en una línea: "color 0xBBGGRR", "grueso N", "mover X Y" y "linea X Y".
class LienzoOrdenes : public Lienzo {
public:
  /// @param salida le sobrevive
  explicit LienzoOrdenes(std::ostream &salida) : salida_(salida) {}
  void PonColor(ColorBgr color) override;
  void PonGrueso(int grueso) override;
  void MoverA(int x, int y) override;
  void LineaA(int x, int y) override;

private:
  std::ostream &salida_;
};

/// Dibujo en SVG: un trazado por cada pluma distinta, sobre fondo blanco y recortado a su tamaño [píxeles].
/// Los puntos seguidos de una línea que caen en el mismo píxel son uno: con pasos finos serían casi todos.
class LienzoSvg : public Lienzo {
public:
  LienzoSvg(int ancho, int alto) : ancho_(ancho), alto_(alto) {}
  /// El documento con lo dibujado hasta ahora.
  [[nodiscard]] std::string Documento() const;
  void PonColor(ColorBgr color) override { pluma_.color = color; }
  void PonGrueso(int grueso) override { pluma_.grueso = grueso; }
  void MoverA(int x, int y) override;
  void LineaA(int x, int y) override;

private:
  struct Pluma {
    ColorBgr color = 0;
    int grueso = 1;
    bool operator==(const Pluma &) const = default;
  };
  /// Cierra el trazado abierto.
  [[nodiscard]] std::string Fin() const { return trazos_.empty() ? "" : "\"/>\n"; }

  int ancho_;
  int alto_;
  std::string trazos_;
  Pluma pluma_;          ///< la de los trazos que vengan
  Pluma puesta_;         ///< la del trazado abierto
  bool seguido_ = false; ///< el trazado abierto acaba donde está la pluma
  int x_ = 0;
  int y_ = 0;
};

} // namespace tesmo::cli
