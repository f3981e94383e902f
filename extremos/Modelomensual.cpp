#include "extremos/Modelomensual.h"

#include "core/Calendario.h"
#include "extremos/Probabilidad.h"
#include "extremos/Tipos.h"

#include <algorithm>
#include <cmath>

namespace tesmo::extremos {

namespace {

constexpr CoeficientesZona COSTA{0.9141667F, 219.81667F, 0.23916666F, 18.616667F, 13};
constexpr CoeficientesZona INTERIOR{0.92083335F, 236.00084F, 0.2175F, 62.370834F, 15};

constexpr long double PASO_DE_LA_COLA = 0.05L;
constexpr int CLASE_CENTRAL = NUMERO_CLASES / 2;
constexpr int DIAS_DEL_MES_CORTO = 28;
constexpr float MITAD = 0.5F;

constexpr int MUESTRAS_DEL_DIA = 72;
constexpr long double GRADOS_POR_HORA = 15.0L;

/// La clase entre dos cotas tipificadas; la representa la media de la normal dentro de ella.
ClaseDeDias ClaseEntre(long double inferior, long double superior) {
  const long double masa = AcumuladaNormal(superior) - AcumuladaNormal(inferior);
  return {(DensidadNormal(inferior) - DensidadNormal(superior)) / masa, std::fabs(masa)};
}

/// Onda del día en cada muestra, de −1 a 1 aproximadamente: la misma para todas las clases.
std::array<long double, MUESTRAS_DEL_DIA> OndaDelDia(const CoeficientesZona &zona) {
  std::array<long double, MUESTRAS_DEL_DIA> onda{};
  for (int j = 1; j <= MUESTRAS_DEL_DIA; ++j) {
    const long double t = j / (MUESTRAS_DEL_DIA * (1.0L / HORAS_DEL_DIA));
    onda[static_cast<std::size_t>(j) - 1U] =
        zona.amplitud1 * std::cos((GRADOS_POR_HORA * t - zona.fase1) * GRADO_DE_ONDA) +
        zona.amplitud2 * std::cos((2.0L * GRADOS_POR_HORA * t - zona.fase2) * GRADO_DE_ONDA);
  }
  return onda;
}

int GradoDe(long double temperatura) {
  return static_cast<int>(std::clamp<long double>(std::floor(temperatura), GRADO_MINIMO, GRADO_MAXIMO));
}

} // namespace

CoeficientesZona CoeficientesDe(std::string_view zona) { return zona == "COSTA" ? COSTA : INTERIOR; }

bool FactorDeColaAdmitido(float factor) {
  return std::isfinite(factor) && factor > 0.0F && 1.0F / (DIAS_DEL_MES_CORTO * factor) < MITAD;
}

std::array<ClaseDeDias, NUMERO_CLASES> ClasesDelMes(int dias, float factorDeCola) {
  const long double limite =
      TablaNormal(PASO_DE_LA_COLA).Punto(1.0L / (static_cast<long double>(dias) * factorDeCola));
  const long double ancho = 2.0L * limite / NUMERO_CLASES;
  std::array<ClaseDeDias, NUMERO_CLASES> clases{};
  for (int i = 0; i <= CLASE_CENTRAL; ++i) {
    const ClaseDeDias clase = ClaseEntre(limite - (i + 1) * ancho, limite - i * ancho);
    clases[static_cast<std::size_t>(i)] = clase;
    if (i < CLASE_CENTRAL) clases[static_cast<std::size_t>(NUMERO_CLASES - 1 - i)] = {-clase.z, clase.p};
  }
  long double suma = 0.0L;
  for (const ClaseDeDias &clase : clases) suma += clase.p;
  clases[CLASE_CENTRAL].p += 1.0L - suma;
  return clases;
}

Distribucion HorasPorGrado(const EstadisticaMes &mes, const CoeficientesZona &zona, int dias,
                           float factorDeCola) {
  const auto onda = OndaDelDia(zona);
  Distribucion horas;
  for (const ClaseDeDias &clase : ClasesDelMes(dias, factorDeCola)) {
    const long double maxima = mes.maxima + mes.desviacionMaxima * clase.z;
    const long double minima = mes.minima + mes.desviacionMinima * clase.z;
    const long double horasDeLaMuestra = clase.p / MUESTRAS_DEL_DIA * HORAS_DEL_DIA * dias;
    for (const long double valor : onda) {
      horas.Anadir(GradoDe(valor * (maxima - minima) / 2.0L + (maxima + minima) / 2.0L), horasDeLaMuestra);
    }
  }
  return horas;
}

} // namespace tesmo::extremos
