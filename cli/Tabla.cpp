#include "cli/Tabla.h"

#include "cli/Json.h"
#include "core/Formato.h"

namespace tesmo::cli {

namespace {

std::string Texto(const Celda &celda) {
  if (const auto *texto = std::get_if<std::string>(&celda)) return *texto;
  if (const auto *entero = std::get_if<int>(&celda)) return std::to_string(*entero);
  return FormatoG9(std::get<double>(celda));
}

Json ValorJson(const Celda &celda) {
  if (const auto *texto = std::get_if<std::string>(&celda)) return *texto;
  if (const auto *entero = std::get_if<int>(&celda)) return *entero;
  return ConNueveCifras(std::get<double>(celda));
}

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
    ObjetoJson objeto;
    for (std::size_t i = 0; i < fila.size(); ++i) objeto.push_back({titulos_[i], ValorJson(fila[i])});
    if (!texto.empty()) texto += ",\n";
    texto += TextoJson(objeto);
  }
  const bool lista = forma_ == Forma::ConCabecera || forma_ == Forma::SinCabecera;
  return (lista ? "[" + texto + "]" : texto) + "\n";
}

} // namespace tesmo::cli
