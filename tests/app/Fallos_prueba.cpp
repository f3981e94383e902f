// Arranques y escrituras que salen mal: lo que había queda entero y el usuario se entera sin cajas de más.

#include "core/Rutas.h"
#include "localidades/Ciudad.h"
#include "tests/comun/ventanas/Manejo.h"

#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QProcess>
#include <QStatusBar>
#include <QTabWidget>
#include <optional>

using namespace tesmo;
using namespace tesmo::prueba;

namespace {

constexpr const char *LO_DE_ANTES = "lo que había\n";

/// Disco propio de pocos kilobytes; hacen falta derechos para montarlo.
class DiscoPequeno {
public:
  explicit DiscoPequeno(const std::filesystem::path &punto) : punto_(QString::fromStdString(punto.string())) {
    montado_ =
        QProcess::execute(QStringLiteral("mount"), {"-t", "tmpfs", "-o", "size=64k", "tmpfs", punto_}) == 0;
  }
  ~DiscoPequeno() {
    if (montado_) QProcess::execute(QStringLiteral("umount"), {punto_});
  }
  DiscoPequeno(const DiscoPequeno &) = delete;
  DiscoPequeno &operator=(const DiscoPequeno &) = delete;
  [[nodiscard]] bool Montado() const { return montado_; }
  /// Ocupa lo que quede.
  void Llenar() const {
    QFile relleno(punto_ + QStringLiteral("/relleno"));
    if (!relleno.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) return;
    while (relleno.write(QByteArray(512, 'x')) == 512) {
    }
  }

private:
  QString punto_;
  bool montado_ = false;
};

/// Los ficheros de un directorio con su contenido, sin los temporales que dejó una muerte a mitad.
QMap<QString, QByteArray> Ficheros(const QString &directorio, const QStringList &nombres) {
  QMap<QString, QByteArray> contenidos;
  for (const QString &nombre : nombres) {
    QFile fichero(QDir(directorio).filePath(nombre));
    if (fichero.open(QIODevice::ReadOnly)) contenidos[nombre] = fichero.readAll();
  }
  return contenidos;
}

} // namespace

class PruebaFallos : public QObject {
  Q_OBJECT

private slots:
  void init() { datos_.emplace(); }
  void cleanup() {
    marco_.reset();
    mensajes_.reset();
    datos_.reset();
  }

  void sinConfigIniSeTrabajaEnElDirectorioBaseYSeDice() {
    const DirectorioTemporal base;
    for (const char *nombre : {"LocalidadesCC", "almeria.met"})
      base.Escribir(nombre, Contenido(datos_->Directorio() / "Meteo" / nombre));
    Arrancar(base);
    QVERIFY(Estado().contains(QStringLiteral("config.ini")));
    QVERIFY(mensajes_->apuntes.empty());
    Primera().Localidad("Almería");
    QVERIFY(Primera().Controlador().HayDatos());
  }

  void conConfigIniNoSeDiceNada() {
    Arrancar(datos_->Directorio());
    QVERIFY(Estado().isEmpty());
    QVERIFY(mensajes_->apuntes.empty());
  }

  void sinDirectorioMeteorologicoSaleElMensaje0YLaVentanaQuedaVacia() {
    std::filesystem::remove_all(datos_->Directorio() / "Meteo");
    Arrancar(datos_->Directorio());
    QCOMPARE(mensajes_->apuntes.size(), 1U);
    QCOMPARE(mensajes_->apuntes[0].texto, std::string("No se puede abrir el fichero: Meteorológico.\n"));
    QCOMPARE(Primera().Buscar<QComboBox>("cbProvincias").count(), 0);
    QCOMPARE(Primera().Localidad(), QStringLiteral("Localidad"));
    for (const char *boton : {"btnSimulacion", "btnActualizar"}) Primera().Pulsar(boton);
    QCOMPARE(Primera().Chart().NumeroSeries(), 0);
    marco_->mnuNuevoClick(); // la lista ya se intentó leer: no se vuelve a decir
    QCOMPARE(mensajes_->apuntes.size(), 3U);
  }

  void unMetIlegibleSeDiceEnLaLineaDeEstado_data() {
    QTest::addColumn<QByteArray>("contenido");
    QTest::newRow("vacío") << QByteArray();
    QTest::newRow("letras") << QByteArray("esto no es un fichero climático\nni aquí hay números\n");
    QTest::newRow("octetos") << QByteArray("\0\xff\xfe\x01\x80 \n\n\n1 2 3", 14);
  }
  void unMetIlegibleSeDiceEnLaLineaDeEstado() {
    QFETCH(const QByteArray, contenido);
    datos_->Directorio().Escribir("Meteo/almeria.met", contenido.toStdString());
    Arrancar(datos_->Directorio());
    Primera().Localidad("Almería");
    QVERIFY(mensajes_->apuntes.empty());
    QVERIFY2(Estado().contains(QStringLiteral("0 de las 8760")), qPrintable(Estado()));
    Primera().Pulsar("btnSimulacion");
    QCOMPARE(Primera().Chart().NumeroSeries(), 21);
    QVERIFY(mensajes_->apuntes.empty());
  }

  void unMetQueEstaYNoSePuedeLeerSeDiceEnLaLineaDeEstado() {
    const std::filesystem::path memoria("/proc/self/mem"); // se abre, y leerlo falla con cualquier permiso
    if (!std::filesystem::is_regular_file(memoria)) QSKIP("no es Linux");
    const auto fichero = datos_->Directorio() / "Meteo/nijar.met";
    std::filesystem::remove(fichero);
    std::filesystem::create_symlink(memoria, fichero);
    Arrancar(datos_->Directorio());
    Primera().Localidad("Níjar");
    QVERIFY(mensajes_->apuntes.empty());
    QVERIFY2(Estado().contains(QStringLiteral("0 de las 8760")), qPrintable(Estado()));
    QVERIFY(Primera().Controlador().HayDatos());
  }

  void unDirectorioConElNombreDelMetNoEsSuFichero() {
    const auto fichero = datos_->Directorio() / "Meteo/nijar.met";
    std::filesystem::remove(fichero);
    std::filesystem::create_directory(fichero);
    Arrancar(datos_->Directorio());
    Primera().Localidad("Níjar");
    QCOMPARE(mensajes_->apuntes.size(), 1U);
    QVERIFY(mensajes_->apuntes[0].texto.find("Níjar") != std::string::npos);
    QVERIFY(!Primera().Controlador().HayDatos());
  }

  void sinPoderEscribirResultadosLosDiasExtremosLoDicenSinCajas() {
    std::filesystem::remove_all(datos_->Directorio() / "Resultados");
    datos_->Directorio().Escribir("Resultados", "aquí no se puede escribir, ni siendo root");
    Arrancar(datos_->Directorio());
    CalcularDias();
    QVERIFY2(Estado().contains(QStringLiteral("No se pudieron escribir")), qPrintable(Estado()));
    QVERIFY(mensajes_->apuntes.empty());
    QCOMPARE(Contenido(datos_->Directorio() / "Resultados"),
             std::string("aquí no se puede escribir, ni siendo root"));
  }

  void conElDiscoLlenoLoQueHabiaQuedaEnteroYSeDice() {
    const auto resultados = datos_->Directorio() / "Resultados";
    const DiscoPequeno disco(resultados);
    if (!disco.Montado()) QSKIP("no hay derechos para montar un disco pequeño");
    const std::vector<std::string> nombres{"extreCal.met", "extreRef.met", "horas.met"};
    for (const std::string &nombre : nombres)
      datos_->Directorio().Escribir("Resultados/" + nombre, LO_DE_ANTES);
    disco.Llenar();
    Arrancar(datos_->Directorio());
    CalcularDias();
    QVERIFY2(Estado().contains(QStringLiteral("No se pudieron escribir")), qPrintable(Estado()));
    QVERIFY(mensajes_->apuntes.empty());
    Primera().PonAnioEntero();
    ExportarEn(resultados, "horas.met");
    QCOMPARE(mensajes_->apuntes.size(), 1U);
    QVERIFY(mensajes_->apuntes[0].texto.starts_with("El fichero de resultado "));
    for (const std::string &nombre : nombres)
      QCOMPARE(Contenido(resultados / nombre), std::string(LO_DE_ANTES));
    // Nada a medias: los ficheros de antes y el relleno.
    QCOMPARE(QDir(QString::fromStdString(resultados.string())).entryList(QDir::Files | QDir::Hidden).size(),
             4);
  }

  /// El sistema mata al programa en el octeto en que el fichero que escribe pasa del límite.
  void unaMuerteAMitadDeEscribirDejaEnteroLoQueHabia() {
    const QString base = QString::fromStdString(TextoDeRuta(datos_->Directorio().Ruta()));
    const QString destino = base + QStringLiteral("/imagenes");
    QCOMPARE(Demostracion(base, destino, 0), 0);
    const QStringList nombres = QDir(destino).entryList(QDir::Files);
    QCOMPARE(nombres.size(), 13);
    const QMap<QString, QByteArray> antes = Ficheros(destino, nombres);
    int muertes = 0;
    for (const int limiteKb : {8, 32, 64, 128}) {
      muertes += Demostracion(base, destino, limiteKb) != 0 ? 1 : 0;
      const QMap<QString, QByteArray> despues = Ficheros(destino, nombres);
      for (const QString &nombre : nombres) {
        QVERIFY2(despues[nombre] == antes[nombre], qPrintable(nombre));
      }
    }
    QVERIFY(muertes >= 2); // si no murió ninguna vez, no se probó nada
  }

private:
  /// Orden "tesmo --demostracion" con el tamaño de sus ficheros limitado (0: sin límite); su código de
  /// salida.
  static int Demostracion(const QString &base, const QString &destino, int limiteKb) {
    // El límite se cuenta en bloques de 512 octetos.
    const QString limite =
        limiteKb > 0 ? QStringLiteral("ulimit -c 0; ulimit -f %1; ").arg(2 * limiteKb) : QString();
    QProcess proceso;
    proceso.start(QStringLiteral("sh"),
                  {QStringLiteral("-c"),
                   limite + QStringLiteral("exec \"$0\" --base \"$1\" --demostracion \"$2\""),
                   QStringLiteral(TESMO_PROGRAMA), base, destino});
    if (!proceso.waitForFinished(120000)) qFatal("la demostración no acaba");
    return proceso.exitStatus() == QProcess::NormalExit ? proceso.exitCode() : -1;
  }

  /// El marco sobre @p base, como lo arranca el programa.
  void Arrancar(const DirectorioTemporal &base) {
    LiberarBaseDeLocalidades();
    IniciarConfiguracion(TextoDeRuta(base.Ruta()));
    mensajes_.emplace();
    marco_.emplace();
    marco_->AbrirPrimera();
    marco_->show();
  }
  [[nodiscard]] Ventana Primera() const { return Ventana(*marco_->Controladores().front()); }
  [[nodiscard]] QString Estado() const { return marco_->statusBar()->currentMessage(); }
  void CalcularDias() const {
    Primera().Localidad("Almería");
    auto &pestanas = Primera().Buscar<QTabWidget>("pcProgramas");
    pestanas.setCurrentWidget(&Primera().Buscar<QWidget>("tsDiasExtremos"));
    Primera().Pulsar("btnCalDiaExt");
  }
  void ExportarEn(const std::filesystem::path &directorio, const char *nombre) const {
    auto &pestanas = Primera().Buscar<QTabWidget>("pcProgramas");
    pestanas.setCurrentWidget(&Primera().Buscar<QWidget>("tsArchivosHorarios"));
    Primera().Pulsar("btnEscribir");
    auto *dialogo = marco_->findChild<QFileDialog *>(QStringLiteral("sdGuardarRes"));
    QVERIFY(dialogo);
    emit dialogo->fileSelected(QString::fromStdString((directorio / nombre).string()));
    delete dialogo;
  }

  std::optional<DatosPrueba> datos_;
  std::optional<MensajesApuntados> mensajes_;
  std::optional<TforPrincipal> marco_;
};

TESMO_PRUEBA_QT(PruebaFallos)
#include "Fallos_prueba.moc"
