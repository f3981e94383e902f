#include "vistas/sol/Vistaposicionsolar.h"

#include "app/Programa.h"
#include "app/Seleccion.h"
#include "core/Formato.h"
#include "core/Mensajes.h"
#include "core/Rutas.h"
#include "core/Varios.h"
#include "solar/Ficheroanual.h"
#include "solar/Posicionsolar.h"
#include "vistas/comun/Cursorocupado.h"
#include "vistas/comun/Guardardibujo.h"
#include "vistas/comun/Panelseleccion.h"
#include "vistas/comun/Textoqt.h"
#include "vistas/sol/Escalasolar.h"
#include "vistas/sol/Graficosolar.h"
#include "vistas/sol/Paginaposicionsolar.h"

#include <algorithm>
#include <array>

namespace tesmo {

namespace {

using Casilla = PaginaPosicionSolar::Casilla;

constexpr std::string_view PATRON_DOS_DECIMALES = "0.00";

/// Las casillas que se copian en el PosicionSolar y su clave; las de resultados nunca se copian.
struct Clave {
  const char *nombre;
  Casilla casilla;
};
constexpr std::array<Clave, 3> DE_LA_FECHA{
    {{"Mes", Casilla::Mes}, {"Día", Casilla::Dia}, {"Hora", Casilla::Hora}}};
constexpr std::array<Clave, 3> DE_LA_SUPERFICIE{{{"Orientación", Casilla::Orientacion},
                                                 {"Inclinación", Casilla::Inclinacion},
                                                 {"Albedo", Casilla::Albedo}}};

bool EsDeSuperficie(Casilla casilla) {
  return std::any_of(DE_LA_SUPERFICIE.begin(), DE_LA_SUPERFICIE.end(),
                     [casilla](const Clave &clave) { return clave.casilla == casilla; });
}

/// Cómo nombra una casilla el mensaje: las de superficie, como al cargar; las demás, por su rótulo.
std::string NombreEnMensaje(const Clave &clave) {
  return EsDeSuperficie(clave.casilla) ? clave.nombre
                                       : PaginaPosicionSolar::Rotulo(clave.casilla).toStdString();
}

/// Copia el texto de una casilla. Lo que no vale se dice y deja escrito el valor que toma su sitio; una
/// casilla de superficie vacía se queda así: quien cargue dirá que falta.
void CopiarCasilla(PaginaPosicionSolar &pagina, PosicionSolar &sol, const Clave &clave) {
  const std::string texto = pagina.TextoDe(clave.casilla).toStdString();
  const bool falta = texto.empty() && EsDeSuperficie(clave.casilla);
  if (!falta && !RealTecleado(texto))
    DameMensajes().Mensaje(MENSAJE_VALOR_INCORRECTO, NombreEnMensaje(clave));
  sol.PonTexto(clave.nombre, texto);
  std::int32_t estado = ENTRADA_BLANCO;
  sol.DameEstado(clave.nombre, estado);
  if (estado == ENTRADA_INVALIDA && !falta)
    pagina.PonTexto(clave.casilla, Texto(sol.DameTexto(clave.nombre)));
}

Seleccion::Superficie SuperficieDe(const PaginaPosicionSolar &pagina) {
  return {pagina.TextoDe(Casilla::Inclinacion).toStdString(),
          pagina.TextoDe(Casilla::Orientacion).toStdString(), pagina.TextoDe(Casilla::Albedo).toStdString()};
}

void PonSuperficie(PaginaPosicionSolar &pagina, const Seleccion::Superficie &superficie) {
  pagina.PonTexto(Casilla::Inclinacion, Texto(superficie.inclinacion));
  pagina.PonTexto(Casilla::Orientacion, Texto(superficie.orientacion));
  pagina.PonTexto(Casilla::Albedo, Texto(superficie.albedo));
}

} // namespace

Vistaposicionsolar::Vistaposicionsolar(PaginaPosicionSolar &pagina, PanelSeleccion &panel, Programa &programa,
                                       Seleccion &seleccion, std::function<void(const QString &)> estado)
    : pagina_(pagina), panel_(panel), seleccion_(seleccion), sol_(programa.DamePosicionSolar()),
      estado_(std::move(estado)), grafico_(&pagina.DameGrafico()) {
  PonSuperficie(pagina_, seleccion_.DameSuperficie());
  pagina_.setEnabled(sol_ != nullptr);
  if (sol_ == nullptr) return;
  grafico_->PonContenido(&contenido_);
  horizonte_.Tomar(sol_->Horizonte());
  PonCasillas();
  Conectar();
  RedibujarHorizonte();
}

// La página puede haber muerto ya con su ventana, o pintarse otra vez antes de morir.
Vistaposicionsolar::~Vistaposicionsolar() {
  if (grafico_) grafico_->PonContenido(nullptr);
}

void Vistaposicionsolar::Conectar() {
  const auto conectar = [this](auto senal, auto accion) {
    QObject::connect(&pagina_, senal, &avisos_, accion);
  };
  using Pagina = PaginaPosicionSolar;
  conectar(&Pagina::momentoPedido, [this] { btnMomentoClick(); });
  conectar(&Pagina::diaPedido, [this] { btnDiaClick(); });
  conectar(&Pagina::mesesPedido, [this] { btnMesesClick(); });
  conectar(&Pagina::ficheroPedido, [this] { btnFicheroClick(); });
  conectar(&Pagina::abrirPedido, [this] { btnAbrirPerfilClick(); });
  conectar(&Pagina::guardarPedido, [this] { btnGuardarPerfilClick(); });
  conectar(&Pagina::imagenPedida, [this] {
    PedirGuardarDibujo(pagina_, avisos_, QStringLiteral("sdGuardarCartaSolar"),
                       {QStringLiteral("png"), QStringLiteral("svg"), QStringLiteral("pdf")},
                       [this](const QString &ruta) { return GuardarImagen(ruta); });
  });
  conectar(&Pagina::deshacerPedido, [this] { Editado(horizonte_.Deshacer()); });
  conectar(&Pagina::rehacerPedido, [this] { Editado(horizonte_.Rehacer()); });
  conectar(&Pagina::borrarPedido, [this] { Editado(horizonte_.BorrarElegido()); });
  conectar(&Pagina::superficieTecleada, [this] { seleccion_.PonSuperficie(SuperficieDe(pagina_)); });
  QObject::connect(&pagina_.DameHueco(), &GraficoSolar::izquierdoSoltado, &avisos_,
                   [this](const SitioRaton &sitio) { EmpezarHorizonte(sitio); });
  ConectarRaton(*grafico_);
  // La selección vive más que esta vista, pero nadie la cambia ni la usa después.
  seleccion_.AlCambiar([this](Seleccion::Cambio cambio) {
    if (cambio == Seleccion::Cambio::Superficie) PonSuperficie(pagina_, seleccion_.DameSuperficie());
  });
  seleccion_.AntesDeUsar([this] { actualizar(); });
}

void Vistaposicionsolar::ConectarRaton(const GraficoSolar &grafico) {
  const auto conectar = [&](auto senal, auto accion) {
    QObject::connect(&grafico, senal, &avisos_, [this, accion](const SitioRaton &s) { Editado(accion(s)); });
  };
  conectar(&GraficoSolar::izquierdoPulsado, [this](const SitioRaton &s) {
    return horizonte_.PulsarIzquierdo(s.acimut, s.altura, s.mayusculas, s.alcance);
  });
  conectar(&GraficoSolar::movido, [this](const SitioRaton &s) { return horizonte_.Mover(s.altura); });
  conectar(&GraficoSolar::izquierdoSoltado, [this](const SitioRaton &s) { return Soltar(s); });
  conectar(&GraficoSolar::derechoPulsado,
           [this](const SitioRaton &s) { return horizonte_.PulsarDerecho(s.acimut, s.altura); });
}

/// De partida, lo que el PosicionSolar tomó del reloj; él conserva su hora aunque sea negativa.
void Vistaposicionsolar::PonCasillas() {
  float hora = 0.0F;
  sol_->DameReal("Hora", hora);
  pagina_.PonTexto(Casilla::Mes, Texto(sol_->DameTexto("Mes")));
  pagina_.PonTexto(Casilla::Dia, Texto(sol_->DameTexto("Día")));
  pagina_.PonTexto(Casilla::Hora, Texto(FormatearPatron(HoraDeCasilla(hora), PATRON_DOS_DECIMALES)));
}

void Vistaposicionsolar::CopiarCasillas() {
  sol_->PonTexto("Latitud", panel_.Latitud());
  for (const Clave &clave : DE_LA_FECHA) CopiarCasilla(pagina_, *sol_, clave);
  CopiarSuperficie();
}

void Vistaposicionsolar::CopiarSuperficie() {
  for (const Clave &clave : DE_LA_SUPERFICIE) CopiarCasilla(pagina_, *sol_, clave);
  seleccion_.PonSuperficie(SuperficieDe(pagina_));
}

void Vistaposicionsolar::actualizar() {
  if (sol_ == nullptr) return;
  CopiarSuperficie();
  horizonte_.CopiarEn(*sol_);
}

void Vistaposicionsolar::localidadCambiada() {
  if (sol_ == nullptr) return;
  sol_->PonTexto("Latitud", panel_.Latitud());
  VaciarMomento();
  PonInfluencia();
  if (contenido_.dibujo == DibujoSolar::Ninguno) return;
  sol_->DameReal("Latitud", dibujada_.latitud);
  if (contenido_.dibujo == DibujoSolar::Dia) {
    DibujarDia(dibujada_);
  } else {
    DibujarMeses(dibujada_);
  }
}

/// Lo que se leyó de un momento era de otro sitio.
void Vistaposicionsolar::VaciarMomento() {
  pagina_.PonTexto(Casilla::Acimut, QString());
  pagina_.PonTexto(Casilla::Altura, QString());
  pagina_.PonMomento(QString());
  contenido_.momento.reset();
}

Vistaposicionsolar::Fecha Vistaposicionsolar::LeerFecha() const {
  Fecha fecha{};
  float mes = 0.0F;
  float dia = 0.0F;
  sol_->DameReal("Latitud", fecha.latitud);
  sol_->DameReal("Mes", mes);
  sol_->DameReal("Día", dia);
  sol_->DameReal("Hora", fecha.hora);
  fecha.mes = static_cast<int>(mes);
  fecha.dia = static_cast<int>(dia);
  return fecha;
}

void Vistaposicionsolar::btnMomentoClick() {
  CopiarCasillas();
  const Fecha fecha = LeerFecha();
  const AngulosSolares angulos = sol_->CalcularPosicion(fecha.latitud, fecha.mes, fecha.dia, fecha.hora);
  const bool esDeDia = sol_->EsDeDia();
  const auto texto = [&](float angulo) {
    return esDeDia ? Texto(FormatearPatron(angulo, PATRON_DOS_DECIMALES)) : QString();
  };
  pagina_.PonTexto(Casilla::Acimut, texto(angulos.acimut));
  pagina_.PonTexto(Casilla::Altura, texto(angulos.altura));
  pagina_.PonMomento(esDeDia ? QObject::tr("¡Es de día!") : QObject::tr("¡Es de noche!"));
  contenido_.momento.reset();
  if (esDeDia) {
    AsegurarCurvaDe(fecha);
    contenido_.momento = PuntoSolar{fecha.hora, angulos.acimut, angulos.altura};
  }
  grafico_->Redibujar();
}

/// El punto de un momento va sobre su curva: si no se está viendo, se dibuja la de ese día.
void Vistaposicionsolar::AsegurarCurvaDe(const Fecha &fecha) {
  const bool mismoSitio = fecha.latitud == dibujada_.latitud && fecha.dia == dibujada_.dia;
  const bool todos = contenido_.dibujo == DibujoSolar::Meses;
  const bool esteDia = contenido_.dibujo == DibujoSolar::Dia && fecha.mes == dibujada_.mes;
  if (mismoSitio && (todos || esteDia)) return;
  DibujarDia(fecha);
  DecirSalidaYPuesta(fecha);
}

void Vistaposicionsolar::btnDiaClick() {
  CopiarCasillas();
  contenido_.momento.reset();
  const Fecha fecha = LeerFecha();
  DibujarDia(fecha);
  DecirSalidaYPuesta(fecha);
}

void Vistaposicionsolar::DibujarDia(const Fecha &fecha) {
  PonCurvas(contenido_, CurvasDeDia(fecha.latitud, fecha.mes, fecha.dia));
  dibujada_ = fecha;
  grafico_->PonOrdenDeMeses({});
  EnsenarDibujo();
}

void Vistaposicionsolar::DecirSalidaYPuesta(const Fecha &fecha) const {
  const auto [salida, puesta] = sol_->CalcularSalidaPuesta(fecha.latitud, fecha.mes, fecha.dia);
  if (contenido_.dia.empty()) {
    estado_(QObject::tr("Ese día el sol no sale en esa latitud."));
  } else if (salida < 0.0F) {
    estado_(QObject::tr("Ese día el sol no se pone en esa latitud."));
  } else {
    estado_(QObject::tr("El sol sale a las %1 h y se pone a las %2 h, en hora solar.")
                .arg(Texto(FormatearPatron(salida, PATRON_DOS_DECIMALES)),
                     Texto(FormatearPatron(puesta, PATRON_DOS_DECIMALES))));
  }
}

void Vistaposicionsolar::btnMesesClick() {
  CopiarCasillas();
  contenido_.momento.reset();
  const Fecha fecha = LeerFecha();
  DibujarMeses(fecha);
  estado_(
      QObject::tr("El día %1 de cada mes; las líneas de puntos unen la misma hora solar.").arg(fecha.dia));
}

void Vistaposicionsolar::DibujarMeses(const Fecha &fecha) {
  const CurvasDeLosMeses curvas = CurvasDeMeses(fecha.latitud, fecha.dia);
  PonCurvas(contenido_, curvas);
  dibujada_ = fecha;
  grafico_->PonOrdenDeMeses(Texto(curvas.orden));
  EnsenarDibujo();
}

void Vistaposicionsolar::EnsenarDibujo() {
  pagina_.EnsenarGrafico();
  grafico_->Redibujar();
}

void Vistaposicionsolar::btnFicheroClick() {
  CopiarCasillas();
  const CursorOcupado ocupado;
  const std::string ruta = DameConfiguracion().DirectorioBase() + std::string(NOMBRE_FICHERO_ANUAL);
  if (EscribirFicheroAnual(LeerFecha().latitud, ruta)) estado_(QObject::tr("Escrito %1").arg(Texto(ruta)));
}

bool Vistaposicionsolar::GuardarImagen(const QString &ruta) const { return grafico_->GuardarImagen(ruta); }

} // namespace tesmo
