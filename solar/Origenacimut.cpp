#include "solar/Origenacimut.h"

#include "core/Caracteres.h"
#include "core/Codificacion.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tesmo {

namespace {

constexpr bool EsLetra(char c) { return c >= 'a' && c <= 'z'; }

/// Minúsculas, sin blancos ni guiones ni signos de grado: "0° = S" y "0=s" son lo mismo.
std::string Comprimido(const std::string &linea) {
  std::string texto = PlegarMinusculas(linea);
  for (const std::string_view sobra : {"º", "°", " ", "\t", "_", "-", "\"", "deg"}) {
    for (std::size_t i = texto.find(sobra); i != std::string::npos; i = texto.find(sobra, i)) {
      texto.erase(i, sobra.size());
    }
  }
  std::replace(texto.begin(), texto.end(), ':', '=');
  return texto;
}

/// ¿Está @p senal en @p texto sin una cifra pegada, ni una letra detrás si ha de @p acabar palabra? Así "0=s"
/// no se ve en "180=s", ni "sur" en "surface".
bool Esta(const std::string &texto, std::string_view senal, bool acabar) {
  for (std::size_t i = texto.find(senal); i != std::string::npos; i = texto.find(senal, i + 1)) {
    const std::size_t fin = i + senal.size();
    const char detras = fin < texto.size() ? texto[fin] : ' ';
    const bool cifraPegada = (i > 0 && EsCifra(texto[i - 1])) || EsCifra(detras);
    if (!cifraPegada && !(acabar && EsLetra(detras))) return true;
  }
  return false;
}

template <std::size_t N>
bool Alguna(const std::string &texto, const std::array<std::string_view, N> &senales, bool acabar) {
  return std::any_of(senales.begin(), senales.end(),
                     [&](std::string_view senal) { return Esta(texto, senal, acabar); });
}

/// Lo que una línea dice a favor de cada origen.
struct Votos {
  bool norte = false;
  bool sur = false;
};

/// El cero, dicho del todo: el acimut del norte o el del sur.
Votos CeroDeclarado(const std::string &texto) {
  static constexpr std::array<std::string_view, 2> INICIAL_NORTE{"0=n", "180=s"};
  static constexpr std::array<std::string_view, 2> INICIAL_SUR{"0=s", "180=n"};
  static constexpr std::array<std::string_view, 9> NORTE{"0=nor",      "norte=0",      "north=0",
                                                         "0alnorte",   "sur=180",      "south=180",
                                                         "desdenorte", "desdeelnorte", "fromnorth"};
  static constexpr std::array<std::string_view, 10> SUR{"0=sur",      "0=sou",     "sur=0",     "south=0",
                                                        "0alsur",     "norte=180", "north=180", "desdesur",
                                                        "desdeelsur", "fromsouth"};
  return {Alguna(texto, INICIAL_NORTE, true) || Alguna(texto, NORTE, false),
          Alguna(texto, INICIAL_SUR, true) || Alguna(texto, SUR, false)};
}

/// Los títulos de columna que se sabe lo que cuentan.
Votos PorTitulos(const std::string &texto) {
  return {Esta(texto, "horizonazimuth", false), Esta(texto, "hhor", false)};
}

/// A falta de otra cosa, qué punto cardinal se nombra donde se habla del acimut.
Votos PorNombre(const std::string &texto) {
  static constexpr std::array<std::string_view, 2> NORTE{"norte", "north"};
  if (texto.find("cimut") == std::string::npos && texto.find("zimut") == std::string::npos) return {};
  return {Alguna(texto, NORTE, false), Esta(texto, "sur", true) || Esta(texto, "south", false)};
}

} // namespace

std::optional<OrigenAcimut> OrigenEnTextos(const std::vector<std::string> &textos) {
  for (Votos (*juzgar)(const std::string &) : {CeroDeclarado, PorTitulos, PorNombre}) {
    Votos votos;
    for (const std::string &linea : textos) {
      const Votos suyos = juzgar(Comprimido(linea));
      votos.norte = votos.norte || suyos.norte;
      votos.sur = votos.sur || suyos.sur;
    }
    // Con votos de los dos lados no se sabe más que sin ninguno.
    if (votos.norte != votos.sur) return votos.norte ? OrigenAcimut::Norte : OrigenAcimut::Sur;
  }
  return std::nullopt;
}

} // namespace tesmo
