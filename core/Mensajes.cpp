#include "core/Mensajes.h"

#include "core/Codificacion.h"

#include <array>
#include <utility>

namespace tesmo {

namespace {

struct Fila {
  int indice;
  std::string_view formato; ///< con un "%s" como mucho
};

// La tabla se comparte con otros programas; éste sólo enseña estas filas, todas informativas.
constexpr std::array<Fila, 6> FILAS{{
    {MENSAJE_FICHERO, "No se puede abrir el fichero: %s.\n"},
    {MENSAJE_SIN_VARIABLES, "Seleccione variables para poder continuar.\n "},
    {MENSAJE_CASILLA_VACIA, "La casilla de %s no tiene ningún valor. Introduzca uno.\n "},
    {MENSAJE_FICHERO_METEO, "El fichero meteorológico asociado a la ciudad %s no se ha podido abrir.\n "},
    {MENSAJE_FICHERO_RESULTADO, "El fichero de resultado %s no se ha podido abrir.\n "},
    {MENSAJE_VALOR_INCORRECTO, "La casilla \"%s\" contiene un valor incorrecto.\n "},
}};

/// Búfer del servicio: 250 caracteres con el terminador.
constexpr std::size_t BUFER_MENSAJE = 249;

std::string DarForma(std::string_view formato, std::string_view argumento) {
  std::string texto(formato);
  const std::size_t hueco = texto.find("%s");
  if (hueco != std::string::npos) texto.replace(hueco, 2, argumento);
  return std::string(RecortarUtf8(texto, BUFER_MENSAJE));
}

} // namespace

void Mensajes::Mensaje(int indice, std::string_view argumento) {
  if (presentador_ == nullptr) return;
  for (const Fila &fila : FILAS) {
    if (fila.indice == indice) {
      presentador_->Presentar(DarForma(fila.formato, argumento), "Información", Icono::Informacion);
      return;
    }
  }
  presentador_->Presentar({}, {}, Icono::Ninguno);
}

void Mensajes::MensajeDeEntrada(const std::string &texto) {
  if (presentador_ != nullptr) presentador_->Presentar(texto, "Error", Icono::Ninguno);
}

PresentadorMensajes *Mensajes::PonPresentador(PresentadorMensajes *presentador) {
  return std::exchange(presentador_, presentador);
}

Mensajes &DameMensajes() {
  static Mensajes servicio;
  return servicio;
}

} // namespace tesmo
