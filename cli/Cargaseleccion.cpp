#include "cli/Opcionesseleccion.h"

#include "app/Carga.h"
#include "app/Programa.h"
#include "cli/Perfildehorizonte.h"
#include "core/Ficheros.h"
#include "core/Mensajes.h"
#include "core/Rutas.h"
#include "intercambio/formatos/Lectura.h"
#include "localidades/Ciudad.h"
#include "meteo/Leermet.h"
#include "psicro/Atmosfera.h"
#include "psicro/Psicrometrico.h"
#include "solar/Edicionhorizonte.h"
#include "solar/Posicionsolar.h"

namespace tesmo::cli {

namespace {

/// Crea el programa callando lo que diga la base de localidades: a quien nombra un fichero no le importa.
void CrearSinBase(std::optional<Programa> &programa) {
  PresentadorMensajes *presentador = DameMensajes().PonPresentador(nullptr);
  AvisoLocalidades aviso = PonAvisoLocalidades({});
  programa.emplace();
  PonAvisoLocalidades(std::move(aviso));
  DameMensajes().PonPresentador(presentador);
}

void CrearSeleccion(const PeticionSeleccion &peticion, const Programa &programa, Seleccion &seleccion) {
  seleccion.PonProvincia(programa.DameLocalidades()->DameTextoDe(peticion.localidad, "Provincia"));
  if (!peticion.localidad.empty()) seleccion.PonLocalidad(peticion.localidad);
  seleccion.PonPeriodo(peticion.periodo);
  seleccion.PonSuperficie(peticion.superficie);
  seleccion.PonAltitudUsuario(peticion.altitud);
}

ResultadoCarga CargarUna(const PeticionSeleccion &peticion, Programa &programa, const Seleccion &seleccion) {
  if (!peticion.fichero.empty()) {
    const std::string nombre = TextoDeRuta(RutaDesdeTexto(peticion.fichero).stem());
    return CargarFichero(programa, seleccion, peticion.fichero, nombre);
  }
  if (programa.DameLocalidades()->BuscarLocalidad(peticion.localidad) == nullptr)
    throw Fallo(Estado::FaltaEntrada, "no se conoce la localidad: " + peticion.localidad);
  return CargarLocalidad(programa, seleccion);
}

void LeerHorizonte(const std::string &ruta, Contexto &contexto, PosicionSolar &sol) {
  if (ruta.empty()) return;
  CopiarHorizonte(PerfilParaUsar(LeerHorizonteDado(ruta, ruta, contexto)), sol);
}

std::string FicheroLeido(const PeticionSeleccion &peticion, const Programa &programa) {
  if (!peticion.fichero.empty()) return peticion.fichero;
  return DameConfiguracion().RutaMeteo(
      programa.DameLocalidades()->DameTextoDe(peticion.localidad, "Fichero"));
}

/// El que está y no se deja leer se da por leído, con lo que hubiera antes: una orden no tiene nada de antes.
void ExigirQueSeLea(const std::string &fichero) {
  if (!LeerFicheroEntero(BuscarSinMayusculas(RutaDesdeTexto(fichero))))
    throw Fallo(Estado::FaltaEntrada, "no se puede leer: " + fichero);
}

/// De los números de 8760 líneas de trece salen 7592 registros de quince: sólo un fichero que se quedó corto
/// puede ser de trece columnas, y mirarlo otra vez no retrasa a los demás.
void AvisarSiEsCorto(const PeticionSeleccion &peticion, const Programa &programa, Contexto &contexto) {
  const ResumenLectura &resumen = programa.DameLeerMet()->Resumen();
  if (resumen.registros >= HORAS_DEL_ANIO) return;
  const std::string fichero = FicheroLeido(peticion, programa);
  if (resumen.registros == 0) ExigirQueSeLea(fichero);
  if (EsFicheroMetDeTreceColumnas(fichero)) {
    Avisar(contexto,
           programa.DameLocalidadCargada() + ": " + fichero +
               " lleva trece columnas y se lee como si fueran quince: ningún valor está en su sitio; "
               "impórtelo con «tesmo-cli importar»");
  }
  Avisar(contexto, programa.DameLocalidadCargada() + ": se han leído " + std::to_string(resumen.registros) +
                       " registros de " + std::to_string(HORAS_DEL_ANIO) + "; la lectura paró en la línea " +
                       std::to_string(resumen.linea));
}

} // namespace

float AltitudUsada(float pedida, Contexto &contexto) {
  if (AltitudCreible(pedida)) return pedida;
  Avisar(contexto, "--altitud: se admite de -500 a 9000 m; con otra la presión es la del nivel del mar");
  return 0.0F;
}

void Cargar(const PeticionSeleccion &peticion, Contexto &contexto, std::optional<Programa> &programa) {
  IniciarBase(peticion.base, contexto);
  if (peticion.altitud) static_cast<void>(AltitudUsada(*peticion.altitud, contexto));
  if (peticion.fichero.empty()) {
    programa.emplace();
  } else {
    CrearSinBase(programa);
  }
  Seleccion seleccion;
  CrearSeleccion(peticion, *programa, seleccion);
  LeerHorizonte(peticion.horizonte, contexto, *programa->DamePosicionSolar());
  const ResultadoCarga resultado = CargarUna(peticion, *programa, seleccion);
  if (resultado == ResultadoCarga::CasillaVacia) throw Fallo(Estado::UsoIncorrecto, "");
  if (resultado != ResultadoCarga::Cargada) throw Fallo(Estado::FaltaEntrada, "");
  AvisarSiEsCorto(peticion, *programa, contexto);
  if (peticion.presion) programa->DamePsicro()->ponPresion(*peticion.presion);
  programa->DameLeerMet()->AsegurarDerivadas(programa->DamePsicro()->damePresion(),
                                             *programa->DamePosicionSolar());
}

} // namespace tesmo::cli
