// La página "Psicrométrico  ": lectura bajo el puntero, nube de horas, puntos, proceso y dibujo.

#include "psicro/Corrienteaire.h"
#include "psicro/Psicrometrico.h"
#include "tests/vistas/Manejo.h"
#include "vistas/Marcocarta.h"
#include "vistas/Paginapsicrometrico.h"
#include "vistas/Vistapsicrometrico.h"

#include <QCheckBox>
#include <QClipboard>
#include <QColorDialog>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableWidget>

#include <optional>

using namespace tesmo;
using namespace tesmo::prueba;

class PruebaPsicrometrico : public QObject {
  Q_OBJECT

private slots:
  void init() {
    marco_.emplace();
    ventana_.emplace(marco_->Numero(0));
    auto &paginas = Control<QTabWidget>("pcProgramas");
    paginas.setCurrentWidget(&Control<QWidget>("tsPsicrometrico"));
    QApplication::processEvents();
  }
  void cleanup() {
    ventana_.reset();
    marco_.reset();
  }

  void losControlesTienenSusRotulosYValoresDeFabrica() {
    auto &paginas = Control<QTabWidget>("pcProgramas");
    QCOMPARE(paginas.tabText(paginas.currentIndex()), QStringLiteral("Psicrométrico  "));
    QCOMPARE(Control<QGroupBox>("gbValores").title(), QStringLiteral("Valores  "));
    QCOMPARE(Control<QGroupBox>("gbHorario").title(), QStringLiteral(" Horario  "));
    QCOMPARE(Control<QPushButton>("btnNubes").text().remove('&'), QStringLiteral("Representar"));
    QCOMPARE(Control<QPushButton>("btnLimpiar").text().remove('&'), QStringLiteral("Limpiar"));
    QCOMPARE(Control<QLabel>("lbPunto").text(), QStringLiteral("Punto"));
    QCOMPARE(ColorPunto(), QColor(Qt::blue));
    const auto &inicio = Control<QSpinBox>("csPHorIni");
    const auto &final = Control<QSpinBox>("csPHorFin");
    QCOMPARE(inicio.value(), 1);
    QCOMPARE(final.value(), 24);
    QCOMPARE(inicio.minimum(), 1);
    QCOMPARE(final.maximum(), 24);
    for (const char *casilla : {"edT", "edW", "edH", "edHR", "edVE", "edTR", "edTH", "edPresion"})
      QCOMPARE(Valor(casilla), QString());
  }

  void elPunteroLeeElEstadoConLosPatrones() {
    // El centro de la carta: 25 ºC y 0,015 kg/kg, a 101325 Pa.
    const QSize carta = Marco().TamanoDeCarta();
    Mover(carta.width() / 2, carta.height() / 2);
    const float t = Carta().t(carta.width() / 2);
    const float w = Carta().w(carta.height() / 2);
    CorrienteAire aire;
    aire.pont_w(t, w, 101325.0F);
    QCOMPARE(Valor("edT"), Patron(aire.temperatura(), 2));
    QCOMPARE(Valor("edW"), Patron(aire.humedadAbsoluta(), 4));
    QCOMPARE(Valor("edH"), Patron(aire.dame("h"), 2));
    QCOMPARE(Valor("edHR"), Patron(aire.dame("hr"), 2));
    QCOMPARE(Valor("edVE"), Patron(aire.dame("ve"), 4));
    QCOMPARE(Valor("edTR"), Patron(aire.dame("tr"), 2));
    QCOMPARE(Valor("edTH"), Patron(aire.dame("th"), 2));
    QCOMPARE(Valor("edPresion"), QStringLiteral("101325"));
    QCOMPARE(Marco().Reticula(), std::optional(QPoint(carta.width() / 2, carta.height() / 2)));
  }

  void porEncimaDeLaSaturacionNadaCambia() {
    const QSize carta = Marco().TamanoDeCarta();
    Mover(carta.width() / 2, carta.height() / 2);
    const QString antes = Valor("edT") + Valor("edH");
    Mover(5, 5);
    QCOMPARE(Valor("edT") + Valor("edH"), antes);
  }

  void enLaEsquinaInferiorIzquierdaHayCeroYCero() {
    // El píxel que queda justo debajo de la imagen: la operación, no el ratón.
    Vista().lecturaPuntero(0, Marco().TamanoDeCarta().height());
    QCOMPARE(Valor("edT"), QStringLiteral("0"));
    QCOMPARE(Valor("edW"), QStringLiteral("0"));
  }

  void moverElPunteroNoVuelveADibujar() {
    const int veces = Marco().VecesDibujada();
    for (int x = 10; x < 200; x += 10) Mover(x, Marco().TamanoDeCarta().height() - 10);
    QApplication::processEvents();
    QCOMPARE(Marco().VecesDibujada(), veces);
  }

  void deDoceADoceUnaMarcaPorDia() {
    ventana_->Localidad("Almería");
    ventana_->PonAnioEntero();
    Control<QSpinBox>("csPHorIni").setValue(12);
    Control<QSpinBox>("csPHorFin").setValue(12);
    ventana_->Pulsar("btnNubes");
    const auto &marcas = Vista().Contenido().marcas;
    QCOMPARE(marcas.size(), std::size_t(365));
    for (const MarcaNube &marca : marcas) QCOMPARE(marca.hora, 12);
    QCOMPARE(marcas[31].mes, 2);
    QCOMPARE(marcas[1].t, DatosPrueba::TemperaturaSeca(24 + 11, DatosPrueba::BASE_ALMERIA));
  }

  void elPeriodoEmpiezaDondeDiceSuPrimeraHora() {
    ventana_->Localidad("Almería");
    ventana_->Poner("csHorIni", 20);
    ventana_->Pulsar("btnNubes");
    QCOMPARE(Vista().Contenido().marcas.size(), std::size_t(5));
    QCOMPARE(Vista().Contenido().marcas.front().hora, 20);
  }

  void limpiarQuitaTodasLasMarcas() {
    const QImage limpia = Marco().Imagen(1.0);
    ventana_->Localidad("Almería");
    const QImage cargada = Marco().Imagen(1.0);
    ventana_->Pulsar("btnNubes");
    QVERIFY(Marco().Imagen(1.0) != cargada);
    ventana_->Pulsar("btnLimpiar");
    QVERIFY(Vista().Contenido().marcas.empty());
    QCOMPARE(Marco().Imagen(1.0), cargada);
    QVERIFY(!limpia.isNull());
  }

  void lasMarcasSeAcumulanYCambiarDeLocalidadLasQuita() {
    ventana_->Localidad("Almería");
    ventana_->Pulsar("btnNubes");
    ventana_->Pulsar("btnNubes");
    QCOMPARE(Vista().Contenido().marcas.size(), std::size_t(48));
    ventana_->Localidad("Níjar");
    QVERIFY(Vista().Contenido().marcas.empty());
  }

  void sinLocalidadMensaje59YNadaCambia() {
    ventana_->Pulsar("btnNubes");
    QCOMPARE(marco_->mensajes.apuntes.size(), std::size_t(1));
    QVERIFY(marco_->mensajes.apuntes[0].texto.find("Localidad") != std::string::npos);
    QVERIFY(Vista().Contenido().marcas.empty());
    QVERIFY(QApplication::overrideCursor() == nullptr);
  }

  void elColorDelPuntoSeEligeEnSuRotulo() {
    QTest::mouseClick(&Control<QLabel>("lbPunto"), Qt::LeftButton);
    auto *dialogo = Control<QWidget>("tsPsicrometrico").findChild<QColorDialog *>("cdPunto");
    QVERIFY(dialogo != nullptr);
    dialogo->setCurrentColor(Qt::green);
    dialogo->accept();
    QCOMPARE(ColorPunto(), QColor(Qt::green));
    ventana_->Localidad("Almería");
    ventana_->Pulsar("btnNubes");
    QCOMPARE(Vista().Contenido().marcas.front().color, 0x00FF00U);
  }

  void unClicFijaUnPuntoConSuEstado() {
    const QSize carta = Marco().TamanoDeCarta();
    Pulsar(carta.width() / 2, carta.height() - 40);
    const auto &tabla = Control<QTableWidget>("tablaPuntos");
    QCOMPARE(tabla.rowCount(), 1);
    QCOMPARE(tabla.item(0, 0)->text(), QStringLiteral("A"));
    QCOMPARE(tabla.item(0, 1)->text(), Patron(Vista().Contenido().puntos[0].t, 2));
    Pulsar(5, 5); // por encima de la saturación no hay estado
    QCOMPARE(tabla.rowCount(), 1);
  }

  void unPuntoSoloCambiaElDibujoJuntoAEl() {
    FijarDosPuntos(); // aparece la tabla: después la carta ya no cambia de tamaño
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

  void dosPuntosEnsenanSuProceso() {
    FijarDosPuntos();
    const auto &puntos = Vista().Contenido().puntos;
    CorrienteAire a;
    CorrienteAire b;
    a.pont_w(puntos[0].t, puntos[0].w, 101325.0F);
    b.pont_w(puntos[1].t, puntos[1].w, 101325.0F);
    a.ponm(1.0F, "kg/s");
    b.ponm(1.0F, "kg/s");
    const QString proceso = Control<QLabel>("lbProceso").text();
    QVERIFY2(proceso.startsWith(QStringLiteral("A → B")), qPrintable(proceso));
    QVERIFY(proceso.contains(QStringLiteral("sensible ") + KiloVatios(dameQSen(a, b)) + " kW"));
    QVERIFY(proceso.contains(QStringLiteral("latente ") + KiloVatios(dameQLat(a, b)) + " kW"));
  }

  void losPuntosSeCopianYSeBorran() {
    FijarDosPuntos();
    ventana_->Pulsar("btnCopiarPuntos");
    const QStringList lineas = QApplication::clipboard()->text().split('\n');
    QCOMPARE(lineas.size(), 4); // cabecera, dos puntos y el final
    QVERIFY(lineas[1].startsWith(QStringLiteral("A\t")));
    Control<QTableWidget>("tablaPuntos").selectRow(0);
    ventana_->Pulsar("btnBorrarPuntos");
    QCOMPARE(Vista().Contenido().puntos.size(), std::size_t(1));
    QCOMPARE(Vista().Contenido().puntos[0].nombre, QStringLiteral("B"));
    Control<QTableWidget>("tablaPuntos").clearSelection();
    ventana_->Pulsar("btnBorrarPuntos");
    QVERIFY(Vista().Contenido().puntos.empty());
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

  void laNubeSeColoreaPorHoraMesOEstacion() {
    const MarcaNube marca{20.0F, 0.01F, 7, 13, 0x123456};
    QCOMPARE(ColorDeMarca(marca, ColoreoNube::Uno), 0x123456U);
    for (const auto &[coloreo, entradas] :
         {std::pair{ColoreoNube::Hora, 24}, {ColoreoNube::Mes, 12}, {ColoreoNube::Estacion, 4}}) {
      const auto leyenda = LeyendaDeNube(coloreo);
      QCOMPARE(leyenda.size(), std::size_t(entradas));
      QSet<uint> colores;
      for (const EntradaLeyenda &entrada : leyenda) colores.insert(entrada.color);
      QCOMPARE(colores.size(), entradas);
      Control<QComboBox>("cbColorear").setCurrentIndex(static_cast<int>(coloreo));
      QCOMPARE(Vista().Contenido().coloreo, coloreo);
    }
    QCOMPARE(ColorDeMarca(marca, ColoreoNube::Hora), LeyendaDeNube(ColoreoNube::Hora)[12].color);
    QCOMPARE(ColorDeMarca(marca, ColoreoNube::Mes), LeyendaDeNube(ColoreoNube::Mes)[6].color);
    QCOMPARE(ColorDeMarca(marca, ColoreoNube::Estacion), LeyendaDeNube(ColoreoNube::Estacion)[2].color);
    QCOMPARE(ColorDeMarca({0, 0, 12, 1, 0}, ColoreoNube::Estacion),
             ColorDeMarca({0, 0, 2, 1, 0}, ColoreoNube::Estacion));
    QVERIFY(LeyendaDeNube(ColoreoNube::Uno).empty());
  }

  void laAltitudDelUsuarioMandaHastaQueCambiaLaLocalidad() {
    ventana_->Localidad("Almería");
    const float deFabrica = Carta().damePresion();
    const int delFichero = Control<QSpinBox>("csAltitud").value();
    ventana_->Poner("csAltitud", 2000);
    Psicro esperada;
    esperada.ponAltitud(2000.0F);
    QCOMPARE(Carta().damePresion(), esperada.damePresion());
    ventana_->Pulsar("btnNubes"); // cargar o derivar no la olvida
    QCOMPARE(Carta().damePresion(), esperada.damePresion());
    QCOMPARE(ventana_->Controlador().DameSeleccion().DameAltitudUsuario(), std::optional(2000.0F));
    ventana_->Pulsar("btnAltitudFichero");
    QCOMPARE(Carta().damePresion(), deFabrica);
    ventana_->Poner("csAltitud", 2000);
    ventana_->Localidad("Níjar");
    QVERIFY(!ventana_->Controlador().DameSeleccion().DameAltitudUsuario());
    QCOMPARE(Control<QSpinBox>("csAltitud").value(), delFichero);
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

  void laImagenSeGuardaEnPngSvgYPdf() {
    for (const auto &[nombre, principio] :
         {std::pair{"c.png", "\x89PNG"}, {"c.svg", "<?xml"}, {"c.pdf", "%PDF-"}}) {
      const QString ruta = QString::fromStdString((marco_->datos.Directorio() / nombre).string());
      QVERIFY(Vista().GuardarImagen(ruta));
      QVERIFY(Contenido(ruta.toStdString()).starts_with(principio));
    }
    QVERIFY(!Vista().GuardarImagen(QStringLiteral("/nohay/carta.png")));
  }

private:
  template <typename T>
  T &Control(const char *nombre) const {
    return ventana_->Buscar<T>(nombre);
  }
  Vistapsicrometrico &Vista() const { return ventana_->Controlador().DameVistaPsicrometrico(); }
  MarcoCarta &Marco() const { return Control<MarcoCarta>("marcoCarta"); }
  const Psicro &Carta() const { return *ventana_->Controlador().DamePsicro(); }
  QString Valor(const char *casilla) const { return Control<QLineEdit>(casilla).text(); }
  QColor ColorPunto() const { return Control<QLineEdit>("edPunto").palette().color(QPalette::Base); }
  void Mover(int x, int y) const { QTest::mouseMove(&Control<QWidget>("imgPsicro"), QPoint(x, y)); }
  void Pulsar(int x, int y) const {
    QTest::mouseClick(&Control<QWidget>("imgPsicro"), Qt::LeftButton, {}, QPoint(x, y));
  }
  void FijarDosPuntos() const {
    const QSize carta = Marco().TamanoDeCarta();
    Pulsar(carta.width() / 3, carta.height() - 40);
    Pulsar(carta.width() / 2, Marco().TamanoDeCarta().height() - 90);
  }
  /// Hasta @p decimales, sin ceros finales y con el separador de la región.
  static QString Patron(long double valor, int decimales) {
    QString texto = QString::number(static_cast<double>(valor), 'f', decimales);
    while (texto.contains('.') && (texto.endsWith('0') || texto.endsWith('.'))) texto.chop(1);
    return texto.replace('.', QLatin1Char(Configuracionregional::SeparadorDecimal()));
  }
  static QString KiloVatios(float vatios) {
    return QString::number(static_cast<double>(vatios) / 1000.0, 'f', 2)
        .replace('.', QLatin1Char(Configuracionregional::SeparadorDecimal()));
  }

  std::optional<MarcoPrueba> marco_;
  std::optional<Ventana> ventana_;
};

TESMO_PRUEBA_QT(PruebaPsicrometrico)
#include "Psicrometrico_prueba.moc"
