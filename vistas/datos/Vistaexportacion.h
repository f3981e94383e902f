#pragma once

#include <QObject>
#include <QString>

#include <functional>

namespace tesmo {

class PaginaExportacion;
class PanelSeleccion;
class Programa;
class Seleccion;

/// La pestaña "Archivos horarios": edita la lista de variables y escribe con ellas el fichero horario del
/// período.
class VistaExportacion {
public:
  /// Lo que pide a su ventana de trabajo.
  struct Ventana {
    /// Pasa la localidad por el camino de carga; si no hay datos, las demás pestañas dejan de enseñarlos.
    std::function<bool()> cargar;
    std::function<void(const QString &)> decir; ///< la línea de estado
  };

  /// Todo lo que recibe le sobrevive.
  VistaExportacion(PaginaExportacion &pagina, PanelSeleccion &panel, Programa &programa, Seleccion &seleccion,
                   Ventana ventana);
  VistaExportacion(const VistaExportacion &) = delete;
  VistaExportacion &operator=(const VistaExportacion &) = delete;

  void casillaClick(const QString &rotulo, bool puesta);
  void btnSubirClick();
  void btnBajarClick();
  /// Pregunta el nombre del fichero (diálogo "sdGuardarRes") y lo escribe.
  void btnEscribirClick();
  /// Carga la localidad y escribe su fichero. Sin localidad, sin fichero climático, con una casilla de la
  /// superficie vacía o si no se puede crear se enseña el mensaje y devuelve falso. Una lista vacía escribe
  /// sólo las fechas.
  bool Escribir(const QString &ruta);

private:
  [[nodiscard]] QString NombrePropuesto() const;
  void DecirEscrito(const QString &ruta, std::size_t variables) const;

  PaginaExportacion &pagina_;
  PanelSeleccion &panel_;
  Programa &programa_;
  Seleccion &seleccion_;
  Ventana ventana_;
  QObject avisos_; ///< corta con su muerte las señales que llegan aquí
};

} // namespace tesmo
