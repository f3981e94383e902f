#include "cli/Argumentos.h"
#include "cli/Latitud.h"
#include "cli/Opcionesseleccion.h"
#include "cli/Ordenes.h"
#include "cli/Secciones.h"
#include "solar/Curvassol.h"

#include <memory>

namespace tesmo::cli {

namespace {

constexpr int MESES = static_cast<int>(MESES_DEL_ANIO);
constexpr int DIAS_MAXIMOS = 31;

struct Datos {
  std::optional<std::string> latitud, mes, dia;
  bool json = false;
};

Celda Real(float valor) { return static_cast<double>(valor); }

std::string CurvasDelDia(const Datos &datos) {
  const int mes = LeerEntero(*datos.mes, "MES", 1, MESES);
  const int dia = LeerEntero(*datos.dia, "DIA", 1, DIAS_MAXIMOS);
  const auto curvas = CurvasDeDia(LeerLatitud(*datos.latitud), mes, dia);
  Tabla curva(Tabla::Forma::SinCabecera, {"t", "acimut", "altura"});
  for (const PuntoSolar &p : curvas.curva) curva.Anadir({Real(p.t), Real(p.acimut), Real(p.altura)});
  Tabla horas(Tabla::Forma::SinCabecera, {"hora", "acimut", "altura"});
  for (int h = 0; h < HORAS_DEL_DIA; ++h) {
    for (const PuntoSolar &p : curvas.horas[static_cast<std::size_t>(h)])
      horas.Anadir({h, Real(p.acimut), Real(p.altura)});
  }
  return ComoSecciones({{"curva", "curva", std::move(curva)}, {"horas", "hora", std::move(horas)}},
                       datos.json);
}

std::string CurvasDelAnio(const Datos &datos) {
  const int dia = LeerEntero(*datos.dia, "DIA", 1, DIAS_MAXIMOS);
  const auto curvas = CurvasDeMeses(LeerLatitud(*datos.latitud), dia);
  Tabla meses(Tabla::Forma::SinCabecera, {"mes", "t", "acimut", "altura"});
  for (int mes = 1; mes <= MESES; ++mes) {
    for (const PuntoSolar &p : curvas.meses[static_cast<std::size_t>(mes - 1)])
      meses.Anadir({mes, Real(p.t), Real(p.acimut), Real(p.altura)});
  }
  Tabla horas(Tabla::Forma::SinCabecera, {"hora", "mes", "acimut", "altura"});
  for (int h = 0; h < HORAS_DEL_DIA; ++h) {
    for (const auto &[mes, p] : curvas.horas[static_cast<std::size_t>(h)])
      horas.Anadir({h, mes, Real(p.acimut), Real(p.altura)});
  }
  return ComoSecciones({{"meses", "mes", std::move(meses)}, {"horas", "hora", std::move(horas)}}, datos.json);
}

void RegistrarUna(CLI::App &sol, Contexto &contexto, const std::string &nombre, const AyudaOrden &ayuda,
                  std::string (*calcular)(const Datos &), bool conMes) {
  const auto datos = std::make_shared<Datos>();
  CLI::App &orden = NuevaOrden(sol, nombre, ayuda);
  Exigir(AnadirArgumento(orden, "LAT", datos->latitud, AYUDA_LATITUD));
  if (conMes) Exigir(AnadirArgumento(orden, "MES", datos->mes, "1 a 12"));
  Exigir(AnadirArgumento(orden, "DIA", datos->dia, "1 a 31; uno que el mes no tiene cuenta en el siguiente"));
  AnadirJson(orden, datos->json);
  AlEjecutar(orden, contexto, datos,
             [calcular](const Datos &pedido, Contexto &donde) { donde.salida << calcular(pedido); });
}

} // namespace

void RegistrarSolCurvas(CLI::App &sol, Contexto &contexto) {
  RegistrarUna(sol, contexto, "dia",
               {"El camino del sol de un día",
                "Escribe la curva de centésima en centésima de hora, «curva t acimut altura», y después las "
                "horas en punto, «hora h acimut altura». Si el sol no sale no escribe nada.",
                "sol dia 36.84 6 21\nsol dia 36.84 12 21 --json"},
               CurvasDelDia, true);
  RegistrarUna(sol, contexto, "meses",
               {"El camino del sol del mismo día de cada mes",
                "Escribe las doce curvas, «mes m t acimut altura», y después las horas en punto, «hora h m "
                "acimut altura». Un día que el mes no tiene cuenta en el siguiente.",
                "sol meses 36.84 21"},
               CurvasDelAnio, false);
}

} // namespace tesmo::cli
