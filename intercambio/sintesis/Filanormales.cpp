#include "intercambio/sintesis/Filanormales.h"

#include "core/Codificacion.h"
#include "core/Formato.h"

#include <charconv>
#include <cmath>

namespace tesmo {

namespace {

constexpr std::size_t FALTAS_DETALLADAS = 20;
constexpr std::size_t BYTES_DE_CITA = 40;

} // namespace

void FaltasFichero::Anadir(std::size_t linea, const std::string &texto) {
  if (numero_++ >= FALTAS_DETALLADAS) return;
  errores_.push_back(nombre_ + (linea > 0 ? ":" + std::to_string(linea) : std::string()) + ": " + texto);
}

void FaltasFichero::Resumir() {
  if (numero_ <= FALTAS_DETALLADAS) return;
  errores_.push_back(nombre_ + ": y " + std::to_string(numero_ - FALTAS_DETALLADAS) + " faltas más");
}

const std::string &Fila::Texto(std::string_view columna) const {
  return registro_.campos[columnas_.find(columna)->second];
}

void Fila::Falta(std::string_view columna, const std::string &texto) const {
  faltas_.Anadir(Linea(), "columna " + std::string(columna) + ": " + texto);
}

double Fila::Real(std::string_view columna, double minimo, double maximo) const {
  const std::string &texto = Texto(columna);
  const std::optional<double> valor = NumeroDecimal(texto);
  if (texto.empty()) {
    Falta(columna, "está vacía");
  } else if (!valor) {
    Falta(columna, Citar(texto) + " no es un número con punto decimal");
  } else if (*valor < minimo || *valor > maximo) {
    Falta(columna, Citar(texto) + " queda fuera de " + FormatoG9(minimo) + " a " + FormatoG9(maximo));
  } else {
    return *valor;
  }
  return minimo;
}

std::optional<double> NumeroDecimal(std::string_view texto) {
  if (texto.starts_with('+')) texto.remove_prefix(1);
  double valor = 0.0;
  const auto [fin, error] = std::from_chars(texto.data(), texto.data() + texto.size(), valor);
  if (error != std::errc() || fin != texto.data() + texto.size() || !std::isfinite(valor)) return {};
  return valor;
}

std::string Citar(std::string_view texto) {
  return "«" + std::string(RecortarUtf8(texto, BYTES_DE_CITA)) + "»";
}

} // namespace tesmo
