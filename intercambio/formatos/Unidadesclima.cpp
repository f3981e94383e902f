#include "intercambio/formatos/Unidadesclima.h"

#include "core/Codificacion.h"
#include "core/Unidades.h"

#include <array>
#include <string>

namespace tesmo {

namespace {

using Unidades = std::vector<UnidadClima>;

/// Milímetro de mercurio convencional [Pa] y milla náutica internacional por hora [m/s] (BIPM, El Sistema
/// Internacional de Unidades, 8.ª edición, 2006, tabla 8).
constexpr double PASCALES_POR_MMHG = 133.322;
constexpr double METROS_POR_SEGUNDO_DE_UN_NUDO = 1852.0 / 3600.0;

const Unidades TEMPERATURA{{"°C"}, {"K", 1.0, -CERO_CELSIUS}, {"°F", 5.0 / 9.0, -160.0 / 9.0}};
const Unidades PORCENTAJE{{"%"}, {"tanto por uno", 100.0, 0.0}};
const Unidades HUMEDAD_ABSOLUTA{{"kg/kg"}, {"g/kg", 1e-3, 0.0}};
const Unidades PRESION{{"Pa"},
                       {"hPa", 100.0, 0.0},
                       {"mbar", 100.0, 0.0},
                       {"kPa", 1000.0, 0.0},
                       {"mmHg", PASCALES_POR_MMHG, 0.0}};
const Unidades RADIACION{{"W/m²"},
                         {"Wh/m²", 1.0, 0.0},
                         {"kWh/m²", 1000.0, 0.0},
                         {"J/cm²", 10.0 / 3.6, 0.0},
                         {"kJ/m²", 1.0 / 3.6, 0.0},
                         {"MJ/m²", 1000.0 / 3.6, 0.0}};
const Unidades NUBOSIDAD{{"décimos"}, {"octavos", 1.25, 0.0}, {"%", 0.1, 0.0}, {"tanto por uno", 10.0, 0.0}};
const Unidades VELOCIDAD{{"m/s"}, {"km/h", 1.0 / 3.6, 0.0}, {"nudos", METROS_POR_SEGUNDO_DE_UN_NUDO, 0.0}};
const Unidades ANGULO{{"°"}};
const Unidades ACIMUT{{"° desde el sur"}, {"° desde el norte", 1.0, -180.0}};

std::string Normal(std::string_view nombre) {
  std::string normal = PlegarMinusculas(nombre);
  const auto cambiar = [&normal](std::string_view de, std::string_view a) {
    for (std::size_t i = 0; (i = normal.find(de, i)) != std::string::npos; i += a.size())
      normal.replace(i, de.size(), a);
  };
  cambiar("²", "2");
  cambiar("º", "°");
  cambiar("°", "");
  cambiar(" ", "");
  cambiar("é", "e");
  return normal;
}

} // namespace

const Unidades &UnidadesDe(Campo campo) {
  static const std::array<const Unidades *, NUMERO_CAMPOS> TABLA{
      &TEMPERATURA, &TEMPERATURA, &TEMPERATURA, &PORCENTAJE, &HUMEDAD_ABSOLUTA, &PRESION,   &RADIACION,
      &RADIACION,   &RADIACION,   &RADIACION,   &RADIACION,  &NUBOSIDAD,        &NUBOSIDAD, &VELOCIDAD,
      &ANGULO,      &ACIMUT,      &ANGULO};
  return *TABLA[static_cast<std::size_t>(campo)];
}

const UnidadClima *BuscarUnidad(Campo campo, std::string_view nombre) {
  const std::string buscada = Normal(nombre);
  for (const UnidadClima &unidad : UnidadesDe(campo)) {
    if (Normal(unidad.nombre) == buscada) return &unidad;
  }
  return nullptr;
}

} // namespace tesmo
