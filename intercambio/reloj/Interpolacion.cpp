#include "intercambio/reloj/Interpolacion.h"

#include "core/Unidades.h"

#include <cmath>

namespace tesmo {

namespace {

constexpr double VUELTA = 360.0;
constexpr double MITAD = 0.5;
/// Por debajo, el viento medio no tiene dirección [m/s].
constexpr double VIENTO_NULO = 1e-9;

double DireccionMedia(const std::vector<double> &direccion, const std::vector<double> &velocidad,
                      const Entre &sitio) {
  const double a = direccion[sitio.izquierdo] * GRADO;
  const double b = direccion[sitio.derecho] * GRADO;
  const double pesoA = (1.0 - sitio.parte) * velocidad[sitio.izquierdo];
  const double pesoB = sitio.parte * velocidad[sitio.derecho];
  const double norte = pesoA * std::cos(a) + pesoB * std::cos(b);
  const double este = pesoA * std::sin(a) + pesoB * std::sin(b);
  if (std::hypot(norte, este) < VIENTO_NULO) {
    return direccion[sitio.parte < MITAD ? sitio.izquierdo : sitio.derecho];
  }
  const double grados = std::atan2(este, norte) / GRADO;
  return grados < 0.0 ? grados + VUELTA : grados;
}

} // namespace

Procedencia ProcedenciaEntre(const SerieCanonica &serie, const Entre &sitio) {
  const Procedencia izquierda = serie.procedencias[sitio.izquierdo];
  if (sitio.parte == 0.0) return izquierda;
  const bool inventada =
      izquierda == Procedencia::Inventada || serie.procedencias[sitio.derecho] == Procedencia::Inventada;
  return inventada ? Procedencia::Inventada : Procedencia::Calculada;
}

SerieCanonica Interpolar(const SerieCanonica &serie, const std::vector<Entre> &sitios) {
  SerieCanonica nueva;
  for (std::size_t h = 0; h < sitios.size(); ++h) {
    const Entre &sitio = sitios[h];
    const double izquierdo = serie.valores[sitio.izquierdo];
    const double valor =
        sitio.parte == 0.0 ? izquierdo : izquierdo + (serie.valores[sitio.derecho] - izquierdo) * sitio.parte;
    nueva.Poner(h, valor, ProcedenciaEntre(serie, sitio));
  }
  return nueva;
}

SerieCanonica InterpolarDireccion(const SerieCanonica &direccion, const SerieCanonica &velocidad,
                                  const std::vector<Entre> &sitios) {
  SerieCanonica nueva;
  for (std::size_t h = 0; h < sitios.size(); ++h) {
    const Entre &sitio = sitios[h];
    const double valor = sitio.parte == 0.0 ? direccion.valores[sitio.izquierdo]
                                            : DireccionMedia(direccion.valores, velocidad.valores, sitio);
    nueva.Poner(h, valor, ProcedenciaEntre(direccion, sitio));
  }
  return nueva;
}

} // namespace tesmo
