#include "app/Disposicionventanas.h"

#include <QMdiArea>
#include <QMdiSubWindow>

#include <algorithm>

namespace tesmo {

namespace {

/// Lo menor a que se intenta dejar una ventana de trabajo en un mosaico [px].
constexpr QSize MINIMO_EN_MOSAICO(480, 320);

int DivisionPorExceso(int dividendo, int divisor) { return (dividendo + divisor - 1) / divisor; }

/// Principio del trozo @p i de @p partes en que se divide @p total; el último acaba en @p total.
int Corte(int total, int i, int partes) {
  return static_cast<int>(static_cast<long long>(total) * i / partes);
}

std::vector<QMdiSubWindow *> Ventanas(const QMdiArea &area, bool minimizadas) {
  std::vector<QMdiSubWindow *> ventanas;
  for (QMdiSubWindow *ventana : area.subWindowList()) {
    if (!ventana->isHidden() && ventana->isMinimized() == minimizadas) ventanas.push_back(ventana);
  }
  return ventanas;
}

} // namespace

std::vector<QRect> RepartirEnMosaico(const QSize &area, int ventanas, const QSize &minimo, Mosaico mosaico) {
  std::vector<QRect> sitios;
  if (ventanas <= 0) return sitios;
  const bool horizontal = mosaico == Mosaico::Horizontal;
  const int largo = horizontal ? area.height() : area.width();
  const int corto = std::max(1, horizontal ? minimo.height() : minimo.width());
  const int porTira = std::clamp(largo / corto, 1, ventanas);
  const int tiras = DivisionPorExceso(ventanas, porTira);
  for (int i = 0; i < ventanas; ++i) {
    const int tira = i * tiras / ventanas;
    const int primera = DivisionPorExceso(tira * ventanas, tiras);
    const int enTira = DivisionPorExceso((tira + 1) * ventanas, tiras) - primera;
    const int ancho = horizontal ? area.width() : area.height();
    const QPoint inicio(Corte(ancho, tira, tiras), Corte(largo, i - primera, enTira));
    const QPoint fin(Corte(ancho, tira + 1, tiras), Corte(largo, i - primera + 1, enTira));
    const QRect sitio(inicio, QSize(fin.x() - inicio.x(), fin.y() - inicio.y()));
    sitios.push_back(horizontal ? sitio : QRect(sitio.topLeft().transposed(), sitio.size().transposed()));
  }
  return sitios;
}

std::vector<QPoint> AlinearIconos(const QSize &area, int iconos, const QSize &icono) {
  std::vector<QPoint> esquinas;
  esquinas.reserve(static_cast<std::size_t>(std::max(0, iconos)));
  const int porFila = std::max(1, area.width() / std::max(1, icono.width()));
  for (int i = 0; i < iconos; ++i) {
    esquinas.emplace_back(i % porFila * icono.width(), area.height() - (i / porFila + 1) * icono.height());
  }
  return esquinas;
}

void PonerEnMosaico(QMdiArea &area, Mosaico mosaico) {
  const std::vector<QMdiSubWindow *> ventanas = Ventanas(area, false);
  const std::vector<QRect> sitios = RepartirEnMosaico(
      area.viewport()->size(), static_cast<int>(ventanas.size()), MINIMO_EN_MOSAICO, mosaico);
  for (std::size_t i = 0; i < ventanas.size(); ++i) {
    ventanas[i]->showNormal();
    ventanas[i]->setGeometry(sitios[i]);
  }
}

void MinimizarTodo(QMdiArea &area) {
  // Si una está maximizada, la siguiente en activarse se maximizaría en su lugar.
  const std::vector<QMdiSubWindow *> ventanas = Ventanas(area, false);
  for (QMdiSubWindow *ventana : ventanas) ventana->showNormal();
  for (QMdiSubWindow *ventana : ventanas) ventana->showMinimized();
}

void OrganizarIconos(QMdiArea &area) {
  const std::vector<QMdiSubWindow *> ventanas = Ventanas(area, true);
  if (ventanas.empty()) return;
  const std::vector<QPoint> esquinas =
      AlinearIconos(area.viewport()->size(), static_cast<int>(ventanas.size()), ventanas.front()->size());
  for (std::size_t i = 0; i < ventanas.size(); ++i) ventanas[i]->move(esquinas[i]);
}

} // namespace tesmo
