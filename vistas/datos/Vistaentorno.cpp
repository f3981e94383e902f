#include "vistas/datos/Vistaentorno.h"

#include "app/Carga.h"
#include "app/Programa.h"
#include "app/Seleccion.h"
#include "meteo/Leermet.h"
#include "vistas/colores/Configuracion.h"
#include "vistas/comun/Cursorocupado.h"
#include "vistas/comun/Panelseleccion.h"
#include "vistas/comun/Textoqt.h"
#include "vistas/datos/Paginaentorno.h"
#include "vistas/grafico/Escalahoras.h"
#include "vistas/grafico/Grafico.h"
#include "vistas/grafico/Trazosdistintos.h"

#include <QAction>
#include <QCheckBox>
#include <QMenu>

#include <algorithm>
#include <map>
#include <memory>
#include <vector>

namespace tesmo {

namespace {

constexpr int NUMERO_SERIES = static_cast<int>(NUMERO_MAGNITUDES_VISOR);
constexpr double ANCHO_PLUMA = 2.0;
/// Cifras con que se lee una magnitud que no se exporta y por eso no tiene patrón.
constexpr std::string_view PATRON_DE_LECTURA = "0.00";

const FichaMagnitud &FichaDe(int i) { return MAGNITUDES[static_cast<std::size_t>(i)]; }

} // namespace

Vistaentorno::Vistaentorno(PaginaEntorno &pagina, PanelSeleccion &panel, Programa &programa,
                           Seleccion &seleccion, Configuracion &colores)
    : pagina_(pagina), panel_(panel), programa_(programa), seleccion_(seleccion), colores_(colores),
      grafico_(pagina.DameGrafico()) {
  grafico_.PonEscala(std::make_shared<EscalaHoras>(seleccion.DamePeriodo()));
  colores.leer();
  aplicarColores();
  ponPeriodo();
  QObject::connect(&pagina_, &PaginaEntorno::menuPreparado, &avisos_,
                   [this](QMenu *menu, int i) { AnadirOrdenesDeEje(*menu, i); });
  QObject::connect(&pagina_, &PaginaEntorno::trazosCambiados, &avisos_, [this] { actualizarVisibles(); });
  QObject::connect(&grafico_, &Grafico::menuPreparado, &avisos_,
                   [this](QMenu *menu, int i) { AnadirOrdenesDeEje(*menu, i); });
}

void Vistaentorno::leerPeriodo() { seleccion_.PonPeriodo(panel_.LeerPeriodo()); }

void Vistaentorno::ponPeriodo() { panel_.PonPeriodo(seleccion_.DamePeriodo()); }

bool Vistaentorno::visualizar() {
  const CursorOcupado ocupado;
  leerPeriodo();
  if (PrepararDatos(programa_, seleccion_) != ResultadoCarga::Cargada) return false;
  ConstruirSeries();
  if (repartoPendiente_) EjesPorUnidad();
  actualizarVisibles();
  return true;
}

void Vistaentorno::ConstruirSeries() {
  const LeerMet &datos = *programa_.DameLeerMet();
  std::vector<float> valores;
  grafico_.Vaciar();
  grafico_.PonEscala(std::make_shared<EscalaHoras>(seleccion_.DamePeriodo()));
  for (int i = 0; i < NUMERO_SERIES; ++i) {
    const FichaMagnitud &ficha = FichaDe(i);
    // Una serie sin derivar no copia nada: sin esto llevaría los valores de la anterior.
    valores.assign(static_cast<std::size_t>(datos.HorasDelPeriodo()), 0.0F);
    datos.DameSerie(ficha.rotulo, valores.data());
    grafico_.AnadirSerie({Texto(ficha.claveSerie), Texto(ficha.rotulo),
                          Texto(ficha.patron.empty() ? PATRON_DE_LECTURA : ficha.patron),
                          Color(color_[static_cast<std::size_t>(i)]), ANCHO_PLUMA, Eje(i), false},
                         valores);
  }
}

void Vistaentorno::actualizarVisibles() {
  int puesto = 0; // el trazo va por orden entre las visibles: así las primeras son las más distintas
  for (int i = 0; i < grafico_.NumeroSeries(); ++i) {
    const bool visible = pagina_.Casilla(i).isChecked();
    grafico_.PonVisible(i, visible);
    grafico_.PonTrazo(i, visible && pagina_.TrazosDistintos() ? TrazoDistinto(puesto++) : QList<qreal>());
  }
  grafico_.Redibujar();
}

void Vistaentorno::cambioPeriodo() {
  leerPeriodo();
  ponPeriodo();
  Vaciar();
}

void Vistaentorno::aplicarColores() {
  for (int i = 0; i < NUMERO_SERIES; ++i) {
    std::uint32_t &color = color_[static_cast<std::size_t>(i)];
    color = colores_.dameColor(i, FichaDe(i).color);
    pagina_.PonColor(i, Color(color));
    if (i < grafico_.NumeroSeries()) grafico_.PonColor(i, Color(color));
  }
  grafico_.Redibujar();
}

void Vistaentorno::Vaciar() {
  grafico_.Vaciar();
  grafico_.PonEscala(std::make_shared<EscalaHoras>(seleccion_.DamePeriodo()));
  grafico_.Redibujar();
}

bool Vistaentorno::HaySeries() const { return grafico_.NumeroSeries() > 0; }

void Vistaentorno::PonEje(int i, LadoEje lado) {
  repartoPendiente_ = false;
  ejes_.at(static_cast<std::size_t>(i)) = lado;
  AplicarEjes();
}

void Vistaentorno::AplicarEjes() {
  for (int i = 0; i < grafico_.NumeroSeries(); ++i) grafico_.PonLado(i, Eje(i));
  grafico_.Redibujar();
}

void Vistaentorno::EjesPorUnidad() {
  repartoPendiente_ = !HaySeries();
  if (repartoPendiente_) return;
  std::vector<SerieReparto> series;
  for (int i = 0; i < NUMERO_SERIES; ++i) {
    if (!pagina_.Casilla(i).isChecked()) continue;
    series.push_back({Unidad(FichaDe(i).magnitud), grafico_.MayorValor(i)});
  }
  const std::vector<LadoEje> lados = RepartirPorUnidad(series);
  std::map<std::string_view, LadoEje> ladoDeUnidad;
  for (std::size_t k = 0; k < series.size(); ++k) ladoDeUnidad[series[k].unidad] = lados[k];
  for (int i = 0; i < NUMERO_SERIES; ++i) {
    const auto lado = ladoDeUnidad.find(Unidad(FichaDe(i).magnitud));
    if (lado != ladoDeUnidad.end()) ejes_[static_cast<std::size_t>(i)] = lado->second;
  }
  AplicarEjes();
}

void Vistaentorno::AnadirOrdenesDeEje(QMenu &menu, int i) {
  if (!menu.isEmpty()) menu.addSeparator();
  if (i >= 0) {
    QAction *derecho = menu.addAction(QObject::tr("En el eje &derecho"));
    derecho->setObjectName(QStringLiteral("acEjeDerecho"));
    derecho->setCheckable(true);
    derecho->setChecked(Eje(i) == LadoEje::Derecho);
    QObject::connect(derecho, &QAction::toggled, &avisos_,
                     [this, i](bool puesto) { PonEje(i, puesto ? LadoEje::Derecho : LadoEje::Izquierdo); });
  }
  QAction *porUnidad = menu.addAction(QObject::tr("&Ejes por unidad"));
  porUnidad->setObjectName(QStringLiteral("acEjesPorUnidad"));
  QObject::connect(porUnidad, &QAction::triggered, &avisos_, [this] { EjesPorUnidad(); });
}

} // namespace tesmo
