#include "intercambio/auditoria/Materia.h"

#include "core/Unidades.h"
#include "intercambio/fisica/Soldelanio.h"
#include "intercambio/reloj/Eleccionreloj.h"
#include "intercambio/reloj/Muestrasreloj.h"
#include "intercambio/reloj/Soldereloj.h"

#include <algorithm>
#include <cmath>

namespace tesmo {

namespace {

double DistanciaKm(double latitud, double longitud, const NormalesLocalidad &localidad) {
  constexpr double KM_POR_GRADO = 111.2; // de meridiano
  const double este = (longitud - localidad.longitud) * std::cos(latitud * GRADO);
  return KM_POR_GRADO * std::hypot(latitud - localidad.latitud, este);
}

} // namespace

SolDeRegistros CalcularSolDeRegistros(const AnioCanonico &anio, const RelojFichero &reloj) {
  constexpr double MEDIA_HORA = 30.0;
  SolDeRegistros sol;
  if (!SitioBasta(anio, reloj.tiempo)) return sol;
  sol.cosenoCentro.resize(HORAS);
  sol.cosenoMayor.resize(HORAS);
  sol.extraterrestre.resize(HORAS);
  const SolDeReloj instante(anio, EscalaTiempo(reloj, anio.sitio.longitud));
  for (std::size_t i = 0; i < HORAS; ++i) {
    sol.cosenoCentro[i] = instante.Coseno(i);
    sol.cosenoMayor[i] =
        std::max({sol.cosenoCentro[i], instante.Coseno(i, -MEDIA_HORA), instante.Coseno(i, MEDIA_HORA)});
    sol.extraterrestre[i] = IrradianciaExtraterrestre(i / static_cast<std::size_t>(HORAS_DEL_DIA));
  }
  return sol;
}

MateriaAuditoria PrepararAuditoria(const ResultadoLectura &lectura, const NormalesLocalidad *normales) {
  MateriaAuditoria materia;
  materia.errores = lectura.errores;
  materia.avisos = lectura.avisos;
  materia.registros = lectura.registros;
  materia.normales = normales;
  materia.anio.formato = lectura.formato;
  if (!lectura.anio) return materia;
  materia.anio = *lectura.anio;
  materia.reloj = DetectarReloj(materia.anio);
  materia.sol = CalcularSolDeRegistros(materia.anio, ElegirReloj(materia.reloj));
  return materia;
}

const NormalesLocalidad *NormalesDelSitio(const std::vector<NormalesLocalidad> &localidades,
                                          const SitioClima &sitio) {
  constexpr double KM = 15.0, METROS = 150.0;
  const NormalesLocalidad *cercana = nullptr;
  double menor = KM;
  for (const NormalesLocalidad &localidad : localidades) {
    const double distancia = DistanciaKm(sitio.latitud, sitio.longitud, localidad);
    if (!(distancia <= menor) || std::abs(sitio.altitud - localidad.altitud) > METROS) continue;
    menor = distancia;
    cercana = &localidad;
  }
  return cercana;
}

} // namespace tesmo
