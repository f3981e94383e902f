#pragma once

#include "extremos/Registrogdr.h"
#include "intercambio/escritura/Fichacatalogo.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tesmo {

/// Lo que el cálculo de los días extremos hará con un registro recién puesto.
enum class VistaDeGdr {
  Encontrado,
  PasaDelLimite, ///< va más allá de los 177 que se miran
  Desordenado    ///< algún registro de antes no ocupa siete líneas y desplaza a los que lo siguen
};

/// El fichero "GDR.TXT" en memoria, para poner en él un registro sin tocar los demás bytes.
class ListaGdr {
public:
  /// @p contenido: el fichero entero; vacío si no lo hay.
  explicit ListaGdr(std::string contenido);

  [[nodiscard]] const std::string &Contenido() const { return contenido_; }
  [[nodiscard]] const std::vector<extremos::SitioRegistroGdr> &Registros() const { return sitios_; }
  /// La zona del primer registro de clave @p corto; vacía si no lo hay.
  [[nodiscard]] std::string ZonaDe(std::string_view corto) const;
  /// Pone @p ficha en el sitio del primer registro de su clave; si no lo hay, al final.
  VistaDeGdr Poner(const FichaGdr &ficha);

private:
  [[nodiscard]] const extremos::SitioRegistroGdr *Sitio(std::string_view corto) const;
  [[nodiscard]] VistaDeGdr Comprobar(const FichaGdr &ficha) const;

  std::string contenido_;
  bool utf8_; ///< si no, Windows-1252
  std::vector<extremos::SitioRegistroGdr> sitios_;
};

} // namespace tesmo
