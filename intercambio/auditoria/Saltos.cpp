#include "intercambio/auditoria/Comprobaciones.h"
#include "intercambio/auditoria/Hallazgos.h"
#include "intercambio/comun/Perfilmensual.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tesmo {

namespace {

/// Lo que una magnitud puede cambiar de una hora a la siguiente. La idea es la de la prueba de escalón de
/// I. Zahumenský (2004); las cifras, para medias o instantes de hora en hora, son de este programa: 12 K y
/// 1 kPa no los dan ni el paso de un frente ni la salida del sol, y 20 m/s sólo una racha suelta.
struct Escalon {
  Campo campo;
  double maximo;
  const char *patron;
};
constexpr std::array<Escalon, 4> ESCALONES{{{Campo::TemperaturaSeca, 12.0, "0.0"},
                                            {Campo::TemperaturaRocio, 15.0, "0.0"},
                                            {Campo::Presion, 1000.0, "0"},
                                            {Campo::VelocidadViento, 20.0, "0.0"}}};

/// En un año típico cada mes viene de un año distinto: en la costura un salto es de esperar.
bool EsCostura(std::size_t hora) {
  return std::any_of(DIAS_ANTES_DEL_MES.begin(), DIAS_ANTES_DEL_MES.end(),
                     [hora](int dias) { return hora == static_cast<std::size_t>(dias) * HORAS_POR_DIA; });
}

} // namespace

Hallazgo MirarSaltos(const MateriaAuditoria &materia) {
  constexpr std::size_t SALTOS_GRAVES = 100;
  HorasMalas malas;
  std::string texto;
  for (const Escalon &escalon : ESCALONES) {
    const std::vector<double> &serie = Valores(materia, escalon.campo);
    const std::size_t antes = malas.size();
    double mayor = 0.0;
    for (std::size_t i = 1; i < serie.size(); ++i) {
      const double salto = std::abs(serie[i] - serie[i - 1]);
      if (!(salto > escalon.maximo) || EsCostura(i)) continue;
      malas.push_back(i);
      mayor = std::max(mayor, salto);
    }
    if (malas.size() == antes) continue;
    texto += (texto.empty() ? "" : "; ") + std::string(NombreCampo(escalon.campo)) + ": " +
             Cuantas(malas.size() - antes, "salto", "saltos") + " de más de " + Cifra(escalon.maximo, "0") +
             ", hasta " + Cifra(mayor, escalon.patron);
  }
  if (malas.empty()) return Conforme("ninguno fuera de las costuras entre meses");
  return ConLineas(SegunCuantas(malas.size(), SALTOS_GRAVES), texto, materia, malas);
}

} // namespace tesmo
