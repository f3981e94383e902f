#pragma once

#include "core/Objetobase.h"

#include <array>
#include <vector>

namespace tesmo {

/// Hora de salida y de puesta del sol [h solar]; −1 y 25 si no se pone, −1 y −1 si no sale.
struct SalidaPuesta { float salida; float puesta; };
/// Vector unitario hacia el sol: sur, oeste, cenit.
struct VectorSolar { long double s; long double w; long double z; };
/// Acimut [°, 0 al sur, oeste positivo], altura y cenit [°].
struct AngulosSolares { float acimut; float altura; float cenit; };

class PosicionSolar : public ObjetoBase {
public:
  PosicionSolar();
  PosicionSolar(float latitud, int mes, int dia, float hora);

  void Calcular();
  void FijarReferencia(float a, float b);
  SalidaPuesta CalcularSalidaPuesta(float latitud, int mes, int dia);
  VectorSolar CalcularVectorSolar(float latitud, int mes, int dia, float hora);
  AngulosSolares CalcularPosicion(float latitud, int mes, int dia, float hora);

  [[nodiscard]] std::string DameTexto(std::string_view clave) const override;
  void DameReal(std::string_view clave, float &valor) const override;
  void DameEntero(std::string_view clave, std::int32_t &valor) const override;
  void DameLogico(std::string_view clave, bool &valor) const override;
  void DameEstado(std::string_view clave, std::int32_t &estado) const override;
  void PonTexto(std::string_view clave, const std::string &texto) override;
  void DameVector(std::string_view clave, float *bufer) const;

  bool LeerHorizonte(const std::string &ruta);
  bool GuardarHorizonte(const std::string &ruta) const;
  void PonTamanoHorizonte(float n);
  void PonPuntoHorizonte(int i, float x, float y);

  [[nodiscard]] const std::vector<float> &HorizonteX() const;
  [[nodiscard]] const std::vector<float> &HorizonteY() const;
  [[nodiscard]] long double Declinacion() const;
  [[nodiscard]] bool EsDeDia() const;
};

} // namespace tesmo
