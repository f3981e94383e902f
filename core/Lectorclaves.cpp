#include "core/Lectorclaves.h"

#include "core/Codificacion.h"
#include "core/Ficheros.h"
#include "core/Lectornumeros.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <new>
#include <stdexcept>

namespace tesmo {

namespace {

/// Blancos que se saltan como mucho entre el '=' y el valor.
constexpr std::size_t BLANCOS_MAXIMOS = 100;

std::string ComoUnSoloTexto(std::string_view contenido) {
  std::string texto;
  for (char c : AUtf8(contenido)) {
    if (c == '\n' || c == '\r') c = ' ';
    if (c == ' ' && !texto.empty() && texto.back() == ' ') continue;
    texto += c;
  }
  return texto;
}

} // namespace

LectorClaves::LectorClaves(std::string_view contenido) : texto_(ComoUnSoloTexto(contenido)) {}

std::size_t LectorClaves::PosicionDelValor(std::string_view clave) const {
  const std::size_t hallada = texto_.find(clave);
  // Una clave en el primer carácter cuenta como ausente: se conserva.
  if (hallada == 0 || hallada == std::string::npos) return std::string::npos;
  const std::size_t igual = texto_.find('=', hallada + clave.size());
  if (igual == std::string::npos) return std::string::npos;
  std::size_t valor = igual + 1;
  const std::size_t tope = std::min(texto_.size(), valor + BLANCOS_MAXIMOS);
  while (valor < tope && texto_[valor] == ' ') ++valor;
  return valor;
}

int LectorClaves::LeerClave(std::string_view clave, std::string &destino) const {
  std::size_t inicio = PosicionDelValor(clave);
  if (inicio == std::string::npos) return -1;
  const bool comillas = inicio < texto_.size() && texto_[inicio] == '"';
  if (comillas) ++inicio;
  const std::size_t fin = texto_.find(comillas ? '"' : ' ', inicio);
  destino = texto_.substr(inicio, fin == std::string::npos ? fin : fin - inicio);
  return 0;
}

int LectorClaves::LeerClaveReal(std::string_view clave, float &destino) const {
  const std::size_t inicio = PosicionDelValor(clave);
  if (inicio == std::string::npos) return -1;
  const std::optional<float> valor = LectorNumeros(std::string_view(texto_).substr(inicio)).Real();
  if (!valor || !std::isfinite(*valor)) return -1;
  destino = *valor;
  return 0;
}

namespace {

[[noreturn]] void AbortarSinMemoria() {
  (void)std::fputs("No hay suficiente memoria.\n", stdout);
  (void)std::fflush(stdout);
  std::abort();
}

} // namespace

std::optional<LectorClaves> LeerFicheroDeClaves(const std::filesystem::path &ruta, const LeerBytes &leer) {
  try {
    const std::optional<std::string> contenido = leer ? leer(ruta) : LeerFicheroEntero(ruta);
    if (!contenido) return std::nullopt;
    return LectorClaves(*contenido);
  } catch (const std::bad_alloc &) {
    AbortarSinMemoria();
  } catch (const std::length_error &) { // más de lo que cabe en un texto
    AbortarSinMemoria();
  }
}

} // namespace tesmo
