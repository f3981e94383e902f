#pragma once

#include "core/Objetobase.h"
#include "extremos/Calculodias.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tesmo {

/// Días de proyecto de calefacción y de refrigeración de una localidad, a partir de sus estadísticas
/// mensuales de temperatura y de un percentil. Las operaciones con claves y CalcularDias son contrato: fijan
/// los ajustes por su nombre y avisan por los mensajes. El código nuevo que no los necesite llama a
/// extremos::CalcularDias con un RegistroGdr y dos AjustesEstacion. Los ajustes se leen y escriben por
/// nombre, en UTF-8: "Localidad", "Provincia", "Percentil calefacción" y "Percentil refrigeración" [%, 0 a
/// 100], "Mes calefacción" y "Mes refrigeración" [1 a 12].
class DiasExtremos : public ObjetoBase {
public:
  DiasExtremos();

  /// Calcula los días de la localidad con los ajustes del objeto. Si falta el fichero de estadísticas o la
  /// localidad no está en él, o su registro está estropeado, muestra el mensaje 59 con su nombre y devuelve
  /// falso.
  bool Calcular();
  /// El cálculo, con la clave de la localidad en "GDR.TXT" (en el directorio meteorológico). Falso, y nada
  /// cambia, si el fichero falta, no tiene la clave o la tiene con un registro estropeado (queda un
  /// diagnóstico), o si un mes no está en 1..12.
  bool CalcularDias(const std::string &clave, float percentilCal, float percentilRef,
                    const MesesDeTemporada &temporadaCal, const MesesDeTemporada &temporadaRef, int mesCal,
                    int mesRef);
  /// Lo mismo con los ajustes del objeto y otro fichero de estadísticas.
  bool CalcularDesde(const std::string &ruta, const std::string &clave);
  /// ¿Tiene la temporada algún mes? Sin ninguno no hay nada que calcular: lo mira quien llama.
  [[nodiscard]] static bool TieneMeses(const MesesDeTemporada &temporada);

  /// Escribe "extreCal.met" y "extreRef.met" en el directorio de resultados. Si el primero no se puede abrir
  /// no se escribe el segundo. No enseña nada; falso si alguno faltó.
  bool EscribirFicheros() const;
  /// Los mismos ficheros en @p directorio. Llevan la localidad, la provincia y los meses del último cálculo
  /// logrado.
  bool EscribirFicherosEn(const std::string &directorio) const;
  /// Fichero al que cada cálculo logrado añade su traza; vacío, ninguno (así empieza).
  void PonFicheroSalida(std::string ruta) { ficheroSalida_ = std::move(ruta); }
  /// Ruta de "salida.txt" en el directorio base, la misma durante toda la ejecución.
  [[nodiscard]] static std::string RutaSalida();

  /// Los percentiles salen con el patrón "0.0##"; una clave desconocida da un texto vacío.
  [[nodiscard]] std::string DameTexto(std::string_view clave) const override;
  /// Los dos percentiles y los dos meses.
  void DameReal(std::string_view clave, float &valor) const override;
  /// Los dos meses.
  void DameEntero(std::string_view clave, std::int32_t &valor) const override;
  /// Color con que se enseña el rótulo del ajuste: es su estado de entrada (verde en blanco, negro tecleado,
  /// rojo no válido, escritos 0x00BBGGRR).
  void DameEstado(std::string_view clave, std::int32_t &estado) const override;
  /// Percentiles de 0 a 100 y meses de 1 a 12; lo que no se pueda leer toma el valor de fábrica.
  void PonTexto(std::string_view clave, const std::string &texto) override;
  /// "Temporada calefacción" o "Temporada refrigeración", los doce indicadores en bloque; con otra clave nada
  /// cambia.
  void DameTemporada(std::string_view clave, MesesDeTemporada &meses) const;
  void PonTemporada(std::string_view clave, const MesesDeTemporada &meses);
  /// "Provincias" o "Localidades" (las de la provincia del objeto), de la base de datos.
  void ListaDe(std::string_view clave, std::vector<std::string> &lista) const;

  /// ¿Hay algún cálculo logrado?
  [[nodiscard]] bool Calculado() const { return calculado_; }
  /// El último cálculo logrado; todo a cero antes.
  [[nodiscard]] const extremos::ResultadoDias &Resultado() const { return resultado_; }
  /// Índice de claridad diario del último día calculado, el de refrigeración.
  [[nodiscard]] float ClaridadDiaria() const { return claridadDiaria_; }
  /// Partes de los meses de proyecto por debajo de las temperaturas de la temporada (calefacción,
  /// refrigeración) en el primer cálculo tras crear el último objeto.
  [[nodiscard]] const std::array<float, 2> &PrimerosValores() const { return primerosValores_; }

private:
  /// Los ocho colores, en su orden; dos no corresponden a ninguna clave.
  enum Color : std::size_t {
    COLOR_PROVINCIA,
    COLOR_LOCALIDAD,
    COLOR_PER_CAL,
    COLOR_PER_REF,
    COLOR_SIN_CLAVE_1,
    COLOR_SIN_CLAVE_2,
    COLOR_MES_CAL,
    COLOR_MES_REF,
    NUMERO_COLORES
  };

  bool CalcularRegistro(const std::string &ruta, const std::string &clave,
                        const extremos::AjustesEstacion &calefaccion,
                        const extremos::AjustesEstacion &refrigeracion);

  /// Común a todos los objetos: la pone cada constructor y la quita el primer cálculo (se conserva).
  static bool primeraVez_;

  std::string localidad_ = "Almería";
  std::string provincia_ = "Almería";
  extremos::AjustesEstacion calefaccion_ = extremos::CalefaccionDeFabrica();
  extremos::AjustesEstacion refrigeracion_ = extremos::RefrigeracionDeFabrica();
  std::array<std::int32_t, NUMERO_COLORES> colores_;
  bool calculado_ = false;
  // De qué es el resultado, aunque los ajustes cambien después.
  std::string localidadCalculada_;
  std::string provinciaCalculada_;
  int mesCalculadoCal_ = 1;
  int mesCalculadoRef_ = 1;
  extremos::ResultadoDias resultado_;
  float claridadDiaria_ = 0.0F;
  std::array<float, 2> primerosValores_{};
  std::string ficheroSalida_;
};

} // namespace tesmo
