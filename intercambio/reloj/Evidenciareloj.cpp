#include "intercambio/reloj/Evidenciareloj.h"

#include "intercambio/comun/Perfilmensual.h"
#include "intercambio/reloj/Diasclaros.h"
#include "intercambio/reloj/Muestrasreloj.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tesmo {

namespace {

/// Con menos horas en el año, o en el mes, no se mide.
constexpr std::size_t HORAS_MINIMAS = 50;
constexpr std::size_t HORAS_MINIMAS_DEL_MES = 15;
constexpr std::size_t DIAS_MINIMOS = 10;
constexpr std::size_t DIAS_MINIMOS_DEL_MES = 3;
/// Donde se busca [min]; si lo mejor está en el borde, la etiqueta es de otro huso y se mira el día entero.
constexpr double SEMIANCHO = 90.0;
constexpr double SEMIANCHO_DEL_DIA = 720.0;
constexpr double BORDE = 89.0;

/// El coseno del cenit de las horas de sol.
class EvidenciaDeCoseno : public EvidenciaReloj {
public:
  explicit EvidenciaDeCoseno(std::vector<MuestraReloj> muestras) : muestras_(std::move(muestras)) {}
  [[nodiscard]] int Numero() const override { return static_cast<int>(muestras_.size()); }
  [[nodiscard]] double Mejor() const override {
    const double cerca = BuscarDesfase(muestras_, 0.0, SEMIANCHO);
    return std::fabs(cerca) < BORDE ? cerca : BuscarDesfase(muestras_, 0.0, SEMIANCHO_DEL_DIA);
  }
  [[nodiscard]] double Residuo(double minutos) const override { return ResiduoDeDesfase(muestras_, minutos); }
  [[nodiscard]] std::array<double, 12> PorMes(double centro) const override {
    std::array<double, 12> desfases{};
    for (std::size_t mes = 0; mes < MESES; ++mes) {
      std::vector<MuestraReloj> delMes;
      std::ranges::copy_if(muestras_, std::back_inserter(delMes),
                           [mes](const MuestraReloj &m) { return m.mes == mes; });
      desfases[mes] =
          delMes.size() < HORAS_MINIMAS_DEL_MES ? AUSENTE : BuscarDesfase(delMes, centro, SEMIANCHO);
    }
    return desfases;
  }

private:
  std::vector<MuestraReloj> muestras_;
};

double Mediana(std::vector<double> valores) {
  const auto medio = valores.begin() + static_cast<std::ptrdiff_t>(valores.size() / 2);
  std::nth_element(valores.begin(), medio, valores.end());
  return *medio;
}

/// El mediodía de los días claros.
class EvidenciaDeSimetria : public EvidenciaReloj {
public:
  explicit EvidenciaDeSimetria(std::vector<DiaClaro> dias) : dias_(std::move(dias)) {}
  [[nodiscard]] int Numero() const override { return static_cast<int>(dias_.size()); }
  [[nodiscard]] double Mejor() const override { return Mediana(Desfases(MESES)); }
  [[nodiscard]] double Residuo(double minutos) const override {
    // De la mediana de los desvíos a la desviación típica de una normal.
    constexpr double DE_MEDIANA_A_TIPICA = 1.4826;
    std::vector<double> desvios = Desfases(MESES);
    for (double &desvio : desvios) desvio = std::fabs(desvio - minutos);
    return DE_MEDIANA_A_TIPICA * Mediana(std::move(desvios));
  }
  [[nodiscard]] std::array<double, 12> PorMes(double) const override {
    std::array<double, 12> desfases{};
    for (std::size_t mes = 0; mes < MESES; ++mes) {
      std::vector<double> delMes = Desfases(mes);
      desfases[mes] = delMes.size() < DIAS_MINIMOS_DEL_MES ? AUSENTE : Mediana(std::move(delMes));
    }
    return desfases;
  }

private:
  /// Los de @p mes, o todos con @p mes = MESES.
  [[nodiscard]] std::vector<double> Desfases(std::size_t mes) const {
    std::vector<double> desfases;
    for (const DiaClaro &dia : dias_) {
      if (mes == MESES || dia.mes == mes) desfases.push_back(dia.desfase);
    }
    return desfases;
  }

  std::vector<DiaClaro> dias_;
};

std::unique_ptr<EvidenciaReloj> DeCoseno(std::vector<MuestraReloj> muestras) {
  if (muestras.size() < HORAS_MINIMAS) return nullptr;
  return std::make_unique<EvidenciaDeCoseno>(std::move(muestras));
}

} // namespace

std::unique_ptr<EvidenciaReloj> Evidencia(MetodoReloj metodo, const AnioCanonico &anio,
                                          const RelojFichero &reloj) {
  if (metodo == MetodoReloj::Haz) return DeCoseno(MuestrasDeHaz(anio, reloj));
  if (metodo == MetodoReloj::Cenit) return DeCoseno(MuestrasDeCenit(anio, reloj));
  if (metodo != MetodoReloj::Simetria || !SitioBasta(anio, reloj.tiempo)) return nullptr;
  std::vector<DiaClaro> dias = DiasClaros(anio, reloj);
  if (dias.size() < DIAS_MINIMOS) return nullptr;
  return std::make_unique<EvidenciaDeSimetria>(std::move(dias));
}

} // namespace tesmo
