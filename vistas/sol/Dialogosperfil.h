#pragma once

#include "solar/Formatoshorizonte.h"

#include <functional>
#include <string>

class QObject;
class QWidget;

namespace tesmo {

/// Los diálogos que preguntan por el fichero de un perfil de horizonte. Empiezan en el directorio de perfiles
/// y dejan el del programa como directorio de trabajo. Llaman a su función mientras viva @p contexto; un
/// nombre vacío no hace nada.

void PedirAbrirPerfil(QWidget &padre, const QObject &contexto,
                      std::function<void(const std::string &ruta)> abrir);

/// El formato es el nativo, salvo que se elija el completo o lo diga la extensión del nombre.
void PedirGuardarPerfil(QWidget &padre, const QObject &contexto,
                        std::function<void(const std::string &ruta, FormatoHorizonte formato)> guardar);

} // namespace tesmo
