#include "intercambio/formatos/Filas.h"

#include "core/Calendario.h"
#include "intercambio/formatos/Numeros.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <string>

namespace tesmo {

namespace {

/// Filas que se guardan: con más de dos años ya se sabe que el fichero no sirve, y un fichero enorme no ha de
/// llenar la memoria.
constexpr std::size_t FILAS_MAXIMAS = 2 * static_cast<std::size_t>(HORAS_DEL_ANIO);

/// El fin del campo entrecomillado que empieza en @p desde, tras sus comillas.
std::size_t FinDeComillas(std::string_view linea, std::size_t desde) {
  const std::size_t cierre = linea.find('"', desde + 1);
  return cierre == std::string_view::npos ? linea.size() : cierre + 1;
}

std::string_view SinComillas(std::string_view campo) {
  if (campo.size() >= 2 && campo.front() == '"' && campo.back() == '"')
    return Recortado(campo.substr(1, campo.size() - 2));
  return campo;
}

void PartirBlancos(std::string_view linea, std::size_t maximo, CamposLinea &campos) {
  constexpr std::string_view BLANCOS = " \t";
  std::size_t desde = linea.find_first_not_of(BLANCOS);
  while (desde < linea.size() && campos.size() < maximo) {
    const std::size_t fin = linea[desde] == '"' ? FinDeComillas(linea, desde)
                                                : std::min(linea.find_first_of(BLANCOS, desde), linea.size());
    campos.push_back(SinComillas(linea.substr(desde, fin - desde)));
    desde = linea.find_first_not_of(BLANCOS, fin);
  }
}

bool EsCodigoAusente(double valor, const ColumnaClima &columna) {
  // Del cielo siempre baja radiación: un 0 es que nadie la midió.
  if (columna.campo == Campo::InfrarrojaHorizontal && valor == 0.0) return true;
  if (columna.exacto) return valor == columna.ausente;
  return columna.ausente > 0 ? valor >= columna.ausente : valor <= columna.ausente;
}

/// Lo que un campo puede valer, con holgura sobre los récords de la Tierra (Organización Meteorológica
/// Mundial, World Weather and Climate Extremes Archive). Fuera de ello suele haber un código de «sin dato» de
/// otro formato (−99, −999, −9999, 999) o un valor en otra unidad (humedades absolutas en g/kg).
struct Limites {
  double minimo;
  double maximo;
};

Limites LimitesDe(Campo campo) {
  constexpr Limites TEMPERATURA{-90.0, 70.0};
  constexpr Limites RADIACION{-50.0, 2000.0}; // de noche, los piranómetros dan algo negativo
  constexpr Limites NUBOSIDAD{0.0, 12.0};
  static constexpr std::array<Limites, NUMERO_CAMPOS> TABLA{{
      TEMPERATURA,     // seca
      TEMPERATURA,     // rocío
      {-110.0, 70.0},  // cielo
      {0.0, 150.0},    // humedad relativa
      {0.0, 0.1},      // humedad absoluta
      {30e3, 115e3},   // presión
      RADIACION,       // global
      RADIACION,       // directa normal
      RADIACION,       // directa horizontal
      RADIACION,       // difusa
      {1.0, 1000.0},   // infrarroja
      NUBOSIDAD,       // total
      NUBOSIDAD,       // opaca
      {0.0, 120.0},    // velocidad del viento
      {0.0, 360.0},    // dirección del viento
      {-360.0, 360.0}, // acimut
      {0.0, 180.0},    // cenit
  }};
  return TABLA[static_cast<std::size_t>(campo)];
}

bool EsImposible(Campo campo, double valor) {
  const Limites limites = LimitesDe(campo);
  return valor < limites.minimo || valor > limites.maximo;
}

/// Lee los valores de cada línea según las columnas de un esquema.
class LectorDeFilas {
public:
  LectorDeFilas(const EsquemaFilas &esquema, Cuaderno &cuaderno) : esquema_(esquema), cuaderno_(cuaderno) {
    for (const ColumnaClima &columna : esquema.columnas) maximo_ = std::max(maximo_, columna.posicion + 1);
    maximo_ = std::max(maximo_, esquema.camposMinimos);
  }

  void Leer(std::string_view linea, int numero, std::vector<FilaClima> &filas) {
    PartirLinea(linea, esquema_.separador, maximo_, campos_);
    FilaClima fila;
    fila.linea = numero;
    fila.valores.fill(AUSENTE);
    if (campos_.size() < esquema_.camposMinimos || !esquema_.fecha(campos_, fila)) {
      AvisarDeFila(linea, numero);
      return;
    }
    ++cuaderno_.Resultado().registros;
    if (filas.size() == FILAS_MAXIMAS) return;
    for (const ColumnaClima &columna : esquema_.columnas) Poner(columna, fila);
    filas.push_back(fila);
  }

private:
  void AvisarDeFila(std::string_view linea, int numero) {
    const bool corta = campos_.size() < esquema_.camposMinimos;
    const std::string que = corta ? "tiene " + std::to_string(campos_.size()) +
                                        (campos_.size() == 1 ? " campo" : " campos") + " y hacen falta " +
                                        std::to_string(esquema_.camposMinimos)
                                  : "no lleva una fecha que se entienda";
    cuaderno_.Aviso({.clase = ClaseNota::Registro,
                     .linea = numero,
                     .texto = "línea " + std::to_string(numero) + ": " + que + " (" + Citado(linea) +
                              "); esa hora se da por no escrita"});
  }

  void Poner(const ColumnaClima &columna, FilaClima &fila) {
    // Un campo que la edición del fichero no llega a tener no es un código de ausencia: no se cuenta.
    if (columna.posicion >= campos_.size()) return;
    const std::string_view texto = campos_[columna.posicion];
    const std::optional<double> leido = Numero(texto);
    if (!leido) return AvisarDeTexto(columna, texto, fila.linea);
    if (EsCodigoAusente(*leido, columna)) return Contar(columna.campo, fila.linea);
    const double valor = *leido * columna.factor + columna.sumando;
    if (EsImposible(columna.campo, valor)) return AvisarDeImposible(columna, texto, fila.linea);
    fila.valores[static_cast<std::size_t>(columna.campo)] = valor + 0.0; // el −0 de algunos ficheros es 0
  }

  std::optional<double> Numero(std::string_view texto) {
    if (!esquema_.comaDecimal) return LeerNumero(texto);
    conPunto_.assign(texto);
    std::replace(conPunto_.begin(), conPunto_.end(), ',', '.');
    return LeerNumero(conPunto_);
  }

  void Contar(Campo campo, int linea) {
    CuentaAusentes &cuenta = cuaderno_.Resultado().ausentes[static_cast<std::size_t>(campo)];
    if (++cuenta.veces == 1) cuenta.primeraLinea = linea;
    cuenta.ultimaLinea = linea;
  }

  void AvisarDeTexto(const ColumnaClima &columna, std::string_view texto, int linea) {
    Contar(columna.campo, linea);
    if (texto.empty()) return; // un campo vacío es otra forma de decir que no hay dato
    cuaderno_.Aviso({.clase = ClaseNota::Campo,
                     .campo = columna.campo,
                     .linea = linea,
                     .texto = "línea " + std::to_string(linea) + ", " +
                              std::string(NombreCampo(columna.campo)) + ": " + Citado(texto) +
                              " no es un número; se toma como sin dato"});
  }

  void AvisarDeImposible(const ColumnaClima &columna, std::string_view texto, int linea) {
    Contar(columna.campo, linea);
    cuaderno_.Aviso({.clase = ClaseNota::ValorImposible,
                     .campo = columna.campo,
                     .linea = linea,
                     .texto = "línea " + std::to_string(linea) + ", " +
                              std::string(NombreCampo(columna.campo)) + ": " + Citado(texto) +
                              " no puede ser; se toma como sin dato"});
  }

  const EsquemaFilas &esquema_;
  Cuaderno &cuaderno_;
  std::size_t maximo_ = 0;
  CamposLinea campos_;
  std::string conPunto_;
};

} // namespace

void PartirLinea(std::string_view linea, char separador, std::size_t maximo, CamposLinea &campos) {
  campos.clear();
  if (separador == SEPARADOR_BLANCOS) return PartirBlancos(linea, maximo, campos);
  // Aquí se va casi todo lo que cuesta leer un año: se recorre carácter a carácter y una sola vez.
  const char *p = linea.data();
  const char *const fin = p + linea.size();
  const auto esBlanco = [separador](char c) { return (c == ' ' || c == '\t') && c != separador; };
  while (campos.size() < maximo) {
    while (p != fin && esBlanco(*p)) ++p;
    const char *const inicio = p;
    if (p != fin && *p == '"')
      p = linea.data() + FinDeComillas(linea, static_cast<std::size_t>(p - linea.data()));
    while (p != fin && *p != separador) ++p;
    const char *ultimo = p;
    while (ultimo != inicio && esBlanco(ultimo[-1])) --ultimo;
    campos.push_back(SinComillas({inicio, static_cast<std::size_t>(ultimo - inicio)}));
    if (p == fin) return;
    ++p;
  }
}

std::vector<FilaClima> LeerFilas(Lineas &lineas, const EsquemaFilas &esquema, Cuaderno &cuaderno) {
  std::vector<FilaClima> filas;
  filas.reserve(static_cast<std::size_t>(HORAS_DEL_ANIO));
  LectorDeFilas lector(esquema, cuaderno);
  for (std::string_view linea; lineas.Siguiente(linea);) {
    if (EsLineaVacia(linea)) continue;
    if (esquema.fin && esquema.fin(linea)) break;
    lector.Leer(linea, lineas.Numero(), filas);
  }
  return filas;
}

} // namespace tesmo
