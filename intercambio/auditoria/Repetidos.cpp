#include "core/Calendario.h"
#include "intercambio/auditoria/Comprobaciones.h"
#include "intercambio/auditoria/Hallazgos.h"
#include "intercambio/comun/Perfilmensual.h"

#include <algorithm>
#include <cmath>

namespace tesmo {

namespace {

/// Temperatura y humedad relativa (o absoluta) de una hora: lo que nunca se repite por casualidad.
class Huella {
public:
  explicit Huella(const MateriaAuditoria &materia)
      : temperatura_(Valores(materia, Campo::TemperaturaSeca)),
        humedad_(Valores(materia, Trae(materia, Campo::HumedadRelativa) ? Campo::HumedadRelativa
                                                                        : Campo::HumedadAbsoluta)) {}
  [[nodiscard]] bool Iguales(std::size_t a, std::size_t b) const {
    return temperatura_[a] == temperatura_[b] && humedad_[a] == humedad_[b];
  }
  /// ¿Cambia la temperatura entre @p desde y @p hasta? Un sensor parado no es un tramo repetido.
  [[nodiscard]] bool Cambia(std::size_t desde, std::size_t hasta) const {
    for (std::size_t i = desde + 1; i < hasta; ++i) {
      if (temperatura_[i] != temperatura_[desde]) return true;
    }
    return false;
  }

private:
  const std::vector<double> &temperatura_;
  const std::vector<double> &humedad_;
};

/// Horas de @p mes iguales a las de @p otro, a la misma altura del mes.
HorasMalas HorasRepetidas(const Huella &huella, std::size_t mes, std::size_t otro) {
  const std::size_t horas = std::min(DiasDe(mes), DiasDe(otro)) * HORAS_POR_DIA;
  HorasMalas repetidas;
  for (std::size_t i = 0; i < horas; ++i) {
    const std::size_t hora = PrimerDiaDe(mes) * HORAS_POR_DIA + i;
    if (huella.Iguales(hora, PrimerDiaDe(otro) * HORAS_POR_DIA + i)) repetidas.push_back(hora);
  }
  return repetidas;
}

std::string Nombre(std::size_t mes) { return std::string(NombreMes(static_cast<int>(mes) + 1)); }

} // namespace

Hallazgo MirarMesesRepetidos(const MateriaAuditoria &materia) {
  constexpr double PARTE = 0.5; // medio mes copiado ya no es casualidad
  if (!Trae(materia, Campo::TemperaturaSeca)) return NoComprobada("no hay temperaturas");
  const Huella huella(materia);
  HorasMalas malas;
  std::string texto;
  for (std::size_t mes = 1; mes < MESES; ++mes) {
    const std::size_t inicio = PrimerDiaDe(mes) * HORAS_POR_DIA;
    if (!huella.Cambia(inicio, inicio + DiasDe(mes) * HORAS_POR_DIA)) continue;
    for (std::size_t otro = 0; otro < mes; ++otro) {
      const HorasMalas horas = HorasRepetidas(huella, mes, otro);
      const auto todas = static_cast<double>(DiasDe(mes) * HORAS_POR_DIA);
      if (static_cast<double>(horas.size()) < PARTE * todas) continue;
      malas.insert(malas.end(), horas.begin(), horas.end());
      texto += (texto.empty() ? "" : "; ") + Nombre(mes) + " repite " + Nombre(otro);
      break;
    }
  }
  if (malas.empty()) return Conforme("ninguno");
  return ConLineas(Gravedad::Grave, texto, materia, malas);
}

Hallazgo MirarDiasRepetidos(const MateriaAuditoria &materia) {
  if (!Trae(materia, Campo::TemperaturaSeca)) return NoComprobada("no hay temperaturas");
  const Huella huella(materia);
  HorasMalas malas;
  std::size_t dias = 0;
  for (std::size_t dia = 1; dia < DIAS; ++dia) {
    const std::size_t inicio = dia * HORAS_POR_DIA;
    std::size_t iguales = 0;
    while (iguales < HORAS_POR_DIA && huella.Iguales(inicio + iguales, inicio + iguales - HORAS_POR_DIA))
      ++iguales;
    if (iguales < HORAS_POR_DIA || !huella.Cambia(inicio, inicio + HORAS_POR_DIA)) continue;
    ++dias;
    for (std::size_t i = 0; i < HORAS_POR_DIA; ++i) malas.push_back(inicio + i);
  }
  if (malas.empty()) return Conforme("ninguno");
  return ConLineas(Gravedad::Aviso, Cuantas(dias, "día igual", "días iguales") + " al anterior hora por hora",
                   materia, malas);
}

} // namespace tesmo
