#include "vistas/sol/Contenidosolar.h"

namespace tesmo {

void PonCurvas(ContenidoSolar &contenido, const CurvasDelDia &curvas) {
  contenido.dibujo = DibujoSolar::Dia;
  contenido.titulo = curvas.titulo;
  contenido.dia = curvas.curva;
  contenido.horas = curvas.horas;
}

void PonCurvas(ContenidoSolar &contenido, const CurvasDeLosMeses &curvas) {
  contenido.dibujo = DibujoSolar::Meses;
  contenido.titulo = curvas.titulo;
  contenido.meses = curvas.meses;
  for (std::size_t h = 0; h < contenido.horas.size(); ++h) {
    contenido.horas[h].clear();
    for (const PuntoDeMes &punto : curvas.horas[h]) contenido.horas[h].push_back(punto.punto);
  }
}

} // namespace tesmo
