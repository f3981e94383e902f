#include "intercambio/reloj/Textoreloj.h"

#include "core/Calendario.h"
#include "core/Formato.h"
#include "core/Unidades.h"

#include <cmath>

namespace tesmo {

namespace {

std::string ConSigno(double valor, const char *patron) {
  const std::string cifra = Cifra(std::fabs(valor), patron);
  return (valor < 0.0 ? "− " : "+ ") + cifra;
}

std::string TextoDesfase(double minutos) {
  if (minutos == 0.0) return "etiqueta en el centro de su hora";
  return "etiqueta " + ConSigno(minutos, "0.#") + " min";
}

/// El residuo con su unidad: minutos en la simetría, cosenos en lo demás.
std::string TextoResiduo(const VeredictoReloj &veredicto, double residuo) {
  if (veredicto.metodo == MetodoReloj::Simetria) return "dispersión de " + Cifra(residuo, "0") + " min";
  return "residuo " + Cifra(residuo, "0.000");
}

std::string TextoMetodo(const VeredictoReloj &veredicto) {
  const std::string numero = std::to_string(veredicto.horas);
  switch (veredicto.metodo) {
  case MetodoReloj::Haz:
    return "el haz de " + numero + " horas de sol";
  case MetodoReloj::Cenit:
    return "el cenit escrito en " + numero + " horas";
  case MetodoReloj::Simetria:
    return "la simetría de " + numero + " días claros";
  case MetodoReloj::Ninguno:
    break;
  }
  return "nada";
}

/// Cuando la etiqueta oficial casa fuera de su hora, dicho en UTC se entiende mejor.
std::string TextoEquivalente(const RelojFichero &reloj) {
  const bool enSuHora = reloj.desfaseMin <= 0.0 && reloj.desfaseMin >= -MINUTOS_POR_HORA;
  if (reloj.tiempo != TiempoEtiqueta::OficialEstandar || reloj.husoHoras == 0.0 || enSuHora) return {};
  const double enUtc = reloj.desfaseMin - reloj.husoHoras * MINUTOS_POR_HORA;
  return " (lo mismo que UTC, " + TextoDesfase(enUtc) + ")";
}

std::string TextoDeLoMedido(const VeredictoReloj &veredicto) {
  const std::string declarado = TextoReloj(veredicto.declarado.reloj);
  const std::string medido = TextoMetodo(veredicto);
  const std::string confianza = " Confianza " + TextoConfianza(veredicto.confianza) + ".";
  const std::string residuo = TextoResiduo(veredicto, veredicto.propuesto.residuo);
  const double diferencia = veredicto.desfaseHallado - veredicto.declarado.reloj.desfaseMin;
  if (veredicto.concuerda && std::fabs(diferencia) > TOLERANCIA_RELOJ_MIN) {
    return "Se toma el reloj que declara el fichero, " + declarado + "; " + medido + " da " +
           Cifra(veredicto.desfaseHallado, "0") + " min, " + residuo + ", y por menos de " +
           Cifra(TOLERANCIA_SIMETRIA_MIN, "0") + " min no basta para cambiarlo." + confianza;
  }
  if (veredicto.concuerda) {
    return "El reloj que declara el fichero, " + declarado + ", casa con " + medido +
           ": el mejor desfase es " + Cifra(veredicto.desfaseHallado, "0.0") + " min, " + residuo + "." +
           confianza;
  }
  const RelojFichero &propuesto = veredicto.propuesto.reloj;
  return "El fichero declara " + declarado + ", pero " + medido + " casa mejor con " + TextoReloj(propuesto) +
         TextoEquivalente(propuesto) + ": " + residuo + ", frente a " +
         Cifra(veredicto.declarado.residuo, veredicto.metodo == MetodoReloj::Simetria ? "0" : "0.000") +
         " con lo declarado." + confianza;
}

std::string TextoSinMedir(const VeredictoReloj &veredicto, const SitioClima &sitio) {
  const bool solar = veredicto.declarado.reloj.tiempo == TiempoEtiqueta::SolarVerdadero;
  const bool sinSitio = !std::isfinite(sitio.latitud) || (!solar && !std::isfinite(sitio.longitud));
  const std::string causa = sinSitio ? "no se sabe dónde está el sitio"
                                     : "no hay bastantes horas de sol, ni cenit escrito, ni días claros";
  return "El reloj no se puede comprobar: " + causa + ". Se toma el que declara el fichero, " +
         TextoReloj(veredicto.declarado.reloj) + ".";
}

void AvisarDeMeses(VeredictoReloj &veredicto, const std::vector<int> &meses) {
  if (meses.empty()) return;
  std::string texto = "No todos los meses llevan el mismo reloj:";
  for (const int mes : meses) {
    const auto m = static_cast<std::size_t>(mes);
    const double desvio = veredicto.desfasePorMes[m] - veredicto.desfaseHallado;
    texto += std::string(mes == meses.front() ? " " : ", ") + std::string(NombreMes(mes + 1)) + " (" +
             ConSigno(desvio, "0") + " min)";
  }
  veredicto.avisos.push_back(texto +
                             ". Si son los de verano y van a − 60, el fichero sigue la hora de verano.");
}

} // namespace

void AvisarDeRadiacionAparte(VeredictoReloj &veredicto, double desvio) {
  veredicto.avisos.push_back(
      "La radiación de los días claros no sigue al cenit escrito: su mejor desfase está a " +
      ConSigno(desvio, "0") + " min del hallado. Compruebe cuál de los dos vale.");
}

void AvisarDeCenitAparte(VeredictoReloj &veredicto, const RelojFichero &cenit, bool hayDias) {
  veredicto.avisos.push_back(
      "El cenit escrito es el de " + TextoReloj(cenit) + ", y no el del reloj que declara el fichero; " +
      (hayDias ? "la radiación de los días claros no lo sigue" : "no hay días claros con que comprobarlo") +
      ", y por él solo no se mueve nada.");
}

std::string Cifra(double valor, const char *patron) {
  std::string texto = valor < 0.0 ? "−" : "";
  PatronNumero(patron).Escribir(texto, std::fabs(valor), ',');
  return texto;
}

std::string TextoReloj(const RelojFichero &reloj) {
  std::string tiempo = "hora solar verdadera";
  if (reloj.tiempo == TiempoEtiqueta::Utc) tiempo = "UTC";
  if (reloj.tiempo == TiempoEtiqueta::OficialEstandar) {
    const std::string signo = reloj.husoHoras < 0.0 ? "−" : "+";
    tiempo = "hora oficial (UTC" + signo + Cifra(std::fabs(reloj.husoHoras), "0.##") + ")";
  }
  return tiempo + ", " + TextoDesfase(reloj.desfaseMin);
}

std::string TextoConfianza(ConfianzaReloj confianza) {
  switch (confianza) {
  case ConfianzaReloj::Alta:
    return "alta";
  case ConfianzaReloj::Media:
    return "media";
  case ConfianzaReloj::Baja:
    return "baja";
  case ConfianzaReloj::Ninguna:
    break;
  }
  return "ninguna";
}

void EscribirVeredicto(VeredictoReloj &veredicto, const SitioClima &sitio,
                       const std::vector<int> &mesesAparte) {
  if (veredicto.metodo == MetodoReloj::Ninguno) {
    veredicto.texto = TextoSinMedir(veredicto, sitio);
    return;
  }
  veredicto.texto = TextoDeLoMedido(veredicto);
  AvisarDeMeses(veredicto, mesesAparte);
  if (std::fabs(veredicto.desfaseHallado) > MINUTOS_POR_HORA + MINUTOS_POR_HORA / 2.0) {
    veredicto.avisos.emplace_back("El desfase hallado pasa de hora y media: lo más probable es que el huso "
                                  "de la cabecera no sea el suyo.");
  }
}

} // namespace tesmo
