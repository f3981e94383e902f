#include "vistas/Vistadiasextremos.h"

#include "app/Programa.h"
#include "app/Seleccion.h"
#include "core/Error.h"
#include "core/Formato.h"
#include "core/Mensajes.h"
#include "core/Rutas.h"
#include "core/Varios.h"
#include "extremos/Diasextremos.h"
#include "localidades/Ciudad.h"
#include "meteo/Magnitudes.h"
#include "vistas/Abrireditor.h"
#include "vistas/Cursorocupado.h"
#include "vistas/Ejescompartidos.h"
#include "vistas/Grafico.h"
#include "vistas/Paginadiasextremos.h"
#include "vistas/Paginaresultadosextremos.h"
#include "vistas/Panelseleccion.h"
#include "vistas/Seriesextremos.h"
#include "vistas/Textoqt.h"

#include <QObject>

#include <vector>

namespace tesmo {

namespace {

using Estacion = PaginaDiasExtremos::Estacion;
using Ajuste = PaginaDiasExtremos::Ajuste;

/// Latitud [°] que se enseña antes de elegir localidad.
constexpr double LATITUD_INICIAL = 36.82;
constexpr std::string_view PATRON_LATITUD = "0.00";
constexpr double ANCHO_PLUMA = 2.0;
constexpr const char *SIN_ELEGIR = "(elíjala debajo)";

/// Un ajuste con rótulo: la clave con que el motor lo conoce y su sitio en la página.
struct Clave {
  const char *nombre;
  Ajuste ajuste;
};
constexpr std::array<Clave, 6> CLAVES{{{"Provincia", Ajuste::Provincia},
                                       {"Localidad", Ajuste::Localidad},
                                       {"Mes calefacción", Ajuste::MesCal},
                                       {"Mes refrigeración", Ajuste::MesRef},
                                       {"Percentil calefacción", Ajuste::PerCal},
                                       {"Percentil refrigeración", Ajuste::PerRef}}};

/// Los nombres de los ajustes de una estación.
struct ClavesEstacion {
  Estacion estacion;
  const char *mes;
  const char *percentil;
  const char *temporada;
};
constexpr std::array<ClavesEstacion, 2> ESTACIONES{
    {{Estacion::Calefaccion, "Mes calefacción", "Percentil calefacción", "Temporada calefacción"},
     {Estacion::Refrigeracion, "Mes refrigeración", "Percentil refrigeración", "Temporada refrigeración"}}};

/// Recoge el último diagnóstico del cálculo, el que lo detuvo: con la ventana no suele haber registro.
class UltimoDiagnostico {
public:
  UltimoDiagnostico() : propio_(!RegistroAbierto()) {
    if (propio_) AbrirRegistroEn([this](std::string_view texto) { texto_ = texto; });
  }
  ~UltimoDiagnostico() {
    if (propio_) CerrarRegistro();
  }
  UltimoDiagnostico(const UltimoDiagnostico &) = delete;
  UltimoDiagnostico &operator=(const UltimoDiagnostico &) = delete;
  [[nodiscard]] const std::string &Texto() const { return texto_; }

private:
  bool propio_;
  std::string texto_;
};

QString Leyenda(const FichaExtremos &ficha) {
  return Texto(ficha.titulo) + QStringLiteral(" (") + Texto(UnidadDeRotulo(ficha.rotulo)) +
         QStringLiteral(")");
}

void AnadirSeries(Grafico &grafico, const extremos::DiaDeProyecto &dia) {
  grafico.Vaciar();
  for (const FichaExtremos &ficha : SERIES_EXTREMOS) {
    grafico.AnadirSerie({Texto(ficha.titulo), Texto(ficha.rotulo), Texto(ficha.patron), Color(ficha.color),
                         ANCHO_PLUMA, ficha.lado, false, Leyenda(ficha)},
                        dia.*ficha.valores);
  }
}

} // namespace

VistaDiasExtremos::VistaDiasExtremos(PaginaDiasExtremos &ajustes, PaginaResultadosExtremos &resultados,
                                     PanelSeleccion &panel, Programa &programa, const Seleccion &seleccion,
                                     Ventana ventana)
    : ajustes_(ajustes), resultados_(resultados), panel_(panel), programa_(programa), seleccion_(seleccion),
      ventana_(std::move(ventana)) {
  if (programa_.DameDiasExtremos() != nullptr)
    programa_.DameDiasExtremos()->PonFicheroSalida(DiasExtremos::RutaSalida());
  MostrarAjustes();
}

void VistaDiasExtremos::MostrarAjustes() {
  PonLatitud();
  ajustes_.PonLocalidad(seleccion_.HayLocalidad() ? seleccion_.DameLocalidad() : SIN_ELEGIR,
                        seleccion_.DameProvincia());
  const DiasExtremos *motor = programa_.DameDiasExtremos();
  if (motor == nullptr) return;
  for (const ClavesEstacion &claves : ESTACIONES) {
    std::int32_t mes = 1;
    motor->DameEntero(claves.mes, mes);
    MesesDeTemporada temporada{};
    motor->DameTemporada(claves.temporada, temporada);
    ajustes_.PonMes(claves.estacion, mes);
    ajustes_.PonPercentil(claves.estacion, motor->DameTexto(claves.percentil));
    ajustes_.PonTemporada(claves.estacion, temporada);
  }
  for (const auto &[nombre, ajuste] : CLAVES) {
    std::int32_t estado = ENTRADA_BLANCO;
    motor->DameEstado(nombre, estado);
    ajustes_.PonColor(ajuste, Color(static_cast<std::uint32_t>(estado)));
  }
}

void VistaDiasExtremos::PonLatitud() {
  panel_.PonLatitud(seleccion_.HayLocalidad()
                        ? programa_.DameLocalidades()->DameTextoDe(seleccion_.DameLocalidad(), "Latitud")
                        : FormatearPatron(LATITUD_INICIAL, PATRON_LATITUD));
}

void VistaDiasExtremos::TomarAjustes() {
  DiasExtremos &motor = *programa_.DameDiasExtremos();
  motor.PonTexto("Provincia", seleccion_.DameProvincia());
  if (seleccion_.HayLocalidad()) motor.PonTexto("Localidad", seleccion_.DameLocalidad());
  for (const ClavesEstacion &claves : ESTACIONES) {
    motor.PonTexto(claves.percentil, ajustes_.Percentil(claves.estacion));
    motor.PonTemporada(claves.temporada, ajustes_.Temporada(claves.estacion));
    motor.PonTexto(claves.mes, std::to_string(ajustes_.Mes(claves.estacion)));
  }
}

void VistaDiasExtremos::cbLocalidadesChange() {
  ventana_.ensenarResultados(false);
  for (Grafico *grafico : {&resultados_.DameCalefaccion(), &resultados_.DameRefrigeracion()}) {
    grafico->Vaciar();
    grafico->Redibujar();
  }
  resultados_.VaciarLista();
  resultados_.PonDerivacion({});
  DiasExtremos *motor = programa_.DameDiasExtremos();
  if (motor != nullptr) {
    motor->PonTexto("Provincia", seleccion_.DameProvincia());
    if (seleccion_.HayLocalidad()) motor->PonTexto("Localidad", seleccion_.DameLocalidad());
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
  AvisarPercentiles();
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
  EscribirFicheros();
  ventana_.ensenarResultados(true);
}

/// La entrada validada calla ante lo que no es un número: aquí se nombra la casilla. El cálculo sigue con el
/// valor de fábrica, que queda escrito en ella.
void VistaDiasExtremos::AvisarPercentiles() {
  for (const auto &[estacion, ajuste] : {std::pair{Estacion::Calefaccion, Ajuste::PerCal},
                                         std::pair{Estacion::Refrigeracion, Ajuste::PerRef}}) {
    bool correcto = false;
    (void)TextoARealOCero(ajustes_.Percentil(estacion), correcto);
    if (!correcto) DameMensajes().Mensaje(MENSAJE_VALOR_INCORRECTO, ajustes_.Rotulo(ajuste));
  }
}

bool VistaDiasExtremos::HayTemporadas() {
  for (const ClavesEstacion &claves : ESTACIONES) {
    if (DiasExtremos::TieneMeses(ajustes_.Temporada(claves.estacion))) continue;
    ventana_.estado(claves.estacion == Estacion::Calefaccion
                        ? QObject::tr("Marque algún mes en la temporada de calefacción.")
                        : QObject::tr("Marque algún mes en la temporada de refrigeración."));
    DameMensajes().Mensaje(MENSAJE_SIN_VARIABLES);
    ajustes_.EnfocarTemporada(claves.estacion);
    return false;
  }
  return true;
}

PeticionDias VistaDiasExtremos::Peticion() const {
  const DiasExtremos &motor = *programa_.DameDiasExtremos();
  PeticionDias peticion{motor.DameTexto("Localidad"), motor.DameTexto("Provincia"), {}, {}};
  const auto leer = [&](const ClavesEstacion &claves, extremos::AjustesEstacion &ajustes) {
    std::int32_t mes = 1;
    motor.DameEntero(claves.mes, mes);
    ajustes.mes = mes;
    motor.DameReal(claves.percentil, ajustes.percentil);
    motor.DameTemporada(claves.temporada, ajustes.temporada);
  };
  leer(ESTACIONES[0], peticion.calefaccion);
  leer(ESTACIONES[1], peticion.refrigeracion);
  return peticion;
}

void VistaDiasExtremos::RehacerGraficos() {
  const extremos::ResultadoDias &resultado = programa_.DameDiasExtremos()->Resultado();
  AnadirSeries(resultados_.DameCalefaccion(), resultado.calefaccion.dia);
  AnadirSeries(resultados_.DameRefrigeracion(), resultado.refrigeracion.dia);
  resultados_.VaciarLista();
  for (const FichaExtremos &ficha : SERIES_EXTREMOS)
    resultados_.AnadirElemento(Texto(ficha.elemento), Color(ficha.color));
  resultados_.Marcar(0);
  resultados_.PonDerivacion(Texto(TextoDeDerivacion(Peticion(), resultado)));
  CheckListBox1ClickCheck();
  for (Grafico *grafico : {&resultados_.DameCalefaccion(), &resultados_.DameRefrigeracion()})
    grafico->VerTodo();
}

void VistaDiasExtremos::CheckListBox1ClickCheck() {
  for (Grafico *grafico : {&resultados_.DameCalefaccion(), &resultados_.DameRefrigeracion()}) {
    for (int i = 0; i < grafico->NumeroSeries(); ++i) grafico->PonVisible(i, resultados_.Marcado(i));
  }
  FijarEjes();
  for (Grafico *grafico : {&resultados_.DameCalefaccion(), &resultados_.DameRefrigeracion()})
    grafico->Redibujar();
}

void VistaDiasExtremos::FijarEjes() {
  const extremos::ResultadoDias &resultado = programa_.DameDiasExtremos()->Resultado();
  std::vector<SerieCompartida> series;
  for (std::size_t i = 0; i < SERIES_EXTREMOS.size(); ++i) {
    if (!resultados_.Marcado(static_cast<int>(i))) continue;
    const FichaExtremos &ficha = SERIES_EXTREMOS[i];
    series.push_back({resultado.calefaccion.dia.*ficha.valores, ficha.lado});
    series.push_back({resultado.refrigeracion.dia.*ficha.valores, ficha.lado});
  }
  const EjesCompartidos ejes = RepartirEjes(series);
  for (Grafico *grafico : {&resultados_.DameCalefaccion(), &resultados_.DameRefrigeracion()}) {
    grafico->FijarLimites(LadoEje::Izquierdo, ejes.izquierdo);
    grafico->FijarLimites(LadoEje::Derecho, ejes.derecho);
  }
}

void VistaDiasExtremos::EscribirFicheros() {
  const bool escritos = programa_.DameDiasExtremos()->EscribirFicheros();
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
