#include "app/Demostracion.h"

#include "app/Carga.h"
#include "app/Manejoventana.h"
#include "app/Ventanaprincipal.h"
#include "app/Ventanaprogramas.h"
#include "app/Vistaprograma.h"
#include "core/Mensajes.h"
#include "meteo/Leermet.h"
#include "vistas/carta/Vistapsicrometrico.h"
#include "vistas/comun/Guardardibujo.h"
#include "vistas/grafico/Grafico.h"
#include "vistas/sol/Graficosolar.h"
#include "vistas/sol/Vistaposicionsolar.h"

#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QListWidget>
#include <QPixmap>
#include <QTabWidget>
#include <QTextStream>

#include <array>
#include <stdexcept>

namespace tesmo {

namespace {

constexpr QSize TAMANO_VENTANA(1280, 720);
/// Una sierra inventada; con dos puntos el tercero los llevaría a su altura, así que los tres empiezan igual.
constexpr std::array<PuntoHorizonte, 9> SIERRA{{{-150.0F, 4.0F},
                                                {-90.0F, 4.0F},
                                                {-40.0F, 4.0F},
                                                {0.0F, 2.0F},
                                                {35.0F, 8.0F},
                                                {60.0F, 22.0F},
                                                {85.0F, 26.0F},
                                                {110.0F, 12.0F},
                                                {150.0F, 6.0F}}};

/// Nada puede esperar a una persona: los mensajes van a la salida de errores y cuentan como fallo.
class PresentadorDemostracion : public PresentadorMensajes {
public:
  PresentadorDemostracion() : anterior_(DameMensajes().PonPresentador(this)) {}
  ~PresentadorDemostracion() override { DameMensajes().PonPresentador(anterior_); }
  PresentadorDemostracion(const PresentadorDemostracion &) = delete;
  PresentadorDemostracion &operator=(const PresentadorDemostracion &) = delete;
  void Presentar(const std::string &texto, const std::string &titulo, Icono) override {
    QTextStream(stderr) << QString::fromStdString(titulo) << ": " << QString::fromStdString(texto).trimmed()
                        << "\n";
    huboMensajes = true;
  }
  bool huboMensajes = false;

private:
  PresentadorMensajes *anterior_;
};

class Demostracion : public ManejoVentana {
public:
  Demostracion(TforPrincipal &marco, const QString &directorio)
      : ManejoVentana(marco.Controladores().front()->DameFormulario()), marco_(marco),
        directorio_(directorio) {}

  void Ejecutar() {
    marco_.resize(TAMANO_VENTANA);
    marco_.show();
    QApplication::processEvents();
    Elegir(QStringLiteral("cbProvincias"), QStringLiteral("Almería"));
    Elegir(QStringLiteral("cbLocalidades"), QStringLiteral("Almería"));
    PonPeriodo({7, 1, 1}, {7, 7, 24});
    Marcar({"TS", "TH", "TR", "E"});
    Pulsar(QStringLiteral("btnSimulacion"));
    Pulsar(QStringLiteral("btnEjesPorUnidad"));
    GuardarVentana(QStringLiteral("ventana_semana.png"));
    GuardarGrafico(QStringLiteral("graEntorno"), QStringLiteral("grafico_semana.png"));
    GuardarGrafico(QStringLiteral("graEntorno"), QStringLiteral("grafico_semana.svg"));
    PonPeriodo({1, 1, 1}, {12, 31, 24});
    Marcar({"TS", "RSDr", "RSDf", "HR", "G"});
    Pulsar(QStringLiteral("btnSimulacion"));
    Pulsar(QStringLiteral("btnEjesPorUnidad"));
    GuardarVentana(QStringLiteral("ventana_anio.png"));
    Exportar(QStringLiteral("almeria.met"));
    CartaPsicrometrica();
    Valores();
    CartaSolar();
    DiasExtremos();
  }

private:
  void Anunciar(const QString &ruta, bool escrito) {
    if (!escrito) throw std::runtime_error("no se pudo escribir " + ruta.toStdString());
    QTextStream(stdout) << QDir::toNativeSeparators(ruta) << "\n";
  }

  [[nodiscard]] QString Ruta(const QString &nombre) const { return QDir(directorio_).filePath(nombre); }

  void GuardarVentana(const QString &nombre) {
    Anunciar(Ruta(nombre), EscribirBytes(Ruta(nombre), BytesPng(marco_.grab().toImage())));
  }

  void GuardarGrafico(const QString &control, const QString &nombre) {
    const auto &grafico = Buscar<Grafico>(control);
    if (grafico.Leyenda().isEmpty()) throw std::runtime_error("el gráfico está vacío");
    Anunciar(Ruta(nombre), grafico.GuardarImagen(Ruta(nombre)));
  }

  /// Calcula los días extremos y enseña sus siete magnitudes; el cálculo deja delante sus resultados.
  void DiasExtremos() {
    Pulsar(QStringLiteral("btnCalDiaExt"));
    auto &lista = Buscar<QListWidget>(QStringLiteral("CheckListBox1"));
    if (lista.count() == 0) throw std::runtime_error("no hay días extremos que enseñar");
    for (int i = 0; i < lista.count(); ++i) lista.item(i)->setCheckState(Qt::Checked);
    QApplication::processEvents();
    GuardarVentana(QStringLiteral("ventana_dias_extremos.png"));
    for (const auto &[grafico, nombre] : {std::pair{"graDiaExtCal", "dia_calefaccion.png"},
                                          std::pair{"graDiaExtRef", "dia_refrigeracion.png"}})
      GuardarGrafico(QLatin1String(grafico), QLatin1String(nombre));
  }

  void Exportar(const QString &nombre) {
    VistaPrograma &controlador = Formulario().DameControlador();
    if (PrepararDatos(controlador, controlador.DameSeleccion()) != ResultadoCarga::Cargada) {
      throw std::runtime_error("no hay datos que exportar");
    }
    const std::vector<std::string> rotulos{
        std::string(Ficha(Magnitud::TS).rotulo), std::string(Ficha(Magnitud::HR).rotulo),
        std::string(Ficha(Magnitud::TH).rotulo), std::string(Ficha(Magnitud::G).rotulo)};
    Anunciar(Ruta(nombre), controlador.DameLeerMet()->EscribirFichero(Ruta(nombre).toStdString(), rotulos));
  }

  void Traer(const char *pestana) {
    Buscar<QTabWidget>(QStringLiteral("pcProgramas"))
        .setCurrentWidget(&Buscar<QWidget>(QLatin1String(pestana)));
  }

  /// Las horas de una semana de julio sobre la carta.
  void CartaPsicrometrica() {
    PonPeriodo({7, 1, 1}, {7, 7, 24});
    Traer("tsPsicrometrico");
    Pulsar(QStringLiteral("btnNubes"));
    GuardarVentana(QStringLiteral("ventana_carta.png"));
    const QString carta = Ruta(QStringLiteral("carta_psicrometrica.svg"));
    Anunciar(carta, Formulario().DameControlador().DameVistaPsicrometrico().GuardarImagen(carta));
  }

  /// Las medias y los grados-día del año, mes a mes.
  void Valores() {
    PonPeriodo({1, 1, 1}, {12, 31, 24});
    Traer("tsValores");
    Pulsar(QStringLiteral("rbTS"));
    GuardarVentana(QStringLiteral("ventana_valores.png"));
  }

  /// El camino del sol de los doce meses sobre una sierra al oeste.
  void CartaSolar() {
    Vistaposicionsolar &vista = Formulario().DameControlador().DameVistaPosicionSolar();
    Traer("tsPosicionSolar");
    // Sin el reloj: la imagen es siempre la misma.
    for (const auto &[casilla, texto] : {std::pair{"edMes", "6"}, {"edDia", "21"}, {"edHora", "10"}})
      Buscar<QLineEdit>(QLatin1String(casilla)).setText(QLatin1String(texto));
    Pulsar(QStringLiteral("btnMeses"));
    auto &carta = Buscar<GraficoSolar>(QStringLiteral("graPosSol"));
    for (const PuntoHorizonte &punto : SIERRA)
      emit carta.izquierdoSoltado({punto.acimut, punto.altura, false, {}});
    if (vista.Contenido().horizonte.size() != SIERRA.size())
      throw std::runtime_error("no se pudo dibujar el horizonte");
    GuardarVentana(QStringLiteral("ventana_sol.png"));
    Anunciar(Ruta(QStringLiteral("carta_solar.svg")),
             vista.GuardarImagen(Ruta(QStringLiteral("carta_solar.svg"))));
  }

  TforPrincipal &marco_;
  QString directorio_;
};

} // namespace

bool EjecutarDemostracion(const QString &directorio) {
  const PresentadorDemostracion presentador;
  try {
    if (!QDir().mkpath(directorio)) throw std::runtime_error("no se puede crear " + directorio.toStdString());
    TforPrincipal marco;
    marco.AbrirPrimera();
    Demostracion(marco, directorio).Ejecutar();
  } catch (const std::runtime_error &fallo) {
    QTextStream(stderr) << "Demostración: " << fallo.what() << "\n";
    return false;
  }
  return !presentador.huboMensajes;
}

} // namespace tesmo
