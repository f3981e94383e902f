#include "intercambio/formatos/Requisitos.h"

#include <algorithm>

namespace tesmo {

const std::vector<Requisito> &Requisitos() {
  static const std::vector<Requisito> TABLA{
      {"la temperatura seca", 1, {Campo::TemperaturaSeca}},
      {"la humedad (relativa, absoluta o rocío)",
       1,
       {Campo::HumedadRelativa, Campo::TemperaturaRocio, Campo::HumedadAbsoluta}},
      {"dos de las radiaciones global, difusa y directa",
       2,
       {Campo::GlobalHorizontal, Campo::DifusaHorizontal, Campo::DirectaNormal, Campo::DirectaHorizontal}},
      {"la velocidad del viento", 1, {Campo::VelocidadViento}},
      {"la dirección del viento", 1, {Campo::DireccionViento}},
  };
  return TABLA;
}

const Requisito *RequisitoDe(Campo campo) {
  const auto loTiene = [campo](const Requisito &r) {
    return std::find(r.campos.begin(), r.campos.end(), campo) != r.campos.end();
  };
  const auto hallado = std::find_if(Requisitos().begin(), Requisitos().end(), loTiene);
  return hallado == Requisitos().end() ? nullptr : &*hallado;
}

bool SeCumple(const Requisito &requisito, const AnioCanonico &anio, std::size_t hora) {
  const auto tiene = [&](Campo campo) { return !std::isnan(anio[campo].valores[hora]); };
  // En calma el viento no viene de ningún sitio.
  const bool calma = requisito.campos.front() == Campo::DireccionViento && tiene(Campo::VelocidadViento) &&
                     anio[Campo::VelocidadViento].valores[hora] == 0.0;
  if (calma) return true;
  auto cuantos = std::count_if(requisito.campos.begin(), requisito.campos.end(), tiene);
  // Las dos directas dicen lo mismo: juntas cuentan una vez.
  const bool lasDosDirectas =
      requisito.minimo > 1 && tiene(Campo::DirectaNormal) && tiene(Campo::DirectaHorizontal);
  if (lasDosDirectas) --cuantos;
  return cuantos >= requisito.minimo;
}

bool HayAlguno(const AnioCanonico &anio, Campo campo) {
  const std::vector<double> &valores = anio[campo].valores;
  return std::any_of(valores.begin(), valores.end(), [](double v) { return !std::isnan(v); });
}

bool EsRadiacionSolar(Campo campo) {
  return campo == Campo::GlobalHorizontal || campo == Campo::DirectaNormal ||
         campo == Campo::DirectaHorizontal || campo == Campo::DifusaHorizontal;
}

} // namespace tesmo
