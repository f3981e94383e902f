#include "cli/Lienzostexto.h"

namespace tesmo::cli {

namespace {

constexpr unsigned BITS = 8;
constexpr unsigned BYTE = 0xFF;

/// Las seis cifras hexadecimales de 24 bits.
std::string Hexadecimal(ColorBgr valor) {
  constexpr const char *CIFRAS = "0123456789ABCDEF";
  constexpr unsigned CIFRA = 4; // [bits]
  std::string texto;
  for (unsigned bit = 3 * BITS; bit > 0; bit -= CIFRA) texto += CIFRAS[(valor >> (bit - CIFRA)) & 0xFU];
  return texto;
}

ColorBgr Invertido(ColorBgr bgr) {
  return ((bgr & BYTE) << 2 * BITS) | (bgr & (BYTE << BITS)) | ((bgr >> 2 * BITS) & BYTE);
}

std::string Par(int x, int y) { return std::to_string(x) + " " + std::to_string(y); }

} // namespace

void LienzoOrdenes::PonColor(ColorBgr color) { salida_ << "color 0x" << Hexadecimal(color) << '\n'; }

void LienzoOrdenes::PonGrueso(int grueso) { salida_ << "grueso " << std::to_string(grueso) << '\n'; }

void LienzoOrdenes::MoverA(int x, int y) { salida_ << "mover " << Par(x, y) << '\n'; }

void LienzoOrdenes::LineaA(int x, int y) { salida_ << "linea " << Par(x, y) << '\n'; }

std::string LienzoSvg::Documento() const {
  const std::string ancho = std::to_string(ancho_);
  const std::string alto = std::to_string(alto_);
  // Los píxeles enteros caen en el centro del píxel, como en una imagen.
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
         "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" +
         ancho + "\" height=\"" + alto + "\" viewBox=\"0 0 " + ancho + " " + alto + "\">\n<rect width=\"" +
         ancho + "\" height=\"" + alto +
         "\" fill=\"#FFFFFF\"/>\n<g fill=\"none\" transform=\"translate(0.5 0.5)\">\n" + trazos_ + Fin() +
         "</g>\n</svg>\n";
}

void LienzoSvg::MoverA(int x, int y) {
  x_ = x;
  y_ = y;
  seguido_ = false;
}

void LienzoSvg::LineaA(int x, int y) {
  if (trazos_.empty() || !(pluma_ == puesta_)) {
    trazos_ += Fin() + "<path stroke=\"#" + Hexadecimal(Invertido(pluma_.color)) + "\" stroke-width=\"" +
               std::to_string(pluma_.grueso) + "\" d=\"";
    puesta_ = pluma_;
    seguido_ = false;
  }
  if (seguido_ && x == x_ && y == y_) return;
  if (!seguido_) trazos_ += "M" + Par(x_, y_);
  trazos_ += "L" + Par(x, y);
  x_ = x;
  y_ = y;
  seguido_ = true;
}

} // namespace tesmo::cli
