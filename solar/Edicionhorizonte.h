#pragma once

#include "solar/Puntoshorizonte.h"

#include <vector>

namespace tesmo {

class PosicionSolar;

/// Hasta dónde llega una pulsación alrededor de un punto [° de acimut, ° de altura], lo que mide su marca.
struct AlcanceRaton {
  float acimut;
  float altura;
};

/// Edición con el ratón de un perfil de horizonte dibujado por orden de acimut. No sabe de ventanas: la vista
/// le pasa las posiciones ya convertidas a grados y dibuja lo que diga Serie. Las distancias se comparan con
/// ≤. Cada operación devuelve si cambió algo que haya que volver a dibujar.
///
/// El perfil leído conserva el orden de su fichero hasta la primera edición, que lo deja por acimut.
class EdicionHorizonte {
public:
  static constexpr int NINGUNO = -1;
  static constexpr float ACIMUT_MAXIMO = 180.0F;
  static constexpr float ALTURA_MAXIMA = 100.0F;
  /// Un punto nuevo a esta distancia de acimut [°] o menos de otro, salvo del último, no se añade.
  static constexpr float SEPARACION = 5.0F;
  /// Se borra lo que esté a esta distancia [°] o menos en acimut y en altura.
  static constexpr float ALCANCE_DE_BORRADO = 0.5F;
  /// Pasos que se pueden deshacer.
  static constexpr std::size_t PASOS = 100;

  /// Empieza con un perfil recién leído. Si es otro, deshacer vuelve al anterior.
  void Tomar(const PerfilHorizonte &perfil);
  /// Lo mismo con un perfil que @p sol aún no tiene, como uno importado: queda pendiente de copiar.
  void Proponer(const PerfilHorizonte &perfil);
  /// Copia el perfil en @p sol si cambió desde que se leyó o se copió. Devuelve si hizo falta.
  bool CopiarEn(PosicionSolar &sol);
  [[nodiscard]] bool Pendiente() const { return pendiente_; }

  /// Con Mayúsculas elige el punto más cercano de los que alcanza, o ninguno, y empieza a arrastrarlo.
  bool PulsarIzquierdo(float acimut, float altura, bool mayusculas, AlcanceRaton alcance);
  /// Arrastra en vertical el punto elegido, dentro de 0..ALTURA_MAXIMA, mientras el botón siga pulsado.
  bool Mover(float altura);
  /// Termina el arrastre; si no lo había y Mayúsculas no está pulsada, añade un punto.
  bool SoltarIzquierdo(float acimut, float altura, bool mayusculas);
  /// Borra el punto más cercano de los que están a ALCANCE_DE_BORRADO.
  bool PulsarDerecho(float acimut, float altura);
  bool BorrarElegido();
  bool Deshacer();
  bool Rehacer();
  [[nodiscard]] bool PuedeDeshacer() const { return !anteriores_.empty(); }
  [[nodiscard]] bool PuedeRehacer() const { return !posteriores_.empty(); }

  /// Los puntos por orden de acimut, como se dibujan; los que no tienen acimut van al final.
  [[nodiscard]] const PuntosHorizonte &Serie() const { return serie_; }
  /// El perfil tal como se copiará.
  [[nodiscard]] PerfilHorizonte Perfil() const;
  /// Posición en la serie del punto elegido; NINGUNO si no lo hay.
  [[nodiscard]] int Elegido() const { return elegido_; }
  [[nodiscard]] bool Arrastrando() const { return arrastrando_ && elegido_ != NINGUNO; }

private:
  [[nodiscard]] bool CabeEn(float acimut, float altura) const;
  [[nodiscard]] int MasCercano(float acimut, float altura, AlcanceRaton alcance) const;
  bool Anadir(float acimut, float altura);
  bool Borrar(int indice);
  void Guardar();
  void Cambiar(PuntosHorizonte serie);
  void Poner(PuntosHorizonte puntos);
  bool Volver(std::vector<PuntosHorizonte> &desde, std::vector<PuntosHorizonte> &hacia);

  PuntosHorizonte puntos_; ///< en el orden en que se copiarán
  PuntosHorizonte serie_;
  int elegido_ = NINGUNO;
  bool arrastrando_ = false; ///< hasta que se suelte el botón, aunque el punto ya no esté
  bool movido_ = false;      ///< el arrastre ya cambió algo
  bool pendiente_ = false;
  std::vector<PuntosHorizonte> anteriores_;
  std::vector<PuntosHorizonte> posteriores_;
};

/// Copia @p perfil en @p sol.
void CopiarHorizonte(const PerfilHorizonte &perfil, PosicionSolar &sol);

} // namespace tesmo
