#pragma once

#include "solar/Posicionsolar.h"
#include "tests/comun/ventanas/Manejo.h"
#include "vistas/comun/Panelseleccion.h"
#include "vistas/comun/Textoqt.h"
#include "vistas/sol/Graficosolar.h"
#include "vistas/sol/Vistaposicionsolar.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>

namespace tesmo::prueba {

/// Siempre la misma hora.
class RelojParado : public Reloj {
public:
  explicit RelojParado(const InstanteLocal &instante) : instante_(instante) {}
  [[nodiscard]] InstanteLocal Ahora() const override { return instante_; }

private:
  InstanteLocal instante_;
};

/// El 21 de junio a mediodía de reloj.
inline constexpr InstanteLocal MEDIODIA_DE_JUNIO{2025, 6, 21, 12, 0};

/// Una ventana de trabajo con el reloj parado y la pestaña "Posicion solar  " delante.
struct VentanaSolar {
  explicit VentanaSolar(const InstanteLocal &instante = MEDIODIA_DE_JUNIO)
      : controlador(CrearPrograma(instante), "Prueba"), ventana(controlador) {
    controlador.Abrir();
    TforProgramas &formulario = controlador.DameFormulario();
    formulario.resize(1280, 660);
    formulario.activateWindow();
    auto &paginas = Control<QTabWidget>("pcProgramas");
    paginas.setCurrentWidget(&Control<QWidget>("tsPosicionSolar"));
    (void)QTest::qWaitForWindowActive(&formulario);
  }

  static Programa CrearPrograma(const InstanteLocal &instante) {
    FabricaMotores fabrica = FabricaMotores::DeLaAplicacion();
    fabrica.posicionSolar = [instante] { return std::make_shared<PosicionSolar>(RelojParado(instante)); };
    return Programa(fabrica);
  }

  template <typename T>
  [[nodiscard]] T &Control(const char *nombre) const {
    return ventana.Buscar<T>(nombre);
  }
  [[nodiscard]] QString Casilla(const char *nombre) const { return Control<QLineEdit>(nombre).text(); }
  [[nodiscard]] QString Rotulo(const char *nombre) const { return Control<QLabel>(nombre).text(); }
  /// Teclea @p texto en el sitio de lo que hubiera.
  void Teclear(const char *nombre, const char *texto) const {
    auto &casilla = Control<QLineEdit>(nombre);
    casilla.selectAll();
    if (*texto == '\0') QTest::keyClick(&casilla, Qt::Key_Backspace);
    QTest::keyClicks(&casilla, QString::fromUtf8(texto));
  }
  void PonFecha(const char *mes, const char *dia, const char *hora = "12") const {
    Teclear("edMes", mes);
    Teclear("edDia", dia);
    Teclear("edHora", hora);
  }
  void PonLatitud(const char *latitud) const { controlador.DameFormulario().DamePanel().PonLatitud(latitud); }
  [[nodiscard]] GraficoSolar &Carta() const { return Control<GraficoSolar>("graPosSol"); }
  [[nodiscard]] Vistaposicionsolar &Vista() const { return controlador.DameVistaPosicionSolar(); }
  [[nodiscard]] PosicionSolar &Sol() const { return *controlador.DamePosicionSolar(); }
  [[nodiscard]] const PuntosHorizonte &Horizonte() const { return Vista().Contenido().horizonte; }
  [[nodiscard]] std::string Fichero(const char *nombre) const {
    return TextoDeRuta(datos.Directorio() / nombre);
  }
  [[nodiscard]] QPoint Pixel(float acimut, float altura) const {
    return Carta().PixelDe(acimut, altura).toPoint();
  }
  void Pulsar(float acimut, float altura, Qt::MouseButton boton = Qt::LeftButton,
              Qt::KeyboardModifiers teclas = {}) const {
    QTest::mouseClick(&Carta(), boton, teclas, Pixel(acimut, altura));
  }
  /// Enseña la carta y pulsa en cada punto.
  void Dibujar(const PuntosHorizonte &puntos) const {
    if (Carta().isHidden()) ventana.Pulsar("btnDia");
    QApplication::processEvents();
    for (const PuntoHorizonte &punto : puntos) Pulsar(punto.acimut, punto.altura);
  }
  /// Con Mayúsculas, de un píxel a otro.
  void Arrastrar(const QPoint &desde, const QPoint &hasta) const {
    QTest::mousePress(&Carta(), Qt::LeftButton, Qt::ShiftModifier, desde);
    QTest::mouseMove(&Carta(), (desde + hasta) / 2);
    QTest::mouseMove(&Carta(), hasta);
    QTest::mouseRelease(&Carta(), Qt::LeftButton, Qt::ShiftModifier, hasta);
  }

  DatosPrueba datos;
  MensajesApuntados mensajes;
  VistaPrograma controlador;
  Ventana ventana;
};

} // namespace tesmo::prueba
