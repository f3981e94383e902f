#include "psicro/Corrienteaire.h"

#include "core/Error.h"
#include "psicro/Saturacion.h"

#include <array>
#include <utility>

namespace tesmo {

using namespace aire;

namespace {

constexpr float CAUDAL_INICIAL = 15.0F;
constexpr float T_INICIAL = 25.0F;
constexpr float HR_INICIAL = 50.0F;
constexpr float HR_MAXIMA = 100.0F;
constexpr double HORAS_POR_SEGUNDO = 1.0 / 3600.0;

constexpr std::array<std::pair<std::string_view, Magnitudaire>, 10> CODIGOS{{
    {"m", Magnitudaire::Caudal},
    {"p", Magnitudaire::Presion},
    {"t", Magnitudaire::Temperatura},
    {"w", Magnitudaire::HumedadAbsoluta},
    {"th", Magnitudaire::TemperaturaHumeda},
    {"tr", Magnitudaire::TemperaturaRocio},
    {"hr", Magnitudaire::HumedadRelativa},
    {"h", Magnitudaire::Entalpia},
    {"ro", Magnitudaire::Densidad},
    {"ve", Magnitudaire::VolumenEspecifico},
}};

void AcotarTemperaturaYPresion(float &t, float &p, std::string_view contexto) {
  Acotar(t, T_MINIMA, T_MAXIMA, contexto);
  Acotar(p, P_MINIMA, P_MAXIMA, contexto);
}

} // namespace

CorrienteAire::CorrienteAire(std::string nombre) : ObjetoBase(std::move(nombre)), m_(CAUDAL_INICIAL) {
  pont_hr(T_INICIAL, HR_INICIAL, PRESION_NORMAL);
}

CorrienteAire::CorrienteAire(const CorrienteAire &otra)
    : ObjetoBase(otra), m_(otra.m_), t_(otra.t_), p_(otra.p_), w_(otra.w_) {}

CorrienteAire &CorrienteAire::operator=(const CorrienteAire &otra) {
  ObjetoBase::operator=(otra);
  m_ = otra.m_;
  t_ = otra.t_;
  p_ = otra.p_;
  w_ = otra.w_;
  return *this;
}

std::string CorrienteAire::nombreClase() const { return "CorrienteAire"; }

void CorrienteAire::pont_w(float t, float w, float p) {
  AcotarTemperaturaYPresion(t, p, "CorrienteAire::pont_w");
  Acotar(w, 0.0F, static_cast<float>(humedadSaturacion(t, p)), "CorrienteAire::pont_w");
  t_ = t;
  w_ = w;
  p_ = p;
}

void CorrienteAire::pont_th(float t, float th, float p) {
  AcotarTemperaturaYPresion(t, p, "CorrienteAire::pont_th");
  Acotar(th, T_MINIMA, t, "CorrienteAire::pont_th");
  t_ = t;
  p_ = p;
  w_ = static_cast<float>(humedadDeBulboHumedo(t, th, p));
}

void CorrienteAire::pont_tr(float t, float tr, float p) {
  AcotarTemperaturaYPresion(t, p, "CorrienteAire::pont_tr");
  Acotar(tr, T_MINIMA, t, "CorrienteAire::pont_tr");
  t_ = t;
  p_ = p;
  w_ = static_cast<float>(humedadSaturacion(tr, p));
}

void CorrienteAire::pont_hr(float t, float hr, float p) {
  // La presión se comprueba antes que la temperatura, al revés que en las demás: se conserva.
  Acotar(p, P_MINIMA, P_MAXIMA, "CorrienteAire::pont_hr");
  Acotar(t, T_MINIMA, T_MAXIMA, "CorrienteAire::pont_hr");
  Acotar(hr, 0.0F, HR_MAXIMA, "CorrienteAire::pont_hr");
  t_ = t;
  p_ = p;
  const double pv = 0.01 * hr * presionSaturacion(t);
  w_ = static_cast<float>(EPSILON * pv / (p - pv));
}

void CorrienteAire::pont_h(float t, float h, float p) {
  AcotarTemperaturaYPresion(t, p, "CorrienteAire::pont_h");
  t_ = t;
  p_ = p;
  w_ = 0.0F;
  const auto minima = static_cast<float>(entalpia());
  w_ = static_cast<float>(humedadSaturacion(t, p));
  const auto maxima = static_cast<float>(entalpia());
  Acotar(h, minima, maxima, "CorrienteAire::pont_h");
  const double td = t;
  w_ = static_cast<float>((h - CPA * td) / (CPV * td + H0));
}

void CorrienteAire::ponw_h(float w, float h, float p) {
  Acotar(p, P_MINIMA, P_MAXIMA, "CorrienteAire::ponw_h");
  // Las dos etiquetas siguientes nombran otra clase: se conserva.
  Acotar(w, 0.0F, static_cast<float>(humedadSaturacion(T_MAXIMA, p)), "Psicrometria::ponw_h");
  w_ = w;
  p_ = p;
  t_ = temperaturaRocio();
  Acotar(h, static_cast<float>(entalpia()), H_MAXIMA, "Psicrometria::ponw_h");
  const double wd = w;
  t_ = static_cast<float>((h - H0 * wd) / (CPV * wd + CPA));
}

void CorrienteAire::ponm(float m, std::string_view cod) {
  Acotar(m, 0.0F, CAUDAL_MAXIMO, "CorrienteAire::ponm");
  if (cod == "kg/s") {
    m_ = m;
  } else if (cod == "kg/h") {
    m_ = static_cast<float>(m * HORAS_POR_SEGUNDO);
  } else if (cod == "m3/s") {
    m_ = static_cast<float>(densidad() * m);
  } else if (cod == "m3/h") {
    m_ = static_cast<float>(densidad() * m * HORAS_POR_SEGUNDO);
  } else {
    EscribirRegistro("** cod no valido: Void CorrienteAire::ponm(char* cod, float m_)");
  }
}

long double CorrienteAire::dame(std::string_view cod) const {
  for (const auto &[codigo, magnitud] : CODIGOS) {
    if (codigo == cod) return dame(magnitud);
  }
  return 0.0L;
}

long double CorrienteAire::dame(Magnitudaire magnitud) const {
  switch (magnitud) {
  case Magnitudaire::Caudal:
    return m_;
  case Magnitudaire::Presion:
    return p_;
  case Magnitudaire::Temperatura:
    return t_;
  case Magnitudaire::HumedadAbsoluta:
    return w_;
  case Magnitudaire::TemperaturaHumeda:
    return temperaturaHumeda();
  case Magnitudaire::TemperaturaRocio:
    return temperaturaRocio();
  case Magnitudaire::HumedadRelativa:
    return humedadRelativa();
  case Magnitudaire::Entalpia:
    return entalpia();
  case Magnitudaire::Densidad:
    return densidad();
  case Magnitudaire::VolumenEspecifico:
    return volumenEspecifico();
  }
  return 0.0L;
}

float CorrienteAire::temperaturaHumeda() const { return tBulboHumedo(t_, w_); }

float CorrienteAire::temperaturaRocio() const {
  const long double w = w_;
  return tSatVap(static_cast<float>(p_ * w / (EPSILON_ROCIO + w)));
}

long double CorrienteAire::humedadRelativa() const {
  const long double w = w_;
  const long double pv = p_ * w / (EPSILON + w);
  return 100.0L * pv / presionSaturacion(t_);
}

long double CorrienteAire::entalpia() const {
  const long double t = t_;
  return (CPV * t + H0) * w_ + CPA * t;
}

long double CorrienteAire::densidad() const {
  const long double t = t_;
  return p_ / ((t + T0) * RA * (MASA_AIRE_ENTRE_AGUA * static_cast<long double>(w_) + 1.0L));
}

long double CorrienteAire::volumenEspecifico() const {
  const long double t = t_;
  return (t + T0) * RA * (MASA_AIRE_ENTRE_AGUA * static_cast<long double>(w_) + 1.0L) / p_;
}

} // namespace tesmo
