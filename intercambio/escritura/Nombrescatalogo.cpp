#include "intercambio/escritura/Nombrescatalogo.h"

#include "core/Codificacion.h"
#include "intercambio/comun/Nombrecorto.h"
#include "intercambio/escritura/Composicion.h"
#include "localidades/Lineaslocalidades.h"

#include <algorithm>
#include <array>

namespace tesmo {

namespace {

constexpr std::size_t BYTES_DE_CORTO = 40; // con su "-99" y su ".met" cabe en un campo

bool EsControl(char c) {
  constexpr unsigned char PRIMERO_VISIBLE = 0x20;
  constexpr unsigned char BORRADO = 0x7F;
  const auto byte = static_cast<unsigned char>(c);
  return byte < PRIMERO_VISIBLE || byte == BORRADO;
}

/// Nombres que en Windows son dispositivos, con cualquier extensión.
bool EsDispositivo(std::string_view corto) {
  constexpr std::array<std::string_view, 4> PROPIOS{"con", "prn", "aux", "nul"};
  constexpr std::array<std::string_view, 2> NUMERADOS{"com", "lpt"};
  const std::string plegado = PlegarMinusculas(corto.substr(0, corto.find('.')));
  if (std::ranges::find(PROPIOS, plegado) != PROPIOS.end()) return true;
  return plegado.size() == 4 && plegado[3] >= '0' && plegado[3] <= '9' &&
         std::ranges::find(NUMERADOS, std::string_view(plegado).substr(0, 3)) != NUMERADOS.end();
}

std::string Corto(std::string_view nombre) {
  std::string corto = NombreCorto(nombre);
  corto.erase(0, std::min(corto.find_first_not_of(".-"), corto.size()));
  corto.resize(std::min(corto.size(), BYTES_DE_CORTO));
  while (corto.ends_with('.')) corto.pop_back();
  if (corto.empty()) return "Localidad";
  return EsDispositivo(corto) ? "_" + corto : corto;
}

} // namespace

std::string TextoDeCampo(std::string_view texto) {
  std::string limpio;
  for (const char c : ComponerAcentos(texto)) {
    const bool blanco = c == ' ' || c == ',' || EsControl(c);
    if (!blanco) {
      limpio += c;
    } else if (!limpio.empty() && limpio.back() != ' ') {
      limpio += ' ';
    }
  }
  limpio.resize(RecortarUtf8(limpio, BYTES_CAMPO_LOCALIDADES).size());
  while (limpio.ends_with(' ')) limpio.pop_back();
  return limpio;
}

std::string CortoLibre(std::string_view nombre, const std::function<bool(const std::string &)> &ocupado) {
  const std::string corto = Corto(nombre);
  std::string libre = corto;
  for (int i = 2; ocupado(libre); ++i) libre = corto + "-" + std::to_string(i);
  return libre;
}

bool EsNombreDeFichero(std::string_view texto) {
  const bool limpio =
      texto.find_first_of("/\\:*?\"<>|") == std::string_view::npos && std::ranges::none_of(texto, EsControl);
  return !texto.empty() && limpio && texto[0] != '.' && !EsDispositivo(texto);
}

} // namespace tesmo
