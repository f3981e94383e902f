// Lo que el gráfico pinta, guarda y copia.

#include "tests/comun/ventanas/Manejo.h"
#include "vistas/grafico/Escalahoras.h"

#include <QBuffer>
#include <QClipboard>
#include <QDir>
#include <QFileDialog>
#include <QRegularExpression>
#include <optional>

using namespace tesmo;
using namespace tesmo::prueba;

namespace {

const QColor COLOR(200, 30, 90);
constexpr std::size_t PICO = 5000;

/// Un año llano con un solo pico de una hora.
std::vector<float> AnioConPico() {
  std::vector<float> valores(HORAS_DEL_ANIO, 10.0F);
  for (std::size_t k = 0; k < valores.size(); k += 2) valores[k] = 12.0F;
  valores[PICO] = 50.0F;
  return valores;
}

/// ¿Hay algún píxel de la serie en la franja de filas @p desde a @p hasta?
bool HayTrazo(const QImage &imagen, const QRect &franja) {
  for (int y = franja.top(); y <= franja.bottom(); ++y) {
    for (int x = franja.left(); x <= franja.right(); ++x) {
      if (imagen.pixelColor(x, y) == COLOR) return true;
    }
  }
  return false;
}

} // namespace

class PruebaGraficoExportar : public QObject {
  Q_OBJECT

private slots:
  void init() {
    grafico_.emplace();
    grafico_->resize(1200, 700);
    grafico_->PonEscala(std::make_shared<EscalaHoras>(Periodo{{1, 1, 1}, {12, 31, 24}}));
    grafico_->AnadirSerie({QStringLiteral("ts"), QStringLiteral("Temperatura seca (ºC)"),
                           QStringLiteral("0.0"), COLOR, 2.0, LadoEje::Izquierdo, true},
                          AnioConPico());
    grafico_->show();
    QVERIFY(QTest::qWaitForWindowExposed(&*grafico_));
    grafico_->Redibujar();
  }
  void cleanup() { grafico_.reset(); }

  void elPicoDeUnaHoraSePintaEnUnAnioEntero_data() {
    QTest::addColumn<double>("escala");
    QTest::newRow("pantalla") << 1.0;
    QTest::newRow("imagen guardada") << 2.0;
  }
  void elPicoDeUnaHoraSePintaEnUnAnioEntero() {
    QFETCH(const double, escala);
    const QImage imagen = grafico_->Imagen(escala);
    const QRect marco = grafico_->Marco();
    const LimitesEje limites = grafico_->Limites(LadoEje::Izquierdo);
    const double yPico =
        marco.top() + (limites.maximo - 50.0) / (limites.maximo - limites.minimo) * marco.height();
    const double xPico = marco.left() + (PICO + 0.5) / HORAS_DEL_ANIO * marco.width();
    const QRect junto(QPoint(int(escala * (xPico - 2.0)), int(escala * (yPico - 2.0))),
                      QPoint(int(escala * (xPico + 2.0)), int(escala * (yPico + 2.0))));
    QVERIFY(HayTrazo(imagen, junto));
    const QRect lejos(QPoint(int(escala * (xPico + 20.0)), int(escala * (yPico - 2.0))),
                      QPoint(int(escala * (marco.right() - 2)), int(escala * (yPico + 20.0))));
    QVERIFY(!HayTrazo(imagen, lejos));
  }

  void guardaPngAlDoble() {
    QImage leida;
    QVERIFY(grafico_->GuardarImagen(Ruta("g.png")));
    QVERIFY(leida.load(Ruta("g.png"), "PNG"));
    QCOMPARE(leida.size(), QSize(2400, 1400));
  }

  void elSvgNoSeSaleDelMarco() {
    grafico_->PonTramo(5000.0, 5040.0); // los datos de fuera del tramo no pueden asomar
    QVERIFY(grafico_->GuardarImagen(Ruta("g.svg")));
    const QString svg = QString::fromStdString(Contenido(directorio_ / "g.svg"));
    QVERIFY(svg.contains(QStringLiteral("<svg")));
    const QRegularExpression polilinea(QStringLiteral("<polyline[^>]*points=\"([^\"]*)\""));
    const QRectF marco = QRectF(grafico_->Marco()).adjusted(-0.01, -0.01, 0.01, 0.01);
    int puntos = 0;
    for (const QString &grupo : svg.split(QStringLiteral("<g "))) {
      if (!grupo.contains(QStringLiteral("stroke=\"") + COLOR.name())) continue; // los ejes tienen otro color
      for (auto hallada = polilinea.globalMatch(grupo); hallada.hasNext();) {
        for (const QString &par : hallada.next().captured(1).split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
          const QStringList xy = par.split(QLatin1Char(','));
          QCOMPARE(xy.size(), 2);
          QVERIFY2(marco.contains(xy[0].toDouble(), xy[1].toDouble()), qPrintable(par));
          ++puntos;
        }
      }
    }
    QVERIFY(puntos >= 39);
  }

  void guardaPdf() {
    QVERIFY(grafico_->GuardarImagen(Ruta("g.pdf")));
    QVERIFY(Contenido(directorio_ / "g.pdf").starts_with("%PDF-"));
  }

  void siNoSePuedeGuardarLoDiceYNoTocaNada() {
    QVERIFY(!grafico_->GuardarImagen(Ruta("no/existe/g.png")));
    std::filesystem::create_directory(directorio_ / "g.png.d");
    QVERIFY(!grafico_->GuardarImagen(Ruta("g.png.d")));
    QVERIFY(std::filesystem::is_directory(directorio_ / "g.png.d"));
  }

  void elMenuGuardaDondeSeLeDice_data() {
    QTest::addColumn<QString>("orden");
    QTest::addColumn<QString>("extension");
    QTest::newRow("PNG") << "acGuardarPNG"
                         << "png";
    QTest::newRow("SVG") << "acGuardarSVG"
                         << "svg";
    QTest::newRow("PDF") << "acGuardarPDF"
                         << "pdf";
  }
  void elMenuGuardaDondeSeLeDice() {
    QFETCH(const QString, orden);
    QFETCH(const QString, extension);
    ElegirEnMenu(Trazo(), grafico_->Marco().center(), orden.toLatin1().constData());
    auto *dialogo = grafico_->findChild<QFileDialog *>(QStringLiteral("sdGuardarImagen"));
    QVERIFY(dialogo);
    dialogo->setDirectory(QString::fromStdString(TextoDeRuta(directorio_.Ruta())));
    dialogo->selectFile(QStringLiteral("pedida")); // la extensión la pone el diálogo
    QVERIFY(QMetaObject::invokeMethod(dialogo, "accept"));
    QTRY_VERIFY(QFileInfo(Ruta("pedida.") + extension).size() > 500);
  }

  void siElMenuNoPuedeGuardarDaElMensaje60() {
    const MensajesApuntados mensajes;
    grafico_->PedirGuardarImagen(QStringLiteral("png"));
    auto *dialogo = grafico_->findChild<QFileDialog *>(QStringLiteral("sdGuardarImagen"));
    const QString ruta = Ruta("falta/g.png");
    emit dialogo->fileSelected(ruta);
    QCOMPARE(mensajes.apuntes.size(), 1U);
    QCOMPARE(mensajes.apuntes[0].texto,
             "El fichero de resultado " + ruta.toStdString() + " no se ha podido abrir.\n ");
    dialogo->close();
  }

  void copiaLaImagenYLosDatosALaVista() {
    const ConSeparador coma(',');
    grafico_->PonTramo(4998.5, 5001.5);
    ElegirEnMenu(Trazo(), grafico_->Marco().center(), "acCopiarImagen");
    QCOMPARE(QApplication::clipboard()->image().size(), QSize(2400, 1400));
    ElegirEnMenu(Trazo(), grafico_->Marco().center(), "acCopiarDatos");
    // La hora 4999 es la séptima del día 209 del año (208 × 24 + 7), el 28 de julio.
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("n\tmes\tdia\thora\tTemperatura seca (ºC)\n"
                                                               "4999\t7\t28\t7\t12\n"
                                                               "5000\t7\t28\t8\t10\n"
                                                               "5001\t7\t28\t9\t50\n"));
  }

  void unaSerieMasCortaQueElEjeSeCopiaHastaDondeLlega() {
    const ConSeparador coma(',');
    grafico_->Vaciar();
    grafico_->AnadirSerie({QStringLiteral("ts"), QStringLiteral("Temperatura seca (ºC)"),
                           QStringLiteral("0.0"), COLOR, 2.0, LadoEje::Izquierdo, true},
                          std::vector<float>{1.5F, 2.5F});
    grafico_->Redibujar();
    grafico_->PonTramo(0.5, 3.5);
    QCOMPARE(grafico_->TextoDatos(), QStringLiteral("n\tmes\tdia\thora\tTemperatura seca (ºC)\n"
                                                    "1\t1\t1\t1\t1,5\n"
                                                    "2\t1\t1\t2\t2,5\n"
                                                    "3\t1\t1\t3\tnan\n"));
  }

  void elDialogoEmpiezaEnResultadosYRecuerdaElUltimoDirectorio() {
    const DatosPrueba datos;
    const auto dondeEmpieza = [&](const QString &guardar) {
      grafico_->PedirGuardarImagen(QStringLiteral("svg"));
      auto *dialogo = grafico_->findChild<QFileDialog *>(QStringLiteral("sdGuardarImagen"));
      const QString directorio = dialogo->directory().absolutePath();
      if (!guardar.isEmpty()) emit dialogo->fileSelected(guardar);
      delete dialogo;
      return directorio;
    };
    {
      const DirectorioTemporal otro;
      const QString ruta = QString::fromStdString(TextoDeRuta(otro.Ruta()));
      (void)dondeEmpieza(ruta + QStringLiteral("/g.svg"));
      QCOMPARE(dondeEmpieza({}), QDir(ruta).absolutePath());
    }
    // El recordado ya no está, ni el de resultados.
    std::filesystem::remove(datos.Directorio() / "Resultados");
    QCOMPARE(dondeEmpieza({}), QDir::homePath());
    std::filesystem::create_directory(datos.Directorio() / "Resultados");
    QCOMPARE(dondeEmpieza({}), QString::fromStdString(TextoDeRuta(datos.Directorio() / "Resultados")));
  }

  void elMenuVuelveAlPeriodoEntero() {
    grafico_->PonTramo(10.0, 20.0);
    ElegirEnMenu(Trazo(), grafico_->Marco().center(), "acVerTodo");
    QCOMPARE(grafico_->Tramo(), (std::pair{0.5, 8760.5}));
  }

private:
  [[nodiscard]] QString Ruta(const char *nombre) const {
    return QString::fromStdString(TextoDeRuta(directorio_ / nombre));
  }
  [[nodiscard]] QWidget &Trazo() const { return *grafico_->findChild<QWidget *>(QStringLiteral("trazo")); }

  DirectorioTemporal directorio_;
  std::optional<Grafico> grafico_;
};

TESMO_PRUEBA_QT(PruebaGraficoExportar)
#include "Graficoexportar_prueba.moc"
