#pragma once

#include "meteo/Fecha.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tesmo {

/// Texto del selector cuando no hay ninguna localidad elegida.
inline constexpr const char *SIN_LOCALIDAD = "Localidad";

/// Lo que el usuario ha elegido en una ventana: localidad, período, superficie y altitud. Todas las vistas de
/// la ventana la comparten; ninguna guarda copia.
class Seleccion {
public:
  /// Qué ha cambiado. El cambio de provincia deja además la localidad sin elegir, y tanto él como el de
  /// localidad olvidan la altitud del usuario: avisan una sola vez, con su propio nombre.
  enum class Cambio { Provincia, Localidad, Periodo, Superficie, Altitud };
  /// Textos tecleados de la superficie receptora: grados, grados desde el sur (oeste positivo) y fracción.
  struct Superficie {
    std::string inclinacion = "90";
    std::string orientacion = "0";
    std::string albedo = "0.2";
    bool operator==(const Superficie &) const = default;
  };

  Seleccion() = default;
  Seleccion(const Seleccion &) = delete;
  Seleccion &operator=(const Seleccion &) = delete;

  [[nodiscard]] const std::string &DameProvincia() const { return provincia_; }
  /// Nombre de la localidad elegida, o SIN_LOCALIDAD.
  [[nodiscard]] const std::string &DameLocalidad() const { return localidad_; }
  [[nodiscard]] bool HayLocalidad() const;
  [[nodiscard]] const Periodo &DamePeriodo() const { return periodo_; }
  [[nodiscard]] const Superficie &DameSuperficie() const { return superficie_; }
  /// Altitud [m] puesta por el usuario; vacía: manda la del fichero.
  [[nodiscard]] std::optional<float> DameAltitudUsuario() const { return altitud_; }

  /// Deja la localidad sin elegir, aunque la provincia sea la misma.
  void PonProvincia(const std::string &provincia);
  void PonLocalidad(const std::string &localidad);
  /// Aplica antes las reglas del período (ValidarPeriodo).
  void PonPeriodo(const Periodo &periodo);
  void PonSuperficie(const Superficie &superficie);
  void PonAltitudUsuario(std::optional<float> altitud);

  /// @p aviso se llama tras cada cambio efectivo, mientras viva la selección, por orden de inscripción.
  void AlCambiar(std::function<void(Cambio)> aviso);

  /// @p entrega se llama cada vez que la selección va a servir para cargar o derivar: es cuando quien tenga
  /// algo a medio editar (la superficie, el horizonte) ha de entregarlo. Vale mientras viva la selección.
  void AntesDeUsar(std::function<void()> entrega);
  /// Llama a las entregas por orden de inscripción.
  void PedirLoPendiente() const;

private:
  void Avisar(Cambio cambio) const;

  std::string provincia_;
  std::string localidad_ = SIN_LOCALIDAD;
  Periodo periodo_;
  Superficie superficie_;
  std::optional<float> altitud_;
  std::vector<std::function<void(Cambio)>> avisos_;
  std::vector<std::function<void()>> entregas_;
};

} // namespace tesmo
