#pragma once

#include "cli/Contexto.h"
#include "cli/Interprete.h"

#include <memory>
#include <string>

namespace tesmo::cli {

/// Cada función da de alta una orden en @p raiz. Al interpretarse la orden, deja en el contexto la acción que
/// la cumple; nada se hace antes. @p contexto ha de vivir tanto como @p raiz.
void RegistrarLocalidades(CLI::App &raiz, Contexto &contexto);
void RegistrarAire(CLI::App &raiz, Contexto &contexto);
void RegistrarCorriente(CLI::App &raiz, Contexto &contexto);
void RegistrarCarta(CLI::App &raiz, Contexto &contexto);
void RegistrarSol(CLI::App &raiz, Contexto &contexto);
void RegistrarSerie(CLI::App &raiz, Contexto &contexto);
void RegistrarEstadisticas(CLI::App &raiz, Contexto &contexto);
void RegistrarExportar(CLI::App &raiz, Contexto &contexto);
void RegistrarDiasExtremos(CLI::App &raiz, Contexto &contexto);
void RegistrarSintetizar(CLI::App &raiz, Contexto &contexto);
void RegistrarHorizonte(CLI::App &raiz, Contexto &contexto);
void RegistrarImportar(CLI::App &raiz, Contexto &contexto);
void RegistrarConvertirAnio(CLI::App &raiz, Contexto &contexto);
void RegistrarAuditar(CLI::App &raiz, Contexto &contexto);
/// Estas dos, dentro de la orden "sol".
void RegistrarSolAnual(CLI::App &sol, Contexto &contexto);
void RegistrarSolCurvas(CLI::App &sol, Contexto &contexto);

/// Lo que la ayuda dice de una orden.
struct AyudaOrden {
  std::string descripcion; ///< de una línea
  std::string detalle;     ///< qué escribe y en qué unidades
  std::string ejemplos;    ///< uno por línea, sin el nombre del programa
};
CLI::App &NuevaOrden(CLI::App &raiz, const std::string &nombre, const AyudaOrden &ayuda);

/// Al reconocerse @p orden, deja en el contexto su acción: @p accion con los datos tecleados y el contexto.
template <class Datos, class Accion>
void AlEjecutar(CLI::App &orden, Contexto &contexto, const std::shared_ptr<Datos> &datos, Accion accion) {
  AlReconocer(orden, [datos, &contexto, accion] {
    contexto.accion = [datos, &contexto, accion] { accion(*datos, contexto); };
  });
}

} // namespace tesmo::cli
