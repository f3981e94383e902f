#include "vistas/grafico/Escalahoras.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tesmo {

namespace {

using Unidad = PasoHoras::Unidad;

/// De la más fina a la más gruesa.
constexpr std::array<PasoHoras, 13> PASOS{{{Unidad::Hora, 1},
                                           {Unidad::Hora, 2},
                                           {Unidad::Hora, 3},
                                           {Unidad::Hora, 6},
                                           {Unidad::Hora, 12},
                                           {Unidad::Dia, 1},
                                           {Unidad::Dia, 2},
                                           {Unidad::Dia, 5},
                                           {Unidad::Dia, 10},
                                           {Unidad::Mes, 1},
                                           {Unidad::Mes, 2},
                                           {Unidad::Mes, 3},
                                           {Unidad::Mes, 6}}};

constexpr double DIAS_DEL_MES_MEDIO = 365.0 / 12.0;
/// Anchura [px] de "31 dic 24 h" y de "31 dic", con su hueco, a los tamaños de letra habituales.
constexpr double ANCHO_CON_HORA = 84.0;
constexpr double ANCHO_SIN_HORA = 54.0;
/// Hueco mínimo [px] entre marcas pequeñas.
constexpr double ANCHO_SUBMARCA = 9.0;

double HorasDelPaso(const PasoHoras &paso) {
  switch (paso.unidad) {
  case Unidad::Hora:
    return paso.cada;
  case Unidad::Dia:
    return paso.cada * HORAS_DEL_DIA;
  default:
    return paso.cada * DIAS_DEL_MES_MEDIO * HORAS_DEL_DIA;
  }
}

double AnchoDeMarca(const PasoHoras &paso) {
  return paso.unidad == Unidad::Hora ? ANCHO_CON_HORA : ANCHO_SIN_HORA;
}

/// Las marcas de varios días empiezan el 1 de cada mes; la que quedaría pegada al mes siguiente se quita.
bool EsMarca(const FechaHora &fecha, const PasoHoras &paso) {
  if (paso.unidad == Unidad::Hora) return (fecha.hora - 1) % paso.cada == 0;
  if (fecha.hora != 1) return false;
  if (paso.unidad == Unidad::Mes) return fecha.dia == 1 && (fecha.mes - 1) % paso.cada == 0;
  return (fecha.dia - 1) % paso.cada == 0 && fecha.dia + paso.cada - 1 <= DiasDelMes(fecha.mes);
}

std::string FechaCorta(const FechaHora &fecha, bool conHora) {
  std::string texto = std::to_string(fecha.dia);
  texto += ' ';
  texto += MesCorto(fecha.mes);
  if (conHora) texto += " " + std::to_string(fecha.hora) + " h";
  return texto;
}

double PixelesPorHora(double desde, double hasta, double ancho) {
  return hasta > desde ? ancho / (hasta - desde) : ancho;
}

} // namespace

EscalaHoras::EscalaHoras(const Periodo &periodo)
    : primera_(IndiceHora(periodo.inicio.mes, periodo.inicio.dia, periodo.inicio.hora)),
      numero_(std::max(IndiceHora(periodo.fin.mes, periodo.fin.dia, periodo.fin.hora) - primera_ + 1, 1)) {}

FechaHora EscalaHoras::Fecha(int k) const {
  return FechaDeIndice(std::clamp(primera_ + k - 1, 0, HORAS_DEL_ANIO - 1));
}

PasoHoras EscalaHoras::PasoPara(double pixelesPorHora) {
  for (const PasoHoras &paso : PASOS) {
    if (HorasDelPaso(paso) * pixelesPorHora >= AnchoDeMarca(paso)) return paso;
  }
  return PASOS.back();
}

std::vector<int> EscalaHoras::HorasDe(const PasoHoras &paso, double desde, double hasta) const {
  std::vector<int> horas;
  const int primera = std::max(1, static_cast<int>(std::ceil(std::max(desde, 1.0))));
  const int ultima = static_cast<int>(std::floor(std::min(hasta, static_cast<double>(numero_))));
  for (int k = primera; k <= ultima; ++k) {
    if (EsMarca(Fecha(k), paso)) horas.push_back(k);
  }
  return horas;
}

std::string EscalaHoras::Titulo() const { return "Hora del período"; }

std::vector<MarcaEje> EscalaHoras::Marcas(double desde, double hasta, double ancho) const {
  const double densidad = PixelesPorHora(desde, hasta, ancho);
  const PasoHoras paso = PasoPara(densidad);
  std::vector<int> horas = HorasDe(paso, desde, hasta);
  // El comienzo del período lleva marca aunque no caiga en una fecha redonda, si no estorba a la siguiente.
  const bool hayComienzo = desde <= 1.0 && hasta >= 1.0 && (horas.empty() || horas.front() != 1);
  if (hayComienzo && (horas.empty() || (horas.front() - 1) * densidad >= ANCHO_CON_HORA)) {
    horas.insert(horas.begin(), 1);
  }
  std::vector<MarcaEje> marcas;
  for (const int k : horas) {
    const FechaHora fecha = Fecha(k);
    const bool conHora = paso.unidad == Unidad::Hora || fecha.hora != 1;
    marcas.push_back({static_cast<double>(k), std::to_string(k) + "\n" + FechaCorta(fecha, conHora)});
  }
  return marcas;
}

std::vector<double> EscalaHoras::Submarcas(double desde, double hasta, double ancho) const {
  const double densidad = PixelesPorHora(desde, hasta, ancho);
  const PasoHoras grueso = PasoPara(densidad);
  for (const PasoHoras &paso : PASOS) {
    if (paso == grueso) break;
    if (HorasDelPaso(paso) * densidad < ANCHO_SUBMARCA) continue;
    const std::vector<int> horas = HorasDe(paso, desde, hasta);
    return {horas.begin(), horas.end()};
  }
  return {};
}

double EscalaHoras::Ajustar(double x) const {
  return std::isfinite(x) ? std::clamp(std::round(x), 1.0, static_cast<double>(numero_)) : 1.0;
}

std::string EscalaHoras::Nombrar(double x) const {
  const int k = static_cast<int>(Ajustar(x));
  const FechaHora fecha = Fecha(k);
  return std::to_string(fecha.dia) + " de " + std::string(NombreMes(fecha.mes)) + ", hora " +
         std::to_string(fecha.hora) + " (hora " + std::to_string(k) + " del período)";
}

std::vector<std::string> EscalaHoras::Encabezamientos() const { return {"n", "mes", "dia", "hora"}; }

std::vector<std::string> EscalaHoras::Campos(double x) const {
  const int k = static_cast<int>(Ajustar(x));
  const FechaHora fecha = Fecha(k);
  return {std::to_string(k), std::to_string(fecha.mes), std::to_string(fecha.dia),
          std::to_string(fecha.hora)};
}

} // namespace tesmo
