#pragma once

#include "intercambio/auditoria/Auditoria.h"

namespace tesmo {

// Cada función mira una cosa y, si al fichero le falta lo que necesita, da NoComprobada. Las cifras de los
// límites y de cuántas horas hacen falta grave están en su .cpp y en docs/auditoria.md, con las obras
// citadas.

/// 8760 registros y una cabecera sin notas de la lectura; graves, las horas que faltan o sobran, el 29 de
/// febrero y un campo imprescindible ausente.
[[nodiscard]] Hallazgo MirarRegistros(const MateriaAuditoria &materia);
/// Fechas seguidas; graves, las horas repetidas o fuera de orden. Una etiqueta rara es un aviso.
[[nodiscard]] Hallazgo MirarOrden(const MateriaAuditoria &materia);
/// Códigos de dato ausente (99,9, 999, 9999…) tomados por medida.
[[nodiscard]] Hallazgo MirarCodigos(const MateriaAuditoria &materia);
/// Horas sin dato: un aviso si se pueden interpolar y falta grave si el hueco es de más de tres horas.
[[nodiscard]] Hallazgo MirarHuecos(const MateriaAuditoria &materia);
/// Lo que cada magnitud puede valer: récords de la OMM y, en la onda larga, Long y Shi (2008).
[[nodiscard]] Hallazgo MirarRango(const MateriaAuditoria &materia);

/// El desfase que mejor casa con los datos (DetectarReloj) frente al declarado; más de diez minutos o poca
/// confianza, aviso.
[[nodiscard]] Hallazgo MirarReloj(const MateriaAuditoria &materia);
/// Global = difusa + directa normal · cos z, con las dos holguras de Long y Shi (2008) a un lado y otro de
/// 75° de cenit.
[[nodiscard]] Hallazgo MirarCierre(const MateriaAuditoria &materia);
/// Radiación con el sol más de 6° bajo el horizonte toda la hora.
[[nodiscard]] Hallazgo MirarNoche(const MateriaAuditoria &materia);
/// Ceros con el sol alto: horas sin global, global sin nada de difusa, o muchas horas seguidas sin directa
/// (límites nuestros).
[[nodiscard]] Hallazgo MirarDia(const MateriaAuditoria &materia);
/// Directa normal mayor que la extraterrestre de su día.
[[nodiscard]] Hallazgo MirarDirectaNormal(const MateriaAuditoria &materia);
/// Global, difusa y directa por debajo de los máximos físicos de Long y Shi (2008), y difusa no mayor que la
/// global.
[[nodiscard]] Hallazgo MirarRadiacionPosible(const MateriaAuditoria &materia);

/// Vapor por encima del que cabe en el aire, con un punto de holgura; a cinco puntos, más de un día de horas
/// es grave.
[[nodiscard]] Hallazgo MirarSaturacion(const MateriaAuditoria &materia);
/// La humedad relativa frente a la absoluta o el rocío, y la presión que mejor las casa frente a la del
/// sitio.
[[nodiscard]] Hallazgo MirarHumedades(const MateriaAuditoria &materia);
/// Onda larga del cielo entre una fracción de la del cuerpo negro a la temperatura del aire y algo más que
/// ella (Long y Shi, 2008).
[[nodiscard]] Hallazgo MirarCielo(const MateriaAuditoria &materia);

/// Tramos sin cambiar más largos que el plazo de cada magnitud (idea de Zahumenský, 2004; plazos nuestros).
[[nodiscard]] Hallazgo MirarSensoresParados(const MateriaAuditoria &materia);
/// Meses con medio mes o más igual a otro, hora por hora, en temperatura y humedad.
[[nodiscard]] Hallazgo MirarMesesRepetidos(const MateriaAuditoria &materia);
/// Días iguales al anterior, hora por hora, en temperatura y humedad.
[[nodiscard]] Hallazgo MirarDiasRepetidos(const MateriaAuditoria &materia);
/// Cambios de una hora a la siguiente mayores que el escalón de cada magnitud (escalones nuestros); las
/// costuras entre meses no cuentan.
[[nodiscard]] Hallazgo MirarSaltos(const MateriaAuditoria &materia);

/// Presión media frente a la de la atmósfera normal a la altitud de la cabecera.
[[nodiscard]] Hallazgo MirarAltitud(const MateriaAuditoria &materia);
/// Medias mensuales, extremos y radiación frente a las normales de un lugar cercano y de altitud parecida, si
/// las hay (holguras nuestras).
[[nodiscard]] Hallazgo MirarNormales(const MateriaAuditoria &materia);

} // namespace tesmo
