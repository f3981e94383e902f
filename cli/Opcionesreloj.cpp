#include "cli/Opcionesreloj.h"

#include "cli/Argumentos.h"

#include <array>
#include <utility>

namespace tesmo::cli {

void AnadirReloj(CLI::App &orden, OpcionesReloj &opciones) {
  AnadirValor(orden, "--reloj", opciones.reloj, "CUAL",
              "Tiempo de las etiquetas: auto, solar, oficial o utc (auto: el que dicen los datos)");
  AnadirValor(orden, "--desfase", opciones.desfase, "MIN",
              "Del centro de la hora a su etiqueta, -90 a 90 (-30: la etiqueta es el final)");
  orden.add_flag("--rellenar", opciones.rellenar,
                 "Llena los huecos de más de tres horas con los días vecinos");
}

EleccionReloj InterpretarReloj(const OpcionesReloj &opciones) {
  constexpr std::array<std::pair<const char *, std::optional<TiempoEtiqueta>>, 4> RELOJES{
      {{"auto", std::nullopt},
       {"solar", TiempoEtiqueta::SolarVerdadero},
       {"oficial", TiempoEtiqueta::OficialEstandar},
       {"utc", TiempoEtiqueta::Utc}}};
  constexpr double MAXIMO_MIN = 90.0;
  EleccionReloj eleccion;
  if (opciones.desfase)
    eleccion.desfaseMin = LeerNumero(*opciones.desfase, "--desfase", -MAXIMO_MIN, MAXIMO_MIN);
  const std::string nombre = opciones.reloj.value_or("auto");
  for (const auto &[texto, tiempo] : RELOJES) {
    if (nombre != texto) continue;
    eleccion.tiempo = tiempo;
    return eleccion;
  }
  throw Fallo(Estado::UsoIncorrecto, "--reloj: no se conoce «" + nombre + "»");
}

OpcionesLectura InterpretarLectura(const OpcionesReloj &opciones) {
  OpcionesLectura lectura;
  if (opciones.rellenar) lectura.huecosLargos = HuecosLargos::RellenarVecinos;
  return lectura;
}

void AvisarDeFichero(const std::string &fichero, const AnioDeFichero &anio, Contexto &contexto) {
  for (const NotaLectura &nota : anio.lectura.avisos) Avisar(contexto, fichero + ": " + nota.texto);
  for (const std::string &aviso : anio.veredicto.avisos) Avisar(contexto, fichero + ": " + aviso);
  for (const std::string &error : anio.errores)
    contexto.error << "Error: " << fichero << ": " << error << '\n';
}

} // namespace tesmo::cli
