// Importar ficheros climáticos: el diálogo, el marco y los selectores.

#include "core/Rutas.h"
#include "localidades/Ciudad.h"
#include "tests/vistas/intercambio/Manejoimportar.h"
#include "vistas/intercambio/Dibujoreloj.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QDropEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QTabWidget>
#include <QTableWidget>
#include <QUrl>

#include <cmath>

using namespace tesmo;
using namespace tesmo::prueba;

class PruebaImportar : public QObject, private ManejoImportar {
  Q_OBJECT

private slots:
  void init() { marco_.emplace(); }
  void cleanup() { marco_.reset(); }

  void unEpwSeImportaYLosSelectoresDeTodasLasVentanasLoEnsenan() {
    marco_->Orden("mnuNuevo").trigger();
    marco_->Numero(0).Provincia("Granada");
    marco_->Numero(0).Localidad("Granada");
    DialogoImportar &dialogo = Abrir();
    dialogo.Anadir({Escribir("prueba.epw", LineasEpw())});
    QTRY_VERIFY_WITH_TIMEOUT(!dialogo.Trabajando(), ESPERA);
    QCOMPARE(dialogo.Ficheros().size(), 1U);
    QVERIFY(dialogo.Ficheros()[0].legible);
    QVERIFY(Pagina(dialogo, "meAuditoria").contains(QStringLiteral("Veredicto")));
    Control<QLineEdit>(dialogo, "edLocalidad").setText(QStringLiteral("Sitio nuevo"));
    Control<QComboBox>(dialogo, "cbProvincia").setCurrentText(QStringLiteral("Granada"));
    Pulsar(dialogo, "btnImportar");
    QTRY_VERIFY_WITH_TIMEOUT(!dialogo.Trabajando(), ESPERA);
    const QString resumen = Pagina(dialogo, "meResumen");
    QVERIFY2(resumen.contains(QStringLiteral("Importadas: 1. No importadas: 0.")), qPrintable(resumen));
    QVERIFY(Hay(DameConfiguracion().RutaMeteo("Sitio_nuevo.met")) ||
            Hay(DameConfiguracion().RutaMeteo("Sitionuevo.met")));
    // La ventana que mira Granada conserva lo elegido y ya puede elegir la nueva.
    QCOMPARE(marco_->Numero(0).Localidad(), QStringLiteral("Granada"));
    QVERIFY(Ofrece(0, "Sitio nuevo"));
    QVERIFY(!Ofrece(1, "Sitio nuevo")); // mira otra provincia
    marco_->Numero(1).Provincia("Granada");
    QVERIFY(Ofrece(1, "Sitio nuevo"));
    marco_->Numero(1).Localidad("Sitio nuevo");
    QCOMPARE(marco_->Numero(1).Titulo(), QStringLiteral("Sitio nuevo-Granada"));
    QVERIFY(marco_->mensajes.apuntes.empty());
  }

  void unaLocalidadQueExisteSoloSeReemplazaSiSePide() {
    DialogoImportar &dialogo = Abrir();
    dialogo.Anadir({Escribir("prueba.epw", LineasEpw())});
    QTRY_VERIFY_WITH_TIMEOUT(!dialogo.Trabajando(), ESPERA);
    Control<QLineEdit>(dialogo, "edLocalidad").setText(QStringLiteral("Almería"));
    Control<QComboBox>(dialogo, "cbProvincia").setCurrentText(QStringLiteral("Almería"));
    Pulsar(dialogo, "btnImportar");
    QTRY_VERIFY_WITH_TIMEOUT(!dialogo.Trabajando(), ESPERA);
    QVERIFY(Pagina(dialogo, "meResumen").contains(QStringLiteral("No importadas: 1.")));
    QTest::keyClick(&Control<QWidget>(dialogo, "cbReemplazar"), Qt::Key_Space);
    Pulsar(dialogo, "btnImportar");
    QTRY_VERIFY_WITH_TIMEOUT(!dialogo.Trabajando(), ESPERA);
    QVERIFY2(Pagina(dialogo, "meResumen").contains(QStringLiteral("Importadas: 1.")),
             qPrintable(Pagina(dialogo, "meResumen")));
  }

  void elRelojElegidoMueveElDibujoYNoElDeclarado() {
    DialogoImportar &dialogo = Abrir();
    dialogo.Anadir({Escribir("pvgis.epw", LineasPvgisEpw())});
    QTRY_VERIFY_WITH_TIMEOUT(!dialogo.Trabajando(), ESPERA);
    auto &dibujo = Control<DibujoReloj>(dialogo, "dibReloj");
    const RelojFichero antes = dialogo.Ficheros()[0].reloj;
    QVERIFY(!dibujo.Elegido().sol.empty());
    QVERIFY(!Control<QDoubleSpinBox>(dialogo, "csDesfase").isEnabled());
    Control<QComboBox>(dialogo, "cbReloj").setCurrentIndex(4); // UTC, a mano
    auto &desfase = Control<QDoubleSpinBox>(dialogo, "csDesfase");
    QVERIFY(desfase.isEnabled());
    const double primera = dibujo.Declarado().haz.front().hora;
    const double elegida = dibujo.Elegido().haz.front().hora;
    desfase.setValue(antes.desfaseMin + 30.0);
    QCOMPARE(dibujo.Declarado().haz.front().hora, primera);
    QVERIFY(std::abs(dibujo.Elegido().haz.front().hora - elegida) > 0.4);
    QCOMPARE(dialogo.Ficheros()[0].reloj.desfaseMin, antes.desfaseMin + 30.0);
    QVERIFY(dialogo.Ficheros()[0].reloj.tiempo == TiempoEtiqueta::Utc);
  }

  void variosFicherosCadaUnoConLoSuyoYLaProvinciaParaTodos() {
    DialogoImportar &dialogo = Abrir();
    dialogo.Anadir({Escribir("uno.epw", LineasEpw()), Escribir("dos.csv", LineasTmy3()),
                    Escribir("nada.txt", {"esto no es un año"})});
    QTRY_VERIFY_WITH_TIMEOUT(!dialogo.Trabajando(), ESPERA);
    auto &tabla = Control<QTableWidget>(dialogo, "tablaFicheros");
    QCOMPARE(tabla.rowCount(), 3);
    QVERIFY(!dialogo.Ficheros()[2].legible);
    tabla.selectRow(2);
    QVERIFY(Control<QPushButton>(dialogo, "btnMapa").isEnabled());
    QVERIFY(!Control<QLineEdit>(dialogo, "edLocalidad").isEnabled());
    tabla.selectRow(0);
    QVERIFY(!Control<QPushButton>(dialogo, "btnMapa").isEnabled());
    Control<QComboBox>(dialogo, "cbProvincia").setCurrentText(QStringLiteral("Jaén"));
    Pulsar(dialogo, "btnProvinciaTodos");
    QCOMPARE(dialogo.Ficheros()[1].peticion.provincia, std::string("Jaén"));
    tabla.selectRow(2);
    Pulsar(dialogo, "btnQuitar");
    QCOMPARE(tabla.rowCount(), 2);
    QCOMPARE(dialogo.Ficheros().size(), 2U);
  }

  void detenerDejaLoQueFaltaParaOtraVez() {
    DialogoImportar &dialogo = Abrir();
    dialogo.Anadir({Escribir("uno.epw", LineasEpw()), Escribir("dos.csv", LineasTmy3())});
    QTRY_VERIFY_WITH_TIMEOUT(!dialogo.Trabajando(), ESPERA);
    auto &tabla = Control<QTableWidget>(dialogo, "tablaFicheros");
    for (int fila : {0, 1}) {
      tabla.selectRow(fila);
      Control<QLineEdit>(dialogo, "edLocalidad").setText(QStringLiteral("Sitio %1").arg(fila));
      Control<QComboBox>(dialogo, "cbProvincia").setCurrentText(QStringLiteral("Granada"));
    }
    Pulsar(dialogo, "btnImportar");
    Pulsar(dialogo, "btnCancelar");
    QTRY_VERIFY_WITH_TIMEOUT(!dialogo.Trabajando(), ESPERA);
    QVERIFY(Pagina(dialogo, "meResumen").contains(QStringLiteral("Se detuvo antes de acabar: quedan 2.")));
    Pulsar(dialogo, "btnImportar");
    QTRY_VERIFY_WITH_TIMEOUT(!dialogo.Trabajando(), ESPERA);
    QVERIFY2(Pagina(dialogo, "meResumen").contains(QStringLiteral("Importadas: 2.")),
             qPrintable(Pagina(dialogo, "meResumen")));
  }

  void elNombreYaImportadoSeRecuerdaAunqueSuFilaCambieOSeQuite_data() {
    QTest::addColumn<bool>("quitada");
    QTest::newRow("con otro nombre") << false;
    QTest::newRow("quitada") << true;
  }
  void elNombreYaImportadoSeRecuerdaAunqueSuFilaCambieOSeQuite() {
    QFETCH(const bool, quitada);
    DialogoImportar &dialogo = Abrir();
    const QString uno = Escribir("uno.epw", LineasEpw());
    AnadirComo(dialogo, uno, "Sitio");
    ImportarTodos(dialogo);
    QVERIFY(Pagina(dialogo, "meResumen").contains(QStringLiteral("Importadas: 1.")));
    if (quitada)
      Pulsar(dialogo, "btnQuitar");
    else
      Control<QLineEdit>(dialogo, "edLocalidad").setText(QStringLiteral("Otro sitio"));
    AnadirComo(dialogo, Escribir("dos.csv", LineasTmy3()), "Sitio");
    QTest::keyClick(&Control<QWidget>(dialogo, "cbReemplazar"), Qt::Key_Space);
    ImportarTodos(dialogo);
    QVERIFY2(Pagina(dialogo, "meResumen").contains(QStringLiteral("ya se ha importado con ese nombre")),
             qPrintable(Pagina(dialogo, "meResumen")));
    if (!quitada) return;
    Pulsar(dialogo, "btnQuitar");
    AnadirComo(dialogo, uno, "Sitio"); // el mismo fichero sí se puede corregir
    QTest::keyClick(&Control<QWidget>(dialogo, "cbReemplazar"), Qt::Key_Space);
    ImportarTodos(dialogo);
    QVERIFY2(Pagina(dialogo, "meResumen").contains(QStringLiteral("Importadas: 1.")),
             qPrintable(Pagina(dialogo, "meResumen")));
  }

  void zonaHuecosYHusoLleganAlFichero() {
    DialogoImportar &dialogo = Abrir();
    dialogo.Anadir({Escribir("prueba.epw", LineasEpw())});
    QTRY_VERIFY_WITH_TIMEOUT(!dialogo.Trabajando(), ESPERA);
    const FicheroImportable &fichero = dialogo.Ficheros()[0];
    auto &zona = Control<QComboBox>(dialogo, "cbZona");
    for (const char *cual : {ZONA_COSTA, ZONA_INTERIOR, ""}) {
      zona.setCurrentIndex(zona.findData(QString::fromLatin1(cual)));
      QCOMPARE(fichero.peticion.zona, std::string(cual));
    }
    QTest::keyClick(&Control<QWidget>(dialogo, "cbRellenar"), Qt::Key_Space);
    QVERIFY(fichero.huecosLargos == HuecosLargos::RellenarVecinos);
    Control<QComboBox>(dialogo, "cbReloj").setCurrentIndex(3); // hora oficial, a mano
    auto &huso = Control<QDoubleSpinBox>(dialogo, "csHuso");
    QVERIFY(huso.isEnabled());
    huso.setValue(2.5);
    QCOMPARE(fichero.reloj.husoHoras, 2.5);
    Control<QComboBox>(dialogo, "cbReloj").setCurrentIndex(4); // UTC: va al fichero escrito
    QVERIFY(huso.isEnabled());
    QCOMPARE(fichero.reloj.husoHoras, 2.5);
    Control<QComboBox>(dialogo, "cbReloj").setCurrentIndex(1); // oficial, el del fichero
    QVERIFY(!huso.isEnabled());
  }

  void losBotonesPreguntanPorFicherosYPorElMapaYCierran() {
    DialogoImportar &dialogo = Abrir();
    dialogo.Anadir({Escribir("nada.txt", {"esto no es un año"})});
    QTRY_VERIFY_WITH_TIMEOUT(!dialogo.Trabajando(), ESPERA);
    QCOMPARE(AlRechazar([&] { Pulsar(dialogo, "btnAnadir"); }), QStringLiteral("QFileDialog"));
    QCOMPARE(AlRechazar([&] { Pulsar(dialogo, "btnMapa"); }), QStringLiteral("forMapa"));
    QCOMPARE(dialogo.Ficheros().size(), 1U);
    QVERIFY(!dialogo.Ficheros()[0].legible);
    QCOMPARE(Control<QTabWidget>(dialogo, "fichasImportar").count(), 2);
    Pulsar(dialogo, "btnCerrar");
    QVERIFY(!dialogo.isVisible());
  }

  void soltarFicherosSobreElMarcoAbreElDialogo() {
    QMimeData datos;
    datos.setUrls({QUrl::fromLocalFile(Escribir("prueba.epw", LineasEpw()))});
    QDragEnterEvent entra(QPoint(50, 50), Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&marco_->marco, &entra);
    QVERIFY(entra.isAccepted());
    QDropEvent suceso(QPointF(50.0, 50.0), Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&marco_->marco, &suceso);
    auto *dialogo = marco_->marco.findChild<DialogoImportar *>();
    QVERIFY(dialogo != nullptr);
    QTRY_VERIFY_WITH_TIMEOUT(!dialogo->Trabajando(), ESPERA);
    QCOMPARE(dialogo->Ficheros().size(), 1U);
  }

  void soltarUnaCarpetaAnadeSusFicherosClimaticos() {
    for (const char *nombre :
         {"carpeta/a.epw", "carpeta/B.CSV", "carpeta/c.dat", "carpeta/leame.pdf", "carpeta/otra/c.epw"})
      marco_->datos.Directorio().Escribir(nombre, "nada");
    QMimeData datos;
    datos.setUrls({QUrl::fromLocalFile(Ruta("carpeta")), QUrl::fromLocalFile(Ruta("carpeta/leame.pdf"))});
    const QDropEvent suceso(QPointF(50.0, 50.0), Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
    QCOMPARE(FicherosArrastrados(suceso), QStringList({Ruta("carpeta/a.epw"), Ruta("carpeta/B.CSV"),
                                                       Ruta("carpeta/c.dat"), Ruta("carpeta/leame.pdf")}));
  }

  void unaLocalidadDeTreceColumnasSeOfreceAImportar() {
    marco_->datos.Directorio().Escribir("Meteo/nijar.met", Unir(LineasMetTrece()));
    marco_->Numero(0).Localidad("Níjar");
    QMessageBox *caja = nullptr;
    QTRY_VERIFY((caja = marco_->marco.findChild<QMessageBox *>(QStringLiteral("cajaTreceColumnas"))) !=
                nullptr);
    QVERIFY(caja->text().contains(QStringLiteral("nijar.met")));
    QTest::mouseClick(caja->buttons().constFirst(), Qt::LeftButton);
    auto *dialogo = marco_->marco.findChild<DialogoImportar *>();
    QVERIFY(dialogo != nullptr);
    QTRY_VERIFY_WITH_TIMEOUT(!dialogo->Trabajando(), ESPERA);
    QCOMPARE(dialogo->Ficheros()[0].peticion.nombre, std::string("Níjar"));
    QVERIFY(dialogo->Ficheros()[0].peticion.reemplazar);
    Pulsar(*dialogo, "btnImportar");
    QTRY_VERIFY_WITH_TIMEOUT(!dialogo->Trabajando(), ESPERA);
    QVERIFY2(Pagina(*dialogo, "meResumen").contains(QStringLiteral("Importadas: 1.")),
             qPrintable(Pagina(*dialogo, "meResumen")));
    QVERIFY(marco_->Numero(0).Controlador().HayDatos()); // la ventana que la mira la ha leído de nuevo
  }

  void unaLocalidadDeQuinceColumnasNoPreguntaNada() {
    marco_->Numero(0).Localidad("Almería");
    QCoreApplication::processEvents();
    QVERIFY(marco_->marco.findChild<QMessageBox *>(QStringLiteral("cajaTreceColumnas")) == nullptr);
  }

private:
  /// Añade @p ruta, la elige y la deja en Granada con el nombre @p localidad.
  static void AnadirComo(DialogoImportar &dialogo, const QString &ruta, const char *localidad) {
    dialogo.Anadir({ruta});
    QTRY_VERIFY_WITH_TIMEOUT(!dialogo.Trabajando(), ESPERA);
    auto &tabla = Control<QTableWidget>(dialogo, "tablaFicheros");
    tabla.selectRow(tabla.rowCount() - 1);
    Control<QLineEdit>(dialogo, "edLocalidad").setText(QString::fromUtf8(localidad));
    Control<QComboBox>(dialogo, "cbProvincia").setCurrentText(QStringLiteral("Granada"));
  }
  static void ImportarTodos(const DialogoImportar &dialogo) {
    Pulsar(dialogo, "btnImportar");
    QTRY_VERIFY_WITH_TIMEOUT(!dialogo.Trabajando(), ESPERA);
  }
  [[nodiscard]] static bool Hay(const std::string &ruta) {
    return std::filesystem::is_regular_file(RutaDesdeTexto(ruta));
  }
  [[nodiscard]] bool Ofrece(std::size_t ventana, const char *localidad) const {
    return marco_->Numero(ventana).Buscar<QComboBox>("cbLocalidades").findText(QString::fromUtf8(localidad)) >
           0;
  }
};

TESMO_PRUEBA_QT(PruebaImportar)
#include "Importar_prueba.moc"
