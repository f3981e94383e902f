#include "extremos/Diasextremos.h"

#include "core/Error.h"
#include "core/Ficheros.h"
#include "core/Mensajes.h"
#include "core/Rutas.h"
#include "extremos/Escritordias.h"
#include "localidades/Ciudad.h"

#include <algorithm>
#include <filesystem>

namespace tesmo {

namespace {

constexpr int ULTIMO_MES = 12;
constexpr const char *FICHERO_ESTADISTICAS = "GDR.TXT";
constexpr const char *FICHERO_CALEFACCION = "extreCal.met";
constexpr const char *FICHERO_REFRIGERACION = "extreRef.met";
constexpr const char *FICHERO_SALIDA = "salida.txt";

bool EsMes(int mes) { return mes >= 1 && mes <= ULTIMO_MES; }

} // namespace

bool DiasExtremos::primeraVez_ = true;

DiasExtremos::DiasExtremos() : ObjetoBase("DiasExtremos") {
  colores_.fill(ENTRADA_BLANCO);
  primeraVez_ = true;
}

bool DiasExtremos::Calcular() {
  const std::string clave = DameBaseDeLocalidades().DameTextoDe(localidad_, "Localidad Corta");
  const std::string ruta = DameConfiguracion().RutaMeteo(FICHERO_ESTADISTICAS);
  if (CalcularRegistro(ruta, clave, calefaccion_, refrigeracion_)) return true;
  DameMensajes().Mensaje(MENSAJE_FICHERO_METEO, localidad_);
  return false;
}

bool DiasExtremos::CalcularDias(const std::string &clave, float percentilCal, float percentilRef,
                                const MesesDeTemporada &temporadaCal, const MesesDeTemporada &temporadaRef,
                                int mesCal, int mesRef) {
  const std::string ruta = DameConfiguracion().RutaMeteo(FICHERO_ESTADISTICAS);
  return CalcularRegistro(ruta, clave, {percentilCal, temporadaCal, mesCal},
                          {percentilRef, temporadaRef, mesRef});
}

bool DiasExtremos::CalcularDesde(const std::string &ruta, const std::string &clave) {
  return CalcularRegistro(ruta, clave, calefaccion_, refrigeracion_);
}

bool DiasExtremos::CalcularRegistro(const std::string &ruta, const std::string &clave,
                                    const extremos::AjustesEstacion &calefaccion,
                                    const extremos::AjustesEstacion &refrigeracion) {
  if (!EsMes(calefaccion.mes) || !EsMes(refrigeracion.mes)) return false;
  const std::optional<std::string> contenido = LeerFicheroEntero(RutaDesdeTexto(ruta));
  extremos::RegistroGdr registro;
  if (!contenido ||
      extremos::LeerRegistroGdr(*contenido, clave, ruta, registro) != extremos::LecturaGdr::Leido) {
    return false;
  }
  resultado_ = extremos::CalcularDias(registro, calefaccion, refrigeracion);
  localidadCalculada_ = localidad_;
  provinciaCalculada_ = provincia_;
  mesCalculadoCal_ = calefaccion.mes;
  mesCalculadoRef_ = refrigeracion.mes;
  claridadDiaria_ = static_cast<float>(resultado_.refrigeracion.traza.claridadDiaria);
  if (primeraVez_) {
    primerosValores_ = {static_cast<float>(resultado_.calefaccion.traza.parteDelMes),
                        static_cast<float>(resultado_.refrigeracion.traza.parteDelMes)};
    primeraVez_ = false;
  }
  calculado_ = true;
  if (!ficheroSalida_.empty() &&
      !AnadirAFichero(RutaDesdeTexto(ficheroSalida_), extremos::TextoDeSalida(resultado_))) {
    ErrorNumerico(ERROR_FICHERO, ficheroSalida_);
  }
  return true;
}

bool DiasExtremos::TieneMeses(const MesesDeTemporada &temporada) {
  return std::any_of(temporada.begin(), temporada.end(), [](std::int16_t mes) { return mes == 1; });
}

bool DiasExtremos::EscribirFicheros() const {
  const std::string directorio = DameConfiguracion().RutaResultados("");
  return EscribirFicherosEn(directorio);
}

bool DiasExtremos::EscribirFicherosEn(const std::string &directorio) const {
  const std::filesystem::path base = RutaDesdeTexto(directorio);
  const auto escribir = [&](const char *nombre, const extremos::DiaDeProyecto &dia, int mes) {
    return EscribirFicheroEntero(base / nombre,
                                 extremos::TextoDeDia(dia, mes, localidadCalculada_, provinciaCalculada_));
  };
  return escribir(FICHERO_CALEFACCION, resultado_.calefaccion.dia, mesCalculadoCal_) &&
         escribir(FICHERO_REFRIGERACION, resultado_.refrigeracion.dia, mesCalculadoRef_);
}

std::string DiasExtremos::RutaSalida() { return DameConfiguracion().DirectorioBase() + FICHERO_SALIDA; }

} // namespace tesmo
