#include "core/Unidades.h"
#include "intercambio/formatos/Cabeceras.h"
#include "intercambio/formatos/Columnasporrotulo.h"
#include "intercambio/formatos/Lectores.h"
#include "intercambio/formatos/Montaje.h"
#include "intercambio/formatos/Numeros.h"

#include <cmath>
#include <optional>
#include <string>

namespace tesmo {

namespace {

/// Las columnas del año típico (Comisión Europea, Centro Común de Investigación: manual de PVGIS, «TMY
/// generator»); ningún código de «sin dato».
const std::vector<ColumnaRotulada> ROTULOS{
    {"T2m", Campo::TemperaturaSeca},
    {"RH", Campo::HumedadRelativa},
    {"G(h)", Campo::GlobalHorizontal},
    {"Gb(n)", Campo::DirectaNormal},
    {"Gd(h)", Campo::DifusaHorizontal},
    {"IR(h)", Campo::InfrarrojaHorizontal},
    {"WS10m", Campo::VelocidadViento},
    {"WD10m", Campo::DireccionViento},
    {"SP", Campo::Presion},
};
constexpr std::string_view ROTULO_FECHA = "time(UTC)";

/// "AAAAMMDD:HHMM": la hora, de 0 a 23, pasa a etiqueta de 1 a 24.
bool LeerFecha(const CamposLinea &campos, FilaClima &fila) {
  constexpr std::size_t LARGO = 13;
  constexpr std::size_t DOS_PUNTOS = 8;
  const std::string_view texto = campos[0];
  if (texto.size() != LARGO || texto[DOS_PUNTOS] != ':') return false;
  const std::optional<int> fecha = LeerEntero(texto.substr(0, DOS_PUNTOS));
  const std::optional<int> hora = LeerEntero(texto.substr(DOS_PUNTOS + 1, 2));
  if (!fecha || !hora || *fecha < 0 || *hora < 0) return false;
  fila.anio = *fecha / 10000;
  fila.mes = *fecha / 100 % 100;
  fila.dia = *fecha % 100;
  fila.hora = *hora + 1;
  return true;
}

/// Más allá no se busca la línea de los rótulos: delante van el sitio y un año por mes.
constexpr int LINEAS_DE_CABECERA = 60;

bool EsDeRotulos(std::string_view linea) {
  return Contiene(SinComilla(linea).substr(0, ROTULO_FECHA.size()), ROTULO_FECHA);
}

/// La leyenda que sigue a los datos («T2m: 2-m air temperature…», el titular de los derechos): lo primero
/// que no empieza por la cifra de una fecha.
bool EsLeyenda(std::string_view linea) {
  linea = SinComilla(linea);
  return !linea.empty() && (linea.front() < '0' || linea.front() > '9');
}

class LectorPvgis {
public:
  LectorPvgis(std::string_view texto, AnioCanonico &anio, Cuaderno &cuaderno)
      : lineas_(texto), anio_(anio), cuaderno_(cuaderno) {}

  void Leer() {
    std::string_view linea;
    bool hayRotulos = false;
    while (!hayRotulos && lineas_.Numero() < LINEAS_DE_CABECERA && lineas_.Siguiente(linea)) {
      hayRotulos = EsDeRotulos(linea);
      if (!hayRotulos) LeerCabecera(linea);
    }
    if (!hayRotulos) return RechazarOtraDescarga();
    if (RechazarSeparador(linea, lineas_.Numero(), cuaderno_)) return;
    if (!latitud_ && !longitud_) return RechazarSinCabecera();
    PonerSitio(latitud_, longitud_, altitud_, 1, anio_.sitio, cuaderno_);
    ProponerReloj();
    EsquemaFilas esquema{.camposMinimos = 2, .fecha = LeerFecha, .fin = EsLeyenda};
    esquema.columnas = ColumnasPorRotulo(linea, esquema.separador, ROTULOS, lineas_.Numero(), cuaderno_);
    MontarAnio(LeerFilas(lineas_, esquema, cuaderno_), anio_, cuaderno_);
  }

private:
  /// PVGIS da con la misma cabecera sus series de varios años, sus medias mensuales y sus días medios.
  void RechazarOtraDescarga() {
    cuaderno_.Error({.clase = ClaseNota::Cabecera,
                     .linea = 1,
                     .texto = "es de PVGIS pero no es un año típico: falta la línea «" +
                              std::string(ROTULO_FECHA) +
                              ",T2m,RH…»; en PVGIS, descargue «TMY» en CSV o en EPW, y no la serie horaria "
                              "ni las medias"});
  }

  void RechazarSinCabecera() {
    cuaderno_.Error({.clase = ClaseNota::Cabecera,
                     .linea = 1,
                     .texto = "no se sabe de dónde es: delante de la línea " +
                              std::to_string(lineas_.Numero()) +
                              " faltan «Latitude (decimal degrees): 37.5», «Longitude (decimal degrees): "
                              "-3.5» y «Elevation (m): 600»"});
  }

  void LeerCabecera(std::string_view linea) {
    const auto tomar = [linea](std::optional<double> &destino, std::string_view clave) {
      if (!destino) destino = NumeroTras(linea, clave);
    };
    tomar(latitud_, "latitude (decimal degrees)");
    tomar(longitud_, "longitude (decimal degrees)");
    tomar(altitud_, "elevation (m)");
    tomar(desfase_, "irradiance time offset (h)");
  }

  /// El desfase cuenta desde la hora en punto que se escribe; la etiqueta es esa hora más una.
  void ProponerReloj() {
    anio_.reloj = {TiempoEtiqueta::Utc, HusoDeLongitud(anio_.sitio.longitud), DESFASE_PVGIS_MIN};
    if (!desfase_) return;
    const double minutos = (*desfase_ - 1.0) * MINUTOS_POR_HORA;
    if (std::fabs(minutos) <= DESFASE_MAXIMO_MIN) anio_.reloj.desfaseMin = minutos;
  }

  Lineas lineas_;
  AnioCanonico &anio_;
  Cuaderno &cuaderno_;
  std::optional<double> latitud_, longitud_, altitud_, desfase_;
};

} // namespace

void LeerPvgisCsv(std::string_view texto, AnioCanonico &anio, Cuaderno &cuaderno) {
  LectorPvgis(texto, anio, cuaderno).Leer();
}

} // namespace tesmo
