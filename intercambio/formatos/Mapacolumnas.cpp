#include "intercambio/formatos/Mapacolumnas.h"

#include "core/Codificacion.h"
#include "core/Formato.h"
#include "intercambio/formatos/Cabeceras.h"
#include "intercambio/formatos/Clavesmapa.h"
#include "intercambio/formatos/Cuaderno.h"
#include "intercambio/formatos/Lineas.h"
#include "intercambio/formatos/Numeros.h"
#include "intercambio/formatos/Unidadesclima.h"

#include <array>
#include <cmath>
#include <utility>

namespace tesmo {

namespace {

constexpr int LINEAS_DE_CABECERA_MAXIMAS = 1000;

/// Minúsculas y sin acentos agudos.
std::string Llana(std::string_view texto) {
  constexpr std::array<std::array<std::string_view, 2>, 5> ACENTOS{
      {{"á", "a"}, {"é", "e"}, {"í", "i"}, {"ó", "o"}, {"ú", "u"}}};
  std::string llana = PlegarMinusculas(texto);
  for (const auto &[acentuada, sencilla] : ACENTOS) {
    for (std::size_t i = 0; (i = llana.find(acentuada, i)) != std::string::npos; ++i)
      llana.replace(i, acentuada.size(), sencilla);
  }
  return llana;
}

bool Igual(std::string_view a, std::string_view b) { return Llana(a) == Llana(b); }

/// Lee las líneas de un mapa y apunta las que no se entienden.
class LectorMapa {
public:
  void Leer(std::string_view texto) {
    mapa_.husoDeLongitud = true;
    Lineas lineas(texto);
    for (std::string_view linea; lineas.Siguiente(linea);) {
      numero_ = lineas.Numero();
      linea = Recortado(linea);
      if (EsLineaVacia(linea) || linea.starts_with('#')) continue;
      const std::size_t igual = linea.find('=');
      if (igual == std::string_view::npos) {
        Falta("se esperaba «clave = valor»");
        continue;
      }
      Atender(Recortado(linea.substr(0, igual)), Recortado(linea.substr(igual + 1)));
    }
    numero_ = 0;
    if (resultado_.errores.empty() && mapa_.columnas.empty())
      Falta("el mapa no nombra ninguna columna de datos");
  }

  ResultadoMapa Resultado() {
    if (resultado_.errores.empty()) resultado_.mapa = std::move(mapa_);
    return std::move(resultado_);
  }

private:
  void Falta(std::string que) {
    const std::string donde = numero_ == 0 ? "mapa: " : "mapa, línea " + std::to_string(numero_) + ": ";
    resultado_.errores.push_back({.clase = ClaseNota::Cabecera,
                                  .linea = numero_,
                                  .ultimaLinea = numero_,
                                  .texto = donde + std::move(que)});
  }

  void Atender(std::string_view clave, std::string_view valor) {
    if (AtenderTexto(clave, valor) || AtenderNumero(clave, valor) || AtenderPalabra(clave, valor)) return;
    if (AtenderCampo(clave, valor)) return;
    Falta("no se conoce la clave " + Citado(clave));
  }

  bool AtenderTexto(std::string_view clave, std::string_view valor) {
    for (const ClaveTexto &texto : TEXTOS) {
      if (!Igual(clave, texto.clave)) continue;
      mapa_.*texto.destino = std::string(valor);
      return true;
    }
    return false;
  }

  double Numero(std::string_view clave, std::string_view valor, double minimo, double maximo) {
    const std::optional<double> numero = LeerNumero(valor);
    if (numero && *numero >= minimo && *numero <= maximo) return *numero;
    Falta(std::string(clave) + ": " + Citado(valor) + " no es un número entre " +
          FormatoGeneral15(minimo, '.') + " y " + FormatoGeneral15(maximo, '.'));
    return AUSENTE;
  }

  bool AtenderNumero(std::string_view clave, std::string_view valor) {
    for (const ClaveNumero &numero : NUMEROS) {
      if (!Igual(clave, numero.clave)) continue;
      mapa_.*numero.destino = Numero(clave, valor, numero.minimo, numero.maximo);
      return true;
    }
    if (Igual(clave, CLAVE_HUSO)) {
      mapa_.reloj.husoHoras = Numero(clave, valor, -HUSO_MAXIMO, HUSO_MAXIMO);
      mapa_.husoDeLongitud = false;
    } else if (Igual(clave, CLAVE_DESFASE_MAPA)) {
      mapa_.reloj.desfaseMin = Numero(clave, valor, -DESFASE_MAXIMO_MIN, DESFASE_MAXIMO_MIN);
    } else if (Igual(clave, CLAVE_CABECERA)) {
      const double lineas = Numero(clave, valor, 0.0, LINEAS_DE_CABECERA_MAXIMAS);
      mapa_.lineasCabecera = std::isnan(lineas) ? 0 : static_cast<int>(lineas);
    } else {
      return false;
    }
    return true;
  }

  template <typename T, std::size_t N>
  bool Elegir(std::string_view clave, std::string_view buscada, std::string_view valor,
              const std::array<Palabra<T>, N> &palabras, T &destino) {
    if (!Igual(clave, buscada)) return false;
    std::string posibles;
    for (const Palabra<T> &palabra : palabras) {
      if (Igual(valor, palabra.texto)) {
        destino = palabra.valor;
        return true;
      }
      posibles += (posibles.empty() ? "" : ", ") + std::string(palabra.texto);
    }
    Falta(std::string(clave) + ": " + Citado(valor) + " no es ninguno de " + posibles);
    return true;
  }

  bool AtenderPalabra(std::string_view clave, std::string_view valor) {
    return Elegir(clave, CLAVE_SEPARADOR, valor, SEPARADORES, mapa_.separador) ||
           Elegir(clave, CLAVE_DECIMAL, valor, DECIMALES, mapa_.comaDecimal) ||
           Elegir(clave, CLAVE_RELOJ, valor, RELOJES, mapa_.reloj.tiempo) ||
           Elegir(clave, CLAVE_ORDEN, valor, ORDENES, mapa_.orden);
  }

  /// "columna [unidad]", o la columna sola. Un rótulo puede acabar también en corchetes: entonces lo de
  /// dentro no es una unidad, o lo siguen otros corchetes con la suya o vacíos.
  bool AtenderCampo(std::string_view clave, std::string_view valor) {
    for (std::size_t c = 0; c < NUMERO_CAMPOS; ++c) {
      const auto campo = static_cast<Campo>(c);
      if (!Igual(clave, ClaveDeCampo(campo))) continue;
      ColumnaMapa columna{campo, std::string(valor), {}};
      const std::size_t corchete = valor.rfind('[');
      if (corchete != std::string_view::npos && valor.ends_with(']')) {
        const std::string_view delante = Recortado(valor.substr(0, corchete));
        const std::string_view dentro = Recortado(valor.substr(corchete + 1, valor.size() - corchete - 2));
        const bool esRotulo = !delante.empty() && !LeerEntero(delante) && !dentro.empty() &&
                              BuscarUnidad(campo, dentro) == nullptr;
        if (!esRotulo) columna = {campo, std::string(delante), std::string(dentro)};
      }
      if (columna.columna.empty()) Falta(std::string(clave) + ": falta el número o el rótulo de la columna");
      if (!columna.unidad.empty() && BuscarUnidad(campo, columna.unidad) == nullptr) FaltaUnidad(columna);
      mapa_.columnas.push_back(std::move(columna));
      return true;
    }
    return false;
  }

  void FaltaUnidad(const ColumnaMapa &columna) {
    std::string posibles;
    for (const UnidadClima &unidad : UnidadesDe(columna.campo))
      posibles += (posibles.empty() ? "" : ", ") + std::string(unidad.nombre);
    Falta("no se conoce la unidad " + Citado(columna.unidad) + "; use una de " + posibles);
  }

  int numero_ = 0;
  MapaColumnas mapa_;
  ResultadoMapa resultado_;
};

template <typename T, std::size_t N>
std::string_view TextoDe(T valor, const std::array<Palabra<T>, N> &palabras) {
  for (const Palabra<T> &palabra : palabras) {
    if (palabra.valor == valor) return palabra.texto;
  }
  return palabras.front().texto;
}

} // namespace

ResultadoMapa LeerMapa(std::string_view texto) {
  LectorMapa lector;
  const std::string utf8 = AUtf8(texto);
  lector.Leer(utf8);
  return lector.Resultado();
}

std::string EscribirMapa(const MapaColumnas &mapa) {
  std::string texto = "# Mapa de columnas de Tesmo: columnas por su número, desde 1, o por su rótulo\n";
  const auto linea = [&texto](std::string_view clave, std::string_view valor) {
    if (!valor.empty()) texto += std::string(clave) + " = " + std::string(valor) + "\n";
  };
  const auto numero = [](double valor) {
    return std::isnan(valor) ? std::string() : FormatoGeneral15(valor, '.');
  };
  for (const ClaveTexto &clave : TEXTOS) linea(clave.clave, mapa.*clave.destino);
  for (const ClaveNumero &clave : NUMEROS) linea(clave.clave, numero(mapa.*clave.destino));
  linea(CLAVE_SEPARADOR, TextoDe(mapa.separador, SEPARADORES));
  linea(CLAVE_DECIMAL, TextoDe(mapa.comaDecimal, DECIMALES));
  linea(CLAVE_CABECERA, std::to_string(mapa.lineasCabecera));
  linea(CLAVE_ORDEN, TextoDe(mapa.orden, ORDENES));
  linea(CLAVE_RELOJ, TextoDe(mapa.reloj.tiempo, RELOJES));
  if (!mapa.husoDeLongitud) linea(CLAVE_HUSO, numero(mapa.reloj.husoHoras));
  linea(CLAVE_DESFASE_MAPA, numero(mapa.reloj.desfaseMin));
  for (const ColumnaMapa &columna : mapa.columnas) {
    const bool conCorchetes = !columna.unidad.empty() || columna.columna.ends_with(']');
    linea(ClaveDeCampo(columna.campo), columna.columna + (conCorchetes ? " [" + columna.unidad + "]" : ""));
  }
  return texto;
}

} // namespace tesmo
