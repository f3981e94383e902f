#include "intercambio/auditoria/Comprobaciones.h"
#include "intercambio/auditoria/Hallazgos.h"
#include "intercambio/auditoria/Radiaciondehora.h"
#include "intercambio/comun/Perfilmensual.h"
#include "psicro/Atmosfera.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tesmo {

namespace {

/// Presión media de un año, a lo más, respecto a la normal de su altitud: la del nivel del mar va de 100 a
/// 103 kPa según la región, y la de los años de reanálisis es la de la altura media de su celda.
constexpr double PRESION_DE_AVISO = 0.02, PRESION_GRAVE = 0.05; // en tanto por uno: unos 170 y 430 m

/// Lo que un año típico puede apartarse de las normales sin dejar de ser de ese lugar. El mes típico se elige
/// por parecerse a la media, así que 3 K (unas dos desviaciones de una media mensual) ya es raro.
constexpr double KELVIN_DE_MEDIA = 3.0;
/// Desviaciones típicas diarias que el día más extremo de un mes se aleja de la media: con treinta días se
/// espera dos; menos de 0,8 o más de 4,5 no pasa.
constexpr double DESVIACIONES_SUAVE = 0.8, DESVIACIONES_DURA = 4.5;
constexpr double PARTE_DE_RADIACION = 0.25; // de la global mensual

/// Máximas (o mínimas) diarias de un mes: su media y el día más extremo.
struct DiasDelMes {
  double media = AUSENTE;
  double extremo = AUSENTE;
};
template <typename Mejor>
DiasDelMes Diarias(const std::vector<double> &t, std::size_t mes, Mejor mejor) {
  DiasDelMes dias{0.0, AUSENTE};
  for (std::size_t dia = PrimerDiaDe(mes); dia < PrimerDiaDe(mes) + DiasDe(mes); ++dia) {
    double extremo = t[dia * HORAS_POR_DIA];
    for (std::size_t h = 1; h < HORAS_POR_DIA; ++h) extremo = mejor(extremo, t[dia * HORAS_POR_DIA + h]);
    dias.media += extremo / static_cast<double>(DiasDe(mes));
    dias.extremo = std::isnan(dias.extremo) ? extremo : mejor(dias.extremo, extremo);
  }
  return dias;
}

/// Media diaria de la global de un mes [kWh/m²]; AUSENTE si no la hay.
double GlobalDiaria(const MateriaAuditoria &materia, std::size_t mes) {
  double suma = 0.0;
  for (std::size_t i = PrimerDiaDe(mes) * HORAS_POR_DIA; i < (PrimerDiaDe(mes) + DiasDe(mes)) * HORAS_POR_DIA;
       ++i)
    suma += GlobalDe(materia, i);
  return suma / 1000.0 / static_cast<double>(DiasDe(mes));
}

/// Reúne lo que se aparta, mes a mes.
class Diferencias {
public:
  void Media(std::size_t mes, const char *que, double valor, double normal) {
    if (!(std::abs(valor - normal) > KELVIN_DE_MEDIA)) return;
    Anadir(mes, std::string(que) + " media de " + Cifra(valor) + " °C (normal " + Cifra(normal) + ")");
  }
  void Extremo(std::size_t mes, const char *que, double extremo, double normal, double desviacion,
               double signo) {
    const double alejado = signo * (extremo - normal) / desviacion;
    if (alejado > DESVIACIONES_DURA)
      Anadir(mes, std::string(que) + " de " + Cifra(extremo) + " °C, muy dura");
    if (alejado < DESVIACIONES_SUAVE)
      Anadir(mes, std::string(que) + " de " + Cifra(extremo) + " °C, muy suave");
  }
  void Radiacion(std::size_t mes, double valor, double normal) {
    if (!(std::abs(valor - normal) > PARTE_DE_RADIACION * normal)) return;
    Anadir(mes, "global de " + Cifra(valor) + " kWh/m² al día (normal " + Cifra(normal) + ")");
  }
  [[nodiscard]] const std::string &Texto() const { return texto_; }
  [[nodiscard]] std::size_t Numero() const { return numero_; }

private:
  void Anadir(std::size_t mes, const std::string &texto) {
    texto_ += (texto_.empty() ? "" : "; ") + std::string(NombreMes(static_cast<int>(mes) + 1)) + ": " + texto;
    ++numero_;
  }
  std::string texto_;
  std::size_t numero_ = 0;
};

void CompararMes(const MateriaAuditoria &materia, std::size_t mes, Diferencias &diferencias) {
  const std::vector<double> &t = Valores(materia, Campo::TemperaturaSeca);
  const NormalesMes &normal = materia.normales->meses[mes];
  const DiasDelMes maximas = Diarias(t, mes, [](double a, double b) { return std::max(a, b); });
  const DiasDelMes minimas = Diarias(t, mes, [](double a, double b) { return std::min(a, b); });
  diferencias.Media(mes, "máxima", maximas.media, normal.tmaxMedia);
  diferencias.Media(mes, "mínima", minimas.media, normal.tminMedia);
  diferencias.Extremo(mes, "la mayor máxima", maximas.extremo, normal.tmaxMedia, normal.sdTmax, 1.0);
  diferencias.Extremo(mes, "la menor mínima", minimas.extremo, normal.tminMedia, normal.sdTmin, -1.0);
  diferencias.Radiacion(mes, GlobalDiaria(materia, mes), normal.ghi);
}

} // namespace

Hallazgo MirarAltitud(const MateriaAuditoria &materia) {
  const double altitud = materia.anio.sitio.altitud;
  const double media = MediaDe(Valores(materia, Campo::Presion));
  if (std::isnan(media)) return NoComprobada("el fichero no trae presión");
  if (std::isnan(altitud)) return NoComprobada("la cabecera no trae altitud");
  const double normal = PresionEnAltitud(altitud);
  const double parte = std::abs(media - normal) / normal;
  const std::string texto = "presión media de " + Cifra(media / 1000.0) + " kPa, de " +
                            Cifra(AltitudDePresion(media), "0") + " m; la de " + Cifra(altitud, "0") +
                            " m es " + Cifra(normal / 1000.0) + " kPa";
  if (parte <= PRESION_DE_AVISO) return Conforme(texto);
  return {parte > PRESION_GRAVE ? Gravedad::Grave : Gravedad::Aviso, texto, {}};
}

Hallazgo MirarNormales(const MateriaAuditoria &materia) {
  constexpr std::size_t FALTAS_GRAVES = MESES * 5 / 2; // la mitad de las cifras del año: es otro sitio
  if (materia.normales == nullptr) return NoComprobada("no se conocen las normales del lugar");
  if (!Trae(materia, Campo::TemperaturaSeca)) return NoComprobada("no hay temperaturas");
  Diferencias diferencias;
  for (std::size_t mes = 0; mes < MESES; ++mes) CompararMes(materia, mes, diferencias);
  const std::string lugar = "normales de " + materia.normales->nombre;
  if (diferencias.Numero() == 0) return Conforme("como las " + lugar);
  return {SegunCuantas(diferencias.Numero(), FALTAS_GRAVES), lugar + ": " + diferencias.Texto(), {}};
}

} // namespace tesmo
