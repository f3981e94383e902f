#pragma once

namespace tesmo {

/// Separador decimal en vigor ('.' o ','). Es un ajuste propio: no se mira la región del proceso, que las
/// bibliotecas de ventanas cambian por su cuenta. Al empezar es '.'.
class Configuracionregional {
public:
  [[nodiscard]] static char SeparadorDecimal();
  /// Todo lo que no sea un punto cuenta como coma.
  static void PonSeparadorDecimal(char separador);
  /// Toma TESMO_DECIMAL=punto|coma si está puesta y, si no, el separador de la región del sistema.
  static void IniciarDesdeEntorno(char separadorDelSistema);
};

} // namespace tesmo
