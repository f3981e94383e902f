#include "intercambio/auditoria/Comprobaciones.h"
#include "intercambio/auditoria/Hallazgos.h"
#include "intercambio/comun/Perfilmensual.h"
#include "intercambio/magnitudes/Cielo.h"
#include "psicro/Atmosfera.h"
#include "psicro/Constantes.h"
#include "psicro/Saturacion.h"

#include <cmath>

namespace tesmo {

namespace {

/// Presiones entre las que se busca la que mejor encaja [Pa]: de 5.500 m de altitud a 600 m bajo el mar.
constexpr double PRESION_MENOR = 50000.0, PRESION_MAYOR = 109000.0;

constexpr double CIEN = 100.0; // [%], el aire saturado
constexpr double PASCALES_POR_KILOPASCAL = 1000.0;

double Saturacion(double t) { return static_cast<double>(presionSaturacion(static_cast<float>(t))); }

/// Presión de la hora: la del fichero, la de la altitud de la cabecera o la normal.
double PresionDe(const MateriaAuditoria &materia, std::size_t i) {
  const double presion = Valores(materia, Campo::Presion)[i];
  if (presion >= PRESION_MENOR && presion <= PRESION_MAYOR) return presion;
  const double altitud = materia.anio.sitio.altitud;
  return std::isnan(altitud) ? static_cast<double>(aire::PRESION_NORMAL) : PresionEnAltitud(altitud);
}

/// Humedad relativa [%] de una absoluta; AUSENTE si falta algo.
double RelativaDeAbsoluta(double t, double w, double presion) {
  return CIEN * presion * w / ((aire::EPSILON + w) * Saturacion(t));
}

/// Humedad relativa [%] que da lo demás que el fichero dice del vapor: la absoluta o el rocío.
double RelativaDeLoDemas(const MateriaAuditoria &materia, std::size_t i, double presion) {
  const double t = Valores(materia, Campo::TemperaturaSeca)[i];
  const double w = Valores(materia, Campo::HumedadAbsoluta)[i];
  if (!std::isnan(w)) return RelativaDeAbsoluta(t, w, presion);
  return CIEN * Saturacion(Valores(materia, Campo::TemperaturaRocio)[i]) / Saturacion(t);
}

/// La presión que hace casar absoluta y relativa en la hora @p i: p = HR·ps(T)·(ε + w)/(100·w).
double PresionQueEncaja(const MateriaAuditoria &materia, std::size_t i) {
  const double w = Valores(materia, Campo::HumedadAbsoluta)[i];
  const double hr = Valores(materia, Campo::HumedadRelativa)[i];
  const double t = Valores(materia, Campo::TemperaturaSeca)[i];
  constexpr double W_MINIMA = 0.002, HR_MAXIMA = 99.0; // con menos vapor manda el redondeo; saturado, el tope
  if (!(w > W_MINIMA) || !(hr < HR_MAXIMA)) return AUSENTE;
  return hr * Saturacion(t) * (aire::EPSILON + w) / (CIEN * w);
}

double PresionQueMejorEncaja(const MateriaAuditoria &materia) {
  std::vector<double> presiones;
  for (std::size_t i = 0; i < HORAS; ++i) {
    const double p = PresionQueEncaja(materia, i);
    if (!std::isnan(p)) presiones.push_back(p);
  }
  return MedianaDe(presiones);
}

/// Puntos en que la relativa puede apartarse de la que dan la absoluta o el rocío: cinco es lo que da de sí
/// un rocío y una temperatura redondeados al grado; más de veinticinco no lo da ningún redondeo ni
/// interpolación.
constexpr double PUNTOS = 5.0, PUNTOS_DE_SOBRA = 25.0;

struct Desacuerdo {
  std::size_t horas = 0; ///< con las dos humedades
  double mayor = 0.0;    ///< [puntos]
  HorasMalas malas;
};
Desacuerdo DesacuerdoDelAnio(const MateriaAuditoria &materia) {
  Desacuerdo resultado;
  for (std::size_t i = 0; i < HORAS; ++i) {
    const double diferencia = std::abs(Valores(materia, Campo::HumedadRelativa)[i] -
                                       RelativaDeLoDemas(materia, i, PresionDe(materia, i)));
    if (std::isnan(diferencia)) continue;
    ++resultado.horas;
    resultado.mayor = std::max(resultado.mayor, diferencia);
    if (diferencia > PUNTOS) resultado.malas.push_back(i);
  }
  return resultado;
}

/// "; la presión que mejor encaja es 95,3 kPa (515 m)" y si eso contradice a la del sitio.
struct PresionHallada {
  std::string texto;
  bool contradice = false;
};
PresionHallada HallarPresion(const MateriaAuditoria &materia) {
  const double hallada = PresionQueMejorEncaja(materia);
  if (!(hallada > PRESION_MENOR && hallada < PRESION_MAYOR)) return {};
  constexpr double TOLERANCIA = 0.01; // 1 %: unos 85 m de altitud, o dos cifras de una humedad relativa
  double media = MediaDe(Valores(materia, Campo::Presion));
  if (std::isnan(media)) media = PresionDe(materia, 0);
  PresionHallada presion;
  presion.contradice = std::abs(hallada - media) > TOLERANCIA * media;
  presion.texto =
      "; la presión que mejor las casa es " + Cifra(hallada / PASCALES_POR_KILOPASCAL, "0.0") + " kPa (" +
      Cifra(AltitudDePresion(hallada), "0") + " m)" +
      (presion.contradice ? ", y la del sitio " + Cifra(media / PASCALES_POR_KILOPASCAL, "0.0") + " kPa"
                          : "");
  return presion;
}

} // namespace

Hallazgo MirarSaturacion(const MateriaAuditoria &materia) {
  // Un punto por encima de 100 lo da el redondeo; a partir de cinco ya no es una medida.
  constexpr double HOLGURA = 1.0, EXCESO_GRAVE = 5.0;
  constexpr std::size_t HORAS_GRAVES = 24;
  HorasMalas malas;
  double mayor = 0.0;
  std::size_t graves = 0;
  for (std::size_t i = 0; i < HORAS; ++i) {
    const double relativa = Valores(materia, Campo::HumedadRelativa)[i];
    const double otra = RelativaDeLoDemas(materia, i, PresionDe(materia, i));
    const double hr = std::isnan(otra) || relativa > otra ? relativa : otra;
    if (!(hr > CIEN + HOLGURA)) continue;
    malas.push_back(i);
    mayor = std::max(mayor, hr);
    graves += hr > CIEN + EXCESO_GRAVE ? 1U : 0U;
  }
  if (malas.empty()) return Conforme("ninguna hora sobre el aire saturado");
  return ConLineas(SegunCuantas(graves, HORAS_GRAVES),
                   Cuantas(malas.size()) + " con más vapor que el aire saturado, hasta el " +
                       Cifra(mayor, "0") + " %",
                   materia, malas);
}

Hallazgo MirarHumedades(const MateriaAuditoria &materia) {
  constexpr double PARTE_DE_AVISO = 0.01, PARTE_GRAVE = 0.25;
  const Desacuerdo desacuerdo = DesacuerdoDelAnio(materia);
  if (desacuerdo.horas == 0) return NoComprobada("hacen falta la relativa y otra humedad, o el rocío");
  const PresionHallada presion = HallarPresion(materia);
  const double parte = static_cast<double>(desacuerdo.malas.size()) / static_cast<double>(desacuerdo.horas);
  const std::string texto = Cuantas(desacuerdo.malas.size()) +
                            " en que la relativa se aparta más de 5 puntos, " + Cifra(desacuerdo.mayor, "0") +
                            " la que más" + presion.texto;
  if (parte <= PARTE_DE_AVISO && desacuerdo.mayor <= PUNTOS_DE_SOBRA && !presion.contradice)
    return Conforme(texto);
  return ConLineas(parte > PARTE_GRAVE ? Gravedad::Grave : Gravedad::Aviso, texto, materia, desacuerdo.malas);
}

Hallazgo MirarCielo(const MateriaAuditoria &materia) {
  // Onda larga del cielo entre 0,4·σT⁴ y σT⁴ + 25 W/m² (Long y Shi, 2008).
  constexpr double FRACCION_MINIMA = 0.4, SOBRE_EL_CUERPO_NEGRO = 25.0;
  HorasMalas malas;
  std::size_t horas = 0;
  for (std::size_t i = 0; i < HORAS; ++i) {
    double infrarroja = Valores(materia, Campo::InfrarrojaHorizontal)[i];
    if (std::isnan(infrarroja))
      infrarroja = InfrarrojaDeTemperatura(Valores(materia, Campo::TemperaturaCielo)[i]);
    const double negro = InfrarrojaDeTemperatura(Valores(materia, Campo::TemperaturaSeca)[i]);
    if (std::isnan(infrarroja) || std::isnan(negro)) continue;
    ++horas;
    if (infrarroja < FRACCION_MINIMA * negro || infrarroja > negro + SOBRE_EL_CUERPO_NEGRO)
      malas.push_back(i);
  }
  if (horas == 0) return NoComprobada("no hay infrarroja ni temperatura de cielo");
  const std::string texto = Cuantas(malas.size()) + " fuera de 0,4·σT⁴ a σT⁴ + 25 W/m²";
  if (malas.empty()) return Conforme(texto);
  return ConLineas(Gravedad::Aviso, texto, materia, malas);
}

} // namespace tesmo
