#include "solar/Perfilhorizonte.h"

#include "core/Formato.h"
#include "core/Lectornumeros.h"

#include <algorithm>
#include <cmath>

namespace tesmo {

void PerfilHorizonte::PonTamano(float n) {
  const float acotado = std::isnan(n) ? 0.0F : std::clamp(n, 0.0F, static_cast<float>(PUNTOS_MAXIMOS));
  const auto puntos = static_cast<std::size_t>(acotado);
  x_.assign(puntos, 0.0F);
  y_.assign(puntos, 0.0F);
}

void PerfilHorizonte::PonPunto(int i, float x, float y) {
  if (i < 0 || i >= Tamano()) return;
  x_[static_cast<std::size_t>(i)] = x;
  y_[static_cast<std::size_t>(i)] = y;
}

bool LeerPerfil(std::string_view contenido, PerfilHorizonte &perfil) {
  LectorNumeros lector(contenido);
  const std::optional<int> puntos = lector.Entero();
  if (!puntos || *puntos < 0 || *puntos > PerfilHorizonte::PUNTOS_MAXIMOS) return false;
  PerfilHorizonte nuevo;
  nuevo.PonTamano(static_cast<float>(*puntos));
  lector.SaltarBlancos();
  for (int i = 0; i < *puntos && !lector.Final(); ++i) {
    const std::optional<float> x = lector.Real();
    if (!x) continue;
    nuevo.PonPunto(i, *x, 0.0F);
    if (!lector.Literal(',')) continue;
    const std::optional<float> y = lector.Real();
    if (!y) continue;
    nuevo.PonPunto(i, *x, *y);
    lector.SaltarBlancos();
  }
  perfil = std::move(nuevo);
  return true;
}

std::string TextoDePerfil(const PerfilHorizonte &perfil) {
  std::string texto = std::to_string(perfil.Tamano()) + "\n";
  for (std::size_t i = 0; i < perfil.X().size(); i += 2) {
    texto += FormatoF(perfil.X()[i]) + ", " + FormatoF(perfil.Y()[i]) + "\n";
  }
  return texto;
}

} // namespace tesmo
