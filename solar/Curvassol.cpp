#include "solar/Curvassol.h"

#include "solar/Soldeldia.h"

#include <charconv>

namespace tesmo {

namespace {

constexpr float PASO = 0.01F; ///< [h]
constexpr int MESES = static_cast<int>(MESES_DEL_ANIO);
/// Puntos de un día sin noche, de −1 a 25 h.
constexpr std::size_t PUNTOS_DE_UN_DIA = 2601;

PuntoSolar PuntoEn(const SolDelDia &sol, float t) {
  const AngulosSolares angulos = sol.En(t).angulos;
  return {t, angulos.acimut, angulos.altura};
}

CurvaSolar Recorrer(const SolDelDia &sol) {
  CurvaSolar curva;
  curva.reserve(PUNTOS_DE_UN_DIA);
  float t = sol.Horas().salida;
  for (;;) {
    t += PASO;
    if (!(t <= sol.Horas().puesta)) return curva;
    curva.push_back(PuntoEn(sol, t));
  }
}

bool LuceALas(const SolDelDia &sol, int hora) {
  const auto h = static_cast<float>(hora);
  return sol.Horas().salida < h && h < sol.Horas().puesta;
}

/// Lo que printf escribe con "%6.2f".
std::string Latitud(float latitud) {
  constexpr std::size_t ANCHO = 6;
  std::array<char, 64> bufer{}; // un real de 32 bits tiene 39 cifras enteras como mucho
  const auto fin = std::to_chars(bufer.data(), bufer.data() + bufer.size(), static_cast<double>(latitud),
                                 std::chars_format::fixed, 2);
  std::string texto(bufer.data(), fin.ptr);
  if (texto.size() < ANCHO) texto.insert(0, ANCHO - texto.size(), ' ');
  return texto;
}

/// Lo que printf escribe con "%02d" de un mes.
std::string DosCifras(int n) { return (n >= 0 && n < 10 ? "0" : "") + std::to_string(n); }

} // namespace

CurvasDelDia CurvasDeDia(float latitud, int mes, int dia) {
  const SolDelDia sol(latitud, mes, dia);
  CurvasDelDia curvas;
  curvas.titulo =
      "Latitud =" + Latitud(latitud) + ", Mes = " + DosCifras(mes) + ", Día = " + std::to_string(dia);
  curvas.curva = Recorrer(sol);
  for (int h = 0; h < HORAS_DEL_DIA; ++h) {
    if (!LuceALas(sol, h)) continue;
    curvas.horas[static_cast<std::size_t>(h)].push_back(PuntoEn(sol, static_cast<float>(h)));
  }
  return curvas;
}

CurvasDeLosMeses CurvasDeMeses(float latitud, int dia) {
  CurvasDeLosMeses curvas;
  curvas.titulo = "Latitud =" + Latitud(latitud) + ", día " + std::to_string(dia) + " de todos los meses";
  curvas.orden = OrdenDeMeses(latitud);
  for (int mes = 1; mes <= MESES; ++mes) {
    const SolDelDia sol(latitud, mes, dia);
    curvas.meses[static_cast<std::size_t>(mes - 1)] = Recorrer(sol);
    for (int h = 0; h < HORAS_DEL_DIA; ++h) {
      if (!LuceALas(sol, h)) continue;
      const PuntoSolar punto = PuntoEn(sol, static_cast<float>(h));
      if (!EsDeNoche(punto)) curvas.horas[static_cast<std::size_t>(h)].push_back({mes, punto});
    }
  }
  return curvas;
}

std::string_view OrdenDeMeses(float latitud) {
  constexpr std::string_view NORTE = "Jun Jul May Ago Abr Sep Mar Oct Feb Nov Ene Dic";
  constexpr std::string_view SUR = "Dic Ene Nov Feb Oct Mar Sep Abr Ago May Jul Jun";
  return latitud > 0.0F ? NORTE : SUR;
}

} // namespace tesmo
