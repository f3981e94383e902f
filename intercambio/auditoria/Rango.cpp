#include "intercambio/auditoria/Comprobaciones.h"
#include "intercambio/auditoria/Hallazgos.h"

#include <array>

namespace tesmo {

namespace {

/// Lo menos y lo más que se ha medido de una magnitud, o que puede tomar.
struct LimiteDeCampo {
  Campo campo;
  double minimo;
  double maximo;
  const char *patron; ///< con cuántas cifras se enseña un valor
};

/// Temperaturas: de −89,2 °C (Vostok, 1983) a 56,7 °C (Death Valley, 1913); presión, hasta 108,5 kPa al nivel
/// del mar (Tosontsengel, 2001) y desde 33 kPa (la cumbre más alta); viento, 113,2 m/s de racha (isla Barrow,
/// 1996): Organización Meteorológica Mundial, World Weather and Climate Extremes Archive. Radiación: como
/// mínimo −4 W/m², y onda larga de 40 a 700 W/m² (Long y Shi, 2008). La humedad absoluta, hasta la del aire
/// saturado a 36 °C, el rocío más alto medido (35 °C en Dhahran, 2003: misma fuente) con un grado de holgura.
/// Cielo: temperatura de cuerpo negro de los 40 y 700 W/m².
constexpr std::array<LimiteDeCampo, 17> LIMITES{{
    {Campo::TemperaturaSeca, -89.2, 56.7, "0.0"},
    {Campo::TemperaturaRocio, -100.0, 36.0, "0.0"},
    {Campo::TemperaturaCielo, -110.0, 60.2, "0.0"},
    {Campo::HumedadRelativa, 0.0, 110.0, "0.0"},
    {Campo::HumedadAbsoluta, 0.0, 0.039, "0.00000"},
    {Campo::Presion, 33000.0, 108500.0, "0"},
    {Campo::GlobalHorizontal, -4.0, 2000.0, "0.0"},
    {Campo::DirectaNormal, -4.0, 1500.0, "0.0"},
    {Campo::DirectaHorizontal, -4.0, 1500.0, "0.0"},
    {Campo::DifusaHorizontal, -4.0, 1500.0, "0.0"},
    {Campo::InfrarrojaHorizontal, 40.0, 700.0, "0.0"},
    {Campo::NubosidadTotal, 0.0, 10.0, "0.0"},
    {Campo::NubosidadOpaca, 0.0, 10.0, "0.0"},
    {Campo::VelocidadViento, 0.0, 113.2, "0.0"},
    {Campo::DireccionViento, 0.0, 360.0, "0.0"},
    {Campo::AcimutSolar, -360.0, 360.0, "0.0"},
    {Campo::CenitSolar, 0.0, 180.0, "0.0"},
}};
static_assert(LIMITES.size() == NUMERO_CAMPOS);

/// Lo que un instrumento descentrado se sale de los límites, en tanto por uno de lo que va de uno a otro; con
/// más, una sola hora basta para no fiarse del fichero.
constexpr double HOLGURA = 0.05;

/// Horas cuyo valor se sale de los límites, y el que más se sale.
struct Fuera {
  HorasMalas horas;
  double peor = 0.0;
  double exceso = 0.0; ///< lo que el peor se sale
};
Fuera FueraDe(const std::vector<double> &valores, const LimiteDeCampo &limite) {
  Fuera fuera;
  for (std::size_t i = 0; i < valores.size(); ++i) {
    const double sale = std::max(limite.minimo - valores[i], valores[i] - limite.maximo);
    if (!(sale > 0.0)) continue; // lo ausente no se sale
    fuera.horas.push_back(i);
    if (sale <= fuera.exceso) continue;
    fuera.exceso = sale;
    fuera.peor = valores[i];
  }
  return fuera;
}

/// Lo imposible que el lector ya tomó por dato ausente: el hueco se suple y el año puede valer.
Hallazgo ImposiblesDeLaLectura(const MateriaAuditoria &materia) {
  return DeNotas(materia, {ClaseNota::ValorImposible}, "todos lo son");
}

} // namespace

Hallazgo MirarRango(const MateriaAuditoria &materia) {
  constexpr std::size_t HORAS_GRAVES = 24;
  HorasMalas malas;
  bool disparate = false;
  std::string texto;
  for (const LimiteDeCampo &limite : LIMITES) {
    const Fuera fuera = FueraDe(Valores(materia, limite.campo), limite);
    if (fuera.horas.empty()) continue;
    malas.insert(malas.end(), fuera.horas.begin(), fuera.horas.end());
    disparate = disparate || fuera.exceso > HOLGURA * (limite.maximo - limite.minimo);
    texto += (texto.empty() ? "" : "; ") + std::string(NombreCampo(limite.campo)) + ": " +
             Cuantas(fuera.horas.size()) + " fuera de " + Cifra(limite.minimo, limite.patron) + " a " +
             Cifra(limite.maximo, limite.patron) + ", hasta " + Cifra(fuera.peor, limite.patron);
  }
  Hallazgo hallazgo = ImposiblesDeLaLectura(materia);
  if (malas.empty()) return hallazgo;
  if (hallazgo.gravedad == Gravedad::Aviso) texto += "; " + hallazgo.texto;
  const Gravedad gravedad = disparate ? Gravedad::Grave : SegunCuantas(malas.size(), HORAS_GRAVES);
  return ConLineas(gravedad, texto, materia, malas);
}

} // namespace tesmo
