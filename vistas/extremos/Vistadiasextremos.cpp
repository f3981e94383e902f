#include "vistas/extremos/Vistadiasextremos.h"

#include "app/Programa.h"
#include "app/Seleccion.h"
#include "core/Formato.h"
#include "core/Mensajes.h"
#include "core/Rutas.h"
#include "extremos/Diasextremos.h"
#include "localidades/Ciudad.h"
#include "vistas/comun/Abrireditor.h"
#include "vistas/comun/Cursorocupado.h"
#include "vistas/comun/Panelseleccion.h"
#include "vistas/comun/Textoqt.h"
#include "vistas/comun/Ultimodiagnostico.h"
#include "vistas/extremos/Paginadiasextremos.h"
#include "vistas/extremos/Paginaresultadosextremos.h"

#include <QObject>

namespace tesmo {

namespace {

using Estacion = PaginaDiasExtremos::Estacion;

/// Latitud [°] que se enseña antes de elegir localidad.
constexpr double LATITUD_INICIAL = 36.82;
constexpr std::string_view PATRON_LATITUD = "0.00";
constexpr const char *SIN_ELEGIR = "(elíjala debajo)";

} // namespace

VistaDiasExtremos::VistaDiasExtremos(PaginaDiasExtremos &ajustes, PaginaResultadosExtremos &resultados,
                                     PanelSeleccion &panel, Programa &programa, const Seleccion &seleccion,
                                     Ventana ventana)
    : ajustes_(ajustes), resultados_(resultados), panel_(panel), programa_(programa), seleccion_(seleccion),
      ventana_(std::move(ventana)), tecleados_(ajustes), graficos_(resultados) {
  if (programa_.DameDiasExtremos() != nullptr)
    programa_.DameDiasExtremos()->PonFicheroSalida(DiasExtremos::RutaSalida());
  MostrarAjustes();
}

void VistaDiasExtremos::MostrarAjustes() {
  PonLatitud();
  ajustes_.PonLocalidad(seleccion_.HayLocalidad() ? seleccion_.DameLocalidad() : SIN_ELEGIR,
                        seleccion_.DameProvincia());
  if (programa_.DameDiasExtremos() != nullptr) tecleados_.Mostrar(*programa_.DameDiasExtremos());
}

void VistaDiasExtremos::PonLatitud() {
  panel_.PonLatitud(seleccion_.HayLocalidad()
                        ? programa_.DameLocalidades()->DameTextoDe(seleccion_.DameLocalidad(), "Latitud")
                        : FormatearPatron(LATITUD_INICIAL, PATRON_LATITUD));
}

void VistaDiasExtremos::PonNombres(DiasExtremos &motor) const {
  motor.PonTexto("Provincia", seleccion_.DameProvincia());
  if (seleccion_.HayLocalidad()) motor.PonTexto("Localidad", seleccion_.DameLocalidad());
}

void VistaDiasExtremos::TomarAjustes() {
  PonNombres(*programa_.DameDiasExtremos());
  tecleados_.Tomar(*programa_.DameDiasExtremos());
}

void VistaDiasExtremos::cbLocalidadesChange() {
  ventana_.ensenarResultados(false);
  graficos_.Vaciar();
  resultados_.PonDerivacion({});
  DiasExtremos *motor = programa_.DameDiasExtremos();
  if (motor != nullptr) {
    tecleados_.TomarCallando(*motor); // lo tecleado vale también para la localidad nueva
    PonNombres(*motor);
  }
  MostrarAjustes();
}

void VistaDiasExtremos::btnCalDiaExtClick() {
  DiasExtremos *motor = programa_.DameDiasExtremos();
  if (motor == nullptr) return;
  const CursorOcupado ocupado;
  ventana_.ensenarResultados(false);
  if (!seleccion_.HayLocalidad()) {
    ventana_.estado(QObject::tr("Elija una localidad debajo para calcular sus días extremos."));
    DameMensajes().Mensaje(MENSAJE_FICHERO_METEO, SIN_LOCALIDAD);
    return;
  }
  tecleados_.AvisarPercentiles();
  TomarAjustes();
  MostrarAjustes();
  if (!HayTemporadas()) return;
  const UltimoDiagnostico diagnostico;
  if (!motor->Calcular()) {
    ventana_.estado(diagnostico.Texto().empty()
                        ? QObject::tr("No se pudieron leer las estadísticas de %1 en GDR.TXT.")
                              .arg(Texto(seleccion_.DameLocalidad()))
                        : Texto(diagnostico.Texto()));
    return;
  }
  RehacerGraficos();
  const bool escritos = motor->EscribirFicheros();
  ventana_.ensenarResultados(true);
  DecirEscritos(escritos); // después: cambiar de pestaña borra lo dicho
}

bool VistaDiasExtremos::HayTemporadas() {
  const std::optional<Estacion> vacia = tecleados_.TemporadaVacia();
  if (!vacia) return true;
  ventana_.estado(*vacia == Estacion::Calefaccion
                      ? QObject::tr("Marque algún mes en la temporada de calefacción.")
                      : QObject::tr("Marque algún mes en la temporada de refrigeración."));
  DameMensajes().Mensaje(MENSAJE_SIN_VARIABLES);
  ajustes_.EnfocarTemporada(*vacia);
  return false;
}

void VistaDiasExtremos::RehacerGraficos() {
  const DiasExtremos &motor = *programa_.DameDiasExtremos();
  graficos_.Rehacer(motor.Resultado());
  resultados_.PonDerivacion(Texto(TextoDeDerivacion(AjustesExtremos::Peticion(motor), motor.Resultado())));
}

void VistaDiasExtremos::CheckListBox1ClickCheck() {
  graficos_.EnsenarMarcadas(programa_.DameDiasExtremos()->Resultado());
}

void VistaDiasExtremos::DecirEscritos(bool escritos) const {
  const QString directorio = Texto(DameConfiguracion().RutaResultados(""));
  ventana_.estado(
      escritos ? QObject::tr("Escritos extreCal.met y extreRef.met en %1").arg(directorio)
               : QObject::tr("No se pudieron escribir extreCal.met y extreRef.met en %1").arg(directorio));
}

void VistaDiasExtremos::Button1Click() {
  // Así los nombra quien los abre, aunque se escriben con minúscula: la ruta se busca sin distinguirlas.
  for (const char *nombre : {"ExtreCal.met", "ExtreRef.met"}) {
    const QString ruta = Texto(DameConfiguracion().RutaResultados(nombre));
    AbrirEditor(ruta, [estado = ventana_.estado, ruta](const QString &causa) {
      estado(QObject::tr("No se pudo abrir %1: %2").arg(ruta, causa));
    });
  }
}

} // namespace tesmo
