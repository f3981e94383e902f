#include "core/Error.h"

#include "core/Ficheros.h"
#include "core/Formato.h"

#include <fstream>
#include <memory>
#include <mutex>

namespace tesmo {

namespace {

/// El único sumidero de diagnósticos del programa; sin destino, todo se pierde.
std::function<void(std::string_view)> &Destino() {
  static std::function<void(std::string_view)> destino;
  return destino;
}

/// Varios hilos calculan a la vez y todos pueden dejar un diagnóstico. Recursivo: un destino puede escribir
/// otro.
std::recursive_mutex &Cerrojo() {
  static std::recursive_mutex cerrojo;
  return cerrojo;
}

std::string_view Encabezamiento(int codigo) {
  switch (codigo) {
  case ERROR_FICHERO:
    return "**Error 1: No se pudo abrir el fichero: ";
  case ERROR_MEMORIA:
    return "**Error 2: Se agoto la memoria dinámica: ";
  case ERROR_CONVERGENCIA:
    return "**Error 3: El proceso iterativo no ha convergido: ";
  default:
    return {};
  }
}

void AnotarAcotado(std::string_view cual, float valor, std::string_view signo, float limite,
                   std::string_view contexto) {
  if (!RegistroAbierto()) return;
  std::string texto(cual);
  texto.append(FormatoF(valor)).append(signo).append(FormatoF(limite));
  texto.append(", se toma ").append(FormatoF(limite)).append(": ").append(contexto);
  EscribirRegistro(texto);
}

} // namespace

void AbrirRegistro(const std::string &ruta) {
  CerrarRegistro();
  auto fichero = std::make_shared<std::ofstream>(RutaDesdeTexto(ruta), std::ios::trunc);
  if (!fichero->is_open()) {
    ErrorNumerico(ERROR_FICHERO, ruta);
    return;
  }
  // Se vacía en cada escritura: el registro ha de contar lo ocurrido aunque el programa caiga después.
  AbrirRegistroEn([fichero](std::string_view texto) {
    fichero->write(texto.data(), static_cast<std::streamsize>(texto.size()));
    fichero->flush();
  });
}

void AbrirRegistroEn(std::function<void(std::string_view)> destino) {
  const std::lock_guard guarda(Cerrojo());
  Destino() = std::move(destino);
}

void CerrarRegistro() { AbrirRegistroEn(nullptr); }

bool RegistroAbierto() {
  const std::lock_guard guarda(Cerrojo());
  return static_cast<bool>(Destino());
}

void EscribirRegistro(std::string_view texto) {
  const std::lock_guard guarda(Cerrojo());
  // Una copia: el destino puede cerrar o cambiar el registro mientras escribe.
  const std::function<void(std::string_view)> destino = Destino();
  if (destino) destino(texto);
}

void ErrorNumerico(int codigo, std::string_view texto) {
  const std::string_view encabezamiento = Encabezamiento(codigo);
  if (encabezamiento.empty() || !RegistroAbierto()) return;
  EscribirRegistro(std::string(encabezamiento).append(texto));
}

void Acotar(float &valor, float minimo, float maximo, std::string_view contexto) {
  if (!(valor >= minimo)) {
    AnotarAcotado("**Minimo revasado ", valor, " < ", minimo, contexto);
    valor = minimo;
  } else if (valor > maximo) {
    AnotarAcotado("**Maximo revasado ", valor, " > ", maximo, contexto);
    valor = maximo;
  }
}

} // namespace tesmo
