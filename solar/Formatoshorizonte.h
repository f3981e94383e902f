#pragma once

#include "solar/Perfilhorizonte.h"
#include "solar/Tablanumerica.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace tesmo {

/// Los formatos en que se guarda o se recibe un perfil de horizonte.
enum class FormatoHorizonte {
  Nativo,   ///< número de puntos y una línea "acimut, altura" por punto
  Completo, ///< "Perfil completo (*.csv)"
  Pvgis,    ///< listado de horizonte de PVGIS
  Tabla,    ///< tabla de acimut y altura
  Alturas,  ///< alturas equidistantes desde el norte hacia el este
};

/// Cómo se nombra un formato en la línea de órdenes y en los diálogos.
struct DatosFormato {
  FormatoHorizonte formato;
  std::string_view nombre;      ///< de una palabra
  std::string_view extension;   ///< con su punto; vacía si no tiene una suya
  std::string_view descripcion; ///< para un filtro de diálogo
};
[[nodiscard]] std::span<const DatosFormato> FormatosDeHorizonte();
[[nodiscard]] const DatosFormato &DatosDe(FormatoHorizonte formato);
/// Por su nombre, sin distinguir mayúsculas; vacío si no lo hay.
[[nodiscard]] std::optional<FormatoHorizonte> FormatoPorNombre(std::string_view nombre);
/// Por la extensión de @p ruta; el nativo si no es la de otro.
[[nodiscard]] FormatoHorizonte FormatoPorExtension(std::string_view ruta);

/// Un perfil leído y cómo venía escrito.
struct HorizonteLeido {
  FormatoHorizonte formato = FormatoHorizonte::Nativo;
  /// El fichero no decía desde dónde cuenta los acimutes: conviene que alguien lo mire.
  bool origenSupuesto = false;
  PerfilHorizonte perfil;
};

/// ¿Es un formato que este programa escribe, y que por tanto se lee sin preguntar?
[[nodiscard]] constexpr bool EsPropio(FormatoHorizonte formato) {
  return formato == FormatoHorizonte::Nativo || formato == FormatoHorizonte::Completo;
}

/// Reconoce el formato de @p contenido (UTF-8 o Windows-1252) y lo lee, con los puntos que trae. Los dos
/// formatos propios conservan su orden; los demás salen por acimut. Vacío, con @p fallo, si no es un perfil.
[[nodiscard]] std::optional<HorizonteLeido> LeerHorizonteDeTexto(std::string_view contenido,
                                                                 FalloLectura &fallo);
/// Lo mismo desde un fichero; el fallo de uno que no se puede abrir no tiene línea.
[[nodiscard]] std::optional<HorizonteLeido> LeerHorizonteDeFichero(const std::string &ruta,
                                                                   FalloLectura &fallo);
/// Qué se ha supuesto de un perfil con origenSupuesto, sin mayúscula ni punto.
[[nodiscard]] std::string_view QueSeSupuso(const HorizonteLeido &leido);
/// El perfil que hay que usar: el leído, y con la vuelta cerrada al norte si viene de otro programa.
[[nodiscard]] PerfilHorizonte PerfilParaUsar(const HorizonteLeido &leido);

/// ¿Se puede escribir @p perfil en @p formato y volverlo a leer? Si no, @p fallo dice por qué. En los dos
/// propios cabe todo; los demás no admiten puntos de más de 180° de acimut o de 100° de altura, y los que van
/// punto a punto tampoco un perfil sin ninguno.
[[nodiscard]] bool CabeEnFormato(const PerfilHorizonte &perfil, FormatoHorizonte formato, std::string &fallo);
/// El fichero de @p perfil en @p formato. En el nativo van aquí todos los puntos; el de siempre, que sólo
/// lleva los pares, es TextoDePerfil.
[[nodiscard]] std::string TextoDeHorizonte(const PerfilHorizonte &perfil, FormatoHorizonte formato);

/// "fichero, línea n: qué pasa".
[[nodiscard]] std::string DescribirFallo(std::string_view fichero, const FalloLectura &fallo);

} // namespace tesmo
