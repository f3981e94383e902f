#include "cli/Ordenes.h"

#include "cli/Argumentos.h"
#include "cli/Json.h"
#include "cli/Opcionesseleccion.h"
#include "cli/Tabla.h"
#include "core/Configuracionregional.h"
#include "core/Error.h"
#include "core/Ficheros.h"
#include "core/Formato.h"
#include "core/Rutas.h"
#include "extremos/Diasextremos.h"
#include "extremos/Escritordias.h"
#include "localidades/Ciudad.h"

#include <algorithm>
#include <memory>

namespace tesmo::cli {

namespace {

constexpr double PERCENTIL_MAXIMO = 100.0;
constexpr int MESES = 12;
constexpr const char *COMA = "coma";
constexpr const char *PUNTO = "punto";

struct Datos {
  std::optional<std::string> localidad, gdr, clave, perCal, perRef, mesCal, mesRef, temporadaCal,
      temporadaRef, directorio, decimal, salida, base, registro;
  bool traza = false;
  bool json = false;
};

/// Lo pedido, ya comprobado y con rutas absolutas.
struct Peticion {
  std::string localidad, gdr, directorio, salida, base;
  extremos::AjustesEstacion calefaccion = extremos::CalefaccionDeFabrica();
  extremos::AjustesEstacion refrigeracion = extremos::RefrigeracionDeFabrica();
  bool coma = false;
};

MesesDeTemporada LeerTemporada(const std::string &texto, const std::string &opcion) {
  MesesDeTemporada meses{};
  std::size_t inicio = 0;
  while (inicio <= texto.size() && !texto.empty()) {
    const std::size_t fin = std::min(texto.find(',', inicio), texto.size());
    const int mes = LeerEntero(texto.substr(inicio, fin - inicio), opcion, 1, MESES);
    meses[extremos::PosicionDeMes(mes)] = 1;
    inicio = fin + 1;
  }
  if (!DiasExtremos::TieneMeses(meses))
    throw Fallo(Estado::UsoIncorrecto, opcion + ": la temporada no tiene ningún mes");
  return meses;
}

void LeerEstacion(const std::optional<std::string> &percentil, const std::optional<std::string> &mes,
                  const std::optional<std::string> &temporada, const std::string &sufijo,
                  extremos::AjustesEstacion &ajustes) {
  if (percentil)
    ajustes.percentil = static_cast<float>(LeerNumero(*percentil, "--per-" + sufijo, 0.0, PERCENTIL_MAXIMO));
  if (mes) ajustes.mes = LeerEntero(*mes, "--mes-" + sufijo, 1, MESES);
  if (temporada) ajustes.temporada = LeerTemporada(*temporada, "--temporada-" + sufijo);
}

Peticion Interpretar(const Datos &datos) {
  if (datos.localidad.has_value() == datos.gdr.has_value())
    throw Fallo(Estado::UsoIncorrecto, "hay que dar --localidad o --gdr, y sólo una de las dos");
  if (datos.gdr.has_value() != datos.clave.has_value())
    throw Fallo(Estado::UsoIncorrecto, "--gdr y --clave van juntas");
  const std::string decimal = datos.decimal.value_or(PUNTO);
  if (decimal != PUNTO && decimal != COMA)
    throw Fallo(Estado::UsoIncorrecto, "--decimal: no se conoce «" + decimal + "»");
  Peticion peticion;
  peticion.localidad = datos.localidad.value_or("");
  peticion.coma = decimal == COMA;
  LeerEstacion(datos.perCal, datos.mesCal, datos.temporadaCal, "cal", peticion.calefaccion);
  LeerEstacion(datos.perRef, datos.mesRef, datos.temporadaRef, "ref", peticion.refrigeracion);
  peticion.gdr = RutaDeEntrada(datos.gdr, "--gdr");
  peticion.base = RutaDeEntrada(datos.base, "--base");
  peticion.directorio = RutaDeSalida(datos.directorio, "-o");
  peticion.salida = RutaDeSalida(datos.salida, "--salida");
  return peticion;
}

void Ajustar(const Peticion &peticion, DiasExtremos &motor) {
  const auto poner = [&](const extremos::AjustesEstacion &ajustes, const std::string &estacion) {
    motor.PonTexto("Percentil " + estacion, FormatoG9(ajustes.percentil));
    motor.PonTexto("Mes " + estacion, std::to_string(ajustes.mes));
    motor.PonTemporada("Temporada " + estacion, ajustes.temporada);
  };
  poner(peticion.calefaccion, "calefacción");
  poner(peticion.refrigeracion, "refrigeración");
}

/// Los diagnósticos del cálculo, uno por línea, a la salida de errores y al registro que se pida.
void EncaminarDiagnosticos(const std::optional<std::string> &registro, Contexto &contexto) {
  const std::string fichero = registro ? RutaAbsoluta(*registro) : std::string();
  IniciarRegistro(registro); // lo vacía, o dice que no se puede
  AbrirRegistroEn([fichero, &contexto](std::string_view texto) {
    contexto.error << texto << '\n';
    if (!fichero.empty()) (void)AnadirAFichero(RutaDesdeTexto(fichero), texto);
  });
}

void CalcularLocalidad(const Peticion &peticion, DiasExtremos &motor) {
  const std::string provincia = DameBaseDeLocalidades().DameTextoDe(peticion.localidad, "Provincia");
  if (DameBaseDeLocalidades().BuscarLocalidad(peticion.localidad) == nullptr)
    throw Fallo(Estado::FaltaEntrada, "no se conoce la localidad: " + peticion.localidad);
  motor.PonTexto("Localidad", peticion.localidad);
  motor.PonTexto("Provincia", provincia);
  if (!motor.Calcular()) throw Fallo(Estado::FaltaEntrada, "");
}

void CalcularRegistro(const Peticion &peticion, const std::string &clave, DiasExtremos &motor) {
  motor.PonTexto("Localidad", clave);
  motor.PonTexto("Provincia", "");
  if (!LeerFicheroEntero(RutaDesdeTexto(peticion.gdr)))
    throw Fallo(Estado::FaltaEntrada, "no se puede abrir el fichero: " + peticion.gdr);
  if (!motor.CalcularDesde(peticion.gdr, clave))
    throw Fallo(Estado::FaltaEntrada, "no hay un registro utilizable de «" + clave + "» en " + peticion.gdr);
}

Tabla TablaDeDias(const extremos::ResultadoDias &resultado) {
  Tabla tabla(Tabla::Forma::ConCabecera,
              {"estacion", "hora", "text", "trocio", "tcielo", "rdir", "rdif", "habs", "hrel"});
  const auto anadir = [&](const char *estacion, const extremos::DiaDeProyecto &dia) {
    for (std::size_t h = 0; h < dia.exterior.size(); ++h)
      tabla.Anadir({estacion, static_cast<int>(h), static_cast<double>(dia.exterior[h]),
                    static_cast<double>(dia.rocio[h]), static_cast<double>(dia.cielo[h]),
                    static_cast<double>(dia.directa[h]), static_cast<double>(dia.difusa[h]),
                    static_cast<double>(dia.absoluta[h]), static_cast<double>(dia.relativa[h])});
  };
  anadir("cal", resultado.calefaccion.dia);
  anadir("ref", resultado.refrigeracion.dia);
  return tabla;
}

std::string TrazaComoTexto(const std::vector<extremos::LineaDeTraza> &lineas) {
  std::string texto;
  for (const auto &[nombre, valores] : lineas) {
    texto += nombre;
    for (const double valor : valores) texto += "\t" + FormatoG9(valor);
    texto += "\n";
  }
  return texto;
}

std::string TrazaComoJson(const std::vector<extremos::LineaDeTraza> &lineas) {
  ObjetoJson objeto;
  for (const auto &[nombre, valores] : lineas) {
    ListaJson numeros;
    for (const double valor : valores) numeros.push_back(ConNueveCifras(valor));
    objeto.push_back({nombre, numeros.size() == 1 ? numeros.front() : numeros});
  }
  return TextoJson(objeto) + "\n";
}

void Escribir(const Datos &datos, const Peticion &peticion, const DiasExtremos &motor, Contexto &contexto) {
  const extremos::ResultadoDias &resultado = motor.Resultado();
  if (!peticion.directorio.empty()) {
    Configuracionregional::PonSeparadorDecimal(peticion.coma ? ',' : '.');
    if (!motor.EscribirFicherosEn(peticion.directorio))
      throw Fallo(Estado::FaltaSalida,
                  "no se pudieron escribir extreCal.met y extreRef.met en " + peticion.directorio);
  }
  if (!peticion.salida.empty() &&
      !AnadirAFichero(RutaDesdeTexto(peticion.salida), extremos::TextoDeSalida(resultado)))
    throw Fallo(Estado::FaltaSalida, "no se pudo escribir " + peticion.salida);
  if (datos.traza) {
    const auto lineas = extremos::LineasDeTraza(resultado);
    contexto.salida << (datos.json ? TrazaComoJson(lineas) : TrazaComoTexto(lineas));
  } else if (peticion.directorio.empty()) {
    contexto.salida << TablaDeDias(resultado).Como(datos.json);
  }
}

void Ejecutar(const Datos &datos, Contexto &contexto) {
  const Peticion peticion = Interpretar(datos);
  EncaminarDiagnosticos(datos.registro, contexto);
  IniciarBase(peticion.base, contexto);
  Configuracionregional::PonSeparadorDecimal('.'); // los ajustes se pasan como texto con punto
  DiasExtremos motor;
  Ajustar(peticion, motor);
  if (peticion.gdr.empty()) {
    CalcularLocalidad(peticion, motor);
  } else {
    CalcularRegistro(peticion, *datos.clave, motor);
  }
  Escribir(datos, peticion, motor, contexto);
}

void AnadirOpciones(CLI::App &orden, Datos &datos) {
  AnadirValor(orden, "--localidad", datos.localidad, "NOMBRE", "Localidad, como la escribe «localidades»");
  AnadirValor(orden, "--gdr", datos.gdr, "FICHERO", "Estadísticas mensuales, en vez de las del programa");
  AnadirValor(orden, "--clave", datos.clave, "CLAVE", "Registro de ese fichero");
  AnadirValor(orden, "--per-cal", datos.perCal, "P", "Percentil de calefacción, 0 a 100 (99)");
  AnadirValor(orden, "--per-ref", datos.perRef, "P", "Percentil de refrigeración, 0 a 100 (1)");
  AnadirValor(orden, "--mes-cal", datos.mesCal, "MES", "Mes del día de calefacción, 1 a 12 (1)");
  AnadirValor(orden, "--mes-ref", datos.mesRef, "MES", "Mes del día de refrigeración, 1 a 12 (7)");
  AnadirValor(orden, "--temporada-cal", datos.temporadaCal, "MESES", "Meses separados por comas (1,2,12)");
  AnadirValor(orden, "--temporada-ref", datos.temporadaRef, "MESES", "Meses separados por comas (6,7,8,9)");
  AnadirValor(orden, "-o,--directorio", datos.directorio, "DIRECTORIO",
              "Escribe en él extreCal.met y extreRef.met en vez de la tabla");
  AnadirValor(orden, "--decimal", datos.decimal, "CUAL", "De esos ficheros: punto o coma (punto)");
  AnadirValor(orden, "--salida", datos.salida, "FICHERO", "Añade a ese fichero el informe del cálculo");
  AnadirInterruptor(orden, "--traza", datos.traza, "Escribe los pasos intermedios en vez de la tabla");
  AnadirJson(orden, datos.json);
  AnadirBase(orden, datos.base);
  AnadirRegistro(orden, datos.registro);
}

} // namespace

void RegistrarDiasExtremos(CLI::App &raiz, Contexto &contexto) {
  const auto datos = std::make_shared<Datos>();
  CLI::App &orden = NuevaOrden(
      raiz, "dias-extremos",
      {"Días de proyecto de calefacción y de refrigeración",
       "Escribe una línea por hora solar (0 a 23) de cada día, «cal» y «ref»: temperaturas exterior, de "
       "rocío "
       "y de cielo [°C],\nradiación directa y difusa horizontales [W/m²], humedades absoluta [g/kg] y "
       "relativa "
       "[%]. La traza lleva un nombre y\nsus valores por línea; las distribuciones van de -49 a 50 °C, un "
       "valor por grado.",
       "dias-extremos --localidad Almería\n"
       "dias-extremos --localidad Granada --per-cal 99.6 --mes-cal 12 --traza\n"
       "dias-extremos --gdr mias.txt --clave MiPueblo --temporada-ref 5,6,7,8,9 -o resultados"});
  AnadirOpciones(orden, *datos);
  AlEjecutar(orden, contexto, datos, Ejecutar);
}

} // namespace tesmo::cli
