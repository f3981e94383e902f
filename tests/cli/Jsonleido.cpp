#include "tests/cli/Jsonleido.h"

#include <nlohmann/json.hpp>

#include <utility>

namespace tesmo::prueba {

JsonLeido::JsonLeido(const std::string &texto)
    : raiz_(std::make_shared<const nlohmann::json>(nlohmann::json::parse(texto))), valor_(raiz_.get()) {}

JsonLeido::JsonLeido(std::shared_ptr<const nlohmann::json> raiz, const nlohmann::json &valor)
    : raiz_(std::move(raiz)), valor_(&valor) {}

JsonLeido JsonLeido::operator[](std::size_t lugar) const { return {raiz_, valor_->at(lugar)}; }

JsonLeido JsonLeido::operator[](const std::string &nombre) const { return {raiz_, valor_->at(nombre)}; }

std::size_t JsonLeido::Tamano() const { return valor_->size(); }

bool JsonLeido::Tiene(const std::string &nombre) const { return valor_->contains(nombre); }

bool JsonLeido::EsNulo() const { return valor_->is_null(); }

bool JsonLeido::EsLista() const { return valor_->is_array(); }

bool JsonLeido::EsObjeto() const { return valor_->is_object(); }

double JsonLeido::Numero() const { return valor_->get<double>(); }

std::string JsonLeido::Texto() const { return valor_->get<std::string>(); }

std::string JsonLeido::Escrito() const { return valor_->dump(); }

} // namespace tesmo::prueba
