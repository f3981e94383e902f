#include "app/Imagenesmanual.h"

#include "app/Manejoventana.h"
#include "app/Ventanaprincipal.h"
#include "app/Ventanaprogramas.h"
#include "app/Vistaprograma.h"
#include "vistas/comun/Guardardibujo.h"

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QLineEdit>
#include <QStatusBar>
#include <QTabWidget>
#include <QTextStream>
#include <QTimer>

#include <utility>
#include <vector>

namespace tesmo {

namespace {

/// Lo que se deja al servidor de ventanas para cambiar el tamaño y pintar antes de cada imagen [ms].
constexpr int ESPERA = 400;

class Imagenes : public ManejoVentana {
public:
  Imagenes(TforPrincipal &marco, const QString &directorio)
      : ManejoVentana(marco.Controladores().front()->DameFormulario()), marco_(marco),
        directorio_(directorio) {}

  /// Falso si falta alguna.
  [[nodiscard]] bool Hacer() {
    Elegir(QStringLiteral("cbProvincias"), QStringLiteral("Granada"));
    Elegir(QStringLiteral("cbLocalidades"), QStringLiteral("Granada"));
    PonPeriodo({7, 1, 1}, {7, 7, 24});
    Marcar({"TS", "TH", "HR"});
    Pulsar(QStringLiteral("btnSimulacion"));
    Pulsar(QStringLiteral("btnEjesPorUnidad"));
    // Sin el reloj: la imagen es siempre la misma.
    for (const auto &[casilla, texto] : {std::pair{"edMes", "6"}, {"edDia", "21"}, {"edHora", "10"}})
      Buscar<QLineEdit>(QLatin1String(casilla)).setText(QLatin1String(texto));
    const std::vector<Escena> escenas{
        {"tsDatosGenerales", "visualizar", {}},
        {"tsDiasExtremos", "diasextremos", {}},
        {"tsResultadosDiasExtremos", "resultados", {"btnCalDiaExt"}},
        {"tsPosicionSolar", "posicionsolar", {"btnMeses"}},
        {"tsPsicrometrico", "psicrometrico", {"btnNubes"}},
        {"tsArchivosHorarios", "archivoshorarios", {"cbTemSec", "cbHumRel", "cbGlo"}},
        {"tsValores", "valores", {"rbTS"}},
    };
    bool todas = true;
    for (const Escena &escena : escenas) todas = Intentar(escena) && todas;
    return todas;
  }

private:
  struct Escena {
    const char *pestana;
    const char *imagen;                  ///< nombre del fichero, sin extensión
    std::vector<const char *> controles; ///< los que se pulsan antes
  };
  [[nodiscard]] bool Intentar(const Escena &escena) {
    try {
      Retratar(escena);
      return true;
    } catch (const std::runtime_error &fallo) {
      QTextStream(stderr) << "Imágenes: " << fallo.what() << "\n";
      return false;
    }
  }
  /// Trae delante la pestaña, pulsa los controles y guarda la ventana.
  void Retratar(const Escena &escena) {
    auto &pestanas = Buscar<QTabWidget>(QStringLiteral("pcProgramas"));
    pestanas.setCurrentWidget(&Buscar<QWidget>(QString::fromLatin1(escena.pestana)));
    marco_.statusBar()->clearMessage(); // lo que dijo la pestaña anterior
    for (const char *control : escena.controles) Pulsar(QString::fromLatin1(control));
    Esperar();
    const QString ruta =
        QDir(directorio_).filePath(QString::fromLatin1(escena.imagen) + QStringLiteral(".png"));
    // Una ruta sólo diría dónde se hicieron las imágenes.
    if (marco_.statusBar()->currentMessage().contains(QLatin1Char('/'))) marco_.statusBar()->clearMessage();
    if (!EscribirBytes(ruta, BytesPng(marco_.grab().toImage().convertToFormat(QImage::Format_RGB32))))
      throw std::runtime_error("no se pudo escribir " + ruta.toStdString());
    QTextStream(stdout) << QDir::toNativeSeparators(ruta) << "\n";
  }

  static void Esperar() {
    QEventLoop bucle;
    QTimer::singleShot(ESPERA, &bucle, &QEventLoop::quit);
    bucle.exec();
  }

  TforPrincipal &marco_;
  QString directorio_;
};

} // namespace

bool HacerImagenesDelManual(const QString &directorio) {
  try {
    if (!QDir().mkpath(directorio)) throw std::runtime_error("no se puede crear " + directorio.toStdString());
    TforPrincipal marco;
    marco.showFullScreen();
    marco.AbrirPrimera();
    return Imagenes(marco, directorio).Hacer();
  } catch (const std::runtime_error &fallo) {
    QTextStream(stderr) << "Imágenes: " << fallo.what() << "\n";
    return false;
  }
}

} // namespace tesmo
