#pragma once

class QApplication;
class QCoreApplication;

namespace tesmo {

/// Título de la aplicación en las ventanas.
inline constexpr const char *TITULO = "Tesmo-A";
/// Versión de la aplicación.
inline constexpr const char *VERSION = TESMO_VERSION;

/// Pone en español los textos propios de Qt (botones de las cajas estándar, ayuda y errores de la orden); el
/// traductor muere con @p aplicacion. Sin el catálogo instalado no hace nada.
void PonTextosDeQt(QCoreApplication &aplicacion);

/// Lo que toda ventana necesita antes de abrirse: título, español en números, fechas y botones de las cajas
/// estándar, y el separador decimal de la región del sistema (o el de TESMO_DECIMAL).
void PrepararAplicacion(QApplication &aplicacion);

} // namespace tesmo
