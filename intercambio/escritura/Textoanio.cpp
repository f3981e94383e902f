#include "intercambio/escritura/Textoanio.h"

#include "core/Codificacion.h"
#include "intercambio/escritura/Textocsv.h"
#include "intercambio/escritura/Textoepw.h"
#include "intercambio/escritura/Textomet.h"

#include <array>
#include <cmath>
#include <utility>

namespace tesmo {

namespace {

std::string TextoMetDe(const AnioSolar &anio) {
  const auto oCero = [](double valor) { return std::isfinite(valor) ? valor : 0.0; };
  const CabeceraMet cabecera{"Escrito por Tesmo: " + anio.sitio.nombre, oCero(anio.sitio.latitud),
                             oCero(anio.sitio.longitud), oCero(anio.sitio.altitud),
                             anio.husoHoras * GRADOS_POR_HUSO};
  return TextoMet(cabecera, ColumnasDe(anio));
}

} // namespace

std::optional<FormatoSalida> FormatoDeSalida(std::string_view fichero) {
  constexpr std::array<std::pair<std::string_view, FormatoSalida>, 3> EXTENSIONES{
      {{".met", FormatoSalida::Met}, {".epw", FormatoSalida::Epw}, {".csv", FormatoSalida::Csv}}};
  const std::string plegado = PlegarMinusculas(fichero);
  for (const auto &[extension, formato] : EXTENSIONES)
    if (plegado.ends_with(extension)) return formato;
  return std::nullopt;
}

std::string TextoDeAnio(const AnioSolar &anio, FormatoSalida formato) {
  switch (formato) {
  case FormatoSalida::Epw:
    return TextoEpw(anio);
  case FormatoSalida::Csv:
    return TextoCsv(anio);
  case FormatoSalida::Met:
    break;
  }
  return TextoMetDe(anio);
}

double HusoDeSitio(double meridiano, double longitud) {
  constexpr double MEDIA_HORA = GRADOS_POR_HUSO / 2.0;
  constexpr double CUARTO_DE_HORA = GRADOS_POR_HUSO / 4.0; // Nepal, Eucla, Chatham
  constexpr double LEJOS = 3.5 * GRADOS_POR_HUSO;
  constexpr double EL_SUYO = 0.01;
  constexpr double VUELTA = 360.0;
  const double grados = std::isfinite(longitud) ? longitud : 0.0;
  const double distancia = std::fabs(std::remainder(meridiano - grados, VUELTA));
  // Un meridiano de cuarto de hora que es el del propio sitio no es el de un huso: es casualidad.
  const bool deUnHuso = std::remainder(meridiano, MEDIA_HORA) == 0.0 ||
                        (std::remainder(meridiano, CUARTO_DE_HORA) == 0.0 && distancia > EL_SUYO);
  if (deUnHuso && distancia <= LEJOS) return meridiano / GRADOS_POR_HUSO;
  return std::round(grados / GRADOS_POR_HUSO);
}

} // namespace tesmo
