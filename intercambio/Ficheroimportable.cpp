#include "intercambio/Ficheroimportable.h"

#include "core/Ficheros.h"
#include "intercambio/Aniodefichero.h"
#include "intercambio/Importacionlote.h"
#include "intercambio/escritura/Textoanio.h"

namespace tesmo {

namespace {

std::string NombreDeFichero(const std::string &ruta) { return TextoDeRuta(RutaDesdeTexto(ruta).filename()); }

PeticionImportacion Proponer(const std::string &ruta, const MateriaAuditoria &materia) {
  PeticionImportacion peticion;
  const SitioClima &sitio = materia.anio.sitio;
  peticion.nombre = NombreDeLocalidad(ruta, sitio);
  if (materia.normales != nullptr) {
    peticion.provincia = materia.normales->provincia;
    peticion.zonaPropuesta = materia.normales->zona;
  } else if (DiceAlgo(sitio.region)) {
    peticion.provincia = sitio.region;
  }
  peticion.origen = NombreDeFichero(ruta);
  return peticion;
}

/// En hora oficial el huso es parte del reloj; en las otras, sólo el meridiano que se escribirá.
double HusoPropuesto(const MateriaAuditoria &materia, TiempoEtiqueta tiempo) {
  const double huso = ElegirReloj(materia.reloj).husoHoras;
  return tiempo == TiempoEtiqueta::OficialEstandar
             ? huso
             : HusoDeSitio(huso * GRADOS_POR_HUSO, materia.anio.sitio.longitud);
}

/// El reloj elegido. El huso que nadie tocó no se da por dicho: así se escribe el mismo que en un lote.
EleccionReloj EleccionDe(const FicheroImportable &fichero) {
  const RelojFichero &reloj = fichero.reloj;
  EleccionReloj eleccion{reloj.tiempo, reloj.desfaseMin, reloj.husoHoras};
  if (reloj.husoHoras == HusoPropuesto(fichero.materia, reloj.tiempo)) eleccion.husoHoras.reset();
  return eleccion;
}

/// Los errores de una lectura en una frase.
std::string EnUnaFrase(const std::vector<std::string> &errores) {
  std::string texto;
  for (const std::string &error : errores) texto += (texto.empty() ? "" : "; ") + error;
  return texto;
}

} // namespace

FicheroImportable PrepararFichero(const std::string &ruta, const std::vector<NormalesLocalidad> &normales,
                                  std::shared_ptr<const MapaColumnas> mapa) {
  OpcionesLectura opciones;
  opciones.paraAuditar = true;
  opciones.mapa = mapa;
  const ResultadoLectura lectura = LeerFicheroClima(ruta, opciones);
  FicheroImportable fichero;
  fichero.ruta = ruta;
  fichero.mapa = std::move(mapa);
  fichero.materia =
      PrepararAuditoria(lectura, lectura.anio ? NormalesDelSitio(normales, lectura.anio->sitio) : nullptr);
  fichero.auditoria = Auditar(fichero.materia);
  fichero.reloj = ElegirReloj(fichero.materia.reloj);
  fichero.reloj.husoHoras = HusoPropuesto(fichero.materia, fichero.reloj.tiempo);
  fichero.peticion = Proponer(ruta, fichero.materia);
  fichero.legible = lectura.anio.has_value();
  return fichero;
}

FicheroImportado ImportarFichero(const std::string &directorio, const FicheroImportable &fichero) {
  OpcionesLectura opciones;
  opciones.huecosLargos = fichero.huecosLargos;
  opciones.mapa = fichero.mapa;
  opciones.altitud = fichero.altitud;
  AnioDeFichero leido = LeerAnioDeFichero(fichero.ruta, EleccionDe(fichero), opciones);
  FicheroImportado importado;
  importado.avisos = AvisosDe(leido);
  if (!leido.errores.empty()) {
    importado.resultado.fallo = FalloImportacion::Peticion;
    importado.resultado.error = EnUnaFrase(leido.errores);
    return importado;
  }
  importado.informe = std::move(leido.conversion.informe);
  PeticionImportacion peticion = fichero.peticion;
  peticion.fuente = fichero.ruta;
  importado.resultado = ImportarLocalidad(directorio, peticion, *leido.conversion.anio);
  return importado;
}

} // namespace tesmo
