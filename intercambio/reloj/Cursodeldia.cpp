#include "intercambio/reloj/Cursodeldia.h"

#include "core/Unidades.h"
#include "intercambio/reloj/Muestrasreloj.h"
#include "intercambio/reloj/Soldereloj.h"

#include <algorithm>
#include <cmath>

namespace tesmo {

namespace {

constexpr double CENIT_DEL_HORIZONTE = 90.0; // [°]
constexpr auto HORAS_DIA = static_cast<std::size_t>(HORAS_DEL_DIA);
constexpr auto DIAS = static_cast<std::size_t>(DIAS_DEL_ANIO);

double Valor(const AnioCanonico &anio, Campo campo, std::size_t hora) { return anio[campo].valores[hora]; }

/// Lo que más se parece al haz que trae una hora [W/m²].
double HazDe(const AnioCanonico &anio, std::size_t hora) {
  const double normal = Valor(anio, Campo::DirectaNormal, hora);
  if (!std::isnan(normal)) return normal;
  const double directa = Valor(anio, Campo::DirectaHorizontal, hora);
  return std::isnan(directa) ? Valor(anio, Campo::GlobalHorizontal, hora) : directa;
}

double SumaDelDia(const AnioCanonico &anio, std::size_t dia) {
  double suma = 0.0;
  for (std::size_t i = dia * HORAS_DIA; i < (dia + 1) * HORAS_DIA; ++i) {
    const double haz = HazDe(anio, i);
    if (haz > 0.0) suma += haz;
  }
  return suma;
}

/// Coseno del cenit que dicen los datos de una hora, si lo dicen por sí solos.
double CosenoDeDatos(const AnioCanonico &anio, std::size_t hora) {
  constexpr double NORMAL_MINIMA = 100.0; // [W/m²]: con menos, el cociente es ruido
  const double normal = Valor(anio, Campo::DirectaNormal, hora);
  if (normal > NORMAL_MINIMA)
    return (Valor(anio, Campo::GlobalHorizontal, hora) - Valor(anio, Campo::DifusaHorizontal, hora)) / normal;
  if (!std::isnan(normal)) return AUSENTE;
  const double cenit = Valor(anio, Campo::CenitSolar, hora);
  return cenit < CENIT_DEL_HORIZONTE ? std::cos(cenit * GRADO) : AUSENTE;
}

/// Los datos que sólo dan la forma del día, a la escala del sol.
void PonerALaEscala(std::vector<PuntoCurso> &puntos, const std::vector<PuntoCurso> &sol) {
  const auto mayor = [](const std::vector<PuntoCurso> &serie) {
    double maximo = 0.0;
    for (const PuntoCurso &punto : serie) maximo = std::max(maximo, punto.valor);
    return maximo;
  };
  const double escala = mayor(puntos) > 0.0 ? mayor(sol) / mayor(puntos) : 0.0;
  for (PuntoCurso &punto : puntos) punto.valor *= escala;
}

std::vector<PuntoCurso> CursoDelSol(const SolDeReloj &sol, std::size_t dia) {
  std::vector<PuntoCurso> curso;
  for (double hora = 0.0; hora < HORAS_DEL_DIA; hora += PASO_CURSO_MIN / MINUTOS_POR_HORA) {
    const double coseno = sol.CosenoSolar(static_cast<double>(dia * HORAS_DIA) + hora);
    if (coseno > 0.0) curso.push_back({hora, coseno});
  }
  return curso;
}

/// @p coseno da el valor de una hora de datos, o AUSENTE.
template <typename Coseno>
std::vector<PuntoCurso> PuntosDelDia(const EscalaTiempo &escala, std::size_t dia, Coseno coseno) {
  std::vector<PuntoCurso> puntos;
  const double medianoche = static_cast<double>(dia * HORAS_DIA);
  // Un reloj en UTC puede dejar el día solar a caballo de dos del fichero.
  for (std::size_t i = dia > 0 ? (dia - 1) * HORAS_DIA : 0; i < std::min(dia + 2, DIAS) * HORAS_DIA; ++i) {
    const double hora = escala.ASolar(escala.Centro(i)) - medianoche;
    const double valor = coseno(i);
    if (hora >= 0.0 && hora < HORAS_DEL_DIA && valor > 0.0) puntos.push_back({hora, valor});
  }
  return puntos;
}

double Desviacion(const std::vector<PuntoCurso> &haz, const SolDeReloj &sol, std::size_t dia) {
  double suma = 0.0;
  for (const PuntoCurso &punto : haz) {
    const double aparta =
        punto.valor - std::max(0.0, sol.CosenoSolar(static_cast<double>(dia * HORAS_DIA) + punto.hora));
    suma += aparta * aparta;
  }
  return haz.empty() ? AUSENTE : std::sqrt(suma / static_cast<double>(haz.size()));
}

} // namespace

std::optional<std::size_t> DiaMasClaro(const AnioCanonico &anio) {
  std::optional<std::size_t> mejor;
  double mayor = 0.0;
  for (std::size_t dia = 0; dia < DIAS; ++dia) {
    const double suma = SumaDelDia(anio, dia);
    if (!(suma > mayor)) continue;
    mayor = suma;
    mejor = dia;
  }
  return mejor;
}

CursoReloj CursoDelDia(const AnioCanonico &anio, const RelojFichero &reloj, std::size_t dia) {
  CursoReloj curso;
  if (!SitioBasta(anio, reloj.tiempo) || dia >= DIAS) return curso;
  const SolDeReloj sol(anio, EscalaTiempo(reloj, anio.sitio.longitud));
  curso.sol = CursoDelSol(sol, dia);
  curso.haz = PuntosDelDia(sol.Escala(), dia, [&](std::size_t i) { return CosenoDeDatos(anio, i); });
  if (curso.haz.empty()) {
    curso.haz = PuntosDelDia(sol.Escala(), dia, [&](std::size_t i) { return HazDe(anio, i); });
    PonerALaEscala(curso.haz, curso.sol);
  }
  curso.desviacion = Desviacion(curso.haz, sol, dia);
  return curso;
}

} // namespace tesmo
