#pragma once

#include "solar/Edicionhorizonte.h"
#include "solar/Formatoshorizonte.h"
#include "vistas/sol/Contenidosolar.h"

#include <QObject>
#include <QPointer>

#include <functional>
#include <string>

namespace tesmo {

class GraficoSolar;
class PaginaPosicionSolar;
class PanelSeleccion;
class PosicionSolar;
class Programa;
class Seleccion;
struct SitioRaton;

/// La posición del sol de una ventana de trabajo: un momento, el camino de un día o el de los doce meses en
/// la latitud de la localidad, y el horizonte, que se dibuja con el ratón sobre la misma carta. La superficie
/// que se teclea en la página es la de la selección de la ventana.
class Vistaposicionsolar {
public:
  /// @param estado dice algo sin interrumpir. Todo lo que recibe le sobrevive.
  Vistaposicionsolar(PaginaPosicionSolar &pagina, PanelSeleccion &panel, Programa &programa,
                     Seleccion &seleccion, std::function<void(const QString &)> estado);
  ~Vistaposicionsolar();
  Vistaposicionsolar(const Vistaposicionsolar &) = delete;
  Vistaposicionsolar &operator=(const Vistaposicionsolar &) = delete;

  /// Entrega lo que está a medio editar y cuenta en la irradiancia: la superficie y, si se ha editado, el
  /// horizonte. La fecha y la hora son sólo de los botones de la página: la hora del objeto, que puede ser
  /// negativa, no se cambia por lo que enseña su casilla. Se llama sola antes de cargar o derivar.
  void actualizar();
  /// La latitud ha cambiado: se rehace lo que se esté viendo y se vacía el momento, sin decir nada.
  void localidadCambiada();

  void btnMomentoClick();
  void btnDiaClick();
  void btnMesesClick();
  void btnFicheroClick();
  void btnAbrirPerfilClick();
  void btnGuardarPerfilClick();
  /// Lee un perfil; el que viene de otro programa se enseña antes. Si no se puede leer se dice y el que había
  /// queda.
  void AbrirPerfil(const std::string &ruta);
  void GuardarPerfil(const std::string &ruta, FormatoHorizonte formato);
  [[nodiscard]] bool GuardarImagen(const QString &ruta) const;

  [[nodiscard]] const ContenidoSolar &Contenido() const { return contenido_; }
  [[nodiscard]] const EdicionHorizonte &Horizonte() const { return horizonte_; }

private:
  /// Lo que las casillas dejaron en el PosicionSolar.
  struct Fecha {
    float latitud;
    int mes;
    int dia;
    float hora;
  };

  void Conectar();
  void ConectarRaton(const GraficoSolar &grafico);
  void PonCasillas();
  void CopiarCasillas();
  void CopiarSuperficie();
  [[nodiscard]] Fecha LeerFecha() const;
  void DibujarDia(const Fecha &fecha);
  void DecirSalidaYPuesta(const Fecha &fecha) const;
  void DibujarMeses(const Fecha &fecha);
  void VaciarMomento();
  void AsegurarCurvaDe(const Fecha &fecha);
  void EnsenarDibujo();
  void Previsualizar(HorizonteLeido leido, const std::string &ruta);
  void EmpezarHorizonte(const SitioRaton &sitio);
  bool Soltar(const SitioRaton &sitio);
  void Editado(bool cambio);
  void RedibujarHorizonte();
  void PonInfluencia();

  PaginaPosicionSolar &pagina_;
  PanelSeleccion &panel_;
  Seleccion &seleccion_;
  PosicionSolar *sol_; ///< nulo si el programa no lo pudo crear
  std::function<void(const QString &)> estado_;
  ContenidoSolar contenido_;
  EdicionHorizonte horizonte_;
  Fecha dibujada_{}; ///< de lo que se está viendo
  QPointer<GraficoSolar> grafico_;
  QObject avisos_; ///< corta con su muerte las señales que llegan aquí
};

} // namespace tesmo
