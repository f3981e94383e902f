#pragma once

#include "intercambio/formatos/Clavesmapa.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace tesmo {

/// Lo que puede ser una columna de un texto delimitado, en el orden de una lista: nada, las partes de la
/// fecha y los campos.

/// Una parte de la fecha y dónde la guarda el mapa.
struct PapelDeFecha {
  const char *nombre;
  std::string MapaColumnas::*destino;
};
inline constexpr std::array<PapelDeFecha, 5> PAPELES_DE_FECHA{{{"Fecha", &MapaColumnas::columnaFecha},
                                                               {"Año", &MapaColumnas::columnaAnio},
                                                               {"Mes", &MapaColumnas::columnaMes},
                                                               {"Día", &MapaColumnas::columnaDia},
                                                               {"Hora", &MapaColumnas::columnaHora}}};
inline constexpr int PRIMER_PAPEL_DE_CAMPO = 1 + static_cast<int>(PAPELES_DE_FECHA.size());

[[nodiscard]] inline int PapelDeCampo(Campo campo) { return PRIMER_PAPEL_DE_CAMPO + static_cast<int>(campo); }
/// El campo de un papel; vacío si no es de ninguno.
[[nodiscard]] inline std::optional<Campo> CampoDePapel(int papel) {
  const int campo = papel - PRIMER_PAPEL_DE_CAMPO;
  if (campo < 0 || campo >= static_cast<int>(NUMERO_CAMPOS)) return std::nullopt;
  return static_cast<Campo>(campo);
}
[[nodiscard]] inline std::vector<std::string> NombresDePapel() {
  std::vector<std::string> nombres{"—"};
  for (const PapelDeFecha &papel : PAPELES_DE_FECHA) nombres.emplace_back(papel.nombre);
  for (std::size_t campo = 0; campo < NUMERO_CAMPOS; ++campo)
    nombres.emplace_back(ClaveDeCampo(static_cast<Campo>(campo)));
  return nombres;
}

} // namespace tesmo
