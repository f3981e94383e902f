#pragma once

#include <string>
#include <string_view>

namespace tesmo {

enum class Icono { Ninguno, Informacion, Aviso, Error };

/// Quien enseña un mensaje a la persona: la ventana una caja modal, la línea de órdenes una línea, las
/// pruebas lo apuntan. Vuelve cuando la persona lo ha visto.
class PresentadorMensajes {
public:
  virtual ~PresentadorMensajes() = default;
  /// @p texto y @p titulo en UTF-8, tal como están en la tabla (fines de línea y blancos incluidos).
  virtual void Presentar(const std::string &texto, const std::string &titulo, Icono icono) = 0;
};

/// Números de los mensajes que este programa enseña.
enum NumeroMensaje : int {
  MENSAJE_FICHERO = 0,            ///< un fichero de datos no se puede abrir
  MENSAJE_SIN_VARIABLES = 57,     ///< hace falta elegir variables
  MENSAJE_CASILLA_VACIA = 58,     ///< una casilla obligatoria está vacía
  MENSAJE_FICHERO_METEO = 59,     ///< el fichero climático de la localidad no se puede abrir
  MENSAJE_FICHERO_RESULTADO = 60, ///< un fichero de resultados no se puede crear
  MENSAJE_VALOR_INCORRECTO = 62,  ///< una casilla contiene algo que no se puede leer
};

/// Servicio compartido de mensajes numerados.
class Mensajes {
public:
  /// Da forma a la fila @p indice con @p argumento y la presenta. Una fila que no existe presenta un texto
  /// vacío con título vacío. El texto se limita a los 249 bytes de su búfer.
  void Mensaje(int indice, std::string_view argumento = {});
  /// Caja de título "Error" y sin icono de la entrada validada.
  void MensajeDeEntrada(const std::string &texto);
  /// Cambia quien presenta; nulo: los mensajes se pierden. Devuelve el anterior.
  PresentadorMensajes *PonPresentador(PresentadorMensajes *presentador);

private:
  PresentadorMensajes *presentador_ = nullptr;
};

/// El servicio, creado la primera vez que se pide.
Mensajes &DameMensajes();

} // namespace tesmo
