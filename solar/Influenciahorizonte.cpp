#include "solar/Influenciahorizonte.h"

#include "core/Calendario.h"
#include "solar/Alturashorizonte.h"
#include "solar/Soldeldia.h"

#include <algorithm>
#include <cmath>

namespace tesmo {

namespace {

constexpr float MEDIA_HORA = 0.5F;
constexpr float ALTURA_DEL_CENIT = 90.0F;
constexpr double GRADOS_DE_LA_VUELTA = 360.0;

double CieloSobre(float altura) {
  const float acotada = std::clamp(altura, 0.0F, ALTURA_DEL_CENIT);
  return static_cast<double>(1.0L - std::sin(acotada * GRADO_EN_RADIANES));
}

/// Suma al recuento las horas de un día.
void ContarDia(const SolDelDia &sol, const AlturasDeHorizonte &horizonte, HorasDeSolDelAnio &horas) {
  for (int h = 1; h <= HORAS_DEL_DIA; ++h) {
    const PosicionDeVector posicion = sol.En(static_cast<float>(h) - MEDIA_HORA);
    if (!posicion.esDeDia) continue;
    ++horas.deSol;
    if (horizonte.Tapa(posicion.angulos.acimut, posicion.angulos.altura)) ++horas.perdidas;
  }
}

} // namespace

double ParteDeCielo(const PerfilHorizonte &perfil) {
  constexpr int EXTREMO = AlturasDeHorizonte::ACIMUT_MAXIMO;
  const AlturasDeHorizonte alturas(perfil.X(), perfil.Y());
  // −180 y 180 son la misma dirección: cada una cuenta la mitad.
  double suma = (CieloSobre(alturas.EnGrado(-EXTREMO)) + CieloSobre(alturas.EnGrado(EXTREMO))) / 2.0;
  for (int a = 1 - EXTREMO; a < EXTREMO; ++a) suma += CieloSobre(alturas.EnGrado(a));
  return suma / GRADOS_DE_LA_VUELTA;
}

HorasDeSolDelAnio HorasDeSolPerdidas(const PerfilHorizonte &perfil, float latitud) {
  const AlturasDeHorizonte horizonte(perfil.X(), perfil.Y());
  HorasDeSolDelAnio horas{0, 0};
  for (int mes = 1; mes <= static_cast<int>(DIAS_DEL_MES.size()); ++mes) {
    for (int dia = 1; dia <= DiasDelMes(mes); ++dia) {
      ContarDia(SolDelDia(latitud, mes, dia), horizonte, horas);
    }
  }
  return horas;
}

} // namespace tesmo
