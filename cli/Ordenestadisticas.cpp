#include "cli/Ordenes.h"

#include "app/Programa.h"
#include "cli/Argumentos.h"
#include "cli/Opcionesvariables.h"
#include "cli/Tabla.h"
#include "meteo/Leermet.h"

#include <memory>

namespace tesmo::cli {

namespace {

struct Datos : OpcionesVariables {
  std::optional<std::string> baseCalefaccion, baseRefrigeracion, horas;
  bool mensual = false;
};

BasesGradosDia LeerBases(const Datos &datos) {
  BasesGradosDia bases;
  if (datos.baseCalefaccion)
    bases.calefaccion = static_cast<float>(LeerNumero(*datos.baseCalefaccion, "--base-cal"));
  if (datos.baseRefrigeracion)
    bases.refrigeracion = static_cast<float>(LeerNumero(*datos.baseRefrigeracion, "--base-ref"));
  return bases;
}

std::vector<Celda> Cifras(const ResultadoEstadisticas &r) {
  std::vector<Celda> cifras;
  for (const float valor :
       {r.maximo, r.minimo, r.media, r.gradosDiaCalefaccion, r.gradosDiaRefrigeracion, r.tercerSumatorio})
    cifras.emplace_back(static_cast<double>(valor));
  return cifras;
}

/// En la forma de --desde; vacía si ninguna hora contó.
std::string TextoFecha(const std::optional<FechaHora> &fecha) {
  if (!fecha) return {};
  return std::to_string(fecha->mes) + "/" + std::to_string(fecha->dia) + "/" + std::to_string(fecha->hora);
}

std::vector<Celda> Fila(const LeerMet &meteo, Magnitud magnitud, const BasesGradosDia &bases) {
  const ResultadoEstadisticas resultado = meteo.DameEstadisticas(magnitud, bases);
  std::vector<Celda> fila{std::string(Ficha(magnitud).rotulo), resultado.unidad};
  for (Celda &cifra : Cifras(resultado)) fila.push_back(std::move(cifra));
  return fila;
}

std::vector<Celda> FilaDelMes(Magnitud magnitud, const EstadisticasDelMes &mes) {
  std::vector<Celda> fila{std::string(Ficha(magnitud).rotulo), mes.resultado.unidad, mes.mes};
  for (Celda &cifra : Cifras(mes.resultado)) fila.push_back(std::move(cifra));
  fila.emplace_back(TextoFecha(mes.resultado.fechaMaximo));
  fila.emplace_back(TextoFecha(mes.resultado.fechaMinimo));
  return fila;
}

Tabla TablaDelPeriodo(const LeerMet &meteo, const std::vector<Magnitud> &magnitudes,
                      const BasesGradosDia &bases) {
  Tabla tabla(Tabla::Forma::ConCabecera, {"variable", "unidad", "maximo", "minimo", "media",
                                          "grados_dia_calefaccion", "grados_dia_refrigeracion", "depresion"});
  for (const Magnitud magnitud : magnitudes) tabla.Anadir(Fila(meteo, magnitud, bases));
  return tabla;
}

Tabla TablaPorMeses(const LeerMet &meteo, const std::vector<Magnitud> &magnitudes,
                    const BasesGradosDia &bases) {
  Tabla tabla(Tabla::Forma::ConCabecera,
              {"variable", "unidad", "mes", "maximo", "minimo", "media", "grados_dia_calefaccion",
               "grados_dia_refrigeracion", "depresion", "fecha_maximo", "fecha_minimo"});
  for (const Magnitud magnitud : magnitudes)
    for (const EstadisticasDelMes &mes : meteo.DameEstadisticasPorMes(magnitud, bases))
      tabla.Anadir(FilaDelMes(magnitud, mes));
  return tabla;
}

void Ejecutar(const Datos &datos, Contexto &contexto) {
  const std::vector<Magnitud> magnitudes = LeerMagnitudes(datos.variables);
  const PeticionSeleccion peticion = Interpretar(datos.seleccion);
  const BasesGradosDia bases = LeerBases(datos);
  const auto [primera, ultima] = LeerHoras(datos.horas.value_or("1-24"), "--horas");
  IniciarRegistro(datos.registro);
  std::optional<Programa> programa;
  Cargar(peticion, contexto, programa);
  LeerMet &meteo = *programa->DameLeerMet();
  meteo.PonHorasDelDia(primera, ultima);
  const Tabla tabla =
      datos.mensual ? TablaPorMeses(meteo, magnitudes, bases) : TablaDelPeriodo(meteo, magnitudes, bases);
  contexto.salida << tabla.Como(datos.json);
}

} // namespace

void RegistrarEstadisticas(CLI::App &raiz, Contexto &contexto) {
  const auto datos = std::make_shared<Datos>();
  CLI::App &orden = NuevaOrden(
      raiz, "estadisticas",
      {"Extremos, medias y grados-día de las variables",
       "Escribe una cabecera y una línea por variable: rótulo, unidad, máximo, mínimo, media, grados-día de\n"
       "calefacción y de refrigeración, y depresión respecto a la temperatura exterior. Con --mensual, una "
       "línea\n"
       "por variable y mes del período, con la fecha de los extremos.",
       "estadisticas --localidad Granada TS\n"
       "estadisticas --localidad Granada --desde 6/1/1 --hasta 9/30/24 --horas 9-20 --base-ref 26 TS TH G"});
  AnadirSeleccion(orden, datos->seleccion);
  AnadirValor(orden, "--base-cal", datos->baseCalefaccion, "GRADOS", "Base de calefacción [°C] (15)");
  AnadirValor(orden, "--base-ref", datos->baseRefrigeracion, "GRADOS", "Base de refrigeración [°C] (25)");
  AnadirValor(orden, "--horas", datos->horas, "A-B", "Horas del día que cuentan, las dos incluidas (1-24)");
  AnadirInterruptor(orden, "--mensual", datos->mensual, "Una línea por mes, con la fecha de los extremos");
  AnadirVariables(orden, *datos);
  AlEjecutar(orden, contexto, datos, Ejecutar);
}

} // namespace tesmo::cli
