#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace tesmo {

struct MateriaAuditoria;

/// Lo que dice una comprobación de un fichero climático, de menos a más.
enum class Gravedad : std::uint8_t {
  NoComprobada, ///< al fichero le falta lo que haría falta para mirarlo
  Conforme,     ///< nada que decir
  Aviso,        ///< raro, pero el año se puede usar sabiéndolo
  Grave         ///< el año no se debe usar así
};

/// El resultado de una comprobación.
struct Hallazgo {
  Gravedad gravedad = Gravedad::NoComprobada;
  std::string texto; ///< una o dos frases, con las cifras y el límite
  std::vector<int>
      lineas; ///< líneas del fichero que no pasan, desde 1 y en orden; vacío si no van por líneas
};

/// Una fila de la tabla de comprobaciones.
struct Comprobacion {
  const char *clave;  ///< palabra con que se nombra en los resultados para máquinas
  const char *titulo; ///< qué se mira
  Hallazgo (*mirar)(const MateriaAuditoria &materia);
};

/// Las comprobaciones, en el orden en que se enseñan.
[[nodiscard]] std::span<const Comprobacion> ComprobacionesDeAuditoria();

/// Si un año vale para calcular con él.
enum class Veredicto : std::uint8_t { Apto, AptoConAvisos, NoApto };

/// Una comprobación hecha.
struct ResultadoComprobacion {
  const Comprobacion *comprobacion = nullptr;
  Hallazgo hallazgo;
};

/// Todas las comprobaciones de un fichero.
struct Auditoria {
  Veredicto veredicto = Veredicto::Apto;
  std::vector<ResultadoComprobacion> resultados;
  [[nodiscard]] std::size_t Contar(Gravedad gravedad) const;
};

/// Hace todas las comprobaciones. El veredicto es el de la peor: una grave, no apto; un aviso, apto con
/// avisos.
[[nodiscard]] Auditoria Auditar(const MateriaAuditoria &materia);

} // namespace tesmo
