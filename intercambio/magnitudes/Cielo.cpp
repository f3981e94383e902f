#include "intercambio/magnitudes/Cielo.h"

#include "core/Unidades.h"
#include "intercambio/comun/Perfilmensual.h"
#include "intercambio/fisica/Emisividadcielo.h"
#include "intercambio/fisica/Soldelanio.h"
#include "intercambio/magnitudes/Humedad.h"

#include <cmath>

namespace tesmo {

namespace {

constexpr double VATIOS_POR_KILOVATIO = 1000.0;
/// Sin sol ni nubes escritas, medio cubierto [décimas].
constexpr double NUBOSIDAD_SUPUESTA = 5.0;

/// Nubosidad [décimas] que pide la radiación de cada día. El día es el de las etiquetas: para esto basta.
SerieDias NubosidadPorClaridad(const AnioCanonico &anio, const AnioCompleto &completo) {
  const SolDelAnio sol = CalcularSolDelAnio(anio.sitio.latitud);
  SerieDias nubosidad(DIAS, NUBOSIDAD_SUPUESTA);
  for (std::size_t d = 0; d < DIAS; ++d) {
    double energia = 0.0;
    for (std::size_t i = d * HORAS_POR_DIA; i < (d + 1) * HORAS_POR_DIA; ++i) {
      energia += completo.directa.valores[i] + completo.difusa.valores[i];
    }
    if (sol.extraterrestre[d] > 0.0 && !std::isnan(energia)) {
      nubosidad[d] = NubosidadDeClaridad(energia / VATIOS_POR_KILOVATIO / sol.extraterrestre[d]);
    }
  }
  return nubosidad;
}

/// La nubosidad escrita o, si no la hay, la que pide la claridad: se calcula la primera vez que hace falta.
class Nubosidad {
public:
  Nubosidad(const AnioCanonico &anio, const AnioCompleto &completo) : anio_(anio), completo_(completo) {}
  [[nodiscard]] double En(std::size_t i) {
    const double opaca = anio_[Campo::NubosidadOpaca].valores[i];
    if (!std::isnan(opaca)) return opaca;
    const double total = anio_[Campo::NubosidadTotal].valores[i];
    if (!std::isnan(total)) return total;
    if (porClaridad_.empty()) porClaridad_ = NubosidadPorClaridad(anio_, completo_);
    return porClaridad_[i / HORAS_POR_DIA];
  }

private:
  const AnioCanonico &anio_;
  const AnioCompleto &completo_;
  SerieDias porClaridad_;
};

double Rocio(const AnioCanonico &anio, const AnioCompleto &completo, std::size_t i, CorrienteAire &aire) {
  const double escrito = anio[Campo::TemperaturaRocio].valores[i];
  if (!std::isnan(escrito)) return escrito;
  return HumedadDeAbsoluta(aire, completo.seca.valores[i], completo.absoluta.valores[i],
                           completo.presion.valores[i], true)
      .rocio;
}

} // namespace

double TemperaturaDeInfrarroja(double infrarroja) {
  return std::sqrt(std::sqrt(infrarroja / STEFAN_BOLTZMANN)) - CERO_CELSIUS;
}

double InfrarrojaDeTemperatura(double temperatura) {
  return STEFAN_BOLTZMANN * std::pow(temperatura + CERO_CELSIUS, 4.0);
}

void CompletarCielo(const AnioCanonico &anio, AnioCompleto &completo) {
  completo.cielo = anio[Campo::TemperaturaCielo];
  Nubosidad nubosidad(anio, completo);
  CorrienteAire aire;
  int inventadas = 0;
  for (std::size_t i = 0; i < HORAS; ++i) {
    if (!std::isnan(completo.cielo.valores[i])) continue;
    const double infrarroja = anio[Campo::InfrarrojaHorizontal].valores[i];
    if (infrarroja > 0.0) {
      completo.cielo.Poner(i, TemperaturaDeInfrarroja(infrarroja), Procedencia::Calculada);
      continue;
    }
    const double emisividad = EmisividadDelCielo(Rocio(anio, completo, i, aire), nubosidad.En(i));
    const double kelvin = std::sqrt(std::sqrt(emisividad)) * (completo.seca.valores[i] + CERO_CELSIUS);
    completo.cielo.Poner(i, kelvin - CERO_CELSIUS, Procedencia::Inventada);
    ++inventadas;
  }
  if (inventadas == 0) return;
  completo.avisos.push_back(
      "La radiación infrarroja falta en " + std::to_string(inventadas) +
      " horas: su temperatura de cielo se estima con el rocío y la nubosidad (Berdahl y "
      "Martin, 1984; Walton, 1983).");
}

} // namespace tesmo
