#pragma once

#include "intercambio/auditoria/Auditoria.h"

namespace tesmo {

// Cada función mira una cosa. Los límites, con su significado y su fuente, están junto a cada una y en
// docs/auditoria.md.

[[nodiscard]] Hallazgo MirarRegistros(const MateriaAuditoria &materia);
[[nodiscard]] Hallazgo MirarOrden(const MateriaAuditoria &materia);
[[nodiscard]] Hallazgo MirarCodigos(const MateriaAuditoria &materia);
[[nodiscard]] Hallazgo MirarHuecos(const MateriaAuditoria &materia);
[[nodiscard]] Hallazgo MirarRango(const MateriaAuditoria &materia);

[[nodiscard]] Hallazgo MirarReloj(const MateriaAuditoria &materia);
[[nodiscard]] Hallazgo MirarCierre(const MateriaAuditoria &materia);
[[nodiscard]] Hallazgo MirarNoche(const MateriaAuditoria &materia);
[[nodiscard]] Hallazgo MirarDia(const MateriaAuditoria &materia);
[[nodiscard]] Hallazgo MirarDirectaNormal(const MateriaAuditoria &materia);
[[nodiscard]] Hallazgo MirarRadiacionPosible(const MateriaAuditoria &materia);

[[nodiscard]] Hallazgo MirarSaturacion(const MateriaAuditoria &materia);
[[nodiscard]] Hallazgo MirarHumedades(const MateriaAuditoria &materia);
[[nodiscard]] Hallazgo MirarCielo(const MateriaAuditoria &materia);

[[nodiscard]] Hallazgo MirarSensoresParados(const MateriaAuditoria &materia);
[[nodiscard]] Hallazgo MirarMesesRepetidos(const MateriaAuditoria &materia);
[[nodiscard]] Hallazgo MirarDiasRepetidos(const MateriaAuditoria &materia);
[[nodiscard]] Hallazgo MirarSaltos(const MateriaAuditoria &materia);

[[nodiscard]] Hallazgo MirarAltitud(const MateriaAuditoria &materia);
[[nodiscard]] Hallazgo MirarNormales(const MateriaAuditoria &materia);

} // namespace tesmo
