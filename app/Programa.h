#pragma once

#include "core/Objetobase.h"

#include <functional>
#include <memory>
#include <string>

namespace tesmo {

class Accion;
class BaseDeLocalidades;
class DiasExtremos;
class LeerMet;
class PosicionSolar;
class Psicro;

/// Cómo se crea cada motor. Una función vacía, o que se queda sin memoria, deja nulo el puntero de ese motor
/// y la construcción sigue.
struct FabricaMotores {
  std::function<std::shared_ptr<DiasExtremos>()> diasExtremos;
  std::function<std::shared_ptr<PosicionSolar>()> posicionSolar;
  std::function<std::shared_ptr<LeerMet>()> leerMet;
  std::function<std::shared_ptr<Psicro>()> psicro;

  /// La de la aplicación: cada motor con su constructor por defecto.
  [[nodiscard]] static FabricaMotores DeLaAplicacion();
};

/// Los motores de una ventana de trabajo, de nombre "Programas". Las copias comparten los motores y el estado
/// de carga; con la última copia mueren también los motores, en el orden en que se crearon.
class Programa : public ObjetoBase {
public:
  Programa();
  explicit Programa(const FabricaMotores &fabrica);
  Programa(const Programa &) = default;
  Programa &operator=(const Programa &) = default;
  ~Programa() override;

  /// Cada acceso da nulo si el motor no se pudo crear o si ya se destruyeron.
  [[nodiscard]] DiasExtremos *DameDiasExtremos() const;
  [[nodiscard]] PosicionSolar *DamePosicionSolar() const;
  [[nodiscard]] LeerMet *DameLeerMet() const;
  [[nodiscard]] Psicro *DamePsicro() const;
  /// La base de localidades compartida por todos los programas; vive al menos tanto como este objeto.
  [[nodiscard]] BaseDeLocalidades *DameLocalidades() const;

  /// Destruye DiasExtremos, PosicionSolar, LeerMet y Psicro, por este orden; las demás copias pasan a ver
  /// punteros nulos y ningún dato cargado. Llamarla otra vez no hace nada.
  void DestruirMotores();

  /// ¿Tiene LeerMet los datos de una localidad? Falso al empezar y tras una carga fallida.
  [[nodiscard]] bool HayDatos() const;
  /// Localidad cuyos datos están cargados; vacía si no hay datos.
  [[nodiscard]] const std::string &DameLocalidadCargada() const;
  /// La anota el camino de carga (app/Carga.h); vacía: no hay datos.
  void PonLocalidadCargada(const std::string &localidad);
  /// @p aviso se llama cada vez que se anota una carga, también sin datos, la pida quien la pida. Las copias
  /// lo comparten; vale mientras quede alguna.
  void AlCargar(std::function<void()> aviso);

  /// Acción del usuario en curso, que ella misma anota y borra (app/Accion.h); nula si no hay ninguna.
  [[nodiscard]] Accion *DameAccion() const;
  void PonAccion(Accion *accion);

private:
  struct Motores;
  std::shared_ptr<BaseDeLocalidades> localidades_; // va delante: se suelta después de los motores
  std::shared_ptr<Motores> motores_;
};

} // namespace tesmo
