#include "cli/Tabla.h"

#include "core/Formato.h"

#include <nlohmann/json.hpp>

#include <charconv>
#include <cmath>

namespace tesmo::cli {

namespace {

using Json = nlohmann::ordered_json;

std::string Texto(const Celda &celda) {
  if (const auto *texto = std::get_if<std::string>(&celda)) return *texto;
  if (const auto *entero = std::get_if<int>(&celda)) return std::to_string(*entero);
  return FormatoG9(std::get<double>(celda));
}

Json ValorJson(const Celda &celda) {
  if (const auto *texto = std::get_if<std::string>(&celda)) return *texto;
  if (const auto *entero = std::get_if<int>(&celda)) return *entero;
  if (!std::isfinite(std::get<double>(celda))) return nullptr;
  // Las mismas cifras que en el texto: un float pasado a double arrastraría otras diez.
  const std::string cifras = Texto(celda);
  double valor = 0.0;
  std::from_chars(cifras.data(), cifras.data() + cifras.size(), valor);
  return valor;
}

/// Un texto del disco o de la línea de órdenes puede no ser UTF-8 y el JSON no lo admite: se sustituye.
std::string Volcar(const Json &valor) { return valor.dump(-1, ' ', false, Json::error_handler_t::replace); }

void AnadirLinea(std::string &texto, const std::vector<std::string> &partes) {
  for (std::size_t i = 0; i < partes.size(); ++i) {
    if (i > 0) texto += '\t';
    texto += partes[i];
  }
  texto += '\n';
}

std::vector<std::string> Textos(const std::vector<Celda> &fila) {
  std::vector<std::string> textos;
  textos.reserve(fila.size());
  for (const Celda &celda : fila) textos.push_back(Texto(celda));
  return textos;
}

} // namespace

std::string Tabla::ATexto() const {
  std::string texto;
  if (forma_ == Forma::ConCabecera) AnadirLinea(texto, titulos_);
  for (const std::vector<Celda> &fila : filas_) {
    if (forma_ != Forma::Propiedades) {
      AnadirLinea(texto, Textos(fila));
      continue;
    }
    for (std::size_t i = 0; i < fila.size(); ++i) AnadirLinea(texto, {titulos_[i], Texto(fila[i])});
  }
  return texto;
}

std::string Tabla::AJson() const {
  std::string texto;
  for (const std::vector<Celda> &fila : filas_) {
    Json objeto = Json::object();
    for (std::size_t i = 0; i < fila.size(); ++i) objeto[titulos_[i]] = ValorJson(fila[i]);
    if (!texto.empty()) texto += ",\n";
    texto += Volcar(objeto);
  }
  const bool lista = forma_ == Forma::ConCabecera || forma_ == Forma::SinCabecera;
  return (lista ? "[" + texto + "]" : texto) + "\n";
}

} // namespace tesmo::cli
