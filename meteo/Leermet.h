#pragma once

#include "core/Objetobase.h"
#include "meteo/Derivacionessolares.h"
#include "meteo/Estadisticas.h"
#include "meteo/Exportacion.h"
#include "meteo/Fecha.h"
#include "meteo/Lectormet.h"
#include "meteo/Serieshorarias.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tesmo {

class PosicionSolar;

/// El año meteorológico de una localidad y lo que de él se deriva. Nada se valida al cargar; las posiciones
/// que caen fuera del año nunca se leen.
///
/// Las operaciones por clave, las que responden por referencia (Estadisticas) y las que derivan por partes
/// son contrato y no cambian de forma. El código nuevo pide las series con DameSerie y el rótulo de su ficha
/// y las estadísticas con DameEstadisticas, y deriva con AsegurarDerivadas.
class LeerMet : public ObjetoBase {
public:
  LeerMet();

  /// Lee un fichero .met. Falso, sin cambiar nada, si @p ruta falta o no es un fichero regular; cierto en
  /// otro caso, aunque esté corto o estropeado o no se pueda abrir ni leer: las horas que no se leyeron
  /// conservan lo que tenían, y Resumen() dice cuántas se leyeron. No toca las series derivadas.
  bool LeerFichero(const std::string &ruta);
  /// Pone un año que no sale de un .met, como si se hubiera leído entero. No toca las series derivadas.
  void PonAnio(const SitioMet &sitio, SeriesLeidas series);
  /// Hasta dónde llegó la última lectura.
  [[nodiscard]] const ResumenLectura &Resumen() const { return resumen_; }

  /// Sólo contesta "Variable".
  [[nodiscard]] std::string DameTexto(std::string_view clave) const override;
  /// "Separador", "Localidad", "Provincia", "Variable", y por la entrada validada "Inclinación" [0, 180; 90],
  /// "Orientación" [−180, 180; 0] y "Albedo" [0, 1; 0,2]. Un texto vacío en éstas es el valor por defecto en
  /// blanco.
  void PonTexto(std::string_view clave, const std::string &texto) override;
  /// Sólo "Cabecera": si el fichero de exportación lleva las líneas de la localidad.
  virtual void PonCabecera(std::string_view clave, bool puesta);
  /// Período, ambos extremos incluidos. No se comprueba que el fin siga al inicio: entonces no tiene horas.
  void PonPeriodo(int mesIni, int diaIni, int horaIni, int mesFin, int diaFin, int horaFin);
  /// Horas del día, 1 a 24 y ambas incluidas, que cuentan en las estadísticas; de fábrica sólo la 1.
  void PonHorasDelDia(int primera, int ultima);

  /// Las de meteo/Fecha.h, con su nombre de contrato.
  [[nodiscard]] static int IndiceHora(int mes, int dia, int hora) {
    return tesmo::IndiceHora(mes, dia, hora);
  }
  static void SiguienteHora(int &mes, int &dia, int &hora) { tesmo::SiguienteHora(mes, dia, hora); }

  /// Libera las series derivadas y reserva las once con @p horas valores a cero.
  void ReservarDerivadas(int horas);
  void LiberarDerivadas();
  [[nodiscard]] bool DerivadasPresentes() const { return derivadasPresentes_; }
  /// Reserva las derivadas y llena las psicrométricas y la altura del sol en las horas del período.
  /// @param presion presión de la carta psicrométrica [Pa]
  void DerivarPsicrometricas(float presion);
  /// Llena las cinco series solares sobre la superficie en las horas del período, con el perfil de horizonte
  /// de @p horizonte. Antes hay que derivar las psicrométricas.
  void DerivarSolares(const PosicionSolar &horizonte);
  /// Deriva otra vez sólo lo que cambió desde la última: las psicrométricas si cambiaron los datos, el
  /// período o la presión; las solares, además, si cambió la superficie o el horizonte.
  void AsegurarDerivadas(float presion, const PosicionSolar &horizonte);

  /// Copia en @p destino, desde su primer elemento, los valores del período de la magnitud de rótulo
  /// exactamente @p rotulo; @p destino ha de tener sitio para todas las horas del período. No copia nada si
  /// el rótulo no se conoce, si el fin va antes que el inicio o si la magnitud es derivada y no se ha
  /// derivado.
  void DameSerie(std::string_view rotulo, float *destino) const;
  /// Copia las posiciones @p primera a @p ultima de una serie leída en las mismas posiciones de @p destino;
  /// nada si @p primera es mayor.
  void DameTramo(SerieAlmacenada serie, float *destino, int primera, int ultima) const;
  /// Estadísticas del período (CalcularEstadisticas); un rótulo desconocido deja los valores de partida.
  void Estadisticas(std::string_view rotulo, float baseCalefaccion, float baseRefrigeracion, float &maximo,
                    float &minimo, float &media, float &gradosCal, float &gradosRef, float &tercera,
                    std::string &unidad) const;
  /// Las mismas del período, con la hora de sus extremos, y las de cada uno de sus meses.
  [[nodiscard]] ResultadoEstadisticas DameEstadisticas(Magnitud magnitud, const BasesGradosDia &bases) const;
  [[nodiscard]] std::vector<EstadisticasDelMes> DameEstadisticasPorMes(Magnitud magnitud,
                                                                       const BasesGradosDia &bases) const;

  /// Da forma a las columnas de exportación de los rótulos, en su orden; los que no se exportan se saltan.
  void PrepararColumnas(const std::vector<std::string> &rotulos);
  /// Escribe el fichero de exportación. Si no se puede, muestra el mensaje 60 con la ruta y devuelve falso.
  bool EscribirFichero(const std::string &ruta, const std::vector<std::string> &rotulos);
  [[nodiscard]] const std::vector<ColumnaExportacion> &Columnas() const { return columnas_; }

  [[nodiscard]] const std::string &Localidad() const { return localidad_; }
  [[nodiscard]] const std::string &Provincia() const { return provincia_; }
  [[nodiscard]] const std::string &Separador() const { return separador_; }
  [[nodiscard]] bool Cabecera() const { return cabecera_; }
  [[nodiscard]] float Latitud() const { return sitio_.latitud; }       ///< [°, norte positivo]
  [[nodiscard]] float Longitud() const { return sitio_.longitud; }     ///< [°, este positivo]
  [[nodiscard]] float TercerDato() const { return sitio_.tercerDato; } ///< altitud del sitio [m]
  [[nodiscard]] const SuperficieReceptora &Superficie() const { return superficie_; }
  [[nodiscard]] std::int32_t EstadoInclinacion() const { return estadoInclinacion_; }
  [[nodiscard]] std::int32_t EstadoOrientacion() const { return estadoOrientacion_; }
  [[nodiscard]] std::int32_t EstadoAlbedo() const { return estadoAlbedo_; }
  /// Factor de visión del cielo de la última derivación solar; 0 antes de ella.
  [[nodiscard]] float FactorDeCielo() const { return factorDeCielo_; }
  [[nodiscard]] int PrimeraHora() const { return tramo_.primera; } ///< posiciones del período, ambas
  [[nodiscard]] int UltimaHora() const { return tramo_.ultima; }   ///< incluidas
  /// Horas del período: las que DameSerie copia; 0 si el fin va antes que el inicio.
  [[nodiscard]] int HorasDelPeriodo() const;
  [[nodiscard]] const SeriesDerivadas &Derivadas() const { return derivadas_; }

private:
  /// De qué depende cada familia de series derivadas.
  struct ClaveAire {
    std::uint64_t carga;
    Periodo periodo;
    float presion;
    bool operator==(const ClaveAire &) const = default;
  };
  struct ClaveSol {
    std::uint64_t carga;
    Periodo periodo;
    SuperficieReceptora superficie;
    std::vector<float> horizonteX;
    std::vector<float> horizonteY;
    bool operator==(const ClaveSol &) const = default;
  };

  [[nodiscard]] const SerieHoraria &Serie(const FuenteMagnitud &fuente) const;
  [[nodiscard]] TramoHoras TramoEnAnio() const;
  [[nodiscard]] FechaHora InicioEnAnio() const;
  [[nodiscard]] EncabezamientoExportacion Encabezamiento() const;
  [[nodiscard]] CriterioEstadisticas Criterio(const BasesGradosDia &bases) const;

  SeriesLeidas leidas_;
  SeriesDerivadas derivadas_;
  std::string separador_ = "\t";
  bool cabecera_ = true;
  std::string localidad_ = "Almería";
  std::string provincia_;
  SitioMet sitio_;
  std::string variable_;
  bool derivadasPresentes_ = false;
  std::vector<ColumnaExportacion> columnas_;
  Periodo periodo_{{0, 0, 0}, {0, 0, 0}};
  TramoHoras tramo_;
  SuperficieReceptora superficie_;
  std::int32_t estadoOrientacion_ = ENTRADA_BLANCO;
  std::int32_t estadoAlbedo_ = ENTRADA_BLANCO;
  std::int32_t estadoInclinacion_ = ENTRADA_BLANCO;
  int primeraHoraDelDia_ = 1;
  int ultimaHoraDelDia_ = 1;
  float factorDeCielo_ = 0.0F;
  ResumenLectura resumen_;
  std::uint64_t carga_ = 0; ///< cuántas cargas van: distingue unos datos de otros
  std::optional<ClaveAire> claveAire_;
  std::optional<ClaveSol> claveSol_;
};

} // namespace tesmo
