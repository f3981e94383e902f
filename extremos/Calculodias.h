#pragma once

#include "extremos/Distribucion.h"
#include "extremos/Modelomensual.h"
#include "extremos/Registrogdr.h"
#include "extremos/Tipos.h"

#include <string>
#include <utility>
#include <vector>

namespace tesmo::extremos {

/// Lo que se pide de una estación.
struct AjustesEstacion {
  float percentil = 0.0F;       ///< [%, 0 a 100]
  MesesDeTemporada temporada{}; ///< al menos un mes
  int mes = 1;                  ///< mes de proyecto, 1 a 12
};

/// Los de fábrica: de diciembre a febrero al 99 % y un día de enero.
[[nodiscard]] constexpr AjustesEstacion CalefaccionDeFabrica() {
  return {99.0F, {1, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1}, 1};
}
/// Los de fábrica: de junio a septiembre al 1 % y un día de julio.
[[nodiscard]] constexpr AjustesEstacion RefrigeracionDeFabrica() {
  return {1.0F, {0, 0, 0, 0, 0, 1, 1, 1, 1, 0, 0, 0}, 7};
}

/// De dónde salió la humedad absoluta de un día.
enum class OrigenHumedad {
  Registro,     ///< etiqueta del registro
  MinimaDelMes, ///< supuesta con la mínima media del mes
};

/// Los pasos intermedios de una estación, para poder seguir el cálculo.
struct TrazaEstacion {
  long double fraccion = 0.0L;             ///< de horas por debajo de la temperatura de la temporada
  float salida = 0.0F;                     ///< del sol el día de proyecto [h solar]
  long double temperaturaTemporada = 0.0L; ///< [°C]
  long double parteDelMes = 0.0L;          ///< horas del mes de proyecto por debajo de ella, en tanto por uno
  long double parteDeReferencia = 0.0L;    ///< lo mismo en enero (calefacción) o julio (refrigeración)
  long double temperaturaMes = 0.0L;       ///< temperatura de proyecto, ya llevada al mes [°C]
  long double claridadMensual = 0.0L;
  long double claridadDiaria = 0.0L;
  long double extraterrestre = 0.0L; ///< [Wh/m²]
  long double diaria = 0.0L;         ///< radiación global del día de proyecto [Wh/m²]
  float humedad = 0.0F;              ///< [g/kg]
  OrigenHumedad origenHumedad = OrigenHumedad::MinimaDelMes;
};

/// Todo lo que sale del cálculo de una estación.
struct ResultadoEstacion {
  TrazaEstacion traza;
  DistribucionGuardada frecuenciaTemporada; ///< fracción de las horas de la temporada
  DistribucionGuardada frecuenciaMes;       ///< horas del mes de proyecto entre 744, dure lo que dure
  DistribucionGuardada acumuladaTemporada;
  DistribucionGuardada acumuladaMes;        ///< llevada a 1
  DistribucionGuardada acumuladaReferencia; ///< enero o julio, llevada a 1
  DiaDeProyecto dia;
};

/// Resultado completo y los datos del registro que usó.
struct ResultadoDias {
  std::string clave;
  float latitud = 0.0F; ///< [°]
  float factorDeCola = 0.0F;
  float altitud = 0.0F; ///< [m]
  bool altitudDelRegistro = false;
  CoeficientesZona zona;
  EstadisticaMes ultimoMes; ///< el último modelado
  ResultadoEstacion calefaccion;
  ResultadoEstacion refrigeracion;
};

/// Calcula los dos días de proyecto. Los meses han de estar en 1..12.
[[nodiscard]] ResultadoDias CalcularDias(const RegistroGdr &registro, const AjustesEstacion &calefaccion,
                                         const AjustesEstacion &refrigeracion);

} // namespace tesmo::extremos
