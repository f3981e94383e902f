#include "solar/Posicionsolar.h"

#include <cmath>

namespace tesmo {

namespace {

constexpr const char *NOMBRE = "PosicionSolar";
/// Latitud de la región de origen [°].
constexpr float LATITUD_DE_LA_REGION = 36.82F;

using Fila = std::array<float, 3>;

long double Producto(const Fila &a, const Fila &b) {
  return static_cast<long double>(a[0]) * b[0] + static_cast<long double>(a[1]) * b[1] +
         static_cast<long double>(a[2]) * b[2];
}

/// Giro a la referencia de acimut @p a y elevación @p b [°] de un vector (sur, este, cenit).
std::array<Fila, 3> MatrizDeReferencia(float a, float b) {
  const long double cosA = std::cos(a * GRADO_EN_RADIANES);
  const long double senA = std::sin(a * GRADO_EN_RADIANES);
  const long double cosB = std::cos(b * GRADO_EN_RADIANES);
  const long double senB = std::sin(b * GRADO_EN_RADIANES);
  const auto f = [](long double valor) { return static_cast<float>(valor); };
  return {Fila{f(cosA * cosB), f(senA * cosB), f(senB)}, Fila{f(-senA), f(cosA), 0.0F},
          Fila{f(-cosA * senB), f(-senA * senB), f(cosB)}};
}

} // namespace

PosicionSolar::PosicionSolar() : PosicionSolar(RelojDelSistema()) {}

PosicionSolar::PosicionSolar(const Reloj &reloj) : ObjetoBase(NOMBRE), latitud_(LATITUD_DE_LA_REGION) {
  estados_.fill(ENTRADA_BLANCO);
  const InstanteLocal instante = reloj.Ahora();
  mes_ = instante.mes;
  dia_ = instante.dia;
  hora_ = HoraSolarDeReloj(instante);
}

PosicionSolar::PosicionSolar(float latitud, int mes, int dia, float hora)
    : ObjetoBase(NOMBRE), latitud_(latitud), mes_(mes), dia_(dia), hora_(hora) {
  estados_.fill(ENTRADA_BLANCO);
  Calcular();
  FijarReferencia(acimut_, altura_);
}

void PosicionSolar::Calcular() {
  horas_ = CalcularSalidaPuesta(latitud_, mes_, dia_);
  const VectorSolar sol = CalcularVectorSolar(latitud_, mes_, dia_, hora_);
  vector_ = {static_cast<float>(sol.s), static_cast<float>(sol.w), static_cast<float>(sol.z)};
  AngulosDeVector(vector_[0], vector_[1], vector_[2], angulos_);
}

void PosicionSolar::FijarReferencia(float a, float b) {
  referenciaA_ = a;
  referenciaB_ = b;
  matriz_ = MatrizDeReferencia(a, b);
  const Fila sol{vector_[0], -vector_[1], vector_[2]};
  vectorRelativo_ = {static_cast<float>(Producto(matriz_[0], sol)),
                     static_cast<float>(-Producto(matriz_[1], sol)),
                     static_cast<float>(Producto(matriz_[2], sol))};
  AngulosDeVector(vectorRelativo_[0], vectorRelativo_[1], vectorRelativo_[2], angulosRelativos_);
}

SalidaPuesta PosicionSolar::CalcularSalidaPuesta(float latitud, int mes, int dia) {
  declinacion_ = DeclinacionSolar(mes, dia);
  return HorasDeSol(latitud, declinacion_);
}

VectorSolar PosicionSolar::CalcularVectorSolar(float latitud, int mes, int dia, float hora) {
  esDeDia_ = EsHoraDeDia(CalcularSalidaPuesta(latitud, mes, dia), hora);
  return esDeDia_ ? VectorDeDia(latitud, declinacion_, hora) : VectorSolar{};
}

AngulosSolares PosicionSolar::CalcularPosicion(float latitud, int mes, int dia, float hora) {
  const PosicionDeVector posicion = PosicionDesdeVector(CalcularVectorSolar(latitud, mes, dia, hora));
  esDeDia_ = posicion.esDeDia;
  return posicion.angulos;
}

} // namespace tesmo
