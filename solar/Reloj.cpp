#include "solar/Reloj.h"

#include "core/Calendario.h"
#include "core/Sistema.h"
#include "solar/Geometria.h"

#include <cmath>
#include <ctime>

namespace tesmo {

namespace {

constexpr int PRIMER_MES_DE_VERANO = 4;
constexpr int ULTIMO_MES_DE_VERANO = 10;
/// Huso y longitud de la región de origen [h].
constexpr long double DESFASE_DE_LA_REGION = -1.4006666666666665L;
constexpr long double HORAS_POR_MINUTO = 1.0L / 60.0L;
constexpr int PRIMER_ANIO_TM = 1900;

/// Ecuación del tiempo del día @p n del año (Spencer, 1971).
long double MinutosDeEcuacion(int n) {
  const long double b = (n - 1) * 360.0L * (1.0L / DIAS_DEL_ANIO) * GRADO_EN_RADIANES;
  return 229.2L * (0.000075L + 0.001868L * std::cos(b) - 0.032077L * std::sin(b) -
                   0.014615L * std::cos(2.0L * b) - 0.04089L * std::sin(2.0L * b));
}

} // namespace

InstanteLocal RelojDelSistema::Ahora() const {
  const std::tm partes = HoraLocal(std::time(nullptr));
  return {partes.tm_year + PRIMER_ANIO_TM, partes.tm_mon + 1, partes.tm_mday, partes.tm_hour, partes.tm_min};
}

float HoraSolarDeReloj(const InstanteLocal &instante) {
  const bool verano = instante.mes >= PRIMER_MES_DE_VERANO && instante.mes <= ULTIMO_MES_DE_VERANO;
  const long double hora = instante.hora - (verano ? 1 : 0);
  const int n = DiaDelAnio(instante.mes, instante.dia);
  return static_cast<float>(hora + instante.minuto * HORAS_POR_MINUTO + DESFASE_DE_LA_REGION +
                            MinutosDeEcuacion(n) * HORAS_POR_MINUTO);
}

} // namespace tesmo
