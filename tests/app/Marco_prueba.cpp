// El marco: ventanas de trabajo, menús, cierre y trabajo sin pantalla.

#include "app/Demostracion.h"
#include "core/Formato.h"
#include "core/Rutas.h"
#include "localidades/Ciudad.h"
#include "meteo/Leermet.h"
#include "tests/comun/ventanas/Manejo.h"

#include <QAction>
#include <QDir>
#include <QLocale>
#include <QMdiArea>
#include <QTimer>
#include <algorithm>
#include <optional>

using namespace tesmo;
using namespace tesmo::prueba;

class PruebaMarco : public QObject {
  Q_OBJECT

private slots:
  void init() { marco_.emplace(); }
  void cleanup() { marco_.reset(); }

  void abreConUnaVentanaSobreElPrimerPrograma() {
    QCOMPARE(marco_->marco.windowTitle().contains(QStringLiteral("Tesmo-A")), true);
    QCOMPARE(Ventanas(), 1);
    QCOMPARE(marco_->marco.Programas().size(), 1U);
    QCOMPARE(marco_->marco.Programas()[0]->DameLeerMet(), marco_->Numero(0).Controlador().DameLeerMet());
  }

  void nuevoNumeraPorLasVentanasAbiertasYPuedeRepetir() {
    Orden("mnuNuevo").trigger();
    Orden("mnuNuevo").trigger();
    QCOMPARE(marco_->Numero(1).Titulo(), QStringLiteral("Sin Nombre2"));
    QCOMPARE(marco_->Numero(2).Titulo(), QStringLiteral("Sin Nombre3"));
    Orden("mnuCerrar").trigger();
    QTRY_COMPARE(Ventanas(), 2);
    Orden("mnuNuevo").trigger();
    QCOMPARE(marco_->Numero(2).Titulo(), QStringLiteral("Sin Nombre3"));
    QCOMPARE(marco_->marco.Programas().size(), 4U);
  }

  void trasCerrarLaPrimeraDeTresHayDosVentanasConElMismoNombre() {
    Orden("mnuNuevo").trigger();
    Orden("mnuNuevo").trigger();
    auto &area = *marco_->marco.findChild<QMdiArea *>();
    area.setActiveSubWindow(area.subWindowList().first());
    Orden("mnuCerrar").trigger();
    QTRY_COMPARE(Ventanas(), 2);
    Orden("mnuNuevo").trigger();
    QStringList titulos;
    for (std::size_t i = 0; i < 3; ++i) titulos << marco_->Numero(i).Titulo();
    QCOMPARE(titulos, QStringList({"Sin Nombre2", "Sin Nombre3", "Sin Nombre3"}));
  }

  void cerrarElMarcoCierraLasVentanasDeLaUltimaALaPrimera() {
    Orden("mnuNuevo").trigger();
    Orden("mnuNuevo").trigger();
    QStringList cerradas;
    for (std::size_t i = 0; i < 3; ++i) {
      const TforProgramas *ventana = &marco_->marco.Controladores()[i]->DameFormulario();
      connect(ventana, &TforProgramas::cerrada, &marco_->marco,
              [&cerradas, ventana] { cerradas << ventana->windowTitle(); });
    }
    marco_->marco.close();
    QCOMPARE(cerradas, QStringList({"Sin Nombre3", "Sin Nombre2", "Sin Nombre1"}));
  }

  void nuevoTrasCerrarSinVolverAlBucleNoCuentaLaCerrada() {
    Orden("mnuCerrar").trigger();
    Orden("mnuNuevo").trigger();
    QCOMPARE(marco_->marco.Controladores().back()->Titulo(), std::string("Sin Nombre1"));
    QTRY_COMPARE(Ventanas(), 1);
  }

  void elFicheroDeAyudaEsElDelDirectorioDelPrograma() {
    QCOMPARE(marco_->marco.FicheroAyuda(), DameConfiguracion().RutaPrograma("Crindel.hlp"));
    QVERIFY(marco_->marco.FicheroAyuda().ends_with("/Crindel.hlp"));
  }

  void alAcabarElControladorDestruyeSuFormularioYDespuesLosMotores() {
    Orden("mnuNuevo").trigger();
    marco_->Numero(1).Localidad("Almería");
    const auto &marco = marco_->marco;
    int destruidos = 0;
    bool enOrden = true;
    for (std::size_t i = 0; i < 2; ++i) {
      const VistaPrograma *controlador = marco.Controladores()[i].get();
      const Programa *programa = marco.Programas()[i].get();
      connect(&controlador->DameFormulario(), &QObject::destroyed, &marco, [&, controlador, programa] {
        ++destruidos;
        const bool lista = std::ranges::any_of(marco.Controladores(),
                                               [&](const auto &este) { return este.get() == controlador; });
        enOrden = enOrden && !lista && programa->DameLeerMet() != nullptr;
      });
    }
    QTimer::singleShot(0, &marco_->marco, [this] {
      Orden("mnuSalir").trigger();
      QCoreApplication::exit(); // sin dar otra vuelta al bucle
    });
    QApplication::exec();
    QCOMPARE(destruidos, 2);
    QVERIFY(enOrden);
    for (const auto &programa : marco.Programas()) QCOMPARE(programa->DameLeerMet(), nullptr);
  }

  void elControladorAguantaSinFormulario() {
    const Programa programa;
    VistaPrograma controlador(programa, "suelta");
    delete &controlador.DameFormulario();
    controlador.PonTitulo();
    controlador.ObjetoCambiado(programa);
    QCOMPARE(controlador.Titulo(), std::string("suelta"));
    QVERIFY(controlador.Vista() == &controlador);
  }

  /// Un motor para el que no hubo memoria queda nulo, y la ventana se abre y se usa sin él.
  void sinUnMotorLaVentanaSeAbreYSeUsa_data() {
    QTest::addColumn<int>("motor");
    QTest::newRow("días extremos") << 0;
    QTest::newRow("posición solar") << 1;
    QTest::newRow("datos") << 2;
    QTest::newRow("carta") << 3;
  }
  void sinUnMotorLaVentanaSeAbreYSeUsa() {
    QFETCH(const int, motor);
    FabricaMotores fabrica = FabricaMotores::DeLaAplicacion();
    if (motor == 0) fabrica.diasExtremos = [] { return nullptr; };
    if (motor == 1) fabrica.posicionSolar = [] { return nullptr; };
    if (motor == 2) fabrica.leerMet = [] { return nullptr; };
    if (motor == 3) fabrica.psicro = [] { return nullptr; };
    VistaPrograma controlador{Programa(fabrica), "coja"};
    controlador.Abrir();
    const Ventana ventana(controlador);
    ventana.Localidad("Almería");
    for (const char *boton : {"btnSimulacion", "btnActualizar", "btnCalDiaExt"}) ventana.Pulsar(boton);
    controlador.CambiarPeriodo();
    controlador.CambiarAltitud();
    controlador.ElegirMagnitudesExtremas();
    controlador.EscribirArchivoHorario();
    ventana.Provincia("Granada");
    QCOMPARE(controlador.Titulo(), std::string("coja"));
    QCOMPARE(ventana.Buscar<QWidget>("tsPsicrometrico").isEnabled(), motor != 3);
    QCOMPARE(ventana.Buscar<QWidget>("tsPosicionSolar").isEnabled(), motor != 1);
  }

  void cerrarUnaVentanaDestruyeSusMotoresYNoDejaNadaColgando() {
    Orden("mnuNuevo").trigger();
    marco_->Numero(1).Localidad("Almería");
    marco_->Numero(1).Pulsar("btnSimulacion");
    Orden("mnuCerrar").trigger();
    QTRY_COMPARE(Ventanas(), 1);
    QCOMPARE(marco_->marco.Programas()[1]->DameLeerMet(), nullptr);
    QVERIFY(!marco_->marco.Programas()[1]->HayDatos());
    QVERIFY(marco_->marco.Programas()[0]->DameLeerMet() != nullptr);
    marco_->Numero(0).Localidad("Níjar");
    QVERIFY(marco_->Numero(0).Controlador().HayDatos());
  }

  void losAtajosAbrenYCierran() {
    QTest::keyClick(&marco_->marco, Qt::Key_N, Qt::ControlModifier);
    QCOMPARE(Ventanas(), 2);
    QTest::keyClick(&marco_->marco, Qt::Key_W, Qt::ControlModifier);
    QTRY_COMPARE(Ventanas(), 1);
    QTest::keyClick(&marco_->marco, Qt::Key_W, Qt::ControlModifier | Qt::ShiftModifier);
    QTRY_COMPARE(Ventanas(), 0);
  }

  void cerrarLaUltimaDejaElMarcoYNuevoAbreOtra() {
    Orden("mnuCerrar").trigger();
    QTRY_COMPARE(Ventanas(), 0);
    QVERIFY(marco_->marco.isVisible());
    Orden("mnuNuevo").trigger();
    QCOMPARE(marco_->Numero(0).Titulo(), QStringLiteral("Sin Nombre1"));
    marco_->Numero(0).Localidad("Almería");
    QVERIFY(marco_->Numero(0).Controlador().HayDatos());
  }

  void cerrarTodoSinVentanasNoHaceNada() {
    Orden("mnuNuevo").trigger();
    Orden("mnuCerrarTodo").trigger();
    QTRY_COMPARE(Ventanas(), 0);
    Orden("mnuCerrarTodo").trigger();
    Orden("mnuCerrar").trigger();
    QVERIFY(marco_->marco.isVisible());
  }

  void salirCierraElMarcoConTodasSusVentanas() {
    Orden("mnuNuevo").trigger();
    marco_->Numero(1).Localidad("Almería");
    Orden("mnuSalir").trigger();
    QVERIFY(!marco_->marco.isVisible());
    QTRY_COMPARE(Ventanas(), 0);
  }

  void abrirYCerrarCienVentanasNoPierdeNada() {
    for (int i = 0; i < 100; ++i) {
      Orden("mnuNuevo").trigger();
      marco_->Numero(1).Localidad("Almería");
      Orden("mnuCerrar").trigger();
      QTRY_COMPARE(Ventanas(), 1);
    }
    auto *area = marco_->marco.findChild<QMdiArea *>();
    QTRY_COMPARE(area->subWindowList().size(), 1);
  }

  void losNumerosSiguenElSeparadorPedidoYNuncaAgrupanMillares_data() {
    QTest::addColumn<QByteArray>("decimal");
    QTest::addColumn<QString>("texto");
    QTest::newRow("coma") << QByteArray("coma") << "12345,5";
    QTest::newRow("punto") << QByteArray("punto") << "12345.5";
  }
  void losNumerosSiguenElSeparadorPedidoYNuncaAgrupanMillares() {
    QFETCH(const QByteArray, decimal);
    QFETCH(const QString, texto);
    const ConSeparador repone(Configuracionregional::SeparadorDecimal());
    const QLocale anterior;
    qputenv("TESMO_DECIMAL", decimal);
    PrepararAplicacion(*qApp);
    qunsetenv("TESMO_DECIMAL");
    QCOMPARE(QLocale().toString(12345.5), texto);
    QCOMPARE(QString::fromStdString(FormatearPatron(12345.5, "0.0")), texto);
    QCOMPARE(QLocale().language(), QLocale::Spanish);
    QLocale::setDefault(anterior);
  }

  void laDemostracionDejaLasImagenesYLaExportacion() {
    const QString destino = QString::fromStdString(TextoDeRuta(marco_->datos.Directorio() / "salida/dentro"));
    QVERIFY(EjecutarDemostracion(destino));
    const QStringList ficheros = QDir(destino).entryList(QDir::Files);
    QCOMPARE(ficheros.size(), 13);
    for (const QString &fichero : ficheros) QVERIFY(QFileInfo(destino, fichero).size() > 1000);
    const std::string exportado = Contenido(marco_->datos.Directorio() / "salida/dentro/almeria.met");
    QCOMPARE(std::count(exportado.begin(), exportado.end(), '\n'), 4 + 8760);
  }

  void laDemostracionFallaSiNoPuedeHacerSuTrabajo() {
    const std::string fichero = marco_->datos.Directorio().Escribir("ocupado", "no soy un directorio");
    QVERIFY(!EjecutarDemostracion(QString::fromStdString(fichero)));
    const QString destino = QString::fromStdString(TextoDeRuta(marco_->datos.Directorio() / "salida"));
    std::filesystem::remove(marco_->datos.Directorio() / "Meteo/almeria.met");
    QVERIFY(!EjecutarDemostracion(destino));
    LiberarBaseDeLocalidades();
    const DirectorioTemporal vacio;
    IniciarConfiguracion(TextoDeRuta(vacio.Ruta())); // ni siquiera hay lista de localidades
    QVERIFY(!EjecutarDemostracion(destino));
  }

private:
  [[nodiscard]] QAction &Orden(const char *nombre) const { return marco_->Orden(nombre); }
  [[nodiscard]] int Ventanas() const { return static_cast<int>(marco_->marco.Controladores().size()); }

  std::optional<MarcoPrueba> marco_;
};

TESMO_PRUEBA_QT(PruebaMarco)
#include "Marco_prueba.moc"
