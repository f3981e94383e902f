#include "intercambio/Ficheroimportable.h"

#include "core/Ficheros.h"
#include "intercambio/escritura/Textoanio.h"

namespace tesmo {

namespace {

/// Así llenan algunos programas el nombre que no saben.
bool DiceAlgo(const std::string &nombre) { return !nombre.empty() && nombre != "unknown" && nombre != "-"; }

std::string NombreDeFichero(const std::string &ruta) { return TextoDeRuta(RutaDesdeTexto(ruta).filename()); }

PeticionImportacion Proponer(const std::string &ruta, const MateriaAuditoria &materia) {
  PeticionImportacion peticion;
  const SitioClima &sitio = materia.anio.sitio;
  peticion.nombre = DiceAlgo(sitio.nombre) ? sitio.nombre : TextoDeRuta(RutaDesdeTexto(ruta).stem());
  if (materia.normales != nullptr) {
    peticion.provincia = materia.normales->provincia;
    peticion.zona = materia.normales->zona;
  } else if (DiceAlgo(sitio.region)) {
    peticion.provincia = sitio.region;
  }
  peticion.origen = NombreDeFichero(ruta);
  return peticion;
}

/// Los errores de una lectura en una frase.
std::string Errores(const ResultadoLectura &lectura) {
  std::string texto;
  for (const NotaLectura &nota : lectura.errores) texto += (texto.empty() ? "" : "; ") + nota.texto;
  return texto.empty() ? "no tiene ningún registro" : texto;
}

FicheroImportado NoSePudo(std::string error) {
  FicheroImportado importado;
  importado.resultado.fallo = FalloImportacion::Peticion;
  importado.resultado.error = std::move(error);
  return importado;
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
  fichero.reloj = RelojDeAuditoria(fichero.materia.reloj);
  // En hora oficial el huso es parte del reloj; en las otras, sólo el meridiano que se escribirá.
  if (fichero.reloj.tiempo != TiempoEtiqueta::OficialEstandar) {
    fichero.reloj.husoHoras =
        HusoDeSitio(fichero.reloj.husoHoras * GRADOS_POR_HUSO, fichero.materia.anio.sitio.longitud);
  }
  fichero.peticion = Proponer(ruta, fichero.materia);
  fichero.legible = lectura.anio.has_value();
  return fichero;
}

FicheroImportado ImportarFichero(const std::string &directorio, const FicheroImportable &fichero) {
  OpcionesLectura opciones;
  opciones.huecosLargos = fichero.huecosLargos;
  opciones.mapa = fichero.mapa;
  const ResultadoLectura lectura = LeerFicheroClima(fichero.ruta, opciones);
  if (!lectura.SinErrores()) return NoSePudo(Errores(lectura));
  ResultadoConversion conversion = LlevarAHoraSolar(*lectura.anio, fichero.reloj);
  if (!conversion.anio) return NoSePudo(conversion.error);
  FicheroImportado importado;
  importado.informe = std::move(conversion.informe);
  importado.resultado = ImportarLocalidad(directorio, fichero.peticion, *conversion.anio);
  return importado;
}

} // namespace tesmo
