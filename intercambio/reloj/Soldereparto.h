#pragma once

#include <cstddef>
#include <vector>

namespace tesmo {

/// La curva diaria de la radiación extraterrestre horizontal con que se reparte la de un fichero. Instantes
/// en horas solares desde las 0 h del 1 de enero, cualquier número: el año se cierra.
class SolDeReparto {
public:
  /// El sol con que los motores leen después los datos (declinación de Cooper, 1969). @p latitud [°]
  [[nodiscard]] static SolDeReparto DeLosMotores(double latitud);
  /// El que se vería (SolVerdadero a mediodía de cada día de un año medio).
  [[nodiscard]] static SolDeReparto Verdadero(double latitud);

  /// Energía de @p desde a @p hasta [Wh/m²], dos instantes del mismo día; exacta, sólo con el sol puesto
  /// arriba.
  [[nodiscard]] double Energia(double desde, double hasta) const;
  /// Horas de sol entre los dos instantes.
  [[nodiscard]] double HorasDeSol(double desde, double hasta) const;
  /// Coseno del cenit en un instante; negativo de noche.
  [[nodiscard]] double Coseno(double instante) const;
  /// Declinación del día del @p instante [rad].
  [[nodiscard]] double Declinacion(double instante) const;
  /// Irradiancia sobre un plano normal al sol [W/m²].
  [[nodiscard]] double Normal(double instante) const;

private:
  struct Dia {
    double declinacion = 0; ///< [rad]
    double senos = 0;       ///< producto de los de latitud y declinación
    double cosenos = 0;     ///< producto de los de latitud y declinación
    double normal = 0;      ///< [W/m²]
    double semidia = 0;     ///< horas de la salida al mediodía
  };
  /// @p semidia [h]
  void Anadir(double latitud, double declinacion, double semidia);
  /// Parte con sol de un intervalo, en horas desde el mediodía de su día.
  struct Tramo {
    const Dia *dia;
    double desde;
    double hasta;
  };
  SolDeReparto() = default;
  [[nodiscard]] Tramo ConSol(double desde, double hasta) const;
  [[nodiscard]] const Dia &En(double instante) const;

  std::vector<Dia> dias_;
};

} // namespace tesmo
