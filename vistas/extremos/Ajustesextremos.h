#pragma once

#include "vistas/datos/Textoderivacion.h"
#include "vistas/extremos/Paginadiasextremos.h"

#include <optional>

namespace tesmo {

class DiasExtremos;

/// Los ajustes de los días extremos entre su página y el objeto que los guarda.
class AjustesExtremos {
public:
  /// @p pagina sobrevive a este objeto.
  explicit AjustesExtremos(PaginaDiasExtremos &pagina) : pagina_(pagina) {}

  /// Del objeto a los controles, con cada rótulo en el color de su estado.
  void Mostrar(const DiasExtremos &motor);
  /// De los controles al objeto; un percentil fuera de límites se dice en una ventana.
  void Tomar(DiasExtremos &motor) const;
  /// Lo mismo sin decir nada: un percentil que no valga se deja como estaba en el objeto.
  void TomarCallando(DiasExtremos &motor) const;
  /// La entrada validada calla ante lo que no es un número: aquí se nombra la casilla. El cálculo sigue con
  /// el valor de fábrica, que queda escrito en ella.
  void AvisarPercentiles() const;
  /// La primera temporada sin ningún mes marcado, si la hay.
  [[nodiscard]] std::optional<PaginaDiasExtremos::Estacion> TemporadaVacia() const;
  /// Los ajustes del objeto, para decir de qué es un resultado.
  [[nodiscard]] static PeticionDias Peticion(const DiasExtremos &motor);

private:
  PaginaDiasExtremos &pagina_;
};

} // namespace tesmo
