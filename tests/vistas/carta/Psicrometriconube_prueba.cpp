// La nube de horas de la página "Psicrométrico  " y la altitud que fija su presión.

#include "meteo/Leermet.h"
#include "tests/comun/ventanas/Manejocarta.h"

#include <QColorDialog>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QSet>
#include <QSignalSpy>
#include <QSpinBox>

#include <algorithm>
#include <filesystem>

using namespace tesmo;
using namespace tesmo::prueba;

class PruebaPsicrometriconube : public QObject, private ManejoCarta {
  Q_OBJECT

private slots:
  void init() { Abrir(); }
  void cleanup() { Cerrar(); }

  void deDoceADoceUnaMarcaPorDia() {
    ventana_->Localidad("Almería");
    ventana_->PonAnioEntero();
    Control<QSpinBox>("csPHorIni").setValue(12);
    Control<QSpinBox>("csPHorFin").setValue(12);
    ventana_->Pulsar("btnNubes");
    const auto &marcas = Vista().Contenido().marcas;
    QCOMPARE(marcas.size(), std::size_t(365));
    for (const MarcaNube &marca : marcas) QCOMPARE(marca.hora, 12);
    QCOMPARE(marcas[31].mes, 2);
    QCOMPARE(marcas[1].t, DatosPrueba::TemperaturaSeca(24 + 11, DatosPrueba::BASE_ALMERIA));
  }

  void elPeriodoEmpiezaDondeDiceSuPrimeraHora() {
    ventana_->Localidad("Almería");
    ventana_->Poner("csHorIni", 20);
    ventana_->Pulsar("btnNubes");
    QCOMPARE(Vista().Contenido().marcas.size(), std::size_t(5));
    QCOMPARE(Vista().Contenido().marcas.front().hora, 20);
  }

  void limpiarQuitaTodasLasMarcas() {
    ventana_->Localidad("Almería");
    // Sin los nombres de las familias: el perfil de sus letras no siempre sale igual píxel a píxel.
    for (const char *familia : {"cbVerT", "cbVerW", "cbVerH", "cbVerHR", "cbVerVE"})
      ventana_->Marcar(familia, false);
    const QImage cargada = Marco().Imagen(1.0);
    ventana_->Pulsar("btnNubes");
    QVERIFY(Marco().Imagen(1.0) != cargada);
    ventana_->Pulsar("btnLimpiar");
    QVERIFY(Vista().Contenido().marcas.empty());
    QCOMPARE(Marco().Imagen(1.0), cargada);
  }

  void lasMarcasSeAcumulanYCambiarDeLocalidadLasQuita() {
    ventana_->Localidad("Almería");
    ventana_->Pulsar("btnNubes");
    ventana_->Pulsar("btnNubes");
    QCOMPARE(Vista().Contenido().marcas.size(), std::size_t(48));
    ventana_->Localidad("Níjar");
    QVERIFY(Vista().Contenido().marcas.empty());
  }

  void sinLocalidadMensaje59YNadaCambia() {
    ventana_->Pulsar("btnNubes");
    QCOMPARE(marco_->mensajes.apuntes.size(), std::size_t(1));
    QCOMPARE(marco_->mensajes.apuntes[0].texto, TextoDelMensaje59("Localidad"));
    QVERIFY(Vista().Contenido().marcas.empty());
    QVERIFY(QApplication::overrideCursor() == nullptr);
  }

  void elColorDelPuntoSeEligeEnSuRotulo() {
    QTest::mouseClick(&Control<QLabel>("lbPunto"), Qt::LeftButton);
    auto *dialogo = Control<QWidget>("tsPsicrometrico").findChild<QColorDialog *>("cdPunto");
    QVERIFY(dialogo != nullptr);
    dialogo->setCurrentColor(Qt::green);
    dialogo->accept();
    QCOMPARE(ColorPunto(), QColor(Qt::green));
    ventana_->Localidad("Almería");
    ventana_->Pulsar("btnNubes");
    QCOMPARE(Vista().Contenido().marcas.front().color, 0x00FF00U);
  }

  void elRotuloDelPuntoSePulsaTambienConElTeclado() {
    auto &rotulo = Control<QLabel>("lbPunto");
    QVERIFY(rotulo.focusPolicy() & Qt::TabFocus);
    QWidget &pagina = Control<QWidget>("tsPsicrometrico");
    for (const Qt::Key tecla : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter}) {
      QTest::keyClick(&rotulo, tecla);
      auto *dialogo = pagina.findChild<QColorDialog *>("cdPunto");
      QVERIFY(dialogo != nullptr);
      dialogo->reject();
      QTRY_VERIFY(pagina.findChild<QColorDialog *>("cdPunto") == nullptr);
    }
    QTest::mouseClick(&rotulo, Qt::RightButton);
    QVERIFY(pagina.findChild<QColorDialog *>("cdPunto") == nullptr);
    QCOMPARE(ColorPunto(), QColor(Qt::blue));
  }

  void unaAltitudImposibleSeDiceYValeCero() {
    const std::string ruta = (marco_->datos.Directorio() / "Meteo/granada.met").string();
    std::string texto = Contenido(ruta);
    texto.replace(texto.find(std::to_string(DatosPrueba::ALTITUD_GRANADA)), 3, "12680");
    QFile fichero(QString::fromStdString(ruta));
    QVERIFY(fichero.open(QIODevice::WriteOnly) && fichero.write(texto.c_str()) > 0);
    fichero.close();
    QSignalSpy estado(&ventana_->Controlador().DameFormulario(), &TforProgramas::estado);
    ventana_->Provincia("Granada");
    ventana_->Localidad("Granada");
    QCOMPARE(Control<QDoubleSpinBox>("csAltitud").value(), 0.0);
    const auto dicho = [&estado](const char *trozo) {
      return std::any_of(estado.begin(), estado.end(), [trozo](const QList<QVariant> &aviso) {
        return aviso.at(0).toString().contains(QString::fromUtf8(trozo));
      });
    };
    QVERIFY(dicho("leídas las 8760 horas del año. Su altitud, 12680 m, no está entre -500 y 9000"));
    estado.clear();
    ventana_->Pulsar("btnSimulacion");
    QVERIFY(dicho("Su altitud, 12680 m"));
    QVERIFY(marco_->mensajes.apuntes.empty());
  }

  void laNubeSeColoreaPorHoraMesOEstacion() {
    const MarcaNube marca{20.0F, 0.01F, 7, 13, 0x123456};
    QCOMPARE(ColorDeMarca(marca, ColoreoNube::Uno), 0x123456U);
    for (const auto &[coloreo, entradas] :
         {std::pair{ColoreoNube::Hora, 24}, {ColoreoNube::Mes, 12}, {ColoreoNube::Estacion, 4}}) {
      const auto leyenda = LeyendaDeNube(coloreo);
      QCOMPARE(leyenda.size(), std::size_t(entradas));
      QSet<uint> colores;
      for (const EntradaNube &entrada : leyenda) colores.insert(entrada.color);
      QCOMPARE(colores.size(), entradas);
      Control<QComboBox>("cbColorear").setCurrentIndex(static_cast<int>(coloreo));
      QCOMPARE(Vista().Contenido().coloreo, coloreo);
    }
    QCOMPARE(ColorDeMarca(marca, ColoreoNube::Hora), LeyendaDeNube(ColoreoNube::Hora)[12].color);
    QCOMPARE(ColorDeMarca(marca, ColoreoNube::Mes), LeyendaDeNube(ColoreoNube::Mes)[6].color);
    QCOMPARE(ColorDeMarca(marca, ColoreoNube::Estacion), LeyendaDeNube(ColoreoNube::Estacion)[2].color);
    QCOMPARE(ColorDeMarca({0, 0, 12, 1, 0}, ColoreoNube::Estacion),
             ColorDeMarca({0, 0, 2, 1, 0}, ColoreoNube::Estacion));
    QVERIFY(LeyendaDeNube(ColoreoNube::Uno).empty());
  }

  void conElFicheroQueFaltaMensaje59YNadaCambia() {
    ventana_->Provincia("Granada");
    ventana_->Localidad("Motril");
    marco_->mensajes.apuntes.clear(); // el de elegirla
    ventana_->Pulsar("btnNubes");
    QCOMPARE(marco_->mensajes.apuntes.size(), std::size_t(1));
    QCOMPARE(marco_->mensajes.apuntes[0].texto, TextoDelMensaje59("Motril"));
    QCOMPARE(marco_->mensajes.apuntes[0].titulo, std::string("Información"));
    QCOMPARE(marco_->mensajes.apuntes[0].icono, Icono::Informacion);
    QVERIFY(Vista().Contenido().marcas.empty());
    QVERIFY(QApplication::overrideCursor() == nullptr);
  }

  void siElFicheroDesapareceTrasElegirlaMensaje59YNingunaMarca() {
    ventana_->Localidad("Almería");
    ventana_->Pulsar("btnNubes");
    std::filesystem::remove(marco_->datos.Directorio() / "Meteo/almeria.met");
    ventana_->Pulsar("btnNubes");
    QCOMPARE(marco_->mensajes.apuntes.size(), std::size_t(1));
    QCOMPARE(marco_->mensajes.apuntes[0].texto, TextoDelMensaje59("Almería"));
    QVERIFY(Vista().Contenido().marcas.empty());
    QVERIFY(!ventana_->Controlador().HayDatos());
    QVERIFY(QApplication::overrideCursor() == nullptr);
  }

  void siElFicheroSeReescribeSeRepresentaElNuevo() {
    ventana_->Localidad("Almería");
    const std::filesystem::path meteo = marco_->datos.Directorio() / "Meteo";
    std::filesystem::copy_file(meteo / "granada.met", meteo / "almeria.met",
                               std::filesystem::copy_options::overwrite_existing);
    ventana_->Pulsar("btnNubes");
    QCOMPARE(Vista().Contenido().marcas.front().t,
             DatosPrueba::TemperaturaSeca(0, DatosPrueba::BASE_GRANADA));
  }

  void loQueSeEstaTecleandoCuentaAunqueElBotonSePulseSinSalirDeLaCasilla() {
    ventana_->Localidad("Almería");
    ventana_->Teclear("csPHorIni", "30"); // se ajusta a 24
    auto &altitud = Control<QDoubleSpinBox>("csAltitud");
    altitud.setFocus();
    altitud.selectAll();
    QTest::keyClicks(&altitud, QStringLiteral("1500"));
    Control<QPushButton>("btnNubes").click();
    QCOMPARE(Control<QSpinBox>("csPHorIni").text(), QStringLiteral("24"));
    QCOMPARE(Vista().Contenido().marcas.size(), std::size_t(1));
    QCOMPARE(Carta().damePresion(), PresionA(1500.0F));
  }

  void loQueFaltaSeDiceUnaVezAunqueSeEsteTecleandoLaAltitud() {
    ventana_->Localidad("Almería");
    ventana_->Pulsar("btnSimulacion"); // con series, la altitud las rehace
    Control<QLineEdit>("edInclinacion").clear();
    auto &altitud = Control<QDoubleSpinBox>("csAltitud");
    altitud.setFocus();
    altitud.selectAll();
    QTest::keyClicks(&altitud, QStringLiteral("1500"));
    Control<QPushButton>("btnNubes").click();
    QCOMPARE(marco_->mensajes.apuntes.size(), std::size_t(1));
    QVERIFY(marco_->mensajes.apuntes[0].texto.find("Inclinación") != std::string::npos);
    QCOMPARE(Carta().damePresion(), PresionA(1500.0F));
  }

  void representarElAnioDibujaUnaSolaVez() {
    ventana_->Localidad("Almería");
    ventana_->PonAnioEntero();
    QApplication::processEvents();
    const int veces = Marco().VecesDibujada();
    ventana_->Pulsar("btnNubes");
    QApplication::processEvents();
    QCOMPARE(Vista().Contenido().marcas.size(), std::size_t(8760));
    QCOMPARE(Marco().VecesDibujada(), veces + 1);
  }

  void representarNoDerivaNada() {
    ventana_->Localidad("Almería");
    ventana_->Controlador().DameLeerMet()->LiberarDerivadas();
    ventana_->Pulsar("btnNubes");
    QCOMPARE(Vista().Contenido().marcas.size(), std::size_t(24));
    QVERIFY(!ventana_->Controlador().DameLeerMet()->DerivadasPresentes());
  }

  void cadaLocalidadTieneLaPresionDeSuAltitud() {
    ventana_->Localidad("Almería");
    QCOMPARE(Carta().damePresion(), PresionA(DatosPrueba::ALTITUD_COSTA));
    QCOMPARE(Control<QDoubleSpinBox>("csAltitud").value(), double{DatosPrueba::ALTITUD_COSTA});
    ventana_->Provincia("Granada");
    ventana_->Localidad("Granada");
    QCOMPARE(Carta().damePresion(), PresionA(DatosPrueba::ALTITUD_GRANADA));
    QCOMPARE(Control<QDoubleSpinBox>("csAltitud").value(), double{DatosPrueba::ALTITUD_GRANADA});
    QVERIFY(PresionA(DatosPrueba::ALTITUD_GRANADA) < PresionA(DatosPrueba::ALTITUD_COSTA) - 7000.0F);
  }

  void laCargaQueHaceOtraPestanaTambienRehaceLaCarta() {
    auto &inclinacion = Control<QLineEdit>("edInclinacion");
    inclinacion.clear();
    ventana_->Provincia("Granada");
    ventana_->Localidad("Granada"); // sin inclinación no se carga
    QCOMPARE(marco_->mensajes.apuntes.size(), std::size_t(1));
    QCOMPARE(Control<QDoubleSpinBox>("csAltitud").value(), 0.0);
    inclinacion.setText(QStringLiteral("90"));
    ventana_->Pulsar("btnSimulacion");
    QCOMPARE(Control<QDoubleSpinBox>("csAltitud").value(), double{DatosPrueba::ALTITUD_GRANADA});
    QCOMPARE(Carta().damePresion(), PresionA(DatosPrueba::ALTITUD_GRANADA));
  }

  void representarLoYaCargadoNoQuitaLasMarcas() {
    ventana_->Localidad("Almería");
    TeclearAltitud("500");
    ventana_->Pulsar("btnNubes");
    ventana_->Pulsar("btnSimulacion");
    ventana_->Pulsar("btnNubes");
    QCOMPARE(Vista().Contenido().marcas.size(), std::size_t(48));
  }

  void laAltitudDelUsuarioMandaHastaQueCambiaLaLocalidad() {
    ventana_->Provincia("Granada");
    ventana_->Localidad("Granada");
    TeclearAltitud("2000");
    QCOMPARE(Carta().damePresion(), PresionA(2000.0F));
    ventana_->Pulsar("btnNubes"); // cargar o derivar no la olvida
    QCOMPARE(Carta().damePresion(), PresionA(2000.0F));
    QCOMPARE(ventana_->Controlador().DameSeleccion().DameAltitudUsuario(), std::optional(2000.0F));
    ventana_->Pulsar("btnAltitudFichero");
    QCOMPARE(Carta().damePresion(), PresionA(DatosPrueba::ALTITUD_GRANADA));
    TeclearAltitud("2000");
    ventana_->Provincia("Almería");
    ventana_->Localidad("Níjar");
    QVERIFY(!ventana_->Controlador().DameSeleccion().DameAltitudUsuario());
    QCOMPARE(Carta().damePresion(), PresionA(DatosPrueba::ALTITUD_COSTA));
  }

  void laAltitudAdmiteDecimalesConPuntoYConComa() {
    for (const char separador : {',', '.'}) {
      const ConSeparador region(separador);
      for (const char *texto : {"1234.5", "1234,5"}) {
        TeclearAltitud("0");
        TeclearAltitud(texto);
        QCOMPARE(Control<QDoubleSpinBox>("csAltitud").value(), 1234.5);
        QCOMPARE(Carta().damePresion(), PresionA(1234.5F));
      }
    }
  }

private:
  void TeclearAltitud(const char *texto) const {
    auto &casilla = Control<QDoubleSpinBox>("csAltitud");
    casilla.setFocus();
    casilla.selectAll();
    QTest::keyClicks(&casilla, QString::fromLatin1(texto));
    QTest::keyClick(&casilla, Qt::Key_Return);
  }
  [[nodiscard]] QColor ColorPunto() const {
    return Control<QLineEdit>("edPunto").palette().color(QPalette::Base);
  }
  static std::string TextoDelMensaje59(const std::string &localidad) {
    return "El fichero meteorológico asociado a la ciudad " + localidad + " no se ha podido abrir.\n ";
  }
  static float PresionA(float altitud) {
    Psicro carta;
    carta.ponAltitud(altitud);
    return carta.damePresion();
  }
};

TESMO_PRUEBA_QT(PruebaPsicrometriconube)
#include "Psicrometriconube_prueba.moc"
