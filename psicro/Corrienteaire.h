#pragma once

#include "core/Objetobase.h"
#include "psicro/Constantes.h"
#include "psicro/Registrocorrientes.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace tesmo {

/// Magnitudes de una corriente de aire, con el código con que las pide `dame`.
enum class Magnitudaire : std::uint8_t {
  Caudal,            ///< "m", de aire seco [kg/s]
  Presion,           ///< "p" [Pa]
  Temperatura,       ///< "t", seca [°C]
  HumedadAbsoluta,   ///< "w" [kg de agua / kg de aire seco]
  TemperaturaHumeda, ///< "th" [°C]
  TemperaturaRocio,  ///< "tr" [°C]
  HumedadRelativa,   ///< "hr" [%]
  Entalpia,          ///< "h" [J / kg de aire seco]
  Densidad,          ///< "ro" [kg/m³]
  VolumenEspecifico, ///< "ve" [m³ / kg de aire seco]
};

/// Corriente de aire húmedo: caudal de aire seco, temperatura seca, presión y humedad absoluta, en cuatro
/// float. Toda magnitud psicrométrica del programa sale de aquí; se calcula al pedirla y nada se guarda.
///
/// Las operaciones que dan un estado llevan cada argumento a su intervalo y dejan constancia en el registro;
/// un argumento que no es número toma el mínimo. Nada comprueba p > p_s(t): por debajo, la humedad de
/// saturación es negativa y la humedad que queda también (se conserva).
/// Fuente de las relaciones: ASHRAE Handbook of Fundamentals, 1997, cap. 6 (Psychrometrics).
class CorrienteAire : public ObjetoBase {
public:
  /// Aire a 25 °C, 50 % y 101325 Pa, con 15 kg/s.
  explicit CorrienteAire(std::string nombre = "CorrienteSinNombre");
  ~CorrienteAire() override = default;
  /// La copia es otra corriente viva, con el mismo nombre.
  CorrienteAire(const CorrienteAire &otra);
  CorrienteAire &operator=(const CorrienteAire &otra);

  /// Ejecuta la orden @p argv[1] con los argumentos @p argv[2]…; @p argv[0] no se mira. Cuenta sólo el
  /// comienzo de la palabra. Respuestas y quejas van al registro, sin fin de línea: ponNombre N · mostrar ·
  /// ponm M UNIDAD · pont_w|pont_th|pont_tr|pont_hr|pont_h|ponw_h A B [P] · escribir RUTA · dame CÓDIGO ·
  /// mezclar UNA OTRA RESULTADO. Los números se leen con PrefijoReal.
  void ProcesarOrden(int argc, const char *const *argv) override;
  [[nodiscard]] std::string nombreClase() const override;

  /// Estado por temperatura seca @p t [-100, 99 °C], humedad absoluta @p w [0, saturación; kg/kg] y presión
  /// @p p [0.0014, 1555070 Pa].
  void pont_w(float t, float w, float p);
  /// Estado por temperatura seca y temperatura húmeda @p th [-100, t °C]; ésta, a la presión @p p.
  void pont_th(float t, float th, float p);
  /// Estado por temperatura seca y temperatura de rocío @p tr [-100, t °C].
  void pont_tr(float t, float tr, float p);
  /// Estado por temperatura seca y humedad relativa @p hr [0, 100 %].
  void pont_hr(float t, float hr, float p);
  /// Estado por temperatura seca y entalpía @p h [J/kg], entre la del aire seco y la del saturado a @p t.
  void pont_h(float t, float h, float p);
  /// Estado por humedad absoluta @p w [0, saturación a 99 °C] y entalpía @p h [J/kg], entre la de su punto de
  /// rocío y 211514.
  void ponw_h(float w, float h, float p);
  /// Caudal @p m [0, 1e10] en la unidad @p cod: "kg/s", "kg/h", "m3/s" o "m3/h", los dos últimos con la
  /// densidad del estado en vigor. Otra unidad deja el caudal como estaba y lo dice en el registro.
  void ponm(float m, std::string_view cod);

  /// Magnitud de código @p cod; 0 si no es uno de los diez.
  [[nodiscard]] long double dame(std::string_view cod) const;
  /// La misma magnitud sin pasar por su código, para los bucles de un año de horas.
  [[nodiscard]] long double dame(Magnitudaire magnitud) const;

  /// Caudal de aire seco [kg/s].
  [[nodiscard]] float caudal() const { return m_; }
  /// Temperatura seca [°C].
  [[nodiscard]] float temperatura() const { return t_; }
  /// Presión total [Pa].
  [[nodiscard]] float presion() const { return p_; }
  /// Humedad absoluta [kg/kg].
  [[nodiscard]] float humedadAbsoluta() const { return w_; }
  /// Temperatura húmeda [°C], siempre a 101325 Pa (véase tBulboHumedo).
  [[nodiscard]] float temperaturaHumeda() const;
  /// Temperatura de rocío [°C].
  [[nodiscard]] float temperaturaRocio() const;
  /// Humedad relativa [%].
  [[nodiscard]] long double humedadRelativa() const;
  /// Entalpía [J/kg de aire seco], 0 para aire seco a 0 °C.
  [[nodiscard]] long double entalpia() const;
  /// Masa de aire seco por volumen de mezcla [kg/m³].
  [[nodiscard]] long double densidad() const;
  /// Volumen de mezcla por masa de aire seco [m³/kg].
  [[nodiscard]] long double volumenEspecifico() const;

  /// Escribe en el registro nueve textos, uno por magnitud; el volumen específico no está entre ellos.
  void mostrar() const;
  /// `mostrar` en el fichero @p ruta, que se vacía. Después el registro queda cerrado.
  void escribir(const std::string &ruta) const;

private:
  friend void mezclar(const CorrienteAire &a, const CorrienteAire &b, CorrienteAire &resultado);

  float m_;
  float t_ = 0.0F;
  float p_ = 0.0F;
  float w_ = 0.0F;
  InscripcionCorriente inscripcion_{*this};
};

/// Mezcla adiabática de @p a y @p b en @p resultado, a la presión común. Con presiones distintas (comparación
/// exacta) lo dice en el registro y no toca @p resultado. Si @p resultado es además @p a o @p b, su caudal
/// cambia antes de usarse: se trabaja en el orden escrito, sin copias.
void mezclar(const CorrienteAire &a, const CorrienteAire &b, CorrienteAire &resultado);
/// Calor sensible [W] que lleva la corriente de @p cEnt a @p cSal. Con caudales distintos (comparación
/// exacta) lo dice en el registro y da 0.
[[nodiscard]] float dameQSen(const CorrienteAire &cEnt, const CorrienteAire &cSal);
/// Calor latente [W] que lleva la corriente de @p cEnt a @p cSal; lo mismo con caudales distintos.
[[nodiscard]] float dameQLat(const CorrienteAire &cEnt, const CorrienteAire &cSal);

} // namespace tesmo
