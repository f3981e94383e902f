#pragma once

#include "vistas/grafico/Escalax.h"

namespace tesmo {

/// Eje de un día: horas solares de 0 a 23. El valor de la hora h es el del intervalo de h a h + 1.
class EscalaDia : public EscalaX {
public:
  [[nodiscard]] std::string Titulo() const override;
  [[nodiscard]] double Primero() const override { return 0.0; }
  [[nodiscard]] double Ultimo() const override;
  [[nodiscard]] std::vector<MarcaEje> Marcas(double desde, double hasta, double ancho) const override;
  [[nodiscard]] std::vector<double> Submarcas(double desde, double hasta, double ancho) const override;
  [[nodiscard]] double Ajustar(double x) const override;
  [[nodiscard]] std::string Nombrar(double x) const override;
  [[nodiscard]] std::vector<std::string> Encabezamientos() const override;
  [[nodiscard]] std::vector<std::string> Campos(double x) const override;
};

} // namespace tesmo
