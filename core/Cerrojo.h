#pragma once

#include <filesystem>
#include <memory>

namespace tesmo {

/// Un directorio tomado por este objeto para cambiar en él varios ficheros a la vez. Lo suelta al morir, y el
/// sistema lo suelta por él si muere el proceso. Sólo detiene a quien también lo toma.
class CerrojoDirectorio {
public:
  explicit CerrojoDirectorio(const std::filesystem::path &directorio);
  ~CerrojoDirectorio();
  CerrojoDirectorio(const CerrojoDirectorio &) = delete;
  CerrojoDirectorio &operator=(const CerrojoDirectorio &) = delete;

  /// Falso si lo tiene otro. Donde el sistema no sabe cerrar directorios, siempre cierto.
  [[nodiscard]] bool Tomado() const { return tomado_; }

private:
  struct Recurso;
  std::unique_ptr<Recurso> recurso_;
  bool tomado_ = true;
};

} // namespace tesmo
