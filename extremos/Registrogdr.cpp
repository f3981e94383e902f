#include "extremos/Registrogdr.h"

#include "core/Codificacion.h"
#include "core/Error.h"
#include "core/Lectornumeros.h"
#include "extremos/Modelomensual.h"

#include <cmath>

namespace tesmo::extremos {

namespace {

constexpr int LINEAS_DE_UN_REGISTRO = 6;
constexpr std::size_t COLA_DE_CABECERA = 200;
constexpr std::string_view MARCA_UTF8 = "\xEF\xBB\xBF";

/// Lee un registro ya encontrado y se queda con dónde falló.
class LectorRegistro {
public:
  LectorRegistro(LectorNumeros &lector, std::string_view fichero) : lector_(lector), fichero_(fichero) {}

  bool Leer(RegistroGdr &registro) {
    float sinUso = 0.0F;
    if (!LeerReal(registro.latitud, "latitud") || !LeerReal(sinUso, "segundo número de la cabecera") ||
        !LeerReal(sinUso, "tercer número de la cabecera") || !LeerReal(registro.factorDeCola, CAMPO_COLA)) {
      return false;
    }
    if (std::fabs(registro.latitud) > LATITUD_DEL_POLO) return Fallar("latitud");
    if (!FactorDeColaAdmitido(registro.factorDeCola)) return Fallar(CAMPO_COLA);
    linea_ = lector_.Linea();
    LeerEtiquetas(lector_.RestoDeLinea(COLA_DE_CABECERA), registro);
    return LeerFila(registro.maxima, "temperatura máxima") &&
           LeerFila(registro.minima, "temperatura mínima") &&
           LeerFila(registro.desviacionMaxima, "desviación de la máxima") &&
           LeerFila(registro.desviacionMinima, "desviación de la mínima") &&
           LeerFila(registro.radiacion, "radiación") && LeerFila(registro.sexta, "sexta fila");
  }

private:
  static constexpr float LATITUD_DEL_POLO = 90.0F;
  static constexpr std::string_view CAMPO_COLA = "factor de cola";

  bool Fallar(std::string_view campo) {
    Diagnosticar("**Registro mal formado: ", lector_.Linea(), campo);
    return false;
  }

  void Diagnosticar(std::string_view encabezamiento, int linea, std::string_view campo) {
    std::string texto(encabezamiento);
    texto.append(fichero_).append(", línea ").append(std::to_string(linea));
    texto.append(", ").append(campo);
    EscribirRegistro(texto);
  }

  bool LeerReal(float &destino, std::string_view campo) {
    const std::optional<float> valor = lector_.Real();
    if (!valor || !std::isfinite(*valor)) return Fallar(campo);
    destino = *valor;
    return true;
  }

  bool LeerFila(ValoresMensuales &fila, std::string_view nombre) {
    for (std::size_t mes = 0; mes < fila.size(); ++mes) {
      std::string campo(nombre);
      campo.append(" del mes ").append(std::to_string(mes + 1));
      if (!LeerReal(fila[mes], campo)) return false;
    }
    return true;
  }

  void LeerEtiquetas(std::string_view cola, RegistroGdr &registro) {
    constexpr float ALTITUD_MINIMA = -500.0F;
    constexpr float ALTITUD_MAXIMA = 5000.0F;
    constexpr float HUMEDAD_MAXIMA = 40.0F;
    LectorNumeros palabras(cola);
    for (std::string_view p = palabras.Palabra(); !p.empty(); p = palabras.Palabra()) {
      LeerEtiqueta(p, "ALT=", ALTITUD_MINIMA, ALTITUD_MAXIMA, registro.altitud);
      LeerEtiqueta(p, "WCAL=", 0.0F, HUMEDAD_MAXIMA, registro.humedadCal);
      LeerEtiqueta(p, "WREF=", 0.0F, HUMEDAD_MAXIMA, registro.humedadRef);
    }
  }

  void LeerEtiqueta(std::string_view palabra, std::string_view nombre, float minimo, float maximo,
                    std::optional<float> &destino) {
    if (!palabra.starts_with(nombre)) return;
    LectorNumeros valor(palabra.substr(nombre.size()));
    const std::optional<float> real = valor.Real();
    if (real && valor.Final() && *real >= minimo && *real <= maximo) {
      destino = real;
    } else {
      Diagnosticar("**Etiqueta sin valor admisible, no se tiene en cuenta: ", linea_, palabra);
    }
  }

  LectorNumeros &lector_;
  std::string_view fichero_;
  int linea_ = 0; ///< la de la cabecera
};

/// Salta lo que sigue a la clave de un registro.
void SaltarRegistro(LectorNumeros &lector) {
  constexpr int NUMEROS_DE_CABECERA = 4;
  (void)lector.Palabra();
  for (int i = 0; i < NUMEROS_DE_CABECERA && lector.Real(); ++i) {
  }
  lector.RestoDeLinea(COLA_DE_CABECERA);
  for (int i = 0; i < LINEAS_DE_UN_REGISTRO; ++i) lector.RestoDeLinea();
}

} // namespace

std::vector<SitioRegistroGdr> SituarRegistrosGdr(std::string_view contenido) {
  const std::size_t marca = contenido.starts_with(MARCA_UTF8) ? MARCA_UTF8.size() : 0;
  const bool utf8 = EsUtf8(contenido.substr(marca));
  std::vector<SitioRegistroGdr> sitios;
  LectorNumeros lector(contenido.substr(marca));
  for (std::string_view palabra = lector.Palabra(); !palabra.empty(); palabra = lector.Palabra()) {
    SitioRegistroGdr sitio;
    sitio.clave = utf8 ? std::string(palabra) : DesdeWindows1252(palabra);
    sitio.inicio = marca + lector.Posicion() - palabra.size();
    SaltarRegistro(lector);
    sitio.fin = marca + lector.Posicion();
    sitios.push_back(std::move(sitio));
  }
  return sitios;
}

LecturaGdr LeerRegistroGdr(std::string_view contenido, std::string_view clave, std::string_view fichero,
                           RegistroGdr &registro) {
  if (contenido.starts_with(MARCA_UTF8)) contenido.remove_prefix(MARCA_UTF8.size());
  const bool utf8 = EsUtf8(contenido);
  LectorNumeros lector(contenido);
  for (int i = 0; i < REGISTROS_MIRADOS_GDR; ++i) {
    const std::string_view palabra = lector.Palabra();
    if (palabra.empty()) break;
    RegistroGdr leido;
    leido.clave = utf8 ? std::string(palabra) : DesdeWindows1252(palabra);
    if (leido.clave != clave) {
      SaltarRegistro(lector);
      continue;
    }
    leido.zona = lector.Palabra();
    if (!LectorRegistro(lector, fichero).Leer(leido)) return LecturaGdr::Estropeado;
    registro = std::move(leido);
    return LecturaGdr::Leido;
  }
  return LecturaGdr::SinClave;
}

} // namespace tesmo::extremos
