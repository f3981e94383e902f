#include "intercambio/auditoria/Comprobaciones.h"
#include "intercambio/auditoria/Hallazgos.h"
#include "intercambio/auditoria/Radiaciondehora.h"
#include "intercambio/comun/Perfilmensual.h"

#include <algorithm>
#include <cmath>

// Lo contrario de la radiación de noche: un cero no delata a un sensor parado si no se mira dónde está el
// sol. Los límites son de este programa.

namespace tesmo {

namespace {

/// Coseno del cenit de 11,5° de altura: fuera de la atmósfera llegan ya 265 W/m² a la horizontal, y bajo las
/// nubes más espesas quedan bastantes más de los que un sensor marca sin sol.
constexpr double COSENO_ALTO = 0.2;
/// Con esta global [W/m²] el cielo reparte siempre algo de difusa, esté nublado o despejado.
constexpr double GLOBAL_CON_DIFUSA = 50.0;
/// Horas que un eclipse o una tormenta pueden dejar sin luz.
constexpr std::size_t HORAS_TOLERADAS = 5;
/// Un mes de días de diez horas de sol alto sin ver el sol ni un momento.
constexpr std::size_t HORAS_SIN_HAZ = 300;
/// Una vigésima parte del sol del año: dieciocho días.
constexpr double PARTE_GRAVE = 0.05;

/// Las horas del año con el sol alto y global conocida.
HorasMalas HorasAltas(const MateriaAuditoria &materia) {
  HorasMalas horas;
  for (std::size_t i = 0; i < HORAS; ++i)
    if (materia.sol.cosenoCentro[i] > COSENO_ALTO && !std::isnan(GlobalDe(materia, i))) horas.push_back(i);
  return horas;
}

HorasMalas SinGlobal(const MateriaAuditoria &materia, const HorasMalas &altas) {
  HorasMalas malas;
  for (std::size_t i : altas)
    if (GlobalDe(materia, i) <= RADIACION_NOCTURNA) malas.push_back(i);
  return malas.size() > HORAS_TOLERADAS ? malas : HorasMalas();
}

HorasMalas SinDifusa(const MateriaAuditoria &materia, const HorasMalas &altas) {
  HorasMalas malas;
  for (std::size_t i : altas)
    if (GlobalDe(materia, i) > GLOBAL_CON_DIFUSA && Valores(materia, Campo::DifusaHorizontal)[i] <= 0.0)
      malas.push_back(i);
  return malas.size() > HORAS_TOLERADAS ? malas : HorasMalas();
}

/// Las de las rachas sin haz más largas que un mes nublado; las que no tienen radiación ninguna ya se dicen.
HorasMalas SinDirecta(const MateriaAuditoria &materia, const HorasMalas &altas) {
  HorasMalas malas, racha;
  const auto cerrar = [&] {
    if (racha.size() > HORAS_SIN_HAZ) malas.insert(malas.end(), racha.begin(), racha.end());
    racha.clear();
  };
  for (std::size_t i : altas) {
    if (GlobalDe(materia, i) <= RADIACION_NOCTURNA) continue;
    if (DirectaHorizontalDe(materia, i) <= 0.0)
      racha.push_back(i);
    else
      cerrar();
  }
  cerrar();
  return malas;
}

} // namespace

Hallazgo MirarDia(const MateriaAuditoria &materia) {
  if (!materia.sol.Hay()) return NoComprobada("no se sabe dónde está el sitio");
  const HorasMalas altas = HorasAltas(materia);
  if (altas.empty()) return NoComprobada("no hay radiación con el sol a más de 11°");
  Gravedad gravedad = Gravedad::Conforme;
  std::string texto;
  HorasMalas todas;
  const auto apuntar = [&](const char *que, const HorasMalas &malas) {
    if (malas.empty()) return;
    const bool grave = static_cast<double>(malas.size()) > PARTE_GRAVE * static_cast<double>(altas.size());
    gravedad = std::max(gravedad, grave ? Gravedad::Grave : Gravedad::Aviso);
    texto += (texto.empty() ? "" : "; ") + std::string(que) + ": " + Cuantas(malas.size()) + " de " +
             std::to_string(altas.size()) + " con el sol a más de 11°, la primera el " +
             TextoHora(static_cast<int>(malas.front()));
    todas.insert(todas.end(), malas.begin(), malas.end());
  };
  apuntar("sin radiación", SinGlobal(materia, altas));
  apuntar("sin difusa", SinDifusa(materia, altas));
  apuntar("sin directa un mes o más", SinDirecta(materia, altas));
  if (gravedad == Gravedad::Conforme) return Conforme("la hay siempre que el sol está a más de 11°");
  return ConLineas(gravedad, texto, materia, todas);
}

} // namespace tesmo
