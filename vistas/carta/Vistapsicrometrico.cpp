#include "vistas/carta/Vistapsicrometrico.h"

#include "app/Accion.h"
#include "app/Carga.h"
#include "app/Programa.h"
#include "app/Seleccion.h"
#include "meteo/Estadoshorarios.h"
#include "psicro/Corrienteaire.h"
#include "psicro/Marcacarta.h"
#include "psicro/Psicrometrico.h"
#include "vistas/carta/Marcocarta.h"
#include "vistas/carta/Paginapsicrometrico.h"
#include "vistas/carta/Superficiepintor.h"
#include "vistas/carta/Tablapuntos.h"
#include "vistas/colores/Selectorcolor.h"
#include "vistas/comun/Cursorocupado.h"
#include "vistas/comun/Guardardibujo.h"
#include "vistas/comun/Panelseleccion.h"
#include "vistas/comun/Textoqt.h"

#include <QMenu>

#include <cmath>

namespace tesmo {

namespace {

constexpr std::array<Familia, NUMERO_FAMILIAS> ORDEN_CASILLAS{Familia::T, Familia::W, Familia::H, Familia::HR,
                                                              Familia::VE};
constexpr float SATURADO = 100.0F; // [%]

/// Un estado de la carta, y el del aire más próximo que el modelo admite.
struct LecturaCarta {
  float t; ///< [°C]
  float w; ///< [kg/kg], negativa por debajo de la carta
  float p; ///< [Pa]
  CorrienteAire aire;
};

/// Vacía por encima de la saturación, o si la carta aún no tiene tamaño.
std::optional<LecturaCarta> Leer(float t, float w, float p) {
  if (!std::isfinite(t) || !std::isfinite(w)) return std::nullopt;
  LecturaCarta lectura{t, w, p, CorrienteAire()};
  lectura.aire.pont_hr(t, SATURADO, p);
  if (!(w <= lectura.aire.humedadAbsoluta())) return std::nullopt;
  lectura.aire.pont_w(t, w, p);
  return lectura;
}

std::optional<LecturaCarta> LeerEn(const Psicro &carta, int x, int y) {
  return Leer(carta.t(x), carta.w(y), carta.damePresion());
}

} // namespace

Vistapsicrometrico::Vistapsicrometrico(PaginaPsicrometrico &pagina, PanelSeleccion &panel, Programa &programa,
                                       Seleccion &seleccion, Ventana ventana)
    : pagina_(pagina), panel_(panel), programa_(programa), seleccion_(seleccion),
      ventana_(std::move(ventana)), contenido_{*programa.DamePsicro()}, color_(COLOR_MARCA),
      marco_(&pagina.DameMarco()) {
  marco_->PonContenido(&contenido_);
  Conectar();
  // El programa vive más que esta vista.
  programa_.AlCargar([this, viva = QPointer<QObject>(&avisos_)] {
    if (viva) CambioLaCarga();
  });
  redibujar();
}

// La página puede haber muerto ya con su ventana, o pintarse otra vez antes de morir.
Vistapsicrometrico::~Vistapsicrometrico() {
  if (marco_) marco_->PonContenido(nullptr);
}

void Vistapsicrometrico::Conectar() {
  const auto conectar = [this](auto senal, auto accion) {
    QObject::connect(&pagina_, senal, &avisos_, accion);
  };
  using Pagina = PaginaPsicrometrico;
  conectar(&Pagina::representarPedido, [this] { representar(); });
  conectar(&Pagina::limpiarPedido, [this] { redibujar(); });
  conectar(&Pagina::colorPuntoPedido, [this] { PedirColor(); });
  conectar(&Pagina::guardarPedido, [this] { PedirGuardar(); });
  conectar(&Pagina::altitudCambiada, [this](double altitud) { PonAltitud(static_cast<float>(altitud)); });
  conectar(&Pagina::altitudDelFicheroPedida, [this] { PonAltitud(std::nullopt); });
  conectar(&Pagina::coloreoCambiado, [this](ColoreoNube coloreo) {
    contenido_.coloreo = coloreo;
    pagina_.DameMarco().Redibujar();
  });
  conectar(&Pagina::familiaCambiada, [this](int i, bool visible) {
    contenido_.carta.ponVisible(ORDEN_CASILLAS.at(static_cast<std::size_t>(i)), visible);
    pagina_.DameMarco().Redibujar();
  });
  const TablaPuntos *tabla = &pagina_.DameTabla();
  QObject::connect(tabla, &TablaPuntos::borrarPedido, &avisos_, [this] { BorrarPuntos(); });
  QObject::connect(tabla, &TablaPuntos::elegidosCambiados, &avisos_, [this] { ActualizarPuntos(); });
  const MarcoCarta *marco = &pagina_.DameMarco();
  QObject::connect(marco, &MarcoCarta::punteroMovido, &avisos_,
                   [this](int x, int y) { lecturaPuntero(x, y); });
  QObject::connect(marco, &MarcoCarta::botonPulsado, &avisos_, [this](int x, int y) { botonPulsado(x, y); });
  QObject::connect(marco, &MarcoCarta::menuPedido, &avisos_,
                   [this](const QPoint &donde) { EnsenarMenu(donde); });
}

void Vistapsicrometrico::PonPresion() {
  const float altitud = AltitudEnUso(programa_, seleccion_);
  contenido_.carta.ponAltitud(altitud);
  pagina_.PonAltitud(altitud, seleccion_.DameAltitudUsuario().has_value());
  // El mismo sitio de la carta es otro aire a otra presión.
  if (leido_) EnsenarLectura(leido_->first, leido_->second);
}

/// Escribir un archivo horario vuelve a leer la misma localidad: la nube sigue siendo la suya.
void Vistapsicrometrico::CambioLaCarga() {
  if (programa_.DameLocalidadCargada() != dibujada_) return redibujar();
  PonPresion();
  ActualizarPuntos();
}

void Vistapsicrometrico::redibujar() {
  dibujada_ = programa_.DameLocalidadCargada();
  PonPresion();
  contenido_.marcas.clear();
  contenido_.carta.ponVista(0, 0, 0, 0, 1);
  pagina_.PonColorPunto(Color(color_));
  ActualizarPuntos();
}

void Vistapsicrometrico::lecturaPuntero(int x, int y) {
  if (EnsenarLectura(contenido_.carta.t(x), contenido_.carta.w(y)))
    pagina_.DameMarco().PonReticula(QPoint(x, y));
}

bool Vistapsicrometrico::EnsenarLectura(float t, float w) {
  const std::optional<LecturaCarta> lectura = Leer(t, w, contenido_.carta.damePresion());
  if (!lectura) return false;
  leido_ = {t, w};
  pagina_.PonValores(TextosDeEstado(lectura->t, lectura->w, lectura->p, lectura->aire));
  return true;
}

void Vistapsicrometrico::botonPulsado(int x, int y, ModoPluma modo) {
  if (!banda_.activa) {
    banda_.esquinas.fill({x, y});
    FijarPunto(x, y);
    return;
  }
  MarcoCarta &marco = pagina_.DameMarco();
  marco.PintarEncima([&](QPainter &pintor) {
    SuperficiePintor superficie(pintor);
    SoltarBanda(banda_, modo, superficie, contenido_.carta);
  });
  // Al soltarla la carta quedó dibujada a un tamaño fijo, que no es el del control: se rehace entera.
  marco.Redibujar();
}

void Vistapsicrometrico::FijarPunto(int x, int y) {
  const std::optional<LecturaCarta> lectura = LeerEn(contenido_.carta, x, y);
  if (!lectura) return;
  contenido_.puntos.push_back(
      {NombreDePunto(puntosFijados_++), lectura->aire.temperatura(), lectura->aire.humedadAbsoluta()});
  ActualizarPuntos();
}

void Vistapsicrometrico::representar() {
  const CursorOcupado ocupado;
  const Accion accion(programa_);
  pagina_.TerminarDeTeclear(); // dentro de la acción: la altitud también carga
  seleccion_.PonPeriodo(panel_.LeerPeriodo());
  // Las dos series que se marcan están en el fichero: no hay nada que derivar.
  if (!ventana_.cargar()) return;
  MarcarPeriodo();
  pagina_.DameMarco().Redibujar();
}

void Vistapsicrometrico::MarcarPeriodo() {
  for (const EstadoHorario &estado :
       EstadosDelPeriodo(*programa_.DameLeerMet(), pagina_.HoraInicial(), pagina_.HoraFinal()))
    marcarPunto(estado.t, estado.w, estado.fecha.mes, estado.fecha.hora);
}

void Vistapsicrometrico::marcarPunto(float t, float w, int mes, int hora) {
  contenido_.marcas.push_back({t, w, mes, hora, color_});
}

void Vistapsicrometrico::PonColorMarca(const QColor &color) {
  color_ = EnteroDeColor(color);
  pagina_.PonColorPunto(color);
}

void Vistapsicrometrico::PonAltitud(std::optional<float> altitud) {
  seleccion_.PonAltitudUsuario(altitud);
  PonPresion();
  ActualizarPuntos();
  ventana_.altitudCambiada();
}

/// Rehace la tabla, el proceso entre dos puntos (los dos elegidos o los dos últimos) y el dibujo.
void Vistapsicrometrico::ActualizarPuntos() {
  const std::vector<PuntoCarta> &puntos = contenido_.puntos;
  const float presion = contenido_.carta.damePresion();
  QList<QStringList> filas;
  for (const PuntoCarta &punto : puntos) filas << QStringList(punto.nombre) + TextosDeEstado(punto, presion);
  const QList<int> elegidos = pagina_.DameTabla().Elegidos();
  contenido_.proceso.reset();
  if (elegidos.size() == 2 && static_cast<std::size_t>(elegidos[1]) < puntos.size()) {
    contenido_.proceso.emplace(elegidos[0], elegidos[1]);
  } else if (puntos.size() > 1) {
    contenido_.proceso.emplace(puntos.size() - 2, puntos.size() - 1);
  }
  QString proceso;
  if (contenido_.proceso)
    proceso = TextoDeProceso(puntos[contenido_.proceso->first], puntos[contenido_.proceso->second], presion);
  pagina_.DameTabla().Poner(filas, proceso);
  pagina_.DameMarco().Redibujar();
}

void Vistapsicrometrico::BorrarPuntos() {
  const QList<int> elegidos = pagina_.DameTabla().Elegidos();
  if (elegidos.isEmpty()) contenido_.puntos.clear();
  for (auto i = elegidos.crbegin(); i != elegidos.crend(); ++i)
    contenido_.puntos.erase(contenido_.puntos.begin() + *i);
  pagina_.DameTabla().QuitarEleccion(); // las filas elegidas son ya de otros puntos
  ActualizarPuntos();
}

void Vistapsicrometrico::PedirColor() {
  AbrirSelectorDeColor(pagina_, QStringLiteral("cdPunto"), Color(color_), avisos_,
                       [this](const QColor &color) { PonColorMarca(color); });
}

bool Vistapsicrometrico::GuardarImagen(const QString &ruta) const {
  return pagina_.DameMarco().GuardarImagen(ruta);
}

void Vistapsicrometrico::PedirGuardar() {
  PedirGuardarDibujo(pagina_, avisos_, QStringLiteral("sdGuardarCarta"),
                     {QStringLiteral("png"), QStringLiteral("svg"), QStringLiteral("pdf")},
                     [this](const QString &ruta) { return GuardarImagen(ruta); });
}

void Vistapsicrometrico::EnsenarMenu(const QPoint &donde) {
  auto *menu = new QMenu(&pagina_);
  menu->setObjectName(QStringLiteral("menuCarta"));
  menu->setAttribute(Qt::WA_DeleteOnClose);
  QAction *guardar = menu->addAction(QObject::tr("&Guardar imagen…"));
  guardar->setObjectName(QStringLiteral("acGuardarCarta"));
  QObject::connect(guardar, &QAction::triggered, &avisos_, [this] { PedirGuardar(); });
  menu->popup(donde);
}

} // namespace tesmo
