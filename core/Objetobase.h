#pragma once

#include "core/Observador.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

namespace tesmo {

/// Estado de un campo que se puede teclear.
enum EstadoEntrada : std::int32_t {
  ENTRADA_TECLEADA = 0,    ///< el usuario escribió un valor admitido
  ENTRADA_INVALIDA = 255,  ///< el texto no se pudo leer o estaba fuera de límites
  ENTRADA_BLANCO = 0x8000, ///< vacío: se usa el valor por defecto
};

/// Base con nombre de todo objeto de cálculo: enlace con su observador, valores con nombre, órdenes de texto
/// y entrada validada. Una clave o una orden que la clase no conoce se ignora sin avisar.
class ObjetoBase {
public:
  explicit ObjetoBase(std::string nombre);
  virtual ~ObjetoBase();

  /// Ejecuta una orden de texto dirigida al objeto; @p argv[0] es, por convenio, el nombre del objeto.
  virtual void ProcesarOrden(int argc, const char *const *argv);
  /// Nombre de la clase; vacío en la base.
  [[nodiscard]] virtual std::string nombreClase() const;
  virtual void AsociarVista(Observador *vista);
  virtual void DesasociarVista();
  /// Hueco de la tabla de operaciones, sin efecto.
  virtual void Reservada6();
  /// Texto del valor llamado @p clave; vacío si no se conoce.
  [[nodiscard]] virtual std::string DameTexto(std::string_view clave) const;
  /// Estas operaciones dejan la variable del llamante como estaba cuando no conocen @p clave.
  virtual void DameReal(std::string_view clave, float &valor) const;
  /// Hueco de la tabla que recibe una clave, sin efecto.
  virtual void Reservada9(std::string_view clave) const;
  virtual void DameEntero(std::string_view clave, std::int32_t &valor) const;
  virtual void DameLogico(std::string_view clave, bool &valor) const;
  /// Estado de entrada (EstadoEntrada) del campo llamado @p clave.
  virtual void DameEstado(std::string_view clave, std::int32_t &estado) const;
  /// Hueco de la tabla que recibe una clave, sin efecto.
  virtual void Reservada13(std::string_view clave) const;
  /// Da al parámetro @p clave el valor escrito en @p texto.
  virtual void PonTexto(std::string_view clave, const std::string &texto);
  /// Huecos finales de la tabla de operaciones, sin efecto.
  virtual void Reservada15();
  virtual void Reservada16();
  virtual void Reservada17();

  [[nodiscard]] const std::string &Nombre() const { return nombre_; }
  void PonNombre(std::string nombre) { nombre_ = std::move(nombre); }
  /// Observador asociado; nulo si no hay ninguno.
  [[nodiscard]] Observador *Vista() const { return vista_; }

  /// Reescribe en @p texto el separador decimal al de la región; nunca toca el último carácter (se conserva).
  static void AjustarSeparador(std::string &texto);
  /// Lee un real tecleado con cualquiera de los dos separadores. Fuera de [@p minimo, @p maximo] lo dice en
  /// una caja; lo que no es un número no se dice aquí. En ambos casos levanta la marca de la llamada y da
  /// @p porDefecto, que no se compara con los límites.
  [[nodiscard]] float LeerReal(const std::string &texto, float minimo, float maximo, float porDefecto);
  /// Como LeerReal, truncando hacia cero antes de comparar con los límites.
  [[nodiscard]] std::int32_t LeerEntero(const std::string &texto, std::int32_t minimo, std::int32_t maximo,
                                        std::int32_t porDefecto);
  /// Pone en @p valor y @p estado lo tecleado; si el valor no cambia y el estado no es inválido, nada cambia.
  void ActualizarReal(float &valor, std::int32_t &estado, const std::string &texto, float minimo,
                      float maximo, float porDefecto);
  void ActualizarEntero(std::int32_t &valor, std::int32_t &estado, const std::string &texto,
                        std::int32_t minimo, std::int32_t maximo, std::int32_t porDefecto);
  /// Guarda @p texto en @p valor si difiere; si coincide con @p blanco el campo queda en blanco.
  static void ActualizarTexto(std::string &valor, std::int32_t &estado, const std::string &texto,
                              const std::string &blanco);

  /// Marca de la llamada: la última lectura tuvo que tomar el valor por defecto.
  [[nodiscard]] bool MarcaLectura() const { return marcaLectura_; }
  /// Marca acumulada: alguna lectura falló desde que el dueño la limpió.
  [[nodiscard]] bool MarcaAcumulada() const { return marcaAcumulada_; }
  void LimpiarMarcaAcumulada() { marcaAcumulada_ = false; }

protected:
  ObjetoBase(const ObjetoBase &) = default;
  ObjetoBase &operator=(const ObjetoBase &) = default;

private:
  Observador *vista_ = nullptr;
  std::string nombre_;
  bool marcaLectura_ = false;
  bool marcaAcumulada_ = false;
};

} // namespace tesmo
