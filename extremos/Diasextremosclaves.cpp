// Los ajustes de DiasExtremos por su nombre.

#include "extremos/Diasextremos.h"

#include "core/Formato.h"
#include "localidades/Ciudad.h"

namespace tesmo {

namespace {

constexpr float PERCENTIL_MAXIMO = 100.0F;
constexpr extremos::AjustesEstacion CALEFACCION = extremos::CalefaccionDeFabrica();
constexpr extremos::AjustesEstacion REFRIGERACION = extremos::RefrigeracionDeFabrica();
constexpr std::int32_t ULTIMO_MES = 12;
constexpr std::string_view PATRON_PERCENTIL = "0.0##";

} // namespace

std::string DiasExtremos::DameTexto(std::string_view clave) const {
  if (clave == "Localidad") return localidad_;
  if (clave == "Provincia") return provincia_;
  if (clave == "Percentil calefacción") return FormatearPatron(calefaccion_.percentil, PATRON_PERCENTIL);
  if (clave == "Percentil refrigeración") return FormatearPatron(refrigeracion_.percentil, PATRON_PERCENTIL);
  if (clave == "Mes calefacción") return std::to_string(calefaccion_.mes);
  if (clave == "Mes refrigeración") return std::to_string(refrigeracion_.mes);
  return {};
}

void DiasExtremos::DameReal(std::string_view clave, float &valor) const {
  if (clave == "Percentil calefacción") valor = calefaccion_.percentil;
  if (clave == "Percentil refrigeración") valor = refrigeracion_.percentil;
  if (clave == "Mes calefacción") valor = static_cast<float>(calefaccion_.mes);
  if (clave == "Mes refrigeración") valor = static_cast<float>(refrigeracion_.mes);
}

void DiasExtremos::DameEntero(std::string_view clave, std::int32_t &valor) const {
  if (clave == "Mes calefacción") valor = calefaccion_.mes;
  if (clave == "Mes refrigeración") valor = refrigeracion_.mes;
}

void DiasExtremos::DameEstado(std::string_view clave, std::int32_t &estado) const {
  if (clave == "Provincia") estado = colores_[COLOR_PROVINCIA];
  if (clave == "Localidad") estado = colores_[COLOR_LOCALIDAD];
  if (clave == "Percentil calefacción") estado = colores_[COLOR_PER_CAL];
  if (clave == "Percentil refrigeración") estado = colores_[COLOR_PER_REF];
  if (clave == "Mes calefacción") estado = colores_[COLOR_MES_CAL];
  if (clave == "Mes refrigeración") estado = colores_[COLOR_MES_REF];
}

void DiasExtremos::PonTexto(std::string_view clave, const std::string &texto) {
  if (clave == "Localidad") {
    ActualizarTexto(localidad_, colores_[COLOR_LOCALIDAD], texto, {});
  } else if (clave == "Provincia") {
    ActualizarTexto(provincia_, colores_[COLOR_PROVINCIA], texto, {});
  } else if (clave == "Percentil calefacción") {
    ActualizarReal(calefaccion_.percentil, colores_[COLOR_PER_CAL], texto, 0.0F, PERCENTIL_MAXIMO,
                   CALEFACCION.percentil);
  } else if (clave == "Percentil refrigeración") {
    ActualizarReal(refrigeracion_.percentil, colores_[COLOR_PER_REF], texto, 0.0F, PERCENTIL_MAXIMO,
                   REFRIGERACION.percentil);
  } else if (clave == "Mes calefacción") {
    ActualizarEntero(calefaccion_.mes, colores_[COLOR_MES_CAL], texto, 1, ULTIMO_MES, CALEFACCION.mes);
  } else if (clave == "Mes refrigeración") {
    ActualizarEntero(refrigeracion_.mes, colores_[COLOR_MES_REF], texto, 1, ULTIMO_MES, REFRIGERACION.mes);
  }
}

void DiasExtremos::DameTemporada(std::string_view clave, MesesDeTemporada &meses) const {
  if (clave == "Temporada calefacción") meses = calefaccion_.temporada;
  if (clave == "Temporada refrigeración") meses = refrigeracion_.temporada;
}

void DiasExtremos::PonTemporada(std::string_view clave, const MesesDeTemporada &meses) {
  if (clave == "Temporada calefacción") calefaccion_.temporada = meses;
  if (clave == "Temporada refrigeración") refrigeracion_.temporada = meses;
}

void DiasExtremos::ListaDe(std::string_view clave, std::vector<std::string> &lista) const {
  if (clave == "Provincias") DameBaseDeLocalidades().ListaDe(clave, lista);
  if (clave == "Localidades") DameBaseDeLocalidades().ListaDe(clave, provincia_, lista);
}

} // namespace tesmo
