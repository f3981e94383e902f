#include "core/Error.h"
#include "psicro/Corrienteaire.h"

namespace tesmo {

namespace {

bool MismoCaudal(const CorrienteAire &cEnt, const CorrienteAire &cSal) {
  if (cEnt.caudal() == cSal.caudal()) return true;
  // El calor latente nombra también a dameQSen: se conserva.
  EscribirRegistro(
      "**Corrientes con caudales diferentes:float dameQSen(CorrienteAire& cEnt,CorrienteAire& cSal)");
  return false;
}

} // namespace

void mezclar(const CorrienteAire &a, const CorrienteAire &b, CorrienteAire &resultado) {
  if (a.p_ != b.p_) {
    EscribirRegistro("**Las dos corrientes deben tener la misma presión,mezclar");
    return;
  }
  resultado.m_ = a.m_ + b.m_;
  const long double m = resultado.m_;
  const long double h = (a.entalpia() * a.m_ + b.entalpia() * b.m_) / m;
  const long double w = (static_cast<long double>(a.m_) * a.w_ + static_cast<long double>(b.m_) * b.w_) / m;
  resultado.ponw_h(static_cast<float>(w), static_cast<float>(h), a.p_);
}

float dameQSen(const CorrienteAire &cEnt, const CorrienteAire &cSal) {
  if (!MismoCaudal(cEnt, cSal)) return 0.0F;
  const double w = cEnt.humedadAbsoluta();
  const double salto = static_cast<double>(cSal.temperatura()) - cEnt.temperatura();
  return static_cast<float>((aire::CPV * w + aire::CPA) * cEnt.caudal() * salto);
}

float dameQLat(const CorrienteAire &cEnt, const CorrienteAire &cSal) {
  if (!MismoCaudal(cEnt, cSal)) return 0.0F;
  const double t = cSal.temperatura();
  const double salto = static_cast<double>(cSal.humedadAbsoluta()) - cEnt.humedadAbsoluta();
  return static_cast<float>((aire::CPV * t + aire::H0) * cEnt.caudal() * salto);
}

} // namespace tesmo
