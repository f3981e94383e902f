#include "intercambio/auditoria/Radiaciondehora.h"

#include "intercambio/auditoria/Hallazgos.h"

#include <algorithm>
#include <cmath>

namespace tesmo {

namespace {

/// La directa normal llevada a la horizontal.
double NormalEnHorizontal(const MateriaAuditoria &materia, std::size_t i) {
  if (!materia.sol.Hay()) return AUSENTE;
  return Valores(materia, Campo::DirectaNormal)[i] * CosenoDe(materia, i);
}

/// El primero que no falta.
double ElQueHaya(double primero, double segundo) { return std::isnan(primero) ? segundo : primero; }

} // namespace

double CosenoDe(const MateriaAuditoria &materia, std::size_t i) {
  return std::max(0.0, materia.sol.cosenoCentro[i]);
}

double GlobalDe(const MateriaAuditoria &materia, std::size_t i) {
  const double global = Valores(materia, Campo::GlobalHorizontal)[i];
  if (!std::isnan(global)) return global;
  return Valores(materia, Campo::DifusaHorizontal)[i] +
         ElQueHaya(Valores(materia, Campo::DirectaHorizontal)[i], NormalEnHorizontal(materia, i));
}

double DirectaHorizontalDe(const MateriaAuditoria &materia, std::size_t i) {
  const double directa =
      ElQueHaya(Valores(materia, Campo::DirectaHorizontal)[i], NormalEnHorizontal(materia, i));
  if (!std::isnan(directa)) return directa;
  return Valores(materia, Campo::GlobalHorizontal)[i] - Valores(materia, Campo::DifusaHorizontal)[i];
}

double DirectaNormalDe(const MateriaAuditoria &materia, std::size_t i) {
  constexpr double COSENO_MINIMO = 0.15; // sol a menos de 9°: un minuto de reloj ya mueve el cociente
  const double normal = Valores(materia, Campo::DirectaNormal)[i];
  if (!std::isnan(normal)) return normal;
  const double coseno = CosenoDe(materia, i);
  return coseno < COSENO_MINIMO ? AUSENTE : DirectaHorizontalDe(materia, i) / coseno;
}

} // namespace tesmo
