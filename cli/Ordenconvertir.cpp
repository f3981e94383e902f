#include "cli/Ordenes.h"

#include "cli/Argumentos.h"
#include "cli/Opcionesreloj.h"
#include "cli/Opcionesseleccion.h"
#include "core/Codificacion.h"
#include "core/Ficheros.h"
#include "core/Rutas.h"
#include "intercambio/Importacionlote.h"
#include "intercambio/escritura/Textoanio.h"
#include "localidades/Ciudad.h"

#include <memory>

namespace tesmo::cli {

namespace {

struct Datos {
  std::optional<std::string> fichero, localidad, salida, base;
  OpcionesReloj reloj;
};

/// El fichero de una localidad de la base y lo que la base sabe de ella y él no dice.
std::string FicheroDeLocalidad(const std::string &localidad, SitioClima &sitio, double &meridiano) {
  const BaseDeLocalidades &base = DameBaseDeLocalidades();
  const ObjetoCiudad *registro = base.BuscarLocalidad(localidad);
  if (registro == nullptr) throw Fallo(Estado::FaltaEntrada, "no se conoce la localidad: " + localidad);
  sitio.nombre = registro->localidad;
  sitio.region = registro->provincia;
  meridiano = static_cast<double>(registro->longitudRef);
  return DameConfiguracion().RutaMeteo(registro->fichero);
}

/// @p entrada: la ruta del fichero que se dio, vacía si se dio una localidad
AnioSolar Leer(const Datos &datos, const std::string &entrada, const EleccionReloj &eleccion,
               Contexto &contexto) {
  const OpcionesLectura lectura = InterpretarLectura(datos.reloj);
  SitioClima sitio;
  double meridiano = AUSENTE;
  std::string ruta = entrada;
  if (datos.localidad) {
    IniciarBase(datos.base ? RutaAbsoluta(*datos.base) : std::string(), contexto);
    ruta = FicheroDeLocalidad(*datos.localidad, sitio, meridiano);
  }
  AnioDeFichero leido = LeerAnioDeFichero(ruta, eleccion, lectura);
  AvisarDeFichero(TextoDeRuta(RutaDesdeTexto(ruta).filename()), leido, contexto);
  if (!leido.errores.empty()) throw Fallo(Estado::FaltaEntrada, "");
  AnioSolar anio = std::move(*leido.conversion.anio);
  anio.sitio.nombre = datos.localidad ? sitio.nombre : NombreDeLocalidad(ruta, anio.sitio);
  if (datos.localidad) anio.sitio.region = sitio.region;
  if (datos.localidad && !eleccion.husoHoras) anio.husoHoras = HusoDeSitio(meridiano, anio.sitio.longitud);
  for (const std::string &linea : TextoInforme(leido.conversion.informe)) contexto.salida << linea << '\n';
  return anio;
}

void Ejecutar(const Datos &datos, Contexto &contexto) {
  if (datos.fichero.has_value() == datos.localidad.has_value())
    throw Fallo(Estado::UsoIncorrecto, "hay que dar FICHERO o --localidad, y sólo uno de los dos");
  const std::string entrada = RutaDeEntrada(datos.fichero, "FICHERO");
  const std::string salida = RutaDeSalida(datos.salida, "-o");
  const EleccionReloj eleccion = InterpretarReloj(datos.reloj);
  const std::optional<FormatoSalida> formato = FormatoDeSalida(salida);
  if (!formato)
    throw Fallo(Estado::UsoIncorrecto, "-o: «" + *datos.salida + "» no acaba en .met, .epw ni .csv");
  const AnioSolar anio = Leer(datos, entrada, eleccion, contexto);
  if (!EscribirFicheroEntero(RutaDesdeTexto(salida), TextoDeAnio(anio, *formato)))
    throw Fallo(Estado::FaltaSalida, "no se puede escribir: " + *datos.salida);
}

} // namespace

void RegistrarConvertirAnio(CLI::App &raiz, Contexto &contexto) {
  const auto datos = std::make_shared<Datos>();
  CLI::App &orden = NuevaOrden(
      raiz, "convertir",
      {"Pasa un fichero climático a otro formato",
       "La extensión de la salida dice el formato: .met de quince columnas en hora solar verdadera; .epw en "
       "la "
       "hora oficial de\ninvierno del sitio; .csv con las 21 magnitudes y todas sus cifras, en hora solar "
       "(superficie vertical al sur, albedo 0,2).\nCuenta lo que hizo el cambio de hora.",
       "convertir tmy.csv -o baza.met\nconvertir ESP_Almeria.epw -o almeria.csv\n"
       "convertir --localidad Almería -o almeria.epw"});
  AnadirArgumento(orden, "FICHERO", datos->fichero, "Fichero climático que se convierte");
  AnadirValor(orden, "--localidad", datos->localidad, "NOMBRE",
              "Una localidad de la base, en vez de un fichero");
  Exigir(
      AnadirValor(orden, "-o,--salida", datos->salida, "SALIDA", "Fichero .met, .epw o .csv (obligatorio)"));
  AnadirReloj(orden, datos->reloj);
  AnadirBase(orden, datos->base);
  AlEjecutar(orden, contexto, datos, Ejecutar);
}

} // namespace tesmo::cli
