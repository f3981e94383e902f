#include "intercambio/reloj/Detectorreloj.h"

#include "core/Unidades.h"
#include "intercambio/reloj/Evidenciareloj.h"
#include "intercambio/reloj/Textoreloj.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tesmo {

namespace {

/// Otro tiempo de etiqueta se propone sólo si casa mejor que el declarado en esta proporción.
constexpr double MEJORA_PRECISA = 0.75;
/// Un mes que se aparta más de los otros no lleva su reloj [min].
constexpr double DESVIO_DE_MES = 15.0;
/// Lo mismo por la simetría de unos pocos días claros: la mitad de la hora que adelanta el verano [min].
constexpr double DESVIO_DE_MES_POR_SIMETRIA = 30.0;
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

/// Lo que el mediodía de los días claros se aparta de @p reloj [min]; AUSENTE si hay pocos.
double DesvioDeLosDias(const AnioCanonico &anio, const RelojFichero &reloj) {
  const Medida dias = Medir(MetodoReloj::Simetria, anio, reloj);
  return dias.evidencia ? dias.mejor.reloj.desfaseMin - reloj.desfaseMin : AUSENTE;
}

/// Un cenit escrito dice cómo lo calculó quien hizo el fichero —al final de la hora, en su centro—, no cuándo
/// se midió su radiación: por él solo el reloj no se mueve.
bool LoDesmientenLosDias(const AnioCanonico &anio, const RelojMedido &cenit) {
  if (cenit.reloj.tiempo == anio.reloj.tiempo &&
      std::fabs(cenit.reloj.desfaseMin - anio.reloj.desfaseMin) <= TOLERANCIA_RELOJ_MIN)
    return false;
  const double conElCenit = DesvioDeLosDias(anio, cenit.reloj);
  const double conLoDeclarado = DesvioDeLosDias(anio, anio.reloj);
  return !(std::fabs(conElCenit) < std::fabs(conLoDeclarado));
}

/// Un cenit que casa con lo declarado no quita que la radiación vaya por otro lado.
void ContrastarCenit(VeredictoReloj &veredicto, const AnioCanonico &anio) {
  if (veredicto.metodo != MetodoReloj::Cenit) return;
  RelojFichero reloj = veredicto.propuesto.reloj;
  reloj.desfaseMin = veredicto.desfaseHallado;
  const double desvio = DesvioDeLosDias(anio, reloj);
  if (std::fabs(desvio) > DESVIO_DE_MES) AvisarDeRadiacionAparte(veredicto, desvio);
}

/// El año en el tiempo de etiqueta que mejor casa y en el otro.
struct Juicio {
  Medida elegida;
  Medida otra;
  double residuoDeclarado = AUSENTE;
};

/// @p declarada es lo que @p metodo mide en el tiempo declarado.
Juicio Juzgar(MetodoReloj metodo, const AnioCanonico &anio, Medida declarada) {
  Juicio juicio{std::move(declarada), Medir(metodo, anio, OtroTiempo(anio)), AUSENTE};
  juicio.residuoDeclarado = juicio.elegida.evidencia->Residuo(anio.reloj.desfaseMin);
  if (juicio.otra.evidencia && juicio.otra.mejor.residuo < MEJORA_PRECISA * juicio.elegida.mejor.residuo)
    std::swap(juicio.elegida, juicio.otra);
  return juicio;
}

/// Si hay días claros, mandan ellos.
void JuzgarPorLosDias(MetodoReloj &metodo, const AnioCanonico &anio, Juicio &juicio) {
  Medida dias = Medir(MetodoReloj::Simetria, anio, anio.reloj);
  if (!dias.evidencia) return;
  metodo = MetodoReloj::Simetria;
  juicio = Juzgar(metodo, anio, std::move(dias));
}

/// Meses que no llevan el reloj del año.
std::vector<int> MesesAparte(const VeredictoReloj &veredicto) {
  std::vector<int> meses;
  const double mayor = veredicto.metodo == MetodoReloj::Simetria ? DESVIO_DE_MES_POR_SIMETRIA : DESVIO_DE_MES;
  for (int mes = 0; mes < static_cast<int>(veredicto.desfasePorMes.size()); ++mes) {
    const double desvio = veredicto.desfasePorMes[static_cast<std::size_t>(mes)] - veredicto.desfaseHallado;
    if (std::fabs(desvio) > mayor) meses.push_back(mes);
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

/// Se dice que el cenit va por su lado y, si es lo único que hay, no basta para cambiar lo declarado.
void DesconfiarDelCenit(VeredictoReloj &veredicto, RelojFichero cenit) {
  constexpr double GRADO_BAJO = 0.3;
  const bool hayDias = veredicto.metodo == MetodoReloj::Simetria;
  cenit.desfaseMin = std::round(cenit.desfaseMin) + 0.0;
  AvisarDeCenitAparte(veredicto, cenit, hayDias);
  if (hayDias) return;
  veredicto.grado = std::min(veredicto.grado, GRADO_BAJO);
  veredicto.confianza = ConfianzaReloj::Baja;
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
  Medida declarada = MedirConElPrimero(anio, veredicto.metodo);
  if (declarada.evidencia) {
    Juicio juicio = Juzgar(veredicto.metodo, anio, std::move(declarada));
    const RelojMedido primero = juicio.elegida.mejor;
    const bool cenitAparte = veredicto.metodo == MetodoReloj::Cenit && LoDesmientenLosDias(anio, primero);
    if (cenitAparte) JuzgarPorLosDias(veredicto.metodo, anio, juicio);
    veredicto.declarado.residuo = juicio.residuoDeclarado;
    Proponer(veredicto, juicio.elegida, juicio.otra);
    veredicto.horas = juicio.elegida.evidencia->Numero();
    veredicto.desfasePorMes = juicio.elegida.evidencia->PorMes(veredicto.desfaseHallado);
    Calificar(veredicto, juicio.elegida.mejor.residuo);
    if (cenitAparte) {
      DesconfiarDelCenit(veredicto, primero.reloj);
    } else {
      ContrastarCenit(veredicto, anio);
    }
  }
  EscribirVeredicto(veredicto, anio.sitio, MesesAparte(veredicto));
  return veredicto;
}

} // namespace tesmo
