// El diálogo del mapa de columnas: del texto a la tabla, de la tabla al mapa y del mapa al fichero.

#include "intercambio/Ficheroimportable.h"
#include "intercambio/formatos/Clavesmapa.h"
#include "tests/comun/ventanas/Manejo.h"
#include "tests/intercambio/formatos/Generadorclima.h"
#include "vistas/comun/Casillanumero.h"
#include "vistas/intercambio/Dialogomapa.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>

#include <cmath>
#include <memory>

using namespace tesmo;
using namespace tesmo::prueba;

class PruebaDialogoMapa : public QObject {
  Q_OBJECT

private slots:
  void elMapaSeEscribeYSeVuelveAUsar() {
    const QString mapa = QString::fromStdString(raiz_.Escribir("uno.mapa", MapaDePrueba()));
    DialogoMapa dialogo(Delimitado(), nullptr);
    QVERIFY(dialogo.AbrirMapa(mapa));
    const MapaColumnas leido = dialogo.Mapa();
    QCOMPARE(leido.columnas.size(), LeerMapa(MapaDePrueba()).mapa->columnas.size());
    QVERIFY(dialogo.GuardarMapa(Ruta("dos.mapa")));
    DialogoMapa otro(Delimitado(), nullptr);
    QVERIFY(otro.AbrirMapa(Ruta("dos.mapa")));
    QCOMPARE(EscribirMapa(otro.Mapa()), EscribirMapa(leido));
    ComprobarQueSeLee(otro);
  }

  void elMapaSeHaceAManoControlAControl() {
    DialogoMapa dialogo(Delimitado(), nullptr);
    Elegir(dialogo, "cbSeparador", "punto y coma");
    Elegir(dialogo, "cbDecimal", "coma");
    Elegir(dialogo, "cbOrden", "día mes año");
    Control<QLineEdit>(dialogo, "edSinDato").setText(QStringLiteral("-9999"));
    Control<QLineEdit>(dialogo, "edNombre").setText(QStringLiteral("Almena"));
    Control<CasillaReal>(dialogo, "csLatitud").setValue(37.18);
    Control<CasillaReal>(dialogo, "csLongitud").setValue(-3.78);
    Control<CasillaOpcional>(dialogo, "csAltitud").PonValor(567.0);
    Elegir(dialogo, "cbTiempo", "oficial");
    Control<CasillaOpcional>(dialogo, "csHusoMapa").PonValor(1.0);
    Control<CasillaReal>(dialogo, "csDesfaseMapa").setValue(-30.0);
    QCOMPARE(Control<QTableWidget>(dialogo, "tablaColumnas").rowCount(), 8);
    ElegirEnFila(dialogo, 1, PAPEL, "Fecha");
    ElegirConUnidad(dialogo, 2, Campo::TemperaturaSeca, "°C");
    ElegirConUnidad(dialogo, 3, Campo::HumedadRelativa, "%");
    ElegirConUnidad(dialogo, 4, Campo::Presion, "hPa");
    ElegirConUnidad(dialogo, 5, Campo::GlobalHorizontal, "W/m²");
    ElegirConUnidad(dialogo, 6, Campo::DifusaHorizontal, "W/m²");
    ElegirConUnidad(dialogo, 7, Campo::VelocidadViento, "km/h");
    ElegirConUnidad(dialogo, 8, Campo::DireccionViento, "°");
    const MapaColumnas esperado = *LeerMapa(MapaDePrueba()).mapa;
    const MapaColumnas mapa = dialogo.Mapa();
    QCOMPARE(mapa.columnaFecha, esperado.columnaFecha);
    QCOMPARE(mapa.sinDato, -9999.0);
    QVERIFY(mapa.reloj == esperado.reloj);
    QVERIFY(mapa.orden == esperado.orden);
    QCOMPARE(mapa.columnas.size(), esperado.columnas.size());
    ComprobarQueSeLee(dialogo);
  }

  void cambiarLaCabeceraConservaLoElegido() {
    DialogoMapa dialogo(Delimitado(), nullptr);
    Elegir(dialogo, "cbSeparador", "punto y coma");
    ElegirEnFila(dialogo, 1, PAPEL, "Fecha");
    Control<CasillaEntera>(dialogo, "csCabecera").setValue(0);
    QCOMPARE(EnFila(dialogo, 1, PAPEL).currentText(), QStringLiteral("Fecha"));
    const auto &tabla = Control<QTableWidget>(dialogo, "tablaColumnas");
    QCOMPARE(tabla.item(1, 2)->text(), QStringLiteral("Temp")); // sin cabecera, la primera línea es de datos
    QCOMPARE(dialogo.Mapa().lineasCabecera, 0);
  }

  void unMapaSinColumnasNoSeAcepta() {
    DialogoMapa dialogo(Delimitado(), nullptr);
    dialogo.accept();
    QCOMPARE(dialogo.result(), static_cast<int>(QDialog::Rejected));
    QVERIFY(!Control<QLabel>(dialogo, "lbAviso").text().isEmpty());
    QVERIFY(!dialogo.AbrirMapa(Ruta("nohay.mapa")));
  }

  void unMapaSinSitioNoSeAcepta() {
    DialogoMapa dialogo(Delimitado(), nullptr);
    QVERIFY(dialogo.AbrirMapa(QString::fromStdString(raiz_.Escribir("uno.mapa", MapaDePrueba()))));
    Control<CasillaReal>(dialogo, "csLatitud").setValue(0.0);
    QVERIFY(!std::isnan(dialogo.Mapa().latitud)); // en el ecuador sí hay sitios
    Control<CasillaReal>(dialogo, "csLongitud").setValue(0.0);
    dialogo.accept();
    QCOMPARE(dialogo.result(), static_cast<int>(QDialog::Rejected));
    QVERIFY(Control<QLabel>(dialogo, "lbAviso").text().contains(QStringLiteral("latitud")));
  }

  void loQueNoSeSabeNoSeEscribe() {
    DialogoMapa dialogo(Delimitado(), nullptr);
    Control<CasillaReal>(dialogo, "csLatitud").setValue(20.0);
    Control<CasillaReal>(dialogo, "csLongitud").setValue(77.0);
    const MapaColumnas nuevo = dialogo.Mapa();
    QVERIFY(std::isnan(nuevo.altitud));
    QVERIFY(nuevo.husoDeLongitud);
    const std::string texto = EscribirMapa(nuevo);
    QVERIFY(texto.find("altitud") == std::string::npos && texto.find("huso") == std::string::npos);
    Control<CasillaOpcional>(dialogo, "csAltitud").PonValor(0.0);
    Control<CasillaOpcional>(dialogo, "csHusoMapa").PonValor(0.0);
    QCOMPARE(dialogo.Mapa().altitud, 0.0);
    QVERIFY(!dialogo.Mapa().husoDeLongitud);
  }

  void unMapaSinAltitudNiHusoSeGuardaSinEllos() {
    std::string mapa;
    for (const QString &linea : QString::fromStdString(MapaDePrueba()).split('\n')) {
      if (!linea.startsWith(QLatin1String("altitud")) && !linea.startsWith(QLatin1String("huso")))
        mapa += linea.toStdString() + "\n";
    }
    DialogoMapa dialogo(Delimitado(), nullptr);
    QVERIFY(dialogo.AbrirMapa(QString::fromStdString(raiz_.Escribir("sin.mapa", mapa))));
    QVERIFY(std::isnan(dialogo.Mapa().altitud));
    QVERIFY(dialogo.Mapa().husoDeLongitud);
  }

  void unHusoDeCuartosDeHoraSeGuardaEntero() {
    const std::string mapa = MapaDePrueba() + "huso = 5.75\n";
    DialogoMapa dialogo(Delimitado(), nullptr);
    QVERIFY(dialogo.AbrirMapa(QString::fromStdString(raiz_.Escribir("cuartos.mapa", mapa))));
    QCOMPARE(dialogo.Mapa().reloj.husoHoras, 5.75);
  }

  void losBotonesPreguntanPorElFichero() {
    DialogoMapa dialogo(Delimitado(), nullptr);
    dialogo.show();
    for (const char *boton : {"btnAbrirMapa", "btnGuardarMapa"})
      QCOMPARE(AlRechazar([&] { Pulsar(Control<QPushButton>(dialogo, boton)); }),
               QStringLiteral("QFileDialog"));
    Pulsar(*Control<QDialogButtonBox>(dialogo, "botonesMapa").button(QDialogButtonBox::Cancel));
    QVERIFY(!dialogo.isVisible());
  }

private:
  [[nodiscard]] QString Delimitado() const {
    return QString::fromStdString(raiz_.Escribir("delimitado.txt", Unir(LineasDelimitado())));
  }
  [[nodiscard]] QString Ruta(const char *nombre) const {
    return QString::fromStdString((raiz_ / nombre).string());
  }
  template <typename C>
  [[nodiscard]] static C &Control(const QWidget &dialogo, const char *nombre) {
    auto *control = dialogo.findChild<C *>(QString::fromLatin1(nombre));
    if (control == nullptr) qFatal("falta el control %s", nombre);
    return *control;
  }
  static void Pulsar(QPushButton &boton) { QTest::mouseClick(&boton, Qt::LeftButton); }
  static void Elegir(QComboBox &lista, const char *texto) {
    const int sitio = lista.findText(QString::fromUtf8(texto));
    if (sitio < 0) qFatal("%s no ofrece %s", qPrintable(lista.objectName()), texto);
    lista.setCurrentIndex(sitio);
  }
  static void Elegir(const QWidget &dialogo, const char *nombre, const char *texto) {
    Elegir(Control<QComboBox>(dialogo, nombre), texto);
  }
  /// Columnas de la tabla con una lista en cada fila.
  enum { PAPEL = 3, UNIDAD };
  /// La lista de una fila, desde 1.
  [[nodiscard]] static QComboBox &EnFila(const QWidget &dialogo, int fila, int columna) {
    QWidget *lista = Control<QTableWidget>(dialogo, "tablaColumnas").cellWidget(fila - 1, columna);
    return *qobject_cast<QComboBox *>(lista);
  }
  static void ElegirEnFila(const QWidget &dialogo, int fila, int columna, const char *texto) {
    Elegir(EnFila(dialogo, fila, columna), texto);
  }
  static void ElegirConUnidad(const QWidget &dialogo, int fila, Campo campo, const char *unidad) {
    ElegirEnFila(dialogo, fila, PAPEL, std::string(ClaveDeCampo(campo)).c_str());
    ElegirEnFila(dialogo, fila, UNIDAD, unidad);
  }
  void ComprobarQueSeLee(DialogoMapa &dialogo) const {
    dialogo.accept();
    QCOMPARE(dialogo.result(), static_cast<int>(QDialog::Accepted));
    const FicheroImportable fichero =
        PrepararFichero(Delimitado().toStdString(), {}, std::make_shared<MapaColumnas>(dialogo.Mapa()));
    QVERIFY(fichero.legible);
    QCOMPARE(fichero.materia.registros, 8760);
  }

  DirectorioTemporal raiz_;
};

TESMO_PRUEBA_QT(PruebaDialogoMapa)
#include "Dialogomapa_prueba.moc"
