#include "intercambio/formatos/Fechatexto.h"

#include "intercambio/formatos/Numeros.h"

#include <algorithm>
#include <array>
#include <optional>

namespace tesmo {

namespace {

constexpr std::string_view CIFRAS = "0123456789";

constexpr std::size_t CIFRAS_FECHA = 8;
constexpr std::size_t CIFRAS_HORA = 4;

/// Ocho cifras, o más con la hora pegada: AAAAMMDD, AAAAMMDDHH, AAAAMMDDHHMM, AAAAMMDDHHMMSS.
bool EsFechaSeguida(std::size_t cifras) {
  constexpr std::size_t CIFRAS_MAXIMAS = 14;
  return cifras >= CIFRAS_FECHA && cifras <= CIFRAS_MAXIMAS && cifras % 2 == 0;
}

/// Quita de @p texto su primer grupo de cifras y lo devuelve; vacío si no queda ninguno.
std::string_view TomarGrupo(std::string_view &texto) {
  const std::size_t desde = texto.find_first_of(CIFRAS);
  if (desde == std::string_view::npos) return {};
  const std::size_t fin = std::min(texto.find_first_not_of(CIFRAS, desde), texto.size());
  const std::string_view grupo = texto.substr(desde, fin - desde);
  texto.remove_prefix(fin);
  return grupo;
}

/// Las ocho primeras cifras repartidas según el orden; el año lleva cuatro.
std::array<std::string_view, 3> Repartir(std::string_view ocho, OrdenFecha orden) {
  if (orden == OrdenFecha::AnioMesDia) return {ocho.substr(0, 4), ocho.substr(4, 2), ocho.substr(6, 2)};
  return {ocho.substr(0, 2), ocho.substr(2, 2), ocho.substr(4, 4)};
}

} // namespace

bool LeerHoraTexto(std::string_view texto, FilaClima &fila) {
  constexpr std::size_t CIFRAS_HMM = 3;
  constexpr std::size_t CIFRAS_HHMM = 4;
  std::string_view grupo = TomarGrupo(texto);
  if (grupo.size() == CIFRAS_HMM || grupo.size() == CIFRAS_HHMM) grupo.remove_suffix(2);
  const std::optional<int> hora = LeerEntero(grupo);
  if (!hora) return false;
  fila.hora = *hora;
  return true;
}

bool LeerFechaTexto(std::string_view texto, OrdenFecha orden, FilaClima &fila) {
  std::array<std::string_view, 3> grupos{TomarGrupo(texto), {}, {}};
  if (EsFechaSeguida(grupos[0].size())) {
    if (grupos[0].size() > CIFRAS_FECHA) texto = grupos[0].substr(CIFRAS_FECHA, CIFRAS_HORA);
    grupos = Repartir(grupos[0], orden);
  } else {
    grupos[1] = TomarGrupo(texto);
    grupos[2] = TomarGrupo(texto);
  }
  std::array<int, 3> numeros{};
  for (std::size_t i = 0; i < grupos.size(); ++i) {
    const std::optional<int> numero = LeerEntero(grupos[i]);
    if (!numero) return false;
    numeros[i] = *numero;
  }
  const bool anioDelante = orden == OrdenFecha::AnioMesDia;
  fila.anio = anioDelante ? numeros[0] : numeros[2];
  fila.mes = orden == OrdenFecha::MesDiaAnio ? numeros[0] : numeros[1];
  fila.dia = anioDelante ? numeros[2] : orden == OrdenFecha::DiaMesAnio ? numeros[0] : numeros[1];
  if (!LeerHoraTexto(texto, fila)) fila.hora = SIN_HORA;
  return true;
}

} // namespace tesmo
