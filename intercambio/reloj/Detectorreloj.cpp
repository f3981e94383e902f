#include "intercambio/reloj/Detectorreloj.h"

#include "intercambio/reloj/Evidenciareloj.h"
#include "intercambio/reloj/Textoreloj.h"

#include <algorithm>
#include <cmath>

namespace tesmo {

namespace {

constexpr double GRADOS_POR_HORA = 15.0;
/// Otro tiempo de etiqueta se propone sólo si casa mejor que el declarado en esta proporción.
constexpr double MEJORA_PRECISA = 0.75;
/// Un mes que se aparta más de los otros no lleva su reloj [min].
constexpr double DESVIO_DE_MES = 15.0;
constexpr double CONFIANZA_ALTA = 0.75;
constexpr double CONFIANZA_MEDIA = 0.4;

/// Residuos con que la confianza es toda y ninguna, horas o días que bastan, y lo más que se puede confiar.
struct Baremo {
  double bueno;
  double malo;
  double bastan;
  double tope;
};

Baremo BaremoDe(MetodoReloj metodo) {
  // El de la simetría va en minutos y no pasa de medio: una sierra o una bruma de mañana la engañan.
  if (metodo == MetodoReloj::Simetria) return {10.0, 40.0, 30.0, 0.6};
  return {0.02, 0.10, 300.0, 1.0};
}

/// Lo medido en un tiempo de etiqueta.
struct Medida {
  std::unique_ptr<EvidenciaReloj> evidencia;
  RelojMedido mejor;
};

Medida Medir(MetodoReloj metodo, const AnioCanonico &anio, RelojFichero reloj) {
  Medida medida{Evidencia(metodo, anio, reloj), {reloj, AUSENTE}};
  if (!medida.evidencia) return medida;
  medida.mejor.reloj.desfaseMin = medida.evidencia->Mejor();
  medida.mejor.residuo = medida.evidencia->Residuo(medida.mejor.reloj.desfaseMin);
  return medida;
}

/// El mismo año, con las etiquetas en hora solar si eran civiles y al revés.
RelojFichero OtroTiempo(const AnioCanonico &anio) {
  RelojFichero reloj = anio.reloj;
  if (reloj.tiempo != TiempoEtiqueta::SolarVerdadero) {
    reloj.tiempo = TiempoEtiqueta::SolarVerdadero;
    return reloj;
  }
  reloj.tiempo = TiempoEtiqueta::OficialEstandar;
  reloj.husoHoras =
      std::isfinite(anio.sitio.longitud) ? std::round(anio.sitio.longitud / GRADOS_POR_HORA) : 0.0;
  return reloj;
}

/// Lo medido con el primer método que el año permite.
Medida MedirConElPrimero(const AnioCanonico &anio, MetodoReloj &metodo) {
  for (const MetodoReloj candidato : {MetodoReloj::Haz, MetodoReloj::Cenit, MetodoReloj::Simetria}) {
    Medida medida = Medir(candidato, anio, anio.reloj);
    if (!medida.evidencia) continue;
    metodo = candidato;
    return medida;
  }
  metodo = MetodoReloj::Ninguno;
  return {nullptr, {anio.reloj, AUSENTE}};
}

/// Un cenit escrito dice cómo lo calculó quien hizo el fichero, no cuándo se midió su radiación.
void ContrastarCenit(VeredictoReloj &veredicto, const AnioCanonico &anio) {
  if (veredicto.metodo != MetodoReloj::Cenit) return;
  const Medida dias = Medir(MetodoReloj::Simetria, anio, veredicto.propuesto.reloj);
  if (!dias.evidencia) return;
  const double desvio = dias.mejor.reloj.desfaseMin - veredicto.desfaseHallado;
  if (std::fabs(desvio) > DESVIO_DE_MES) AvisarDeRadiacionAparte(veredicto, desvio);
}

/// Meses que no llevan el reloj del año.
std::vector<int> MesesAparte(const VeredictoReloj &veredicto) {
  std::vector<int> meses;
  for (int mes = 0; mes < static_cast<int>(veredicto.desfasePorMes.size()); ++mes) {
    const double desvio = veredicto.desfasePorMes[static_cast<std::size_t>(mes)] - veredicto.desfaseHallado;
    if (std::fabs(desvio) > DESVIO_DE_MES) meses.push_back(mes);
  }
  return meses;
}

void Calificar(VeredictoReloj &veredicto, double residuo) {
  const Baremo baremo = BaremoDe(veredicto.metodo);
  const double ajuste = std::clamp((baremo.malo - residuo) / (baremo.malo - baremo.bueno), 0.0, 1.0);
  const double numero = std::min(1.0, veredicto.horas / baremo.bastan);
  const double meses = 1.0 - static_cast<double>(MesesAparte(veredicto).size()) / 12.0;
  veredicto.grado = baremo.tope * ajuste * std::sqrt(numero) * meses * meses;
  veredicto.confianza = veredicto.grado >= CONFIANZA_ALTA    ? ConfianzaReloj::Alta
                        : veredicto.grado >= CONFIANZA_MEDIA ? ConfianzaReloj::Media
                                                             : ConfianzaReloj::Baja;
}

bool ConcuerdaDesfase(MetodoReloj metodo, double diferencia) {
  if (metodo == MetodoReloj::Simetria) return std::fabs(diferencia) < TOLERANCIA_SIMETRIA_MIN;
  return std::fabs(diferencia) <= TOLERANCIA_RELOJ_MIN;
}

/// El reloj declarado si casa; si no, el hallado al minuto.
void Proponer(VeredictoReloj &veredicto, const Medida &elegida, const Medida &otra) {
  const RelojFichero &declarado = veredicto.declarado.reloj;
  RelojFichero hallado = elegida.mejor.reloj;
  veredicto.desfaseHallado = hallado.desfaseMin;
  veredicto.concuerda = hallado.tiempo == declarado.tiempo &&
                        ConcuerdaDesfase(veredicto.metodo, hallado.desfaseMin - declarado.desfaseMin);
  hallado.desfaseMin = std::round(hallado.desfaseMin);
  veredicto.propuesto.reloj = veredicto.concuerda ? declarado : hallado;
  veredicto.propuesto.residuo = elegida.evidencia->Residuo(veredicto.propuesto.reloj.desfaseMin);
  if (!veredicto.concuerda) {
    veredicto.alternativa = veredicto.declarado;
  } else if (otra.evidencia) {
    veredicto.alternativa = otra.mejor;
  }
}

} // namespace

VeredictoReloj DetectarReloj(const AnioCanonico &anio) {
  VeredictoReloj veredicto;
  veredicto.declarado = {anio.reloj, AUSENTE};
  veredicto.propuesto = veredicto.declarado;
  veredicto.desfasePorMes.fill(AUSENTE);
  Medida elegida = MedirConElPrimero(anio, veredicto.metodo);
  if (elegida.evidencia) {
    Medida otra = Medir(veredicto.metodo, anio, OtroTiempo(anio));
    veredicto.declarado.residuo = elegida.evidencia->Residuo(anio.reloj.desfaseMin);
    if (otra.evidencia && otra.mejor.residuo < MEJORA_PRECISA * elegida.mejor.residuo)
      std::swap(elegida, otra);
    Proponer(veredicto, elegida, otra);
    veredicto.horas = elegida.evidencia->Numero();
    veredicto.desfasePorMes = elegida.evidencia->PorMes(veredicto.desfaseHallado);
    Calificar(veredicto, elegida.mejor.residuo);
    ContrastarCenit(veredicto, anio);
  }
  EscribirVeredicto(veredicto, anio.sitio, MesesAparte(veredicto));
  return veredicto;
}

} // namespace tesmo
