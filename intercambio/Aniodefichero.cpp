#include "intercambio/Aniodefichero.h"

#include "intercambio/escritura/Textoanio.h"

#include <utility>

namespace tesmo {

std::vector<std::string> AvisosDe(const AnioDeFichero &anio) {
  std::vector<std::string> avisos;
  for (const NotaLectura &nota : anio.lectura.avisos) avisos.push_back(nota.texto);
  avisos.insert(avisos.end(), anio.veredicto.avisos.begin(), anio.veredicto.avisos.end());
  return avisos;
}

AnioDeFichero LeerAnioDeFichero(const std::string &ruta, const EleccionReloj &eleccion,
                                const OpcionesLectura &opciones) {
  AnioDeFichero leido;
  leido.lectura = LeerFicheroClima(ruta, opciones);
  if (!leido.lectura.SinErrores()) {
    for (const NotaLectura &nota : leido.lectura.errores) leido.errores.push_back(nota.texto);
    if (leido.errores.empty()) leido.errores.emplace_back("no tiene ningún registro");
    return leido;
  }
  AnioCanonico anio = std::move(*leido.lectura.anio);
  leido.lectura.anio.reset();
  if (eleccion.husoHoras) {
    anio.reloj.husoHoras = *eleccion.husoHoras;
  } else if (anio.formato == FormatoClima::PvgisCsv) {
    leido.lectura.avisos.push_back(
        {.clase = ClaseNota::Cabecera,
         .texto =
             "el fichero no dice el huso de la hora oficial del sitio; se toma el de su longitud, y si no "
             "es ése hay que decirlo"});
  }
  leido.sitio = anio.sitio;
  leido.veredicto = DetectarReloj(anio);
  leido.reloj = ElegirReloj(leido.veredicto, eleccion);
  leido.conversion = LlevarAHoraSolar(anio, leido.reloj);
  if (!leido.conversion.anio) {
    leido.errores.push_back(leido.conversion.error);
    return leido;
  }
  double &huso = leido.conversion.anio->husoHoras;
  huso = eleccion.husoHoras.value_or(HusoDeSitio(huso * GRADOS_POR_HUSO, anio.sitio.longitud));
  return leido;
}

} // namespace tesmo
