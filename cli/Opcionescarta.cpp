#include "cli/Opcionescarta.h"

#include "cli/Argumentos.h"
#include "cli/Contexto.h"
#include "psicro/Psicrometrico.h"

#include <array>
#include <limits>

namespace tesmo::cli {

namespace {

/// Lado mayor que cabe en una imagen [píxeles].
constexpr int LADO_MAXIMO = 32767;

struct FichaFamilia {
  const char *codigo;
  Familia familia;
  const char *que;
};
constexpr std::array<FichaFamilia, NUMERO_FAMILIAS> FAMILIAS{
    {{"t", Familia::T, "temperatura seca [°C]"},
     {"w", Familia::W, "humedad absoluta [kg/kg]"},
     {"h", Familia::H, "entalpía [J/kg]"},
     {"hr", Familia::HR, "humedad relativa [%]"},
     {"ve", Familia::VE, "volumen específico [m³/kg]"}}};

struct FichaExtremo {
  const char *codigo;
  float Rango::*valor;
  const char *que;
};
constexpr std::array<FichaExtremo, 3> EXTREMOS{{{"max", &Rango::maximo, "Última línea de "},
                                                {"min", &Rango::minimo, "Primera línea de "},
                                                {"paso", &Rango::paso, "Paso entre líneas de "}}};

/// Recorre las quince opciones de rango con su posición.
template <typename Accion>
void ParaCadaRango(Accion &&accion) {
  std::size_t i = 0;
  for (const FichaFamilia &familia : FAMILIAS)
    for (const FichaExtremo &extremo : EXTREMOS) accion(i++, familia, extremo);
}

std::string Nombre(const FichaFamilia &familia, const FichaExtremo &extremo) {
  return std::string("--") + familia.codigo + extremo.codigo;
}

void Ocultar(const std::string &codigo, Psicro &carta) {
  for (const FichaFamilia &familia : FAMILIAS) {
    if (codigo != familia.codigo) continue;
    carta.ponVisible(familia.familia, false);
    return;
  }
  throw Fallo(Estado::UsoIncorrecto, "--sin: no se conoce «" + codigo + "»; valen t, w, h, hr y ve");
}

void AplicarSin(const std::string &lista, Psicro &carta) {
  std::size_t inicio = 0;
  for (std::size_t coma = lista.find(','); coma != std::string::npos; coma = lista.find(',', inicio)) {
    Ocultar(lista.substr(inicio, coma - inicio), carta);
    inicio = coma + 1;
  }
  Ocultar(lista.substr(inicio), carta);
}

struct FichaVista {
  const char *nombre;
  std::optional<std::string> OpcionesCarta::*valor;
  const char *tipo;
  const char *que;
};
/// Lo que no es un extremo de una familia.
constexpr std::array<FichaVista, 6> VISTA{
    {{"--sin", &OpcionesCarta::sin, "FAMILIAS", "Las que no se dibujan, con comas: t,w,h,hr,ve"},
     {"--zoom", &OpcionesCarta::zoom, "N", "Aumento entero (1)"},
     {"--dx", &OpcionesCarta::dx, "PIXELES", "Desplazamiento horizontal de la vista (0)"},
     {"--dy", &OpcionesCarta::dy, "PIXELES", "Desplazamiento vertical de la vista (0)"},
     {"--v3", &OpcionesCarta::v3, "N", "Arranque de las curvas de humedad con aumento (0)"},
     {"--v4", &OpcionesCarta::v4, "N", "Cuarto entero de la vista, sin efecto (0)"}}};

int Entero(const std::optional<std::string> &texto, const char *que, int minimo, int maximo, int porDefecto) {
  return texto ? LeerEntero(*texto, que, minimo, maximo) : porDefecto;
}

int Entero32(const std::optional<std::string> &texto, const char *que) {
  return Entero(texto, que, std::numeric_limits<std::int32_t>::min(),
                std::numeric_limits<std::int32_t>::max(), 0);
}

} // namespace

void AnadirCarta(CLI::App &orden, OpcionesCarta &opciones) {
  AnadirValor(orden, "--ancho", opciones.ancho, "PIXELES", "Ancho del dibujo (900)");
  AnadirValor(orden, "--alto", opciones.alto, "PIXELES", "Alto del dibujo (600)");
  ParaCadaRango([&](std::size_t i, const FichaFamilia &familia, const FichaExtremo &extremo) {
    AnadirValor(orden, Nombre(familia, extremo), opciones.rangos[i], "VALOR",
                std::string(extremo.que) + familia.que);
  });
  for (const FichaVista &ficha : VISTA)
    AnadirValor(orden, ficha.nombre, opciones.*ficha.valor, ficha.tipo, ficha.que);
}

TamanoCarta InterpretarTamano(const OpcionesCarta &opciones) {
  const TamanoCarta fabrica;
  return {Entero(opciones.ancho, "--ancho", 1, LADO_MAXIMO, fabrica.ancho),
          Entero(opciones.alto, "--alto", 1, LADO_MAXIMO, fabrica.alto)};
}

void Aplicar(const OpcionesCarta &opciones, Psicro &carta) {
  ParaCadaRango([&](std::size_t i, const FichaFamilia &familia, const FichaExtremo &extremo) {
    if (!opciones.rangos[i]) return;
    Rango rango = carta.dameRango(familia.familia);
    rango.*extremo.valor = static_cast<float>(LeerNumero(*opciones.rangos[i], Nombre(familia, extremo)));
    carta.ponRango(familia.familia, rango);
  });
  if (opciones.sin) AplicarSin(*opciones.sin, carta);
  using Zoom = std::numeric_limits<std::int8_t>;
  const int zoom = Entero(opciones.zoom, "--zoom", Zoom::min(), Zoom::max(), 1);
  carta.ponVista(Entero32(opciones.dx, "--dx"), Entero32(opciones.dy, "--dy"), Entero32(opciones.v3, "--v3"),
                 Entero32(opciones.v4, "--v4"), static_cast<std::int8_t>(zoom));
}

} // namespace tesmo::cli
