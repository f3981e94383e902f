#include "solar/Perfilcompleto.h"

#include "core/Codificacion.h"
#include "solar/Puntoshorizonte.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace tesmo {

namespace {

constexpr std::string_view TITULOS =
    "Perfil de horizonte: acimut (0 al sur, oeste positivo) en grados;altura "
    "en grados\n";
/// Con lo que empieza en minúsculas; el resto puede haberlo retocado una hoja de cálculo.
constexpr std::string_view SENAL = "perfil de horizonte: acimut (0 al sur, oeste positivo)";

/// Las cifras justas para que al leerlo sea el mismo real de 32 bits.
void AnadirReal(std::string &texto, float valor) {
  std::array<char, 32> bufer{};
  texto.append(bufer.data(), std::to_chars(bufer.data(), bufer.data() + bufer.size(), valor).ptr);
}

/// El campo, sin las comillas con que lo envuelve alguna hoja de cálculo.
std::string_view SinComillas(std::string_view campo) {
  if (!campo.empty() && campo.front() == '"') campo.remove_prefix(1);
  return campo;
}

bool LeerReal(std::string_view campo, float &valor) {
  if (campo.size() > 1 && campo.front() == '"' && campo.back() == '"') {
    campo = SinBlancos(campo.substr(1, campo.size() - 2));
  }
  if (campo.size() > 1 && campo.front() == '+' && campo[1] != '-') campo.remove_prefix(1);
  std::string texto(campo);
  std::replace(texto.begin(), texto.end(), ',', '.');
  const char *const fin = texto.data() + texto.size();
  const auto leido = std::from_chars(texto.data(), fin, valor);
  return leido.ec == std::errc() && leido.ptr == fin;
}

/// Con punto y coma o tabulador; con @p deComas, si no los hay, con coma.
bool LeerPunto(std::string_view linea, bool deComas, PuntoHorizonte &punto) {
  const bool deTabuladores = !deComas || linea.find('\t') != std::string_view::npos;
  const char separador = linea.find(';') != std::string_view::npos ? ';' : deTabuladores ? '\t' : ',';
  const std::vector<std::string_view> campos = PartirCampos(linea, separador);
  return campos.size() == 2 && LeerReal(campos[0], punto.acimut) && LeerReal(campos[1], punto.altura);
}

} // namespace

bool EsPerfilCompleto(std::string_view texto) {
  for (const std::string_view linea : PartirLineas(texto.substr(0, 4 * TITULOS.size()))) {
    const std::string_view titulos = SinComillas(SinBlancos(linea));
    if (!titulos.empty()) return PlegarMinusculas(titulos.substr(0, SENAL.size())) == SENAL;
  }
  return false;
}

bool LeerPerfilCompleto(std::string_view texto, PerfilHorizonte &perfil, FalloLectura &fallo) {
  PuntosHorizonte puntos;
  bool titulos = true;
  bool deComas = false; // los títulos dicen si la coma separa o es la de los decimales
  int numero = 0;
  for (const std::string_view linea : PartirLineas(texto)) {
    ++numero;
    if (SinBlancos(linea).empty()) continue;
    PuntoHorizonte punto{};
    if (titulos) deComas = linea.find_first_of(";\t") == std::string_view::npos;
    if (!titulos && !LeerPunto(SinBlancos(linea), deComas, punto)) {
      fallo = {numero, "se esperaban el acimut y la altura de un punto, separados por punto y coma"};
      return false;
    }
    if (!titulos) puntos.push_back(punto);
    titulos = false;
  }
  if (puntos.size() > static_cast<std::size_t>(PerfilHorizonte::PUNTOS_MAXIMOS)) {
    fallo = {0, "hay más de " + std::to_string(PerfilHorizonte::PUNTOS_MAXIMOS) + " puntos"};
    return false;
  }
  perfil = PerfilDe(puntos);
  return true;
}

std::string TextoCompleto(const PerfilHorizonte &perfil) {
  std::string texto(TITULOS);
  for (std::size_t i = 0; i < perfil.X().size(); ++i) {
    AnadirReal(texto, perfil.X()[i]);
    texto += ';';
    AnadirReal(texto, perfil.Y()[i]);
    texto += '\n';
  }
  return texto;
}

} // namespace tesmo
