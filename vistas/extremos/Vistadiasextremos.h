#pragma once

#include "vistas/extremos/Ajustesextremos.h"
#include "vistas/extremos/Graficosextremos.h"

#include <QString>

#include <functional>

namespace tesmo {

class DiasExtremos;
class PaginaDiasExtremos;
class PaginaResultadosExtremos;
class PanelSeleccion;
class Programa;
class Seleccion;

/// Vista de los días de proyecto: ajustes, cálculo, gráficos y ficheros. No calcula ni guarda resultados: los
/// pide al DiasExtremos del programa.
class VistaDiasExtremos {
public:
  /// Lo que la vista pide a su ventana.
  struct Ventana {
    std::function<void(bool)>
        ensenarResultados; ///< la pestaña de resultados: que se vea y esté delante, o no
    std::function<void(const QString &)> estado; ///< la línea de estado
  };

  /// Todo lo que recibe le sobrevive.
  VistaDiasExtremos(PaginaDiasExtremos &ajustes, PaginaResultadosExtremos &resultados, PanelSeleccion &panel,
                    Programa &programa, const Seleccion &seleccion, Ventana ventana);

  /// De los ajustes del objeto a los controles, con cada rótulo en el color de su estado, y al revés.
  void MostrarAjustes();
  void TomarAjustes();

  /// Cambió la provincia o la localidad de la ventana: lo calculado era de otra y deja de verse; los ajustes
  /// tecleados se conservan, y del percentil que no valga vuelve el anterior, sin decir nada.
  void cbLocalidadesChange();
  void btnCalDiaExtClick();
  /// Enseña en los dos gráficos las magnitudes marcadas, con la misma escala.
  void CheckListBox1ClickCheck();
  /// Abre los dos ficheros en un editor, existan o no.
  void Button1Click();

private:
  [[nodiscard]] bool HayTemporadas();
  void RehacerGraficos();
  void DecirEscritos(bool escritos) const;
  void PonLatitud();
  void PonNombres(DiasExtremos &motor) const;

  PaginaDiasExtremos &ajustes_;
  PaginaResultadosExtremos &resultados_;
  PanelSeleccion &panel_;
  Programa &programa_;
  const Seleccion &seleccion_;
  Ventana ventana_;
  AjustesExtremos tecleados_;
  GraficosExtremos graficos_;
};

} // namespace tesmo
