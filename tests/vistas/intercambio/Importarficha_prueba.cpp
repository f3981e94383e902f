// Lo que se elige de cada fichero que se importa: que llegue lo elegido, y sólo lo elegido.

#include "core/Rutas.h"
#include "localidades/Ciudad.h"
#include "tests/vistas/intercambio/Manejoimportar.h"
#include "vistas/comun/Casillanumero.h"
#include "vistas/intercambio/Dialogomapa.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QTableWidget>
#include <QTimer>

using namespace tesmo;
using namespace tesmo::prueba;

class PruebaImportarFicha : public QObject, private ManejoImportar {
  Q_OBJECT

private slots:
  void init() { marco_.emplace(); }
  void cleanup() { marco_.reset(); }

  void reemplazarConservaLaZonaQueNoSeToco() {
    const std::string gdr = DameConfiguracion().RutaMeteo("GDR.TXT");
    QVERIFY(Contenido(gdr).find("Almeria COSTA") != std::string::npos);
    DialogoImportar &dialogo = AbrirCon({Escribir("lejos.epw", EpwLejos())});
    Nombrar(dialogo, "Almería", "Almería");
    QTest::keyClick(&Control<QWidget>(dialogo, "cbReemplazar"), Qt::Key_Space);
    QCOMPARE(dialogo.Ficheros()[0].peticion.zona, std::string());
    Importar(dialogo);
    QVERIFY2(Pagina(dialogo, "meResumen").contains(QStringLiteral("Importadas: 1.")),
             qPrintable(Pagina(dialogo, "meResumen")));
    QVERIFY(Contenido(gdr).find("Almeria COSTA") != std::string::npos);
  }

  void laAltitudQueElFicheroNoDaSeDiceEnLaFicha() {
    LineasFichero lineas = LineasEpw();
    CambiarCampo(lineas[0], 9, "99999");
    DialogoImportar &dialogo = AbrirCon({Escribir("prueba.epw", lineas)});
    auto &altitud = Control<CasillaOpcional>(dialogo, "csAltitudSitio");
    QCOMPARE(altitud.text(), QStringLiteral("la del fichero"));
    altitud.selectAll();
    QTest::keyClicks(&altitud, QStringLiteral("1500"));
    Nombrar(dialogo, "Sitio alto", "Granada");
    Importar(dialogo);
    QVERIFY(!Pagina(dialogo, "meResumen").contains(QStringLiteral("no da una altitud creíble")));
    QCOMPARE(DameBaseDeLocalidades().BuscarLocalidad("Sitio alto")->decimo, 1500.0F);
  }

  void elResumenDiceLoQueSeDijoAlLeer() {
    LineasFichero lineas = LineasEpw();
    CambiarCampo(lineas[CABECERA_EPW + 100], 6, "99.9"); // la temperatura de una hora
    DialogoImportar &dialogo = AbrirCon({Escribir("prueba.epw", lineas)});
    Nombrar(dialogo, "Sitio nuevo", "Granada");
    Importar(dialogo);
    QVERIFY2(Pagina(dialogo, "meResumen").contains(QStringLiteral("línea 109")),
             qPrintable(Pagina(dialogo, "meResumen")));
  }

  void unHusoDeCuartosDeHoraNoSeRedondea() {
    DialogoImportar &dialogo = AbrirCon({Escribir("prueba.epw", LineasEpw())});
    const FicheroImportable &fichero = dialogo.Ficheros()[0];
    Control<QComboBox>(dialogo, "cbReloj").setCurrentIndex(3); // hora oficial, a mano
    Control<QDoubleSpinBox>(dialogo, "csHuso").setValue(5.75);
    QCOMPARE(fichero.reloj.husoHoras, 5.75);
    Control<QDoubleSpinBox>(dialogo, "csHuso").setValue(-14.0);
    QCOMPARE(fichero.reloj.husoHoras, -14.0);
  }

  void moverElDesfaseNoTocaElHuso() {
    LineasFichero lineas = LineasEpw();
    CambiarCampo(lineas[0], 8, "1.123"); // más cifras de las que se enseñan
    DialogoImportar &dialogo = AbrirCon({Escribir("prueba.epw", lineas)});
    Control<QComboBox>(dialogo, "cbReloj").setCurrentIndex(3);
    const double huso = dialogo.Ficheros()[0].reloj.husoHoras;
    QCOMPARE(huso, 1.123);
    Control<QDoubleSpinBox>(dialogo, "csDesfase").setValue(-45.0);
    QCOMPARE(dialogo.Ficheros()[0].reloj.desfaseMin, -45.0);
    QCOMPARE(dialogo.Ficheros()[0].reloj.husoHoras, huso);
  }

  /// Con un huso equivocado en la cabecera, lo que dicen los datos está a horas de la etiqueta.
  void unDesfaseDeHorasCabeEnSuCasilla() {
    DialogoImportar &dialogo = AbrirCon({Escribir("prueba.epw", LineasEpw())});
    Control<QComboBox>(dialogo, "cbReloj").setCurrentIndex(3);
    Control<QDoubleSpinBox>(dialogo, "csDesfase").setValue(-300.0);
    QCOMPARE(dialogo.Ficheros()[0].reloj.desfaseMin, -300.0);
  }

  void dosFicherosDelMismoNombreNoSePisanAunqueSePidaReemplazar() {
    DialogoImportar &dialogo =
        AbrirCon({Escribir("uno.epw", LineasEpw()), Escribir("dos.csv", LineasTmy3())});
    auto &tabla = Control<QTableWidget>(dialogo, "tablaFicheros");
    for (int fila : {0, 1}) {
      tabla.selectRow(fila);
      Nombrar(dialogo, "Almería", "Almería");
      QTest::keyClick(&Control<QWidget>(dialogo, "cbReemplazar"), Qt::Key_Space);
    }
    for (int veces = 0; veces < 2; ++veces) { // insistir tampoco la pisa
      Importar(dialogo);
      QVERIFY2(Pagina(dialogo, "meResumen").contains(QStringLiteral("Importadas: 1. No importadas: 1.")),
               qPrintable(Pagina(dialogo, "meResumen")));
      QVERIFY(Pagina(dialogo, "meResumen").contains(QStringLiteral("póngale otro")));
    }
    Nombrar(dialogo, "Otra", "Almería");
    Importar(dialogo);
    QVERIFY(Pagina(dialogo, "meResumen").contains(QStringLiteral("Importadas: 2. No importadas: 0.")));
  }

  void rehacerElMapaConservaLoQueLaPersonaToco() {
    DialogoImportar &dialogo = AbrirCon({Escribir("datos.txt", LineasDelimitado())});
    PonMapa(dialogo, MapaDePrueba());
    const FicheroImportable &fichero = dialogo.Ficheros()[0];
    const std::string nombre = fichero.peticion.nombre;
    Control<QComboBox>(dialogo, "cbProvincia").setCurrentText(QStringLiteral("Jaén"));
    auto &zona = Control<QComboBox>(dialogo, "cbZona");
    zona.setCurrentIndex(zona.findData(QString::fromLatin1(ZONA_COSTA)));
    for (const char *casilla : {"cbReemplazar", "cbRellenar"})
      QTest::keyClick(&Control<QWidget>(dialogo, casilla), Qt::Key_Space);
    Control<CasillaOpcional>(dialogo, "csAltitudSitio").PonValor(600.0);
    PonMapa(dialogo, MapaDePrueba() + "nombre = Otro sitio\n");
    QCOMPARE(fichero.altitud, std::optional(600.0));
    QCOMPARE(fichero.peticion.provincia, std::string("Jaén"));
    QCOMPARE(fichero.peticion.zona, std::string(ZONA_COSTA));
    QVERIFY(fichero.peticion.reemplazar);
    QVERIFY(fichero.huecosLargos == HuecosLargos::RellenarVecinos);
    QCOMPARE(fichero.peticion.nombre, std::string("Otro sitio")); // no lo había tocado: el del mapa nuevo
    QVERIFY(nombre != fichero.peticion.nombre);
  }

  void laProvinciaNuevaSeOfreceAlFicheroSiguiente() {
    DialogoImportar &dialogo = AbrirCon({Escribir("uno.epw", LineasEpw())});
    auto &provincias = Control<QComboBox>(dialogo, "cbProvincia");
    QCOMPARE(provincias.findText(QStringLiteral("Clientes")), -1);
    Nombrar(dialogo, "Sitio nuevo", "Clientes");
    Importar(dialogo);
    QVERIFY(provincias.findText(QStringLiteral("Clientes")) >= 0);
  }

private:
  [[nodiscard]] DialogoImportar &AbrirCon(const QStringList &rutas) const {
    DialogoImportar &dialogo = Abrir();
    dialogo.Anadir(rutas);
    Esperar(dialogo);
    return dialogo;
  }
  static void Esperar(const DialogoImportar &dialogo) {
    QTRY_VERIFY_WITH_TIMEOUT(!dialogo.Trabajando(), ESPERA);
  }
  static void Importar(const DialogoImportar &dialogo) {
    Pulsar(dialogo, "btnImportar");
    Esperar(dialogo);
  }
  static void Nombrar(const DialogoImportar &dialogo, const char *nombre, const char *provincia) {
    Control<QLineEdit>(dialogo, "edLocalidad").setText(QString::fromUtf8(nombre));
    Control<QComboBox>(dialogo, "cbProvincia").setCurrentText(QString::fromUtf8(provincia));
  }
  /// Un EPW lejos de todas las normales del programa: nadie propone su zona.
  [[nodiscard]] static LineasFichero EpwLejos() {
    LineasFichero lineas = LineasEpw();
    CambiarCampo(lineas[0], 6, "48.0");
    return lineas;
  }
  /// Abre el diálogo del mapa del fichero elegido, le pone @p texto y lo acepta.
  void PonMapa(const DialogoImportar &dialogo, const std::string &texto) {
    const QString ruta = QString::fromStdString(marco_->datos.Directorio().Escribir("uno.mapa", texto));
    bool aceptado = false;
    QTimer::singleShot(0, this, [&] {
      auto *deMapa = qobject_cast<DialogoMapa *>(QApplication::activeModalWidget());
      if (deMapa == nullptr) return;
      deMapa->AbrirMapa(ruta);
      deMapa->accept();
      aceptado = deMapa->result() == QDialog::Accepted;
      if (!aceptado) deMapa->reject();
    });
    Pulsar(dialogo, "btnMapa");
    QVERIFY(aceptado);
    Esperar(dialogo);
    QVERIFY(dialogo.Ficheros()[0].legible);
  }
};

TESMO_PRUEBA_QT(PruebaImportarFicha)
#include "Importarficha_prueba.moc"
