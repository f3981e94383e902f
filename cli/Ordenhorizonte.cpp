#include "cli/Argumentos.h"
#include "cli/Latitud.h"
#include "cli/Opcionesseleccion.h"
#include "cli/Ordenes.h"
#include "cli/Perfildehorizonte.h"
#include "cli/Tabla.h"
#include "core/Ficheros.h"
#include "solar/Giroshorizonte.h"
#include "solar/Influenciahorizonte.h"

#include <algorithm>
#include <memory>

namespace tesmo::cli {

namespace {

constexpr int CUARTOS = 3; ///< cuatro cuartos de vuelta no giran nada

struct Datos {
  std::optional<std::string> entrada, salida, formato, girar, latitud;
  bool reflejar = false;
  bool cerrar = false;
  bool json = false;
};

HorizonteLeido LeerEntrada(const Datos &datos, Contexto &contexto) {
  return LeerHorizonteDado(RutaAbsoluta(*datos.entrada), *datos.entrada, contexto);
}

void EscribirSalida(const std::string &ruta, const std::string &texto) {
  if (!EscribirFicheroEntero(RutaDesdeTexto(ruta), texto))
    throw Fallo(Estado::FaltaSalida, "no se puede escribir el fichero: " + ruta);
}

void Leer(const Datos &datos, Contexto &contexto) {
  const HorizonteLeido leido = LeerEntrada(datos, contexto);
  Tabla puntos(Tabla::Forma::SinCabecera, {"acimut", "altura"});
  for (std::size_t i = 0; i < leido.perfil.X().size(); ++i) {
    puntos.Anadir({static_cast<double>(leido.perfil.X()[i]), static_cast<double>(leido.perfil.Y()[i])});
  }
  const std::string n = std::to_string(leido.perfil.Tamano());
  if (!datos.json) {
    contexto.salida << "n\t" << n << '\n' << puntos.ATexto();
    return;
  }
  std::string lista = puntos.AJson();
  lista.pop_back(); // su fin de línea
  contexto.salida << R"({"n":)" << n << R"(,"formato":")" << DatosDe(leido.formato).nombre << R"(","puntos":)"
                  << lista << "}\n";
}

void Guardar(const Datos &datos, Contexto &contexto) {
  const std::string salida = RutaDeSalida(datos.salida, "-o");
  const PerfilHorizonte perfil = LeerEntrada(datos, contexto).perfil;
  EscribirSalida(salida, TextoDePerfil(perfil));
  if (perfil.Tamano() > 1) {
    Avisar(contexto, *datos.salida +
                         ": este formato sólo guarda un punto de cada dos; con «horizonte convertir» "
                         "van todos");
  }
}

FormatoHorizonte FormatoDeSalida(const Datos &datos) {
  if (!datos.formato) return FormatoPorExtension(*datos.salida);
  const std::optional<FormatoHorizonte> formato = FormatoPorNombre(*datos.formato);
  if (formato) return *formato;
  throw Fallo(Estado::UsoIncorrecto, "--a: no se conoce el formato «" + *datos.formato + "»");
}

void Convertir(const Datos &datos, Contexto &contexto) {
  const FormatoHorizonte formato = FormatoDeSalida(datos);
  const int cuartos = datos.girar ? LeerEntero(*datos.girar, "--girar", -CUARTOS, CUARTOS) : 0;
  const std::string salida = RutaDeSalida(datos.salida, "-o");
  PerfilHorizonte perfil = LeerEntrada(datos, contexto).perfil;
  if (datos.reflejar) perfil = ReflejarPerfil(perfil);
  if (cuartos != 0) perfil = GirarPerfil(perfil, cuartos);
  if (datos.cerrar) perfil = CerrarVuelta(perfil);
  std::string fallo;
  if (!CabeEnFormato(perfil, formato, fallo)) throw Fallo(Estado::FaltaSalida, *datos.salida + ": " + fallo);
  EscribirSalida(salida, TextoDeHorizonte(perfil, formato));
}

void Efecto(const Datos &datos, Contexto &contexto) {
  const float latitud = LeerLatitud(*datos.latitud);
  const PerfilHorizonte perfil = PerfilParaUsar(LeerEntrada(datos, contexto));
  const HorasDeSolDelAnio horas = HorasDeSolPerdidas(perfil, latitud);
  Tabla tabla(Tabla::Forma::Propiedades, {"cielo", "horas_de_sol", "horas_perdidas"});
  tabla.Anadir({ParteDeCielo(perfil), horas.deSol, horas.perdidas});
  contexto.salida << tabla.Como(datos.json);
}

using Accion = void (*)(const Datos &, Contexto &);

/// Una orden de un fichero ya dada de alta, para ponerle sus demás opciones.
struct OrdenNueva {
  CLI::App &orden;
  std::shared_ptr<Datos> datos;
};

OrdenNueva RegistrarUna(CLI::App &horizonte, Contexto &contexto, const std::string &nombre,
                        const AyudaOrden &ayuda, Accion accion) {
  const auto datos = std::make_shared<Datos>();
  CLI::App &orden = NuevaOrden(horizonte, nombre, ayuda);
  Exigir(AnadirArgumento(orden, "FICHERO", datos->entrada, "Perfil de horizonte de cualquier formato"));
  AlEjecutar(orden, contexto, datos, accion);
  return {orden, datos};
}

void AnadirSalida(CLI::App &orden, Datos &datos) {
  Exigir(AnadirValor(orden, "-o,--salida", datos.salida, "FICHERO", "Fichero que se escribe (obligatorio)"));
}

void RegistrarLeer(CLI::App &horizonte, Contexto &contexto) {
  const auto [orden, datos] = RegistrarUna(
      horizonte, contexto, "leer",
      {"Enseña los puntos de un perfil de horizonte",
       "Escribe «n N» y una línea «acimut altura» [°] por punto, con el acimut 0 al sur y el oeste positivo. "
       "Reconoce los formatos de «horizonte convertir».",
       "horizonte leer sierra.txt\nhorizonte leer pvgis.csv --json"},
      Leer);
  AnadirJson(orden, datos->json);
}

void RegistrarGuardar(CLI::App &horizonte, Contexto &contexto) {
  const auto [orden, datos] = RegistrarUna(
      horizonte, contexto, "guardar",
      {"Guarda un perfil como lo guarda el programa",
       "El número de puntos y una línea «acimut, altura» por cada punto de posición par: la otra mitad se "
       "pierde. Para no perderla, «horizonte convertir».",
       "horizonte guardar sierra.csv -o sierra.txt"},
      Guardar);
  AnadirSalida(orden, *datos);
}

void RegistrarConvertir(CLI::App &horizonte, Contexto &contexto) {
  const auto [orden, datos] = RegistrarUna(
      horizonte, contexto, "convertir",
      {"Pasa un perfil de horizonte de un formato a otro",
       "Con todos sus puntos. Formatos: nativo (número de puntos y parejas), completo (.csv), pvgis "
       "(.pvgis), "
       "tabla desde el norte (.tsv) y alturas cada 10° desde el norte (.alturas). Sin --a se toma el de la "
       "extensión; si no es ninguna de ésas, el nativo.",
       "horizonte convertir pvgis.txt -o sierra.csv\nhorizonte convertir sierra.csv -o sierra.txt --a "
       "nativo\n"
       "horizonte convertir rara.txt -o sierra.csv --girar 2 --reflejar"},
      Convertir);
  AnadirSalida(orden, *datos);
  AnadirValor(orden, "--a", datos->formato, "NOMBRE", "nativo, completo, pvgis, tabla o alturas");
  AnadirInterruptor(orden, "--reflejar", datos->reflejar, "Cambia el este por el oeste");
  AnadirValor(orden, "--girar", datos->girar, "N", "Gira N cuartos de vuelta hacia el oeste, tras reflejar");
  AnadirInterruptor(orden, "--cerrar", datos->cerrar, "Añade al norte los puntos que cierran la vuelta");
}

void RegistrarEfecto(CLI::App &horizonte, Contexto &contexto) {
  const auto [orden, datos] = RegistrarUna(
      horizonte, contexto, "efecto",
      {"Lo que un horizonte quita en una latitud",
       "Escribe la parte de cielo que deja ver (1 sin horizonte), las horas de sol del año y las que "
       "el horizonte tapa.",
       "horizonte efecto sierra.csv 36.84"},
      Efecto);
  Exigir(AnadirArgumento(orden, "LAT", datos->latitud, AYUDA_LATITUD));
  AnadirJson(orden, datos->json);
}

} // namespace

void RegistrarHorizonte(CLI::App &raiz, Contexto &contexto) {
  CLI::App &horizonte =
      NuevaOrden(raiz, "horizonte",
                 {"Perfiles de horizonte: leerlos, guardarlos y convertirlos",
                  "Acimutes y alturas en grados, con el acimut 0 al sur y el oeste positivo.",
                  "horizonte leer sierra.txt\nhorizonte convertir pvgis.csv -o sierra.csv"});
  ExigirOrdenDentro(horizonte);
  RegistrarLeer(horizonte, contexto);
  RegistrarGuardar(horizonte, contexto);
  RegistrarConvertir(horizonte, contexto);
  RegistrarEfecto(horizonte, contexto);
}

} // namespace tesmo::cli
