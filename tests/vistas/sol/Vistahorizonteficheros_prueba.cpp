// El horizonte de la página "Posicion solar  ": sus ficheros, la vista previa y la irradiancia.

#include "core/Ficheros.h"
#include "meteo/Leermet.h"
#include "tests/comun/ventanas/Ventanasolar.h"
#include "vistas/sol/Dialogohorizonte.h"
#include "vistas/sol/Pintorsolar.h"

#include <QCheckBox>
#include <QDir>
#include <QFileDialog>
#include <QRegularExpression>

#include <algorithm>
#include <cmath>
#include <optional>

using namespace tesmo;
using namespace tesmo::prueba;

namespace {

/// Un listado de PVGIS con una sierra de 30° al oeste.
std::string ListadoPvgis() {
  std::string texto =
      "Latitude (decimal degrees):\t36.840\n\nA\tH_hor\tA_sun(w)\tH_sun(w)\tA_sun(s)\tH_sun(s)\n";
  for (int acimut = -180; acimut <= 180; acimut += 30)
    texto += std::to_string(acimut) + ".0\t" + (acimut == 90 ? "30.0" : "2.0") + "\t0.0\t0.0\t0.0\t0.0\n";
  return texto + "\nA: Azimuth (0 = S, 90 = W, -90 = E) (degree)\nH_hor: Horizon height (degree)\n";
}

float AcimutDelMasAlto(const PuntosHorizonte &puntos) {
  return std::max_element(puntos.begin(), puntos.end(),
                          [](const auto &a, const auto &b) { return a.altura < b.altura; })
      ->acimut;
}

} // namespace

class PruebaHorizonteFicheros : public QObject {
  Q_OBJECT

private slots:
  void init() { v_.emplace(); }
  void cleanup() { v_.reset(); }

  void elObjetoConservaElOrdenDelFicheroHastaQueSeEdita() {
    v_->Vista().AbrirPerfil(v_->datos.Directorio().Escribir("p.txt", "3\n50, 5\n-50, 7\n0, 9\n"));
    QVERIFY(v_->Carta().isVisible());
    QCOMPARE(v_->Sol().HorizonteX(), (std::vector<float>{50.0F, -50.0F, 0.0F}));
    QCOMPARE(v_->Horizonte().front().acimut, -50.0F);
    v_->Vista().actualizar();
    QCOMPARE(v_->Sol().HorizonteX(), (std::vector<float>{50.0F, -50.0F, 0.0F}));
    v_->Pulsar(100.0F, 20.0F);
    QCOMPARE(v_->Sol().HorizonteX().size(), std::size_t(3)); // aún no se ha copiado
    v_->Vista().actualizar();
    QCOMPARE(v_->Sol().HorizonteX().size(), std::size_t(4));
    QCOMPARE(v_->Sol().HorizonteX().front(), -50.0F);
  }

  void unPerfilGuardadoDeCincoPuntosLlevaCabeceraCincoYTresLineas() {
    AbrirCincoPuntos();
    v_->Vista().GuardarPerfil(v_->Fichero("g.txt"), FormatoHorizonte::Nativo);
    QCOMPARE(*LeerFicheroEntero(v_->datos.Directorio() / "g.txt"),
             std::string("5\n-100.000000, 1.000000\n0.000000, 3.500000\n100.000000, 5.000000\n"));
    v_->Vista().AbrirPerfil(v_->Fichero("g.txt"));
    QCOMPARE(v_->Sol().HorizonteX(), (std::vector<float>{-100.0F, 0.0F, 100.0F, 0.0F, 0.0F}));
  }

  void unPerfilCompletoVuelveIgual() {
    AbrirCincoPuntos();
    const PerfilHorizonte antes = v_->Sol().Horizonte();
    v_->Vista().GuardarPerfil(v_->Fichero("g.csv"), FormatoHorizonte::Completo);
    v_->Vista().AbrirPerfil(v_->datos.Directorio().Escribir("otro.txt", "1\n0, 0\n"));
    QVERIFY(v_->Sol().Horizonte() != antes);
    v_->Vista().AbrirPerfil(v_->Fichero("g.csv")); // sin preguntar
    QVERIFY(v_->Sol().Horizonte() == antes);
    QVERIFY(Previa() == nullptr);
  }

  void guardarCopiaAntesLoEditado() {
    v_->Dibujar({{-40.0F, 10.0F}, {40.0F, 10.0F}});
    QCOMPARE(v_->Sol().Horizonte().Tamano(), 0);
    v_->Vista().GuardarPerfil(v_->Fichero("g.txt"), FormatoHorizonte::Nativo);
    QCOMPARE(v_->Sol().Horizonte().Tamano(), 2);
    QVERIFY(LeerFicheroEntero(v_->datos.Directorio() / "g.txt")->starts_with("2\n-"));
  }

  void elDialogoDeGuardarOfreceElPerfilCompleto() {
    AbrirCincoPuntos();
    v_->ventana.Pulsar("btnGuardarPerfil");
    auto *dialogo = Pagina().findChild<QFileDialog *>("sdPerfil");
    QVERIFY(dialogo != nullptr);
    QCOMPARE(dialogo->nameFilters().value(1), QStringLiteral("Perfil completo (*.csv)"));
    dialogo->selectNameFilter(dialogo->nameFilters().value(1));
    emit dialogo->fileSelected(QString::fromStdString(v_->Fichero("entero.csv")));
    const auto texto = LeerFicheroEntero(v_->datos.Directorio() / "entero.csv");
    QVERIFY(texto.has_value());
    QCOMPARE(std::count(texto->begin(), texto->end(), '\n'), 6); // los títulos y cinco puntos
    emit dialogo->fileSelected(QString());                       // un nombre vacío no hace nada
    QVERIFY(v_->mensajes.apuntes.empty());
    dialogo->close();
  }

  void abrirHaceDelDirectorioDelProgramaElDeTrabajo() {
    const QString antes = QDir::currentPath();
    QDir::setCurrent(QDir::tempPath());
    v_->ventana.Pulsar("btnAbrirPerfil");
    QCOMPARE(QDir(QDir::currentPath()),
             QDir(QString::fromStdString(TextoDeRuta(v_->datos.Directorio().Ruta()))));
    auto *dialogo = Pagina().findChild<QFileDialog *>("odPerfil");
    QVERIFY(dialogo != nullptr);
    emit dialogo->fileSelected(
        QString::fromStdString(v_->datos.Directorio().Escribir("p.txt", "2\n-10, 5\n10, 6\n")));
    QCOMPARE(v_->Horizonte().size(), std::size_t(2));
    emit dialogo->fileSelected(QString()); // un nombre vacío no hace nada
    QCOMPARE(v_->Horizonte().size(), std::size_t(2));
    QVERIFY(v_->mensajes.apuntes.empty());
    dialogo->close();
    QDir::setCurrent(antes);
  }

  void loQueNoSePuedeLeerEsElMensajeCeroYElPerfilQueda_data() {
    QTest::addColumn<QByteArray>("contenido");
    QTest::newRow("no existe") << QByteArray();
    QTest::newRow("número de puntos negativo") << QByteArray("-1\n1, 2\n");
    QTest::newRow("demasiados puntos") << QByteArray("100001\n1, 2\n");
    QTest::newRow("no es un perfil") << QByteArray("hola\n");
  }
  void loQueNoSePuedeLeerEsElMensajeCeroYElPerfilQueda() {
    QFETCH(const QByteArray, contenido);
    AbrirCincoPuntos();
    const PerfilHorizonte antes = v_->Sol().Horizonte();
    if (!contenido.isEmpty()) (void)v_->datos.Directorio().Escribir("malo.txt", contenido.toStdString());
    v_->Vista().AbrirPerfil(v_->Fichero("malo.txt"));
    QCOMPARE(v_->mensajes.apuntes.size(), std::size_t(1));
    QCOMPARE(v_->mensajes.apuntes[0].texto,
             "No se puede abrir el fichero: " + v_->Fichero("malo.txt") + ".\n");
    QVERIFY(v_->Sol().Horizonte() == antes);
    QCOMPARE(v_->Horizonte().size(), std::size_t(5));
  }

  void loQueNoSePuedeEscribirEsElMensajeCero() {
    AbrirCincoPuntos();
    for (const FormatoHorizonte formato : {FormatoHorizonte::Nativo, FormatoHorizonte::Completo})
      v_->Vista().GuardarPerfil(v_->Fichero("no/hay/perfil"), formato);
    QCOMPARE(v_->mensajes.apuntes.size(), std::size_t(2));
    for (const auto &apunte : v_->mensajes.apuntes)
      QVERIFY(apunte.texto.starts_with("No se puede abrir el fichero: "));
    QCOMPARE(v_->Sol().Horizonte().Tamano(), 5);
  }

  void unListadoDePvgisSeEnsenaAntesDeAceptarlo() {
    AbrirListado();
    QVERIFY(v_->Horizonte().empty()); // todavía no
    QVERIFY(Previa()->findChild<GraficoSolar *>("graPrevia") != nullptr);
    Previa()->accept();
    QCOMPARE(v_->Horizonte().size(), std::size_t(13));
    QCOMPARE(AcimutDelMasAlto(v_->Horizonte()), 90.0F);
    QCOMPARE(v_->Sol().Horizonte().Tamano(), 0); // queda pendiente
    v_->Vista().actualizar();
    QCOMPARE(v_->Sol().Horizonte().Tamano(), 13);
  }

  void laVistaPreviaGiraYReflejaLoQueSeVe() {
    AbrirListado();
    const auto alto = [this] {
      EdicionHorizonte serie;
      serie.Tomar(Previa()->Perfil());
      return AcimutDelMasAlto(serie.Serie());
    };
    const auto pulsar = [this](const char *boton) {
      QTest::mouseClick(Previa()->findChild<QPushButton *>(QString::fromLatin1(boton)), Qt::LeftButton);
    };
    auto *espejo = Previa()->findChild<QCheckBox *>("cbEspejo");
    pulsar("btnGirarEste");
    QCOMPARE(alto(), 0.0F);
    pulsar("btnGirarEste");
    QCOMPARE(alto(), -90.0F);
    espejo->setChecked(true);
    QCOMPARE(alto(), 90.0F);
    pulsar("btnGirarOeste");
    pulsar("btnGirarOeste");
    QCOMPARE(alto(), -90.0F);
    Previa()->accept();
    QCOMPARE(AcimutDelMasAlto(v_->Horizonte()), -90.0F);
  }

  void cancelarLaVistaPreviaDejaElPerfilQueHabia() {
    AbrirCincoPuntos();
    AbrirListado();
    Previa()->reject();
    QCOMPARE(v_->Horizonte().size(), std::size_t(5));
  }

  void cuandoElFicheroNoDiceElOrigenSeAvisa() {
    v_->Vista().AbrirPerfil(v_->datos.Directorio().Escribir("t.txt", "0,1\n90,2\n180,3\n270,4\n"));
    QVERIFY(Previa() != nullptr);
    QVERIFY(Previa()->findChild<QLabel *>("lbExplicacion")->text().contains(QStringLiteral("supuesto")));
    Previa()->reject();
  }

  void laVistaPreviaDiceQueSeHaSupuestoDeCadaListado_data() {
    QTest::addColumn<QString>("texto");
    QTest::addColumn<QString>("dice");
    QTest::newRow("alturas") << "0,10,20,30,40,15,25,5\n"
                             << "empiezan en el norte";
    QTest::newRow("seis columnas sin títulos") << "-90 3 0 0 0 0\n0 8 0 0 0 0\n"
                                               << "como PVGIS";
    QTest::newRow("tabla sin títulos") << "0,1\n90,2\n180,3\n270,4\n"
                                       << "por sus valores";
    QTest::newRow("tabla con títulos") << "acimut desde el sur;altura\n0;1\n90;2\n"
                                       << "El fichero dice desde dónde";
  }
  void laVistaPreviaDiceQueSeHaSupuestoDeCadaListado() {
    QFETCH(const QString, texto);
    QFETCH(const QString, dice);
    v_->Vista().AbrirPerfil(v_->datos.Directorio().Escribir("l.txt", texto.toStdString()));
    QVERIFY(Previa() != nullptr);
    const QString explicacion = Previa()->findChild<QLabel *>("lbExplicacion")->text();
    QVERIFY2(explicacion.contains(dice), qPrintable(explicacion));
    QCOMPARE(explicacion.contains(QStringLiteral("dice desde dónde cuenta los acimutes.")),
             dice.startsWith(QStringLiteral("El fichero dice")));
    Previa()->reject();
  }

  void losPuntosFueraDeLaVueltaSeDicenAlAbrir() {
    const QSignalSpy estado(&v_->controlador.DameFormulario(), &TforProgramas::estado);
    v_->Vista().AbrirPerfil(v_->datos.Directorio().Escribir("v.txt", "3\n10, 5\n200, 5\n350, 5\n"));
    QVERIFY(estado.last().at(0).toString().contains(QStringLiteral("3 puntos. Fuera de -180 a 180: 2;")));
    AbrirCincoPuntos();
    QVERIFY(!estado.last().at(0).toString().contains(QStringLiteral("Fuera de")));
  }

  void elSvgDeUnPerfilQueSeSaleQuedaEnElMarco() {
    v_->Vista().AbrirPerfil(v_->datos.Directorio().Escribir(
        "fuera.txt", "6\n-300, 40\n-90, 250\n0, -80\n90, 120\n170, 30\n300, 60\n"));
    QApplication::processEvents();
    const std::string ruta = v_->Fichero("fuera.svg");
    QVERIFY(v_->Vista().GuardarImagen(Texto(ruta)));
    const QString svg = Texto(LeerFicheroEntero(RutaDesdeTexto(ruta)).value_or(""));
    const QRectF marco = MarcoSolar(v_->Carta().size()).adjusted(-10, -1, 1, 10); // con las rayas de los ejes
    // Los trazos y los contornos; el guion de una línea también son pares de números, y no cuentan.
    const QRegularExpression trazos(QStringLiteral("(?:points| d)=\"([^\"]*)\""));
    const QRegularExpression pares(QStringLiteral("(-?[0-9.e+]+),(-?[0-9.e+]+)"));
    int puntos = 0;
    for (auto trazo = trazos.globalMatch(svg); trazo.hasNext();) {
      for (auto par = pares.globalMatch(trazo.next().captured(1)); par.hasNext(); ++puntos) {
        const QRegularExpressionMatch hallado = par.next();
        const QPointF sitio(hallado.captured(1).toDouble(), hallado.captured(2).toDouble());
        QVERIFY2(marco.contains(sitio), qPrintable(hallado.captured()));
      }
    }
    QVERIFY(puntos > 100);
    // De los seis, sólo el de 170º y 30º cae en la carta: una marca.
    QCOMPARE(
        static_cast<int>(svg.count(QStringLiteral("fill=\"#604830\" fill-opacity=\"1\" stroke=\"#ffffff\""))),
        1);
  }

  void trasUnMuroDeNoventaGradosNoQuedaDirecta() {
    v_->ventana.Localidad("Almería");
    v_->ventana.Pulsar("btnSimulacion");
    QVERIFY(Suma("Directa (W/m²)") > 0.0F);
    v_->Vista().AbrirPerfil(v_->datos.Directorio().Escribir("muro.txt", "2\n-180, 90\n180, 90\n"));
    v_->ventana.Pulsar("btnActualizar");
    QCOMPARE(Suma("Directa (W/m²)"), 0.0F);
    QCOMPARE(Suma("Difusa (W/m²)"), 0.0F); // ni cielo a la vista
  }

  void unHorizonteDeCerosNoCambiaNada() {
    v_->ventana.Localidad("Almería");
    v_->ventana.Pulsar("btnSimulacion");
    const std::vector<float> antes = Serie("Global (W/m²)");
    v_->Vista().AbrirPerfil(v_->datos.Directorio().Escribir("llano.txt", "2\n-180, 0\n180, 0\n"));
    v_->ventana.Pulsar("btnActualizar");
    QCOMPARE(Serie("Global (W/m²)"), antes);
    QVERIFY(Suma("Global (W/m²)") > 0.0F);
  }

  void loDibujadoCuentaAlActualizarYAlVisualizar() {
    v_->ventana.Localidad("Almería");
    v_->ventana.Pulsar("btnSimulacion");
    const float antes = Suma("Directa (W/m²)");
    v_->Dibujar({{-179.0F, 85.0F}, {179.0F, 85.0F}});
    QCOMPARE(Suma("Directa (W/m²)"), antes); // hasta entonces no
    v_->ventana.Pulsar("btnActualizar");
    QCOMPARE(Suma("Directa (W/m²)"), 0.0F);
    v_->ventana.Pulsar("btnDeshacer");
    v_->ventana.Pulsar("btnDeshacer");
    QCOMPARE(Suma("Directa (W/m²)"), 0.0F);
    v_->ventana.Pulsar("btnSimulacion");
    QCOMPARE(Suma("Directa (W/m²)"), antes);
  }

  void loQueSeEscribeLlevaElMuroDibujadoAMano() {
    v_->ventana.Localidad("Almería");
    v_->ventana.Casilla("cbDir").click();
    QVERIFY(SumaEscrita("antes") > 0.0);
    v_->Dibujar({{-179.0F, 40.0F}, {179.0F, 40.0F}});
    for (const std::size_t i : {std::size_t(0), std::size_t(1)}) {
      const PuntoHorizonte punto = v_->Horizonte()[i];
      v_->Arrastrar(v_->Pixel(punto.acimut, punto.altura), v_->Pixel(punto.acimut, 90.0F));
      QVERIFY(std::abs(v_->Horizonte()[i].altura - 90.0F) < 0.5F);
    }
    QCOMPARE(SumaEscrita("muro"), 0.0);
  }

private:
  [[nodiscard]] QWidget &Pagina() const { return v_->Control<QWidget>("tsPosicionSolar"); }
  [[nodiscard]] DialogoHorizonte *Previa() const {
    return Pagina().findChild<DialogoHorizonte *>("dlgHorizonte");
  }
  void AbrirCincoPuntos() const {
    v_->Vista().AbrirPerfil(
        v_->datos.Directorio().Escribir("cinco.txt", "5\n-100, 1\n-50, 2.25\n0, 3.5\n50, 4\n100, 5\n"));
  }
  void AbrirListado() const {
    v_->Vista().AbrirPerfil(v_->datos.Directorio().Escribir("pvgis.csv", ListadoPvgis()));
    QVERIFY(Previa() != nullptr);
  }
  [[nodiscard]] std::vector<float> Serie(const char *rotulo) const {
    const LeerMet &datos = *v_->controlador.DameLeerMet();
    std::vector<float> valores(static_cast<std::size_t>(datos.HorasDelPeriodo()));
    datos.DameSerie(rotulo, valores.data());
    return valores;
  }
  [[nodiscard]] float Suma(const char *rotulo) const {
    float suma = 0.0F;
    for (const float valor : Serie(rotulo)) suma += valor;
    return suma;
  }

  /// Pulsa "Escribir", elige @p nombre y suma la última columna de las horas escritas.
  [[nodiscard]] double SumaEscrita(const char *nombre) const {
    v_->ventana.Pulsar("btnEscribir");
    auto &dialogo = v_->Control<QFileDialog>("sdGuardarRes");
    dialogo.setDirectory(QString::fromStdString(v_->Fichero("")));
    dialogo.selectFile(QString::fromLatin1(nombre));
    QMetaObject::invokeMethod(&dialogo, "accept");
    delete &dialogo;
    const QString texto =
        QString::fromStdString(Contenido(v_->datos.Directorio() / (std::string(nombre) + ".met")));
    double suma = 0.0;
    int horas = 0;
    for (const QString &linea : texto.split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
      const QStringList campos = linea.split(QLatin1Char('\t'), Qt::SkipEmptyParts);
      if (campos.size() != 4) continue; // mes, día, hora y la directa
      suma += campos[3].toDouble();
      ++horas;
    }
    if (horas < 24) qFatal("no se escribieron horas");
    return suma;
  }

  std::optional<VentanaSolar> v_;
};

TESMO_PRUEBA_QT(PruebaHorizonteFicheros)
#include "Vistahorizonteficheros_prueba.moc"
