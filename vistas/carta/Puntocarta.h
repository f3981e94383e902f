#pragma once

#include <QString>
#include <QStringList>

namespace tesmo {

class CorrienteAire;

/// Un estado fijado sobre la carta psicrométrica.
struct PuntoCarta {
  QString nombre;
  float t = 0.0F; ///< temperatura seca [°C]
  float w = 0.0F; ///< humedad absoluta [kg/kg]
};

/// Nombre del punto @p i desde 0: A a Z, luego A2 a Z2…
[[nodiscard]] QString NombreDePunto(int i);

/// Valores de un estado con los patrones del panel, en el orden de VALORES_AIRE. @p t [°C], @p w [kg/kg] y
/// @p p [Pa] son los leídos, que @p aire puede haber acotado.
[[nodiscard]] QStringList TextosDeEstado(float t, float w, float p, const CorrienteAire &aire);
/// Los del punto @p punto a la presión @p presion [Pa].
[[nodiscard]] QStringList TextosDeEstado(const PuntoCarta &punto, float presion);

/// Calor por kg/s de aire seco de un estado a otro, con las operaciones de la corriente de aire.
struct ProcesoCarta {
  float sensible = 0.0F; ///< [W]
  float latente = 0.0F;  ///< [W]
};
[[nodiscard]] ProcesoCarta ProcesoEntre(const PuntoCarta &desde, const PuntoCarta &hasta, float presion);
/// El proceso dicho en una línea, en kW.
[[nodiscard]] QString TextoDeProceso(const PuntoCarta &desde, const PuntoCarta &hasta, float presion);

} // namespace tesmo
