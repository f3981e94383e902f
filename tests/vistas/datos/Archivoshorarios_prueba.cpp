// La pestaña "Archivos horarios": el fichero que se escribe y el diálogo que pregunta dónde.

#include "tests/vistas/datos/Manejoarchivoshorarios.h"
#include "vistas/carta/Marcocarta.h"
#include "vistas/carta/Vistapsicrometrico.h"

#include <QAction>
#include <QDir>
#include <QFileInfo>
#include <QListWidget>
#include <QMessageBox>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTimer>

using namespace tesmo;
using namespace tesmo::prueba;

class PruebaArchivosHorarios : public QObject, private ManejoArchivosHorarios {
  Q_OBJECT

private slots:
  void init() { Abrir(); }
  void cleanup() { Soltar(); }

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

  void escribirNoQuitaLaNubeDeLaCarta() {
    ventana_->Localidad("Almería");
    ventana_->Pulsar("btnNubes");
    (void)Escribir("con_nube");
    QCOMPARE(ventana_->Controlador().DameVistaPsicrometrico().Contenido().marcas.size(), std::size_t(24));
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
};

TESMO_PRUEBA_QT(PruebaArchivosHorarios)
#include "Archivoshorarios_prueba.moc"
