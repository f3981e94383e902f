#include "intercambio/auditoria/Auditoria.h"

#include "intercambio/auditoria/Comprobaciones.h"

#include <algorithm>
#include <array>

namespace tesmo {

std::span<const Comprobacion> ComprobacionesDeAuditoria() {
  static constexpr std::array<Comprobacion, 20> TABLA{{
      {"registros", "Número de registros", MirarRegistros},
      {"orden", "Orden de las fechas", MirarOrden},
      {"codigos", "Códigos de dato ausente", MirarCodigos},
      {"huecos", "Horas sin dato", MirarHuecos},
      {"rango", "Valores físicamente posibles", MirarRango},
      {"reloj", "Reloj", MirarReloj},
      {"cierre", "Cierre del haz", MirarCierre},
      {"noche", "Radiación de noche", MirarNoche},
      {"dia", "Radiación de día", MirarDia},
      {"directa", "Directa normal y extraterrestre", MirarDirectaNormal},
      {"radiacion", "Radiación posible", MirarRadiacionPosible},
      {"saturacion", "Humedad y saturación", MirarSaturacion},
      {"humedad", "Coherencia de las humedades", MirarHumedades},
      {"cielo", "Radiación del cielo", MirarCielo},
      {"parados", "Sensores parados", MirarSensoresParados},
      {"meses", "Meses repetidos", MirarMesesRepetidos},
      {"dias", "Días repetidos", MirarDiasRepetidos},
      {"saltos", "Saltos", MirarSaltos},
      {"altitud", "Altitud y presión", MirarAltitud},
      {"normales", "Extremos y normales del lugar", MirarNormales},
  }};
  return TABLA;
}

std::size_t Auditoria::Contar(Gravedad gravedad) const {
  return static_cast<std::size_t>(
      std::count_if(resultados.begin(), resultados.end(),
                    [gravedad](const ResultadoComprobacion &r) { return r.hallazgo.gravedad == gravedad; }));
}

Auditoria Auditar(const MateriaAuditoria &materia) {
  Auditoria auditoria;
  for (const Comprobacion &comprobacion : ComprobacionesDeAuditoria()) {
    auditoria.resultados.push_back({&comprobacion, comprobacion.mirar(materia)});
  }
  if (auditoria.Contar(Gravedad::Grave) > 0) {
    auditoria.veredicto = Veredicto::NoApto;
  } else if (auditoria.Contar(Gravedad::Aviso) > 0) {
    auditoria.veredicto = Veredicto::AptoConAvisos;
  }
  return auditoria;
}

} // namespace tesmo
