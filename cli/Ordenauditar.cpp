#include "cli/Ordenes.h"

#include "cli/Argumentos.h"
#include "cli/Json.h"
#include "cli/Opcionesreloj.h"
#include "cli/Opcionesseleccion.h"
#include "intercambio/auditoria/Textoauditoria.h"
#include "intercambio/sintesis/Normalesprograma.h"

#include <memory>

namespace tesmo::cli {

namespace {

struct Datos {
  std::vector<std::string> ficheros;
  std::optional<std::string> mapa;
  bool json = false;
};

/// Un fichero auditado.
struct Auditado {
  std::string fichero;
  MateriaAuditoria materia;
  Auditoria auditoria;
};

/// Líneas en orden como parejas de la primera y la última de cada tramo.
Json TramosJson(const std::vector<int> &lineas) {
  ListaJson tramos;
  for (std::size_t i = 0, fin = 0; i < lineas.size(); i = fin) {
    fin = i + 1;
    while (fin < lineas.size() && lineas[fin] == lineas[fin - 1] + 1) ++fin;
    tramos.push_back(ListaJson{lineas[i], lineas[fin - 1]});
  }
  return tramos;
}

Json SitioJson(const SitioClima &sitio) {
  return ObjetoJson{{"nombre", sitio.nombre},
                    {"pais", sitio.pais},
                    {"latitud", sitio.latitud},
                    {"longitud", sitio.longitud},
                    {"altitud", sitio.altitud}};
}

Json RelojJson(const VeredictoReloj &veredicto) {
  return ObjetoJson{{"declarado", TextoReloj(veredicto.declarado.reloj)},
                    {"propuesto", TextoReloj(veredicto.propuesto.reloj)},
                    {"desfase_min", veredicto.desfaseHallado},
                    {"confianza", TextoConfianza(veredicto.confianza)},
                    {"concuerda", veredicto.concuerda}};
}

Json AuditadoJson(const Auditado &auditado) {
  ListaJson comprobaciones;
  for (const ResultadoComprobacion &resultado : auditado.auditoria.resultados) {
    comprobaciones.push_back(ObjetoJson{{"clave", resultado.comprobacion->clave},
                                        {"titulo", resultado.comprobacion->titulo},
                                        {"resultado", NombreGravedad(resultado.hallazgo.gravedad)},
                                        {"texto", resultado.hallazgo.texto},
                                        {"lineas", TramosJson(resultado.hallazgo.lineas)}});
  }
  return ObjetoJson{{"fichero", auditado.fichero},
                    {"formato", NombreFormato(auditado.materia.anio.formato)},
                    {"sitio", SitioJson(auditado.materia.anio.sitio)},
                    {"veredicto", NombreVeredicto(auditado.auditoria.veredicto)},
                    {"reloj", RelojJson(auditado.materia.reloj)},
                    {"comprobaciones", comprobaciones}};
}

/// Audita @p fichero; si no se puede ni abrir o no es de ningún formato, lo dice y devuelve nada.
std::optional<Auditado> AuditarFichero(const std::string &fichero, const OpcionesLectura &opciones,
                                       const std::vector<NormalesLocalidad> &normales, Contexto &contexto) {
  const ResultadoLectura lectura = LeerFicheroClima(RutaAbsoluta(fichero), opciones);
  if (!lectura.anio && !lectura.errores.empty() && lectura.errores.front().clase == ClaseNota::Fichero) {
    contexto.error << "Error: " << fichero << ": " << lectura.errores.front().texto << '\n';
    return std::nullopt;
  }
  Auditado auditado{fichero, {}, {}};
  auditado.materia =
      PrepararAuditoria(lectura, lectura.anio ? NormalesDelSitio(normales, lectura.anio->sitio) : nullptr);
  auditado.auditoria = Auditar(auditado.materia);
  return auditado;
}

void Ejecutar(const Datos &datos, Contexto &contexto) {
  const std::vector<NormalesLocalidad> delPrograma = NormalesDelPrograma();
  const OpcionesLectura opciones{.paraAuditar = true, .mapa = InterpretarMapa(datos.mapa)};
  ListaJson lista;
  bool falta = false, primera = true;
  for (const std::string &fichero : datos.ficheros) {
    const std::vector<NormalesLocalidad> normales =
        delPrograma.empty() ? NormalesDeSuBase(RutaAbsoluta(fichero)) : delPrograma;
    const std::optional<Auditado> auditado = AuditarFichero(fichero, opciones, normales, contexto);
    falta = falta || !auditado;
    if (!auditado) continue;
    if (datos.json) {
      lista.push_back(AuditadoJson(*auditado));
      continue;
    }
    contexto.salida << (primera ? "" : "\n")
                    << TextoAuditoria(fichero, auditado->materia, auditado->auditoria);
    primera = false;
  }
  if (datos.json) contexto.salida << TextoJson(lista) << '\n';
  if (falta) throw Fallo(Estado::FaltaEntrada, "");
}

} // namespace

void RegistrarAuditar(CLI::App &raiz, Contexto &contexto) {
  const auto datos = std::make_shared<Datos>();
  CLI::App &orden = NuevaOrden(
      raiz, "auditar",
      {"Comprueba ficheros climáticos",
       "Una página por fichero (EPW, PVGIS, TMY3 o .met): veredicto (apto, apto con avisos, no "
       "apto), y cada\ncomprobación con las líneas que no la pasan. En JSON, una lista con un objeto "
       "por fichero; las líneas,\nparejas de la primera y la última de cada tramo.",
       "auditar Almeria.epw\nauditar *.epw --json"});
  Exigir(AnadirArgumentos(orden, "FICHERO", datos->ficheros, "Ficheros que se auditan"));
  AnadirMapa(orden, datos->mapa);
  AnadirJson(orden, datos->json);
  AlEjecutar(orden, contexto, datos, Ejecutar);
}

} // namespace tesmo::cli
