#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace tesmo {

/// Abre (vacía) el registro de diagnósticos en @p ruta, cerrando antes el que hubiera. Si no se puede abrir,
/// queda cerrado y todo diagnóstico posterior se pierde sin ruido.
void AbrirRegistro(const std::string &ruta);
/// Hace que los diagnósticos vayan, uno por llamada, a @p destino en vez de a un fichero.
void AbrirRegistroEn(std::function<void(std::string_view)> destino);
/// Deja de escribir diagnósticos; sin registro abierto no hace nada.
void CerrarRegistro();
/// ¿Va a algún sitio lo que se escriba en el registro?
[[nodiscard]] bool RegistroAbierto();
/// Escribe @p texto tal cual, sin fin de línea; nada si no hay registro abierto. De varios hilos, uno cada
/// vez.
void EscribirRegistro(std::string_view texto);

/// Códigos de ErrorNumerico.
enum CodigoError : int {
  ERROR_FICHERO = 1,      ///< no se pudo abrir un fichero
  ERROR_MEMORIA = 2,      ///< se agotó la memoria
  ERROR_CONVERGENCIA = 3, ///< una iteración no convergió
};
/// Escribe en el registro el encabezamiento de @p codigo seguido de @p texto; otros códigos no escriben nada.
void ErrorNumerico(int codigo, std::string_view texto);

/// Lleva @p valor a [@p minimo, @p maximo] y deja constancia en el registro. Un valor que no es número toma
/// el mínimo. @p contexto es quien llama, en la forma "Clase::operacion".
void Acotar(float &valor, float minimo, float maximo, std::string_view contexto);

} // namespace tesmo
