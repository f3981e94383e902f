#include "cli/Lineadeordenes.h"

#include "cli/Interprete.h"
#include "cli/Ordenes.h"
#include "core/Error.h"
#include "core/Mensajes.h"
#include "localidades/Ciudad.h"

#include <algorithm>
#include <utility>

namespace tesmo::cli {

namespace {

constexpr const char *NOMBRE = "tesmo-cli";

/// Escribe los mensajes de los motores como "título: texto".
class PresentadorDeLineas : public PresentadorMensajes {
public:
  explicit PresentadorDeLineas(std::ostream &error)
      : error_(error), anterior_(DameMensajes().PonPresentador(this)) {}
  ~PresentadorDeLineas() override { DameMensajes().PonPresentador(anterior_); }
  PresentadorDeLineas(const PresentadorDeLineas &) = delete;
  PresentadorDeLineas &operator=(const PresentadorDeLineas &) = delete;

  void Presentar(const std::string &texto, const std::string &titulo, Icono) override {
    const std::size_t fin = texto.find_last_not_of(" \n"); // las cajas acaban en "\n ": aquí sobra
    error_ << titulo << ": " << texto.substr(0, fin == std::string::npos ? 0 : fin + 1) << '\n';
  }

private:
  std::ostream &error_;
  PresentadorMensajes *anterior_;
};

/// Lleva a la salida de errores los avisos de la base de localidades y cierra el registro al acabar.
class Avisos {
public:
  explicit Avisos(Contexto &contexto)
      : anterior_(PonAvisoLocalidades([&contexto](const std::string &texto) { Avisar(contexto, texto); })) {}
  ~Avisos() {
    PonAvisoLocalidades(std::move(anterior_));
    CerrarRegistro();
  }
  Avisos(const Avisos &) = delete;
  Avisos &operator=(const Avisos &) = delete;

private:
  AvisoLocalidades anterior_;
};

std::string Ejemplos(const std::string &lineas) {
  std::string texto = "Ejemplos:";
  for (std::size_t inicio = 0; inicio < lineas.size();) {
    const std::size_t fin = std::min(lineas.find('\n', inicio), lineas.size());
    texto += "\n  " + std::string(NOMBRE) + " " + lineas.substr(inicio, fin - inicio);
    inicio = fin + 1;
  }
  return texto;
}

std::string PieDelPrograma() {
  return Ejemplos("localidades\nserie --localidad Almería TS HR\nserie --help") +
         "\n\nCada orden tiene su ayuda: " + NOMBRE +
         " ORDEN --help.\nEstado de salida: 0 hecho, 2 uso incorrecto, 3 falta una entrada, 4 no se pudo "
         "escribir una salida.";
}

void RegistrarOrdenes(CLI::App &raiz, Contexto &contexto) {
  RegistrarLocalidades(raiz, contexto);
  RegistrarAire(raiz, contexto);
  RegistrarCorriente(raiz, contexto);
  RegistrarCarta(raiz, contexto);
  RegistrarSol(raiz, contexto);
  RegistrarHorizonte(raiz, contexto);
  RegistrarSerie(raiz, contexto);
  RegistrarEstadisticas(raiz, contexto);
  RegistrarExportar(raiz, contexto);
  RegistrarDiasExtremos(raiz, contexto);
  RegistrarImportar(raiz, contexto);
  RegistrarConvertirAnio(raiz, contexto);
  RegistrarSintetizar(raiz, contexto);
  RegistrarAuditar(raiz, contexto);
}

/// @p orden: la que se dio, desde el programa
int Escribir(Estado estado, const std::string &texto, const std::string &orden, Contexto &contexto) {
  if (!texto.empty()) contexto.error << "Error: " << texto << '\n';
  if (estado == Estado::UsoIncorrecto) contexto.error << "Pruebe: " << orden << " --help\n";
  return static_cast<int>(estado);
}

int Cumplir(const Interpretacion &pedido, Contexto &contexto) {
  if (pedido.error) return Escribir(Estado::UsoIncorrecto, *pedido.error, pedido.orden, contexto);
  try {
    if (pedido.ayuda) {
      contexto.salida << *pedido.ayuda;
    } else {
      contexto.accion();
    }
  } catch (const Fallo &fallo) {
    return Escribir(fallo.DameEstado(), fallo.what(), pedido.orden, contexto);
  }
  contexto.salida.flush();
  if (contexto.salida.good()) return static_cast<int>(Estado::Hecho);
  return Escribir(Estado::FaltaSalida, "no se pudo escribir el resultado", pedido.orden, contexto);
}

} // namespace

CLI::App &NuevaOrden(CLI::App &raiz, const std::string &nombre, const AyudaOrden &ayuda) {
  return AnadirOrden(raiz, nombre, ayuda.descripcion, ayuda.detalle + "\n\n" + Ejemplos(ayuda.ejemplos));
}

int Ejecutar(const std::vector<std::string> &argumentos, std::ostream &salida, std::ostream &error) {
  Contexto contexto{salida, error};
  const PresentadorDeLineas presentador(error);
  const Avisos avisos(contexto);
  Interprete interprete(NOMBRE,
                        "Tesmo desde la línea de órdenes: año meteorológico típico, aire húmedo y sol.",
                        PieDelPrograma());
  RegistrarOrdenes(interprete.Raiz(), contexto);
  return Cumplir(interprete.Interpretar(argumentos), contexto);
}

} // namespace tesmo::cli
