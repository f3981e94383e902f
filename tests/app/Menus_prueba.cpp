// Los menús del marco: textos, atajos, orden de las ventanas, ayuda y acerca de.

#include "app/Disposicionventanas.h"
#include "app/Manual.h"
#include "core/Rutas.h"
#include "tests/comun/Lugares.h"
#include "tests/comun/ventanas/Manejo.h"
#include "vistas/colores/Configuracion.h"

#include <QAction>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QPushButton>
#include <QRegularExpression>
#include <QSpinBox>
#include <QStatusBar>
#include <QTabWidget>
#include <QTextBrowser>
#include <QTimer>
#include <optional>

using namespace tesmo;
using namespace tesmo::prueba;

namespace {

constexpr QSize AREA(1200, 640);
constexpr QSize MINIMO(480, 320);

/// Suma de las áreas, para ver que nada se solapa ni falta.
qint64 Superficie(const std::vector<QRect> &sitios) {
  qint64 total = 0;
  for (const QRect &sitio : sitios) total += qint64(sitio.width()) * sitio.height();
  return total;
}

} // namespace

class PruebaMenus : public QObject {
  Q_OBJECT

private slots:
  void init() {
    marco_.emplace();
    EscribirManual();
  }
  void cleanup() {
    qputenv("PATH", camino_);
    marco_.reset();
  }

  void cadaMenuTieneSusOrdenesYSusAtajos_data() {
    QTest::addColumn<QString>("menu");
    QTest::addColumn<QStringList>("ordenes");
    QTest::newRow("Archivo") << "mnuArchivo"
                             << QStringList{"Nuevo", "Importar fichero climático…", "Cerrar", "Cerrar todo",
                                            "Salir"};
    QTest::newRow("Herramienta") << "mnuHerramienta" << QStringList{"Colores", "Auditar fichero climático…"};
    QTest::newRow("Ventana") << "mnuVentana"
                             << QStringList{"Cascada", "Mosaico horizontal", "Mosaico vertical",
                                            "Minimizar todo", "Organizar iconos"};
    QTest::newRow("Ayuda") << "mnuAyuda" << QStringList{"Contenido", "Acerca de ..."};
  }
  void cadaMenuTieneSusOrdenesYSusAtajos() {
    QFETCH(const QString, menu);
    QFETCH(const QStringList, ordenes);
    const QStringList textos = Textos(Menu(menu));
    int sitio = -1;
    for (const QString &orden : ordenes) {
      const qsizetype este = textos.indexOf(orden);
      QVERIFY2(este > sitio, qPrintable(orden));
      sitio = static_cast<int>(este);
    }
    QCOMPARE(Orden("mnuContenido").shortcut(), QKeySequence(Qt::Key_F1));
    QCOMPARE(Orden("mnuNuevo").shortcut(), QKeySequence(Qt::CTRL | Qt::Key_N));
    QCOMPARE(Orden("mnuCerrar").shortcut(), QKeySequence(Qt::CTRL | Qt::Key_W));
    QCOMPARE(Orden("mnuCerrarTodo").shortcut(), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_W));
    QCOMPARE(Orden("mnuSalir").shortcut(), QKeySequence(Qt::CTRL | Qt::Key_Q));
  }

  void elMosaicoLlenaElAreaSinSolapes_data() {
    QTest::addColumn<int>("ventanas");
    for (const int n : {1, 2, 3, 4, 5, 7, 9}) QTest::newRow(qPrintable(QString::number(n))) << n;
  }
  void elMosaicoLlenaElAreaSinSolapes() {
    QFETCH(const int, ventanas);
    for (const Mosaico mosaico : {Mosaico::Horizontal, Mosaico::Vertical}) {
      const std::vector<QRect> sitios = RepartirEnMosaico(AREA, ventanas, MINIMO, mosaico);
      QCOMPARE(sitios.size(), std::size_t(ventanas));
      QCOMPARE(Superficie(sitios), qint64(AREA.width()) * AREA.height());
      for (std::size_t i = 0; i < sitios.size(); ++i) {
        QVERIFY(QRect(QPoint(), AREA).contains(sitios[i]));
        for (std::size_t j = 0; j < i; ++j) QVERIFY(!sitios[i].intersects(sitios[j]));
      }
    }
  }

  void horizontalApilaYVerticalPoneAlLado() {
    const auto horizontal = RepartirEnMosaico(AREA, 2, MINIMO, Mosaico::Horizontal);
    QCOMPARE(horizontal[0], QRect(0, 0, 1200, 320));
    QCOMPARE(horizontal[1], QRect(0, 320, 1200, 320));
    const auto vertical = RepartirEnMosaico(AREA, 2, MINIMO, Mosaico::Vertical);
    QCOMPARE(vertical[0], QRect(0, 0, 600, 640));
    QCOMPARE(vertical[1], QRect(600, 0, 600, 640));
    QVERIFY(RepartirEnMosaico(AREA, 0, MINIMO, Mosaico::Vertical).empty());
    QCOMPARE(RepartirEnMosaico({0, 0}, 2, MINIMO, Mosaico::Vertical).size(), 2U);
  }

  void losIconosSeAlineanAlFondoDeIzquierdaADerecha() {
    const auto esquinas = AlinearIconos({500, 300}, 3, {200, 30});
    QCOMPARE(esquinas[0], QPoint(0, 270));
    QCOMPARE(esquinas[1], QPoint(200, 270));
    QCOMPARE(esquinas[2], QPoint(0, 240));
    QCOMPARE(AlinearIconos({100, 300}, 2, {200, 30})[1], QPoint(0, 240));
  }

  void ordenarNuncaReduceUnaVentanaANada() {
    Orden("mnuNuevo").trigger();
    Orden("mnuNuevo").trigger();
    for (const char *orden : {"WindowCascade1", "WindowTileHorizontal1", "WindowTileVertical1"}) {
      Orden(orden).trigger();
      QCoreApplication::processEvents();
      for (const QMdiSubWindow *ventana : Area().subWindowList()) {
        QVERIFY2(!ventana->isMaximized(), orden);
        QVERIFY2(ventana->widget()->width() >= 300 && ventana->height() >= 200, orden);
      }
    }
  }

  void enUnaVentanaEstrechaElPanelPasaADosFilasYNadaSeRecorta() {
    const Ventana ventana = marco_->Numero(0);
    const auto &localidades = ventana.Buscar<QComboBox>("cbLocalidades");
    const auto &mes = ventana.Buscar<QSpinBox>("csMesIni");
    const auto fila = [](const QWidget &control) { return control.geometry().center().y(); };
    QVERIFY(qAbs(fila(mes) - fila(localidades)) < 8);
    Orden("mnuNuevo").trigger();
    Orden("WindowTileVertical1").trigger();
    QCoreApplication::processEvents();
    QVERIFY(mes.y() > localidades.geometry().bottom());
    auto &panel = ventana.Buscar<QWidget>("panelSeleccion");
    for (const QWidget *control : panel.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
      QVERIFY2(panel.rect().contains(control->geometry()), qPrintable(control->objectName()));
      QVERIFY2(control->width() >= control->minimumSizeHint().width(), qPrintable(control->objectName()));
    }
  }

  void minimizarYOrganizarDejanLosIconosAlFondoYSeVuelvenAAbrir() {
    Orden("mnuNuevo").trigger();
    Orden("WindowMinimizeAll1").trigger();
    for (QMdiSubWindow *ventana : Area().subWindowList()) {
      QVERIFY(ventana->isMinimized());
      ventana->move(40, 30);
    }
    Orden("WindowArrangeAll1").trigger();
    const QRect area = Area().viewport()->rect();
    for (const QMdiSubWindow *ventana : Area().subWindowList())
      QCOMPARE(ventana->geometry().bottom(), area.bottom());
    QVERIFY(Area().subWindowList()[0]->x() != Area().subWindowList()[1]->x());
    QMenu &menu = Menu("mnuVentana");
    emit menu.aboutToShow();
    menu.actions().last()->trigger();
    QVERIFY(!Area().activeSubWindow()->isMinimized());
    // Sin ninguna ventana no hay nada que ordenar.
    Orden("mnuCerrarTodo").trigger();
    QTRY_VERIFY(marco_->marco.Controladores().empty());
    for (const char *orden : {"WindowArrangeAll1", "WindowMinimizeAll1", "WindowTileVertical1"})
      Orden(orden).trigger();
  }

  void elMenuVentanaListaLasAbiertasYLasTraeDelante() {
    Orden("mnuNuevo").trigger();
    QMenu &menu = Menu("mnuVentana");
    emit menu.aboutToShow();
    emit menu.aboutToShow(); // no se repiten
    const QStringList textos = Textos(menu);
    QCOMPARE(textos.count(QStringLiteral("1 Sin Nombre1")), 1);
    QCOMPARE(textos.count(QStringLiteral("2 Sin Nombre2")), 1);
    QVERIFY(menu.actions().last()->isChecked());
    menu.actions().at(textos.indexOf(QStringLiteral("1 Sin Nombre1")))->trigger();
    QCOMPARE(Area().activeSubWindow()->windowTitle(), QStringLiteral("Sin Nombre1"));
  }

  void elManualSeAbrePorLaPestanaQueEstaDelante() {
    const Ventana ventana = marco_->Numero(0);
    QTest::keyClick(&marco_->marco, Qt::Key_F1);
    QCOMPARE(PaginaAbierta(), QStringLiteral("visualizar.html"));
    auto &pestanas = ventana.Buscar<QTabWidget>("pcProgramas");
    pestanas.setCurrentWidget(&ventana.Buscar<QWidget>("tsPsicrometrico"));
    Orden("mnuContenido").trigger();
    QCOMPARE(PaginaAbierta(), QStringLiteral("psicrometrico.html"));
    PulsarEnManual("btnAtras");
    QCOMPARE(PaginaAbierta(), QStringLiteral("visualizar.html"));
    PulsarEnManual("btnAdelante");
    QCOMPARE(PaginaAbierta(), QStringLiteral("psicrometrico.html"));
    PulsarEnManual("btnPortada");
    QCOMPARE(PaginaAbierta(), QStringLiteral("index.html"));
  }

  void sinVentanasElManualSeAbrePorLaPortada() {
    Orden("mnuCerrarTodo").trigger();
    QTRY_VERIFY(marco_->marco.Controladores().empty());
    Orden("mnuContenido").trigger();
    QCOMPARE(PaginaAbierta(), QStringLiteral("index.html"));
  }

  void lasImagenesDelManualCabenEnSuVentana() {
    QImage grande(2000, 100, QImage::Format_RGB32);
    grande.fill(Qt::red);
    QVERIFY(grande.save(Base() + QStringLiteral("/manual/img.png")));
    Orden("mnuContenido").trigger();
    const QVariant imagen =
        Manual().loadResource(QTextDocument::ImageResource, QUrl(QStringLiteral("img.png")));
    QVERIFY(imagen.value<QImage>().width() > 0 && imagen.value<QImage>().width() <= 780);
  }

  void losColoresNuevosLleganATodasLasVentanas() {
    constexpr std::uint32_t VERDE = 0x0000FF00;
    Orden("mnuNuevo").trigger();
    for (std::size_t i = 0; i < 2; ++i) {
      marco_->Numero(i).Localidad("Almería");
      marco_->Numero(i).Pulsar("btnSimulacion");
    }
    DameTablaDeColores().ponColor(0, VERDE);
    Orden("mnuColores").trigger();
    marco_->marco.findChild<QDialog *>(QStringLiteral("forColores"))->accept(); // como está
    for (std::size_t i = 0; i < 2; ++i) QCOMPARE(marco_->Numero(i).Chart().Serie(0).color, QColor(Qt::green));
    LiberarTablaDeColores();
  }

  void contenidoHaceDelDirectorioDelProgramaElDeTrabajo() {
    QDir::setCurrent(QDir::rootPath());
    Orden("mnuContenido").trigger();
    QCOMPARE(QDir::currentPath(), QFileInfo(Base()).canonicalFilePath());
  }

  void conFicheroDeAyudaLoAbreElSistema() {
    PonAyudaYAbridor("printf '%s' \"$1\" > abierto.txt\n");
    Orden("mnuContenido").trigger();
    const auto apunte = marco_->datos.Directorio() / "abierto.txt";
    QTRY_VERIFY(!Contenido(apunte).empty());
    QVERIFY(Contenido(apunte).ends_with("/Crindel.hlp"));
    QTest::qWait(50);
    QVERIFY(marco_->marco.findChild<QTextBrowser *>() == nullptr);
  }

  void siElSistemaNoAbreElFicheroDeAyudaSaleElManual_data() {
    QTest::addColumn<bool>("hayAbridor");
    QTest::newRow("el abridor falla") << true;
    QTest::newRow("no hay abridor") << false;
  }
  void siElSistemaNoAbreElFicheroDeAyudaSaleElManual() {
    QFETCH(const bool, hayAbridor);
    PonAyudaYAbridor("exit 3\n");
    if (!hayAbridor) qputenv("PATH", "/no/existe");
    Orden("mnuContenido").trigger();
    QTRY_VERIFY(marco_->marco.findChild<QTextBrowser *>() != nullptr);
    QCOMPARE(PaginaAbierta(), QStringLiteral("visualizar.html"));
  }

  void cadaPestanaTieneSuPaginaEnElManualQueSeEntrega() {
    const QDir manual(QString::fromStdString(Raiz() + "/docs/manual"));
    for (const char *pestana : {"tsDatosGenerales", "tsDiasExtremos", "tsResultadosDiasExtremos",
                                "tsPosicionSolar", "tsPsicrometrico", "tsArchivosHorarios", "tsValores"}) {
      const QString pagina = PaginaDelManual(QString::fromLatin1(pestana)).section(QLatin1Char('#'), 0, 0);
      QVERIFY(pagina != QStringLiteral("index.html"));
      QVERIFY2(manual.exists(pagina), qPrintable(pagina));
    }
    QCOMPARE(PaginaDelManual(QStringLiteral("otra")), QStringLiteral("index.html"));
  }

  void losEnlacesYLasImagenesDelManualEstanTodos() {
    const QDir manual(QString::fromStdString(Raiz() + "/docs/manual"));
    const QRegularExpression referencia(QStringLiteral("(?:href|src)=\"([^\"#]+)"));
    int referencias = 0;
    for (const QString &pagina : manual.entryList({QStringLiteral("*.html")})) {
      QFile fichero(manual.filePath(pagina));
      QVERIFY(fichero.open(QIODevice::ReadOnly));
      auto hallazgos = referencia.globalMatch(QString::fromUtf8(fichero.readAll()));
      while (hallazgos.hasNext()) {
        const QString a = hallazgos.next().captured(1);
        QVERIFY2(manual.exists(a), qPrintable(pagina + QStringLiteral(": ") + a));
        ++referencias;
      }
    }
    QVERIFY(referencias > 20);
  }

  void acercaDeDiceVersionLicenciaYBibliotecasYSeCierraConOK() {
    QStringList textos;
    QString titulo;
    bool porDefecto = false;
    int resultado = QDialog::Rejected;
    QTimer::singleShot(0, [&] {
      auto *caja = qobject_cast<QDialog *>(QApplication::activeModalWidget());
      if (!caja) return;
      connect(caja, &QDialog::finished, [&](int este) { resultado = este; });
      titulo = caja->windowTitle();
      for (const QLabel *rotulo : caja->findChildren<QLabel *>()) textos << rotulo->text();
      auto *ok = caja->findChild<QPushButton *>(QStringLiteral("OKButton"));
      if (!ok || ok->text() != QStringLiteral("OK")) return caja->reject();
      const auto *icono = caja->findChild<QLabel *>(QStringLiteral("ProgramIcon"));
      porDefecto = ok->isDefault() && icono && !icono->pixmap().isNull();
      QTest::mouseClick(ok, Qt::LeftButton);
    });
    Orden("mnuAcercade").trigger();
    QCOMPARE(titulo, QStringLiteral("Acerca de Tesmo-A"));
    QVERIFY(porDefecto);
    QCOMPARE(resultado, int(QDialog::Accepted));
    const QString todo = textos.join(QLatin1Char(' '));
    for (const char *parte : {VERSION, "licencia pública general de GNU", "Qt 6", "QCustomPlot 2"})
      QVERIFY2(todo.contains(QString::fromUtf8(parte)), parte);
  }

private:
  [[nodiscard]] QAction &Orden(const char *nombre) const { return marco_->Orden(nombre); }
  [[nodiscard]] QMenu &Menu(const QString &nombre) const { return *marco_->marco.findChild<QMenu *>(nombre); }
  [[nodiscard]] static QStringList Textos(const QMenu &menu) {
    QStringList textos;
    for (const QAction *orden : menu.actions()) textos << orden->text().remove(QLatin1Char('&'));
    return textos;
  }
  [[nodiscard]] QMdiArea &Area() const { return *marco_->marco.findChild<QMdiArea *>(); }
  [[nodiscard]] QString Base() const {
    return QString::fromStdString(TextoDeRuta(marco_->datos.Directorio().Ruta()));
  }
  [[nodiscard]] QTextBrowser &Manual() const {
    return *marco_->marco.findChild<QTextBrowser *>(QStringLiteral("tbManual"));
  }
  [[nodiscard]] QString PaginaAbierta() const { return Manual().source().fileName(); }
  void PulsarEnManual(const char *boton) const {
    QTest::mouseClick(marco_->marco.findChild<QPushButton *>(QString::fromLatin1(boton)), Qt::LeftButton);
  }

  void EscribirManual() const {
    for (const char *pagina : {"index.html", "visualizar.html", "psicrometrico.html"})
      marco_->datos.Directorio().Escribir(std::string("manual/") + pagina, "<p>Página</p>");
  }
  /// Un fichero de ayuda en el directorio del programa y un abridor del escritorio de mentira.
  void PonAyudaYAbridor(const std::string &orden) const {
    marco_->datos.Directorio().Escribir("Crindel.hlp", "ayuda");
    const std::string abridor = marco_->datos.Directorio().Escribir("orden/xdg-open", "#!/bin/sh\n" + orden);
    std::filesystem::permissions(abridor, std::filesystem::perms::owner_all);
    qputenv("PATH", QFile::encodeName(Base()) + "/orden:" + camino_);
  }

  std::optional<MarcoPrueba> marco_;
  const QByteArray camino_ = qgetenv("PATH");
};

TESMO_PRUEBA_QT(PruebaMenus)
#include "Menus_prueba.moc"
