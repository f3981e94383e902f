#include "core/Unidades.h"
#include "intercambio/auditoria/Comprobaciones.h"
#include "intercambio/auditoria/Hallazgos.h"
#include "intercambio/auditoria/Radiaciondehora.h"

#include <algorithm>
#include <cmath>
#include <functional>

// Los límites de la radiación son los de las redes de referencia: C. N. Long y Y. Shi (2008), «An automated
// quality assessment and control algorithm for surface radiation measurements», The Open Atmospheric Science
// Journal 2, 23-37, que recogen los de la Baseline Surface Radiation Network.

namespace tesmo {

namespace {

/// Con el sol más bajo toda la hora, lo que quede de luz (crepúsculo civil, 6°) no llega a medirse como
/// radiación.
constexpr double CENIT_DE_NOCHE = 96.0; // [°]
/// Horas con más desajuste de las que un año tiene por nubes que cruzan y horas rasantes.
constexpr double PARTE_DE_AVISO = 0.05;
constexpr double PARTE_GRAVE = 0.25;

bool HayHaz(const MateriaAuditoria &materia) {
  return materia.sol.Hay() && Trae(materia, Campo::GlobalHorizontal) && Trae(materia, Campo::DirectaNormal) &&
         Trae(materia, Campo::DifusaHorizontal);
}

/// Horas del año que cumplen @p mala.
HorasMalas Reunir(const std::function<bool(std::size_t)> &mala) {
  HorasMalas horas;
  for (std::size_t i = 0; i < static_cast<std::size_t>(HORAS_DEL_ANIO); ++i) {
    if (mala(i)) horas.push_back(i);
  }
  return horas;
}

/// El mayor valor que puede tomar un campo en la hora @p i: S·a·μ^b + c, con S la irradiancia normal fuera de
/// la atmósfera y μ el coseno del cenit (de Long y Shi, los de lo sumamente raro salvo en la directa, que en
/// medias horarias no se dan). μ es el mayor de la hora.
struct LimiteFisico {
  Campo campo;
  double a, b, c;
};
constexpr LimiteFisico LIMITE_GLOBAL{Campo::GlobalHorizontal, 1.2, 1.2, 50.0};
constexpr LimiteFisico LIMITE_DIFUSA{Campo::DifusaHorizontal, 0.75, 1.2, 30.0};
constexpr LimiteFisico LIMITE_DIRECTA{Campo::DirectaHorizontal, 1.0, 1.0, 0.0};

HorasMalas PorEncima(const MateriaAuditoria &materia, const LimiteFisico &limite) {
  const bool esGlobal = limite.campo == Campo::GlobalHorizontal; // un .met la da en dos partes
  const std::vector<double> &valores = Valores(materia, limite.campo);
  return Reunir([&](std::size_t i) {
    const double valor = esGlobal ? GlobalDe(materia, i) : valores[i];
    const double mu = std::max(0.0, materia.sol.cosenoMayor[i]);
    const double maximo = materia.sol.extraterrestre[i] * limite.a * std::pow(mu, limite.b) + limite.c;
    return valor > maximo + RADIACION_NOCTURNA;
  });
}

/// Desajuste del haz de una hora: medido, GHI − DHI, y calculado, DNI·cos z.
struct Cierre {
  double suma2 = 0.0;
  std::size_t horas = 0;
  HorasMalas malas;
  HorasMalas disparates; ///< las que no explica ninguna nube
};

Cierre CierreDelAnio(const MateriaAuditoria &materia) {
  // Long y Shi: sólo con más de 50 W/m². Los suyos son de DHI + DNI·cos z; aquí, de ésa o de la global, la
  // mayor, para que una global sin haz ni difusa también cuente.
  constexpr double MINIMA = 50.0;
  constexpr double COSENO_75 = 0.25881904510252074; // y dos holguras, a un lado y otro de 75° de cenit
  constexpr double HOLGURA_ALTO = 0.08, HOLGURA_BAJO = 0.15;
  constexpr double DISPARATE = 200.0; // [W/m²]
  Cierre cierre;
  for (std::size_t i = 0; i < static_cast<std::size_t>(HORAS_DEL_ANIO); ++i) {
    const double difusa = Valores(materia, Campo::DifusaHorizontal)[i];
    const double suma = difusa + Valores(materia, Campo::DirectaNormal)[i] * CosenoDe(materia, i);
    const double global = Valores(materia, Campo::GlobalHorizontal)[i];
    const double desajuste = global - suma;
    const double mayor = std::max(suma, global);
    if (std::isnan(desajuste) || mayor <= MINIMA) continue;
    cierre.suma2 += desajuste * desajuste;
    ++cierre.horas;
    const double holgura = CosenoDe(materia, i) > COSENO_75 ? HOLGURA_ALTO : HOLGURA_BAJO;
    if (std::abs(desajuste) > holgura * mayor) cierre.malas.push_back(i);
    if (std::abs(desajuste) > DISPARATE) cierre.disparates.push_back(i);
  }
  return cierre;
}

} // namespace

Hallazgo MirarCierre(const MateriaAuditoria &materia) {
  if (!HayHaz(materia)) return NoComprobada("hacen falta la global, la directa normal y la difusa");
  const Cierre cierre = CierreDelAnio(materia);
  if (cierre.horas == 0) return NoComprobada("no hay horas con bastante sol");
  const auto horas = static_cast<double>(cierre.horas);
  const double parte = static_cast<double>(cierre.malas.size()) / horas;
  const std::string texto =
      "global − difusa − directa normal × cos z: " + Cifra(std::sqrt(cierre.suma2 / horas)) +
      " W/m² de media cuadrática; " + Cuantas(cierre.malas.size()) + " de " + std::to_string(cierre.horas) +
      " a más del 8 % (15 % con el sol a menos de 15°)";
  if (parte > PARTE_DE_AVISO)
    return ConLineas(parte > PARTE_GRAVE ? Gravedad::Grave : Gravedad::Aviso, texto, materia, cierre.malas);
  if (cierre.disparates.empty()) return Conforme(texto);
  return ConLineas(Gravedad::Aviso, texto + "; " + Cuantas(cierre.disparates.size()) + " a más de 200 W/m²",
                   materia, cierre.disparates);
}

Hallazgo MirarNoche(const MateriaAuditoria &materia) {
  constexpr std::size_t HORAS_GRAVES = 24; // como un día entero de sol a deshora
  if (!materia.sol.Hay()) return NoComprobada("no se sabe dónde está el sitio");
  const double cosenoDeNoche = std::cos(CENIT_DE_NOCHE * GRADO);
  const HorasMalas malas = Reunir([&](std::size_t i) {
    const auto luce = [&](Campo campo) { return Valores(materia, campo)[i] > RADIACION_NOCTURNA; };
    return materia.sol.cosenoMayor[i] < cosenoDeNoche &&
           (luce(Campo::GlobalHorizontal) || luce(Campo::DirectaNormal) || luce(Campo::DirectaHorizontal) ||
            luce(Campo::DifusaHorizontal));
  });
  if (malas.empty()) return Conforme("ninguna con el sol a más de 6° bajo el horizonte");
  return ConLineas(SegunCuantas(malas.size(), HORAS_GRAVES),
                   Cuantas(malas.size()) + " con más de " + Cifra(RADIACION_NOCTURNA, "0") +
                       " W/m² y el sol a más de 6° bajo el horizonte",
                   materia, malas);
}

Hallazgo MirarDirectaNormal(const MateriaAuditoria &materia) {
  constexpr std::size_t HORAS_GRAVES = 24;
  if (!materia.sol.Hay()) return NoComprobada("no se sabe dónde está el sitio");
  double mayor = AUSENTE;
  const HorasMalas malas = Reunir([&](std::size_t i) {
    const double normal = DirectaNormalDe(materia, i);
    if (!(normal <= mayor) && !std::isnan(normal)) mayor = normal;
    return normal > materia.sol.extraterrestre[i];
  });
  if (std::isnan(mayor)) return NoComprobada("no hay radiación directa");
  const std::string texto = "la mayor, " + Cifra(mayor, "0") + " W/m²";
  if (malas.empty()) return Conforme(texto);
  return ConLineas(SegunCuantas(malas.size(), HORAS_GRAVES),
                   Cuantas(malas.size()) + " con más directa normal que fuera de la atmósfera; " + texto,
                   materia, malas);
}

Hallazgo MirarRadiacionPosible(const MateriaAuditoria &materia) {
  constexpr std::size_t HORAS_GRAVES = 24;
  if (!materia.sol.Hay()) return NoComprobada("no se sabe dónde está el sitio");
  HorasMalas malas;
  std::string texto;
  for (const LimiteFisico &limite : {LIMITE_GLOBAL, LIMITE_DIFUSA, LIMITE_DIRECTA}) {
    const HorasMalas horas = PorEncima(materia, limite);
    if (horas.empty()) continue;
    malas.insert(malas.end(), horas.begin(), horas.end());
    texto += (texto.empty() ? "" : "; ") + std::string(NombreCampo(limite.campo)) + ": " +
             Cuantas(horas.size()) + " por encima de lo físicamente posible";
  }
  const HorasMalas difusas = Reunir([&](std::size_t i) {
    return Valores(materia, Campo::DifusaHorizontal)[i] >
           1.1 * Valores(materia, Campo::GlobalHorizontal)[i] + RADIACION_NOCTURNA; // 1,10: Long y Shi
  });
  if (!difusas.empty()) {
    malas.insert(malas.end(), difusas.begin(), difusas.end());
    texto += (texto.empty() ? "" : "; ") + ("difusa mayor que la global: " + Cuantas(difusas.size()));
  }
  if (malas.empty()) return Conforme("global, difusa y directa caben en lo que el sol da");
  return ConLineas(SegunCuantas(malas.size(), HORAS_GRAVES), texto, materia, malas);
}

} // namespace tesmo
