#pragma once

#include "extremos/Distribucion.h"

#include <array>
#include <string_view>

namespace tesmo::extremos {

/// Onda diaria de temperatura de una zona (los dos primeros armónicos de su desarrollo de Fourier) y hora del
/// máximo del día de refrigeración. Los coeficientes son propios de este modelo.
struct CoeficientesZona {
  float amplitud1 = 0.0F;
  float fase1 = 0.0F; ///< [°]
  float amplitud2 = 0.0F;
  float fase2 = 0.0F;    ///< [°]
  int horaMaximaRef = 0; ///< [h solar]
};

/// Los de la costa si @p zona es exactamente "COSTA"; con cualquier otra palabra, los del interior.
[[nodiscard]] CoeficientesZona CoeficientesDe(std::string_view zona);

/// Estadísticas de temperatura de un mes.
struct EstadisticaMes {
  float maxima = 0.0F;           ///< media de las máximas diarias [°C]
  float minima = 0.0F;           ///< media de las mínimas diarias [°C]
  float desviacionMaxima = 0.0F; ///< [K]
  float desviacionMinima = 0.0F; ///< [K]
};

/// Clases en que se reparten los días de un mes.
inline constexpr int NUMERO_CLASES = 15;

/// Una clase de días: valor tipificado que la representa y probabilidad.
struct ClaseDeDias {
  long double z = 0.0L;
  long double p = 0.0L;
};

/// ¿Tiene sentido @p factor? Ha de ser positivo y dejar en la clase extrema del mes más corto menos de la
/// mitad de los días.
[[nodiscard]] bool FactorDeColaAdmitido(float factor);

/// Las quince clases de un mes de @p dias días, de la más cálida a la más fría: intervalos iguales de la
/// normal tipificada hasta el punto que deja por encima 1/(@p dias × @p factorDeCola). A cada una la
/// representa la media de la normal truncada en su intervalo (Johnson, Kotz y Balakrishnan, 1994, Continuous
/// Univariate Distributions, vol. 1). La central absorbe lo que falta para sumar 1.
[[nodiscard]] std::array<ClaseDeDias, NUMERO_CLASES> ClasesDelMes(int dias, float factorDeCola);

/// Horas de cada grado entero en un mes de @p dias días: cada clase es un día cuya máxima y mínima se apartan
/// de la media lo mismo en desviaciones, muestreado cada veinte minutos. Lo que baja de −49 °C o pasa de 50
/// °C cuenta en esos grados.
[[nodiscard]] Distribucion HorasPorGrado(const EstadisticaMes &mes, const CoeficientesZona &zona, int dias,
                                         float factorDeCola);

} // namespace tesmo::extremos
