#pragma once

#include "core/Objetobase.h"
#include "psicro/Lienzo.h"

#include <array>
#include <cstdint>

namespace tesmo {

/// Familias de líneas de la carta psicrométrica.
enum class Familia : std::uint8_t {
  T,  ///< temperatura seca constante [°C]
  W,  ///< humedad absoluta constante [kg/kg]
  H,  ///< entalpía constante [J/kg]
  HR, ///< humedad relativa constante [%]
  VE, ///< volumen específico constante [m³/kg]
};
inline constexpr std::size_t NUMERO_FAMILIAS = 5;

/// Extremos y separación de las líneas de una familia, en la unidad de la familia.
struct Rango {
  float minimo = 0.0F;
  float maximo = 0.0F;
  float paso = 0.0F;
};

/// Todo lo que se puede cambiar de una familia de líneas.
struct AspectoFamilia {
  Rango rango;
  ColorBgr color = 0;
  bool visible = true;
};

/// Cómo se mira la carta.
struct VistaCarta {
  std::int32_t desplazamientoX = 0; ///< [píxeles]
  std::int32_t desplazamientoY = 0; ///< [píxeles]
  std::int32_t vista3 = 0;          ///< sólo interviene en el primer punto de las curvas de humedad relativa
  std::int32_t vista4 = 0;          ///< se guarda sin más
  std::int8_t zoom = 0;             ///< aumento entero
};

class Pluma;

/// Modelo de la carta psicrométrica de tipo Carrier: temperatura seca hacia la derecha con 0 °C en el borde
/// izquierdo, humedad absoluta hacia arriba con 0 en el borde inferior. El máximo de Familia::T es el borde
/// derecho y el de Familia::W el superior.
class Psicro : public ObjetoBase {
public:
  /// Carta de 0 a 50 °C y 0 a 0.03 kg/kg a 101325 Pa, las cinco familias a la vista y aumento 0: hay que
  /// llamar a ponVista antes de dibujar.
  Psicro();
  ~Psicro() override;
  Psicro(const Psicro &) = default;
  Psicro &operator=(const Psicro &) = default;

  /// Desplazamiento de la vista [píxeles], dos enteros auxiliares y aumento entero. El tercero sólo
  /// interviene en el primer punto de las curvas de humedad relativa; el cuarto se guarda sin más.
  void ponVista(std::int32_t desplazamientoX, std::int32_t desplazamientoY, std::int32_t vista3,
                std::int32_t vista4, std::int8_t zoom);
  [[nodiscard]] const VistaCarta &dameVista() const { return vista_; }
  /// Presión de la carta a @p z metros de altitud, p = 101325·(1 − 2.25577e-5·z)^5.2559 (atmósfera normal,
  /// ASHRAE Handbook of Fundamentals). Por encima de 44331 m la base es negativa y la presión no es un
  /// número.
  void ponAltitud(float z);
  /// Presión de la carta [Pa]; no se comprueba.
  void ponPresion(float presion);
  [[nodiscard]] float damePresion() const { return presion_; }
  /// Parámetro de índice @p i: 0 a 2 máximo, mínimo y paso de la entalpía; 3 a 5 los de la humedad relativa;
  /// 6 a 8 los de la temperatura; 9 a 11 los de la humedad absoluta; 12 a 14 los del volumen específico;
  /// 15 la presión. Otro índice da −1.
  [[nodiscard]] float dameParametro(int i) const;

  [[nodiscard]] const Rango &dameRango(Familia familia) const { return Aspecto(familia).rango; }
  void ponRango(Familia familia, const Rango &rango) { Aspecto(familia).rango = rango; }
  [[nodiscard]] ColorBgr dameColor(Familia familia) const { return Aspecto(familia).color; }
  void ponColor(Familia familia, ColorBgr color) { Aspecto(familia).color = color; }
  [[nodiscard]] bool esVisible(Familia familia) const { return Aspecto(familia).visible; }
  void ponVisible(Familia familia, bool visible) { Aspecto(familia).visible = visible; }

  /// Tamaño de la superficie [píxeles]; también lo pone cada dibujo. Es 0 hasta entonces.
  void ponTamano(float ancho, float alto);
  [[nodiscard]] float dameAncho() const { return ancho_; }
  [[nodiscard]] float dameAlto() const { return alto_; }

  /// Abscisa [píxeles, sin desplazamiento ni aumento] de la temperatura @p t [°C]. El redondeo a float hace
  /// que x(tMax) sea exactamente el ancho.
  [[nodiscard]] float x(double t) const;
  /// Ordenada [píxeles, hacia abajo] de la humedad absoluta @p w [kg/kg], redondeada a float: y(wMax) es 0.
  [[nodiscard]] float y(double w) const;
  /// Temperatura [°C] de la abscisa @p x [píxeles].
  [[nodiscard]] float t(std::int32_t x) const;
  /// Humedad absoluta [kg/kg] de la ordenada @p y [píxeles].
  [[nodiscard]] float w(std::int32_t y) const;

  /// Lleva la pluma al punto de la carta @p t [°C], @p w [kg/kg] con el desplazamiento y el aumento de la
  /// vista.
  void moverA(Pluma &pluma, double t, double w) const;
  /// Traza hasta el punto de la carta @p t [°C], @p w [kg/kg].
  void lineaA(Pluma &pluma, double t, double w) const;
  /// Toma el tamaño @p ancho × @p alto [píxeles] y dibuja en @p lienzo las familias a la vista: humedad
  /// absoluta, humedad relativa, temperatura, entalpía y volumen específico, cada una tras poner su color. No
  /// recorta. Con cualquier parámetro termina, y lo que no es un número no llega al lienzo.
  void dibujar(Lienzo &lienzo, std::int32_t ancho, std::int32_t alto);

private:
  [[nodiscard]] double pixelX(double t) const {
    return (static_cast<double>(x(t)) - vista_.desplazamientoX) * vista_.zoom;
  }
  [[nodiscard]] double pixelY(double w) const {
    return (static_cast<double>(y(w)) - vista_.desplazamientoY) * vista_.zoom;
  }
  [[nodiscard]] const AspectoFamilia &Aspecto(Familia familia) const {
    return familias_[static_cast<std::size_t>(familia)];
  }
  [[nodiscard]] AspectoFamilia &Aspecto(Familia familia) {
    return familias_[static_cast<std::size_t>(familia)];
  }

  VistaCarta vista_;
  float ancho_ = 0.0F;
  float alto_ = 0.0F;
  float presion_;
  std::array<AspectoFamilia, NUMERO_FAMILIAS> familias_;
};

} // namespace tesmo
