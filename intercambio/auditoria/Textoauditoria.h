#pragma once

#include "intercambio/auditoria/Auditoria.h"
#include "intercambio/auditoria/Materia.h"

#include <string>
#include <string_view>
#include <vector>

namespace tesmo {

/// "apto", "apto con avisos", "no apto".
[[nodiscard]] std::string_view NombreVeredicto(Veredicto veredicto);
/// "conforme", "aviso", "grave", "no comprobada".
[[nodiscard]] std::string_view NombreGravedad(Gravedad gravedad);
/// Líneas en orden como tramos, "9-32, 45", y cuántas quedan tras los @p tramos primeros: "… y 12 más".
[[nodiscard]] std::string TextoDeLineas(const std::vector<int> &lineas, std::size_t tramos);
/// "Tabernas, España; 37,095° N, 2,359° O, 499 m"; lo que no se sabe no sale.
[[nodiscard]] std::string TextoDeSitio(const SitioClima &sitio);

/// Una página con el veredicto y cada comprobación, en español y con el separador decimal regional.
/// @p fichero como se quiera nombrar.
[[nodiscard]] std::string TextoAuditoria(const std::string &fichero, const MateriaAuditoria &materia,
                                         const Auditoria &auditoria);

} // namespace tesmo
