// Las casillas de número, con la coma y el punto, en la región con que se ejecute la prueba: ninguna tecla de
// un número se pierde y se enseña el separador regional.

#include "tests/comun/ventanas/Manejo.h"
#include "tests/comun/ventanas/Regional.h"
#include "vistas/comun/Casillanumero.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <clocale>
#include <cstring>

using namespace tesmo;
using namespace tesmo::prueba;

namespace {

void Terminar(QAbstractSpinBox &casilla, const QString &tecleado) {
  casilla.selectAll();
  QTest::keyClicks(&casilla, tecleado);
  QTest::keyClick(&casilla, Qt::Key_Return);
}

} // namespace

class PruebaCasillanumero : public QObject {
  Q_OBJECT

private slots:
  void laRegionDelProcesoEsLaPedida() {
    if (!qgetenv("LC_ALL").startsWith("es")) QSKIP("sólo interesa con la coma en el sistema");
    QVERIFY2(std::strcmp(std::localeconv()->decimal_point, ",") == 0, "falta generar es_ES.UTF-8");
  }

  void seEnsenaElSeparadorRegional() {
    CasillaReal casilla;
    casilla.setValue(13.25);
    QCOMPARE(casilla.text(), Regional("13,25"));
    casilla.setDecimals(0);
    QCOMPARE(casilla.text(), QStringLiteral("13"));
  }

  void elRealAdmiteLosDosSeparadores_data() {
    QTest::addColumn<QString>("tecleado");
    QTest::addColumn<double>("valor");
    QTest::newRow("punto") << "13.25" << 13.25;
    QTest::newRow("coma") << "13,25" << 13.25;
    QTest::newRow("sin cifras detrás") << "7," << 7.0;
    QTest::newRow("sin cifras delante") << ".5" << 0.5;
    QTest::newRow("negativo") << "-3,5" << -3.5;
    QTest::newRow("con signo más") << "+4.25" << 4.25;
  }
  void elRealAdmiteLosDosSeparadores() {
    QFETCH(const QString, tecleado);
    QFETCH(const double, valor);
    CasillaReal casilla;
    casilla.setRange(-50.0, 50.0);
    casilla.setValue(1.0);
    Terminar(casilla, tecleado);
    QCOMPARE(casilla.value(), valor);
    QCOMPARE(casilla.text(), Regional(QString::number(valor, 'f', 2).replace('.', ',')));
  }

  void elSeparadorCambiaAlRegionalSegunSeTeclea() {
    CasillaReal casilla;
    casilla.selectAll();
    QTest::keyClicks(&casilla, QStringLiteral("1.5"));
    QCOMPARE(casilla.text(), Regional("1,5"));
    casilla.selectAll();
    QTest::keyClicks(&casilla, QStringLiteral("1,5"));
    QCOMPARE(casilla.text(), Regional("1,5"));
  }

  void laTeclaDecimalDelTecladoNumericoNoSePierde_data() {
    QTest::addColumn<int>("tecla");
    QTest::newRow("punto") << int(Qt::Key_Period);
    QTest::newRow("coma") << int(Qt::Key_Comma);
  }
  void laTeclaDecimalDelTecladoNumericoNoSePierde() {
    QFETCH(const int, tecla);
    CasillaReal casilla;
    casilla.selectAll();
    for (const Qt::Key cifra : {Qt::Key_1, Qt::Key_4}) QTest::keyClick(&casilla, cifra, Qt::KeypadModifier);
    QTest::keyClick(&casilla, static_cast<Qt::Key>(tecla), Qt::KeypadModifier);
    QTest::keyClick(&casilla, Qt::Key_5, Qt::KeypadModifier);
    QTest::keyClick(&casilla, Qt::Key_Enter, Qt::KeypadModifier);
    QCOMPARE(casilla.value(), 14.5);
  }

  void deUnaCasillaEnteraQuedaLaParteEntera_data() {
    QTest::addColumn<QString>("tecleado");
    QTest::addColumn<int>("valor");
    QTest::newRow("coma") << "13,25" << 13;
    QTest::newRow("punto") << "13.25" << 13;
    QTest::newRow("hacia cero") << "-3,9" << -3;
    QTest::newRow("entero") << "42" << 42;
  }
  void deUnaCasillaEnteraQuedaLaParteEntera() {
    QFETCH(const QString, tecleado);
    QFETCH(const int, valor);
    CasillaEntera casilla;
    casilla.setRange(-9999, 9999);
    Terminar(casilla, tecleado);
    QCOMPARE(casilla.value(), valor);
    QCOMPARE(casilla.text(), QString::number(valor));
  }

  void fueraDeLosLimitesValeElMasCercano_data() {
    QTest::addColumn<QString>("tecleado");
    QTest::addColumn<int>("valor");
    QTest::newRow("mayor") << "13" << 12;
    QTest::newRow("mayor con decimales") << "13,25" << 12;
    QTest::newRow("menor") << "0" << 1;
    QTest::newRow("negativo") << "-5" << 1;
    QTest::newRow("más que un entero") << "99999999999999999999" << 12;
    QTest::newRow("el límite") << "12" << 12;
    QTest::newRow("el límite y un poco") << "12,9" << 12;
  }
  void fueraDeLosLimitesValeElMasCercano() {
    QFETCH(const QString, tecleado);
    QFETCH(const int, valor);
    CasillaEntera casilla;
    casilla.setRange(1, 12);
    casilla.setValue(6);
    Terminar(casilla, tecleado);
    QCOMPARE(casilla.value(), valor);
    CasillaReal real;
    real.setRange(1.0, 12.0);
    real.setDecimals(0);
    real.setValue(6.0);
    Terminar(real, tecleado);
    QCOMPARE(real.value(), tecleado == "12,9" ? 12.0 : double(valor));
  }

  void loQueNoEsUnNumeroDejaElQueHabia_data() {
    QTest::addColumn<QString>("tecleado");
    QTest::newRow("dos separadores") << "1.000,5";
    QTest::newRow("separador solo") << ",";
    QTest::newRow("signo solo") << "-";
  }
  void loQueNoEsUnNumeroDejaElQueHabia() {
    QFETCH(const QString, tecleado);
    CasillaReal real;
    real.setKeyboardTracking(false);
    real.setRange(-10000.0, 10000.0);
    real.setValue(6.5);
    Terminar(real, tecleado);
    QCOMPARE(real.value(), 6.5);
    CasillaEntera entera;
    entera.setKeyboardTracking(false);
    entera.setRange(-10000, 10000);
    entera.setValue(6);
    Terminar(entera, tecleado);
    QCOMPARE(entera.value(), 6);
    QCOMPARE(entera.text(), QStringLiteral("6"));
  }

  void lasLetrasNoEntran() {
    CasillaEntera casilla;
    Terminar(casilla, QStringLiteral("1a2"));
    QCOMPARE(casilla.value(), 12);
  }

  void elSufijoNoEstorba() {
    CasillaEntera casilla;
    casilla.setRange(-500, 9000);
    casilla.setSuffix(QStringLiteral(" m.s.n.m."));
    casilla.setValue(680);
    Terminar(casilla, QStringLiteral("700,5"));
    QCOMPARE(casilla.value(), 700);
    QCOMPARE(casilla.text(), QStringLiteral("700 m.s.n.m."));
  }

  void alSalirSeVeLoQueVale() {
    QWidget ventana;
    auto *casilla = new CasillaEntera(&ventana);
    auto *otra = new QLineEdit(&ventana);
    ventana.show();
    ventana.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&ventana));
    casilla->setFocus();
    casilla->selectAll();
    QTest::keyClicks(casilla, QStringLiteral("13,25"));
    otra->setFocus();
    QCOMPARE(casilla->text(), QStringLiteral("13"));
  }

  void sinSeguirElTecladoSeAvisaUnaVezAlTerminar() {
    CasillaReal casilla;
    casilla.setKeyboardTracking(false);
    const QSignalSpy cambios(&casilla, &QDoubleSpinBox::valueChanged);
    Terminar(casilla, QStringLiteral("12,5"));
    QCOMPARE(cambios.count(), 1);
    QCOMPARE(cambios.at(0).at(0).toDouble(), 12.5);
  }

  void loTecleadoConMasDecimalesSeGuardaComoSeEnsena() {
    CasillaReal casilla;
    casilla.setDecimals(1);
    casilla.setKeyboardTracking(false);
    const QSignalSpy cambios(&casilla, &QDoubleSpinBox::valueChanged);
    Terminar(casilla, QStringLiteral("13,25"));
    QCOMPARE(casilla.text(), Regional("13,3"));
    QCOMPARE(casilla.value(), 13.3);
    casilla.interpretText(); // leerla otra vez no la cambia
    QCOMPARE(casilla.value(), 13.3);
    QCOMPARE(cambios.count(), 1);
  }

  void laOpcionalVaciaEnsenaSuTexto() {
    CasillaOpcional casilla(-450.0, 9000.0, 1, QStringLiteral("no se sabe"));
    casilla.setSuffix(QStringLiteral(" m"));
    QCOMPARE(casilla.Valor(), std::nullopt);
    QCOMPARE(casilla.text(), QStringLiteral("no se sabe"));
    Terminar(casilla, QStringLiteral("680,5"));
    QCOMPARE(casilla.Valor(), std::optional(680.5));
    QCOMPARE(casilla.text(), Regional("680,5") + QStringLiteral(" m"));
    casilla.selectAll();
    QTest::keyClick(&casilla, Qt::Key_Backspace);
    QTest::keyClick(&casilla, Qt::Key_Return);
    QCOMPARE(casilla.Valor(), std::nullopt);
    QCOMPARE(casilla.text(), QStringLiteral("no se sabe"));
    casilla.interpretText();
    QCOMPARE(casilla.Valor(), std::nullopt);
  }

  void loTecleadoEntreLasPalabrasDeLaOpcionalLasReemplaza_data() {
    QTest::addColumn<int>("sitio");
    QTest::addColumn<int>("elegidas");
    QTest::newRow("al principio") << 0 << 0;
    QTest::newRow("en medio") << 6 << 0;
    QTest::newRow("al final") << 10 << 0;
    QTest::newRow("con una palabra elegida") << 3 << 2;
  }
  void loTecleadoEntreLasPalabrasDeLaOpcionalLasReemplaza() {
    QFETCH(const int, sitio);
    QFETCH(const int, elegidas);
    CasillaOpcional casilla(-450.0, 9000.0, 1, QStringLiteral("no se sabe"));
    casilla.setPrefix(QStringLiteral("a "));
    casilla.setSuffix(QStringLiteral(" m"));
    auto &texto = *casilla.findChild<QLineEdit *>();
    texto.setCursorPosition(sitio);
    if (elegidas > 0) texto.setSelection(sitio, elegidas);
    QTest::keyClicks(&texto, QStringLiteral("-35,5"));
    QCOMPARE(casilla.text(), QStringLiteral("a ") + Regional("-35,5") + QStringLiteral(" m"));
    QTest::keyClick(&casilla, Qt::Key_Return);
    QCOMPARE(casilla.Valor(), std::optional(-35.5));
  }

  void unaLetraEntreLasPalabrasDeLaOpcionalNoEntraYBorrarUnaLasQuita() {
    CasillaOpcional casilla(-450.0, 9000.0, 1, QStringLiteral("no se sabe"));
    auto &texto = *casilla.findChild<QLineEdit *>();
    for (const char letra : {'x', 's'}) {
      texto.setCursorPosition(6);
      QTest::keyClick(&texto, letra);
      QCOMPARE(casilla.text(), QStringLiteral("no se sabe"));
    }
    QTest::keyClick(&texto, Qt::Key_Backspace);
    QCOMPARE(casilla.text(), QString());
    QTest::keyClick(&casilla, Qt::Key_Return);
    QCOMPARE(casilla.text(), QStringLiteral("no se sabe"));
    QCOMPARE(casilla.Valor(), std::nullopt);
  }

  void laOpcionalTieneElCeroYSuMenorNumero() {
    CasillaOpcional casilla(-14.0, 14.0, 2, QStringLiteral("el de la longitud"));
    for (const double valor : {0.0, -14.0, 5.75}) {
      casilla.PonValor(valor);
      QCOMPARE(casilla.Valor(), std::optional(valor));
      casilla.interpretText();
      QCOMPARE(casilla.Valor(), std::optional(valor));
    }
    casilla.PonValor(std::nullopt);
    QTest::keyClick(&casilla, Qt::Key_Up);
    QCOMPARE(casilla.Valor(), std::optional(0.0));
    QTest::keyClick(&casilla, Qt::Key_Up);
    QCOMPARE(casilla.Valor(), std::optional(1.0));
  }

  void ningunaCasillaDelProgramaEsDeFabrica() {
    const MarcoPrueba marco;
    const auto casillas = marco.marco.findChildren<QAbstractSpinBox *>();
    QVERIFY(casillas.size() >= 6);
    for (const QAbstractSpinBox *casilla : casillas) {
      const bool nuestra = qobject_cast<const CasillaEntera *>(casilla) != nullptr ||
                           qobject_cast<const CasillaReal *>(casilla) != nullptr;
      QVERIFY2(nuestra, qPrintable(casilla->objectName()));
    }
  }

  void laAltitudDeLaCartaNoSeMultiplicaPorDiez() {
    const MarcoPrueba marco;
    const Ventana ventana = marco.Numero(0);
    auto &altitud = ventana.Buscar<QDoubleSpinBox>("csAltitud");
    Terminar(altitud, QStringLiteral("680,5"));
    QCOMPARE(altitud.value(), 680.5);
    QCOMPARE(ventana.Controlador().DameSeleccion().DameAltitudUsuario(), std::optional(680.5F));
  }
};

TESMO_PRUEBA_QT(PruebaCasillanumero)
#include "Casillanumero_prueba.moc"
