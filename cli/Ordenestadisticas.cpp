#include "cli/Ordenes.h"

#include "app/Programa.h"
#include "cli/Argumentos.h"
#include "cli/Opcionesseleccion.h"
#include "cli/Tabla.h"
#include "meteo/Leermet.h"

#include <memory>

namespace tesmo::cli {

namespace {

struct Datos {
  OpcionesSeleccion seleccion;
  std::vector<std::string> variables;
  std::optional<std::string> baseCalefaccion, baseRefrigeracion, horas, registro;
  bool json = false;
};

/// Bases de los grados-día [ºC].
struct Bases {
  float calefaccion = 15.0F;
  float refrigeracion = 25.0F;
};

Bases LeerBases(const Datos &datos) {
  Bases bases;
  if (datos.baseCalefaccion)
    bases.calefaccion = static_cast<float>(LeerNumero(*datos.baseCalefaccion, "--base-cal"));
  if (datos.baseRefrigeracion)
    bases.refrigeracion = static_cast<float>(LeerNumero(*datos.baseRefrigeracion, "--base-ref"));
  return bases;
}

std::vector<Celda> Fila(const LeerMet &meteo, Magnitud magnitud, const Bases &bases) {
  ResultadoEstadisticas r;
  const std::string rotulo(Ficha(magnitud).rotulo);
  meteo.Estadisticas(rotulo, bases.calefaccion, bases.refrigeracion, r.maximo, r.minimo, r.media,
                     r.gradosDiaCalefaccion, r.gradosDiaRefrigeracion, r.tercerSumatorio, r.unidad);
  std::vector<Celda> fila{rotulo, r.unidad};
  for (const float valor :
       {r.maximo, r.minimo, r.media, r.gradosDiaCalefaccion, r.gradosDiaRefrigeracion, r.tercerSumatorio})
    fila.emplace_back(static_cast<double>(valor));
  return fila;
}

void Ejecutar(const Datos &datos, Contexto &contexto) {
  const std::vector<Magnitud> magnitudes = LeerMagnitudes(datos.variables);
  const PeticionSeleccion peticion = Interpretar(datos.seleccion);
  const Bases bases = LeerBases(datos);
  const auto [primera, ultima] = LeerHoras(datos.horas.value_or("1-24"), "--horas");
  IniciarRegistro(datos.registro);
  std::optional<Programa> programa;
  Cargar(peticion, contexto, programa);
  programa->DameLeerMet()->PonHorasDelDia(primera, ultima);
  Tabla tabla(Tabla::Forma::ConCabecera, {"variable", "unidad", "maximo", "minimo", "media",
                                          "grados_dia_calefaccion", "grados_dia_refrigeracion", "depresion"});
  for (const Magnitud magnitud : magnitudes) tabla.Anadir(Fila(*programa->DameLeerMet(), magnitud, bases));
  contexto.salida << tabla.Como(datos.json);
}

} // namespace

void RegistrarEstadisticas(CLI::App &raiz, Contexto &contexto) {
  const auto datos = std::make_shared<Datos>();
  CLI::App &orden = NuevaOrden(
      raiz, "estadisticas",
      {"Extremos, medias y grados-día de las variables",
       "Escribe una cabecera y una línea por variable: rótulo, unidad, máximo, mínimo, media, grados-día de\n"
       "calefacción y de refrigeración, y depresión respecto a la temperatura exterior.",
       "estadisticas --localidad Granada TS\n"
       "estadisticas --localidad Granada --desde 6/1/1 --hasta 9/30/24 --horas 9-20 --base-ref 26 TS TH G"});
  AnadirSeleccion(orden, datos->seleccion);
  AnadirValor(orden, "--base-cal", datos->baseCalefaccion, "GRADOS", "Base de calefacción [ºC] (15)");
  AnadirValor(orden, "--base-ref", datos->baseRefrigeracion, "GRADOS", "Base de refrigeración [ºC] (25)");
  AnadirValor(orden, "--horas", datos->horas, "A-B", "Horas del día que cuentan, las dos incluidas (1-24)");
  AnadirRegistro(orden, datos->registro);
  AnadirJson(orden, datos->json);
  AnadirArgumentos(orden, "VARIABLE", datos->variables, "Código (TS, RSDr, …, HAkg) o rótulo exacto")
      ->required();
  orden.callback(
      [datos, &contexto] { contexto.accion = [datos, &contexto] { Ejecutar(*datos, contexto); }; });
}

} // namespace tesmo::cli
