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
  enum class Cambio { Provincia, Localidad, Periodo, Superficie, Altitud };
  /// Textos tecleados de la superficie receptora.
  struct Superficie {
    std::string inclinacion = "90";
    std::string orientacion = "0";
    std::string albedo = "0.2";
    bool operator==(const Superficie &) const = default;
  };

  [[nodiscard]] const std::string &DameProvincia() const;
  [[nodiscard]] const std::string &DameLocalidad() const;
  [[nodiscard]] bool HayLocalidad() const;
  [[nodiscard]] const Periodo &DamePeriodo() const;
  [[nodiscard]] const Superficie &DameSuperficie() const;
  [[nodiscard]] std::optional<float> DameAltitudUsuario() const; ///< [m]; vacía: la del fichero

  void PonProvincia(const std::string &provincia); ///< deja la localidad sin elegir
  void PonLocalidad(const std::string &localidad); ///< olvida la altitud del usuario
  void PonPeriodo(const Periodo &periodo);         ///< lo valida antes
  void PonSuperficie(const Superficie &superficie);
  void PonAltitudUsuario(std::optional<float> altitud);

  /// @p aviso se llama tras cada cambio efectivo, mientras viva la selección.
  void AlCambiar(std::function<void(Cambio)> aviso);
};

} // namespace tesmo
