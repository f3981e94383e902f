// La presentación: siete tictacs, y el marco con sus menús y su primera ventana.

#include "app/Imagenprograma.h"
#include "app/Presentacion.h"
#include "tests/comun/ventanas/Manejo.h"

#include <QMenuBar>
#include <QStatusBar>
#include <QTimer>
#include <optional>

using namespace tesmo;
using namespace tesmo::prueba;

class PruebaPresentacion : public QObject {
  Q_OBJECT

private slots:
  void init() {
    datos_.emplace();
    marco_.emplace();
    Reloj().stop(); // los tictacs los da la prueba
  }
  void cleanup() {
    marco_.reset();
    datos_.reset();
  }

  void elRelojNaceEnMarchaCadaCienMilisegundos() {
    const TforPrincipal otro;
    const auto *reloj = otro.findChild<QTimer *>(QStringLiteral("Timer1"));
    QVERIFY(reloj && reloj->isActive());
    QCOMPARE(reloj->interval(), 100);
    QVERIFY(7 * reloj->interval() < 1000); // la presentación entera, menos de un segundo
  }

  void laImagenNoTieneBordeMideLoSuyoYEstaEnElCentro() {
    marco_->Presentar();
    QWidget *imagen = marco_->DameImagen();
    QVERIFY(imagen && imagen->isVisible());
    QCOMPARE(imagen->objectName(), QStringLiteral("imagen"));
    QCOMPARE(imagen->size(), QSize(470, 439));
    QVERIFY(imagen->windowFlags().testFlag(Qt::FramelessWindowHint));
    const QPoint centro = imagen->screen()->availableGeometry().center();
    QVERIFY((imagen->geometry().center() - centro).manhattanLength() <= 2);
    QVERIFY(!marco_->isVisible());
    // No es un rectángulo liso: la imagen se pinta.
    const QImage pintada = imagen->grab().toImage();
    QVERIFY(pintada.pixel(5, 5) != pintada.pixel(235, 400));
  }

  void laPrimeraVentanaSeAbreEnElSeptimoTictacYNoAntes() {
    marco_->Presentar();
    for (int i = 1; i <= 6; ++i) {
      Tictac();
      QVERIFY2(marco_->Controladores().empty(), qPrintable(QString::number(i)));
      QVERIFY(!marco_->isVisible() && marco_->DameImagen() != nullptr);
      for (const QAction *menu : marco_->menuBar()->actions()) QVERIFY(!menu->isVisible());
    }
    Tictac();
    QCOMPARE(marco_->Controladores().size(), 1U);
    QCOMPARE(marco_->Controladores()[0]->Titulo(), std::string("Sin Nombre1"));
    QCOMPARE(marco_->Controladores()[0]->DameLeerMet(), marco_->Programas()[0]->DameLeerMet());
    QVERIFY(marco_->isVisible() && marco_->isMaximized());
    QVERIFY(marco_->DameImagen() == nullptr);
    QCOMPARE(TitulosDeMenus(), QStringList({"Archivo", "Herramienta", "Ventana", "Ayuda"}));
  }

  void elCambioOcurreUnaSolaVez() {
    for (int i = 0; i < 20; ++i) Tictac();
    marco_->AbrirPrimera();
    QCOMPARE(marco_->Controladores().size(), 1U);
    QVERIFY(!Reloj().isActive());
  }

  // Lo que tarda depende de la máquina y se mide aparte: aquí, que llega sola y no antes de tiempo.
  void conElRelojDeVerdadLlegaSolaTrasSieteIntervalos() {
    TforPrincipal marco;
    marco.Presentar();
    QElapsedTimer cronometro;
    cronometro.start();
    QTRY_COMPARE_WITH_TIMEOUT(marco.Controladores().size(), 1U, 5000);
    QVERIFY(cronometro.elapsed() >= 600); // siete intervalos menos lo que tardó en nacer
  }

  void cerrarLaPresentacionAcabaElPrograma() {
    QTimer::singleShot(0, &*marco_, [this] { marco_->DameImagen()->close(); });
    QTimer::singleShot(5000, &*marco_, [] { QCoreApplication::exit(1); });
    marco_->Presentar();
    QCOMPARE(QApplication::exec(), 0);
    QVERIFY(marco_->Controladores().empty());
    QVERIFY(!marco_->isVisible());
  }

  void cerrarElMarcoAcabaElProgramaAunqueQuedenOtrasVentanas() {
    marco_->AbrirPrimera();
    marco_->show();
    QWidget otra;
    otra.show();
    QTimer::singleShot(0, &*marco_, [this] { marco_->close(); });
    QTimer::singleShot(5000, &*marco_, [] { QCoreApplication::exit(1); });
    QCOMPARE(QApplication::exec(), 0);
  }

  void alNacerVaciaLaTrazaDelDirectorioBase() {
    const auto traza = datos_->Directorio() / "salida.txt";
    datos_->Directorio().Escribir("salida.txt", "de otra vez");
    const TforPrincipal otro;
    QVERIFY(std::filesystem::exists(traza));
    QCOMPARE(std::filesystem::file_size(traza), 0U);
  }

  void siLaTrazaNoSePuedeVaciarSeDiceEnLaLineaDeEstado() {
    const auto traza = datos_->Directorio() / "salida.txt";
    std::filesystem::remove(traza);
    std::filesystem::create_directories(traza); // un directorio no se deja escribir, ni por root
    MensajesApuntados mensajes;
    TforPrincipal otro;
    otro.AbrirPrimera();
    QVERIFY(otro.statusBar()->currentMessage().contains(QStringLiteral("salida.txt")));
    QVERIFY(mensajes.apuntes.empty());
  }

private:
  [[nodiscard]] QTimer &Reloj() { return *marco_->findChild<QTimer *>(QStringLiteral("Timer1")); }
  void Tictac() { QMetaObject::invokeMethod(&*marco_, "Timer1Timer"); }
  [[nodiscard]] QStringList TitulosDeMenus() const {
    QStringList titulos;
    for (const QAction *menu : marco_->menuBar()->actions()) {
      if (menu->isVisible()) titulos << menu->text().remove(QLatin1Char('&'));
    }
    return titulos;
  }

  std::optional<DatosPrueba> datos_;
  std::optional<TforPrincipal> marco_;
};

TESMO_PRUEBA_QT(PruebaPresentacion)
#include "Presentacion_prueba.moc"
