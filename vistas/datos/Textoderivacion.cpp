#include "vistas/datos/Textoderivacion.h"

#include "core/Calendario.h"
#include "core/Formato.h"

namespace tesmo {

namespace {

using extremos::AjustesEstacion;
using extremos::OrigenHumedad;
using extremos::ResultadoEstacion;
using extremos::TrazaEstacion;

constexpr std::string_view DOS_DECIMALES = "0.00";
constexpr std::string_view CUATRO_DECIMALES = "0.0000";
constexpr std::string_view SIN_DECIMALES = "0";
constexpr std::string_view PERCENTIL = "0.0##";
constexpr std::string_view SUPUESTA = "supuesta";

std::string Fila(std::string_view nombre, std::string_view calefaccion, std::string_view refrigeracion) {
  std::string fila(nombre);
  return fila.append("\t").append(calefaccion).append("\t").append(refrigeracion).append("\n");
}

std::string Numero(long double valor, std::string_view patron) {
  return FormatearPatron(static_cast<double>(valor), patron);
}

std::string Meses(const MesesDeTemporada &temporada) {
  std::string texto;
  for (std::size_t i = 0; i < temporada.size(); ++i) {
    if (temporada[i] != 1) continue;
    if (!texto.empty()) texto += ' ';
    texto += ConMayuscula(MesCorto(static_cast<int>(i) + 1));
  }
  return texto;
}

std::string Mes(const AjustesEstacion &ajustes) { return ConMayuscula(NombreMes(ajustes.mes)); }

/// Las filas cuyos valores son números de la traza.
std::string Cifras(const TrazaEstacion &cal, const TrazaEstacion &ref) {
  std::string texto;
  const auto fila = [&](std::string_view nombre, auto miembro, std::string_view patron) {
    texto += Fila(nombre, Numero(cal.*miembro, patron), Numero(ref.*miembro, patron));
  };
  fila("Fracción de horas por debajo", &TrazaEstacion::fraccion, CUATRO_DECIMALES);
  fila("T de la temporada T1, T2 (ºC)", &TrazaEstacion::temperaturaTemporada, DOS_DECIMALES);
  fila("Parte del mes por debajo F1, F2", &TrazaEstacion::parteDelMes, CUATRO_DECIMALES);
  fila("Parte de enero, julio FJ, FL", &TrazaEstacion::parteDeReferencia, CUATRO_DECIMALES);
  fila("T de proyecto T1, T2 en el mes (ºC)", &TrazaEstacion::temperaturaMes, DOS_DECIMALES);
  fila("Claridad mensual K", &TrazaEstacion::claridadMensual, CUATRO_DECIMALES);
  fila("Claridad diaria k", &TrazaEstacion::claridadDiaria, CUATRO_DECIMALES);
  fila("Extraterrestre H0 (Wh/m²)", &TrazaEstacion::extraterrestre, SIN_DECIMALES);
  fila("Radiación del día (Wh/m²)", &TrazaEstacion::diaria, SIN_DECIMALES);
  fila("Salida del sol (h solar)", &TrazaEstacion::salida, DOS_DECIMALES);
  fila("Humedad absoluta (g/kg)", &TrazaEstacion::humedad, DOS_DECIMALES);
  return texto;
}

std::string_view Procedencia(const TrazaEstacion &traza, std::string_view etiqueta) {
  return traza.origenHumedad == OrigenHumedad::Registro ? etiqueta : SUPUESTA;
}

std::string Lugar(const PeticionDias &peticion, const extremos::ResultadoDias &resultado) {
  std::string texto =
      peticion.localidad + " (" + peticion.provincia + "), registro " + resultado.clave + "\n";
  texto += "Latitud " + Numero(resultado.latitud, DOS_DECIMALES) + "º, altitud " +
           Numero(resultado.altitud, SIN_DECIMALES) + " m" +
           (resultado.altitudDelRegistro ? " (ALT=)" : " (sin dato)") + ", factor de cola " +
           Numero(resultado.factorDeCola, "0.##") + "\n";
  return texto;
}

} // namespace

std::string TextoDeDerivacion(const PeticionDias &peticion, const extremos::ResultadoDias &resultado) {
  const auto &[localidad, provincia, cal, ref] = peticion;
  std::string texto = Lugar(peticion, resultado) + "\n";
  texto += Fila("", "Calefacción", "Refrigeración");
  texto += Fila("Mes de proyecto", Mes(cal), Mes(ref));
  texto += Fila("Percentil (%)", Numero(cal.percentil, PERCENTIL), Numero(ref.percentil, PERCENTIL));
  texto += Cifras(resultado.calefaccion.traza, resultado.refrigeracion.traza);
  const std::string_view origenCal = Procedencia(resultado.calefaccion.traza, "WCAL=");
  const std::string_view origenRef = Procedencia(resultado.refrigeracion.traza, "WREF=");
  texto += Fila("Origen de la humedad", origenCal, origenRef);
  texto += "\nTemporada de calefacción: " + Meses(cal.temporada) + "\n";
  texto += "Temporada de refrigeración: " + Meses(ref.temporada) + "\n";
  if (origenCal == SUPUESTA || origenRef == SUPUESTA)
    texto += "Humedad supuesta: aire saturado a la mínima media del mes (2 K menos en el interior)\n";
  return texto;
}

} // namespace tesmo
