#include "core/Codificacion.h"
#include "core/Unidades.h"
#include "intercambio/formatos/Cabeceras.h"
#include "intercambio/formatos/Filas.h"
#include "intercambio/formatos/Lectores.h"
#include "intercambio/formatos/Montaje.h"
#include "intercambio/formatos/Numeros.h"
#include "psicro/Atmosfera.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <string>

namespace tesmo {

namespace {

/// Las columnas del formato EPW y sus códigos de «sin dato» (U.S. Department of Energy, EnergyPlus:
/// Auxiliary Programs, «EnergyPlus Weather File (EPW) Data Dictionary»).
const std::vector<ColumnaClima> COLUMNAS{
    {6, Campo::TemperaturaSeca, 1.0, 0.0, 99.9},         {7, Campo::TemperaturaRocio, 1.0, 0.0, 99.9},
    {8, Campo::HumedadRelativa, 1.0, 0.0, 999.0},        {9, Campo::Presion, 1.0, 0.0, 999999.0},
    {12, Campo::InfrarrojaHorizontal, 1.0, 0.0, 9999.0}, {13, Campo::GlobalHorizontal, 1.0, 0.0, 9999.0},
    {14, Campo::DirectaNormal, 1.0, 0.0, 9999.0},        {15, Campo::DifusaHorizontal, 1.0, 0.0, 9999.0},
    {20, Campo::DireccionViento, 1.0, 0.0, 999.0},       {21, Campo::VelocidadViento, 1.0, 0.0, 999.0},
    {22, Campo::NubosidadTotal, 1.0, 0.0, 99.0},         {23, Campo::NubosidadOpaca, 1.0, 0.0, 99.0},
};
/// Hasta la temperatura seca: sin ella no hay registro.
constexpr std::size_t CAMPOS_MINIMOS = 7;
/// Campos de la línea LOCATION.
enum : std::size_t {
  CIUDAD = 1,
  REGION,
  PAIS,
  FUENTE,
  ESTACION,
  LATITUD,
  LONGITUD,
  HUSO,
  ALTITUD,
  CAMPOS_LOCATION
};
constexpr int LINEAS_DE_CABECERA = 8;
constexpr std::string_view CLAVE_DESFASE = "irradiance time offset (h)";

/// Los minutos se pasan por alto: a un registro por hora no dicen nada, y cada programa escribe los suyos.
bool LeerFecha(const CamposLinea &campos, FilaClima &fila) {
  const std::optional<int> anio = LeerEntero(campos[0]);
  const std::optional<int> mes = LeerEntero(campos[1]);
  const std::optional<int> dia = LeerEntero(campos[2]);
  const std::optional<int> hora = LeerEntero(campos[3]);
  if (!mes || !dia || !hora) return false;
  fila.anio = anio.value_or(0);
  fila.mes = *mes;
  fila.dia = *dia;
  fila.hora = *hora;
  return true;
}

bool PareceDeDatos(std::string_view linea, CamposLinea &campos) {
  PartirLinea(linea, ',', CAMPOS_MINIMOS, campos);
  FilaClima fila;
  return campos.size() >= CAMPOS_MINIMOS && LeerEntero(campos[0]) && LeerFecha(campos, fila);
}

/// ¿Son los @p cuantos campos desde @p i latitud, longitud, huso y altitud? El huso, en cuartos de hora: así
/// no pasa por él una longitud.
bool SonDelSitio(const CamposLinea &campos, std::size_t i, std::size_t cuantos) {
  constexpr std::array<double, 4> MAYORES{90.0, 180.0, HUSO_MAXIMO, ALTITUD_MAXIMA};
  constexpr std::size_t EL_HUSO = 2;
  constexpr double CUARTOS_POR_HORA = 4.0;
  for (std::size_t k = 0; k < cuantos; ++k) {
    const std::optional<double> numero = i + k < campos.size() ? LeerNumero(campos[i + k]) : std::nullopt;
    if (!numero || std::fabs(*numero) > MAYORES[k]) return false;
    if (k == EL_HUSO && std::fmod(*numero * CUARTOS_POR_HORA, 1.0) != 0.0) return false;
  }
  return true;
}

/// Dónde empiezan los números del sitio: un nombre con comas sin comillas los corre hacia atrás, y la falta
/// del número de estación, o de la fuente, hacia delante. Se buscan los cuatro y, si no, los tres primeros.
std::size_t DondeEstaLaLatitud(const CamposLinea &campos) {
  constexpr std::size_t CON_ALTITUD = 4;
  constexpr std::size_t SIN_ALTITUD = 3;
  for (const std::size_t cuantos : {CON_ALTITUD, SIN_ALTITUD}) {
    for (std::size_t i = LATITUD; i < campos.size(); ++i) {
      if (SonDelSitio(campos, i, cuantos)) return i;
    }
    for (const std::size_t i : {static_cast<std::size_t>(ESTACION), static_cast<std::size_t>(FUENTE)}) {
      if (SonDelSitio(campos, i, cuantos)) return i;
    }
  }
  return LATITUD;
}

class LectorEpw {
public:
  LectorEpw(std::string_view texto, AnioCanonico &anio, Cuaderno &cuaderno)
      : lineas_(texto), anio_(anio), cuaderno_(cuaderno) {}

  void Leer() {
    const std::string_view location = SiguienteConTexto(lineas_);
    if (RechazarSeparador(location, lineas_.Numero(), cuaderno_)) return;
    LeerSitio(location);
    LeerCabecera();
    AnioClimatico();
  }

private:
  void LeerSitio(std::string_view linea) {
    constexpr std::size_t CAMPOS_MAXIMOS = 40;
    CamposLinea campos;
    PartirLinea(linea, ',', CAMPOS_MAXIMOS, campos);
    const std::size_t latitud = DondeEstaLaLatitud(campos);
    const auto numero = [&](std::size_t i) {
      return i < campos.size() ? LeerNumero(campos[i]) : std::nullopt;
    };
    PonerSitio(numero(latitud), numero(latitud + 1), numero(latitud + 3), lineas_.Numero(), anio_.sitio,
               cuaderno_);
    PonerHuso(numero(latitud + 2));
    const auto texto = [&](std::size_t i) {
      return i < std::min(campos.size(), latitud) ? AUtf8(campos[i]) : std::string();
    };
    anio_.sitio.nombre = texto(CIUDAD);
    anio_.sitio.region = texto(REGION);
    anio_.sitio.pais = texto(PAIS);
    anio_.sitio.identificador = texto(ESTACION);
  }

  void PonerHuso(std::optional<double> huso) {
    anio_.reloj = {TiempoEtiqueta::OficialEstandar,
                   HusoCreible(huso, anio_.sitio.longitud, lineas_.Numero(), cuaderno_), -30.0};
  }

  /// Se buscan los datos por su aspecto: ninguna línea de cabecera, salvo la primera, hace fallar.
  void LeerCabecera() {
    Lineas siguiente = lineas_;
    CamposLinea campos;
    int cabeceras = 1;
    for (std::string_view linea; siguiente.Siguiente(linea); lineas_ = siguiente) {
      if (PareceDeDatos(linea, campos)) break;
      if (EsLineaVacia(linea)) continue;
      ++cabeceras;
      desfase_ = desfase_ ? desfase_ : NumeroTras(linea, CLAVE_DESFASE);
    }
    if (cabeceras == LINEAS_DE_CABECERA) return;
    cuaderno_.Aviso({.clase = ClaseNota::Cabecera,
                     .linea = lineas_.Numero(),
                     .texto = "hay " + std::to_string(cabeceras) + (cabeceras == 1 ? " línea" : " líneas") +
                              " antes de los datos y un EPW tiene " + std::to_string(LINEAS_DE_CABECERA) +
                              "; se sigue con las que hay"});
  }

  void AnioClimatico() {
    if (anio_.formato == FormatoClima::PvgisEpw) ProponerRelojPvgis();
    const EsquemaFilas esquema{.camposMinimos = CAMPOS_MINIMOS, .columnas = COLUMNAS, .fecha = LeerFecha};
    MontarAnio(LeerFilas(lineas_, esquema, cuaderno_), anio_, cuaderno_);
  }

  /// Las etiquetas de PVGIS son la hora UTC más uno, diga lo que diga el huso de la cabecera. El desfase que
  /// escribe va de la etiqueta al dato; si es positivo, es el del CSV, que cuenta desde la hora en punto.
  void ProponerRelojPvgis() {
    anio_.reloj.tiempo = TiempoEtiqueta::Utc;
    anio_.reloj.desfaseMin = DESFASE_PVGIS_MIN;
    if (!desfase_) return;
    const double minutos = *desfase_ * MINUTOS_POR_HORA - (*desfase_ > 0 ? MINUTOS_POR_HORA : 0.0);
    if (std::fabs(minutos) <= DESFASE_MAXIMO_MIN) anio_.reloj.desfaseMin = minutos;
  }

  Lineas lineas_;
  AnioCanonico &anio_;
  Cuaderno &cuaderno_;
  std::optional<double> desfase_;
};

} // namespace

void LeerEpw(std::string_view texto, AnioCanonico &anio, Cuaderno &cuaderno) {
  LectorEpw(texto, anio, cuaderno).Leer();
}

} // namespace tesmo
