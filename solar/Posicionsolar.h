#pragma once

#include "core/Objetobase.h"
#include "solar/Geometria.h"
#include "solar/Perfilhorizonte.h"
#include "solar/Reloj.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tesmo {

/// Posición del sol para una latitud, una fecha y una hora solar verdadera (12 = mediodía solar), con los
/// parámetros de una superficie receptora y un perfil de horizonte. Año de 365 días; ángulos en grados;
/// acimut 0 al sur, oeste positivo. Las claves van en UTF-8: "Latitud", "Mes", "Día", "Hora", "Acimut",
/// "Altura", "Es de día", "Inclinación", "Orientación", "Albedo", "Tamaño horizonte", "Horizonte X",
/// "Horizonte Y".
class PosicionSolar : public ObjetoBase {
public:
  /// Toma fecha y hora del reloj del sistema. No calcula nada: antes de leer lo derivado hay que Calcular.
  PosicionSolar();
  /// Lo mismo con otro reloj.
  explicit PosicionSolar(const Reloj &reloj);
  /// @param latitud [°, norte positivo]; @param hora hora solar verdadera, 0 a 24. Calcula ya lo derivado.
  PosicionSolar(float latitud, int mes, int dia, float hora);

  /// Salida, puesta, vector y ángulos del sol de los campos del objeto. A mediodía el acimut guardado no se
  /// recalcula (véase AngulosDeVector); CalcularPosicion no tiene ese hueco.
  void Calcular();
  /// Gira el vector guardado a la referencia de acimut @p a (de sur a este, al revés que el del sol: se
  /// conserva) y elevación @p b [°] y guarda sus ángulos relativos.
  void FijarReferencia(float a, float b);
  /// Las tres operaciones siguientes sólo cambian la declinación y, salvo la primera, la marca de día.
  SalidaPuesta CalcularSalidaPuesta(float latitud, int mes, int dia);
  /// Vector nulo de noche. Nada se guarda entre llamadas ni se pide memoria.
  VectorSolar CalcularVectorSolar(float latitud, int mes, int dia, float hora);
  /// De noche, acimut 0, altura 0 y cenit 90.
  AngulosSolares CalcularPosicion(float latitud, int mes, int dia, float hora);

  /// Reales con el patrón "0.00" y enteros con "0"; "Es de día" da "Es de día" o "Es de noche".
  [[nodiscard]] std::string DameTexto(std::string_view clave) const override;
  void DameReal(std::string_view clave, float &valor) const override;
  void DameEntero(std::string_view clave, std::int32_t &valor) const override;
  void DameLogico(std::string_view clave, bool &valor) const override;
  void DameEstado(std::string_view clave, std::int32_t &estado) const override;
  /// Entrada validada; no recalcula nada.
  void PonTexto(std::string_view clave, const std::string &texto) override;
  /// Copia "Horizonte X" u "Horizonte Y" en @p bufer, que ha de tener "Tamaño horizonte" valores.
  void DameVector(std::string_view clave, float *bufer) const;

  /// Lee un perfil de horizonte. Falso, y el perfil queda como estaba, si el fichero no se puede abrir o no
  /// empieza por un número de puntos de 0 a PerfilHorizonte::PUNTOS_MAXIMOS.
  bool LeerHorizonte(const std::string &ruta);
  /// Escribe el número de puntos y sólo los de posición par (se conserva). Falso si no se puede escribir.
  [[nodiscard]] bool GuardarHorizonte(const std::string &ruta) const;
  void PonTamanoHorizonte(float n) { horizonte_.PonTamano(n); }
  void PonPuntoHorizonte(int i, float x, float y) { horizonte_.PonPunto(i, x, y); }

  [[nodiscard]] const PerfilHorizonte &Horizonte() const { return horizonte_; }
  [[nodiscard]] const std::vector<float> &HorizonteX() const { return horizonte_.X(); }
  [[nodiscard]] const std::vector<float> &HorizonteY() const { return horizonte_.Y(); }
  /// Declinación de la última salida y puesta calculada [°].
  [[nodiscard]] long double Declinacion() const { return declinacion_; }
  /// Marca de día del último cálculo.
  [[nodiscard]] bool EsDeDia() const { return esDeDia_; }
  /// Lo que dejó la última llamada a Calcular.
  [[nodiscard]] const SalidaPuesta &HorasDelDia() const { return horas_; }
  [[nodiscard]] const std::array<float, 3> &VectorGuardado() const { return vector_; } ///< sur, oeste, cenit
  [[nodiscard]] const AngulosSolares &Angulos() const { return angulos_; }
  /// Lo que dejó la última llamada a FijarReferencia.
  [[nodiscard]] const std::array<float, 3> &VectorRelativo() const { return vectorRelativo_; }
  [[nodiscard]] const AngulosSolares &AngulosRelativos() const { return angulosRelativos_; }

private:
  struct CampoReal;
  struct CampoEntero;
  static const std::array<CampoReal, 7> CAMPOS_REALES;
  static const std::array<CampoEntero, 2> CAMPOS_ENTEROS;
  [[nodiscard]] static const CampoReal *BuscarReal(std::string_view clave);
  [[nodiscard]] static const CampoEntero *BuscarEntero(std::string_view clave);

  /// Los estados de entrada, en su orden.
  enum Estado : std::size_t {
    ESTADO_LATITUD,
    ESTADO_MES,
    ESTADO_DIA,
    ESTADO_HORA,
    ESTADO_ACIMUT,
    ESTADO_ALTURA,
    ESTADO_ES_DE_DIA,
    ESTADO_INCLINACION,
    ESTADO_ORIENTACION,
    ESTADO_ALBEDO,
    NUMERO_ESTADOS,
  };

  float latitud_ = 0.0F;
  std::int32_t mes_ = 0;
  std::int32_t dia_ = 0;
  float hora_ = 0.0F;
  float acimut_ = 0.0F; ///< de la dirección de referencia
  float altura_ = 0.0F; ///< de la dirección de referencia
  PerfilHorizonte horizonte_;
  float inclinacion_ = 90.0F;
  float orientacion_ = 0.0F;
  float albedo_ = 0.2F;
  std::array<std::int32_t, NUMERO_ESTADOS> estados_;
  long double declinacion_ = 0.0L;
  bool esDeDia_ = false;
  SalidaPuesta horas_{};
  std::array<float, 3> vector_{};
  AngulosSolares angulos_{};
  float referenciaA_ = 0.0F;
  float referenciaB_ = 0.0F;
  std::array<std::array<float, 3>, 3> matriz_{};
  std::array<float, 3> vectorRelativo_{};
  AngulosSolares angulosRelativos_{};
};

} // namespace tesmo
