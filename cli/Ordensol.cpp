#include "cli/Ordenes.h"

#include "cli/Argumentos.h"
#include "cli/Latitud.h"
#include "cli/Opcionesseleccion.h"
#include "cli/Tabla.h"
#include "solar/Posicionsolar.h"

#include <memory>

namespace tesmo::cli {

namespace {

struct Datos {
  std::optional<std::string> latitud, mes, dia, hora, registro;
  bool json = false;
};

/// Momento y lugar ya comprobados.
struct Momento {
  float latitud = 0.0F;
  int mes = 1;
  int dia = 1;
  float hora = 0.0F;
};

Momento LeerMomento(const Datos &datos) {
  Momento m;
  m.latitud = LeerLatitud(*datos.latitud);
  m.mes = LeerEntero(*datos.mes, "MES", 1, 12);
  m.dia = LeerEntero(*datos.dia, "DIA", 1, 31);
  if (datos.hora) m.hora = static_cast<float>(LeerNumero(*datos.hora, "HORA", 0.0, HORAS_DEL_DIA));
  return m;
}

Tabla Salida(const Momento &m) {
  PosicionSolar sol(m.latitud, m.mes, m.dia, m.hora);
  const SalidaPuesta horas = sol.CalcularSalidaPuesta(m.latitud, m.mes, m.dia);
  Tabla tabla(Tabla::Forma::Registro, {"salida", "puesta", "declinacion"});
  tabla.Anadir({static_cast<double>(horas.salida), static_cast<double>(horas.puesta),
                static_cast<double>(sol.Declinacion())});
  return tabla;
}

Tabla Vector(const Momento &m) {
  PosicionSolar sol(m.latitud, m.mes, m.dia, m.hora);
  const VectorSolar v = sol.CalcularVectorSolar(m.latitud, m.mes, m.dia, m.hora);
  Tabla tabla(Tabla::Forma::Registro, {"S", "W", "Z"});
  tabla.Anadir({static_cast<double>(v.s), static_cast<double>(v.w), static_cast<double>(v.z)});
  return tabla;
}

Tabla Posicion(const Momento &m) {
  PosicionSolar sol(m.latitud, m.mes, m.dia, m.hora);
  const AngulosSolares a = sol.CalcularPosicion(m.latitud, m.mes, m.dia, m.hora);
  Tabla tabla(Tabla::Forma::Registro, {"acimut", "altura", "cenit", "dia"});
  tabla.Anadir({static_cast<double>(a.acimut), static_cast<double>(a.altura), static_cast<double>(a.cenit),
                sol.EsDeDia() ? 1 : 0});
  return tabla;
}

void RegistrarUna(CLI::App &sol, Contexto &contexto, const std::string &nombre, const AyudaOrden &ayuda,
                  Tabla (*calcular)(const Momento &), bool conHora) {
  const auto datos = std::make_shared<Datos>();
  CLI::App &orden = NuevaOrden(sol, nombre, ayuda);
  Exigir(AnadirArgumento(orden, "LAT", datos->latitud, AYUDA_LATITUD));
  Exigir(AnadirArgumento(orden, "MES", datos->mes, "1 a 12"));
  Exigir(AnadirArgumento(orden, "DIA", datos->dia, "1 a 31; uno que el mes no tiene cuenta en el siguiente"));
  if (conHora) Exigir(AnadirArgumento(orden, "HORA", datos->hora, "Hora solar verdadera, 0 a 24"));
  AnadirRegistro(orden, datos->registro);
  AnadirJson(orden, datos->json);
  AlEjecutar(orden, contexto, datos, [calcular](const Datos &pedido, Contexto &donde) {
    const Momento momento = LeerMomento(pedido);
    IniciarRegistro(pedido.registro);
    donde.salida << calcular(momento).Como(pedido.json);
  });
}

} // namespace

void RegistrarSol(CLI::App &raiz, Contexto &contexto) {
  CLI::App &sol = NuevaOrden(
      raiz, "sol",
      {"Geometría solar de un lugar y un momento",
       "Horas en tiempo solar verdadero: 12 es el mediodía. Año de 365 días: un día que el mes no tiene "
       "cuenta en el siguiente, y el 29 de febrero es el 1 de marzo.",
       "sol salida 36.84 6 21\nsol posicion -33.5 12 21 9.5"});
  ExigirOrdenDentro(sol);
  RegistrarUna(
      sol, contexto, "salida",
      {"Horas de salida y de puesta y declinación",
       "Escribe en una línea salida y puesta [h] y declinación [°]: -1 y 25 si el sol no se pone, -1 y -1 "
       "si no sale.",
       "sol salida 36.84 6 21"},
      Salida, false);
  RegistrarUna(sol, contexto, "vector",
               {"Vector unitario hacia el sol",
                "Escribe sus componentes sur, oeste y cenit; de noche, tres ceros.",
                "sol vector 36.84 6 21 10.5"},
               Vector, true);
  RegistrarUna(sol, contexto, "posicion",
               {"Acimut, altura y cenit del sol",
                "Escribe acimut (0 al sur, oeste positivo), altura y cenit [°], y 1 si es de día o 0 si no.",
                "sol posicion 36.84 6 21 10.5"},
               Posicion, true);
  RegistrarUna(
      sol, contexto, "momento",
      {"Lo que la carta solar enseña de un momento",
       "Lo mismo que «sol posicion»: acimut (0 al sur, oeste positivo), altura y cenit [°], y 1 si es "
       "de día o 0 si no.",
       "sol momento 36.84 6 21 10.5"},
      Posicion, true);
  RegistrarSolCurvas(sol, contexto);
  RegistrarSolAnual(sol, contexto);
}

} // namespace tesmo::cli
