// Los ajustes de DiasExtremos por su nombre.

#include "extremos/Diasextremos.h"

#include "core/Formato.h"
#include "localidades/Ciudad.h"

namespace tesmo {

namespace {

constexpr float PERCENTIL_MAXIMO = 100.0F;
constexpr float PERCENTIL_CALEFACCION = 99.0F;
constexpr float PERCENTIL_REFRIGERACION = 1.0F;
constexpr std::int32_t ULTIMO_MES = 12;
constexpr std::int32_t MES_CALEFACCION = 1;
constexpr std::int32_t MES_REFRIGERACION = 7;
constexpr std::string_view PATRON_PERCENTIL = "0.0##";

} // namespace

std::string DiasExtremos::DameTexto(std::string_view clave) const {
  if (clave == "Localidad") return localidad_;
  if (clave == "Provincia") return provincia_;
  if (clave == "Percentil calefacción") return FormatearPatron(percentilCalefaccion_, PATRON_PERCENTIL);
  if (clave == "Percentil refrigeración") return FormatearPatron(percentilRefrigeracion_, PATRON_PERCENTIL);
  if (clave == "Mes calefacción") return std::to_string(mesCalefaccion_);
  if (clave == "Mes refrigeración") return std::to_string(mesRefrigeracion_);
  return {};
}

void DiasExtremos::DameReal(std::string_view clave, float &valor) const {
  if (clave == "Percentil calefacción") valor = percentilCalefaccion_;
  if (clave == "Percentil refrigeración") valor = percentilRefrigeracion_;
  if (clave == "Mes calefacción") valor = static_cast<float>(mesCalefaccion_);
  if (clave == "Mes refrigeración") valor = static_cast<float>(mesRefrigeracion_);
}

void DiasExtremos::DameEntero(std::string_view clave, std::int32_t &valor) const {
  if (clave == "Mes calefacción") valor = mesCalefaccion_;
  if (clave == "Mes refrigeración") valor = mesRefrigeracion_;
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
    ActualizarReal(percentilCalefaccion_, colores_[COLOR_PER_CAL], texto, 0.0F, PERCENTIL_MAXIMO,
                   PERCENTIL_CALEFACCION);
  } else if (clave == "Percentil refrigeración") {
    ActualizarReal(percentilRefrigeracion_, colores_[COLOR_PER_REF], texto, 0.0F, PERCENTIL_MAXIMO,
                   PERCENTIL_REFRIGERACION);
  } else if (clave == "Mes calefacción") {
    ActualizarEntero(mesCalefaccion_, colores_[COLOR_MES_CAL], texto, 1, ULTIMO_MES, MES_CALEFACCION);
  } else if (clave == "Mes refrigeración") {
    ActualizarEntero(mesRefrigeracion_, colores_[COLOR_MES_REF], texto, 1, ULTIMO_MES, MES_REFRIGERACION);
  }
}

void DiasExtremos::DameTemporada(std::string_view clave, MesesDeTemporada &meses) const {
  if (clave == "Temporada calefacción") meses = temporadaCalefaccion_;
  if (clave == "Temporada refrigeración") meses = temporadaRefrigeracion_;
}

void DiasExtremos::PonTemporada(std::string_view clave, const MesesDeTemporada &meses) {
  if (clave == "Temporada calefacción") temporadaCalefaccion_ = meses;
  if (clave == "Temporada refrigeración") temporadaRefrigeracion_ = meses;
}

void DiasExtremos::ListaDe(std::string_view clave, std::vector<std::string> &lista) const {
  if (clave == "Provincias") DameBaseDeLocalidades().ListaDe(clave, lista);
  if (clave == "Localidades") DameBaseDeLocalidades().ListaDe(clave, provincia_, lista);
}

} // namespace tesmo
