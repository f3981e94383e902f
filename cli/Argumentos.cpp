#include "cli/Argumentos.h"

#include "cli/Contexto.h"
#include "core/Ficheros.h"
#include "core/Formato.h"
#include "core/Varios.h"

#include <charconv>
#include <cmath>
#include <filesystem>
#include <optional>

namespace tesmo::cli {

namespace {

/// Primer carácter de un valor protegido; no puede empezar una opción ni se teclea.
constexpr char PROTECCION = '\x01';

[[noreturn]] void NoVale(const std::string &que, const std::string &texto, const std::string &porque) {
  throw Fallo(Estado::UsoIncorrecto, que + ": «" + texto + "» " + porque);
}

std::optional<int> Entero(std::string_view texto) {
  int valor = 0;
  const char *fin = texto.data() + texto.size();
  const auto [leido, error] = std::from_chars(texto.data(), fin, valor);
  if (texto.empty() || error != std::errc() || leido != fin) return std::nullopt;
  return valor;
}

std::string RutaDada(const std::optional<std::string> &texto, const std::string &opcion, Estado siVacia) {
  if (!texto) return {};
  if (texto->empty()) throw Fallo(siVacia, opcion + ": la ruta está vacía");
  return RutaAbsoluta(*texto);
}

std::vector<std::string_view> Partir(std::string_view texto, char separador) {
  std::vector<std::string_view> partes;
  for (std::size_t corte = texto.find(separador); corte != std::string_view::npos;
       corte = texto.find(separador)) {
    partes.push_back(texto.substr(0, corte));
    texto.remove_prefix(corte + 1);
  }
  partes.push_back(texto);
  return partes;
}

} // namespace

bool EsNumeroNegativo(std::string_view texto) {
  if (texto.size() < 2 || texto.front() != '-' || texto[1] == '+' || texto[1] == '-') return false;
  return RealTecleado(texto).has_value();
}

std::vector<std::string> Proteger(const std::vector<std::string> &argumentos) {
  std::vector<std::string> protegidos;
  bool soloValores = false; // tras "--"
  for (const std::string &argumento : argumentos) {
    const std::size_t igual = argumento.find('=');
    if (soloValores || argumento.empty() || EsNumeroNegativo(argumento)) {
      protegidos.push_back(PROTECCION + argumento);
    } else if (argumento == "--") {
      soloValores = true;
    } else if (argumento.starts_with("--") && igual != std::string::npos) {
      protegidos.push_back(argumento.substr(0, igual));
      protegidos.push_back(PROTECCION + argumento.substr(igual + 1));
    } else {
      protegidos.push_back(argumento);
    }
  }
  return protegidos;
}

std::string Desproteger(std::string texto) {
  std::erase(texto, PROTECCION);
  return texto;
}

double LeerNumero(const std::string &texto, const std::string &que) {
  const std::optional<double> valor = RealTecleado(texto);
  if (!valor || !std::isfinite(*valor)) NoVale(que, texto, "no es un número");
  return *valor;
}

double LeerNumero(const std::string &texto, const std::string &que, double minimo, double maximo) {
  const double valor = LeerNumero(texto, que);
  if (valor < minimo || valor > maximo)
    NoVale(que, texto, "no está entre " + FormatoG9(minimo) + " y " + FormatoG9(maximo));
  return valor;
}

float LeerLatitud(const std::string &texto) {
  constexpr double MAXIMA = 89.0; // la de PosicionSolar
  return static_cast<float>(LeerNumero(texto, "LAT", -MAXIMA, MAXIMA));
}

int LeerEntero(const std::string &texto, const std::string &que, int minimo, int maximo) {
  const std::optional<int> valor = Entero(texto);
  if (!valor || *valor < minimo || *valor > maximo)
    NoVale(que, texto, "no es un entero de " + std::to_string(minimo) + " a " + std::to_string(maximo));
  return *valor;
}

FechaHora LeerFecha(const std::string &texto, const std::string &que) {
  const std::vector<std::string_view> partes = Partir(texto, '/');
  if (partes.size() != 3) NoVale(que, texto, "no tiene la forma MES/DIA/HORA");
  const auto parte = [&](std::size_t i, const char *nombre, int maximo) {
    return LeerEntero(std::string(partes[i]), que + ": " + nombre, 1, maximo);
  };
  const FechaHora fecha{parte(0, "mes", 12), parte(1, "día", 31), parte(2, "hora", 24)};
  ComprobarDia(fecha.mes, fecha.dia, que);
  return fecha;
}

void ComprobarDia(int mes, int dia, const std::string &que) {
  if (dia < 1 || dia > DiasDelMes(mes))
    NoVale(que, std::to_string(dia), "no es un día del mes " + std::to_string(mes));
}

std::pair<int, int> LeerHoras(const std::string &texto, const std::string &que) {
  const std::vector<std::string_view> partes = Partir(texto, '-');
  if (partes.size() != 2) NoVale(que, texto, "no tiene la forma PRIMERA-ULTIMA");
  const int primera = LeerEntero(std::string(partes[0]), que, 1, HORAS_DEL_DIA);
  const int ultima = LeerEntero(std::string(partes[1]), que, 1, HORAS_DEL_DIA);
  if (ultima < primera) NoVale(que, texto, "acaba antes de empezar");
  return {primera, ultima};
}

std::string RutaAbsoluta(const std::string &texto) {
  if (texto.empty()) return texto; // una ruta vacía no es la del directorio
  std::error_code error;
  const std::filesystem::path absoluta = std::filesystem::absolute(RutaDesdeTexto(texto), error);
  return error ? texto : TextoDeRuta(absoluta);
}

std::string RutaDeEntrada(const std::optional<std::string> &texto, const std::string &opcion) {
  return RutaDada(texto, opcion, Estado::FaltaEntrada);
}

std::string RutaDeSalida(const std::optional<std::string> &texto, const std::string &opcion) {
  return RutaDada(texto, opcion, Estado::FaltaSalida);
}

} // namespace tesmo::cli
