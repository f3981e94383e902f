#pragma once

#include "meteo/Fecha.h"
#include "vistas/grafico/Escalax.h"

namespace tesmo {

/// Separación entre marcas del eje de horas.
struct PasoHoras {
  enum class Unidad { Hora, Dia, Mes };
  Unidad unidad = Unidad::Hora;
  int cada = 1;
  bool operator==(const PasoHoras &) const = default;
};

/// Eje de un período: cuenta las horas desde 1 en su comienzo y enseña al lado la fecha y la hora.
/// La hora h nombra el intervalo que acaba a las h; el primer instante del día es la hora 1.
class EscalaHoras : public EscalaX {
public:
  /// @p periodo ya validado: el fin no es anterior al inicio.
  explicit EscalaHoras(const Periodo &periodo);

  [[nodiscard]] int Numero() const { return numero_; } ///< horas del período
  /// Fecha de la hora número @p k (1 a Numero()) del período.
  [[nodiscard]] FechaHora Fecha(int k) const;
  /// El paso más fino cuyas marcas, con su texto, caben sin tocarse a @p pixelesPorHora.
  [[nodiscard]] static PasoHoras PasoPara(double pixelesPorHora);

  [[nodiscard]] std::string Titulo() const override;
  [[nodiscard]] double Primero() const override { return 1.0; }
  [[nodiscard]] double Ultimo() const override { return numero_; }
  [[nodiscard]] std::vector<MarcaEje> Marcas(double desde, double hasta, double ancho) const override;
  [[nodiscard]] std::vector<double> Submarcas(double desde, double hasta, double ancho) const override;
  [[nodiscard]] double Ajustar(double x) const override;
  [[nodiscard]] std::string Nombrar(double x) const override;
  [[nodiscard]] std::vector<std::string> Encabezamientos() const override;
  [[nodiscard]] std::vector<std::string> Campos(double x) const override;

private:
  [[nodiscard]] std::vector<int> HorasDe(const PasoHoras &paso, double desde, double hasta) const;
  int primera_; ///< índice en el año de la primera hora
  int numero_;
};

} // namespace tesmo
