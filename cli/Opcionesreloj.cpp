#include "cli/Opcionesreloj.h"

#include "cli/Argumentos.h"
#include "core/Ficheros.h"
#include "intercambio/comun/Aniocanonico.h"
#include "psicro/Atmosfera.h"

#include <array>
#include <utility>

namespace tesmo::cli {

void AnadirMapa(CLI::App &orden, std::optional<std::string> &mapa) {
  AnadirValor(orden, "--mapa", mapa, "MAPA",
              "Mapa de columnas con que se leen los ficheros (docs/formatos.md)");
}

std::shared_ptr<const MapaColumnas> InterpretarMapa(const std::optional<std::string> &mapa) {
  if (!mapa) return nullptr;
  const std::optional<std::string> texto =
      mapa->empty() ? std::nullopt
                    : LeerFicheroEntero(BuscarSinMayusculas(RutaDesdeTexto(RutaAbsoluta(*mapa))));
  if (!texto) throw Fallo(Estado::FaltaEntrada, "--mapa: no se puede abrir: " + *mapa);
  ResultadoMapa leido = LeerMapa(*texto);
  if (leido.mapa) return std::make_shared<const MapaColumnas>(std::move(*leido.mapa));
  std::string errores = "--mapa: " + *mapa;
  for (const NotaLectura &nota : leido.errores) errores += "\n  " + nota.texto;
  throw Fallo(Estado::FaltaEntrada, errores);
}

void AnadirReloj(CLI::App &orden, OpcionesReloj &opciones) {
  AnadirValor(orden, "--reloj", opciones.reloj, "CUAL",
              "Tiempo de las etiquetas: auto, solar, oficial o utc (auto: el que dicen los datos)");
  AnadirValor(orden, "--desfase", opciones.desfase, "MIN",
              "De la etiqueta al centro de su hora, -90 a 90 (-30: la etiqueta es el final)");
  AnadirValor(
      orden, "--huso", opciones.huso, "H",
      "Huso de la hora oficial de invierno, -14 a 14 (si no se da, el del fichero o el de la longitud)");
  AnadirValor(orden, "--altitud", opciones.altitud, "M",
              "Altitud del sitio, -500 a 9000 (si no se da, la del fichero)");
  AnadirMapa(orden, opciones.mapa);
  AnadirInterruptor(orden, "--rellenar", opciones.rellenar,
                    "Llena los huecos de más de tres horas con los días vecinos");
}

EleccionReloj InterpretarReloj(const OpcionesReloj &opciones) {
  constexpr std::array<std::pair<const char *, std::optional<TiempoEtiqueta>>, 4> RELOJES{
      {{"auto", std::nullopt},
       {"solar", TiempoEtiqueta::SolarVerdadero},
       {"oficial", TiempoEtiqueta::OficialEstandar},
       {"utc", TiempoEtiqueta::Utc}}};
  EleccionReloj eleccion;
  if (opciones.desfase)
    eleccion.desfaseMin = LeerNumero(*opciones.desfase, "--desfase", -DESFASE_MAXIMO_MIN, DESFASE_MAXIMO_MIN);
  if (opciones.huso) eleccion.husoHoras = LeerNumero(*opciones.huso, "--huso", -HUSO_MAXIMO, HUSO_MAXIMO);
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
  if (opciones.altitud)
    lectura.altitud = LeerNumero(*opciones.altitud, "--altitud", ALTITUD_MINIMA, ALTITUD_MAXIMA);
  lectura.mapa = InterpretarMapa(opciones.mapa);
  if (opciones.rellenar) lectura.huecosLargos = HuecosLargos::RellenarVecinos;
  return lectura;
}

void AvisarDeFichero(const std::string &fichero, const AnioDeFichero &anio, Contexto &contexto) {
  for (const std::string &aviso : AvisosDe(anio)) Avisar(contexto, fichero + ": " + aviso);
  for (const std::string &error : anio.errores)
    contexto.error << "Error: " << fichero << ": " << error << '\n';
}

} // namespace tesmo::cli
