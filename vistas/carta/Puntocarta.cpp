#include "vistas/carta/Puntocarta.h"

#include "core/Formato.h"
#include "psicro/Corrienteaire.h"
#include "vistas/comun/Textoqt.h"

#include <QObject>

namespace tesmo {

namespace {

constexpr int LETRAS = 26;
constexpr float CAUDAL_UNIDAD = 1.0F; ///< [kg/s]
constexpr double W_POR_KW = 1000.0;

QString Valor(long double valor, std::string_view patron) {
  return Texto(FormatearPatron(static_cast<double>(valor), patron));
}

CorrienteAire CorrienteDe(const PuntoCarta &punto, float presion) {
  CorrienteAire aire;
  aire.pont_w(punto.t, punto.w, presion);
  aire.ponm(CAUDAL_UNIDAD, "kg/s");
  return aire;
}

} // namespace

QString NombreDePunto(int i) {
  const QString letra(QChar::fromLatin1(static_cast<char>('A' + i % LETRAS)));
  return i < LETRAS ? letra : letra + QString::number(i / LETRAS + 1);
}

QStringList TextosDeEstado(float t, float w, float p, const CorrienteAire &aire) {
  return {Valor(t, "#0.##"),
          Valor(w, "#0.####"),
          Valor(aire.entalpia(), "#0.##"),
          Valor(aire.humedadRelativa(), "#0.##"),
          Valor(aire.volumenEspecifico(), "#0.####"),
          Valor(aire.temperaturaRocio(), "#0.##"),
          Valor(aire.temperaturaHumeda(), "#0.##"),
          Valor(p, "#0")};
}

QStringList TextosDeEstado(const PuntoCarta &punto, float presion) {
  const CorrienteAire aire = CorrienteDe(punto, presion);
  return TextosDeEstado(aire.temperatura(), aire.humedadAbsoluta(), aire.presion(), aire);
}

ProcesoCarta ProcesoEntre(const PuntoCarta &desde, const PuntoCarta &hasta, float presion) {
  const CorrienteAire entrada = CorrienteDe(desde, presion);
  const CorrienteAire salida = CorrienteDe(hasta, presion);
  return {dameQSen(entrada, salida), dameQLat(entrada, salida)};
}

QString TextoDeProceso(const PuntoCarta &desde, const PuntoCarta &hasta, float presion) {
  const auto [sensible, latente] = ProcesoEntre(desde, hasta, presion);
  const auto kilovatios = [](double vatios) { return Valor(vatios / W_POR_KW, "#0.00"); };
  return QObject::tr("%1 → %2, por kg/s de aire seco: sensible %3 kW, latente %4 kW, total %5 kW")
      .arg(desde.nombre, hasta.nombre, kilovatios(sensible), kilovatios(latente),
           kilovatios(static_cast<double>(sensible) + latente));
}

} // namespace tesmo
