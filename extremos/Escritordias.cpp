#include "extremos/Escritordias.h"

#include "core/Formato.h"

#include <array>

namespace tesmo::extremos {

namespace {

constexpr std::string_view ENCABEZADO = "mes\tdia\thora\ttext\ttrocio\ttcielo\trdir\trdif\thabs\threl\n";
constexpr std::string_view UN_DECIMAL = "0.0";
constexpr std::string_view SIN_DECIMALES = "0";

/// Las seis acumuladas, en el orden de las columnas del fichero de salida, con su nombre en la traza.
struct Acumulada {
  const char *nombre;
  const DistribucionGuardada &distribucion;
};
std::array<Acumulada, 6> Acumuladas(const ResultadoDias &r) {
  return {{{"acumulada_temporada_cal", r.calefaccion.acumuladaTemporada},
           {"acumulada_temporada_ref", r.refrigeracion.acumuladaTemporada},
           {"acumulada_enero", r.calefaccion.acumuladaReferencia},
           {"acumulada_julio", r.refrigeracion.acumuladaReferencia},
           {"acumulada_mes_cal", r.calefaccion.acumuladaMes},
           {"acumulada_mes_ref", r.refrigeracion.acumuladaMes}}};
}

std::string Pareja(long double a, long double b) {
  return FormatoF(static_cast<double>(a)) + " " + FormatoF(static_cast<double>(b)) + "\n";
}

} // namespace

std::string TextoDeDia(const DiaDeProyecto &dia, int mes, std::string_view localidad,
                       std::string_view provincia) {
  std::string texto;
  texto.append(localidad).append(" ").append(provincia).append("\n").append(ENCABEZADO);
  for (std::size_t h = 0; h < dia.exterior.size(); ++h) {
    texto += std::to_string(mes) + "\t" + std::to_string(DIA_DE_PROYECTO) + "\t" + std::to_string(h);
    const auto columna = [&](float valor, std::string_view patron) {
      texto += "\t" + FormatearPatron(valor, patron);
    };
    columna(dia.exterior[h], UN_DECIMAL);
    columna(dia.rocio[h], UN_DECIMAL);
    columna(dia.cielo[h], UN_DECIMAL);
    columna(dia.directa[h], SIN_DECIMALES);
    columna(dia.difusa[h], SIN_DECIMALES);
    columna(dia.absoluta[h], UN_DECIMAL);
    columna(dia.relativa[h], UN_DECIMAL);
    texto += "\n";
  }
  return texto;
}

std::string TextoDeSalida(const ResultadoDias &resultado) {
  const TrazaEstacion &cal = resultado.calefaccion.traza;
  const TrazaEstacion &ref = resultado.refrigeracion.traza;
  std::string texto = resultado.clave + "\n";
  texto += Pareja(cal.fraccion, ref.fraccion);
  texto += Pareja(cal.parteDeReferencia, ref.parteDeReferencia);
  texto += Pareja(cal.temperaturaTemporada, ref.temperaturaTemporada);
  texto += Pareja(cal.temperaturaMes, ref.temperaturaMes);
  const auto acumuladas = Acumuladas(resultado);
  for (std::size_t k = 0; k < NUMERO_GRADOS; ++k) {
    texto += FormatoF(static_cast<double>(k) + GRADO_MINIMO + 1);
    for (const Acumulada &acumulada : acumuladas) texto += " " + FormatoF(acumulada.distribucion.valores[k]);
    texto += "\n";
  }
  texto += Pareja(cal.diaria, ref.diaria);
  return texto;
}

std::vector<LineaDeTraza> LineasDeTraza(const ResultadoDias &resultado) {
  const TrazaEstacion &cal = resultado.calefaccion.traza;
  const TrazaEstacion &ref = resultado.refrigeracion.traza;
  std::vector<LineaDeTraza> lineas;
  const auto linea = [&](const char *nombre, long double valor) {
    lineas.push_back({nombre, {static_cast<double>(valor)}});
  };
  linea("latitude", resultado.latitud);
  linea("tail", resultado.factorDeCola);
  linea("sunrise_cal", cal.salida);
  linea("sunrise_ref", ref.salida);
  linea("T1", cal.temperaturaTemporada);
  linea("T2", ref.temperaturaTemporada);
  linea("T1_mes", cal.temperaturaMes);
  linea("T2_mes", ref.temperaturaMes);
  linea("F1", cal.parteDelMes);
  linea("F2", ref.parteDelMes);
  linea("FJ", cal.parteDeReferencia);
  linea("FL", ref.parteDeReferencia);
  linea("K_cal", cal.claridadMensual);
  linea("K_ref", ref.claridadMensual);
  linea("k_cal", cal.claridadDiaria);
  linea("k_ref", ref.claridadDiaria);
  linea("H0_cal", cal.extraterrestre);
  linea("H0_ref", ref.extraterrestre);
  linea("Hdia_cal", cal.diaria);
  linea("Hdia_ref", ref.diaria);
  linea("alt", resultado.altitud);
  linea("wcal", cal.humedad);
  linea("wref", ref.humedad);
  for (const Acumulada &acumulada : Acumuladas(resultado)) {
    const auto &valores = acumulada.distribucion.valores;
    lineas.push_back({acumulada.nombre, {valores.begin(), valores.end()}});
  }
  return lineas;
}

} // namespace tesmo::extremos
