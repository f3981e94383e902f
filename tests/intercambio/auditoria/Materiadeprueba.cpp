#include "tests/intercambio/auditoria/Materiadeprueba.h"

#include "intercambio/comun/Perfilmensual.h"
#include "psicro/Atmosfera.h"
#include "psicro/Constantes.h"
#include "psicro/Saturacion.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tesmo::prueba {

namespace {

using std::numbers::pi;

constexpr double LATITUD = 37.0, LONGITUD = -2.4, ALTITUD = 500.0, HUSO = 1.0;
constexpr double CONSTANTE_SOLAR = 1361.0;

/// Un número de 0 a 1 que depende de @p n y de nada más.
double Azar(std::size_t n) {
  const double x = std::sin(static_cast<double>(n + 1) * 12.9898) * 43758.5453;
  return x - std::floor(x);
}
/// Lo mismo sin saltos: recta entre los azares de un día y el siguiente.
double AzarContinuo(std::size_t hora, std::size_t semilla) {
  const std::size_t dia = hora / HORAS_POR_DIA;
  const double parte = static_cast<double>(hora % HORAS_POR_DIA) / 24.0;
  return Azar(dia + semilla) * (1.0 - parte) + Azar(dia + 1 + semilla) * parte;
}

/// Coseno del cenit en el centro de la hora que cubre la posición @p i (Spencer, 1971).
double Coseno(std::size_t i) {
  const double utc = static_cast<double>(i % HORAS_POR_DIA) + 0.5 - HUSO;
  const double b = 2.0 * pi * (static_cast<double>(i / HORAS_POR_DIA) + (utc - 12.0) / 24.0) / 365.0;
  const double declinacion = 0.006918 - 0.399912 * std::cos(b) + 0.070257 * std::sin(b) -
                             0.006758 * std::cos(2 * b) + 0.000907 * std::sin(2 * b) -
                             0.002697 * std::cos(3 * b) + 0.00148 * std::sin(3 * b);
  const double ecuacion = 229.18 / 60.0 *
                          (0.000075 + 0.001868 * std::cos(b) - 0.032077 * std::sin(b) -
                           0.014615 * std::cos(2 * b) - 0.04089 * std::sin(2 * b));
  const double angulo = (utc + LONGITUD / 15.0 + ecuacion - 12.0) * pi / 12.0;
  const double f = LATITUD * pi / 180.0;
  return std::sin(f) * std::sin(declinacion) + std::cos(f) * std::cos(declinacion) * std::cos(angulo);
}

struct Radiaciones {
  double global = 0.0, normal = 0.0, difusa = 0.0;
};
Radiaciones RadiacionDe(std::size_t i) {
  const double coseno = Coseno(i);
  if (coseno <= 0.01) return {};
  const double claridad = 0.25 + 0.75 * AzarContinuo(i, 77);
  const double masa = 1.0 / coseno;
  const double normal = claridad * CONSTANTE_SOLAR * std::pow(0.7, std::pow(masa, 0.678)); // Meinel, 1976
  const double difusa = (0.10 + 0.25 * (1.0 - claridad)) * CONSTANTE_SOLAR * coseno * 0.7;
  return {difusa + normal * coseno, normal, difusa};
}

double Temperatura(std::size_t i) {
  const double anual = std::cos(2.0 * pi * (static_cast<double>(i) / 24.0 - 205.0) / 365.0);
  const double diaria = std::cos(2.0 * pi * (static_cast<double>(i % HORAS_POR_DIA) - 15.0) / 24.0);
  return 16.0 + 8.0 * anual + 5.0 * diaria + 6.0 * (AzarContinuo(i, 11) - 0.5);
}

double Saturacion(double t) { return static_cast<double>(presionSaturacion(static_cast<float>(t))); }

/// Temperatura de rocío por bisección: la relativa y el rocío casan con la saturación de los motores.
double Rocio(double t, double relativa) {
  double menor = t - 60.0, mayor = t;
  for (int paso = 0; paso < 50; ++paso) {
    const double mitad = 0.5 * (menor + mayor);
    (Saturacion(mitad) < relativa / 100.0 * Saturacion(t) ? menor : mayor) = mitad;
  }
  return menor;
}

void PonerHora(AnioCanonico &anio, std::size_t i) {
  const auto poner = [&](Campo campo, double valor) { anio[campo].Poner(i, valor, Procedencia::Copiada); };
  const double t = Temperatura(i);
  const double relativa = 35.0 + 50.0 * AzarContinuo(i, 31) + 5.0 * Azar(i);
  const Radiaciones radiacion = RadiacionDe(i);
  poner(Campo::TemperaturaSeca, t);
  poner(Campo::HumedadRelativa, relativa);
  poner(Campo::TemperaturaRocio, Rocio(t, relativa));
  poner(Campo::Presion, PresionEnAltitud(ALTITUD) + 800.0 * (AzarContinuo(i, 53) - 0.5));
  poner(Campo::GlobalHorizontal, radiacion.global);
  poner(Campo::DirectaNormal, radiacion.normal);
  poner(Campo::DifusaHorizontal, radiacion.difusa);
  poner(Campo::InfrarrojaHorizontal, 0.8 * 5.67e-8 * std::pow(t + 273.15, 4.0));
  poner(Campo::VelocidadViento, 6.0 * AzarContinuo(i, 91) + Azar(i));
  poner(Campo::DireccionViento, 359.0 * AzarContinuo(i, 131));
}

} // namespace

std::size_t Posicion(int mes, int dia, int hora) {
  return static_cast<std::size_t>((DiaDelAnio(mes, dia) - 1) * HORAS_DEL_DIA + hora - 1);
}

MateriaAuditoria MateriaLimpia() {
  MateriaAuditoria materia;
  AnioCanonico &anio = materia.anio;
  anio.formato = FormatoClima::Epw;
  anio.sitio = {"Sitio fingido", "", "España", "", LATITUD, LONGITUD, ALTITUD};
  anio.reloj = {TiempoEtiqueta::OficialEstandar, HUSO, -30.0};
  for (std::size_t i = 0; i < HORAS; ++i) {
    anio.lineas[i] = LineaDe(i);
    PonerHora(anio, i);
  }
  materia.reloj.metodo = MetodoReloj::Haz;
  materia.reloj.declarado.reloj = materia.reloj.propuesto.reloj = anio.reloj;
  materia.reloj.confianza = ConfianzaReloj::Alta;
  materia.reloj.concuerda = true;
  materia.reloj.texto = "El haz cierra con la etiqueta al final de la hora.";
  materia.sol = CalcularSolDeRegistros(anio, anio.reloj);
  return materia;
}

MateriaAuditoria MateriaMetLimpia() {
  MateriaAuditoria materia = MateriaLimpia();
  AnioCanonico &anio = materia.anio;
  anio.formato = FormatoClima::MetQuince;
  const double presion = PresionEnAltitud(ALTITUD);
  for (std::size_t i = 0; i < HORAS; ++i) {
    const double global = anio[Campo::GlobalHorizontal].valores[i];
    const double vapor =
        anio[Campo::HumedadRelativa].valores[i] / 100.0 * Saturacion(anio[Campo::TemperaturaSeca].valores[i]);
    anio[Campo::HumedadAbsoluta].Poner(i, aire::EPSILON * vapor / (presion - vapor), Procedencia::Copiada);
    anio[Campo::DirectaHorizontal].Poner(i, global - anio[Campo::DifusaHorizontal].valores[i],
                                         Procedencia::Copiada);
    for (Campo campo : {Campo::TemperaturaRocio, Campo::Presion, Campo::GlobalHorizontal,
                        Campo::DirectaNormal, Campo::InfrarrojaHorizontal})
      anio[campo].Poner(i, AUSENTE, Procedencia::Ausente);
    anio[Campo::TemperaturaCielo].Poner(i, anio[Campo::TemperaturaSeca].valores[i] - 15.0,
                                        Procedencia::Copiada);
  }
  return materia;
}

Hallazgo Mirar(const MateriaAuditoria &materia, std::string_view clave) {
  for (const Comprobacion &comprobacion : ComprobacionesDeAuditoria()) {
    if (comprobacion.clave == clave) return comprobacion.mirar(materia);
  }
  return {Gravedad::Grave, "no hay comprobación " + std::string(clave), {}};
}

std::string Faltas(const MateriaAuditoria &materia) {
  std::string claves;
  for (const ResultadoComprobacion &resultado : Auditar(materia).resultados) {
    if (resultado.hallazgo.gravedad < Gravedad::Aviso) continue;
    claves += (claves.empty() ? "" : " ") + std::string(resultado.comprobacion->clave);
  }
  return claves;
}

} // namespace tesmo::prueba
