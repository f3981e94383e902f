#pragma once

#include <functional>
#include <ostream>
#include <stdexcept>
#include <string>

namespace tesmo::cli {

/// Estados de salida del programa; son un contrato con quien lo llama desde un guion.
enum class Estado : int {
  Hecho = 0,
  UsoIncorrecto = 2, ///< orden, opción, rótulo, código, fecha u hora que no valen
  FaltaEntrada = 3,  ///< una entrada falta o no se puede abrir, o una localidad no se conoce
  FaltaSalida = 4,   ///< una salida no se pudo escribir
};

/// Lo que impide seguir. Un texto vacío: ya se ha dicho.
class Fallo : public std::runtime_error {
public:
  Fallo(Estado estado, const std::string &texto) : std::runtime_error(texto), estado_(estado) {}
  [[nodiscard]] Estado DameEstado() const { return estado_; }

private:
  Estado estado_;
};

/// Lo que comparten la interpretación de los argumentos y las órdenes.
struct Contexto {
  std::ostream &salida;
  std::ostream &error;
  std::function<void()> accion = {}; ///< lo que hay que hacer, una vez entendidos los argumentos
};

/// Escribe un aviso que no impide seguir.
inline void Avisar(Contexto &contexto, const std::string &texto) {
  contexto.error << "Aviso: " << texto << '\n';
}

} // namespace tesmo::cli
