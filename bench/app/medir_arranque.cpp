// Lo que se espera y lo que ocupa la aplicación: desde que se lanza el proceso hasta la primera ventana con
// que se puede trabajar, sin contar la presentación, y la memoria residente con tres ventanas cargadas y
// dibujadas.
//
// El programa se lanza a sí mismo: el hijo es la aplicación entera, y el padre sólo mira el reloj.

#include "app/Aplicacion.h"
#include "app/Ventanaprincipal.h"
#include "app/Ventanaprogramas.h"
#include "app/Vistaprograma.h"
#include "core/Rutas.h"

#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QPushButton>
#include <QSpinBox>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <vector>

using namespace tesmo;

namespace {

constexpr int VECES = 7;
constexpr double PRESENTACION = 700.0;   ///< siete tictacs de 100 ms [ms]
constexpr double BUENO_ARRANQUE = 300.0; ///< [ms]
constexpr double BUENO_MEMORIA = 120.0;  ///< [MB]

/// Campo de /proc/self/status en MB; 0 donde no lo hay.
double MemoriaMB(const char *campo) {
  QFile estado(QStringLiteral("/proc/self/status"));
  if (!estado.open(QIODevice::ReadOnly)) return 0.0;
  for (const QByteArray &linea : estado.readAll().split('\n')) {
    if (linea.startsWith(campo)) return linea.simplified().split(' ').value(1).toDouble() / 1024.0;
  }
  return 0.0;
}

template <typename Control>
Control &Buscar(const VistaPrograma &controlador, const char *nombre) {
  return *controlador.DameFormulario().findChild<Control *>(QString::fromLatin1(nombre));
}

/// Carga la localidad @p cual de la lista y dibuja su año.
void CargarAnio(const VistaPrograma &controlador, int cual) {
  Buscar<QComboBox>(controlador, "cbProvincias").setCurrentIndex(cual);
  Buscar<QComboBox>(controlador, "cbLocalidades").setCurrentIndex(1);
  Buscar<QSpinBox>(controlador, "csMesFin").setValue(12);
  Buscar<QSpinBox>(controlador, "csDiaFin").setValue(31);
  Buscar<QPushButton>(controlador, "btnSimulacion").click();
  QApplication::processEvents();
}

/// Dice "lista" cuando la primera ventana está pintada y la cola vacía; con @p memoria sigue hasta las tres.
int Hijo(int argc, char **argv, bool memoria) {
  QApplication aplicacion(argc, argv);
  PrepararAplicacion(aplicacion);
  IniciarConfiguracion(TESMO_BIN);
  TforPrincipal marco;
  marco.Presentar();
  QTimer mirada;
  QObject::connect(&mirada, &QTimer::timeout, &marco, [&] {
    if (marco.Controladores().empty()) return;
    mirada.stop();
    QApplication::processEvents();
    std::printf("lista\n");
    std::fflush(stdout);
    if (memoria) {
      const double una = MemoriaMB("VmRSS:");
      for (int i = 0; i < 3; ++i) {
        if (i > 0) marco.mnuNuevoClick();
        CargarAnio(*marco.Controladores().back(), i);
      }
      std::printf("%.1f %.1f %.1f\n", una, MemoriaMB("VmRSS:"), MemoriaMB("VmHWM:"));
    }
    marco.close();
  });
  mirada.start(1);
  return QApplication::exec();
}

/// Milisegundos desde el lanzamiento hasta "lista".
double MedirArranque() {
  QProcess hijo;
  QElapsedTimer reloj;
  reloj.start();
  hijo.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--hijo")});
  while (!hijo.canReadLine() && hijo.waitForReadyRead(30000)) {
  }
  const double tiempo = static_cast<double>(reloj.nsecsElapsed()) / 1e6;
  hijo.waitForFinished();
  return tiempo;
}

void MedirMemoria() {
  QProcess hijo;
  hijo.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--memoria")});
  hijo.waitForFinished(120000);
  const QList<QByteArray> cifras = hijo.readAllStandardOutput().split('\n').value(1).split(' ');
  std::printf(
      "memoria residente: una ventana vacía %s MB; tres con su año dibujado %s MB (máxima %s); bueno: menos "
      "de %.0f\n",
      cifras.value(0).constData(), cifras.value(1).constData(), cifras.value(2).constData(), BUENO_MEMORIA);
}

} // namespace

int main(int argc, char **argv) {
  const QByteArray papel = argc > 1 ? argv[1] : "";
  if (papel == "--hijo" || papel == "--memoria") return Hijo(argc, argv, papel == "--memoria");
  const QCoreApplication aplicacion(argc, argv);
  std::vector<double> tiempos;
  for (int i = 0; i < VECES; ++i) tiempos.push_back(MedirArranque());
  std::sort(tiempos.begin(), tiempos.end());
  const double mediana = tiempos[VECES / 2];
  std::printf(
      "arranque: %.0f ms, de ellos %.0f sin la presentación (mediana de %d; de %.0f a %.0f); bueno: %.0f\n",
      mediana, mediana - PRESENTACION, VECES, tiempos.front(), tiempos.back(), BUENO_ARRANQUE);
  MedirMemoria();
  return EXIT_SUCCESS;
}
