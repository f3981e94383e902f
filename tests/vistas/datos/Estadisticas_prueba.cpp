// La pestaña "Valores medios y globales": cifras, unidades, meses y cuándo se rehace o se vacía.

#include "meteo/Magnitudes.h"
#include "tests/comun/ventanas/Manejo.h"

#include <QCheckBox>
#include <QClipboard>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTabWidget>
#include <QTableWidget>
#include <array>
#include <optional>

using namespace tesmo;
using namespace tesmo::prueba;

class PruebaEstadisticas : public QObject {
  Q_OBJECT

private slots:
  void init() {
    marco_.emplace();
    coma_.emplace(',');
    ventana_.emplace(marco_->Numero(0));
    ventana_->Buscar<QTabWidget>("pcProgramas").setCurrentWidget(&ventana_->Buscar<QWidget>("tsValores"));
  }
  void cleanup() {
    QVERIFY(QApplication::overrideCursor() == nullptr);
    ventana_.reset();
    coma_.reset();
    marco_.reset();
  }

  void hayUnBotonPorVariableEnLosGruposDelVisor() {
    const auto &paginas = ventana_->Buscar<QTabWidget>("pcProgramas");
    QCOMPARE(paginas.tabText(paginas.currentIndex()), QStringLiteral("Valores medios y globales  "));
    const std::array<const char *, NUMERO_MAGNITUDES_VISOR> botones{
        "rbTS", "rbRSDr", "rbRSDf", "rbHA", "rbVV", "rbDV", "rbC",  "rbAl", "rbAz", "rbTC", "rbTR",
        "rbTH", "rbHR",   "rbE",    "rbVE", "rbCE", "rbDN", "rbDr", "rbDf", "rbR",  "rbG"};
    ventana_->Localidad("Almería");
    for (std::size_t i = 0; i < botones.size(); ++i) {
      const FichaMagnitud &ficha = MAGNITUDES[i];
      const auto &boton = ventana_->Buscar<QRadioButton>(botones[i]);
      QCOMPARE(boton.text(), QString::fromUtf8(ficha.rotulo.data()));
      const auto &casilla = ventana_->Casilla(("cb" + std::string(ficha.codigo)).c_str());
      QCOMPARE(Grupo(boton).title(), Grupo(casilla).title());
      Elegir(botones[i]);
      QVERIFY(boton.isChecked());
      QCOMPARE(Rotulo("lbUnidadMaximo").toStdString(), std::string(Unidad(ficha.magnitud)));
    }
  }

  void alPrincipioHorasDe1A24BasesDe15Y25YNadaCalculado() {
    QCOMPARE(ventana_->Numero("csVHorIni").value(), 1);
    QCOMPARE(ventana_->Numero("csVHorFin").value(), 24);
    QCOMPARE(ventana_->Buscar<QDoubleSpinBox>("csBaseCal").value(), 15.0);
    QCOMPARE(ventana_->Buscar<QDoubleSpinBox>("csBaseRef").value(), 25.0);
    ComprobarVacio();
  }

  // El 1 de enero: de 10 a 21,5 ºC de medio en medio grado. Media 15,75; faltan hasta 15 grados
  // (5 + 4,5 + … + 0)·1 h = 27,5 grados-hora.
  void alElegirLocalidadSeVenLasCifrasConSuUnidadYSuHora() {
    ventana_->Localidad("Almería");
    QCOMPARE(Valor("edMaximo"), QStringLiteral("21,5"));
    QCOMPARE(Valor("edMinimo"), QStringLiteral("10,0"));
    QCOMPARE(Valor("edMedia"), QStringLiteral("15,8"));
    QCOMPARE(Valor("edGDCal"), QStringLiteral("1,1"));
    QCOMPARE(Valor("edGDRef"), QStringLiteral("0,0"));
    QCOMPARE(Valor("edDepresion"), QStringLiteral("0,0"));
    for (const char *unidad : {"lbUnidadMaximo", "lbUnidadMinimo", "lbUnidadMedia"})
      QCOMPARE(Rotulo(unidad), QStringLiteral("ºC"));
    for (const char *unidad : {"lbUnidadGDCal", "lbUnidadGDRef", "lbUnidadDepresion"})
      QCOMPARE(Rotulo(unidad), QStringLiteral("Grados-día"));
    QCOMPARE(Valor("edFechaMaximo"), QStringLiteral("1 de enero, hora 24"));
    QCOMPARE(Valor("edFechaMinimo"), QStringLiteral("1 de enero, hora 1"));
  }

  // El cielo está siempre 10 ºC por debajo del aire: en un día, 10 grados-día.
  void elBotonElegidoEsElQueSeCalcula() {
    ventana_->Localidad("Almería");
    Elegir("rbTC");
    QCOMPARE(Valor("edMaximo"), QStringLiteral("11,5"));
    QCOMPARE(Valor("edDepresion"), QStringLiteral("10,0"));
    Elegir("rbRSDr"); // sólo las diez horas con difusa
    QCOMPARE(Valor("edMinimo"), QStringLiteral("400"));
    QCOMPARE(Rotulo("lbUnidadMaximo"), QStringLiteral("W/m²"));
    QCOMPARE(Valor("edFechaMaximo"), QStringLiteral("1 de enero, hora 8"));
  }

  void loQueNoEsTemperaturaNoTieneGradosDia() {
    ventana_->Localidad("Almería");
    Elegir("rbHA");
    QCOMPARE(Valor("edMedia"), QStringLiteral("7,00"));
    for (const char *casilla : {"edGDCal", "edGDRef", "edDepresion"}) QCOMPARE(Valor(casilla), QString());
    QCOMPARE(Rotulo("lbUnidadGDCal"), QString());
    QCOMPARE(Meses().columnCount(), 6);
  }

  void lasHorasDelDiaSeAplicanAlCambiarlas() {
    ventana_->Localidad("Almería");
    ventana_->Poner("csVHorIni", 3);
    QCOMPARE(Valor("edMinimo"), QStringLiteral("11,0"));
    ventana_->Poner("csVHorFin", 3);
    QCOMPARE(Valor("edMaximo"), QStringLiteral("11,0"));
    QCOMPARE(Valor("edMedia"), QStringLiteral("11,0"));
  }

  void lasBasesAdmitenComaYPunto() {
    ventana_->Localidad("Almería");
    PonBase("csBaseCal", "10.5");
    QCOMPARE(Valor("edGDCal"), QStringLiteral("0,0")); // 0,5/24
    PonBase("csBaseRef", "20,5");
    QCOMPARE(Valor("edGDRef"), QStringLiteral("0,1")); // (0,5 + 1)/24
    PonBase("csBaseCal", "39");
    QCOMPARE(Valor("edGDCal"), QStringLiteral("23,3")); // 39 − 15,75
  }

  void sinHorasQueCuentenQuedanLosValoresDePartidaYSeDice() {
    QSignalSpy estado(&ventana_->Controlador().DameFormulario(), &TforProgramas::estado);
    ventana_->Localidad("Almería");
    ventana_->Poner("csVHorIni", 20);
    ventana_->Poner("csVHorFin", 5);
    QCOMPARE(Valor("edMaximo"), QStringLiteral("-100,0"));
    QCOMPARE(Valor("edMinimo"), QStringLiteral("500000,0"));
    QCOMPARE(Valor("edMedia"), QStringLiteral("0,0"));
    QCOMPARE(Valor("edFechaMaximo"), QString());
    QCOMPARE(Celda(0, 1), QStringLiteral("—"));
    QVERIFY(estado.last().at(0).toString().contains(QStringLiteral("Ninguna hora")));
  }

  void cambiarElPeriodoVaciaCifrasUnidadesYTabla() {
    ventana_->Localidad("Almería");
    ventana_->Poner("csHorFin", 12);
    ComprobarVacio();
    QVERIFY(!Rotulo("lbSituacion").isEmpty());
    Elegir("rbTS");
    QCOMPARE(Valor("edMaximo"), QStringLiteral("15,5"));
    QCOMPARE(Rotulo("lbSituacion"), QString());
  }

  void actualizarLasRehaceYCambiarDeProvinciaLasVacia() {
    ventana_->Localidad("Almería");
    ventana_->Poner("csHorFin", 12);
    ventana_->Pulsar("btnActualizar");
    QCOMPARE(Valor("edMaximo"), QStringLiteral("15,5"));
    QCOMPARE(ventana_->Chart().NumeroSeries(), 21);
    ventana_->Provincia("Granada");
    ComprobarVacio();
    QVERIFY(marco_->mensajes.apuntes.empty());
  }

  void cadaLocalidadTieneLasSuyas() {
    ventana_->Localidad("Almería");
    ventana_->Localidad("Níjar");
    QCOMPARE(Valor("edMaximo"), QStringLiteral("22,5"));
  }

  void sinFicheroSeDiceUnaVezYQuedaVacio() {
    ventana_->Provincia("Granada");
    ventana_->Localidad("Motril");
    QCOMPARE(marco_->mensajes.apuntes.size(), 1U);
    Elegir("rbTS");
    QCOMPARE(marco_->mensajes.apuntes.size(), 2U); // se vuelve a intentar y se vuelve a decir
    ComprobarVacio();
  }

  void sinLocalidadElegirUnaVariableNoAbreNingunaCaja() {
    Elegir("rbHR");
    ComprobarVacio();
    QVERIFY(marco_->mensajes.apuntes.empty());
  }

  void laAltitudDelUsuarioQuitaLoQueYaNoVale() {
    ventana_->Localidad("Almería");
    Elegir("rbTR");
    const QString alNivelDelMar = Valor("edMedia");
    auto &altitud = ventana_->Buscar<QDoubleSpinBox>("csAltitud");
    altitud.setValue(3000.0);
    ComprobarVacio();
    Elegir("rbTR");
    QVERIFY(!Valor("edMedia").isEmpty());
    QVERIFY(Valor("edMedia") != alNivelDelMar);
  }

  // Vertical y al sur o tumbada: el cambio, que se entrega al visualizar, vacía lo que había y da otra
  // global.
  void laSuperficieQuitaLoQueYaNoVale() {
    ventana_->Localidad("Almería");
    Elegir("rbG");
    const QString vertical = Valor("edMedia");
    QVERIFY(!vertical.isEmpty());
    PonInclinacion("0");
    ventana_->Pulsar("btnSimulacion");
    ComprobarVacio();
    QVERIFY(Rotulo("lbSituacion").contains(QStringLiteral("superficie")));
    Elegir("rbG");
    QVERIFY(!Valor("edMedia").isEmpty());
    QVERIFY(Valor("edMedia") != vertical);
    PonInclinacion("90");
    Elegir("rbG");
    QCOMPARE(Valor("edMedia"), vertical);
  }

  void conUnaCasillaDeLaSuperficieVaciaSeDiceYNoSeCalcula() {
    ventana_->Localidad("Almería");
    PonInclinacion("");
    Elegir("rbG");
    QCOMPARE(marco_->mensajes.apuntes.size(), 1U);
    QVERIFY(marco_->mensajes.apuntes[0].texto.find("Inclinación") != std::string::npos);
    ComprobarVacio();
  }

  void laTablaTieneUnaFilaPorMesDelPeriodo() {
    ventana_->Localidad("Almería");
    QCOMPARE(Meses().rowCount(), 1);
    ventana_->PonAnioEntero();
    ventana_->Pulsar("btnActualizar");
    QCOMPARE(Meses().rowCount(), 12);
    QCOMPARE(Meses().columnCount(), 9);
    QCOMPARE(Meses().horizontalHeaderItem(1)->text(), QStringLiteral("Máximo (ºC)"));
    QCOMPARE(Celda(0, 0), QStringLiteral("Enero"));
    QCOMPARE(Celda(11, 0), QStringLiteral("Diciembre"));
    QCOMPARE(Celda(1, 1), QStringLiteral("21,5"));
    QCOMPARE(Celda(1, 2), QStringLiteral("día 1, h 24"));
    QCOMPARE(Celda(1, 3), QStringLiteral("10,0"));
    QCOMPARE(Celda(1, 5), QStringLiteral("15,8"));
    QCOMPARE(Celda(1, 6), QStringLiteral("32,1")); // 28 días de 27,5/24 grados-día
  }

  void losResultadosYLaTablaSeCopian() {
    QVERIFY(!ventana_->Buscar<QPushButton>("btnCopiarResultados").isEnabled());
    QVERIFY(!ventana_->Buscar<QPushButton>("btnCopiarMeses").isEnabled());
    ventana_->Localidad("Almería");
    ventana_->Pulsar("btnCopiarResultados");
    QCOMPARE(QApplication::clipboard()->text(),
             QStringLiteral("Temperatura seca (ºC)\n"
                            "Máximo\t21,5\tºC\t1 de enero, hora 24\n"
                            "Mínimo\t10,0\tºC\t1 de enero, hora 1\n"
                            "Media\t15,8\tºC\n"
                            "Grados-día de calefacción\t1,1\tGrados-día\n"
                            "Grados-día de refrigeración\t0,0\tGrados-día\n"
                            "Depresión respecto a Temperatura Exterior\t0,0\tGrados-día\n"));
    ventana_->Pulsar("btnCopiarMeses");
    QCOMPARE(QApplication::clipboard()->text(),
             QStringLiteral("Mes\tMáximo (ºC)\tCuándo\tMínimo (ºC)\tCuándo\tMedia (ºC)\tGD calefacción\t"
                            "GD refrigeración\tDepresión (GD)\n"
                            "Enero\t21,5\tdía 1, h 24\t10,0\tdía 1, h 1\t15,8\t1,1\t0,0\t0,0\n"));
    QCOMPARE(Meses().objectName(), QStringLiteral("tablaMeses"));
  }

private:
  static const QGroupBox &Grupo(const QWidget &control) {
    return *qobject_cast<const QGroupBox *>(control.parentWidget());
  }
  [[nodiscard]] QString Valor(const char *casilla) const {
    return ventana_->Buscar<QLineEdit>(casilla).text();
  }
  [[nodiscard]] QString Rotulo(const char *nombre) const { return ventana_->Buscar<QLabel>(nombre).text(); }
  [[nodiscard]] const QTableWidget &Meses() const { return ventana_->Buscar<QTableWidget>("tablaMeses"); }
  [[nodiscard]] QString Celda(int fila, int columna) const { return Meses().item(fila, columna)->text(); }
  void Elegir(const char *boton) const {
    QTest::keyClick(&ventana_->Buscar<QRadioButton>(boton), Qt::Key_Space);
  }
  void PonBase(const char *nombre, const char *texto) const {
    auto &base = ventana_->Buscar<QDoubleSpinBox>(nombre);
    base.selectAll();
    QTest::keyClicks(&base, QString::fromLatin1(texto));
    QTest::keyClick(&base, Qt::Key_Return);
  }
  void PonInclinacion(const char *texto) const {
    ventana_->Buscar<QLineEdit>("edInclinacion").setText(QString::fromLatin1(texto));
  }
  void ComprobarVacio() const {
    for (const char *casilla : {"edMaximo", "edMinimo", "edMedia", "edGDCal", "edGDRef", "edDepresion",
                                "edFechaMaximo", "edFechaMinimo"})
      QCOMPARE(Valor(casilla), QString());
    for (const char *unidad : {"lbUnidadMaximo", "lbUnidadMinimo", "lbUnidadMedia", "lbUnidadGDCal",
                               "lbUnidadGDRef", "lbUnidadDepresion"})
      QCOMPARE(Rotulo(unidad), QString());
    QCOMPARE(Meses().rowCount(), 0);
  }

  std::optional<MarcoPrueba> marco_;
  std::optional<ConSeparador> coma_;
  std::optional<Ventana> ventana_;
};

TESMO_PRUEBA_QT(PruebaEstadisticas)
#include "Estadisticas_prueba.moc"
