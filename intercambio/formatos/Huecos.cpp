#include "intercambio/formatos/Huecos.h"

#include "intercambio/formatos/Interpolacion.h"
#include "intercambio/formatos/Montaje.h"
#include "intercambio/formatos/Requisitos.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace tesmo {

namespace {

constexpr std::size_t HORAS = static_cast<std::size_t>(HORAS_DEL_ANIO);

/// Los tramos del año cerrado en que se cumple @p falta.
template <typename Falta>
std::vector<TramoSinDato> Tramos(Falta falta) {
  std::size_t inicio = 0;
  while (inicio < HORAS && falta(inicio)) ++inicio;
  if (inicio == HORAS) return {{0, HORAS}};
  std::vector<TramoSinDato> tramos;
  for (std::size_t k = 1; k < HORAS; ++k) {
    const std::size_t hora = (inicio + k) % HORAS;
    if (!falta(hora)) continue;
    const bool sigue = !tramos.empty() && tramos.back().Hora(tramos.back().horas) == hora;
    if (sigue) {
      ++tramos.back().horas;
    } else {
      tramos.push_back({hora, 1});
    }
  }
  return tramos;
}

bool EsCorto(const TramoSinDato &tramo) {
  return tramo.horas <= static_cast<std::size_t>(HORAS_INTERPOLABLES);
}

class Tapador {
public:
  Tapador(AnioCanonico &anio, HuecosLargos largos, Cuaderno &cuaderno)
      : anio_(anio), largos_(largos), cuaderno_(cuaderno) {}

  void Tapar() {
    InterpolarCortos();
    if (PonerCalmas()) InterpolarCortos();
    for (const Requisito &requisito : Requisitos()) AtenderRequisito(requisito);
    for (std::size_t c = 0; c < NUMERO_CAMPOS; ++c) AvisarDeAusentes(static_cast<Campo>(c));
  }

private:
  [[nodiscard]] std::vector<TramoSinDato> TramosDe(Campo campo) const {
    const std::vector<double> &valores = anio_[campo].valores;
    return Tramos([&](std::size_t hora) { return std::isnan(valores[hora]); });
  }

  [[nodiscard]] std::vector<TramoSinDato> TramosDe(const Requisito &requisito) const {
    return Tramos([&](std::size_t hora) { return !SeCumple(requisito, anio_, hora); });
  }

  /// De tres radiaciones sobra una: interpolar la que falta rompería el cierre de las otras dos.
  [[nodiscard]] bool LoSuplenOtros(Campo campo, const TramoSinDato &tramo) const {
    const Requisito *requisito = EsRadiacionSolar(campo) ? RequisitoDe(campo) : nullptr;
    if (requisito == nullptr) return false;
    for (std::size_t k = 0; k < tramo.horas; ++k) {
      if (!SeCumple(*requisito, anio_, tramo.Hora(k))) return false;
    }
    return true;
  }

  [[nodiscard]] std::vector<TramoSinDato> Interpolables(Campo campo) const {
    std::vector<TramoSinDato> tramos;
    if (campo == Campo::AcimutSolar || campo == Campo::CenitSolar || !HayAlguno(anio_, campo)) return tramos;
    for (const TramoSinDato &tramo : TramosDe(campo)) {
      if (EsCorto(tramo) && !LoSuplenOtros(campo, tramo)) tramos.push_back(tramo);
    }
    return tramos;
  }

  /// Se decide todo antes de tocar nada: una radiación recién interpolada no suple a las otras.
  void InterpolarCortos() {
    std::array<std::vector<TramoSinDato>, NUMERO_CAMPOS> tramos;
    for (std::size_t c = 0; c < NUMERO_CAMPOS; ++c) tramos[c] = Interpolables(static_cast<Campo>(c));
    for (std::size_t c = 0; c < NUMERO_CAMPOS; ++c) {
      if (tramos[c].empty()) continue;
      for (const TramoSinDato &tramo : tramos[c]) InterpolarHueco(anio_, static_cast<Campo>(c), tramo);
      AvisarDeInterpolados(static_cast<Campo>(c), tramos[c]);
    }
  }

  /// En calma, la dirección que falta es la última conocida, como en una veleta parada.
  bool PonerCalmas() {
    SerieCanonica &direccion = anio_[Campo::DireccionViento];
    const std::vector<double> &velocidad = anio_[Campo::VelocidadViento].valores;
    if (!HayAlguno(anio_, Campo::DireccionViento)) return false;
    std::size_t primera = 0;
    while (std::isnan(direccion.valores[primera])) ++primera;
    int horas = 0;
    double ultima = direccion.valores[primera];
    for (std::size_t k = 1; k < HORAS; ++k) {
      const std::size_t hora = (primera + k) % HORAS;
      if (!std::isnan(direccion.valores[hora])) ultima = direccion.valores[hora];
      if (!std::isnan(direccion.valores[hora]) || velocidad[hora] != 0.0) continue;
      direccion.Poner(hora, ultima, Procedencia::Calculada);
      ++horas;
    }
    if (horas > 0) AvisarDeCalmas(horas);
    return horas > 0;
  }

  void AvisarDeCalmas(int horas) {
    cuaderno_.Aviso({.clase = ClaseNota::HuecoInterpolado,
                     .campo = Campo::DireccionViento,
                     .veces = horas,
                     .texto = std::string(NombreCampo(Campo::DireccionViento)) + ": " +
                              std::to_string(horas) +
                              " horas sin dato y en calma; se deja la última dirección"});
  }

  void AvisarDeInterpolados(Campo campo, const std::vector<TramoSinDato> &tramos) {
    int horas = 0;
    for (const TramoSinDato &tramo : tramos) horas += static_cast<int>(tramo.horas);
    NotaLectura nota =
        Nota(ClaseNota::HuecoInterpolado, campo, tramos.front().primera, tramos.back().Ultima());
    nota.veces = horas;
    nota.texto = std::string(NombreCampo(campo)) + ": " + std::to_string(horas) +
                 (horas == 1 ? " hora sin dato, interpolada (" : " horas sin dato, interpoladas (") +
                 TextoLineas(nota.linea, nota.ultimaLinea) + ")";
    cuaderno_.Aviso(std::move(nota));
  }

  void AtenderRequisito(const Requisito &requisito) {
    const std::vector<TramoSinDato> tramos = TramosDe(requisito);
    if (tramos.empty()) return;
    if (tramos.front().horas == HORAS || NoTraeNinguno(requisito)) return AtenderCampoAusente(requisito);
    if (largos_ == HuecosLargos::Rechazar) {
      for (const TramoSinDato &tramo : tramos) RechazarHueco(requisito, tramo);
      return;
    }
    for (const Campo campo : requisito.campos) RellenarCampo(campo, tramos);
    for (const TramoSinDato &tramo : TramosDe(requisito)) RechazarHueco(requisito, tramo);
  }

  /// Una dirección que no está en ninguna hora falta entera aunque haya horas de calma que no la pidan.
  [[nodiscard]] bool NoTraeNinguno(const Requisito &requisito) const {
    return std::none_of(requisito.campos.begin(), requisito.campos.end(),
                        [this](Campo campo) { return HayAlguno(anio_, campo); });
  }

  /// Sin viento en todo el fichero se puede seguir, en calma, si quien importa acepta inventar.
  void AtenderCampoAusente(const Requisito &requisito) {
    const Campo campo = requisito.campos.front();
    const bool esViento = campo == Campo::VelocidadViento || campo == Campo::DireccionViento;
    NotaLectura nota{.clase = ClaseNota::CampoAusente,
                     .campo = campo,
                     .veces = HORAS_DEL_ANIO,
                     .texto = "el fichero no trae " + std::string(requisito.nombre) + " en ninguna hora"};
    if (!esViento || largos_ == HuecosLargos::Rechazar) {
      nota.texto +=
          esViento ? "; puede aceptarse rellenar lo que falta, y entonces vale 0" : "; sin ello no hay año";
      return cuaderno_.Error(std::move(nota));
    }
    for (std::size_t hora = 0; hora < HORAS; ++hora) anio_[campo].Poner(hora, 0.0, Procedencia::Inventada);
    nota.texto += "; se ha puesto 0";
    cuaderno_.Aviso(std::move(nota));
  }

  void RellenarCampo(Campo campo, const std::vector<TramoSinDato> &tramos) {
    SerieCanonica &serie = anio_[campo];
    for (const TramoSinDato &tramo : tramos) {
      int horas = 0;
      for (std::size_t k = 0; k < tramo.horas; ++k) {
        const std::size_t hora = tramo.Hora(k);
        if (!std::isnan(serie.valores[hora])) continue;
        const std::optional<double> valor = DeDiasVecinos(serie, campo, hora);
        if (!valor) continue;
        serie.Poner(hora, *valor, Procedencia::Inventada);
        ++horas;
      }
      if (horas > 0) AvisarDeRelleno(campo, tramo, horas);
    }
  }

  void AvisarDeRelleno(Campo campo, const TramoSinDato &tramo, int horas) {
    NotaLectura nota = Nota(ClaseNota::HuecoRellenado, campo, tramo.primera, tramo.Ultima());
    nota.veces = horas;
    nota.texto = std::string(NombreCampo(campo)) + ": " + std::to_string(horas) +
                 " horas seguidas sin dato, rellenadas de los días vecinos (" +
                 TextoLineas(nota.linea, nota.ultimaLinea) + ")";
    cuaderno_.Aviso(std::move(nota));
  }

  /// Si faltan las líneas enteras, un solo error vale para todos los requisitos.
  void RechazarHueco(const Requisito &requisito, const TramoSinDato &tramo) {
    bool sinLineas = true;
    for (std::size_t k = 0; k < tramo.horas; ++k) sinLineas = sinLineas && anio_.lineas[tramo.Hora(k)] == 0;
    if (sinLineas && !sinRegistro_.insert(tramo.primera).second) return;
    NotaLectura nota = Nota(ClaseNota::HuecoLargo, std::nullopt, tramo.primera, tramo.Ultima());
    if (!sinLineas) nota.campo = requisito.campos.front();
    nota.veces = static_cast<int>(tramo.horas);
    nota.texto = TextoLineas(nota.linea, nota.ultimaLinea) +
                 (sinLineas || requisito.minimo > 1 ? ": faltan " : ": falta ") +
                 (sinLineas ? "los registros" : std::string(requisito.nombre)) + " de " +
                 std::to_string(tramo.horas) + " horas seguidas, desde el " +
                 TextoHora(static_cast<int>(tramo.primera)) + "; se interpolan " +
                 std::to_string(HORAS_INTERPOLABLES) + " como mucho" +
                 (largos_ == HuecosLargos::Rechazar ? ", y puede aceptarse rellenar de los días vecinos"
                                                    : ", y los días vecinos tampoco lo tienen");
    cuaderno_.Error(std::move(nota));
  }

  void AvisarDeAusentes(Campo campo) {
    if (RequisitoDe(campo) != nullptr && !EsRadiacionSolar(campo) && !SuplidoPorHumedad(campo)) return;
    if (!HayAlguno(anio_, campo)) return;
    // De una hora sin línea ya se dijo que falta entera.
    const bool seRellena = largos_ == HuecosLargos::RellenarVecinos;
    const std::vector<double> &valores = anio_[campo].valores;
    const std::vector<TramoSinDato> tramos = Tramos([&](std::size_t hora) {
      return std::isnan(valores[hora]) && (seRellena || anio_.lineas[hora] != 0);
    });
    if (tramos.empty()) return;
    NotaLectura nota =
        Nota(ClaseNota::HuecoSinImportancia, campo, tramos.front().primera, tramos.back().Ultima());
    nota.veces = 0;
    for (const TramoSinDato &tramo : tramos) nota.veces += static_cast<int>(tramo.horas);
    nota.texto = std::string(NombreCampo(campo)) + ": sin dato " + std::to_string(nota.veces) +
                 (nota.veces == 1 ? " hora; " : " horas; ") + QueSeHara(campo) + " (" +
                 TextoLineas(nota.linea, nota.ultimaLinea) + ")";
    cuaderno_.Aviso(std::move(nota));
  }

  [[nodiscard]] static const char *QueSeHara(Campo campo) {
    const bool esNubosidad = campo == Campo::NubosidadTotal || campo == Campo::NubosidadOpaca;
    return esNubosidad ? "sólo se usa donde falta la infrarroja" : "se calculará de los demás campos";
  }

  [[nodiscard]] static bool SuplidoPorHumedad(Campo campo) {
    return campo == Campo::HumedadRelativa || campo == Campo::TemperaturaRocio ||
           campo == Campo::HumedadAbsoluta;
  }

  /// Nota de las horas @p primera a @p ultima: sus líneas o, donde no las hay, las que las rodean.
  [[nodiscard]] NotaLectura Nota(ClaseNota clase, std::optional<Campo> campo, std::size_t primera,
                                 std::size_t ultima) const {
    NotaLectura nota{.clase = clase, .campo = campo};
    std::size_t desde = primera;
    while (anio_.lineas[desde] == 0) desde = (desde + HORAS - 1) % HORAS;
    std::size_t hasta = ultima;
    while (anio_.lineas[hasta] == 0) hasta = (hasta + 1) % HORAS;
    nota.linea = anio_.lineas[desde];
    nota.ultimaLinea = anio_.lineas[hasta];
    return nota;
  }

  AnioCanonico &anio_;
  HuecosLargos largos_;
  Cuaderno &cuaderno_;
  std::set<std::size_t> sinRegistro_;
};

} // namespace

void TaparHuecos(AnioCanonico &anio, HuecosLargos largos, Cuaderno &cuaderno) {
  Tapador(anio, largos, cuaderno).Tapar();
}

} // namespace tesmo
