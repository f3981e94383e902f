#include "intercambio/auditoria/Comprobaciones.h"
#include "intercambio/auditoria/Hallazgos.h"

#include <array>

namespace tesmo {

namespace {

/// Horas seguidas en que una magnitud puede dar el mismo número sin que el sensor esté parado. La idea es la
/// de la prueba de persistencia de I. Zahumenský (2004), «Guidelines on quality control procedures for data
/// from automatic weather stations» (OMM); los plazos, más largos que los suyos de una hora, son de este
/// programa: admiten temperaturas redondeadas al grado en un clima de mar y noches enteras de aire saturado o
/// en calma.
struct Plazo {
  Campo campo;
  std::size_t horas;
  double exento;       ///< valor que puede durar lo que quiera: la noche, el aire saturado
  std::size_t exentas; ///< horas que puede durar el exento
  bool imprescindible; ///< sin él no hay año: parado casi siempre es grave
};
constexpr auto SIN_LIMITE = static_cast<std::size_t>(HORAS_DEL_ANIO);
constexpr std::array<Plazo, 13> PLAZOS{{
    {Campo::TemperaturaSeca, 36, AUSENTE, 36, true},
    {Campo::TemperaturaRocio, 36, AUSENTE, 36, false},
    {Campo::HumedadRelativa, 36, 100.0, 120, true},
    {Campo::HumedadAbsoluta, 48, AUSENTE, 48, true},
    {Campo::TemperaturaCielo, 48, AUSENTE, 48, true},
    {Campo::InfrarrojaHorizontal, 48, AUSENTE, 48, false},
    {Campo::Presion, 48, AUSENTE, 48, false},
    {Campo::GlobalHorizontal, 6, 0.0, SIN_LIMITE, true},
    {Campo::DirectaNormal, 6, 0.0, SIN_LIMITE, false},
    {Campo::DirectaHorizontal, 6, 0.0, SIN_LIMITE, true},
    {Campo::DifusaHorizontal, 6, 0.0, SIN_LIMITE, true},
    {Campo::VelocidadViento, 24, 0.0, 96, false},
    {Campo::DireccionViento, 72, 0.0, SIN_LIMITE, false},
}};

/// Las horas de los tramos de @p serie que no cambian en más de su plazo; lo ausente corta un tramo.
HorasMalas HorasParadas(const std::vector<double> &serie, const Plazo &plazo) {
  HorasMalas horas;
  for (std::size_t inicio = 0, fin = 0; inicio < serie.size(); inicio = fin) {
    fin = inicio + 1;
    while (fin < serie.size() && serie[fin] == serie[inicio]) ++fin;
    const std::size_t maximo = serie[inicio] == plazo.exento ? plazo.exentas : plazo.horas;
    if (fin - inicio <= maximo) continue;
    for (std::size_t i = inicio; i < fin; ++i) horas.push_back(i);
  }
  return horas;
}

} // namespace

Hallazgo MirarSensoresParados(const MateriaAuditoria &materia) {
  Hallazgo hallazgo = Conforme("ninguno");
  HorasMalas malas;
  std::string texto;
  Gravedad gravedad = Gravedad::Aviso;
  for (const Plazo &plazo : PLAZOS) {
    const HorasMalas horas = HorasParadas(Valores(materia, plazo.campo), plazo);
    if (horas.empty()) continue;
    const bool siempre = horas.size() == static_cast<std::size_t>(HORAS_DEL_ANIO);
    if (plazo.imprescindible && 2 * horas.size() > SIN_LIMITE) gravedad = Gravedad::Grave;
    texto += (texto.empty() ? "" : "; ") + std::string(NombreCampo(plazo.campo)) +
             (siempre ? ": no cambia en todo el año"
                      : ": " + Cuantas(horas.size()) + " en tramos de más de " + std::to_string(plazo.horas) +
                            " iguales, el primero el " + TextoHora(static_cast<int>(horas.front())));
    malas.insert(malas.end(), horas.begin(), horas.end());
  }
  if (malas.empty()) return hallazgo;
  return ConLineas(gravedad, texto, materia, malas);
}

} // namespace tesmo
