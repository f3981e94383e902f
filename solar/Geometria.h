#pragma once

namespace tesmo {

/// El valor de π en doble precisión, llevado en precisión extendida.
inline constexpr long double PI_SOLAR = 3.141592653589793;
/// Paso de grados a radianes.
inline constexpr long double GRADO_EN_RADIANES = PI_SOLAR * (1.0L / 180.0L);

/// Hora de salida y de puesta del sol [h solar]; −1 y 25 si no se pone, −1 y −1 si no sale.
struct SalidaPuesta {
  float salida;
  float puesta;
};

/// Vector unitario hacia el sol: sur, oeste, cenit. Nulo de noche.
struct VectorSolar {
  long double s;
  long double w;
  long double z;
};

/// Acimut [°, 0 al sur, oeste positivo], altura y cenit [°].
struct AngulosSolares {
  float acimut;
  float altura;
  float cenit;
};

/// Declinación del sol [°] el @p dia de @p mes de un año de 365 días (Cooper, 1969). Un mes fuera de 1..12 no
/// tiene días antes; un día fuera del mes sigue contando.
[[nodiscard]] long double DeclinacionSolar(int mes, int dia);

/// Horas de salida y puesta en @p latitud [°] con el sol a @p declinacion [°]: cos ω = −tan φ · tan δ, del
/// centro del sol y sin refracción (Duffie y Beckman, 1991).
[[nodiscard]] SalidaPuesta HorasDeSol(float latitud, long double declinacion);

/// ¿Está @p hora entre la salida y la puesta? Las dos tolerancias son distintas (se conserva): una hora igual
/// a la de salida o a la de puesta es de noche.
[[nodiscard]] bool EsHoraDeDia(const SalidaPuesta &sol, float hora);

/// Lo que el vector solar de un día no cambia de una hora a otra.
class SolSobreElLugar {
public:
  /// @param latitud [°]; @param declinacion [°]
  SolSobreElLugar(float latitud, long double declinacion);
  /// Vector hacia el sol a la @p hora de un momento de día, del triángulo esférico de latitud, declinación y
  /// ángulo horario (Duffie y Beckman, 1991). El signo del sur sigue una sola regla en los dos
  /// hemisferios (se conserva), así que al sur del ecuador la componente sur no es de fiar.
  [[nodiscard]] VectorSolar Vector(float hora) const;

private:
  long double cosDelta_;
  long double cosenos_; ///< producto de los de latitud y declinación
  long double senos_;   ///< producto de los de latitud y declinación
  float cociente_;      ///< tangente de la declinación entre la de la latitud
};

/// Vector de un solo momento de día.
[[nodiscard]] inline VectorSolar VectorDeDia(float latitud, long double declinacion, float hora) {
  return SolSobreElLugar(latitud, declinacion).Vector(hora);
}

/// Ángulos de un vector solar y si son de día; el sol degenerado en el cenit da 0, 0 y 90 y es noche.
struct PosicionDeVector {
  AngulosSolares angulos;
  bool esDeDia;
};
[[nodiscard]] PosicionDeVector PosicionDesdeVector(const VectorSolar &sol);
/// Lo que da PosicionDesdeVector del vector nulo de la noche.
inline constexpr PosicionDeVector POSICION_DE_NOCHE{{0.0F, 0.0F, 90.0F}, false};

/// Ángulos del vector (@p x sur, @p y oeste, @p z cenit). Con y = 0 y x distinto de 0 el acimut no se
/// calcula: queda el que había en @p angulos multiplicado por 180/π (se conserva).
void AngulosDeVector(float x, float y, float z, AngulosSolares &angulos);

} // namespace tesmo
