#include "meteo/Derivacionespsicrometricas.h"
#include "meteo/Leermet.h"
#include "solar/Posicionsolar.h"

namespace tesmo {

void LeerMet::DerivarPsicrometricas(float presion) {
  tesmo::DerivarPsicrometricas(leidas_, derivadas_, TramoEnAnio(), presion);
  derivadasPresentes_ = true;
  claveAire_ = ClaveAire{carga_, periodo_, presion};
  claveSol_.reset();
}

void LeerMet::DerivarSolares(const PosicionSolar &horizonte) {
  factorDeCielo_ = tesmo::DerivarSolares(leidas_, derivadas_, TramoEnAnio(), InicioEnAnio(), superficie_,
                                         sitio_.latitud, horizonte);
  claveSol_ = ClaveSol{carga_, periodo_, superficie_, horizonte.HorizonteX(), horizonte.HorizonteY()};
}

void LeerMet::AsegurarDerivadas(float presion, const PosicionSolar &horizonte) {
  if (!derivadasPresentes_ || claveAire_ != ClaveAire{carga_, periodo_, presion}) {
    DerivarPsicrometricas(presion);
  }
  if (claveSol_ != ClaveSol{carga_, periodo_, superficie_, horizonte.HorizonteX(), horizonte.HorizonteY()}) {
    DerivarSolares(horizonte);
  }
}

CriterioEstadisticas LeerMet::Criterio(const BasesGradosDia &bases) const {
  return {InicioEnAnio(), TramoEnAnio(), primeraHoraDelDia_, ultimaHoraDelDia_, bases};
}

ResultadoEstadisticas LeerMet::DameEstadisticas(Magnitud magnitud, const BasesGradosDia &bases) const {
  return CalcularEstadisticas(magnitud, leidas_, derivadas_, Criterio(bases));
}

std::vector<EstadisticasDelMes> LeerMet::DameEstadisticasPorMes(Magnitud magnitud,
                                                                const BasesGradosDia &bases) const {
  return CalcularEstadisticasPorMes(magnitud, leidas_, derivadas_, Criterio(bases));
}

void LeerMet::Estadisticas(std::string_view rotulo, float baseCalefaccion, float baseRefrigeracion,
                           float &maximo, float &minimo, float &media, float &gradosCal, float &gradosRef,
                           float &tercera, std::string &unidad) const {
  ResultadoEstadisticas resultado;
  if (const FichaMagnitud *ficha = BuscarPorRotulo(rotulo))
    resultado = DameEstadisticas(ficha->magnitud, {baseCalefaccion, baseRefrigeracion});
  maximo = resultado.maximo;
  minimo = resultado.minimo;
  media = resultado.media;
  gradosCal = resultado.gradosDiaCalefaccion;
  gradosRef = resultado.gradosDiaRefrigeracion;
  tercera = resultado.tercerSumatorio;
  unidad = resultado.unidad;
}

} // namespace tesmo
