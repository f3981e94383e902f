#include "intercambio/sintesis/Normales.h"

#include "core/Codificacion.h"
#include "intercambio/sintesis/Columnasnormales.h"
#include "intercambio/sintesis/Csv.h"
#include "intercambio/sintesis/Nombrecorto.h"

#include <algorithm>
#include <bitset>
#include <charconv>
#include <cmath>
#include <map>
#include <optional>
#include <set>

namespace tesmo {

namespace {

/// Lo que cabe en un campo de la lista de localidades.
constexpr std::size_t BYTES_DE_NOMBRE = 49;
/// Faltas que se cuentan con detalle: quien ha de arreglar cientos empieza por las primeras.
constexpr std::size_t FALTAS_DETALLADAS = 20;

/// Añade faltas con su sitio, hasta un tope, y cuenta las demás.
class Faltas {
public:
  Faltas(const std::string &nombre, std::vector<std::string> &errores) : nombre_(nombre), errores_(errores) {}
  void Anadir(std::size_t linea, const std::string &texto) {
    if (numero_++ >= FALTAS_DETALLADAS) return;
    errores_.push_back(nombre_ + (linea > 0 ? ":" + std::to_string(linea) : std::string()) + ": " + texto);
  }
  void Resumir() {
    if (numero_ <= FALTAS_DETALLADAS) return;
    errores_.push_back(nombre_ + ": y " + std::to_string(numero_ - FALTAS_DETALLADAS) + " faltas más");
  }

private:
  std::string nombre_;
  std::vector<std::string> &errores_;
  std::size_t numero_ = 0;
};

std::string Cita(std::string_view texto) {
  constexpr std::size_t BYTES_DE_CITA = 40;
  return "«" + std::string(RecortarUtf8(texto, BYTES_DE_CITA)) + "»";
}

std::optional<double> Numero(std::string_view texto) {
  if (texto.starts_with('+')) texto.remove_prefix(1);
  double valor = 0.0;
  const auto [fin, error] = std::from_chars(texto.data(), texto.data() + texto.size(), valor);
  if (error != std::errc() || fin != texto.data() + texto.size() || !std::isfinite(valor)) return {};
  return valor;
}

std::string EnteroTexto(double valor) { return std::to_string(static_cast<int>(valor)); }

std::string LimiteTexto(double valor) {
  if (valor == std::trunc(valor)) return EnteroTexto(valor);
  // Los límites con decimales de la tabla no pasan de centésimas.
  std::string texto(16, '\0');
  const auto [fin, error] = std::to_chars(texto.data(), texto.data() + texto.size(), valor);
  texto.resize(error == std::errc() ? static_cast<std::size_t>(fin - texto.data()) : 0);
  return texto;
}

/// Una fila con sus columnas ya localizadas por nombre.
class Fila {
public:
  Fila(const RegistroCsv &registro, const std::map<std::string, std::size_t, std::less<>> &columnas,
       Faltas &faltas)
      : registro_(registro), columnas_(columnas), faltas_(faltas) {}

  [[nodiscard]] std::size_t Linea() const { return registro_.linea; }
  [[nodiscard]] const std::string &Texto(std::string_view columna) const {
    return registro_.campos[columnas_.find(columna)->second];
  }
  void Falta(std::string_view columna, const std::string &texto) const {
    faltas_.Anadir(Linea(), "columna " + std::string(columna) + ": " + texto);
  }
  /// El número de @p columna; con falta, el mínimo.
  [[nodiscard]] double Real(std::string_view columna, double minimo, double maximo) const {
    const std::string &texto = Texto(columna);
    const std::optional<double> valor = Numero(texto);
    if (texto.empty()) {
      Falta(columna, "está vacía");
    } else if (!valor) {
      Falta(columna, Cita(texto) + " no es un número con punto decimal");
    } else if (*valor < minimo || *valor > maximo) {
      Falta(columna, Cita(texto) + " queda fuera de " + LimiteTexto(minimo) + " a " + LimiteTexto(maximo));
    } else {
      return *valor;
    }
    return minimo;
  }

private:
  const RegistroCsv &registro_;
  const std::map<std::string, std::size_t, std::less<>> &columnas_;
  Faltas &faltas_;
};

/// Lector de las filas: reúne las doce de cada localidad, en el orden en que aparecen las localidades.
class LectorNormales {
public:
  explicit LectorNormales(Faltas &faltas) : faltas_(faltas) {}

  bool Encabezamiento(const RegistroCsv &registro);
  void Anadir(const RegistroCsv &registro);
  std::vector<NormalesLocalidad> Terminar();

private:
  void Exigir(std::string_view columna, std::size_t linea) {
    if (!columnas_.contains(columna)) faltas_.Anadir(linea, "falta la columna " + std::string(columna));
  }
  std::size_t Localidad(const Fila &fila);
  void ComprobarTextos(const Fila &fila) const;
  void CompararSitio(const Fila &fila, const NormalesLocalidad &localidad) const;
  void LeerMes(const Fila &fila, NormalesMes &mes) const;

  Faltas &faltas_;
  std::map<std::string, std::size_t, std::less<>> columnas_;
  std::size_t numeroColumnas_ = 0;
  std::vector<NormalesLocalidad> localidades_;
  std::vector<std::bitset<12>> leidos_;
  std::vector<std::size_t> lineas_;
};

bool LectorNormales::Encabezamiento(const RegistroCsv &registro) {
  numeroColumnas_ = registro.campos.size();
  for (std::size_t i = 0; i < numeroColumnas_; ++i) columnas_.emplace(registro.campos[i], i);
  if (numeroColumnas_ == 1 && registro.campos[0].find(';') != std::string::npos) {
    faltas_.Anadir(registro.linea, "los campos van separados por punto y coma; han de separarse por comas");
    return false;
  }
  const std::size_t requeridas = ColumnasTexto().size() + ColumnasSitio().size() + ColumnasMes().size();
  std::size_t presentes = columnas_.contains(COLUMNA_MES) ? 1 : 0;
  Exigir(COLUMNA_MES, registro.linea);
  const auto exigir = [&](auto tabla) {
    for (const auto &columna : tabla) {
      Exigir(columna.nombre, registro.linea);
      presentes += columnas_.contains(columna.nombre) ? 1 : 0;
    }
  };
  exigir(ColumnasTexto());
  exigir(ColumnasSitio());
  exigir(ColumnasMes());
  exigir(ColumnasClase());
  return presentes == requeridas + ColumnasClase().size() + 1;
}

void LectorNormales::ComprobarTextos(const Fila &fila) const {
  for (const ColumnaTexto &columna : ColumnasTexto()) {
    const std::string &texto = fila.Texto(columna.nombre);
    const auto prohibido = [](char c) { return c == ',' || (static_cast<unsigned char>(c) < ' '); };
    if (texto.empty()) fila.Falta(columna.nombre, "está vacía");
    if (std::any_of(texto.begin(), texto.end(), prohibido)) {
      fila.Falta(columna.nombre, Cita(texto) + " lleva una coma o un carácter de control");
    }
    if (texto.size() > BYTES_DE_NOMBRE) {
      fila.Falta(columna.nombre, Cita(texto) + " pasa de " + std::to_string(BYTES_DE_NOMBRE) + " bytes");
    }
  }
  const std::string &zona = fila.Texto("zona");
  if (zona != "COSTA" && zona != "INTERIOR") fila.Falta("zona", Cita(zona) + " no es COSTA ni INTERIOR");
}

void LectorNormales::CompararSitio(const Fila &fila, const NormalesLocalidad &localidad) const {
  for (const ColumnaTexto &columna : ColumnasTexto()) {
    if (fila.Texto(columna.nombre) != localidad.*columna.destino) {
      fila.Falta(columna.nombre, Cita(fila.Texto(columna.nombre)) + " no es lo que dice la primera fila de " +
                                     Cita(localidad.nombre));
    }
  }
  for (const ColumnaSitio &columna : ColumnasSitio()) {
    if (fila.Real(columna.nombre, columna.minimo, columna.maximo) != localidad.*columna.destino) {
      fila.Falta(columna.nombre, Cita(fila.Texto(columna.nombre)) + " no es lo que dice la primera fila de " +
                                     Cita(localidad.nombre));
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
  if (texto != "estimada") fila.Falta(columna, Cita(texto) + " no es medida, calculada ni estimada");
  return ClaseCifra::Estimada;
}

void LectorNormales::LeerMes(const Fila &fila, NormalesMes &mes) const {
  for (const ColumnaMes &columna : ColumnasMes()) {
    mes.*columna.destino = fila.Real(columna.nombre, columna.minimo, columna.maximo);
  }
  mes.claseTemperatura = mes.claseHumedad = mes.claseRadiacion = mes.claseViento = ClaseCifra::Medida;
  for (const ColumnaClase &columna : ColumnasClase()) {
    mes.*columna.destino = std::max(mes.*columna.destino, LeerClase(fila, columna.nombre));
  }
  if (mes.tminMedia >= mes.tmaxMedia) fila.Falta("tmin_media_c", "no es menor que tmax_media_c");
}

void LectorNormales::Anadir(const RegistroCsv &registro) {
  if (registro.campos.size() != numeroColumnas_) {
    faltas_.Anadir(registro.linea, "tiene " + std::to_string(registro.campos.size()) +
                                       " campos y el encabezamiento " + std::to_string(numeroColumnas_));
    return;
  }
  const Fila fila(registro, columnas_, faltas_);
  const std::optional<double> mes = Numero(fila.Texto(COLUMNA_MES));
  if (!mes || *mes < 1.0 || *mes > 12.0 || *mes != std::trunc(*mes)) {
    fila.Falta(COLUMNA_MES, Cita(fila.Texto(COLUMNA_MES)) + " no es un mes de 1 a 12");
    return;
  }
  const std::size_t localidad = Localidad(fila);
  const auto posicion = static_cast<std::size_t>(*mes) - 1;
  if (leidos_[localidad].test(posicion)) {
    fila.Falta(COLUMNA_MES, "el mes " + EnteroTexto(*mes) + " de " + Cita(localidades_[localidad].nombre) +
                                " ya estaba en otra fila");
    return;
  }
  leidos_[localidad].set(posicion);
  LeerMes(fila, localidades_[localidad].meses[posicion]);
}

std::vector<NormalesLocalidad> LectorNormales::Terminar() {
  std::set<std::string, std::less<>> cortos;
  for (std::size_t i = 0; i < localidades_.size(); ++i) {
    const std::string nombre = Cita(localidades_[i].nombre);
    for (std::size_t mes = 0; mes < leidos_[i].size(); ++mes) {
      if (!leidos_[i].test(mes))
        faltas_.Anadir(lineas_[i], "a " + nombre + " le falta el mes " + std::to_string(mes + 1));
    }
    const std::string corto = NombreCorto(localidades_[i].nombre);
    if (corto.empty())
      faltas_.Anadir(lineas_[i], nombre + " no deja ninguna letra para el nombre corto");
    else if (!cortos.insert(PlegarMinusculas(corto)).second)
      faltas_.Anadir(lineas_[i],
                     "el nombre corto de " + nombre + ", " + corto + ", es también el de otra localidad");
  }
  if (localidades_.empty()) faltas_.Anadir(0, "no hay ninguna localidad");
  return std::move(localidades_);
}

/// Verdadero si todo el texto es UTF-8; si no, dice en qué línea deja de serlo.
bool ComprobarCodificacion(std::string_view texto, Faltas &faltas) {
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
  Faltas faltas(nombre, errores);
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
