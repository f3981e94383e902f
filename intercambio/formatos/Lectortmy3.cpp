#include "core/Codificacion.h"
#include "intercambio/formatos/Cabeceras.h"
#include "intercambio/formatos/Columnasporrotulo.h"
#include "intercambio/formatos/Lectores.h"
#include "intercambio/formatos/Montaje.h"
#include "intercambio/formatos/Numeros.h"

#include <array>
#include <optional>
#include <string>

namespace tesmo {

namespace {

/// Código de «sin dato» y unidades (S. Wilcox y W. Marion, Users Manual for TMY3 Data Sets,
/// NREL/TP-581-43156, 2008, tablas 1-2 y 1-3).
constexpr double AUSENTE_TMY3 = -9900.0;
constexpr double PASCALES_POR_MILIBAR = 100.0;
const std::vector<ColumnaRotulada> ROTULOS{
    {"GHI (W/m^2)", Campo::GlobalHorizontal, 1.0, AUSENTE_TMY3},
    {"DNI (W/m^2)", Campo::DirectaNormal, 1.0, AUSENTE_TMY3},
    {"DHI (W/m^2)", Campo::DifusaHorizontal, 1.0, AUSENTE_TMY3},
    {"TotCld (tenths)", Campo::NubosidadTotal, 1.0, AUSENTE_TMY3},
    {"OpqCld (tenths)", Campo::NubosidadOpaca, 1.0, AUSENTE_TMY3},
    {"Dry-bulb (C)", Campo::TemperaturaSeca, 1.0, AUSENTE_TMY3},
    {"Dew-point (C)", Campo::TemperaturaRocio, 1.0, AUSENTE_TMY3},
    {"RHum (%)", Campo::HumedadRelativa, 1.0, AUSENTE_TMY3},
    {"Pressure (mbar)", Campo::Presion, PASCALES_POR_MILIBAR, AUSENTE_TMY3},
    {"Wdir (degrees)", Campo::DireccionViento, 1.0, AUSENTE_TMY3},
    {"Wspd (m/s)", Campo::VelocidadViento, 1.0, AUSENTE_TMY3},
};
/// Campos de la primera línea.
enum : std::size_t { ESTACION, NOMBRE, ESTADO, HUSO, LATITUD, LONGITUD, ALTITUD, CAMPOS_SITIO };

/// "MM/DD/AAAA" y "HH:MM" (o "H:MM"), con la hora de 1 a 24.
bool LeerFecha(const CamposLinea &campos, FilaClima &fila) {
  const std::string_view fecha = campos[0];
  const std::string_view hora = campos[1];
  const std::size_t primera = fecha.find('/');
  if (primera == std::string_view::npos) return false;
  const std::size_t segunda = fecha.find('/', primera + 1);
  const std::size_t puntos = hora.find(':');
  if (segunda == std::string_view::npos || puntos == std::string_view::npos) return false;
  const std::array<std::optional<int>, 4> numeros{
      LeerEntero(fecha.substr(0, primera)), LeerEntero(fecha.substr(primera + 1, segunda - primera - 1)),
      LeerEntero(fecha.substr(segunda + 1)), LeerEntero(hora.substr(0, puntos))};
  if (!numeros[0] || !numeros[1] || !numeros[3]) return false;
  fila.mes = *numeros[0];
  fila.dia = *numeros[1];
  fila.anio = numeros[2].value_or(0);
  fila.hora = *numeros[3];
  return true;
}

void LeerSitio(std::string_view linea, int numeroDeLinea, AnioCanonico &anio, Cuaderno &cuaderno) {
  CamposLinea campos;
  PartirLinea(linea, ',', CAMPOS_SITIO, campos);
  const auto texto = [&](std::size_t i) { return i < campos.size() ? AUtf8(campos[i]) : std::string(); };
  const auto numero = [&](std::size_t i) { return i < campos.size() ? LeerNumero(campos[i]) : std::nullopt; };
  anio.sitio.identificador = texto(ESTACION);
  anio.sitio.nombre = texto(NOMBRE);
  anio.sitio.region = texto(ESTADO);
  anio.sitio.pais = "USA";
  PonerSitio(numero(LATITUD), numero(LONGITUD), numero(ALTITUD), numeroDeLinea, anio.sitio, cuaderno);
  anio.reloj = {TiempoEtiqueta::OficialEstandar,
                HusoCreible(numero(HUSO), anio.sitio.longitud, numeroDeLinea, cuaderno), -30.0};
}

} // namespace

void LeerTmy3(std::string_view texto, AnioCanonico &anio, Cuaderno &cuaderno) {
  Lineas lineas(texto);
  std::string_view linea = SiguienteConTexto(lineas);
  if (RechazarSeparador(linea, lineas.Numero(), cuaderno)) return;
  LeerSitio(linea, lineas.Numero(), anio, cuaderno);
  linea = SiguienteConTexto(lineas);
  EsquemaFilas esquema{.camposMinimos = 3, .fecha = LeerFecha};
  esquema.columnas = ColumnasPorRotulo(linea, esquema.separador, ROTULOS, lineas.Numero(), cuaderno);
  MontarAnio(LeerFilas(lineas, esquema, cuaderno), anio, cuaderno);
}

} // namespace tesmo
