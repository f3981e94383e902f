#include "intercambio/sintesis/Temperaturadiaria.h"

#include <algorithm>
#include <cmath>

namespace tesmo {

namespace {

/// Menor diferencia entre la máxima y la mínima de un día, y entre la máxima de uno y la mínima de sus
/// vecinos [K]: deja sitio a una curva que no se cruce a medianoche.
constexpr double RECORRIDO_MINIMO = 1.0;
constexpr double MARGEN_ENTRE_DIAS = 0.3;
/// Pasadas de ajuste; cada una reduce el error a menos de la mitad y con la última es de milésimas.
constexpr int PASADAS = 60;
constexpr int REMATES = 4;
/// La escala no se aleja más que esto de la desviación pedida, por raro que salga un mes.
constexpr double ESCALA_MINIMA = 0.3;
constexpr double ESCALA_MAXIMA = 3.0;

/// Anomalías sin unidades, media 0 y desviación 1, de máxima y mínima.
struct Anomalias {
  SerieDias maximas;
  SerieDias minimas;
};

/// La innovación de dos variables que mantiene la correlación del mismo día con autocorrelaciones distintas:
/// su covarianza es r·(1 − a·b) (Salas et al., 1980), que no puede pasar de la media geométrica de las
/// varianzas.
Anomalias GenerarAnomalias(const NormalesLocalidad &localidad, Azar &azar) {
  SerieDias ruidoMaxima(DIAS);
  SerieDias ruidoMinima(DIAS);
  for (std::size_t dia = 0; dia < DIAS; ++dia) {
    ruidoMaxima[dia] = azar.Normal();
    ruidoMinima[dia] = azar.Normal();
  }
  Anomalias anomalias{SerieDias(DIAS), SerieDias(DIAS)};
  double x = 0.0;
  double n = 0.0;
  // La primera vuelta sólo da a la segunda un arranque que cierra el año.
  for (int vuelta = 0; vuelta < 2; ++vuelta) {
    for (std::size_t dia = 0; dia < DIAS; ++dia) {
      const NormalesMes &mes = localidad.meses[MesDe(dia)];
      const double a = mes.r1Tmax;
      const double b = mes.r1Tmin;
      const double sdMaxima = std::sqrt(1.0 - a * a);
      const double sdMinima = std::sqrt(1.0 - b * b);
      const double r = std::clamp(mes.rTmaxTmin * (1.0 - a * b) / (sdMaxima * sdMinima), -1.0, 1.0);
      const double propio = std::sqrt(1.0 - r * r);
      x = anomalias.maximas[dia] = a * x + sdMaxima * ruidoMaxima[dia];
      n = anomalias.minimas[dia] = b * n + sdMinima * (r * ruidoMaxima[dia] + propio * ruidoMinima[dia]);
    }
  }
  return anomalias;
}

/// Media y escala que convierten anomalías en temperaturas.
struct Ajuste {
  PerfilMensual media;
  PerfilMensual escala;
};

SerieDias Aplicar(const Ajuste &ajuste, const SerieDias &anomalias) {
  SerieDias temperaturas(DIAS);
  for (std::size_t dia = 0; dia < DIAS; ++dia) {
    temperaturas[dia] = ajuste.media.En(dia) + ajuste.escala.En(dia) * anomalias[dia];
  }
  return temperaturas;
}

void SepararMaximasYMinimas(TemperaturasDiarias &dias) {
  for (std::size_t dia = 0; dia < DIAS; ++dia) {
    const double falta = RECORRIDO_MINIMO - (dias.maximas[dia] - dias.minimas[dia]);
    if (falta <= 0.0) continue;
    dias.maximas[dia] += falta / 2.0;
    dias.minimas[dia] -= falta / 2.0;
  }
  for (std::size_t dia = 0; dia < DIAS; ++dia) {
    const double vecina = std::min(dias.maximas[(dia + DIAS - 1) % DIAS], dias.maximas[(dia + 1) % DIAS]);
    dias.minimas[dia] = std::min(dias.minimas[dia], vecina - MARGEN_ENTRE_DIAS);
  }
}

/// Acerca media y escala de un mes a lo pedido, según lo que ha salido.
void Corregir(Ajuste &ajuste, const SerieDias &salida, std::size_t mes, double media, double desviacion) {
  ajuste.media.nodos[mes] += media - MediaDelMes(salida, mes);
  const double escala = ajuste.escala.nodos[mes] * desviacion / DesviacionDelMes(salida, mes);
  ajuste.escala.nodos[mes] = std::clamp(escala, ESCALA_MINIMA * desviacion, ESCALA_MAXIMA * desviacion);
}

/// Quita lo que a un mes aún le falte de media o de desviación; lo poco que es no deja ver el paso de un mes
/// a otro entre las diferencias de un día al siguiente.
void Rematar(SerieDias &serie, std::size_t mes, double media, double desviacion) {
  const double actual = MediaDelMes(serie, mes);
  const double factor = desviacion / DesviacionDelMes(serie, mes);
  for (std::size_t dia = PrimerDiaDe(mes); dia < PrimerDiaDe(mes) + DiasDe(mes); ++dia) {
    serie[dia] = media + factor * (serie[dia] - actual);
  }
}

Ajuste AjusteInicial(const NormalesLocalidad &localidad, double NormalesMes::*media,
                     double NormalesMes::*desviacion) {
  ValoresPorMes medias{};
  ValoresPorMes desviaciones{};
  for (std::size_t mes = 0; mes < MESES; ++mes) {
    medias[mes] = localidad.meses[mes].*media;
    desviaciones[mes] = localidad.meses[mes].*desviacion;
  }
  return {PerfilMensual(medias), PerfilMensual(desviaciones)};
}

} // namespace

TemperaturasDiarias GenerarTemperaturasDiarias(const NormalesLocalidad &localidad, Azar &azar) {
  const Anomalias anomalias = GenerarAnomalias(localidad, azar);
  Ajuste maxima = AjusteInicial(localidad, &NormalesMes::tmaxMedia, &NormalesMes::sdTmaxIntrames);
  Ajuste minima = AjusteInicial(localidad, &NormalesMes::tminMedia, &NormalesMes::sdTminIntrames);
  TemperaturasDiarias dias;
  for (int pasada = 0; pasada <= PASADAS; ++pasada) {
    dias = {Aplicar(maxima, anomalias.maximas), Aplicar(minima, anomalias.minimas)};
    SepararMaximasYMinimas(dias);
    for (std::size_t mes = 0; mes < MESES; ++mes) {
      const NormalesMes &normales = localidad.meses[mes];
      Corregir(maxima, dias.maximas, mes, normales.tmaxMedia, normales.sdTmaxIntrames);
      Corregir(minima, dias.minimas, mes, normales.tminMedia, normales.sdTminIntrames);
    }
  }
  for (int remate = 0; remate < REMATES; ++remate) {
    SepararMaximasYMinimas(dias);
    for (std::size_t mes = 0; mes < MESES; ++mes) {
      const NormalesMes &normales = localidad.meses[mes];
      Rematar(dias.maximas, mes, normales.tmaxMedia, normales.sdTmaxIntrames);
      Rematar(dias.minimas, mes, normales.tminMedia, normales.sdTminIntrames);
    }
  }
  return dias;
}

} // namespace tesmo
