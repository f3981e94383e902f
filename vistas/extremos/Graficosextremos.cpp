#include "vistas/extremos/Graficosextremos.h"

#include "meteo/Magnitudes.h"
#include "vistas/comun/Textoqt.h"
#include "vistas/extremos/Paginaresultadosextremos.h"
#include "vistas/extremos/Seriesextremos.h"
#include "vistas/grafico/Ejescompartidos.h"
#include "vistas/grafico/Grafico.h"

#include <vector>

namespace tesmo {

namespace {

constexpr double ANCHO_PLUMA = 2.0;

QString Leyenda(const FichaExtremos &ficha) {
  return Texto(ficha.titulo) + QStringLiteral(" (") + Texto(UnidadDeRotulo(ficha.rotulo)) +
         QStringLiteral(")");
}

void AnadirSeries(Grafico &grafico, const extremos::DiaDeProyecto &dia) {
  grafico.Vaciar();
  for (const FichaExtremos &ficha : SERIES_EXTREMOS) {
    grafico.AnadirSerie({Texto(ficha.titulo), Texto(ficha.rotulo), Texto(ficha.patron), Color(ficha.color),
                         ANCHO_PLUMA, ficha.lado, false, Leyenda(ficha)},
                        dia.*ficha.valores);
  }
}

} // namespace

GraficosExtremos::GraficosExtremos(PaginaResultadosExtremos &pagina)
    : pagina_(pagina), graficos_{&pagina.DameCalefaccion(), &pagina.DameRefrigeracion()} {}

void GraficosExtremos::Vaciar() {
  for (Grafico *grafico : graficos_) {
    grafico->Vaciar();
    grafico->Redibujar();
  }
  pagina_.VaciarLista();
}

void GraficosExtremos::Rehacer(const extremos::ResultadoDias &resultado) {
  AnadirSeries(*graficos_[0], resultado.calefaccion.dia);
  AnadirSeries(*graficos_[1], resultado.refrigeracion.dia);
  pagina_.VaciarLista();
  for (const FichaExtremos &ficha : SERIES_EXTREMOS)
    pagina_.AnadirElemento(Texto(ficha.elemento), Color(ficha.color));
  pagina_.Marcar(0);
  EnsenarMarcadas(resultado);
  for (Grafico *grafico : graficos_) grafico->VerTodo();
}

void GraficosExtremos::EnsenarMarcadas(const extremos::ResultadoDias &resultado) {
  for (Grafico *grafico : graficos_)
    for (int i = 0; i < grafico->NumeroSeries(); ++i) grafico->PonVisible(i, pagina_.Marcado(i));
  FijarEjes(resultado);
  for (Grafico *grafico : graficos_) grafico->Redibujar();
}

void GraficosExtremos::FijarEjes(const extremos::ResultadoDias &resultado) {
  std::vector<SerieCompartida> series;
  for (std::size_t i = 0; i < SERIES_EXTREMOS.size(); ++i) {
    if (!pagina_.Marcado(static_cast<int>(i))) continue;
    const FichaExtremos &ficha = SERIES_EXTREMOS[i];
    series.push_back({resultado.calefaccion.dia.*ficha.valores, ficha.lado});
    series.push_back({resultado.refrigeracion.dia.*ficha.valores, ficha.lado});
  }
  const EjesCompartidos ejes = RepartirEjes(series);
  for (Grafico *grafico : graficos_) {
    grafico->FijarLimites(LadoEje::Izquierdo, ejes.izquierdo);
    grafico->FijarLimites(LadoEje::Derecho, ejes.derecho);
  }
}

} // namespace tesmo
