#include "intercambio/sintesis/Normales.h"

#include "core/Codificacion.h"
#include "intercambio/comun/Nombrecorto.h"
#include "intercambio/sintesis/Columnasnormales.h"
#include "intercambio/sintesis/Filanormales.h"

#include <algorithm>
#include <bitset>
#include <cmath>
#include <optional>
#include <set>

namespace tesmo {

namespace {

/// Lo que cabe en un campo de la lista de localidades.
constexpr std::size_t BYTES_DE_NOMBRE = 49;

/// Lector de las filas: reúne las doce de cada localidad, en el orden en que aparecen las localidades.
class LectorNormales {
public:
  explicit LectorNormales(FaltasFichero &faltas) : faltas_(faltas) {}

  bool Encabezamiento(const RegistroCsv &registro);
  void Anadir(const RegistroCsv &registro);
  std::vector<NormalesLocalidad> Terminar();

private:
  std::size_t Localidad(const Fila &fila);
  void ComprobarTextos(const Fila &fila) const;
  void CompararSitio(const Fila &fila, const NormalesLocalidad &localidad) const;
  void LeerMes(const Fila &fila, NormalesMes &mes) const;
  void ExigirDoceMeses(std::size_t localidad) const;
  void ExigirNombreCortoPropio(std::size_t localidad);

  FaltasFichero &faltas_;
  ColumnasPorNombre columnas_;
  std::size_t numeroColumnas_ = 0;
  std::vector<NormalesLocalidad> localidades_;
  std::vector<std::bitset<12>> leidos_;
  std::vector<std::size_t> lineas_;
  std::set<std::string, std::less<>> cortos_;
};

bool LectorNormales::Encabezamiento(const RegistroCsv &registro) {
  const std::size_t antes = faltas_.Numero();
  numeroColumnas_ = registro.campos.size();
  if (numeroColumnas_ == 1 && registro.campos[0].find(';') != std::string::npos) {
    faltas_.Anadir(registro.linea, "los campos van separados por punto y coma; han de separarse por comas");
    return false;
  }
  for (std::size_t i = 0; i < numeroColumnas_; ++i) columnas_.emplace(registro.campos[i], i);
  const auto exigir = [&](std::string_view columna) {
    if (!columnas_.contains(columna))
      faltas_.Anadir(registro.linea, "falta la columna " + std::string(columna));
  };
  exigir(COLUMNA_MES);
  for (const ColumnaTexto &columna : ColumnasTexto()) exigir(columna.nombre);
  for (const ColumnaSitio &columna : ColumnasSitio()) exigir(columna.nombre);
  for (const ColumnaMes &columna : ColumnasMes()) exigir(columna.nombre);
  for (const ColumnaClase &columna : ColumnasClase()) exigir(columna.nombre);
  return faltas_.Numero() == antes;
}

void LectorNormales::ComprobarTextos(const Fila &fila) const {
  for (const ColumnaTexto &columna : ColumnasTexto()) {
    const std::string &texto = fila.Texto(columna.nombre);
    const auto prohibido = [](char c) { return c == ',' || (static_cast<unsigned char>(c) < ' '); };
    if (texto.empty()) fila.Falta(columna.nombre, "está vacía");
    if (std::any_of(texto.begin(), texto.end(), prohibido)) {
      fila.Falta(columna.nombre, Citar(texto) + " lleva una coma o un carácter de control");
    }
    if (texto.size() > BYTES_DE_NOMBRE) {
      fila.Falta(columna.nombre, Citar(texto) + " pasa de " + std::to_string(BYTES_DE_NOMBRE) + " bytes");
    }
  }
  const std::string &zona = fila.Texto("zona");
  if (zona != "COSTA" && zona != "INTERIOR") fila.Falta("zona", Citar(zona) + " no es COSTA ni INTERIOR");
}

void LectorNormales::CompararSitio(const Fila &fila, const NormalesLocalidad &localidad) const {
  for (const ColumnaTexto &columna : ColumnasTexto()) {
    if (fila.Texto(columna.nombre) != localidad.*columna.destino) {
      fila.Falta(columna.nombre, Citar(fila.Texto(columna.nombre)) +
                                     " no es lo que dice la primera fila de " + Citar(localidad.nombre));
    }
  }
  for (const ColumnaSitio &columna : ColumnasSitio()) {
    if (fila.Real(columna.nombre, columna.minimo, columna.maximo) != localidad.*columna.destino) {
      fila.Falta(columna.nombre, Citar(fila.Texto(columna.nombre)) +
                                     " no es lo que dice la primera fila de " + Citar(localidad.nombre));
    }
  }
}

std::size_t LectorNormales::Localidad(const Fila &fila) {
  const std::string &nombre = fila.Texto(COLUMNA_LOCALIDAD);
  for (std::size_t i = 0; i < localidades_.size(); ++i) {
    if (localidades_[i].nombre != nombre) continue;
    CompararSitio(fila, localidades_[i]);
    return i;
  }
  NormalesLocalidad nueva;
  ComprobarTextos(fila);
  for (const ColumnaTexto &columna : ColumnasTexto()) nueva.*columna.destino = fila.Texto(columna.nombre);
  for (const ColumnaSitio &columna : ColumnasSitio()) {
    nueva.*columna.destino = fila.Real(columna.nombre, columna.minimo, columna.maximo);
  }
  localidades_.push_back(nueva);
  leidos_.emplace_back();
  lineas_.push_back(fila.Linea());
  return localidades_.size() - 1;
}

ClaseCifra LeerClase(const Fila &fila, std::string_view columna) {
  const std::string &texto = fila.Texto(columna);
  if (texto == "medida") return ClaseCifra::Medida;
  if (texto == "calculada") return ClaseCifra::Calculada;
  if (texto != "estimada") fila.Falta(columna, Citar(texto) + " no es medida, calculada ni estimada");
  return ClaseCifra::Estimada;
}

void LectorNormales::LeerMes(const Fila &fila, NormalesMes &mes) const {
  const std::size_t antes = faltas_.Numero();
  for (const ColumnaMes &columna : ColumnasMes()) {
    mes.*columna.destino = fila.Real(columna.nombre, columna.minimo, columna.maximo);
  }
  mes.claseTemperatura = mes.claseHumedad = mes.claseRadiacion = mes.claseViento = ClaseCifra::Medida;
  for (const ColumnaClase &columna : ColumnasClase()) {
    mes.*columna.destino = std::max(mes.*columna.destino, LeerClase(fila, columna.nombre));
  }
  if (faltas_.Numero() == antes && mes.tminMedia >= mes.tmaxMedia)
    fila.Falta("tmin_media_c", "no es menor que tmax_media_c");
}

void LectorNormales::Anadir(const RegistroCsv &registro) {
  if (registro.campos.size() != numeroColumnas_) {
    faltas_.Anadir(registro.linea, "tiene " + std::to_string(registro.campos.size()) +
                                       " campos y el encabezamiento " + std::to_string(numeroColumnas_));
    return;
  }
  const Fila fila(registro, columnas_, faltas_);
  const std::optional<double> mes = NumeroDecimal(fila.Texto(COLUMNA_MES));
  if (!mes || *mes < 1.0 || *mes > 12.0 || *mes != std::trunc(*mes)) {
    fila.Falta(COLUMNA_MES, Citar(fila.Texto(COLUMNA_MES)) + " no es un mes de 1 a 12");
    return;
  }
  const std::size_t localidad = Localidad(fila);
  const auto posicion = static_cast<std::size_t>(*mes) - 1;
  if (leidos_[localidad].test(posicion)) {
    fila.Falta(COLUMNA_MES, "el mes " + std::to_string(posicion + 1) + " de " +
                                Citar(localidades_[localidad].nombre) + " ya estaba en otra fila");
    return;
  }
  leidos_[localidad].set(posicion);
  LeerMes(fila, localidades_[localidad].meses[posicion]);
}

void LectorNormales::ExigirDoceMeses(std::size_t localidad) const {
  for (std::size_t mes = 0; mes < leidos_[localidad].size(); ++mes) {
    if (leidos_[localidad].test(mes)) continue;
    faltas_.Anadir(lineas_[localidad], "a " + Citar(localidades_[localidad].nombre) + " le falta el mes " +
                                           std::to_string(mes + 1));
  }
}

void LectorNormales::ExigirNombreCortoPropio(std::size_t localidad) {
  const std::string nombre = Citar(localidades_[localidad].nombre);
  const std::string corto = NombreCorto(localidades_[localidad].nombre);
  if (corto.empty()) {
    faltas_.Anadir(lineas_[localidad], nombre + " no deja ninguna letra para el nombre corto");
  } else if (!cortos_.insert(PlegarMinusculas(corto)).second) {
    std::string falta = "el nombre corto de " + nombre;
    falta.append(", ").append(corto).append(", es también el de otra localidad");
    faltas_.Anadir(lineas_[localidad], falta);
  }
}

std::vector<NormalesLocalidad> LectorNormales::Terminar() {
  for (std::size_t i = 0; i < localidades_.size(); ++i) {
    ExigirDoceMeses(i);
    ExigirNombreCortoPropio(i);
  }
  if (localidades_.empty()) faltas_.Anadir(0, "no hay ninguna localidad");
  return std::move(localidades_);
}

/// Verdadero si todo el texto es UTF-8; si no, dice en qué línea deja de serlo.
bool ComprobarCodificacion(std::string_view texto, FaltasFichero &faltas) {
  if (EsUtf8(texto)) return true;
  std::size_t linea = 1;
  for (std::size_t desde = 0; desde < texto.size(); ++linea) {
    const std::size_t fin = std::min(texto.find('\n', desde), texto.size());
    if (!EsUtf8(texto.substr(desde, fin - desde))) break;
    desde = fin + 1;
  }
  faltas.Anadir(linea, "hay bytes que no son UTF-8; guarde el fichero con esa codificación");
  return false;
}

} // namespace

std::vector<NormalesLocalidad> LeerNormales(std::string_view texto, const std::string &nombre,
                                            std::vector<std::string> &errores) {
  FaltasFichero faltas(nombre, errores);
  if (!ComprobarCodificacion(texto, faltas)) return {};
  const std::vector<RegistroCsv> registros = PartirCsv(texto);
  if (registros.empty()) {
    faltas.Anadir(0, "está vacío");
    return {};
  }
  LectorNormales lector(faltas);
  std::vector<NormalesLocalidad> localidades;
  if (lector.Encabezamiento(registros.front())) {
    for (std::size_t i = 1; i < registros.size(); ++i) lector.Anadir(registros[i]);
    localidades = lector.Terminar();
  }
  faltas.Resumir();
  return localidades;
}

} // namespace tesmo
