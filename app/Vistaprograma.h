#pragma once

#include "app/Programa.h"
#include "app/Seleccion.h"
#include "core/Observador.h"

#include <QPointer>

#include <memory>
#include <string>

namespace tesmo {

class ObjetoCiudad;
class TforProgramas;
class VistaDiasExtremos;
class Vistaentorno;
class VistaEstadisticas;
class VistaExportacion;
class Vistaposicionsolar;
class Vistapsicrometrico;

/// Controlador de una ventana de trabajo: tiene una copia de su programa, la selección, el formulario y las
/// vistas de las pestañas. Al morir destruye las vistas, el formulario y los motores, por este orden.
class VistaPrograma : public Observador, public Programa {
public:
  /// @p nombre es el título mientras no hay localidad elegida.
  VistaPrograma(const Programa &programa, std::string nombre);
  VistaPrograma(const VistaPrograma &) = delete;
  VistaPrograma &operator=(const VistaPrograma &) = delete;
  ~VistaPrograma() override;

  /// Rellena los selectores y enseña el formulario.
  void Abrir();
  [[nodiscard]] TforProgramas &DameFormulario() const { return *formulario_; }
  [[nodiscard]] const Seleccion &DameSeleccion() const { return seleccion_; }
  [[nodiscard]] Vistaposicionsolar &DameVistaPosicionSolar() const { return *vistaPosicionSolar_; }
  /// Sólo si el programa tiene carta.
  [[nodiscard]] Vistapsicrometrico &DameVistaPsicrometrico() const { return *vistaPsicrometrico_; }
  [[nodiscard]] VistaExportacion &DameVistaExportacion() const { return *vistaExportacion_; }
  /// "Localidad-Provincia", o el nombre de la ventana si no hay localidad.
  [[nodiscard]] std::string Titulo() const;

  /// Toma la provincia del panel: lista sus localidades, olvida la cargada y vacía el gráfico.
  void CambiarProvincia();
  /// Toma la localidad del panel y la carga; si había series dibujadas, las dibuja con los datos nuevos.
  void CambiarLocalidad();
  /// Toma el período del panel y quita de la vista lo que era de otro; se dibuja cuando se pida.
  void CambiarPeriodo();
  /// Lee otra vez el fichero de la localidad con el período del panel y dibuja.
  void Actualizar();
  /// Dibuja las magnitudes marcadas, derivando lo que haga falta, y dice cómo se maneja el gráfico.
  void Visualizar();
  /// Enseña u oculta series según sus casillas, sin leer el fichero.
  void ActualizarVisibles();
  /// Reparte las series visibles entre los dos ejes por su unidad; sin series, las primeras que se dibujen.
  void EjesPorUnidad();
  // Los botones de los días extremos.
  void CalcularDiasExtremos();
  void ElegirMagnitudesExtremas();
  void VisualizarFicherosExtremos();
  /// La altitud de la carta cambió y con ella la presión: redibuja las series que haya.
  void CambiarAltitud();
  /// Toma los colores de la tabla compartida.
  void AplicarColores();
  /// Pone al día la vista de la posición solar y escribe el fichero horario.
  void EscribirArchivoHorario();
  /// Pone Titulo() en la ventana.
  void PonTitulo();

  /// Un motor cambió: el formulario se repinta.
  void ObjetoCambiado(const ObjetoBase &objeto) override;

private:
  std::unique_ptr<VistaDiasExtremos> CrearVistaDiasExtremos();
  std::unique_ptr<Vistaposicionsolar> CrearVistaPosicionSolar();
  /// Nula, con su página apagada, si el programa no tiene carta.
  std::unique_ptr<Vistapsicrometrico> CrearVistaPsicrometrico();
  void RellenarLocalidades();
  /// La base tiene un registro nuevo o cambiado: los selectores lo enseñan sin perder lo elegido.
  void AltaDeLocalidad(const ObjetoCiudad &registro);
  void OfrecerImportar() const;
  /// El camino de carga; si el fichero no se puede abrir, las pestañas quedan sin lo que enseñaban.
  bool LeerDatos();
  /// LeerDatos; de lo leído sólo se dice si no está entero.
  bool LeerOtraVez();
  /// LeerDatos, la carta limpia y la línea de estado con lo leído.
  bool Cargar();
  void DecirCarga() const;
  void Decir(const QString &texto) const;

  std::string nombre_;
  std::shared_ptr<void> avisoBase_; ///< mientras vive, la base avisa de las altas
  Seleccion seleccion_;
  QPointer<TforProgramas> formulario_; ///< nulo si su ventana murió antes
  std::unique_ptr<VistaDiasExtremos> vistaDiasExtremos_;
  std::unique_ptr<Vistaposicionsolar> vistaPosicionSolar_;
  std::unique_ptr<Vistaentorno> vistaEntorno_;
  std::unique_ptr<Vistapsicrometrico> vistaPsicrometrico_;
  std::unique_ptr<VistaExportacion> vistaExportacion_;
  std::unique_ptr<VistaEstadisticas> vistaEstadisticas_;
};

} // namespace tesmo
