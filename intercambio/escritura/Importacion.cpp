#include "intercambio/escritura/Importacion.h"

#include "core/Cerrojo.h"
#include "core/Codificacion.h"
#include "core/Ficheros.h"
#include "core/Unidades.h"
#include "intercambio/escritura/Composicion.h"
#include "intercambio/escritura/Estadisticasgdr.h"
#include "intercambio/escritura/Listagdr.h"
#include "intercambio/escritura/Listalocalidades.h"
#include "intercambio/escritura/Nombrescatalogo.h"
#include "intercambio/escritura/Textomet.h"

#include <algorithm>
#include <cmath>
#include <system_error>

namespace tesmo {

namespace fs = std::filesystem;

namespace {

constexpr const char *LISTA = "LocalidadesCC";
constexpr const char *REGISTROS = "GDR.TXT";
constexpr const char *EXTENSION = ".met";
constexpr const char *NOMBRE_DE_NADIE = "Localidad";
enum PosicionDeCampo : std::size_t {
  CAMPO_NOMBRE = 0,
  CAMPO_CORTO = 1,
  CAMPO_PROVINCIA = 2,
  CAMPO_CUARTO = 3,
  CAMPO_REFERENCIA = 4,
  CAMPO_FICHERO = 5,
  CAMPO_UNDECIMO = 10
};

/// El nombre con que está en el disco el fichero @p nombre de @p directorio.
std::string NombreEnDisco(const fs::path &directorio, const std::string &nombre) {
  return TextoDeRuta(BuscarSinMayusculas(directorio / RutaDesdeTexto(nombre)).filename());
}

bool HayFichero(const fs::path &directorio, const std::string &nombre) {
  std::error_code error;
  return fs::exists(directorio / RutaDesdeTexto(NombreEnDisco(directorio, nombre)), error);
}

bool Iguales(std::string_view a, std::string_view b) { return PlegarMinusculas(a) == PlegarMinusculas(b); }

/// Una importación: los tres textos a partir de los que hay.
class Importacion {
public:
  Importacion(fs::path directorio, const PeticionImportacion &peticion, const AnioSolar &anio,
              ResultadoImportacion &resultado)
      : directorio_(std::move(directorio)), peticion_(peticion), anio_(anio), resultado_(resultado),
        nombreLista_(NombreEnDisco(directorio_, LISTA)), nombreGdr_(NombreEnDisco(directorio_, REGISTROS)),
        lista_(LeerFicheroEntero(directorio_ / RutaDesdeTexto(nombreLista_)).value_or("")),
        gdr_(LeerFicheroEntero(directorio_ / RutaDesdeTexto(nombreGdr_)).value_or("")) {}

  void Hacer(const TrasPaso &tras) {
    if (!Preparar()) return;
    const std::vector<FicheroConjunto> ficheros{
        {ficha_.fichero, TextoDelMet()}, {nombreGdr_, TextoDeGdr()}, {nombreLista_, lista_.Contenido()}};
    if (!ConservarFuente()) return;
    resultado_.error = SustituirJuntos(directorio_, ficheros, tras);
    AcabarConLaCopia();
    if (!resultado_.error.empty()) {
      resultado_.fallo = FalloImportacion::Salida;
      return;
    }
    for (const FicheroConjunto &fichero : ficheros)
      resultado_.ficheros.push_back(TextoDeRuta(directorio_ / RutaDesdeTexto(fichero.nombre)));
  }

private:
  bool Fallar(FalloImportacion fallo, std::string error) {
    resultado_.fallo = fallo;
    resultado_.error = std::move(error);
    return false;
  }
  void Avisar(std::string aviso) { resultado_.avisos.push_back(std::move(aviso)); }

  bool Preparar() {
    ficha_.nombre = TextoDeCampo(peticion_.nombre);
    ficha_.provincia = TextoDeCampo(peticion_.provincia);
    if (ficha_.nombre.empty()) return Fallar(FalloImportacion::Peticion, "falta el nombre de la localidad");
    if (ficha_.provincia.empty()) return Fallar(FalloImportacion::Peticion, "falta la provincia");
    if (ficha_.nombre == NOMBRE_DE_NADIE)
      Avisar("«" + ficha_.nombre + "» es lo que enseña una ventana sin localidad: no se podrá elegir");
    if (ficha_.nombre != ComponerAcentos(peticion_.nombre))
      Avisar("el nombre queda en «" + ficha_.nombre + "»");
    anterior_ = lista_.Buscar(lista_.ComoSeLeera(ficha_.nombre));
    if (anterior_ && !peticion_.reemplazar)
      return Fallar(FalloImportacion::Existe,
                    "ya hay una localidad «" + ficha_.nombre + "» en " + (*anterior_)[CAMPO_PROVINCIA]);
    resultado_.reemplazada = anterior_.has_value();
    AvisarDeOtraProvincia();
    return PrepararSitio() && ElegirNombres() && PonerEnLaLista();
  }

  /// El nombre es único en toda la base: reemplazar una localidad puede sacarla de su provincia.
  void AvisarDeOtraProvincia() {
    if (!anterior_) return;
    const std::string &tenia = (*anterior_)[CAMPO_PROVINCIA];
    if (tenia != lista_.ComoSeLeera(ficha_.provincia))
      Avisar("estaba en " + tenia + "; pasa a " + ficha_.provincia);
  }

  bool PrepararSitio() {
    const SitioClima &sitio = anio_.sitio;
    if (!std::isfinite(sitio.latitud) || std::fabs(sitio.latitud) > 90.0)
      return Fallar(FalloImportacion::Peticion, "no se conoce la latitud");
    if (!std::isfinite(sitio.longitud)) return Fallar(FalloImportacion::Peticion, "no se conoce la longitud");
    if (!std::isfinite(sitio.altitud)) Avisar("no se conoce la altitud: se toma el nivel del mar");
    ficha_.latitud = sitio.latitud;
    ficha_.longitud = sitio.longitud;
    ficha_.altitud = std::isfinite(sitio.altitud) ? sitio.altitud : 0.0;
    ficha_.meridiano = anio_.husoHoras * GRADOS_POR_HORA;
    ficha_.referencia = ficha_.nombre;
    ConservarLoAjeno();
    for (std::size_t i = 0; i < NUMERO_SERIES_LEIDAS; ++i) {
      const std::vector<double> &valores = anio_.series[i].valores;
      if (valores.size() == HORAS && std::ranges::all_of(valores, [](double v) { return std::isfinite(v); }))
        continue;
      return Fallar(FalloImportacion::Peticion,
                    "la columna " + std::to_string(i + 4) + " del año no está entera");
    }
    return true;
  }

  /// De la localidad que se reemplaza queda lo que el año nuevo no sabe.
  void ConservarLoAjeno() {
    if (!anterior_) return;
    ficha_.cuarto = (*anterior_)[CAMPO_CUARTO];
    if (!(*anterior_)[CAMPO_REFERENCIA].empty()) ficha_.referencia = (*anterior_)[CAMPO_REFERENCIA];
    if (!(*anterior_)[CAMPO_UNDECIMO].empty()) ficha_.undecimo = (*anterior_)[CAMPO_UNDECIMO];
  }

  /// Las localidades de la lista que no son la que se reemplaza.
  [[nodiscard]] bool AlgunaOtra(const std::function<bool(const CamposLocalidad &)> &condicion) const {
    bool vista = !anterior_; // sólo se reemplaza la primera de su nombre
    for (const CamposLocalidad &campos : lista_.Localidades()) {
      const bool esElla = !vista && campos[CAMPO_NOMBRE] == (*anterior_)[CAMPO_NOMBRE];
      vista = vista || esElla;
      if (!esElla && condicion(campos)) return true;
    }
    return false;
  }

  [[nodiscard]] bool CortoOcupado(const std::string &corto) const {
    const std::string fichero = corto + EXTENSION;
    const auto enGdr = [&](const auto &sitio) { return Iguales(sitio.clave, corto); };
    const auto enLista = [&](const CamposLocalidad &campos) {
      return Iguales(campos[CAMPO_CORTO], corto) || Iguales(campos[CAMPO_FICHERO], fichero);
    };
    return HayFichero(directorio_, fichero) || std::ranges::any_of(gdr_.Registros(), enGdr) ||
           AlgunaOtra(enLista);
  }

  /// Los nombres que tenía la localidad valen si son suyos y de nadie más.
  [[nodiscard]] bool ConservarNombres() {
    if (!anterior_) return false;
    const std::string &corto = (*anterior_)[CAMPO_CORTO];
    const std::string &fichero = (*anterior_)[CAMPO_FICHERO];
    const bool compartidos = AlgunaOtra([&](const CamposLocalidad &campos) {
      return campos[CAMPO_CORTO] == corto || Iguales(campos[CAMPO_FICHERO], fichero);
    });
    const bool unaPalabra = !corto.empty() && corto.find_first_of(" \t") == std::string::npos;
    if (compartidos || !unaPalabra || !EsNombreDeFichero(fichero)) return false;
    ficha_.corto = corto;
    ficha_.fichero = NombreEnDisco(directorio_, fichero);
    return true;
  }

  bool ElegirNombres() {
    if (ConservarNombres()) return true;
    const std::string sinColision = CortoLibre(ficha_.nombre, [](const std::string &) { return false; });
    ficha_.corto =
        CortoLibre(ficha_.nombre, [this](const std::string &corto) { return CortoOcupado(corto); });
    ficha_.fichero = ficha_.corto + EXTENSION;
    if (ficha_.corto != sinColision)
      Avisar("el nombre corto «" + sinColision + "» ya está ocupado: se usa «" + ficha_.corto + "»");
    return true;
  }

  bool PonerEnLaLista() {
    if (!lista_.Poner(ficha_))
      return Fallar(FalloImportacion::Peticion,
                    "los nombres son demasiado largos para una línea de " + std::string(LISTA));
    if (lista_.CuentaCorregida())
      Avisar(std::string(LISTA) +
             ": el último bloque tenía menos líneas que su cuenta; se corrige la cuenta");
    const std::string leido = lista_.ComoSeLeera(ficha_.nombre);
    if (leido != ficha_.nombre)
      Avisar("la codificación de " + std::string(LISTA) + " no tiene todas las letras: se leerá «" + leido +
             "»");
    for (const auto &registro : LeerLocalidades(lista_.Contenido(), LISTA, {})) {
      if (registro->localidad != leido) continue;
      resultado_.registro = *registro;
      return true;
    }
    return Fallar(FalloImportacion::Peticion,
                  std::string(LISTA) + " no se entiende: no se puede añadir nada");
  }

  /// Si el fichero leído es el que se va a escribir, deja una copia suya a su lado: sin ella no se podría
  /// repetir la importación con otro reloj.
  bool ConservarFuente() {
    const fs::path destino = directorio_ / RutaDesdeTexto(ficha_.fichero);
    std::error_code error;
    if (peticion_.fuente.empty() ||
        !fs::equivalent(BuscarSinMayusculas(RutaDesdeTexto(peticion_.fuente)), destino, error))
      return true;
    std::string copia = ficha_.fichero + ".original";
    for (int i = 2; HayFichero(directorio_, copia); ++i)
      copia = ficha_.fichero + ".original-" + std::to_string(i);
    copia_ = directorio_ / RutaDesdeTexto(copia);
    const std::optional<std::string> contenido = LeerFicheroEntero(destino);
    if (!contenido || !EscribirFicheroEntero(copia_, *contenido))
      return Fallar(FalloImportacion::Salida,
                    copia + ": no se puede escribir en " + TextoDeRuta(directorio_));
    return true;
  }

  /// La copia de la fuente sobra si nada se escribió ni queda pendiente de escribirse.
  void AcabarConLaCopia() {
    if (copia_.empty()) return;
    const bool intacta =
        !QuedanRestos(directorio_, {ficha_.fichero, nombreGdr_, nombreLista_}) &&
        LeerFicheroEntero(directorio_ / RutaDesdeTexto(ficha_.fichero)) == LeerFicheroEntero(copia_);
    std::error_code error;
    if (!resultado_.error.empty() && intacta && fs::remove(copia_, error)) return;
    Avisar("el fichero leído es el que se escribe: el original queda en " + TextoDeRuta(copia_.filename()));
  }

  [[nodiscard]] std::string TextoDelMet() const {
    const CabeceraMet cabecera{"Importado por Tesmo: " + ficha_.nombre + ", " + ficha_.provincia +
                                   (peticion_.origen.empty() ? "" : "; de " + peticion_.origen),
                               ficha_.latitud, ficha_.longitud, ficha_.altitud, ficha_.meridiano};
    return TextoMet(cabecera, ColumnasDe(anio_));
  }

  std::string Zona() {
    if (!peticion_.zona.empty()) return peticion_.zona;
    const std::string tenia = gdr_.ZonaDe(ficha_.corto);
    if (!tenia.empty()) return tenia;
    if (!peticion_.zonaPropuesta.empty()) {
      Avisar("no se ha dicho la zona: se toma " + peticion_.zonaPropuesta + ", la de las normales del lugar");
      return peticion_.zonaPropuesta;
    }
    Avisar("no se ha dicho la zona: los días extremos la toman del interior");
    return ZONA_INTERIOR;
  }

  std::string TextoDeGdr() {
    FichaGdr registro = EstadisticasDelAnio(anio_);
    registro.corto = ficha_.corto;
    registro.latitud = ficha_.latitud;
    registro.longitud = ficha_.longitud;
    registro.meridiano = ficha_.meridiano;
    registro.altitud = ficha_.altitud;
    registro.zona = Zona();
    const VistaDeGdr vista = gdr_.Poner(registro);
    if (vista == VistaDeGdr::PasaDelLimite)
      Avisar("los días extremos no encontrarán esta localidad: sólo se miran los " +
             std::to_string(extremos::REGISTROS_MIRADOS_GDR) + " primeros registros de " + REGISTROS +
             " y el suyo es el " + std::to_string(gdr_.Registros().size()));
    if (vista == VistaDeGdr::Desordenado)
      Avisar("los días extremos no encontrarán esta localidad: algún registro anterior de " +
             std::string(REGISTROS) + " no ocupa siete líneas");
    return gdr_.Contenido();
  }

  fs::path directorio_;
  const PeticionImportacion &peticion_;
  const AnioSolar &anio_;
  ResultadoImportacion &resultado_;
  std::string nombreLista_, nombreGdr_;
  ListaLocalidades lista_;
  ListaGdr gdr_;
  FichaLocalidad ficha_;
  std::optional<CamposLocalidad> anterior_;
  fs::path copia_; ///< la de la fuente, si era el destino
};

std::vector<std::string> NombresDeListas(const fs::path &directorio) {
  return {NombreEnDisco(directorio, REGISTROS), NombreEnDisco(directorio, LISTA)};
}

} // namespace

ResultadoImportacion ImportarLocalidad(const std::string &directorio, const PeticionImportacion &peticion,
                                       const AnioSolar &anio, const TrasPaso &tras) {
  ResultadoImportacion resultado;
  const fs::path ruta = RutaDesdeTexto(directorio);
  std::error_code error;
  fs::create_directories(ruta, error);
  const CerrojoDirectorio cerrojo(ruta);
  if (!cerrojo.Tomado()) {
    resultado.fallo = FalloImportacion::Ocupado;
    resultado.error = directorio + ": otro proceso está importando en este directorio";
    return resultado;
  }
  if (RecuperarConjunto(ruta, NombresDeListas(ruta)) == Recuperacion::Imposible) {
    resultado.fallo = FalloImportacion::Salida;
    resultado.error = directorio + ": no se puede terminar una importación anterior";
    return resultado;
  }
  Importacion(ruta, peticion, anio, resultado).Hacer(tras);
  return resultado;
}

std::string RecuperarImportacion(const std::string &directorio) {
  const fs::path ruta = RutaDesdeTexto(directorio);
  const std::vector<std::string> nombres = NombresDeListas(ruta);
  if (!QuedanRestos(ruta, nombres)) return {};
  const CerrojoDirectorio cerrojo(ruta);
  if (!cerrojo.Tomado()) return {}; // no es un resto: otro proceso está en ello
  switch (RecuperarConjunto(ruta, nombres)) {
  case Recuperacion::Terminada:
    return directorio + ": se ha terminado una importación que quedó a medias";
  case Recuperacion::Deshecha:
    return directorio + ": se ha deshecho una importación que quedó a medias";
  case Recuperacion::Imposible:
    return directorio + ": hay una importación a medias y no se puede escribir para terminarla";
  case Recuperacion::Nada:
    break;
  }
  return {};
}

} // namespace tesmo
