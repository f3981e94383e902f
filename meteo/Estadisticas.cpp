#include "meteo/Estadisticas.h"

#include "meteo/Derivacionesrecorrido.h"

#include <algorithm>

namespace tesmo {

namespace {

constexpr double DIAS_POR_HORA = 1.0 / HORAS_DEL_DIA;

/// Sumas de una rutina; cada una recibe los valores que cuentan, hora a hora.
struct Sumas {
  float maximo;
  float minimo;
  double suma = 0.0;
  int cuenta = 0;
  double calefaccion = 0.0;
  double refrigeracion = 0.0;
  double depresion = 0.0;
  std::optional<FechaHora> fechaMaximo = std::nullopt;
  std::optional<FechaHora> fechaMinimo = std::nullopt;

  void Anadir(float valor, const FechaHora &fecha) {
    if (valor > maximo) {
      maximo = valor;
      fechaMaximo = fecha;
    }
    if (valor < minimo) {
      minimo = valor;
      fechaMinimo = fecha;
    }
    suma += valor;
    ++cuenta;
  }
  void AnadirGrados(float valor, float seca, const BasesGradosDia &bases) {
    SumarSiNoEsNegativo(calefaccion, static_cast<double>(bases.calefaccion) - valor);
    SumarSiNoEsNegativo(refrigeracion, static_cast<double>(valor) - bases.refrigeracion);
    SumarSiNoEsNegativo(depresion, static_cast<double>(seca) - valor);
  }

private:
  static void SumarSiNoEsNegativo(double &total, double diferencia) {
    if (diferencia >= 0.0) total += diferencia;
  }
};

const SerieHoraria &SerieDe(const FuenteMagnitud &fuente, const SeriesLeidas &leidas,
                            const SeriesDerivadas &derivadas) {
  if (fuente.derivada) return derivadas[static_cast<SerieDerivada>(fuente.indice)];
  return leidas[static_cast<SerieAlmacenada>(fuente.indice)];
}

/// Serie que, a cero exacto, deja fuera una hora: así las noches no cuentan en la radiación.
const SerieHoraria *SeriePuerta(RutinaEstadistica rutina, const SeriesLeidas &leidas,
                                const SeriesDerivadas &derivadas) {
  switch (rutina) {
  case RutinaEstadistica::ConDifusaHorizontal:
    return &leidas[SerieAlmacenada::RadiacionDifusa];
  case RutinaEstadistica::ConDifusaSuperficie:
    return &derivadas[SerieDerivada::Difusa];
  case RutinaEstadistica::Simple:
  case RutinaEstadistica::Temperatura:
    break;
  }
  return nullptr;
}

void Volcar(const Sumas &sumas, ResultadoEstadisticas &resultado) {
  resultado.maximo = sumas.maximo;
  resultado.minimo = sumas.minimo;
  resultado.fechaMaximo = sumas.fechaMaximo;
  resultado.fechaMinimo = sumas.fechaMinimo;
  resultado.horas = sumas.cuenta;
  if (sumas.cuenta != 0) resultado.media = static_cast<float>(sumas.suma / sumas.cuenta);
  resultado.gradosDiaCalefaccion = static_cast<float>(sumas.calefaccion * DIAS_POR_HORA);
  resultado.gradosDiaRefrigeracion = static_cast<float>(sumas.refrigeracion * DIAS_POR_HORA);
  resultado.tercerSumatorio = static_cast<float>(sumas.depresion * DIAS_POR_HORA);
}

} // namespace

ResultadoEstadisticas CalcularEstadisticas(Magnitud magnitud, const SeriesLeidas &leidas,
                                           const SeriesDerivadas &derivadas,
                                           const CriterioEstadisticas &criterio) {
  const FichaMagnitud &ficha = Ficha(magnitud);
  const SerieHoraria &serie = SerieDe(ficha.fuente, leidas, derivadas);
  const SerieHoraria &seca = leidas[SerieAlmacenada::TemperaturaSeca];
  const SerieHoraria *const puerta = SeriePuerta(ficha.rutina, leidas, derivadas);
  ResultadoEstadisticas resultado;
  resultado.unidad = UnidadDeRotulo(ficha.rotulo);
  Sumas sumas{resultado.maximo, resultado.minimo};
  RecorrerHoras(criterio.tramo, criterio.inicio, serie.size(), [&](std::size_t i, const FechaHora &fecha) {
    if (fecha.hora < criterio.primeraHoraDelDia || fecha.hora > criterio.ultimaHoraDelDia) return;
    if (puerta != nullptr && (*puerta)[i] == 0.0F) return;
    const float valor = serie[i] * ficha.fuente.escala;
    sumas.Anadir(valor, fecha);
    if (ficha.rutina == RutinaEstadistica::Temperatura) sumas.AnadirGrados(valor, seca[i], criterio.bases);
  });
  Volcar(sumas, resultado);
  return resultado;
}

std::vector<EstadisticasDelMes> CalcularEstadisticasPorMes(Magnitud magnitud, const SeriesLeidas &leidas,
                                                           const SeriesDerivadas &derivadas,
                                                           const CriterioEstadisticas &criterio) {
  std::vector<EstadisticasDelMes> meses;
  for (int mes = 1; mes <= static_cast<int>(DIAS_DEL_MES.size()); ++mes) {
    CriterioEstadisticas delMes = criterio;
    delMes.tramo.primera = std::max(criterio.tramo.primera, IndiceHora(mes, 1, 1));
    delMes.tramo.ultima = std::min(criterio.tramo.ultima, IndiceHora(mes, DiasDelMes(mes), HORAS_DEL_DIA));
    if (delMes.tramo.ultima < delMes.tramo.primera) continue;
    delMes.inicio = FechaDeIndice(delMes.tramo.primera);
    meses.push_back({mes, CalcularEstadisticas(magnitud, leidas, derivadas, delMes)});
  }
  return meses;
}

} // namespace tesmo
