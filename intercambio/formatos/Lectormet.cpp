#include "core/Unidades.h"
#include "intercambio/formatos/Cabeceras.h"
#include "intercambio/formatos/Filas.h"
#include "intercambio/formatos/Lectores.h"
#include "intercambio/formatos/Montaje.h"
#include "intercambio/formatos/Numeros.h"

#include <array>
#include <cmath>
#include <optional>
#include <string>

namespace tesmo {

namespace {

/// Las diez magnitudes de los dos .met, en su orden, tras mes, día y hora. El de trece columnas lo definen
/// los climas de referencia del Código Técnico de la Edificación (documento descriptivo, Ministerio de
/// Fomento, 2017); el de quince lleva dos más, que nada usan.
const std::vector<ColumnaClima> COLUMNAS{
    {3, Campo::TemperaturaSeca},  {4, Campo::TemperaturaCielo}, {5, Campo::DirectaHorizontal},
    {6, Campo::DifusaHorizontal}, {7, Campo::HumedadAbsoluta},  {8, Campo::HumedadRelativa},
    {9, Campo::VelocidadViento},  {10, Campo::DireccionViento}, {11, Campo::AcimutSolar},
    {12, Campo::CenitSolar},
};
constexpr std::size_t CAMPOS_TRECE = 13;
constexpr std::size_t CAMPOS_QUINCE = 15;
constexpr std::size_t CAMPOS_DEL_SITIO = 4;

bool LeerFecha(const CamposLinea &campos, FilaClima &fila) {
  const std::optional<int> mes = LeerEntero(campos[0]);
  const std::optional<int> dia = LeerEntero(campos[1]);
  const std::optional<int> hora = LeerEntero(campos[2]);
  if (!mes || !dia || !hora) return false;
  fila.mes = *mes;
  fila.dia = *dia;
  fila.hora = *hora;
  return true;
}

/// Las dos primeras líneas. Devuelve cuántos números del sitio trae la segunda, cuatro como mucho.
std::size_t LeerCabecera(Lineas &lineas, AnioCanonico &anio, Cuaderno &cuaderno) {
  std::string_view linea;
  (void)lineas.Siguiente(linea); // un comentario libre: el nombre del sitio es el del fichero
  linea = {};
  (void)lineas.Siguiente(linea);
  CamposLinea campos;
  PartirLinea(linea, SEPARADOR_BLANCOS, CAMPOS_DEL_SITIO, campos);
  const auto numero = [&](std::size_t i) { return i < campos.size() ? LeerNumero(campos[i]) : std::nullopt; };
  PonerSitio(numero(0), numero(1), numero(2), 2, anio.sitio, cuaderno);
  const std::optional<double> meridiano = numero(3);
  const bool creible = meridiano && std::fabs(*meridiano) <= 180.0;
  const double huso = creible ? *meridiano / GRADOS_POR_HORA : HusoDeLongitud(anio.sitio.longitud);
  anio.reloj = {TiempoEtiqueta::SolarVerdadero, huso, -30.0};
  return campos.size();
}

/// Los registros del .met de quince columnas: números separados por blancos, vayan como vayan las líneas.
class LectorQuince {
public:
  LectorQuince(Lineas lineas, AnioCanonico &anio, Cuaderno &cuaderno)
      : lineas_(lineas), anio_(anio), cuaderno_(cuaderno) {}

  void Leer() {
    for (std::size_t hora = 0; hora < static_cast<std::size_t>(HORAS_DEL_ANIO); ++hora) {
      if (!LeerRegistro(hora)) return;
    }
    DecirSobrantes();
  }

  void DecirFechas() {
    if (distintas_.veces == 0) return;
    distintas_.texto = TextoLineas(distintas_.linea, distintas_.ultimaLinea) + ": " +
                       std::to_string(distintas_.veces) +
                       " fechas no son las que tocan por su posición; manda la posición";
    cuaderno_.Aviso(distintas_);
  }

private:
  /// El campo siguiente, saltando de línea si hace falta; vacío al acabarse el texto.
  std::optional<std::string_view> Campo15() {
    while (siguiente_ == campos_.size()) {
      std::string_view linea;
      if (!lineas_.Siguiente(linea)) return std::nullopt;
      if (EsLineaVacia(linea)) continue;
      PartirLinea(linea, SEPARADOR_BLANCOS, linea.size(), campos_);
      siguiente_ = 0;
    }
    return campos_[siguiente_++];
  }

  bool LeerRegistro(std::size_t hora) {
    std::array<double, CAMPOS_QUINCE> numeros{};
    int linea = 0;
    for (std::size_t i = 0; i < CAMPOS_QUINCE; ++i) {
      const std::optional<std::string_view> campo = Campo15();
      const std::optional<double> numero = campo ? LeerNumero(*campo) : std::nullopt;
      if (i == 0) linea = lineas_.Numero();
      if (!numero) return Detener(hora, campo);
      numeros[i] = *numero;
    }
    ++cuaderno_.Resultado().registros;
    Guardar(hora, linea, numeros);
    return true;
  }

  void Guardar(std::size_t hora, int linea, const std::array<double, CAMPOS_QUINCE> &numeros) {
    anio_.lineas[hora] = linea;
    for (const ColumnaClima &columna : COLUMNAS)
      anio_[columna.campo].Poner(hora, numeros[columna.posicion] + 0.0, Procedencia::Copiada);
    const auto entero = [](double valor) { return std::fabs(valor) < 1000.0 ? static_cast<int>(valor) : 0; };
    const int escrita = PosicionEtiqueta(entero(numeros[0]), entero(numeros[1]), entero(numeros[2]));
    if (escrita == static_cast<int>(hora)) return;
    if (distintas_.veces++ == 0) distintas_.linea = linea;
    distintas_.ultimaLinea = linea;
  }

  bool Detener(std::size_t hora, const std::optional<std::string_view> &campo) {
    const int linea = lineas_.Numero();
    const std::string que = campo ? Citado(*campo) + " no es un número" : "el fichero se acaba";
    cuaderno_.Error({.clase = campo ? ClaseNota::Campo : ClaseNota::FaltanRegistros,
                     .linea = linea,
                     .veces = HORAS_DEL_ANIO - static_cast<int>(hora),
                     .texto = "línea " + std::to_string(linea) + ": " + que + "; la lectura se queda en el " +
                              TextoHora(static_cast<int>(hora)) + " y faltan " +
                              std::to_string(HORAS_DEL_ANIO - static_cast<int>(hora)) + " horas"});
    return false;
  }

  void DecirSobrantes() {
    const std::optional<std::string_view> campo = Campo15();
    if (!campo) return;
    cuaderno_.Aviso({.clase = ClaseNota::SobranRegistros,
                     .linea = lineas_.Numero(),
                     .texto = "línea " + std::to_string(lineas_.Numero()) + ": sobra texto tras las " +
                              std::to_string(HORAS_DEL_ANIO) + " horas; no se lee"});
  }

  Lineas lineas_;
  AnioCanonico &anio_;
  Cuaderno &cuaderno_;
  CamposLinea campos_;
  std::size_t siguiente_ = 0;
  NotaLectura distintas_{.clase = ClaseNota::FechaDistinta, .veces = 0};
};

} // namespace

void LeerMetTrece(std::string_view texto, AnioCanonico &anio, Cuaderno &cuaderno) {
  Lineas lineas(texto);
  LeerCabecera(lineas, anio, cuaderno);
  const EsquemaFilas esquema{.separador = SEPARADOR_BLANCOS,
                             .camposMinimos = CAMPOS_TRECE,
                             .columnas = COLUMNAS,
                             .fecha = LeerFecha};
  MontarAnio(LeerFilas(lineas, esquema, cuaderno), anio, cuaderno);
}

void LeerMetQuince(std::string_view texto, AnioCanonico &anio, Cuaderno &cuaderno) {
  constexpr std::size_t SITIO_SIN_MERIDIANO = 3;
  Lineas lineas(texto);
  if (LeerCabecera(lineas, anio, cuaderno) == SITIO_SIN_MERIDIANO) {
    std::string_view perdida;
    (void)lineas.Siguiente(perdida); // con sólo tres números en la segunda, la tercera línea se pierde entera
    cuaderno.Aviso({.clase = ClaseNota::Cabecera,
                    .linea = 2,
                    .texto = "línea 2: sólo lleva tres números, y entonces la línea 3 no se lee; añada el "
                             "meridiano de la hora oficial"});
  }
  LectorQuince lector(lineas, anio, cuaderno);
  lector.Leer();
  lector.DecirFechas();
}

} // namespace tesmo
