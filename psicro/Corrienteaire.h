#pragma once

#include "core/Objetobase.h"

#include <string>
#include <string_view>

namespace tesmo {

/// Corriente de aire húmedo: caudal de aire seco, temperatura seca, presión y humedad absoluta. Toda magnitud
/// psicrométrica del programa sale de aquí; se calcula al pedirla, nada se guarda.
/// Unidades: °C, Pa, kg de agua por kg de aire seco, J por kg de aire seco, kg/s, %.
class CorrienteAire : public ObjetoBase {
public:
  explicit CorrienteAire(std::string nombre = "CorrienteSinNombre");

  [[nodiscard]] std::string nombreClase() const override;

  void pont_w(float t, float w, float p);
  void pont_th(float t, float th, float p);
  void pont_tr(float t, float tr, float p);
  void pont_hr(float t, float hr, float p);
  void pont_h(float t, float h, float p);
  void ponw_h(float w, float h, float p);
  void ponm(float m, std::string_view cod);

  [[nodiscard]] long double dame(std::string_view cod) const;
  void mostrar() const;
  void escribir(const std::string &ruta) const;

private:
  float m_ = 0.0F;
  float t_ = 0.0F;
  float p_ = 0.0F;
  float w_ = 0.0F;
};

void mezclar(const CorrienteAire &a, const CorrienteAire &b, CorrienteAire &resultado);
[[nodiscard]] float dameQSen(const CorrienteAire &cEnt, const CorrienteAire &cSal);
[[nodiscard]] float dameQLat(const CorrienteAire &cEnt, const CorrienteAire &cSal);

} // namespace tesmo
