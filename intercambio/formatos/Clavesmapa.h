#pragma once

#include "intercambio/formatos/Mapacolumnas.h"
#include "psicro/Atmosfera.h"

#include <array>
#include <string>
#include <string_view>

namespace tesmo {

/// Las palabras de un fichero de mapa, las mismas al leer y al escribir.

/// Un valor y la palabra con que se escribe.
template <typename T>
struct Palabra {
  std::string_view texto;
  T valor;
};

inline constexpr std::array<Palabra<char>, 4> SEPARADORES{
    {{"coma", ','}, {"punto y coma", ';'}, {"tabulador", '\t'}, {"blancos", ' '}}};
inline constexpr std::array<Palabra<bool>, 2> DECIMALES{{{"punto", false}, {"coma", true}}};
inline constexpr std::array<Palabra<TiempoEtiqueta>, 3> RELOJES{{{"solar", TiempoEtiqueta::SolarVerdadero},
                                                                 {"oficial", TiempoEtiqueta::OficialEstandar},
                                                                 {"utc", TiempoEtiqueta::Utc}}};
inline constexpr std::array<Palabra<OrdenFecha>, 3> ORDENES{{{"año mes día", OrdenFecha::AnioMesDia},
                                                             {"día mes año", OrdenFecha::DiaMesAnio},
                                                             {"mes día año", OrdenFecha::MesDiaAnio}}};

/// Un número del mapa y los límites en que se cree.
struct ClaveNumero {
  std::string_view clave;
  double MapaColumnas::*destino;
  double minimo;
  double maximo;
};
inline constexpr std::array<ClaveNumero, 4> NUMEROS{
    {{"latitud", &MapaColumnas::latitud, -90.0, 90.0},
     {"longitud", &MapaColumnas::longitud, -180.0, 180.0},
     {"altitud", &MapaColumnas::altitud, ALTITUD_MINIMA, ALTITUD_MAXIMA},
     {"sin dato", &MapaColumnas::sinDato, -1e9, 1e9}}};

/// Un texto del mapa: el nombre y las columnas de la fecha.
struct ClaveTexto {
  std::string_view clave;
  std::string MapaColumnas::*destino;
};
inline constexpr std::array<ClaveTexto, 6> TEXTOS{{{"nombre", &MapaColumnas::nombre},
                                                   {"fecha", &MapaColumnas::columnaFecha},
                                                   {"año", &MapaColumnas::columnaAnio},
                                                   {"mes", &MapaColumnas::columnaMes},
                                                   {"día", &MapaColumnas::columnaDia},
                                                   {"hora", &MapaColumnas::columnaHora}}};

inline constexpr std::string_view CLAVE_SEPARADOR = "separador";
inline constexpr std::string_view CLAVE_DECIMAL = "decimal";
inline constexpr std::string_view CLAVE_CABECERA = "líneas de cabecera";
inline constexpr std::string_view CLAVE_ORDEN = "orden de la fecha";
inline constexpr std::string_view CLAVE_RELOJ = "reloj";
inline constexpr std::string_view CLAVE_HUSO = "huso";
inline constexpr std::string_view CLAVE_DESFASE_MAPA = "desfase";

/// El nombre de un campo en un mapa: el de las personas sin su unidad.
[[nodiscard]] inline std::string_view ClaveDeCampo(Campo campo) {
  const std::string_view nombre = NombreCampo(campo);
  return nombre.substr(0, nombre.find(" ("));
}

} // namespace tesmo
