#include "meteo/Lectormet.h"

#include "core/Flujoreales.h"

#include <algorithm>

namespace tesmo {

namespace {

/// Las dos líneas que se descartan se leen en un búfer de 300 con su terminador.
constexpr std::size_t LINEA_MAXIMA = 299;

/// La línea, desde 1, de la posición @p posicion; al final del texto, la última que tiene algo escrito.
int LineaDe(const std::string &texto, std::size_t posicion) {
  const std::size_t ultimo = texto.find_last_not_of(" \t\n\v\f\r");
  const std::size_t hasta = std::min(posicion, ultimo == std::string::npos ? 0 : ultimo);
  return 1 + static_cast<int>(
                 std::count(texto.begin(), texto.begin() + static_cast<std::ptrdiff_t>(hasta), '\n'));
}

void LeerSitio(FlujoReales &flujo, SitioMet &sitio) {
  constexpr int NUMEROS_DEL_SITIO = 3;
  flujo.DescartarLinea(LINEA_MAXIMA);
  const int leidos = flujo.LeerReales(sitio.latitud, sitio.longitud, sitio.tercerDato);
  // Los blancos que siguen al tercer número incluyen el fin de línea: por eso, sin un cuarto dato, lo que se
  // descarta después es la tercera línea entera.
  if (leidos == NUMEROS_DEL_SITIO) flujo.SaltarBlancos();
  flujo.DescartarLinea(LINEA_MAXIMA);
}

/// Punteros a los diez destinos, en el orden de las columnas del fichero.
class Columnas {
public:
  explicit Columnas(SeriesLeidas &series) {
    for (std::size_t c = 0; c < destino_.size(); ++c) {
      destino_[c] = series[static_cast<SerieAlmacenada>(c)].data();
    }
  }
  /// Lee los quince campos del registro @p i; los tres primeros y los dos últimos no se guardan.
  bool LeerRegistro(FlujoReales &flujo, std::size_t i) const {
    float suelto = 0.0F;
    const auto &d = destino_;
    return flujo.LeerReal(suelto) && flujo.LeerReal(suelto) && flujo.LeerReal(suelto) &&
           std::all_of(d.begin(), d.end(), [&](float *serie) { return flujo.LeerReal(serie[i]); }) &&
           flujo.LeerReal(suelto) && flujo.LeerReal(suelto);
  }

private:
  std::array<float *, NUMERO_SERIES_LEIDAS> destino_{};
};

} // namespace

ResumenLectura LeerTextoMet(const std::string &texto, SitioMet &sitio, SeriesLeidas &series) {
  FlujoReales flujo(texto);
  LeerSitio(flujo, sitio);
  const Columnas columnas(series);
  ResumenLectura resumen;
  for (std::size_t i = 0; i < static_cast<std::size_t>(HORAS_DEL_ANIO); ++i) {
    const std::size_t antes = flujo.Posicion();
    if (columnas.LeerRegistro(flujo, i)) {
      ++resumen.registros;
      continue;
    }
    if (resumen.linea == 0) resumen.linea = LineaDe(texto, flujo.Posicion());
    // Lo que no es un número sigue en el flujo y detiene también todos los registros que faltan, salvo que se
    // consumiera en parte ("--5"): entonces la lectura se reanuda en la hora siguiente.
    if (flujo.Posicion() == antes) break;
  }
  return resumen;
}

} // namespace tesmo
