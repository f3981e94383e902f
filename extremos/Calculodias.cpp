#include "extremos/Calculodias.h"

#include "extremos/Cielo.h"
#include "extremos/Cursotemperatura.h"
#include "extremos/Humedad.h"
#include "extremos/Radiacionhoraria.h"
#include "solar/Posicionsolar.h"

namespace tesmo::extremos {

namespace {

constexpr int ENERO = 1;
constexpr int JULIO = 7;
constexpr int HORA_MAXIMA_CAL = 14;
constexpr float MEDIODIA = 12.0F;
/// Horas de un mes de 31 días: el divisor de todos los meses (se conserva).
constexpr long double HORAS_DEL_MES = 744.0L;
/// De kJ a Wh.
constexpr long double WH_POR_KJ = 0.2777777851L;

/// Las cuatro distribuciones de las que se saca una estación.
struct Distribuciones {
  Distribucion temporada;
  Distribucion mes;
  Distribucion referencia;
  long double horasDeTemporada = 0.0L;
};

/// Lo que distingue al día de calefacción del de refrigeración.
struct Estacion {
  const AjustesEstacion &ajustes;
  int mesDeReferencia;
  int horaMaxima;
  bool partirDeLaMinima; ///< la temperatura de proyecto es la mínima del día; si no, la máxima
};

EstadisticaMes EstadisticaDe(const RegistroGdr &registro, int mes) {
  const std::size_t i = PosicionDeMes(mes);
  return {registro.maxima[i], registro.minima[i], registro.desviacionMaxima[i], registro.desviacionMinima[i]};
}

Distribucion EntreHorasDelMes(Distribucion horas) {
  horas.DividirPor(HORAS_DEL_MES);
  return horas;
}

/// Reparte las horas de @p mes en las distribuciones de una estación a las que pertenecen.
void AnadirMes(const Distribucion &horas, int mes, const Estacion &estacion, Distribuciones &distribuciones) {
  if (mes == estacion.ajustes.mes) distribuciones.mes = EntreHorasDelMes(horas);
  if (mes == estacion.mesDeReferencia) distribuciones.referencia = EntreHorasDelMes(horas);
  if (estacion.ajustes.temporada[PosicionDeMes(mes)] != 1) return;
  distribuciones.temporada.Anadir(horas);
  distribuciones.horasDeTemporada += DIAS_DEL_MES[PosicionDeMes(mes)] * HORAS_DEL_DIA;
}

void Acumular(Distribuciones &distribuciones, ResultadoEstacion &resultado) {
  distribuciones.temporada.DividirPor(distribuciones.horasDeTemporada);
  resultado.frecuenciaTemporada = distribuciones.temporada.Guardada();
  resultado.frecuenciaMes = distribuciones.mes.Guardada();
  distribuciones.temporada.Acumular();
  for (Distribucion *mensual : {&distribuciones.mes, &distribuciones.referencia}) {
    mensual->Acumular();
    mensual->Normalizar();
  }
  resultado.acumuladaTemporada = distribuciones.temporada.Guardada();
  resultado.acumuladaMes = distribuciones.mes.Guardada();
  resultado.acumuladaReferencia = distribuciones.referencia.Guardada();
}

/// El percentil fija la temperatura en la temporada; a un mes que no es el de referencia se lleva la misma
/// parte de horas que deja por debajo en éste.
void BuscarTemperaturas(const Distribuciones &distribuciones, const Estacion &estacion,
                        TrazaEstacion &traza) {
  traza.fraccion = (100.0L - estacion.ajustes.percentil) * 0.01L;
  traza.temperaturaTemporada = distribuciones.temporada.Buscar(traza.fraccion);
  traza.parteDelMes = distribuciones.mes.Valor(traza.temperaturaTemporada);
  traza.parteDeReferencia = distribuciones.referencia.Valor(traza.temperaturaTemporada);
  traza.temperaturaMes = estacion.ajustes.mes == estacion.mesDeReferencia
                             ? traza.temperaturaTemporada
                             : distribuciones.mes.Buscar(traza.parteDeReferencia);
}

ValoresHorarios TemperaturaExterior(const RegistroGdr &registro, const Estacion &estacion,
                                    const TrazaEstacion &traza) {
  const EstadisticaMes mes = EstadisticaDe(registro, estacion.ajustes.mes);
  const long double recorrido = static_cast<long double>(mes.maxima) - mes.minima;
  const long double minima =
      estacion.partirDeLaMinima ? traza.temperaturaMes : traza.temperaturaMes - recorrido;
  return CursoDeTemperatura(minima, minima + recorrido, traza.salida, estacion.horaMaxima);
}

void ElegirHumedad(const RegistroGdr &registro, const Estacion &estacion, float altitud,
                   TrazaEstacion &traza) {
  const std::optional<float> &dato = estacion.partirDeLaMinima ? registro.humedadCal : registro.humedadRef;
  traza.origenHumedad = dato ? OrigenHumedad::Registro : OrigenHumedad::MinimaDelMes;
  traza.humedad =
      dato ? *dato
           : HumedadSupuesta(registro.minima[PosicionDeMes(estacion.ajustes.mes)], registro.zona, altitud);
}

void FormarDia(const RegistroGdr &registro, const Estacion &estacion, float altitud,
               ResultadoEstacion &resultado) {
  TrazaEstacion &traza = resultado.traza;
  DiaDeProyecto &dia = resultado.dia;
  const int mes = estacion.ajustes.mes;
  dia.exterior = TemperaturaExterior(registro, estacion, traza);

  const SolDeProyecto sol = CalcularSolDeProyecto(registro.latitud, mes);
  const auto mensual = static_cast<float>(registro.radiacion[PosicionDeMes(mes)] * WH_POR_KJ);
  traza.extraterrestre = sol.extraterrestre;
  traza.claridadMensual = sol.extraterrestre > 0.0L ? mensual / sol.extraterrestre : 0.0L;
  traza.diaria = ClaridadDiaria(traza.claridadMensual, traza.parteDelMes) * sol.extraterrestre;
  const RadiacionDelDia radiacion = RepartirRadiacion(traza.diaria, sol);
  traza.claridadDiaria = radiacion.claridad;
  dia.directa = radiacion.directa;
  dia.difusa = radiacion.difusa;

  ElegirHumedad(registro, estacion, altitud, traza);
  const HumedadDelDia humedad = HumedadHoraria(dia.exterior, traza.humedad, altitud);
  dia.rocio = humedad.rocio;
  dia.absoluta = humedad.absoluta;
  dia.relativa = humedad.relativa;
  dia.cielo = CursoDeCielo(dia.exterior, dia.rocio, radiacion.claridad);
}

float SalidaDelSol(float latitud, int mes) {
  return PosicionSolar(latitud, mes, DIA_DE_PROYECTO, MEDIODIA).HorasDelDia().salida;
}

} // namespace

ResultadoDias CalcularDias(const RegistroGdr &registro, const AjustesEstacion &calefaccion,
                           const AjustesEstacion &refrigeracion) {
  ResultadoDias resultado;
  resultado.clave = registro.clave;
  resultado.latitud = registro.latitud;
  resultado.factorDeCola = registro.factorDeCola;
  resultado.altitudDelRegistro = registro.altitud.has_value();
  resultado.altitud = registro.altitud.value_or(0.0F);
  resultado.zona = CoeficientesDe(registro.zona);
  const Estacion cal{calefaccion, ENERO, HORA_MAXIMA_CAL, true};
  const Estacion ref{refrigeracion, JULIO, resultado.zona.horaMaximaRef, false};

  Distribuciones distribucionesCal;
  Distribuciones distribucionesRef;
  for (int mes = 1; mes <= static_cast<int>(DIAS_DEL_MES.size()); ++mes) {
    resultado.ultimoMes = EstadisticaDe(registro, mes);
    const Distribucion horas = HorasPorGrado(resultado.ultimoMes, resultado.zona,
                                             DIAS_DEL_MES[PosicionDeMes(mes)], registro.factorDeCola);
    AnadirMes(horas, mes, cal, distribucionesCal);
    AnadirMes(horas, mes, ref, distribucionesRef);
  }
  const auto cerrar = [&](const Estacion &estacion, Distribuciones &distribuciones,
                          ResultadoEstacion &final) {
    final.traza.salida = SalidaDelSol(registro.latitud, estacion.ajustes.mes);
    Acumular(distribuciones, final);
    BuscarTemperaturas(distribuciones, estacion, final.traza);
    FormarDia(registro, estacion, resultado.altitud, final);
  };
  cerrar(cal, distribucionesCal, resultado.calefaccion);
  cerrar(ref, distribucionesRef, resultado.refrigeracion);
  return resultado;
}

} // namespace tesmo::extremos
