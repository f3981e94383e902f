#pragma once

#include "core/Objetobase.h"
#include "meteo/Fecha.h"

#include <string>
#include <string_view>
#include <vector>

namespace tesmo {

class PosicionSolar;

/// Estadísticas de una magnitud en el período; las que la magnitud no forma quedan en 0.
struct ResultadoEstadisticas {
  float maximo = -100.0F;
  float minimo = 500000.0F;
  float media = 0.0F;
  float gradosDiaCalefaccion = 0.0F;
  float gradosDiaRefrigeracion = 0.0F;
  float tercerSumatorio = 0.0F;
  std::string unidad;
};

/// Lo que se pudo leer de un fichero .met (para avisar; la lectura no rechaza nada).
struct ResumenLectura {
  int registros = 0; ///< registros completos leídos, 0..8760
  int linea = 0;     ///< línea (desde 1) donde la lectura se detuvo
};

/// El año meteorológico de una localidad y lo que de él se deriva.
class LeerMet : public ObjetoBase {
public:
  LeerMet();

  bool LeerFichero(const std::string &ruta);
  [[nodiscard]] const ResumenLectura &Resumen() const;

  [[nodiscard]] std::string DameTexto(std::string_view clave) const override;
  void PonTexto(std::string_view clave, const std::string &texto) override;
  virtual void PonCabecera(std::string_view clave, bool puesta);
  void PonPeriodo(int mesIni, int diaIni, int horaIni, int mesFin, int diaFin, int horaFin);
  void PonHorasDelDia(int primera, int ultima);

  [[nodiscard]] static int IndiceHora(int mes, int dia, int hora);
  static void SiguienteHora(int &mes, int &dia, int &hora);

  void ReservarDerivadas(int horas);
  void LiberarDerivadas();
  [[nodiscard]] bool DerivadasPresentes() const;
  void DerivarPsicrometricas(float presion);
  void DerivarSolares(const PosicionSolar &horizonte);
  /// Deriva otra vez sólo si datos, período, superficie, horizonte o presión cambiaron desde la última vez.
  void AsegurarDerivadas(float presion, const PosicionSolar &horizonte);

  void DameSerie(std::string_view rotulo, float *destino) const;
  void Estadisticas(std::string_view rotulo, float baseCalefaccion, float baseRefrigeracion, float &maximo, float &minimo, float &media, float &gradosCal, float &gradosRef, float &tercera, std::string &unidad) const;
  void PrepararColumnas(const std::vector<std::string> &rotulos);
  bool EscribirFichero(const std::string &ruta, const std::vector<std::string> &rotulos);

  [[nodiscard]] float Latitud() const;
  [[nodiscard]] float Longitud() const;
  [[nodiscard]] float TercerDato() const; ///< altitud del sitio [m]
  [[nodiscard]] int PrimeraHora() const;  ///< índices del período, ambos incluidos
  [[nodiscard]] int UltimaHora() const;
};

} // namespace tesmo
