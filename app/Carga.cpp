#include "app/Carga.h"

#include "app/Accion.h"
#include "app/Programa.h"
#include "app/Seleccion.h"
#include "core/Mensajes.h"
#include "core/Rutas.h"
#include "core/Varios.h"
#include "localidades/Ciudad.h"
#include "meteo/Leermet.h"
#include "psicro/Atmosfera.h"
#include "psicro/Psicrometrico.h"
#include "solar/Posicionsolar.h"

#include <array>

namespace tesmo {

namespace {

struct Casilla {
  const char *rotulo; ///< clave del valor y texto del mensaje
  const std::string &texto;
};

std::array<Casilla, 3> Casillas(const Seleccion::Superficie &superficie) {
  return {{{"Inclinación", superficie.inclinacion},
           {"Orientación", superficie.orientacion},
           {"Albedo", superficie.albedo}}};
}

/// Se mira el texto, antes de cargar nada; la primera casilla vacía se dice.
bool HayCasillaVacia(const Programa &programa, const Seleccion::Superficie &superficie) {
  for (const Casilla &casilla : Casillas(superficie)) {
    if (!casilla.texto.empty()) continue;
    DecirUnaVez(programa, MENSAJE_CASILLA_VACIA, casilla.rotulo);
    return true;
  }
  return false;
}

ResultadoCarga FicheroNoAbierto(Programa &programa, const std::string &nombre) {
  programa.PonLocalidadCargada({});
  DecirUnaVez(programa, MENSAJE_FICHERO_METEO, nombre);
  return ResultadoCarga::FicheroNoAbierto;
}

ResultadoCarga SinLocalidad(const Programa &programa) {
  DecirUnaVez(programa, MENSAJE_FICHERO_METEO, SIN_LOCALIDAD);
  return ResultadoCarga::SinLocalidad;
}

/// La entrada validada dice lo que está fuera de límites y calla lo que no es un número: eso se dice aquí. En
/// los dos casos se sigue con el valor por defecto.
void PonSuperficie(Programa &programa, const Seleccion::Superficie &superficie) {
  const std::array<std::string, 3> textos{superficie.inclinacion, superficie.orientacion, superficie.albedo};
  Accion *accion = programa.DameAccion();
  if (accion != nullptr && accion->superficie == textos) return;
  if (accion != nullptr) accion->superficie = textos;
  for (const Casilla &casilla : Casillas(superficie)) {
    if (!RealTecleado(casilla.texto)) DecirUnaVez(programa, MENSAJE_VALOR_INCORRECTO, casilla.rotulo);
    programa.DameLeerMet()->PonTexto(casilla.rotulo, casilla.texto);
  }
}

/// Superficie, período y presión de la selección, con los datos ya cargados.
void Aplicar(Programa &programa, const Seleccion &seleccion) {
  PonSuperficie(programa, seleccion.DameSuperficie());
  const auto &[inicio, fin] = seleccion.DamePeriodo();
  programa.DameLeerMet()->PonPeriodo(inicio.mes, inicio.dia, inicio.hora, fin.mes, fin.dia, fin.hora);
  if (programa.DamePsicro() != nullptr) programa.DamePsicro()->ponAltitud(AltitudEnUso(programa, seleccion));
}

ResultadoCarga Leer(Programa &programa, const Seleccion &seleccion, const std::string &ruta,
                    const std::string &nombre) {
  LeerMet *meteo = programa.DameLeerMet();
  if (meteo == nullptr || !meteo->LeerFichero(ruta)) return FicheroNoAbierto(programa, nombre);
  programa.PonLocalidadCargada(nombre);
  meteo->PonTexto("Localidad", nombre);
  meteo->PonTexto("Provincia", seleccion.DameProvincia());
  Aplicar(programa, seleccion);
  return ResultadoCarga::Cargada;
}

} // namespace

ResultadoCarga CargarLocalidad(Programa &programa, const Seleccion &seleccion) {
  if (!seleccion.HayLocalidad()) return SinLocalidad(programa);
  seleccion.PedirLoPendiente();
  if (HayCasillaVacia(programa, seleccion.DameSuperficie())) return ResultadoCarga::CasillaVacia;
  const std::string &localidad = seleccion.DameLocalidad();
  BaseDeLocalidades &base = *programa.DameLocalidades();
  base.PonTexto("Ciudad", localidad);
  // Se pregunta por la localidad y no por la que esté en curso: la base es de todas las ventanas.
  const std::string fichero = base.DameTextoDe(localidad, "Fichero");
  if (fichero.empty()) return FicheroNoAbierto(programa, localidad);
  return Leer(programa, seleccion, DameConfiguracion().RutaMeteo(fichero), localidad);
}

ResultadoCarga CargarFichero(Programa &programa, const Seleccion &seleccion, const std::string &ruta,
                             const std::string &nombre) {
  seleccion.PedirLoPendiente();
  if (HayCasillaVacia(programa, seleccion.DameSuperficie())) return ResultadoCarga::CasillaVacia;
  return Leer(programa, seleccion, ruta, nombre);
}

ResultadoCarga AsegurarCarga(Programa &programa, const Seleccion &seleccion) {
  if (!seleccion.HayLocalidad()) return SinLocalidad(programa);
  if (programa.DameLocalidadCargada() != seleccion.DameLocalidad())
    return CargarLocalidad(programa, seleccion);
  seleccion.PedirLoPendiente();
  if (HayCasillaVacia(programa, seleccion.DameSuperficie())) return ResultadoCarga::CasillaVacia;
  Aplicar(programa, seleccion);
  return ResultadoCarga::Cargada;
}

ResultadoCarga PrepararDatos(Programa &programa, const Seleccion &seleccion) {
  const ResultadoCarga resultado = AsegurarCarga(programa, seleccion);
  if (resultado != ResultadoCarga::Cargada) return resultado;
  if (programa.DamePsicro() != nullptr && programa.DamePosicionSolar() != nullptr)
    programa.DameLeerMet()->AsegurarDerivadas(programa.DamePsicro()->damePresion(),
                                              *programa.DamePosicionSolar());
  return resultado;
}

float AltitudEnUso(const Programa &programa, const Seleccion &seleccion) {
  const LeerMet *meteo = programa.DameLeerMet();
  const float delFichero = meteo != nullptr && programa.HayDatos() ? meteo->TercerDato() : 0.0F;
  const float altitud = seleccion.DameAltitudUsuario().value_or(delFichero);
  return AltitudCreible(altitud) ? altitud : 0.0F;
}

} // namespace tesmo
