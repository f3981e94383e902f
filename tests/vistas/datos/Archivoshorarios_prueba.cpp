// La pestaña "Archivos horarios": la lista de variables y el fichero que se escribe.

#include "core/Rutas.h"
#include "tests/comun/ventanas/Manejo.h"
#include "vistas/carta/Marcocarta.h"
#include "vistas/carta/Vistapsicrometrico.h"

#include <QAction>
#include <QCheckBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTimer>
#include <optional>

using namespace tesmo;
using namespace tesmo::prueba;

namespace {

const QString TS = QStringLiteral("Temperatura seca (ºC)");
const QString HR = QStringLiteral("Humedad relativa (%)");
const QString VV = QStringLiteral("Velocidad del viento (m/s)");

constexpr const char *LINEA_DE_SUPERFICIE =
    "Orientación: 0.000000  Inclinación: 90.000000 Albedo: 0.200000\n";

/// Apunta con qué cursor se vio cada mensaje.
class CursorAlAvisar : public PresentadorMensajes {
public:
  void Presentar(const std::string &, const std::string &, Icono) override {
    const QCursor *cursor = QApplication::overrideCursor();
    formas.push_back(cursor == nullptr ? Qt::ArrowCursor : cursor->shape());
  }
  std::vector<int> formas;
};

} // namespace

class PruebaArchivosHorarios : public QObject {
  Q_OBJECT

private slots:
  void init() {
    marco_.emplace();
    ventana_.emplace(marco_->Numero(0));
    auto &paginas = ventana_->Buscar<QTabWidget>("pcProgramas");
    paginas.setCurrentWidget(&ventana_->Buscar<QWidget>("tsArchivosHorarios"));
    punto_.emplace('.');
  }
  void cleanup() {
    QVERIFY(QApplication::overrideCursor() == nullptr);
    punto_.reset();
    ventana_.reset();
    marco_.reset();
  }

  void lasCasillasLlevanElNombreYElRotuloDeSuColumna() {
    const std::vector<std::pair<const char *, const char *>> casillas{
        {"cbTemSec", "Temperatura seca (ºC)"},
        {"cbRadDir", "Radiación solar directa (W/m²)"},
        {"cbRadDif", "Radiación solar difusa (W/m²)"},
        {"cbHumAbs", "Humedad absoluta (kg/kg)"},
        {"cbVelVie", "Velocidad del viento (m/s)"},
        {"cbDirVie", "Dirección del viento (º N)"},
        {"cbCenit", "Cenith (º)"},
        {"cbAltura", "Altura (º)"},
        {"cbAzimut", "Azimuth (º)"},
        {"cbTemRoc", "Temperatura de rocío (ºC)"},
        {"cbTemCie", "Temperatura de cielo (ºC)"},
        {"cbTemHum", "Temperatura húmeda (ºC)"},
        {"cbHumRel", "Humedad relativa (%)"},
        {"cbEnt", "Entalpía (J/kg)"},
        {"cbVolEsp", "Volumen específico (m³/kg)"},
        {"cbCalEsp", "Calor específico (J/(kg K))"},
        {"cbDirNor", "Directa normal (W/m²)"},
        {"cbDir", "Directa (W/m²)"},
        {"cbDif", "Difusa (W/m²)"},
        {"cbRef", "Reflejada (W/m²)"},
        {"cbGlo", "Global (W/m²)"},
    };
    for (const auto &[nombre, rotulo] : casillas) {
      const QString texto = QString::fromUtf8(rotulo);
      QCOMPARE(ventana_->Casilla(nombre).text(), texto);
      ventana_->Marcar(nombre);
      QCOMPARE(Lista(), QStringList(texto));
      ventana_->Marcar(nombre, false);
      QCOMPARE(Lista(), QStringList());
    }
  }

  void laPestanaYSusGruposSeLlamanComoSeDice() {
    const auto &paginas = ventana_->Buscar<QTabWidget>("pcProgramas");
    QCOMPARE(paginas.tabText(paginas.currentIndex()), QStringLiteral("Archivos horarios  "));
    const auto titulo = [this](const char *caja) { return ventana_->Buscar<QGroupBox>(caja).title(); };
    QCOMPARE(titulo("gbVariablesSeleccionadas"), QStringLiteral(" Variables seleccionadas  "));
    QCOMPARE(titulo("gbOpcionesFichero"), QStringLiteral(" Opciones fichero  "));
    QCOMPARE(titulo("gbSeparador"), QStringLiteral(" Separador   "));
    QCOMPARE(titulo("gbBasicasExp"), QStringLiteral("Magnitudes básicas"));
    QCOMPARE(titulo("gbPsicrometricasExp"), QStringLiteral("Magnitudes psicrométricas"));
    QCOMPARE(titulo("gbRadiacionExp"), QStringLiteral("Magnitudes radiación"));
  }

  void alPrincipioHayTabuladorCabeceraYNingunaVariable() {
    QVERIFY(ventana_->Buscar<QRadioButton>("rbTabulador").isChecked());
    QVERIFY(ventana_->Casilla("cbCabecera").isChecked());
    QCOMPARE(Lista(), QStringList());
  }

  void laListaSigueElOrdenEnQueSeMarcaYNingunaSeRepite() {
    Elegir({"cbHumRel", "cbTemSec", "cbVelVie"});
    QCOMPARE(Lista(), QStringList({HR, TS, VV}));
    ventana_->Marcar("cbTemSec", false);
    QCOMPARE(Lista(), QStringList({HR, VV}));
    ventana_->Marcar("cbTemSec");
    QCOMPARE(Lista(), QStringList({HR, VV, TS}));
    emit ventana_->Casilla("cbTemSec").toggled(true); // otra vez la misma
    QCOMPARE(Lista(), QStringList({HR, VV, TS}));
  }

  void subirMueveSoloLaPrimeraElegidaQueNoEstaArriba() {
    Elegir({"cbTemSec", "cbHumRel", "cbVelVie"});
    Seleccionar({1, 2});
    ventana_->Pulsar("btnSubir");
    QCOMPARE(Lista(), QStringList({HR, TS, VV}));
    QCOMPARE(Seleccionadas(), QStringList({HR, VV}));
    ventana_->Pulsar("btnSubir"); // la de arriba se salta: sube la otra
    QCOMPARE(Lista(), QStringList({HR, VV, TS}));
    QCOMPARE(Seleccionadas(), QStringList({HR, VV}));
  }

  void bajarMueveSoloLaPrimeraElegidaQueNoEstaAbajo() {
    Elegir({"cbTemSec", "cbHumRel", "cbVelVie"});
    Seleccionar({0, 2});
    ventana_->Pulsar("btnBajar");
    QCOMPARE(Lista(), QStringList({HR, TS, VV}));
    QCOMPARE(Seleccionadas(), QStringList({TS, VV}));
    Seleccionar({2});
    ventana_->Pulsar("btnBajar");
    QCOMPARE(Lista(), QStringList({HR, TS, VV}));
    QCOMPARE(Seleccionadas(), QStringList(VV));
  }

  void sinElegirNingunaSubirYBajarNoMuevenNada() {
    Elegir({"cbTemSec", "cbHumRel"});
    ListaVariables().clearSelection();
    ventana_->Pulsar("btnSubir");
    ventana_->Pulsar("btnBajar");
    QCOMPARE(Lista(), QStringList({TS, HR}));
  }

  // El arrastre con ratón de verdad pide un servidor de ventanas: aquí, sólo lo que la lista hace al soltar.
  void alMoverUnaFilaComoAlSoltarlaLaListaSigueElNuevoOrden() {
    Elegir({"cbTemSec", "cbHumRel", "cbVelVie"});
    QCOMPARE(ListaVariables().dragDropMode(), QAbstractItemView::InternalMove);
    QVERIFY(ListaVariables().model()->moveRow({}, 0, {}, 3));
    QCOMPARE(Lista(), QStringList({HR, VV, TS}));
    ventana_->Marcar("cbTemSec", false);
    QCOMPARE(Lista(), QStringList({HR, VV}));
  }

  void escribeLoQueSeVeEnLaLista() {
    ventana_->Localidad("Almería");
    Elegir({"cbTemSec", "cbHumRel"});
    ventana_->Poner("csHorFin", 2);
    QCOMPARE(Escribir("a"), std::string("Almería\n36.840000 -2.390000 21.000000\n") + LINEA_DE_SUPERFICIE +
                                "mes\tdia\thora\tts\thr\t\n"
                                "1\t1\t1\t10.0\t50.0\t\n"
                                "1\t1\t2\t10.5\t50.0\t\n");
    QVERIFY(marco_->mensajes.apuntes.empty());
  }

  void elSeparadorEsElDelBotonMarcado_data() {
    QTest::addColumn<QString>("boton");
    QTest::addColumn<QString>("linea");
    QTest::newRow("espacio") << "rbEspacio"
                             << "1 1 1 10.0 ";
    QTest::newRow("tabulador") << "rbTabulador"
                               << "1\t1\t1\t10.0\t";
    QTest::newRow("coma") << "rbComa"
                          << "1,1,1,10.0,";
    QTest::newRow("punto y coma") << "rbPuntoComa"
                                  << "1;1;1;10.0;";
    QTest::newRow("ninguno") << ""
                             << "11110.0";
  }
  void elSeparadorEsElDelBotonMarcado() {
    QFETCH(const QString, boton);
    QFETCH(const QString, linea);
    ventana_->Localidad("Almería");
    Elegir({"cbTemSec"});
    ventana_->Poner("csHorFin", 1);
    if (boton.isEmpty()) {
      auto &puesto = ventana_->Buscar<QRadioButton>("rbTabulador");
      puesto.setAutoExclusive(false);
      puesto.setChecked(false);
    } else {
      QTest::mouseClick(&ventana_->Buscar<QRadioButton>(boton.toLatin1().constData()), Qt::LeftButton);
    }
    const std::string texto = Escribir("s");
    QCOMPARE(QString::fromStdString(texto).split('\n').at(4), linea);
  }

  void laComaDecimalConComasDeSeparadorSeEscribeComoViene() {
    const ConSeparador coma(',');
    ventana_->Localidad("Almería");
    Elegir({"cbTemSec"});
    ventana_->Poner("csHorFin", 2);
    QTest::mouseClick(&ventana_->Buscar<QRadioButton>("rbComa"), Qt::LeftButton);
    const std::string texto = Escribir("c");
    QVERIFY(texto.ends_with("1,1,1,10,0,\n1,1,2,10,5,\n"));
    QVERIFY(texto.find("36.840000") != std::string::npos); // la cabecera, siempre con punto
  }

  void sinCabeceraEmpiezaPorLaSuperficie() {
    ventana_->Localidad("Almería");
    ventana_->Marcar("cbCabecera", false);
    QVERIFY(Escribir("b").starts_with(LINEA_DE_SUPERFICIE));
  }

  void unPeriodoDeUnaHoraEscribeUnaSolaLineaDeDatos() {
    ventana_->Localidad("Almería");
    ventana_->Poner("csHorFin", 1);
    const std::string texto = Escribir("u");
    QCOMPARE(std::count(texto.begin(), texto.end(), '\n'), 5);
    QVERIFY(texto.ends_with("mes\tdia\thora\t\n1\t1\t1\t\n"));
  }

  void laListaVaciaEscribeSoloLasFechasYNoDaElMensaje57() {
    ventana_->Localidad("Almería");
    QVERIFY(Escribir("v").ends_with("1\t1\t24\t\n"));
    QVERIFY(marco_->mensajes.apuntes.empty());
  }

  void elAnioEnteroNoPasaDelMesDoce() {
    ventana_->Localidad("Almería");
    ventana_->PonAnioEntero();
    const std::string texto = Escribir("anio");
    QCOMPARE(std::count(texto.begin(), texto.end(), '\n'), 4 + 8760);
    QVERIFY(texto.ends_with("12\t31\t24\t\n"));
  }

  void laLineaDeEstadoDiceQueDondeYCuantasLineas() {
    QSignalSpy estado(&ventana_->Controlador().DameFormulario(), &TforProgramas::estado);
    ventana_->Localidad("Almería");
    Elegir({"cbTemSec", "cbHumRel"});
    const std::string texto = Escribir("dicho");
    const QString dicho = estado.last().at(0).toString();
    QVERIFY(dicho.contains(QStringLiteral("Almería")));
    QVERIFY(dicho.contains(QStringLiteral("2 variables")));
    QVERIFY(dicho.contains(QStringLiteral("24 horas")));
    QVERIFY(dicho.contains(QStringLiteral("28 líneas")));
    QCOMPARE(std::count(texto.begin(), texto.end(), '\n'), 28);
    QVERIFY(dicho.contains(QDir::toNativeSeparators(Ruta("dicho.met"))));
  }

  void deUnFicheroCortadoSeDiceCuantasHorasHabia() {
    QSignalSpy estado(&ventana_->Controlador().DameFormulario(), &TforProgramas::estado);
    ventana_->Provincia("Cádiz");
    ventana_->Localidad("Tarifa");
    (void)Escribir("t");
    QVERIFY(estado.last().at(0).toString().contains(QStringLiteral("100 horas")));
  }

  void siNoSePuedeCrearDaElMensaje60ConLaRuta() {
    ventana_->Localidad("Almería");
    const QString ruta = Ruta("no_existe/a.met");
    auto *dialogo = Pedir();
    emit dialogo->fileSelected(ruta);
    QCOMPARE(marco_->mensajes.apuntes.size(), 1U);
    QCOMPARE(marco_->mensajes.apuntes[0].texto,
             "El fichero de resultado " + ruta.toStdString() + " no se ha podido abrir.\n ");
    QVERIFY(!QFileInfo::exists(ruta));
  }

  void sinLocalidadDaElMensaje59YNoEscribeNada() {
    Pedir();
    emit Dialogo()->fileSelected(Ruta("nada.met"));
    QCOMPARE(
        marco_->mensajes.apuntes.at(0).texto,
        std::string("El fichero meteorológico asociado a la ciudad Localidad no se ha podido abrir.\n "));
    QVERIFY(!QFileInfo::exists(Ruta("nada.met")));
  }

  void siElFicheroClimaticoDesapareceDaElMensaje59YNoEscribeNada() {
    ventana_->Localidad("Almería");
    std::filesystem::remove(marco_->datos.Directorio() / "Meteo/almeria.met");
    emit Pedir()->fileSelected(Ruta("nada.met"));
    QCOMPARE(marco_->mensajes.apuntes.size(), 1U);
    QVERIFY(marco_->mensajes.apuntes[0].texto.find("Almería") != std::string::npos);
    QVERIFY(!QFileInfo::exists(Ruta("nada.met")));
  }

  void siElFicheroClimaticoDesapareceLasDemasPestanasNoSiguenEnsenandolo() {
    ventana_->Localidad("Almería");
    ventana_->Marcar("cbTS");
    ventana_->Pulsar("btnSimulacion");
    ventana_->Pulsar("btnNubes");
    Vistapsicrometrico &carta = ventana_->Controlador().DameVistaPsicrometrico();
    QVERIFY(ventana_->Chart().NumeroSeries() > 0 && !carta.Contenido().marcas.empty());
    std::filesystem::remove(marco_->datos.Directorio() / "Meteo/almeria.met");
    emit Pedir()->fileSelected(Ruta("nada.met"));
    QCOMPARE(marco_->mensajes.apuntes.size(), 1U);
    QVERIFY(!ventana_->Controlador().HayDatos());
    QCOMPARE(ventana_->Chart().NumeroSeries(), 0);
    QVERIFY(carta.Contenido().marcas.empty());
    QCOMPARE(ventana_->Buscar<QLineEdit>("edMaximo").text(), QString());
  }

  void escribirNoQuitaLaNubeDeLaCarta() {
    ventana_->Localidad("Almería");
    ventana_->Pulsar("btnNubes");
    (void)Escribir("con_nube");
    QCOMPARE(ventana_->Controlador().DameVistaPsicrometrico().Contenido().marcas.size(), std::size_t(24));
  }

  void conUnaCasillaDeLaSuperficieVaciaDaElMensaje58YNoEscribeNada_data() {
    QTest::addColumn<QString>("casilla");
    QTest::addColumn<QString>("rotulo");
    QTest::newRow("inclinación") << "edInclinacion"
                                 << "Inclinación";
    QTest::newRow("orientación") << "edOrientacion"
                                 << "Orientación";
    QTest::newRow("albedo") << "edAlbedo"
                            << "Albedo";
  }
  void conUnaCasillaDeLaSuperficieVaciaDaElMensaje58YNoEscribeNada() {
    QFETCH(const QString, casilla);
    QFETCH(const QString, rotulo);
    ventana_->Localidad("Almería");
    auto &texto = ventana_->Buscar<QLineEdit>(casilla.toLatin1().constData());
    texto.selectAll();
    QTest::keyClick(&texto, Qt::Key_Backspace);
    emit Pedir()->fileSelected(Ruta("nada.met"));
    QCOMPARE(marco_->mensajes.apuntes.size(), 1U);
    QCOMPARE(marco_->mensajes.apuntes[0].texto,
             "La casilla de " + rotulo.toStdString() + " no tiene ningún valor. Introduzca uno.\n ");
    QVERIFY(!QFileInfo::exists(Ruta("nada.met")));
  }

  void mientrasEscribeElCursorEsElRelojDeArena() {
    ventana_->Localidad("Almería");
    int vistas = 0;
    connect(&ventana_->Controlador().DameFormulario(), &TforProgramas::estado, this, [&vistas] {
      if (const QCursor *cursor = QApplication::overrideCursor())
        vistas += cursor->shape() == Qt::WaitCursor ? 1 : 0;
    });
    (void)Escribir("reloj");
    QCOMPARE(vistas, 1); // al decir lo escrito
  }

  void conElMensaje59ElCursorEsElRelojDeArena() {
    ventana_->Localidad("Almería");
    std::filesystem::remove(marco_->datos.Directorio() / "Meteo/almeria.met");
    CursorAlAvisar presentador;
    DameMensajes().PonPresentador(&presentador);
    emit Pedir()->fileSelected(Ruta("nada.met"));
    DameMensajes().PonPresentador(&marco_->mensajes);
    QCOMPARE(presentador.formas, std::vector<int>{Qt::WaitCursor});
  }

  void elDialogoProponeElNombreDeLaLocalidadYLaExtensionMet() {
    ventana_->Localidad("Níjar");
    const QFileDialog *dialogo = Pedir();
    QCOMPARE(dialogo->defaultSuffix(), QStringLiteral("met"));
    QCOMPARE(dialogo->nameFilters(), QStringList(QStringLiteral("Resultados meteorológicos(*.MET)")));
    QCOMPARE(QFileInfo(dialogo->selectedFiles().at(0)).fileName(), QStringLiteral("Níjar.met"));
    QCOMPARE(dialogo->acceptMode(), QFileDialog::AcceptSave);
  }

  void elDialogoEmpiezaEnResultadosYRecuerdaElUltimoDirectorio() {
    ventana_->Localidad("Almería");
    std::filesystem::create_directory(marco_->datos.Directorio() / "Otro");
    emit Pedir()->fileSelected(Ruta("Otro/x.met"));
    Cerrar();
    QCOMPARE(Pedir()->directory().absolutePath(), QDir(Ruta("Otro")).absolutePath());
    Cerrar();
    std::filesystem::remove_all(marco_->datos.Directorio() / "Otro");
    QCOMPARE(Pedir()->directory().absolutePath(), QDir(Ruta("Resultados")).absolutePath());
  }

  void sobreUnFicheroQueExistePreguntaElDialogo_data() {
    QTest::addColumn<bool>("reemplazar");
    QTest::newRow("no") << false;
    QTest::newRow("sí") << true;
  }
  void sobreUnFicheroQueExistePreguntaElDialogo() {
    QFETCH(const bool, reemplazar);
    ventana_->Localidad("Almería");
    marco_->datos.Directorio().Escribir("Resultados/ya.met", "lo que había\n");
    bool preguntado = false;
    QTimer::singleShot(0, this, [&] {
      auto *caja = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
      preguntado = caja != nullptr;
      if (caja) caja->button(reemplazar ? QMessageBox::Yes : QMessageBox::No)->click();
    });
    auto *dialogo = Pedir();
    dialogo->selectFile(Ruta("Resultados/ya.met"));
    QVERIFY(QMetaObject::invokeMethod(dialogo, "accept"));
    QVERIFY(preguntado);
    const std::string texto = Contenido(marco_->datos.Directorio() / "Resultados/ya.met");
    QCOMPARE(texto == "lo que había\n", !reemplazar);
    if (reemplazar) QVERIFY(texto.starts_with("Almería\n"));
  }

  void cancelarElDialogoNoEscribeNada() {
    ventana_->Localidad("Almería");
    QTest::keyClick(Pedir(), Qt::Key_Escape);
    QVERIFY(std::filesystem::is_empty(marco_->datos.Directorio() / "Resultados"));
  }

  void cadaVentanaEscribeLoSuyo() {
    ventana_->Localidad("Almería");
    Elegir({"cbTemSec"});
    marco_->marco.findChild<QAction *>(QStringLiteral("mnuNuevo"))->trigger();
    const Ventana otra = marco_->Numero(1);
    otra.Provincia("Granada");
    otra.Localidad("Granada");
    QCOMPARE(otra.Buscar<QListWidget>("lbListaVariables").count(), 0);
    QVERIFY(Escribir("mia").ends_with("1\t1\t24\t21.5\t\n"));
  }

private:
  [[nodiscard]] QListWidget &ListaVariables() const {
    return ventana_->Buscar<QListWidget>("lbListaVariables");
  }
  [[nodiscard]] QStringList Lista() const {
    QStringList textos;
    for (int i = 0; i < ListaVariables().count(); ++i) textos << ListaVariables().item(i)->text();
    return textos;
  }
  [[nodiscard]] QStringList Seleccionadas() const {
    QStringList textos;
    for (int i = 0; i < ListaVariables().count(); ++i) {
      if (ListaVariables().item(i)->isSelected()) textos << ListaVariables().item(i)->text();
    }
    return textos;
  }
  void Seleccionar(const QList<int> &filas) const {
    ListaVariables().clearSelection();
    for (const int fila : filas) ListaVariables().item(fila)->setSelected(true);
  }
  void Elegir(const std::vector<const char *> &casillas) const {
    for (const char *casilla : casillas) ventana_->Marcar(casilla);
  }
  [[nodiscard]] QFileDialog *Dialogo() const {
    return ventana_->Controlador().DameFormulario().findChild<QFileDialog *>(QStringLiteral("sdGuardarRes"));
  }
  QFileDialog *Pedir() const {
    ventana_->Pulsar("btnEscribir");
    if (Dialogo() == nullptr) qFatal("no se abrió sdGuardarRes");
    return Dialogo();
  }
  void Cerrar() const { delete Dialogo(); }
  /// Pulsa "Escribir", elige un fichero del directorio base (sin extensión) y devuelve lo escrito.
  std::string Escribir(const char *nombre) const {
    auto *dialogo = Pedir();
    dialogo->setDirectory(Ruta(""));
    dialogo->selectFile(QString::fromLatin1(nombre));
    QMetaObject::invokeMethod(dialogo, "accept");
    return Contenido(marco_->datos.Directorio() / (std::string(nombre) + ".met"));
  }
  [[nodiscard]] QString Ruta(const char *nombre) const {
    return QString::fromStdString(TextoDeRuta(marco_->datos.Directorio() / nombre));
  }

  std::optional<MarcoPrueba> marco_;
  std::optional<Ventana> ventana_;
  std::optional<ConSeparador> punto_;
};

TESMO_PRUEBA_QT(PruebaArchivosHorarios)
#include "Archivoshorarios_prueba.moc"
