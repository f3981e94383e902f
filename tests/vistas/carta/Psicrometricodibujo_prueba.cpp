// Lo que se ve en la página "Psicrométrico  ": líneas, marcas, escalas, nombres, leyenda y cuándo se dibuja.

#include "imagen/Lienzopintor.h"
#include "tests/comun/ventanas/Manejocarta.h"

#include <QComboBox>
#include <QDialog>
#include <QFileDialog>
#include <QPainter>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

using namespace tesmo;
using namespace tesmo::prueba;

namespace {

constexpr const char *CASILLAS[] = {"cbVerT", "cbVerW", "cbVerH", "cbVerHR", "cbVerVE"};

/// El menor rectángulo con todos los píxeles de un color.
QRect Caja(const QImage &imagen, const QColor &color) {
  QRect caja;
  for (int y = 0; y < imagen.height(); ++y)
    for (int x = 0; x < imagen.width(); ++x)
      if (imagen.pixel(x, y) == color.rgb()) caja |= QRect(x, y, 1, 1);
  return caja;
}

int Cuantos(const QImage &imagen, const QColor &color) {
  int n = 0;
  for (int y = 0; y < imagen.height(); ++y)
    for (int x = 0; x < imagen.width(); ++x) n += imagen.pixel(x, y) == color.rgb() ? 1 : 0;
  return n;
}

} // namespace

class PruebaPsicrometricodibujo : public QObject, private ManejoCarta {
  Q_OBJECT

private slots:
  void init() { Abrir(); }
  void cleanup() { Cerrar(); }

  void laMarcaEsUnaCruzDeSuColorEnSuPixel() {
    MarcarSoloUna();
    const QImage imagen = Marco().Imagen(1.0);
    const QPoint centro = SitioDeLaMarca();
    const QRect caja = Caja(imagen, Qt::blue);
    QCOMPARE(caja.topLeft(), centro - QPoint(3, 3));
    QCOMPARE(caja.size(), QSize(7, 7)); // brazos de 3 px a cada lado del centro
    QCOMPARE(imagen.pixelColor(centro), QColor(Qt::blue));
    QCOMPARE(Cuantos(imagen, Qt::blue), 2 * 7 * 2 - 2 * 2); // dos trazos de 7 × 2 que se cruzan
    QCOMPARE(Cuantos(imagen.copy(caja.left(), centro.y() - 1, 7, 2), Qt::blue), 14);
    QCOMPARE(Cuantos(imagen.copy(centro.x() - 1, caja.top(), 2, 7), Qt::blue), 14);
  }

  void laMarcaVaASuSitioAlCambiarDeTamano() {
    MarcarSoloUna();
    const QPoint antes = SitioDeLaMarca();
    marco_->marco.resize(1000, 640);
    QApplication::processEvents();
    QTRY_VERIFY(SitioDeLaMarca() != antes);
    const QImage imagen = Marco().Imagen(1.0);
    QCOMPARE(imagen.pixelColor(SitioDeLaMarca()), QColor(Qt::blue));
    const QRect caja = Caja(imagen, Qt::blue);
    QCOMPARE(caja, QRect(SitioDeLaMarca() - QPoint(3, 3), QSize(7, 7)));
  }

  void alDobleDeDensidadLaMarcaTieneElDobleDePixeles() {
    MarcarSoloUna();
    const QRect sencilla = Caja(Marco().Imagen(1.0), Qt::blue);
    const QRect doble = Caja(Marco().Imagen(2.0), Qt::blue);
    QCOMPARE(doble, QRect(2 * sencilla.topLeft(), 2 * sencilla.size()));
  }

  void elDibujoTieneLaDensidadDeLaPantalla() { // se pasa también con la pantalla al doble
    MarcarSoloUna();
    const QImage pantalla = Marco().grab().toImage();
    const double densidad = Marco().devicePixelRatioF();
    QCOMPARE(pantalla.size(), Marco().size() * densidad);
    QCOMPARE(Caja(pantalla, Qt::blue), Caja(Marco().Imagen(densidad), Qt::blue));
    QCOMPARE(pantalla, Marco().Imagen(densidad).convertToFormat(pantalla.format()));
  }

  void lasMarcasTapanALosNombresYNoAlReves() {
    const std::vector<QString> textos = TextosDelDibujo();
    QVERIFY(!textos.empty());
    // Una marca en cada centésimo de la carta: las que caigan bajo un nombre se ven enteras.
    for (int i = 0; i <= 100; ++i) Vista().marcarPunto(0.5F * static_cast<float>(i), 0.0075F, 1, 1);
    Marco().Redibujar();
    const QImage imagen = Marco().Imagen(1.0);
    for (const MarcaNube &marca : Vista().Contenido().marcas) {
      const QPoint centro = Sitio(marca.t, marca.w);
      if (marca.t > 0.0F && marca.t < 50.0F) QCOMPARE(imagen.pixelColor(centro), QColor(Qt::blue));
    }
  }

  void lasEscalasLlevanSusRayasYSusCifras() {
    const QImage imagen = Marco().Imagen(1.0);
    const QSize carta = Marco().TamanoDeCarta();
    const QPoint origen = Origen();
    const QColor negro(Qt::black);
    for (int t = 0; t <= 50; t += 5)
      QCOMPARE(imagen.pixelColor(origen + QPoint(static_cast<int>(Carta().x(t)), carta.height() + 2)), negro);
    for (int g = 0; g <= 30; g += 5) {
      const int y = static_cast<int>(std::lround(Carta().y(g / 1000.0)));
      QVERIFY(Cuantos(imagen.copy(QRect(origen + QPoint(carta.width() + 2, y - 1), QSize(1, 3))), negro) > 0);
    }
    // A medio camino entre dos rayas no hay nada.
    QCOMPARE(imagen.pixelColor(origen + QPoint(static_cast<int>(Carta().x(2.5)), carta.height() + 2)),
             QColor(Qt::white));
    const std::vector<QString> textos = TextosDelDibujo();
    for (const char *cifra : {"0", "5", "10", "15", "20", "25", "30", "35", "40", "45", "50"})
      QVERIFY2(std::count(textos.begin(), textos.end(), QString::fromLatin1(cifra)) >= 1, cifra);
    QVERIFY(Esta(textos, "Temperatura seca (ºC)"));
    QVERIFY(Esta(textos, "Humedad absoluta (g/kg)"));
  }

  void lasFamiliasALaVistaLlevanSuNombreYSusCifras() {
    const std::vector<QString> textos = TextosDelDibujo();
    for (const char *texto :
         {"Humedad relativa", "Entalpía (kJ/kg)", "Volumen específico (m³/kg)", "50 %", "90 %"})
      QVERIFY2(Esta(textos, texto), texto);
    ventana_->Marcar("cbVerHR", false);
    ventana_->Marcar("cbVerVE", false);
    const std::vector<QString> menos = TextosDelDibujo();
    QVERIFY(!Esta(menos, "Humedad relativa"));
    QVERIFY(!Esta(menos, "50 %"));
    QVERIFY(!Esta(menos, "Volumen específico (m³/kg)"));
    QVERIFY(Esta(menos, "Entalpía (kJ/kg)"));
  }

  void losNombresApenasTapanLasLineas() {
    const QImage conNombres = Marco().Imagen(1.0).copy(QRect(Origen(), Marco().TamanoDeCarta()));
    QImage lineas(conNombres.size(), QImage::Format_RGB32);
    lineas.fill(Qt::white);
    {
      QPainter pintor(&lineas);
      LienzoPintor lienzo(pintor);
      Carta().dibujar(lienzo, lineas.width(), lineas.height());
    }
    int trazados = 0;
    int cambiados = 0;
    for (int y = 0; y < lineas.height(); ++y) {
      for (int x = 0; x < lineas.width(); ++x) {
        if (lineas.pixel(x, y) == QColor(Qt::white).rgb()) continue;
        ++trazados;
        cambiados += lineas.pixel(x, y) != conNombres.pixel(x, y) ? 1 : 0;
      }
    }
    QVERIFY(trazados > 10000);
    QVERIFY2(cambiados < trazados / 20, qPrintable(QStringLiteral("%1 de %2").arg(cambiados).arg(trazados)));
  }

  void laLeyendaDiceLosColoresDeLaNube() {
    const auto leyenda = [this] { return TextosDelDibujo(); };
    ventana_->Localidad("Almería");
    Control<QComboBox>("cbColorear").setCurrentIndex(static_cast<int>(ColoreoNube::Estacion));
    QVERIFY(!Esta(leyenda(), "Primavera")); // sin marcas no hay nada que explicar
    ventana_->Pulsar("btnNubes");
    for (const char *estacion : {"Invierno", "Primavera", "Verano", "Otoño"})
      QVERIFY2(Esta(leyenda(), estacion), estacion);
    const QColor invierno(0x00, 0x64, 0xC8);
    const QRect muestra = Caja(Marco().Imagen(1.0).copy(0, 0, 60, 60), invierno);
    QCOMPARE(muestra.size(), QSize(9, 9));
    Control<QComboBox>("cbColorear").setCurrentIndex(static_cast<int>(ColoreoNube::Mes));
    QVERIFY(Esta(leyenda(), "enero"));
    QVERIFY(Esta(leyenda(), "diciembre"));
  }

  void sinBandaLasEsquinasSiguenALaPulsacion() {
    const QSize carta = Marco().TamanoDeCarta();
    Pulsar(carta.width() / 2, carta.height() - 40);
    const std::array<Pixel, 2> esperadas{Pixel{carta.width() / 2, carta.height() - 40},
                                         Pixel{carta.width() / 2, carta.height() - 40}};
    QVERIFY(Vista().Banda().esquinas == esperadas);
    Pulsar(5, 5); // también donde no hay estado
    QVERIFY((Vista().Banda().esquinas == std::array<Pixel, 2>{Pixel{5, 5}, Pixel{5, 5}}));
    QVERIFY(!Vista().Banda().activa);
  }

  void conBandaSeSueltaYLaCartaVuelveASuTamano() {
    const QImage antes = Marco().Imagen(1.0);
    const QSize carta = Marco().TamanoDeCarta();
    const int veces = Marco().VecesDibujada();
    Vista().Banda() = {true, {Pixel{10, 20}, Pixel{90, 60}}};
    Pulsar(carta.width() / 2, carta.height() - 40);
    QVERIFY(!Vista().Banda().activa);
    QVERIFY((Vista().Banda().esquinas == std::array<Pixel, 2>{Pixel{10, 20}, Pixel{90, 60}}));
    QVERIFY(Vista().Contenido().puntos.empty());
    QApplication::processEvents();
    QCOMPARE(Marco().VecesDibujada(), veces + 1);
    QCOMPARE(static_cast<int>(Carta().dameAncho()), carta.width());
    QCOMPARE(static_cast<int>(Carta().dameAlto()), carta.height());
    QCOMPARE(Marco().Imagen(1.0), antes);
  }

  void seVuelveADibujarAlCambiarDeTamano() {
    ventana_->Localidad("Almería");
    ventana_->Pulsar("btnNubes");
    const QSize antes = Marco().TamanoDeCarta();
    const int veces = Marco().VecesDibujada();
    marco_->marco.resize(1000, 640);
    QApplication::processEvents();
    QTRY_VERIFY(Marco().TamanoDeCarta() != antes);
    QTRY_VERIFY(Marco().VecesDibujada() > veces);
    QCOMPARE(int(Carta().dameAncho()), Marco().TamanoDeCarta().width());
    QCOMPARE(Vista().Contenido().marcas.size(), std::size_t(24));
  }

  void elBotonYElMenuPidenDondeGuardarLaCarta() {
    QWidget &pagina = Control<QWidget>("tsPsicrometrico");
    const QString ruta = QString::fromStdString((marco_->datos.Directorio() / "carta.png").string());
    const auto guardar = [&] {
      auto *dialogo = pagina.findChild<QFileDialog *>(QStringLiteral("sdGuardarCarta"));
      QVERIFY(dialogo);
      dialogo->selectFile(ruta);
      static_cast<QDialog *>(dialogo)->accept();
      QTRY_VERIFY(pagina.findChild<QFileDialog *>() == nullptr);
      QVERIFY(Contenido(ruta.toStdString()).starts_with("\x89PNG"));
      QVERIFY(QFile::remove(ruta));
    };
    ventana_->Pulsar("btnGuardarCarta");
    guardar();
    ElegirEnMenu(Control<QWidget>("imgPsicro"), QPoint(200, 200), "acGuardarCarta");
    guardar();
  }

  void laImagenSeGuardaEnPngSvgYPdf() {
    for (const auto &[nombre, principio] :
         {std::pair{"c.png", "\x89PNG"}, {"c.svg", "<?xml"}, {"c.pdf", "%PDF-"}}) {
      const QString ruta = QString::fromStdString((marco_->datos.Directorio() / nombre).string());
      QVERIFY(Vista().GuardarImagen(ruta));
      QVERIFY(Contenido(ruta.toStdString()).starts_with(principio));
    }
    QVERIFY(!Vista().GuardarImagen(QStringLiteral("/nohay/carta.png")));
  }

  void elSvgNoSeSaleDeLaCarta() {
    for (const auto &[t, w] : {std::pair{-2.0F, 0.005F}, {52.0F, 0.005F}, {20.0F, 0.031F}, {25.0F, 0.01F}})
      Vista().marcarPunto(t, w, 1, 1);
    Marco().Redibujar();
    const QString ruta = QString::fromStdString((marco_->datos.Directorio() / "marco.svg").string());
    QVERIFY(Vista().GuardarImagen(ruta));
    // En píxeles de la carta; las rayas de las escalas salen cuatro por abajo y por la derecha.
    const QRectF marco = QRectF(QPointF(), Marco().TamanoDeCarta()).adjusted(-1, -1, 4, 4);
    int puntos = 0;
    const QString svg = QString::fromStdString(Contenido(ruta.toStdString()));
    auto trazos = QRegularExpression(QStringLiteral("points=\"([^\"]*)\"")).globalMatch(svg);
    while (trazos.hasNext()) {
      for (const QString &punto : trazos.next().captured(1).split(' ', Qt::SkipEmptyParts)) {
        const QStringList par = punto.split(',');
        QCOMPARE(par.size(), 2);
        const QPointF sitio(par[0].toDouble(), par[1].toDouble());
        QVERIFY2(marco.contains(sitio), qPrintable(punto));
        ++puntos;
      }
    }
    QVERIFY(puntos > 1000);
    const std::vector<QString> textos = TextosDelDibujo();
    QVERIFY(!Esta(textos, "0,74") && !Esta(textos, "0.74")); // su línea cae a la izquierda de 0 ºC
  }

  void lasCasillasQuitanYPonenSusFamilias() {
    const QImage entera = Marco().Imagen(1.0);
    const std::vector<std::pair<const char *, Familia>> casillas{{"cbVerT", Familia::T},
                                                                 {"cbVerW", Familia::W},
                                                                 {"cbVerH", Familia::H},
                                                                 {"cbVerHR", Familia::HR},
                                                                 {"cbVerVE", Familia::VE}};
    for (const auto &[nombre, familia] : casillas) {
      ventana_->Marcar(nombre, false);
      QVERIFY(!Carta().esVisible(familia));
      QVERIFY(Marco().Imagen(1.0) != entera);
      ventana_->Marcar(nombre, true);
      QVERIFY(Carta().esVisible(familia));
    }
    QCOMPARE(Marco().Imagen(1.0), entera);
  }

  void moverElPunteroNoVuelveADibujar() {
    const int veces = Marco().VecesDibujada();
    for (int x = 10; x < 200; x += 10) {
      Mover(x, Marco().TamanoDeCarta().height() - 10);
      QApplication::processEvents(); // se repinta la retícula
    }
    QVERIFY(Marco().Reticula());
    QCOMPARE(Marco().VecesDibujada(), veces);
  }

  void unPuntoSoloCambiaElDibujoJuntoAEl() {
    FijarDosPuntos();
    QApplication::processEvents();
    const QImage antes = Marco().Imagen(1.0);
    const QSize carta = Marco().TamanoDeCarta();
    QCOMPARE(antes.pixelColor(carta.width() / 8, carta.height() / 8), QColor(Qt::white));
    Pulsar(carta.width() - 60, carta.height() - 50);
    const QImage despues = Marco().Imagen(1.0);
    QVERIFY(despues != antes);
    const QRect lejos(0, 0, carta.width() / 4, antes.height());
    QCOMPARE(despues.copy(lejos), antes.copy(lejos));
  }

private:
  [[nodiscard]] QPoint Origen() const { return Control<QWidget>("imgPsicro").pos(); }
  [[nodiscard]] QPoint Sitio(double t, double w) const {
    return Origen() + QPoint(static_cast<int>(Carta().x(t)), static_cast<int>(Carta().y(w)));
  }
  /// Una marca en el centro de la carta, que se queda sin líneas ni nombres.
  void MarcarSoloUna() const {
    for (const char *casilla : CASILLAS) ventana_->Marcar(casilla, false);
    Vista().marcarPunto(25.0F, 0.015F, 1, 1);
    Marco().Redibujar();
    QApplication::processEvents();
  }
  [[nodiscard]] QPoint SitioDeLaMarca() const { return Sitio(25.0, 0.015F); }
  /// Los textos del dibujo, leídos de su imagen vectorial.
  [[nodiscard]] std::vector<QString> TextosDelDibujo() const {
    const QString ruta = QString::fromStdString((marco_->datos.Directorio() / "textos.svg").string());
    if (!Vista().GuardarImagen(ruta)) qFatal("no se pudo guardar la imagen");
    const QString svg = QString::fromStdString(Contenido(ruta.toStdString()));
    std::vector<QString> textos;
    auto hallados = QRegularExpression(QStringLiteral("<text[^>]*>([^<]*)</text>")).globalMatch(svg);
    while (hallados.hasNext()) textos.push_back(hallados.next().captured(1).trimmed());
    return textos;
  }
  static bool Esta(const std::vector<QString> &textos, const char *texto) {
    return std::find(textos.begin(), textos.end(), QString::fromUtf8(texto)) != textos.end();
  }
};

TESMO_PRUEBA_QT(PruebaPsicrometricodibujo)
#include "Psicrometricodibujo_prueba.moc"
