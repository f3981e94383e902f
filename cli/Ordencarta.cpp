#include "cli/Ordenes.h"

#include "app/Programa.h"
#include "cli/Argumentos.h"
#include "cli/Lienzostexto.h"
#include "cli/Opcionescarta.h"
#include "cli/Opcionesseleccion.h"
#include "core/Ficheros.h"
#include "meteo/Estadoshorarios.h"
#include "psicro/Marcacarta.h"
#include "psicro/Psicrometrico.h"

#ifdef TESMO_CON_IMAGEN
#include "imagen/Imagencarta.h"
#endif

#include <algorithm>
#include <functional>
#include <memory>

namespace tesmo::cli {

namespace {

using DibujarEn = std::function<void(Lienzo &)>;
using Guardar = bool (*)(const std::string &ruta, int ancho, int alto, const DibujarEn &dibujar);

struct Datos {
  OpcionesSeleccion seleccion;
  OpcionesCarta carta;
  std::optional<std::string> horas, salida, registro;
  bool ordenes = false;
};

bool GuardarSvg(const std::string &ruta, int ancho, int alto, const DibujarEn &dibujar) {
  LienzoSvg lienzo(ancho, alto);
  dibujar(lienzo);
  return EscribirFicheroEntero(RutaDesdeTexto(ruta), lienzo.Documento());
}

#ifdef TESMO_CON_IMAGEN
constexpr Guardar GUARDAR_PNG = GuardarPng;
constexpr Guardar GUARDAR_PDF = GuardarPdf;
#else
constexpr Guardar GUARDAR_PNG = nullptr;
constexpr Guardar GUARDAR_PDF = nullptr;
#endif

/// Quién guarda según la extensión de @p ruta.
Guardar ElegirGuardar(const std::string &ruta) {
  std::string extension = TextoDeRuta(RutaDesdeTexto(ruta).extension());
  for (char &c : extension)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  if (extension == ".svg") return GuardarSvg;
  if (extension != ".png" && extension != ".pdf")
    throw Fallo(Estado::UsoIncorrecto, "-o: «" + ruta + "» no acaba en .png, .svg ni .pdf");
  const Guardar guardar = extension == ".png" ? GUARDAR_PNG : GUARDAR_PDF;
  if (guardar == nullptr)
    throw Fallo(Estado::UsoIncorrecto, "este programa se ha construido sin ventanas y sólo dibuja en .svg");
  return guardar;
}

bool HayDatos(const OpcionesSeleccion &opciones) { return opciones.localidad || opciones.fichero; }

void ExigirDatos(const Datos &datos) {
  const OpcionesSeleccion &o = datos.seleccion;
  if (o.desde || o.hasta || o.inclinacion || o.orientacion || o.albedo || o.horizonte || datos.horas)
    throw Fallo(Estado::UsoIncorrecto, "sin --localidad ni --fichero no hay horas que representar");
}

/// Pone la presión de la carta y devuelve los estados que hay que marcar en ella.
std::vector<EstadoHorario> Preparar(const Datos &datos, Contexto &contexto, Psicro &carta) {
  if (!HayDatos(datos.seleccion)) {
    ExigirDatos(datos);
    const PeticionPresion pedida = InterpretarPresion(datos.seleccion);
    if (pedida.presion) carta.ponPresion(*pedida.presion);
    if (pedida.altitud) carta.ponAltitud(AltitudUsada(*pedida.altitud, contexto));
    IniciarRegistro(datos.registro);
    return {};
  }
  const auto horas = LeerHoras(datos.horas.value_or("1-24"), "--horas");
  const PeticionSeleccion peticion = Interpretar(datos.seleccion);
  IniciarRegistro(datos.registro);
  std::optional<Programa> programa;
  Cargar(peticion, contexto, programa);
  carta.ponPresion(programa->DamePsicro()->damePresion());
  return EstadosDelPeriodo(*programa->DameLeerMet(), horas.first, horas.second);
}

void Ejecutar(const Datos &datos, Contexto &contexto) {
  if (datos.ordenes == datos.salida.has_value())
    throw Fallo(Estado::UsoIncorrecto, "hay que dar -o o --ordenes, y sólo una de las dos");
  const TamanoCarta tamano = InterpretarTamano(datos.carta);
  const Guardar guardar = datos.ordenes ? nullptr : ElegirGuardar(*datos.salida);
  const std::string salida = RutaAbsoluta(datos.salida.value_or(""));
  Psicro carta;
  Aplicar(datos.carta, carta);
  const std::vector<EstadoHorario> nube = Preparar(datos, contexto, carta);
  const auto dibujar = [&](Lienzo &lienzo) {
    carta.dibujar(lienzo, tamano.ancho, tamano.alto);
    for (const EstadoHorario &estado : nube) MarcarPunto(lienzo, carta, estado.t, estado.w, COLOR_MARCA);
  };
  if (datos.ordenes) {
    LienzoOrdenes lienzo(contexto.salida);
    dibujar(lienzo);
  } else if (!guardar(salida, tamano.ancho, tamano.alto, dibujar)) {
    throw Fallo(Estado::FaltaSalida, "no se pudo escribir: " + salida);
  }
}

} // namespace

void RegistrarCarta(CLI::App &raiz, Contexto &contexto) {
  const auto datos = std::make_shared<Datos>();
  CLI::App &orden = NuevaOrden(
      raiz, "carta",
      {"Carta psicrométrica, sola o con las horas de una localidad",
       "La dibuja en un fichero, según su extensión, o escribe sus trazos, uno por línea: «color 0xBBGGRR»,\n"
       "«mover X Y», «linea X Y» y, en las marcas de las horas, «grueso N».",
       "carta -o carta.svg --altitud 650\n"
       "carta -o enero.png --localidad Granada --hasta 1/31/24 --horas 9-18\n"
       "carta --ordenes --sin w,h,ve --tmax 40"});
  AnadirValor(orden, "-o,--salida", datos->salida, "FICHERO", "Dibujo .svg, .png o .pdf");
  AnadirInterruptor(orden, "--ordenes", datos->ordenes, "Escribe los trazos en vez de dibujarlos");
  AnadirCarta(orden, datos->carta);
  AnadirSeleccion(orden, datos->seleccion);
  AnadirValor(orden, "--horas", datos->horas, "A-B", "Horas del día que se marcan, las dos incluidas (1-24)");
  AnadirRegistro(orden, datos->registro);
  AlEjecutar(orden, contexto, datos, Ejecutar);
}

} // namespace tesmo::cli
