#include "core/Codificacion.h"
#include "intercambio/formatos/Cabeceras.h"
#include "intercambio/formatos/Fechatexto.h"
#include "intercambio/formatos/Lectores.h"
#include "intercambio/formatos/Mapacolumnas.h"
#include "intercambio/formatos/Montaje.h"
#include "intercambio/formatos/Numeros.h"
#include "intercambio/formatos/Unidadesclima.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>

namespace tesmo {

namespace {

constexpr std::size_t SIN_COLUMNA = static_cast<std::size_t>(-1);
/// Columnas que se miran; las de un mapa han de estar entre ellas.
constexpr int COLUMNAS_MAXIMAS = 1000;

std::optional<double> SiHay(double valor) { return std::isnan(valor) ? std::nullopt : std::optional(valor); }

class LectorDelimitado {
public:
  LectorDelimitado(std::string_view texto, const MapaColumnas &mapa, AnioCanonico &anio, Cuaderno &cuaderno)
      : texto_(texto), lineas_(texto), mapa_(mapa), anio_(anio), cuaderno_(cuaderno) {}

  void Leer() {
    anio_.sitio.nombre = mapa_.nombre;
    PonerSitio(SiHay(mapa_.latitud), SiHay(mapa_.longitud), SiHay(mapa_.altitud), 0, anio_.sitio, cuaderno_);
    PonerReloj();
    LeerRotulos();
    EsquemaFilas esquema{.separador = mapa_.separador, .comaDecimal = mapa_.comaDecimal};
    for (const ColumnaMapa &columna : mapa_.columnas) AnadirColumna(columna, esquema);
    ElegirFecha(esquema);
    if (!cuaderno_.Resultado().errores.empty()) return;
    const std::vector<FilaClima> filas = LeerFilas(lineas_, esquema, cuaderno_);
    RechazarSinHora(filas);
    if (cuaderno_.Resultado().errores.empty()) MontarAnio(filas, anio_, cuaderno_);
  }

private:
  void PonerReloj() {
    anio_.reloj = mapa_.reloj;
    if (!mapa_.husoDeLongitud) return;
    anio_.reloj.husoHoras = HusoDeLongitud(anio_.sitio.longitud);
    cuaderno_.Aviso({.clase = ClaseNota::Cabecera,
                     .texto = "el mapa no da el huso horario («huso»); se toma el de su longitud"});
  }

  void LeerRotulos() {
    std::string_view linea;
    for (int i = 0; i < mapa_.lineasCabecera; ++i) (void)lineas_.Siguiente(linea);
    if (mapa_.lineasCabecera > 0) PartirLinea(linea, mapa_.separador, COLUMNAS_MAXIMAS, rotulos_);
  }

  [[nodiscard]] std::size_t PosicionDeRotulo(const std::string &rotulo) const {
    const std::string buscado = PlegarMinusculas(rotulo);
    for (std::size_t i = 0; i < rotulos_.size(); ++i) {
      if (PlegarMinusculas(AUtf8(rotulos_[i])) == buscado) return i;
    }
    return SIN_COLUMNA;
  }

  /// Posición, desde 0, de una columna nombrada por su número o por su rótulo.
  std::size_t Posicion(const std::string &columna, std::string_view para) {
    if (columna.empty()) return SIN_COLUMNA;
    const std::optional<int> numero = LeerEntero(columna);
    if (numero && *numero >= 1 && *numero <= COLUMNAS_MAXIMAS) return static_cast<std::size_t>(*numero - 1);
    if (const std::size_t i = PosicionDeRotulo(columna); i != SIN_COLUMNA) return i;
    cuaderno_.Error(
        {.clase = ClaseNota::Cabecera,
         .linea = mapa_.lineasCabecera,
         .texto = "no hay columna " + Citado(columna) + " para " + std::string(para) +
                  "; póngase en el mapa su número, desde 1, o su rótulo tal como está en la línea " +
                  std::to_string(mapa_.lineasCabecera) + OtraLineaConRotulo(columna)});
    return SIN_COLUMNA;
  }

  /// Si @p rotulo está en otra de las primeras líneas, cuál; lo corriente es haber contado mal la cabecera.
  [[nodiscard]] std::string OtraLineaConRotulo(const std::string &rotulo) const {
    constexpr int LINEAS_MIRADAS = 100;
    const std::string buscado = PlegarMinusculas(rotulo);
    Lineas lineas(texto_);
    CamposLinea campos;
    for (std::string_view linea; lineas.Numero() < LINEAS_MIRADAS && lineas.Siguiente(linea);) {
      PartirLinea(linea, mapa_.separador, COLUMNAS_MAXIMAS, campos);
      const auto es = [&buscado](std::string_view c) { return PlegarMinusculas(AUtf8(c)) == buscado; };
      if (std::any_of(campos.begin(), campos.end(), es))
        return "; está en la línea " + std::to_string(lineas.Numero()) +
               ": «líneas de cabecera = " + std::to_string(lineas.Numero()) + "»";
    }
    return {};
  }

  void AnadirColumna(const ColumnaMapa &columna, EsquemaFilas &esquema) {
    // "T [°C]" puede ser el rótulo entero.
    const std::size_t entero = columna.unidad.empty() || PosicionDeRotulo(columna.columna) != SIN_COLUMNA
                                   ? SIN_COLUMNA
                                   : PosicionDeRotulo(columna.columna + " [" + columna.unidad + "]");
    const std::size_t posicion =
        entero != SIN_COLUMNA ? entero : Posicion(columna.columna, NombreCampo(columna.campo));
    const UnidadClima *unidad = columna.unidad.empty() ? &UnidadesDe(columna.campo).front()
                                                       : BuscarUnidad(columna.campo, columna.unidad);
    if (posicion == SIN_COLUMNA || unidad == nullptr) return;
    esquema.columnas.push_back(
        {posicion, columna.campo, unidad->factor, unidad->sumando, mapa_.sinDato, true});
  }

  void ElegirFecha(EsquemaFilas &esquema) {
    const std::size_t fecha = Posicion(mapa_.columnaFecha, "la fecha");
    const std::size_t anio = Posicion(mapa_.columnaAnio, "el año");
    const std::size_t mes = Posicion(mapa_.columnaMes, "el mes");
    const std::size_t dia = Posicion(mapa_.columnaDia, "el día");
    const std::size_t hora = Posicion(mapa_.columnaHora, "la hora");
    for (const std::size_t posicion : {fecha, anio, mes, dia, hora}) {
      if (posicion != SIN_COLUMNA) esquema.camposMinimos = std::max(esquema.camposMinimos, posicion + 1);
    }
    const OrdenFecha orden = mapa_.orden;
    if (fecha != SIN_COLUMNA) {
      esquema.fecha = [=, this](const CamposLinea &campos, FilaClima &fila) {
        if (!LeerFechaTexto(campos[fecha], orden, fila)) return false;
        if (hora != SIN_COLUMNA) return LeerHoraTexto(campos[hora], fila);
        // Hay programas que a medianoche escriben sólo el día.
        if (fila.hora != SIN_HORA) return true;
        fila.hora = 0;
        ++sinHora_;
        return true;
      };
    } else if (mes != SIN_COLUMNA && dia != SIN_COLUMNA && hora != SIN_COLUMNA) {
      esquema.fecha = [=](const CamposLinea &campos, FilaClima &fila) {
        const auto entero = [&](std::size_t i) {
          return i == SIN_COLUMNA ? 0 : LeerEntero(campos[i]).value_or(-1);
        };
        fila.anio = entero(anio);
        fila.mes = entero(mes);
        fila.dia = entero(dia);
        return fila.mes >= 0 && fila.dia >= 0 && LeerHoraTexto(campos[hora], fila);
      };
    } else if (mes != SIN_COLUMNA || dia != SIN_COLUMNA || hora != SIN_COLUMNA) {
      cuaderno_.Error({.clase = ClaseNota::Cabecera,
                       .texto = "el mapa ha de dar las columnas del mes, del día y de la hora, o la de la "
                                "fecha entera; si no da ninguna, las líneas van por orden"});
    } else {
      NumerarPorOrden(esquema);
    }
  }

  void RechazarSinHora(const std::vector<FilaClima> &filas) {
    if (sinHora_ == 0 || sinHora_ != filas.size()) return;
    cuaderno_.Error({.clase = ClaseNota::Cabecera,
                     .linea = filas.front().linea,
                     .texto = "línea " + std::to_string(filas.front().linea) +
                              ": la fecha no lleva la hora, ni ninguna de las que siguen; diga en el mapa "
                              "qué columna la lleva («hora = 2»)"});
  }

  void NumerarPorOrden(EsquemaFilas &esquema) const {
    // Tras el año entero, una nota al pie no es un registro que sobre.
    const auto esNota = [](const CamposLinea &campos) {
      const auto empiezaNumero = [](std::string_view c) {
        return !c.empty() && std::string_view("0123456789+-.,").find(c.front()) != std::string_view::npos;
      };
      return std::none_of(campos.begin(), campos.end(), empiezaNumero);
    };
    esquema.fecha = [posicion = 0, esNota](const CamposLinea &campos, FilaClima &fila) mutable {
      if (posicion >= HORAS_DEL_ANIO && esNota(campos)) return false;
      const FechaHora fecha = FechaDeIndice(posicion++ % HORAS_DEL_ANIO);
      fila.mes = fecha.mes;
      fila.dia = fecha.dia;
      fila.hora = fecha.hora;
      return true;
    };
  }

  std::string_view texto_;
  Lineas lineas_;
  const MapaColumnas &mapa_;
  AnioCanonico &anio_;
  Cuaderno &cuaderno_;
  CamposLinea rotulos_;
  std::size_t sinHora_ = 0; ///< líneas cuya fecha no la lleva
};

} // namespace

void LeerDelimitado(std::string_view texto, const MapaColumnas &mapa, AnioCanonico &anio,
                    Cuaderno &cuaderno) {
  LectorDelimitado(texto, mapa, anio, cuaderno).Leer();
}

} // namespace tesmo
