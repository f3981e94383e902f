#include "core/Configuracionregional.h"

#include <cstdlib>
#include <string_view>

namespace tesmo {

namespace {

char &Separador() {
  static char separador = '.';
  return separador;
}

} // namespace

char Configuracionregional::SeparadorDecimal() { return Separador(); }

void Configuracionregional::PonSeparadorDecimal(char separador) {
  Separador() = separador == '.' ? '.' : ',';
}

void Configuracionregional::IniciarDesdeEntorno(char separadorDelSistema) {
  const char *forzado = std::getenv("TESMO_DECIMAL");
  const std::string_view eleccion = forzado == nullptr ? "" : forzado;
  if (eleccion == "punto") {
    PonSeparadorDecimal('.');
  } else if (eleccion == "coma") {
    PonSeparadorDecimal(',');
  } else {
    PonSeparadorDecimal(separadorDelSistema);
  }
}

} // namespace tesmo
