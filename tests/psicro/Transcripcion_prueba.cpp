// Una sesión entera del lenguaje de órdenes: todos los textos que puede escribir, en su orden.
//
// Una cifra tras '~' vale con una diferencia relativa de 1e-4: sale de una búsqueda o de la presión de
// saturación. Esas cifras se han hallado aparte, por bisección en doble precisión de las mismas relaciones
// (Hyland y Wexler, 1983, y la del bulbo húmedo de ASHRAE); las demás son cuentas a mano.

#include "core/Ficheros.h"
#include "psicro/Corrienteaire.h"
#include "tests/comun/Apoyos.h"

#include <cmath>
#include <gtest/gtest.h>
#include <memory>
#include <sstream>

using namespace tesmo;
using Textos = std::vector<std::string>;

namespace {

constexpr const char *MAL = "** ARGUMENTOS NO VÁLIDOS PARA CorrienteAire::ProcesarOrden";
constexpr const char *FALTA = "Alguno de los objetos no existe:CorrienteAire::ProcesarOrden";
constexpr const char *SIN_ROCIO =
    "**Error 3: El proceso iterativo no ha convergido: CorrienteAire::tSatVap(float p_)";
constexpr const char *SIN_BULBO_HUMEDO =
    "**Error 3: El proceso iterativo no ha convergido: CorrienteAire::tBulboHumedo(float t_,float w_)";
constexpr const char *SIN_UNIDAD = "** cod no valido: Void CorrienteAire::ponm(char* cod, float m_)";
constexpr char APROXIMADO = '~';
constexpr const char *CUALQUIERA = "~"; ///< la última estimación de una búsqueda sin fin: vale lo que valga

bool Coinciden(const std::string &texto, const std::string &esperado) {
  const std::size_t marca = esperado.find(APROXIMADO);
  if (marca == std::string::npos) return texto == esperado;
  if (esperado == CUALQUIERA) return true;
  if (texto.substr(0, marca) != esperado.substr(0, marca)) return false;
  std::size_t leidos = 0;
  std::size_t escritos = 0;
  const double obtenido = std::stod(texto.substr(marca), &leidos);
  const double pedido = std::stod(esperado.substr(marca + 1), &escritos);
  const std::string resto = esperado.substr(marca + 1 + escritos);
  constexpr double RELATIVA = 1e-4;
  return std::abs(obtenido - pedido) <= RELATIVA * std::abs(pedido) &&
         Coinciden(texto.substr(marca + leidos), resto);
}

/// Las corrientes de la sesión y lo que escriben.
class Sesion {
public:
  explicit Sesion(const std::vector<std::string> &nombres) {
    for (const std::string &nombre : nombres) corrientes_.push_back(std::make_unique<CorrienteAire>(nombre));
  }
  /// La primera palabra de @p linea es el nombre de la corriente; «''» es una palabra vacía.
  Textos Ordenar(const std::string &linea) {
    std::istringstream flujo(linea);
    std::vector<std::string> palabras;
    for (std::string palabra; flujo >> palabra;) palabras.push_back(palabra == "''" ? "" : palabra);
    std::vector<const char *> argv;
    for (const std::string &palabra : palabras) argv.push_back(palabra.c_str());
    prueba::RegistroApuntado registro;
    BuscarCorriente(palabras.at(0))->ProcesarOrden(static_cast<int>(argv.size()), argv.data());
    return registro.textos;
  }

private:
  std::vector<std::unique_ptr<CorrienteAire>> corrientes_;
};

struct Paso {
  const char *linea;
  Textos esperados;
};

void Transcribir(Sesion &sesion, const std::vector<Paso> &pasos) {
  for (const Paso &paso : pasos) {
    const Textos textos = sesion.Ordenar(paso.linea);
    ASSERT_EQ(textos.size(), paso.esperados.size()) << paso.linea << ": " << ::testing::PrintToString(textos);
    for (std::size_t i = 0; i < textos.size(); ++i)
      EXPECT_TRUE(Coinciden(textos[i], paso.esperados[i])) << paso.linea << ": " << textos[i];
  }
}

} // namespace

TEST(Transcripcion, MostrarYDame) {
  Sesion sesion({"a"});
  Transcribir(sesion, {{"a pont_w 20 0.0078125", {}},
                       {"a mostrar",
                        {"Caudal masico (kg/s): 15.000000", "Temperatura (C): 20.000000 ",
                         "Presion (Pa): 101325.000000",
                         "Humedad Absoluta (kg agua/kg a.s.): 0.007812", // 0.0078125: empate al par
                         "Humedad Relativa (%): ~53.742369", "Temperatura de Rocio (C): ~10.348071",
                         "Temperatura humeda (C): ~14.299816",
                         "Entalpia (J/kg): 39941.093750", // (1805·20 + 2501000)·0.0078125 + 20120
                         "Densidad (kg/m^3): 1.189160"}},
                       {"a mostrarlo", Textos(9, CUALQUIERA)},
                       {"a dame m", {"15.000000"}},
                       {"a dame p", {"101325.000000"}},
                       {"a dame t", {"20.000000"}},
                       {"a dame w", {"0.007812"}},
                       {"a dame th", {"~14.299816"}},
                       {"a dame tr", {"~10.348071"}},
                       {"a dame hr", {"~53.742369"}},
                       {"a dame h", {"39941.093750"}},
                       {"a dame ro", {"1.189160"}}, // 101325/(293.15·287.055·1.01256)
                       {"a dame ve", {"0.840929"}},
                       {"a dame xx", {"0.000000"}},
                       {"a dame", {"0.000000"}},
                       {"a dame T", {"0.000000"}}});
}

TEST(Transcripcion, LosEstadosAcotanCadaArgumento) {
  Sesion sesion({"a"});
  Transcribir(
      sesion,
      {{"a pont_w -150 0 1e7",
        {"**Minimo revasado -150.000000 < -100.000000, se toma -100.000000: CorrienteAire::pont_w",
         "**Maximo revasado 10000000.000000 > 1555070.000000, se toma 1555070.000000: "
         "CorrienteAire::pont_w"}},
       {"a pont_w 20 1",
        {"**Maximo revasado 1.000000 > ~0.014696, se toma ~0.014696: CorrienteAire::pont_w"}},
       {"a pont_w 120 0",
        {"**Maximo revasado 120.000000 > 99.000000, se toma 99.000000: CorrienteAire::pont_w"}},
       {"a pont_w 20 -1",
        {"**Minimo revasado -1.000000 < 0.000000, se toma 0.000000: CorrienteAire::pont_w"}},
       {"a pont_th 20 30",
        {"**Maximo revasado 30.000000 > 20.000000, se toma 20.000000: CorrienteAire::pont_th"}},
       {"a pont_tr 10 -101",
        {"**Minimo revasado -101.000000 < -100.000000, se toma -100.000000: CorrienteAire::pont_tr"}},
       {"a pont_hr 120 150 0",
        {"**Minimo revasado 0.000000 < 0.001400, se toma 0.001400: CorrienteAire::pont_hr",
         "**Maximo revasado 120.000000 > 99.000000, se toma 99.000000: CorrienteAire::pont_hr",
         "**Maximo revasado 150.000000 > 100.000000, se toma 100.000000: CorrienteAire::pont_hr"}},
       {"a pont_hr texto nan",
        {"**Minimo revasado nan < 0.000000, se toma 0.000000: CorrienteAire::pont_hr"}},
       {"a pont_h 20 1", // 1006·20
        {"**Minimo revasado 1.000000 < 20120.000000, se toma 20120.000000: CorrienteAire::pont_h"}},
       {"a pont_h 20 1e9",
        {"**Maximo revasado 1000000000.000000 > ~57404.79, se toma ~57404.79: CorrienteAire::pont_h"}}});
}

TEST(Transcripcion, PonwhFirmaConDosNombres) {
  Sesion sesion({"a"});
  Transcribir(
      sesion,
      {{"a ponw_h 0.005 30000 0",
        {"**Minimo revasado 0.000000 < 0.001400, se toma 0.001400: CorrienteAire::ponw_h", CUALQUIERA,
         SIN_ROCIO, CUALQUIERA}}, // a esa presión tampoco caben la humedad ni la entalpía
       {"a ponw_h -1 300000",
        {"**Minimo revasado -1.000000 < 0.000000, se toma 0.000000: Psicrometria::ponw_h", SIN_ROCIO,
         "**Maximo revasado 300000.000000 > 211514.000000, se toma 211514.000000: Psicrometria::ponw_h"}},
       {"a ponw_h 99 1",
        {"**Maximo revasado 99.000000 > ~17.52496, se toma ~17.52496: Psicrometria::ponw_h",
         // la mínima, con el rocío a 99 °C, pasa de la máxima: cuenta la primera que se mira
         "**Minimo revasado 1.000000 < ~47061060, se toma ~47061060: Psicrometria::ponw_h"}}});
}

TEST(Transcripcion, ArgumentosCaudalesYOrdenesDesconocidas) {
  Sesion sesion({"a"});
  std::vector<Paso> pasos;
  for (const char *linea : {"a pont_w", "a pont_w 25", "a pont_w 25 0 101325 0", "a pont_th 25",
                            "a pont_tr 25", "a pont_hr 25", "a pont_h 25", "a ponw_h 25"})
    pasos.push_back({linea, {MAL}});
  Transcribir(sesion, pasos);
  Transcribir(
      sesion,
      {{"a dame t", {"25.000000"}},
       {"a ponm 7200 kg/h", {}},
       {"a dame m", {"2.000000"}},
       {"a ponm -1 kg/s", {"**Minimo revasado -1.000000 < 0.000000, se toma 0.000000: CorrienteAire::ponm"}},
       {"a ponm 2e10 kg/s",
        {"**Maximo revasado 20000000000.000000 > 10000000000.000000, se toma 10000000000.000000: "
         "CorrienteAire::ponm"}},
       {"a ponm 3 KG/S", {SIN_UNIDAD}},
       {"a ponm 3", {SIN_UNIDAD}},
       {"a ponm", {SIN_UNIDAD}},
       {"a borrar todo", {"** La función todo no peretenece a la clase CorrrienteAire"}},
       {"a borrar", {"** La función  no peretenece a la clase CorrrienteAire"}},
       {"a", {"** La función  no peretenece a la clase CorrrienteAire"}},
       {"a '' nada", {"** La función nada no peretenece a la clase CorrrienteAire"}},
       {"a PONM 3 kg/s", {"** La función 3 no peretenece a la clase CorrrienteAire"}}});
}

TEST(Transcripcion, LasBusquedasQueNoTerminanLoDicen) {
  Sesion sesion({"a"});
  Transcribir(sesion, {{"a pont_w 20 0", {}}, // sin vapor no hay rocío
                       {"a dame tr", {SIN_ROCIO, CUALQUIERA}},
                       {"a pont_hr -15 100 1000", {}}, // el bulbo húmedo se busca a 101325 Pa
                       {"a dame th", {SIN_BULBO_HUMEDO, CUALQUIERA}}});
}

TEST(Transcripcion, LasMezclasYLosCalores) {
  Sesion sesion({"a", "b", "r"});
  Transcribir(sesion, {{"a mezclar a b", {FALTA}},
                       {"a mezclar nadie b r", {FALTA}},
                       {"a mezclar a nadie r", {FALTA}},
                       {"a mezclar a b nadie", {FALTA}},
                       {"a mezclar A b r", {FALTA}},
                       {"b pont_w 20 0 90000", {}},
                       {"a mezclar a b r", {"**Las dos corrientes deben tener la misma presión,mezclar"}},
                       {"r dame m", {"15.000000"}},
                       // dos corrientes del mismo aire: el mismo aire y el doble de caudal
                       {"a pont_w 20 0.0078125", {}},
                       {"b pont_w 20 0.0078125", {}},
                       {"a mezclar a b r", {}},
                       {"r dame m", {"30.000000"}},
                       {"r dame w", {"0.007812"}},
                       {"r dame t", {"20.000000"}},
                       // dame se queda con las órdenes de los calores: sus argumentos son códigos
                       {"a dameQSen a b", {"0.000000"}},
                       {"a dameQLat t b", {"20.000000"}},
                       {"a dameQSen nadie b", {"0.000000"}}});
}

TEST(Transcripcion, ElNombreNuevoEsElQueSeEncuentra) {
  Sesion sesion({"a", "b"});
  Transcribir(sesion, {{"a pont_w 12 0", {}},
                       {"a ponNombre b", {}}, // gana la primera por orden de creación
                       {"b dame t", {"12.000000"}},
                       {"b ponNombre", {}},
                       {"b dame t", {"25.000000"}},
                       {"'' dame t", {"12.000000"}}});
}

TEST(Transcripcion, EscribirDejaLosNueveTextosSeguidosYElRegistroCerrado) {
  const prueba::DirectorioTemporal directorio;
  const std::string ruta = (directorio / "aire.txt").string();
  Sesion sesion({"a"});
  Transcribir(sesion, {{"a pont_w 20 0.0078125", {}}});
  std::string seguidos;
  for (const std::string &texto : sesion.Ordenar("a mostrar")) seguidos += texto;
  Transcribir(sesion, {{("a escribir " + ruta).c_str(), {}}});
  EXPECT_EQ(LeerFicheroEntero(ruta), seguidos);
  prueba::RegistroApuntado registro;
  CorrienteAire suelta("suelta");
  suelta.escribir(ruta);
  EXPECT_FALSE(RegistroAbierto());
}
