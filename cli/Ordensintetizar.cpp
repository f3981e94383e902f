#include "cli/Ordenes.h"

#include "cli/Argumentos.h"
#include "cli/Opcionesseleccion.h"
#include "intercambio/Sintesis.h"
#include "intercambio/sintesis/Normalesprograma.h"

#include <memory>

namespace tesmo::cli {

namespace {

struct Datos {
  std::optional<std::string> normales, salida, registro;
};

void Ejecutar(const Datos &datos, Contexto &contexto) {
  const std::string salida = RutaDeSalida(datos.salida, "-o");
  const std::string normales =
      datos.normales ? RutaDeEntrada(datos.normales, "--normales") : RutaNormalesDelPrograma();
  IniciarRegistro(datos.registro);
  ResultadoSintesis resultado;
  const bool hecho = Sintetizar(normales, salida, resultado);
  for (const std::string &aviso : resultado.avisos) Avisar(contexto, aviso);
  if (hecho) return;
  for (const std::string &error : resultado.errores) contexto.error << "Error: " << error << '\n';
  throw Fallo(resultado.fallo == FalloSintesis::Salida ? Estado::FaltaSalida : Estado::FaltaEntrada, "");
}

} // namespace

void RegistrarSintetizar(CLI::App &raiz, Contexto &contexto) {
  const auto datos = std::make_shared<Datos>();
  CLI::App &orden = NuevaOrden(raiz, "sintetizar",
                               {"Hace años sintéticos de las medias mensuales",
                                "Escribe en el directorio Meteo/<localidad>.met, Meteo/LocalidadesCC y "
                                "Meteo/GDR.TXT. El mismo fichero de\n"
                                "medias da siempre los mismos bytes.",
                                "sintetizar -o mis-datos\nsintetizar --normales otras.csv -o mis-datos"});
  Exigir(AnadirValor(orden, "-o,--salida", datos->salida, "DIRECTORIO", "Donde se escriben (obligatorio)"));
  AnadirValor(orden, "--normales", datos->normales, "CSV",
              "Medias mensuales (si no se dan, datos/normales.csv junto al programa)");
  AnadirRegistro(orden, datos->registro);
  AlEjecutar(orden, contexto, datos, Ejecutar);
}

} // namespace tesmo::cli
