#include "cli/Json.h"

#include "core/Formato.h"

#include <nlohmann/json.hpp>

#include <charconv>
#include <cmath>
#include <utility>

namespace tesmo::cli {

namespace {

using Ajeno = nlohmann::ordered_json;

Ajeno Traducir(const Json &valor);

struct Traductor {
  Ajeno operator()(const ListaJson &lista) const {
    Ajeno ajena = Ajeno::array();
    for (const Json &elemento : lista) ajena.push_back(Traducir(elemento));
    return ajena;
  }
  Ajeno operator()(const ObjetoJson &objeto) const {
    Ajeno ajeno = Ajeno::object();
    for (const auto &[nombre, valor] : objeto) ajeno[nombre] = Traducir(valor);
    return ajeno;
  }
  template <class Simple>
  Ajeno operator()(const Simple &simple) const {
    return simple;
  }
};

Ajeno Traducir(const Json &valor) { return std::visit(Traductor{}, valor.valor); }

} // namespace

Json::Json(std::nullptr_t) {}
Json::Json(bool cierto) : valor(cierto) {}
Json::Json(int entero) : valor(entero) {}
Json::Json(double real) : valor(real) {}
Json::Json(std::string texto) : valor(std::move(texto)) {}
Json::Json(std::string_view texto) : valor(std::string(texto)) {}
Json::Json(const char *texto) : valor(std::string(texto)) {}
Json::Json(ListaJson lista) : valor(std::move(lista)) {}
Json::Json(ObjetoJson objeto) : valor(std::move(objeto)) {}
Json::~Json() = default;
Json::Json(const Json &) = default;
Json::Json(Json &&) noexcept = default;
Json &Json::operator=(const Json &) = default;
Json &Json::operator=(Json &&) noexcept = default;

std::string TextoJson(const Json &valor) {
  return Traducir(valor).dump(-1, ' ', false, Ajeno::error_handler_t::replace);
}

double ConNueveCifras(double real) {
  if (!std::isfinite(real)) return real;
  const std::string cifras = FormatoG9(real);
  double redondo = 0.0;
  std::from_chars(cifras.data(), cifras.data() + cifras.size(), redondo);
  return redondo;
}

} // namespace tesmo::cli
