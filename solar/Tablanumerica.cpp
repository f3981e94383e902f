#include "solar/Tablanumerica.h"

#include "core/Codificacion.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace tesmo {

namespace {

constexpr std::string_view BLANCOS = " \t\v\f";
constexpr char POR_BLANCOS = ' ';
constexpr char COMENTARIO = '#';
constexpr std::array<char, 4> SEPARADORES{';', '\t', ',', POR_BLANCOS};

/// Lo que un fallo enseña de un campo, sin llenar la pantalla con él ni mandarle caracteres de control.
std::string Entrecomillado(std::string_view campo) {
  constexpr std::size_t MAXIMO = 40;
  constexpr char PRIMERO_VISIBLE = ' ';
  std::string texto(RecortarUtf8(campo, MAXIMO));
  std::replace_if(
      texto.begin(), texto.end(), [](char c) { return c >= 0 && c < PRIMERO_VISIBLE; }, '?');
  return "«" + texto + (texto.size() < campo.size() ? "…»" : "»");
}

bool EsFila(const std::vector<std::string_view> &campos, bool comaDecimal) {
  double valor = 0.0;
  return LeerNumeroDeCampo(campos.front(), comaDecimal, valor) && std::isfinite(valor);
}

bool LeerFila(const std::vector<std::string_view> &campos, bool comaDecimal, FilaNumerica &fila,
              FalloLectura &fallo) {
  for (const std::string_view campo : campos) {
    double valor = 0.0;
    if (!LeerNumeroDeCampo(campo, comaDecimal, valor) || !std::isfinite(valor)) {
      fallo = {fila.linea, Entrecomillado(campo) + " no es un número"};
      return false;
    }
    fila.numeros.push_back(valor);
  }
  return true;
}

/// Cuántos campos tiene una fila y cuántos se esperaban.
std::string FaltanOSobran(std::size_t hay, std::size_t esperados) {
  return "hay " + std::to_string(hay) + " números y en las líneas anteriores " + std::to_string(esperados);
}

/// Lee la tabla con un separador dado.
class LectorConSeparador {
public:
  explicit LectorConSeparador(char separador) : separador_(separador) {}

  bool Leer(const std::vector<std::string_view> &lineas) {
    for (std::size_t i = 0; i < lineas.size(); ++i) {
      if (!Linea(SinBlancos(lineas[i]), static_cast<int>(i) + 1)) return false;
    }
    if (tabla.filas.empty()) fallo = {0, "no hay ninguna línea de números"};
    return !tabla.filas.empty();
  }

  TablaNumerica tabla;
  FalloLectura fallo;

private:
  bool Linea(std::string_view linea, int numero) {
    if (linea.empty()) return true;
    const std::vector<std::string_view> campos = PartirCampos(linea, separador_);
    const bool comaDecimal = separador_ != ',';
    if (!EsFila(campos, comaDecimal)) return Texto(linea, campos, numero);
    if (lineaDeTexto_ != 0) {
      fallo = {lineaDeTexto_, "hay texto entre dos líneas de números"};
      return false;
    }
    FilaNumerica fila{numero, {}};
    if (!LeerFila(campos, comaDecimal, fila, fallo)) return false;
    if (!tabla.filas.empty() && fila.numeros.size() != tabla.filas.front().numeros.size()) {
      fallo = {numero, FaltanOSobran(fila.numeros.size(), tabla.filas.front().numeros.size())};
      return false;
    }
    tabla.filas.push_back(std::move(fila));
    return true;
  }

  bool Texto(std::string_view linea, const std::vector<std::string_view> &campos, int numero) {
    tabla.textos.emplace_back(linea);
    if (linea.front() == COMENTARIO) return true;
    if (tabla.filas.empty()) {
      tabla.columnas.assign(campos.begin(), campos.end());
      return true;
    }
    if (lineaDeTexto_ == 0) lineaDeTexto_ = numero;
    if (!PareceFila(campos)) return true;
    fallo = {numero, Entrecomillado(campos.front()) + " no es un número"};
    return false;
  }

  /// Una línea con tantos campos como una fila y algún número es una fila estropeada, no una leyenda.
  [[nodiscard]] bool PareceFila(const std::vector<std::string_view> &campos) const {
    if (campos.size() < 2 || campos.size() != tabla.filas.front().numeros.size()) return false;
    return std::any_of(campos.begin() + 1, campos.end(), [&](std::string_view campo) {
      double valor = 0.0;
      return LeerNumeroDeCampo(campo, separador_ != ',', valor);
    });
  }

  char separador_;
  int lineaDeTexto_ = 0; ///< la primera de las líneas de texto que siguen a la última fila
};

} // namespace

bool LeerTablaNumerica(std::string_view texto, TablaNumerica &tabla, FalloLectura &fallo) {
  const std::vector<std::string_view> lineas = PartirLineas(texto);
  std::size_t filasLeidas = 0;
  fallo = {0, "no hay ninguna línea de números"};
  for (const char separador : SEPARADORES) {
    if (separador != POR_BLANCOS && texto.find(separador) == std::string_view::npos) continue;
    LectorConSeparador lector(separador);
    if (lector.Leer(lineas)) {
      tabla = std::move(lector.tabla);
      return true;
    }
    // Un punto y coma o un tabulador que ya separó una fila no es parte de un número.
    const bool inequivoco = separador == ';' || separador == '\t';
    if (inequivoco && !lector.tabla.filas.empty()) {
      fallo = lector.fallo;
      return false;
    }
    // Se cuenta el fallo del separador con que más se entendió.
    if (lector.tabla.filas.size() < filasLeidas || lector.fallo.linea == 0) continue;
    filasLeidas = lector.tabla.filas.size() + 1;
    fallo = lector.fallo;
  }
  return false;
}

std::vector<std::string_view> PartirLineas(std::string_view texto) {
  std::vector<std::string_view> lineas;
  for (std::size_t inicio = 0; inicio < texto.size();) {
    const std::size_t fin = std::min(texto.find_first_of("\r\n", inicio), texto.size());
    lineas.push_back(texto.substr(inicio, fin - inicio));
    inicio = fin + (texto.substr(fin, 2) == "\r\n" ? 2 : 1);
  }
  return lineas;
}

std::string_view SinBlancos(std::string_view texto) {
  const std::size_t inicio = texto.find_first_not_of(BLANCOS);
  if (inicio == std::string_view::npos) return {};
  return texto.substr(inicio, texto.find_last_not_of(BLANCOS) - inicio + 1);
}

std::vector<std::string_view> PartirCampos(std::string_view linea, char separador) {
  const bool porBlancos = separador == POR_BLANCOS;
  const bool seguidos = porBlancos || separador == '\t';
  const std::string_view corte = porBlancos ? BLANCOS : std::string_view(&separador, 1);
  std::vector<std::string_view> campos;
  for (std::size_t inicio = 0; inicio <= linea.size();) {
    const std::size_t fin = std::min(linea.find_first_of(corte, inicio), linea.size());
    const std::string_view campo = SinBlancos(linea.substr(inicio, fin - inicio));
    if (!seguidos || !campo.empty()) campos.push_back(campo);
    inicio = fin + 1;
  }
  // Un separador al final de la línea no es un campo más.
  if (campos.size() > 1 && campos.back().empty()) campos.pop_back();
  if (campos.empty()) campos.emplace_back();
  return campos;
}

bool LeerNumeroDeCampo(std::string_view campo, bool comaDecimal, double &valor) {
  std::string texto(campo);
  if (comaDecimal && texto.ends_with(',')) return false;
  if (comaDecimal) std::replace(texto.begin(), texto.end(), ',', '.');
  if (texto.size() > 1 && texto.front() == '+' && texto[1] != '-') texto.erase(0, 1);
  const char *const fin = texto.data() + texto.size();
  const auto leido = std::from_chars(texto.data(), fin, valor);
  return leido.ec == std::errc() && leido.ptr == fin;
}

} // namespace tesmo
