#pragma once

#include "meteo/Fecha.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace tesmo::cli {

/// ¿Es @p texto un número que empieza por '-'? CLI11 toma algunos ("-.5", "-1e-05") por opciones.
[[nodiscard]] bool EsNumeroNegativo(std::string_view texto);

/// Prepara los argumentos para CLI11: los números negativos, los valores vacíos y lo que va tras el '=' de
/// una opción larga quedan protegidos, de modo que sólo pueden ser valores. Desproteger deshace lo hecho.
[[nodiscard]] std::vector<std::string> Proteger(const std::vector<std::string> &argumentos);
[[nodiscard]] std::string Desproteger(std::string texto);

/// Los lectores siguientes lanzan Fallo (uso incorrecto) nombrando @p que y el texto.

/// Real finito, con punto o coma decimal.
[[nodiscard]] double LeerNumero(const std::string &texto, const std::string &que);
[[nodiscard]] double LeerNumero(const std::string &texto, const std::string &que, double minimo,
                                double maximo);
/// Latitud [°] de −89 a 89, lo que admite la ventana.
[[nodiscard]] float LeerLatitud(const std::string &texto);
[[nodiscard]] int LeerEntero(const std::string &texto, const std::string &que, int minimo, int maximo);
/// "M/D/H" de un año de 365 días, horas 1 a 24.
[[nodiscard]] FechaHora LeerFecha(const std::string &texto, const std::string &que);
/// Comprueba que @p dia cabe en @p mes (1 a 12).
void ComprobarDia(int mes, int dia, const std::string &que);
/// "A-B", horas del día de 1 a 24 con A ≤ B.
[[nodiscard]] std::pair<int, int> LeerHoras(const std::string &texto, const std::string &que);

/// Ruta absoluta de lo tecleado. Ha de llamarse antes de iniciar la configuración, que cambia de directorio.
[[nodiscard]] std::string RutaAbsoluta(const std::string &texto);
/// Lo mismo con el valor de @p opcion; vacía si no se dio. Lanzan Fallo (falta una entrada o una salida) si
/// se dio vacía.
[[nodiscard]] std::string RutaDeEntrada(const std::optional<std::string> &texto, const std::string &opcion);
[[nodiscard]] std::string RutaDeSalida(const std::optional<std::string> &texto, const std::string &opcion);

} // namespace tesmo::cli
