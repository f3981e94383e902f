#include "intercambio/escritura/Diarioconjunto.h"

#include "intercambio/escritura/Nombrescatalogo.h"

#include <charconv>

namespace tesmo {

namespace {

constexpr std::string_view PRIMERA = "Tesmo: ficheros que se cambian juntos (1)\n";
constexpr std::string_view MARCA_DESHACER = "deshacer\n";
constexpr std::string_view ULTIMA = "fin\n";
constexpr std::string_view SIN_ANTERIOR = "-";
constexpr int BASE = 16;

std::string EnHexadecimal(std::uint64_t valor) {
  std::string texto(16, '0');
  const auto fin = std::to_chars(texto.data(), texto.data() + texto.size(), valor, BASE).ptr;
  texto.resize(static_cast<std::size_t>(fin - texto.data()));
  return texto;
}

std::optional<std::uint64_t> DeHexadecimal(std::string_view texto) {
  std::uint64_t valor = 0;
  const char *fin = texto.data() + texto.size();
  const auto [leido, error] = std::from_chars(texto.data(), fin, valor, BASE);
  if (texto.empty() || error != std::errc() || leido != fin) return std::nullopt;
  return valor;
}

/// Quita a @p resto lo que precede a @p separador y lo devuelve; vacío si no está.
std::optional<std::string_view> Hasta(std::string_view &resto, char separador) {
  const std::size_t fin = resto.find(separador);
  if (fin == std::string_view::npos) return std::nullopt;
  const std::string_view trozo = resto.substr(0, fin);
  resto.remove_prefix(fin + 1);
  return trozo;
}

std::optional<ApunteConjunto> LeerApunte(std::string_view linea) {
  const auto nueva = Hasta(linea, '\t');
  const auto anterior = Hasta(linea, '\t');
  if (!nueva || !anterior || !EsNombreDeFichero(linea)) return std::nullopt;
  const auto huella = DeHexadecimal(*nueva);
  if (!huella) return std::nullopt;
  ApunteConjunto apunte{std::string(linea), *huella, std::nullopt};
  if (*anterior == SIN_ANTERIOR) return apunte;
  apunte.anterior = DeHexadecimal(*anterior);
  return apunte.anterior ? std::optional(apunte) : std::nullopt;
}

} // namespace

std::uint64_t Huella(std::string_view contenido) {
  constexpr std::uint64_t COMIENZO = 0xCBF29CE484222325U;
  constexpr std::uint64_t PRIMO = 0x100000001B3U;
  std::uint64_t huella = COMIENZO;
  for (const char c : contenido) huella = (huella ^ static_cast<unsigned char>(c)) * PRIMO;
  return huella;
}

std::string TextoDiario(const DiarioConjunto &diario) {
  std::string texto(PRIMERA);
  if (diario.deshacer) texto += MARCA_DESHACER;
  for (const ApunteConjunto &apunte : diario.apuntes) {
    texto += EnHexadecimal(apunte.huellaNueva) + '\t' +
             (apunte.anterior ? EnHexadecimal(*apunte.anterior) : std::string(SIN_ANTERIOR)) + '\t' +
             apunte.nombre + '\n';
  }
  return texto.append(ULTIMA);
}

std::optional<DiarioConjunto> LeerDiario(std::string_view texto) {
  if (!texto.starts_with(PRIMERA) || !texto.ends_with(ULTIMA)) return std::nullopt;
  texto.remove_prefix(PRIMERA.size());
  texto.remove_suffix(std::min(ULTIMA.size(), texto.size()));
  DiarioConjunto diario;
  diario.deshacer = texto.starts_with(MARCA_DESHACER);
  if (diario.deshacer) texto.remove_prefix(MARCA_DESHACER.size());
  while (!texto.empty()) {
    const auto linea = Hasta(texto, '\n');
    const auto apunte = linea ? LeerApunte(*linea) : std::nullopt;
    if (!apunte) return std::nullopt;
    diario.apuntes.push_back(*apunte);
  }
  return diario;
}

} // namespace tesmo
