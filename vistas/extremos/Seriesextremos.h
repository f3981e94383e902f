#pragma once

#include "extremos/Tipos.h"
#include "vistas/grafico/Repartoejes.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace tesmo {

/// Lo que se enseña de una magnitud de los días de proyecto. Textos en UTF-8.
struct FichaExtremos {
  std::string_view elemento; ///< texto en la lista
  std::string_view titulo;   ///< título de la serie
  std::string_view rotulo;   ///< nombre con la unidad entre paréntesis
  std::string_view patron;   ///< cifras con que se lee
  LadoEje lado;
  std::uint32_t color; ///< 0x00BBGGRR
  extremos::ValoresHorarios extremos::DiaDeProyecto::*valores;
};

inline constexpr std::size_t NUMERO_SERIES_EXTREMOS = 7;

/// Las siete, en el orden de la lista. Los colores son de la paleta categórica Tableau 10.
inline constexpr std::array<FichaExtremos, NUMERO_SERIES_EXTREMOS> SERIES_EXTREMOS{{
    {"Temperatura Exterior", "T.Ext", "Temperatura exterior (ºC)", "0.0", LadoEje::Izquierdo, 0x2827D6,
     &extremos::DiaDeProyecto::exterior},
    {"Temperatura de Rocío", "T.Rocío", "Temperatura de rocío (ºC)", "0.0", LadoEje::Izquierdo, 0xB4771F,
     &extremos::DiaDeProyecto::rocio},
    {"Temperatura de Cielo", "T.Cielo", "Temperatura de cielo (ºC)", "0.0", LadoEje::Izquierdo, 0x7F7F7F,
     &extremos::DiaDeProyecto::cielo},
    {"Radiación Directa (Eje derecho)", "R.Dir", "Radiación directa (W/m²)", "0", LadoEje::Derecho, 0x0E7FFF,
     &extremos::DiaDeProyecto::directa},
    {"Radiación Difusa (Eje derecho)", "R.Dif", "Radiación difusa (W/m²)", "0", LadoEje::Derecho, 0x22BDBC,
     &extremos::DiaDeProyecto::difusa},
    {"Humedad Absoluta", "H.Abs", "Humedad absoluta (g/kg)", "0.0", LadoEje::Izquierdo, 0x2CA02C,
     &extremos::DiaDeProyecto::absoluta},
    {"Humedad Relativa", "H.Rel", "Humedad relativa (%)", "0.0", LadoEje::Izquierdo, 0xBD6794,
     &extremos::DiaDeProyecto::relativa},
}};

} // namespace tesmo
