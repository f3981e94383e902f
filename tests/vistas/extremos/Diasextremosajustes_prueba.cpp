// La página "Dias extremos": sus controles, lo que toma y enseña de los ajustes y cuándo no calcula.

#include "extremos/Diasextremos.h"
#include "tests/comun/ventanas/Manejo.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabWidget>
#include <optional>

using namespace tesmo;
using namespace tesmo::prueba;

class PruebaAjustesExtremos : public QObject {
  Q_OBJECT

private slots:
  void init() { marco_.emplace(); }
  void cleanup() {
    QVERIFY(QApplication::overrideCursor() == nullptr);
    marco_.reset();
  }

  void laPestanaEsLaSegundaYLaDeResultadosEstaEscondida() {
    const auto &paginas = Abierta().Buscar<QTabWidget>("pcProgramas");
    QCOMPARE(paginas.tabText(1), QStringLiteral("Dias extremos  "));
    QCOMPARE(paginas.widget(1)->objectName(), QStringLiteral("tsDiasExtremos"));
    QCOMPARE(paginas.tabText(2), QStringLiteral("Resultados Dias extremos"));
    QCOMPARE(paginas.widget(2)->objectName(), QStringLiteral("tsResultadosDiasExtremos"));
    QVERIFY(paginas.isTabVisible(1));
    QVERIFY(!paginas.isTabVisible(2));
  }

  void losControlesLlevanSuNombreYSuRotulo() {
    const Ventana ventana = Abierta();
    const QStringList fijos{"Localidad", "Mes Extremo Invierno", "Mes Extremo Verano",
                            "Percentil Calefacción (%)", "Percentil Refrigeración (%)"};
    const QStringList meses{"Ene", "Feb", "Mar", "Abr", "May", "Jun",
                            "Jul", "Ago", "Sep", "Oct", "Nov", "Dic"};
    for (int i = 0; i < 5; ++i) QCOMPARE(Rotulo(ventana, i + 1).text(), fijos[i]);
    for (int i = 0; i < 12; ++i) {
      QCOMPARE(Rotulo(ventana, i + 6).text(), meses[i]);
      QCOMPARE(Rotulo(ventana, i + 18).text(), meses[i]);
    }
    for (const char *lista : {"cbMesCal", "cbMesRef"}) {
      QCOMPARE(ventana.Buscar<QComboBox>(lista).count(), 12);
      QCOMPARE(ventana.Buscar<QComboBox>(lista).itemText(8), QStringLiteral("Septiembre"));
    }
    QCOMPARE(ventana.Buscar<QPushButton>("btnCalDiaExt").text(), QStringLiteral("Calcular"));
    QCOMPARE(ventana.Controlador().DameFormulario().findChildren<QComboBox *>("cbLocalidades").size(), 1);
  }

  void alAbrirSeEnsenanLosAjustesDeFabrica() {
    const Ventana ventana = Abierta();
    QCOMPARE(Texto(ventana, "edPerCal"), QStringLiteral("99.0"));
    QCOMPARE(Texto(ventana, "edPerRef"), QStringLiteral("1.0"));
    QCOMPARE(ventana.Buscar<QComboBox>("cbMesCal").currentText(), QStringLiteral("Enero"));
    QCOMPARE(ventana.Buscar<QComboBox>("cbMesRef").currentText(), QStringLiteral("Julio"));
    for (int i = 1; i <= 24; ++i) {
      const bool marcada = i <= 2 || i == 12 || (i >= 18 && i <= 21);
      QCOMPARE(Mes(ventana, i).isChecked(), marcada);
    }
    for (int i = 1; i <= 5; ++i) QCOMPARE(Tinta(Rotulo(ventana, i)), QColor(0, 128, 0)); // 32768, verde
  }

  void laLatitudEsLaDeLaLocalidadElegida() {
    const Ventana ventana = Abierta();
    QVERIFY(ventana.Buscar<QLineEdit>("edLatitud").isReadOnly());
    QCOMPARE(Texto(ventana, "edLatitud"), QStringLiteral("36.82"));
    ventana.Localidad("Níjar");
    QCOMPARE(Texto(ventana, "edLatitud"), QStringLiteral("36.97"));
    QCOMPARE(ventana.Buscar<QLabel>("lbLocalidad").text(), QStringLiteral("Níjar"));
    ventana.Provincia("Granada");
    QCOMPARE(Texto(ventana, "edLatitud"), QStringLiteral("36.82"));
    QCOMPARE(ventana.Buscar<QLabel>("lbProvincia").text(), QStringLiteral("Granada"));
    ventana.Localidad("Granada");
    QCOMPARE(Texto(ventana, "edLatitud"), QStringLiteral("37.18"));
  }

  void losNumerosSeEnsenanConLaMarcaDecimalEnVigor() {
    const ConSeparador coma(',');
    const Ventana ventana = Abierta();
    ventana.Localidad("Almería");
    QCOMPARE(Texto(ventana, "edLatitud"), QStringLiteral("36,84"));
    QCOMPARE(Texto(ventana, "edPerCal"), QStringLiteral("99,0"));
  }

  void loTecladoLlegaAlMotorYSuRotuloSePoneNegro() {
    const Ventana ventana = Abierta();
    ventana.Localidad("Almería");
    Teclear(ventana, "edPerCal", "97,5");
    ventana.Buscar<QComboBox>("cbMesRef").setCurrentIndex(7);
    Mes(ventana, 3).setChecked(true);
    ventana.Pulsar("btnCalDiaExt");
    const DiasExtremos &motor = *ventana.Controlador().DameDiasExtremos();
    QCOMPARE(motor.DameTexto("Percentil calefacción"), std::string("97.5"));
    QCOMPARE(motor.DameTexto("Mes refrigeración"), std::string("8"));
    MesesDeTemporada meses{};
    motor.DameTemporada("Temporada calefacción", meses);
    QCOMPARE(meses[2], std::int16_t{1});
    QCOMPARE(motor.DameTexto("Localidad"), std::string("Almería"));
    QCOMPARE(Texto(ventana, "edPerCal"), QStringLiteral("97.5"));
    QCOMPARE(Tinta(Rotulo(ventana, 4)), QColor(0, 0, 0));
    QCOMPARE(Tinta(Rotulo(ventana, 5)), QColor(0, 128, 0));
    QCOMPARE(Tinta(Rotulo(ventana, 3)), QColor(0, 0, 0));
    QVERIFY(marco_->mensajes.apuntes.empty());
  }

  void cambiarDeLocalidadConservaLoTecleado() {
    const Ventana ventana = Abierta();
    ventana.Localidad("Almería");
    Teclear(ventana, "edPerCal", "97,5");
    ventana.Buscar<QComboBox>("cbMesCal").setCurrentIndex(1);
    ventana.Buscar<QComboBox>("cbMesRef").setCurrentIndex(7);
    Mes(ventana, 3).setChecked(true);
    Mes(ventana, 18).setChecked(false);
    for (const char *localidad : {"Níjar", "Almería"}) {
      ventana.Localidad(localidad);
      QCOMPARE(Texto(ventana, "edPerCal"), QStringLiteral("97.5"));
      QCOMPARE(Texto(ventana, "edPerRef"), QStringLiteral("1.0"));
      QCOMPARE(ventana.Buscar<QComboBox>("cbMesCal").currentIndex(), 1);
      QCOMPARE(ventana.Buscar<QComboBox>("cbMesRef").currentIndex(), 7);
      QVERIFY(Mes(ventana, 3).isChecked());
      QVERIFY(!Mes(ventana, 18).isChecked());
    }
    ventana.Provincia("Granada"); // y de provincia
    QCOMPARE(Texto(ventana, "edPerCal"), QStringLiteral("97.5"));
    QVERIFY(marco_->mensajes.apuntes.empty());
  }

  void alCambiarDeLocalidadUnPercentilQueNoValeVuelveAlAnteriorSinDecirlo() {
    const Ventana ventana = Abierta();
    ventana.Localidad("Almería");
    Teclear(ventana, "edPerCal", "95");
    ventana.Localidad("Níjar");
    for (const char *malo : {"150", "-1", "mucho", ""}) {
      ventana.Buscar<QLineEdit>("edPerCal").clear();
      Teclear(ventana, "edPerCal", malo);
      ventana.Localidad("Almería");
      QCOMPARE(Texto(ventana, "edPerCal"), QStringLiteral("95.0"));
      ventana.Localidad("Níjar");
    }
    QVERIFY(marco_->mensajes.apuntes.empty());
  }

  void elPercentilFueraDeLimitesSeDiceYVuelveAlDeFabrica() {
    const Ventana ventana = Abierta();
    ventana.Localidad("Almería");
    Teclear(ventana, "edPerCal", "150");
    ventana.Pulsar("btnCalDiaExt");
    QCOMPARE(marco_->mensajes.apuntes.size(), 1U);
    QCOMPARE(marco_->mensajes.apuntes[0].texto,
             std::string("150.000000 > 100.000000 (máximo), valor por defecto: 99.000000"));
    QCOMPARE(Texto(ventana, "edPerCal"), QStringLiteral("99.0"));
    QCOMPARE(Tinta(Rotulo(ventana, 4)), QColor(255, 0, 0));
  }

  void elPercentilQueNoEsUnNumeroDaElMensaje62ConSuRotulo() {
    const Ventana ventana = Abierta();
    ventana.Localidad("Almería");
    Teclear(ventana, "edPerRef", "uno");
    ventana.Pulsar("btnCalDiaExt");
    QCOMPARE(marco_->mensajes.apuntes.size(), 1U);
    QCOMPARE(marco_->mensajes.apuntes[0].texto,
             std::string("La casilla \"Percentil Refrigeración (%)\" contiene un valor incorrecto.\n "));
    QCOMPARE(Texto(ventana, "edPerRef"), QStringLiteral("1.0"));
    QCOMPARE(Tinta(Rotulo(ventana, 5)), QColor(255, 0, 0));
  }

  void losLimitesDelPercentilSeAceptan_data() {
    QTest::addColumn<QString>("percentil");
    QTest::newRow("cero") << "0";
    QTest::newRow("cien") << "100";
  }
  void losLimitesDelPercentilSeAceptan() {
    QFETCH(const QString, percentil);
    const Ventana ventana = Abierta();
    ventana.Localidad("Almería");
    Teclear(ventana, "edPerCal", percentil.toLatin1().constData());
    ventana.Pulsar("btnCalDiaExt");
    QVERIFY(marco_->mensajes.apuntes.empty());
    QCOMPARE(Texto(ventana, "edPerCal"), percentil + QStringLiteral(".0"));
    QVERIFY(ventana.Buscar<QTabWidget>("pcProgramas").isTabVisible(2));
  }

  void unaTemporadaSinMesesDaElMensaje57ConElFocoEnSuFila_data() {
    QTest::addColumn<int>("primera");
    QTest::addColumn<QString>("nombre");
    QTest::newRow("calefacción") << 1 << "calefacción";
    QTest::newRow("refrigeración") << 13 << "refrigeración";
  }
  void unaTemporadaSinMesesDaElMensaje57ConElFocoEnSuFila() {
    QFETCH(const int, primera);
    QFETCH(const QString, nombre);
    const Ventana ventana = Abierta();
    ventana.Localidad("Almería");
    for (int i = primera; i < primera + 12; ++i) Mes(ventana, i).setChecked(false);
    QSignalSpy estado(&ventana.Controlador().DameFormulario(), &TforProgramas::estado);
    ventana.Pulsar("btnCalDiaExt");
    QCOMPARE(marco_->mensajes.apuntes.size(), 1U);
    QCOMPARE(marco_->mensajes.apuntes[0].texto, std::string("Seleccione variables para poder continuar.\n "));
    QCOMPARE(QApplication::focusWidget(), &Mes(ventana, primera));
    QVERIFY(estado.last().at(0).toString().contains(nombre));
    QVERIFY(!ventana.Controlador().DameDiasExtremos()->Calculado());
    QVERIFY(!ventana.Buscar<QTabWidget>("pcProgramas").isTabVisible(2));
    QVERIFY(NoHayFicheros());
  }

  void sinLocalidadDaElMensaje59YNoCambiaNada() {
    const Ventana ventana = Abierta();
    Teclear(ventana, "edPerCal", "95");
    ventana.Pulsar("btnCalDiaExt");
    QCOMPARE(marco_->mensajes.apuntes.size(), 1U);
    QCOMPARE(
        marco_->mensajes.apuntes[0].texto,
        std::string("El fichero meteorológico asociado a la ciudad Localidad no se ha podido abrir.\n "));
    QCOMPARE(ventana.Controlador().DameDiasExtremos()->DameTexto("Percentil calefacción"),
             std::string("99.0"));
    QCOMPARE(Texto(ventana, "edPerCal"), QStringLiteral("95"));
    QVERIFY(NoHayFicheros());
  }

  void unaLocalidadSinEstadisticasDaElMensaje59ConSuNombre() {
    const Ventana ventana = Abierta();
    ventana.Localidad("Níjar");
    QSignalSpy estado(&ventana.Controlador().DameFormulario(), &TforProgramas::estado);
    ventana.Pulsar("btnCalDiaExt");
    QCOMPARE(marco_->mensajes.apuntes.size(), 1U);
    QVERIFY(marco_->mensajes.apuntes[0].texto.find("ciudad Níjar no se ha podido") != std::string::npos);
    QVERIFY(estado.last().at(0).toString().contains(QStringLiteral("GDR.TXT")));
    QVERIFY(!ventana.Buscar<QTabWidget>("pcProgramas").isTabVisible(2));
    QVERIFY(NoHayFicheros());
  }

  void unRegistroEstropeadoDiceEnLaLineaDeEstadoDondeEsta() {
    const Ventana ventana = Abierta();
    ventana.Localidad("Almería");
    std::string texto = DatosPrueba::RegistroGdr("Almeria COSTA 36.84 -2.39 15 10");
    texto.replace(texto.find("24.1"), 4, "roto");
    marco_->datos.Directorio().Escribir("Meteo/GDR.TXT", texto);
    QSignalSpy estado(&ventana.Controlador().DameFormulario(), &TforProgramas::estado);
    ventana.Pulsar("btnCalDiaExt");
    QCOMPARE(marco_->mensajes.apuntes.size(), 1U);
    const QString dicho = estado.last().at(0).toString();
    QVERIFY2(dicho.contains(QStringLiteral("GDR.TXT, línea 2, temperatura máxima del mes 5")),
             qPrintable(dicho));
    QVERIFY(!RegistroAbierto());
  }

private:
  [[nodiscard]] Ventana Abierta() const {
    const Ventana ventana = marco_->Numero(0);
    ventana.Buscar<QTabWidget>("pcProgramas").setCurrentIndex(1);
    return ventana;
  }
  [[nodiscard]] static QLabel &Rotulo(const Ventana &ventana, int numero) {
    return ventana.Buscar<QLabel>(qPrintable(QStringLiteral("Label%1").arg(numero)));
  }
  [[nodiscard]] static QCheckBox &Mes(const Ventana &ventana, int numero) {
    return ventana.Buscar<QCheckBox>(qPrintable(QStringLiteral("CheckBox%1").arg(numero)));
  }
  [[nodiscard]] static QString Texto(const Ventana &ventana, const char *casilla) {
    return ventana.Buscar<QLineEdit>(casilla).text();
  }
  [[nodiscard]] static QColor Tinta(const QLabel &rotulo) {
    return rotulo.palette().color(QPalette::WindowText);
  }
  static void Teclear(const Ventana &ventana, const char *casilla, const char *texto) {
    auto &control = ventana.Buscar<QLineEdit>(casilla);
    control.setFocus();
    control.selectAll();
    QTest::keyClicks(&control, QString::fromLatin1(texto));
  }
  [[nodiscard]] bool NoHayFicheros() const {
    return std::filesystem::is_empty(marco_->datos.Directorio() / "Resultados");
  }

  std::optional<MarcoPrueba> marco_;
};

TESMO_PRUEBA_QT(PruebaAjustesExtremos)
#include "Diasextremosajustes_prueba.moc"
