#include "intercambio/formatos/Radiacionnula.h"

#include "intercambio/formatos/Requisitos.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace tesmo {

namespace {

constexpr std::array<Campo, 4> RADIACIONES{Campo::GlobalHorizontal, Campo::DifusaHorizontal,
                                           Campo::DirectaNormal, Campo::DirectaHorizontal};

bool EsPositiva(const AnioCanonico &anio, Campo campo) {
  const std::vector<double> &valores = anio[campo].valores;
  return std::any_of(valores.begin(), valores.end(), [](double v) { return v > 0.0; });
}

std::string Nombres(const std::vector<Campo> &campos) {
  std::string nombres;
  for (const Campo campo : campos) nombres += (nombres.empty() ? "" : ", ") + std::string(NombreCampo(campo));
  return nombres;
}

/// Global, difusa y directa que traen sol: las dos directas dicen lo mismo.
int CuantasPositivas(const AnioCanonico &anio) {
  const bool directa = EsPositiva(anio, Campo::DirectaNormal) || EsPositiva(anio, Campo::DirectaHorizontal);
  return (EsPositiva(anio, Campo::GlobalHorizontal) ? 1 : 0) +
         (EsPositiva(anio, Campo::DifusaHorizontal) ? 1 : 0) + (directa ? 1 : 0);
}

void RechazarSinSol(const std::vector<Campo> &nulas, Cuaderno &cuaderno) {
  cuaderno.Error({.clase = ClaseNota::CampoAusente,
                  .campo = nulas.front(),
                  .veces = HORAS_DEL_ANIO,
                  .texto = Nombres(nulas) +
                           ": 0 en todo el año, que no es una medida; hacen falta dos de las radiaciones "
                           "global, difusa y directa"});
}

} // namespace

void QuitarRadiacionNula(AnioCanonico &anio, Cuaderno &cuaderno) {
  constexpr int PRECISAS = 2;
  std::vector<Campo> nulas;
  for (const Campo campo : RADIACIONES) {
    if (HayAlguno(anio, campo) && !EsPositiva(anio, campo)) nulas.push_back(campo);
  }
  if (nulas.empty()) return;
  if (CuantasPositivas(anio) < PRECISAS) return RechazarSinSol(nulas, cuaderno);
  for (const Campo campo : nulas) {
    anio[campo] = SerieCanonica();
    cuaderno.Aviso(
        {.clase = ClaseNota::ValorImposible,
         .campo = campo,
         .veces = HORAS_DEL_ANIO,
         .texto = std::string(NombreCampo(campo)) +
                  ": 0 en todo el año, y las otras no; se toma como sin dato y se calcula de ellas"});
  }
}

} // namespace tesmo
