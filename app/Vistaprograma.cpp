#include "app/Vistaprograma.h"

#include "app/Accion.h"
#include "app/Carga.h"
#include "app/Ventanaprogramas.h"
#include "core/Formato.h"
#include "core/Rutas.h"
#include "intercambio/formatos/Lectura.h"
#include "localidades/Ciudad.h"
#include "meteo/Leermet.h"
#include "psicro/Atmosfera.h"
#include "vistas/carta/Paginapsicrometrico.h"
#include "vistas/carta/Vistapsicrometrico.h"
#include "vistas/colores/Configuracion.h"
#include "vistas/comun/Cursorocupado.h"
#include "vistas/comun/Panelseleccion.h"
#include "vistas/comun/Textoqt.h"
#include "vistas/datos/Paginaentorno.h"
#include "vistas/datos/Paginaestadisticas.h"
#include "vistas/datos/Vistaentorno.h"
#include "vistas/datos/Vistaestadisticas.h"
#include "vistas/datos/Vistaexportacion.h"
#include "vistas/extremos/Paginadiasextremos.h"
#include "vistas/extremos/Paginaresultadosextremos.h"
#include "vistas/extremos/Vistadiasextremos.h"
#include "vistas/sol/Paginaposicionsolar.h"
#include "vistas/sol/Vistaposicionsolar.h"

namespace tesmo {

namespace {

constexpr std::string_view PATRON_ALTITUD = "0.##";

} // namespace

VistaPrograma::VistaPrograma(const Programa &programa, std::string nombre)
    : Programa(programa), nombre_(std::move(nombre)), formulario_(new TforProgramas(*this)),
      vistaDiasExtremos_(CrearVistaDiasExtremos()), vistaPosicionSolar_(CrearVistaPosicionSolar()),
      vistaEntorno_(std::make_unique<Vistaentorno>(formulario_->DamePaginaEntorno(), formulario_->DamePanel(),
                                                   *this, seleccion_, DameTablaDeColores())),
      vistaPsicrometrico_(CrearVistaPsicrometrico()),
      vistaExportacion_(std::make_unique<VistaExportacion>(
          formulario_->DamePaginaExportacion(), formulario_->DamePanel(), *this, seleccion_,
          VistaExportacion::Ventana{[this] { return LeerDatos(); },
                                    [this](const QString &texto) { Decir(texto); }})),
      vistaEstadisticas_(std::make_unique<VistaEstadisticas>(
          formulario_->DamePaginaEstadisticas(), formulario_->DamePanel(), *this, seleccion_,
          [this](const QString &texto) { Decir(texto); })) {
  AsociarVista(this);
}

std::unique_ptr<VistaDiasExtremos> VistaPrograma::CrearVistaDiasExtremos() {
  // El editor puede avisar después de cerrada la ventana.
  const QPointer<TforProgramas> formulario = formulario_;
  return std::make_unique<VistaDiasExtremos>(
      formulario->DamePaginaDiasExtremos(), formulario->DamePaginaResultados(), formulario->DamePanel(),
      *this, seleccion_,
      VistaDiasExtremos::Ventana{[formulario](bool ensenar) {
                                   if (formulario) formulario->EnsenarResultados(ensenar);
                                 },
                                 [formulario](const QString &texto) {
                                   if (formulario) emit formulario->estado(texto);
                                 }});
}

std::unique_ptr<Vistaposicionsolar> VistaPrograma::CrearVistaPosicionSolar() {
  return std::make_unique<Vistaposicionsolar>(formulario_->DamePaginaPosicionSolar(),
                                              formulario_->DamePanel(), *this, seleccion_,
                                              [this](const QString &texto) { Decir(texto); });
}

std::unique_ptr<Vistapsicrometrico> VistaPrograma::CrearVistaPsicrometrico() {
  PaginaPsicrometrico &pagina = formulario_->DamePaginaPsicrometrico();
  if (DamePsicro() == nullptr) { // no hubo memoria para su motor
    pagina.setEnabled(false);
    return nullptr;
  }
  return std::make_unique<Vistapsicrometrico>(
      pagina, formulario_->DamePanel(), *this, seleccion_,
      Vistapsicrometrico::Ventana{[this] { return LeerOtraVez(); }, [this] { CambiarAltitud(); }});
}

VistaPrograma::~VistaPrograma() {
  DesasociarVista();
  vistaDiasExtremos_.reset();
  vistaPosicionSolar_.reset();
  vistaEntorno_.reset();
  vistaPsicrometrico_.reset();
  vistaExportacion_.reset();
  vistaEstadisticas_.reset();
  delete formulario_;
  DestruirMotores();
}

void VistaPrograma::Abrir() {
  std::vector<std::string> provincias;
  DameLocalidades()->ListaDe("Provincias", provincias);
  formulario_->DamePanel().PonProvincias(provincias);
  RellenarLocalidades();
  PonTitulo();
  avisoBase_ =
      DameLocalidades()->AlCambiar([this](const ObjetoCiudad &registro) { AltaDeLocalidad(registro); });
  formulario_->show();
}

void VistaPrograma::AltaDeLocalidad(const ObjetoCiudad &registro) {
  if (!formulario_) return;
  PanelSeleccion &panel = formulario_->DamePanel();
  std::vector<std::string> provincias;
  DameLocalidades()->ListaDe("Provincias", provincias);
  panel.ActualizarProvincias(provincias);
  // La lista estaba vacía, o la provincia elegida se quedó sin localidades.
  if (panel.Provincia() != seleccion_.DameProvincia()) return CambiarProvincia();
  std::vector<std::string> localidades;
  DameLocalidades()->ListaDe("Localidades", panel.Provincia(), localidades);
  panel.ActualizarLocalidades(localidades);
  const bool esLaElegida = seleccion_.HayLocalidad() && registro.localidad == seleccion_.DameLocalidad() &&
                           registro.provincia == seleccion_.DameProvincia();
  const bool seFue = panel.Localidad() != seleccion_.DameLocalidad(); // a otra provincia
  if (seFue || esLaElegida) CambiarLocalidad();                       // si sigue, su fichero es otro
}

/// Un fichero de trece columnas se lee sin rechistar y mal: se ofrece pasarlo a quince. Uno de quince
/// completo no llega aquí, así que no se lee dos veces.
void VistaPrograma::OfrecerImportar() const {
  const std::string fichero = DameLocalidades()->DameTextoDe(seleccion_.DameLocalidad(), "Fichero");
  const std::string ruta = DameConfiguracion().RutaMeteo(fichero);
  if (EsFicheroMetDeTreceColumnas(ruta))
    emit formulario_->importarPedido(Texto(ruta), Texto(seleccion_.DameLocalidad()),
                                     Texto(seleccion_.DameProvincia()));
}

void VistaPrograma::RellenarLocalidades() {
  PanelSeleccion &panel = formulario_->DamePanel();
  std::vector<std::string> localidades;
  DameLocalidades()->ListaDe("Localidades", panel.Provincia(), localidades);
  panel.PonLocalidades(localidades);
  seleccion_.PonProvincia(panel.Provincia());
  vistaDiasExtremos_->cbLocalidadesChange();
  vistaPosicionSolar_->localidadCambiada();
}

std::string VistaPrograma::Titulo() const {
  // «Localidad» es sólo lo que dice el selector mientras no se elige nada: no sirve para nombrar la ventana.
  if (!seleccion_.HayLocalidad()) return nombre_;
  return seleccion_.DameLocalidad() + "-" + seleccion_.DameProvincia();
}

void VistaPrograma::PonTitulo() {
  if (formulario_) formulario_->setWindowTitle(Texto(Titulo()));
}

void VistaPrograma::CambiarProvincia() {
  const CursorOcupado ocupado;
  RellenarLocalidades();
  PonLocalidadCargada({});
  vistaEntorno_->Vaciar();
  PonTitulo();
  vistaEstadisticas_->Calcular();
}

void VistaPrograma::CambiarLocalidad() {
  const CursorOcupado ocupado;
  const Accion accion(*this);
  seleccion_.PonLocalidad(formulario_->DamePanel().Localidad());
  vistaDiasExtremos_->cbLocalidadesChange();
  vistaPosicionSolar_->localidadCambiada();
  PonTitulo();
  const bool habiaSeries = vistaEntorno_->HaySeries();
  vistaEntorno_->Vaciar();
  PonLocalidadCargada({});
  if (!seleccion_.HayLocalidad() || !Cargar()) return;
  if (habiaSeries) Visualizar();
  vistaEstadisticas_->Calcular();
}

bool VistaPrograma::LeerDatos() {
  const ResultadoCarga resultado = CargarLocalidad(*this, seleccion_);
  if (resultado == ResultadoCarga::FicheroNoAbierto) {
    vistaEntorno_->Vaciar();
    formulario_->DamePaginaEstadisticas().Vaciar({});
  }
  return resultado == ResultadoCarga::Cargada;
}

bool VistaPrograma::LeerOtraVez() {
  if (!LeerDatos()) return false;
  if (!DameLeerMet()->Resumen().Completa()) DecirCarga();
  return true;
}

bool VistaPrograma::Cargar() {
  if (!LeerDatos()) return false;
  if (vistaPsicrometrico_) vistaPsicrometrico_->redibujar();
  DecirCarga();
  if (!DameLeerMet()->Resumen().Completa()) OfrecerImportar();
  return true;
}

void VistaPrograma::CambiarPeriodo() {
  vistaEntorno_->cambioPeriodo();
  vistaEstadisticas_->cambioPeriodo();
  Decir(QObject::tr("Período cambiado: pulse «Visualizar» para dibujarlo."));
}

void VistaPrograma::Actualizar() {
  const CursorOcupado ocupado;
  const Accion accion(*this);
  vistaEntorno_->leerPeriodo();
  if (Cargar()) Visualizar();
  vistaEstadisticas_->Calcular();
}

void VistaPrograma::Visualizar() {
  const Accion accion(*this);
  if (!vistaEntorno_->visualizar()) return;
  if (!DameLeerMet()->Resumen().Completa() || !AltitudCreible(DameLeerMet()->TercerDato())) {
    DecirCarga(); // lo que le falta al fichero importa más que cómo se maneja el gráfico
    return;
  }
  Decir(QObject::tr(
      "Rueda: amplía. Arrastre: mueve. Doble clic: período entero. Botón derecho: guardar y copiar."));
}

void VistaPrograma::ActualizarVisibles() { vistaEntorno_->actualizarVisibles(); }
void VistaPrograma::AplicarColores() { vistaEntorno_->aplicarColores(); }
void VistaPrograma::EjesPorUnidad() { vistaEntorno_->EjesPorUnidad(); }
void VistaPrograma::CalcularDiasExtremos() {
  const Accion accion(*this);
  vistaDiasExtremos_->btnCalDiaExtClick();
}

void VistaPrograma::ElegirMagnitudesExtremas() { vistaDiasExtremos_->CheckListBox1ClickCheck(); }
void VistaPrograma::VisualizarFicherosExtremos() { vistaDiasExtremos_->Button1Click(); }

/// La presión cambia con la altitud y con ella las magnitudes derivadas que se estén viendo.
void VistaPrograma::CambiarAltitud() {
  const Accion accion(*this);
  if (vistaEntorno_->HaySeries()) Visualizar();
}

/// Primero se entrega lo editado en la posición solar.
void VistaPrograma::EscribirArchivoHorario() {
  vistaPosicionSolar_->actualizar();
  vistaExportacion_->btnEscribirClick();
}

void VistaPrograma::ObjetoCambiado(const ObjetoBase &) {
  if (formulario_) formulario_->update();
}

void VistaPrograma::Decir(const QString &texto) const {
  if (formulario_) emit formulario_->estado(texto);
}

/// La lectura no rechaza un fichero incompleto ni una altitud imposible; aquí se dice sin interrumpir.
void VistaPrograma::DecirCarga() const {
  const ResumenLectura &resumen = DameLeerMet()->Resumen();
  const QString localidad = Texto(seleccion_.DameLocalidad());
  QString texto =
      resumen.registros == HORAS_DEL_ANIO
          ? QObject::tr("%1: leídas las %2 horas del año.").arg(localidad).arg(resumen.registros)
          : QObject::tr(
                "%1: sólo se pudieron leer %2 de las %3 horas del año; la lectura se detuvo en la línea %4.")
                .arg(localidad)
                .arg(resumen.registros)
                .arg(HORAS_DEL_ANIO)
                .arg(resumen.linea);
  const float altitud = DameLeerMet()->TercerDato();
  const bool altitudMala = !seleccion_.DameAltitudUsuario() && !AltitudCreible(altitud);
  if (altitudMala) {
    texto += QObject::tr(" Su altitud, %1 m, no está entre %2 y %3: se calcula al nivel del mar.")
                 .arg(Texto(FormatearPatron(static_cast<double>(altitud), PATRON_ALTITUD)))
                 .arg(static_cast<int>(ALTITUD_MINIMA))
                 .arg(static_cast<int>(ALTITUD_MAXIMA));
  }
  if (resumen.registros == HORAS_DEL_ANIO && !altitudMala) return Decir(texto);
  if (formulario_) formulario_->Avisar(texto);
}

} // namespace tesmo
