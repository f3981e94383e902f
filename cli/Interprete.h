#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace CLI {
class App;
class Option;
} // namespace CLI

/// La biblioteca que interpreta los argumentos, CLI11, vista desde las órdenes. Sus cabeceras cuestan más de
/// compilar que cualquier orden y sólo las incluye Interprete.cpp: aquí sus clases van sin definir y se
/// manejan con las funciones de abajo.
namespace tesmo::cli {

/// Da de alta una orden dentro de @p madre; vive lo que ella.
/// @param pie lo que su ayuda dice tras las opciones
CLI::App &AnadirOrden(CLI::App &madre, const std::string &nombre, const std::string &descripcion,
                      const std::string &pie);
/// Hace que @p orden no valga sin una, y sólo una, de las que tiene dentro.
void ExigirOrdenDentro(CLI::App &orden);
/// Llama a @p accion si los argumentos valen y piden @p orden.
void AlReconocer(CLI::App &orden, std::function<void()> accion);

/// Opciones y argumentos de una orden. Los valores llegan como texto a @p destino, que ha de vivir tanto como
/// la orden: interpretarlos es cosa de ella. Nadie está obligado a darlos si no pasan por Exigir.
/// @param nombres con sus guiones y separados por comas; @param tipo lo que la ayuda pone por valor
CLI::Option &AnadirValor(CLI::App &orden, const std::string &nombres, std::optional<std::string> &destino,
                         const std::string &tipo, const std::string &ayuda);
/// Opción sin valor: @p destino pasa a cierto si se da.
CLI::Option &AnadirInterruptor(CLI::App &orden, const std::string &nombres, bool &destino,
                               const std::string &ayuda);
/// Argumento por su posición; su nombre va en mayúsculas y sin acentos.
CLI::Option &AnadirArgumento(CLI::App &orden, const std::string &nombre, std::optional<std::string> &destino,
                             const std::string &ayuda);
/// Argumentos repetidos al final.
CLI::Option &AnadirArgumentos(CLI::App &orden, const std::string &nombre, std::vector<std::string> &destino,
                              const std::string &ayuda);
/// Hace obligatoria una opción o un argumento.
void Exigir(CLI::Option &opcion);

/// Lo que se sacó de unos argumentos. Sin ayuda ni error, valen y se llamó a la acción de su orden.
struct Interpretacion {
  std::string orden;                ///< la más interior reconocida, desde el programa: "tesmo-cli sol dia"
  std::optional<std::string> ayuda; ///< la que se pidió
  std::optional<std::string> error; ///< por qué no valen, en español
};

/// El programa con sus órdenes, tal como se teclea.
class Interprete {
public:
  /// @param pie lo que la ayuda dice tras las órdenes
  Interprete(const std::string &nombre, const std::string &descripcion, const std::string &pie);
  ~Interprete();
  Interprete(const Interprete &) = delete;
  Interprete &operator=(const Interprete &) = delete;

  /// La madre de todas las órdenes.
  [[nodiscard]] CLI::App &Raiz() { return *raiz_; }
  /// @param argumentos sin el nombre del programa
  [[nodiscard]] Interpretacion Interpretar(const std::vector<std::string> &argumentos);

private:
  std::unique_ptr<CLI::App> raiz_;
};

} // namespace tesmo::cli
