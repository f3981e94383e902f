#pragma once

#include "core/Mensajes.h"

namespace tesmo {

/// Enseña cada mensaje en una caja modal sobre la ventana activa y vuelve cuando la persona la cierra. Bajo
/// el cursor de ocupado la caja lleva la flecha.
class PresentadorVentanas : public PresentadorMensajes {
public:
  void Presentar(const std::string &texto, const std::string &titulo, Icono icono) override;
};

} // namespace tesmo
