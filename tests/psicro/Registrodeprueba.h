#pragma once

#include "core/Error.h"

#include <string>
#include <string_view>
#include <vector>

/// Recoge, mientras vive, todo lo que los motores dejan en el registro de diagnósticos.
class RegistroDePrueba {
public:
  RegistroDePrueba() {
    tesmo::AbrirRegistroEn([this](std::string_view texto) { textos.emplace_back(texto); });
  }
  ~RegistroDePrueba() { tesmo::CerrarRegistro(); }
  RegistroDePrueba(const RegistroDePrueba &) = delete;
  RegistroDePrueba &operator=(const RegistroDePrueba &) = delete;

  std::vector<std::string> textos;
};
