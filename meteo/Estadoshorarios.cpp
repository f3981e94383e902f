#include "meteo/Estadoshorarios.h"

#include "meteo/Leermet.h"

namespace tesmo {

namespace {

std::vector<float> Serie(const LeerMet &datos, Magnitud magnitud) {
  std::vector<float> valores(static_cast<std::size_t>(datos.HorasDelPeriodo()));
  datos.DameSerie(Ficha(magnitud).rotulo, valores.data());
  return valores;
}

} // namespace

std::vector<EstadoHorario> EstadosDelPeriodo(const LeerMet &datos, int primera, int ultima) {
  const std::vector<float> t = Serie(datos, Magnitud::TS);
  const std::vector<float> w = Serie(datos, Magnitud::HAkg);
  std::vector<EstadoHorario> estados;
  estados.reserve(t.size());
  for (std::size_t i = 0; i < t.size(); ++i) {
    const FechaHora fecha = FechaDeIndice(datos.PrimeraHora() + static_cast<int>(i));
    if (fecha.hora >= primera && fecha.hora <= ultima) estados.push_back({t[i], w[i], fecha});
  }
  return estados;
}

} // namespace tesmo
