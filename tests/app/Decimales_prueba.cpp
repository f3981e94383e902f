// Los números que se teclean en la ventana y lo que con ellos se escribe, en la región con que se ejecute la
// prueba: valen la coma y el punto, y se enseña el separador regional.

#include "extremos/Diasextremos.h"
#include "meteo/Leermet.h"
#include "solar/Posicionsolar.h"
#include "tests/comun/ventanas/Manejo.h"
#include "tests/comun/ventanas/Regional.h"
#include "vistas/datos/Paginaestadisticas.h"
#include "vistas/datos/Vistaexportacion.h"

#include <QDoubleSpinBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <optional>

using namespace tesmo;
using namespace tesmo::prueba;

class PruebaDecimales : public QObject {
  Q_OBJECT

private slots:
  void init() { marco_.emplace(); }
  void cleanup() { marco_.reset(); }

  void laPosicionSolarAdmiteLosDosSeparadores_data() {
    QTest::addColumn<QString>("casilla");
    QTest::addColumn<QString>("clave");
    QTest::addColumn<QString>("tecleado");
    QTest::addColumn<float>("valor");
    const auto filas = [](const char *casilla, const char *clave, const char *numero, float valor) {
      const QString texto = QString::fromLatin1(numero);
      for (const char separador : {',', '.'}) {
        QTest::addRow("%s con %c", casilla, separador)
            << casilla << QString::fromUtf8(clave) << QString(texto).replace('_', separador) << valor;
      }
    };
    filas("edHora", "Hora", "13_25", 13.25F);
    filas("edInclinacion", "Inclinación", "13_25", 13.25F);
    filas("edOrientacion", "Orientación", "-13_25", -13.25F);
    filas("edAlbedo", "Albedo", "0_25", 0.25F);
  }
  void laPosicionSolarAdmiteLosDosSeparadores() {
    QFETCH(const QString, casilla);
    QFETCH(const QString, clave);
    QFETCH(const QString, tecleado);
    QFETCH(const float, valor);
    Teclear(casilla, tecleado);
    marco_->Numero(0).Pulsar("btnDia");
    float leido = -999.0F;
    marco_->Numero(0).Controlador().DamePosicionSolar()->DameReal(clave.toStdString(), leido);
    QCOMPARE(leido, valor);
    QVERIFY(marco_->mensajes.apuntes.empty());
  }

  void losPercentilesAdmitenLosDosSeparadores_data() {
    QTest::addColumn<QString>("casilla");
    QTest::addColumn<QString>("clave");
    QTest::addColumn<QString>("tecleado");
    for (const char *tecleado : {"13,25", "13.25"}) {
      QTest::addRow("edPerCal %s", tecleado) << "edPerCal"
                                             << "Percentil calefacción" << QString::fromLatin1(tecleado);
      QTest::addRow("edPerRef %s", tecleado) << "edPerRef"
                                             << "Percentil refrigeración" << QString::fromLatin1(tecleado);
    }
  }
  void losPercentilesAdmitenLosDosSeparadores() {
    QFETCH(const QString, casilla);
    QFETCH(const QString, clave);
    QFETCH(const QString, tecleado);
    marco_->Numero(0).Localidad("Almería");
    Teclear(casilla, tecleado);
    marco_->Numero(0).Pulsar("btnCalDiaExt");
    float leido = -1.0F;
    marco_->Numero(0).Controlador().DameDiasExtremos()->DameReal(clave.toStdString(), leido);
    QCOMPARE(leido, 13.25F);
    QVERIFY(marco_->mensajes.apuntes.empty());
  }

  void lasBasesYLaAltitudAdmitenLosDosSeparadores_data() {
    QTest::addColumn<QString>("casilla");
    QTest::addColumn<QString>("tecleado");
    for (const char *casilla : {"csBaseCal", "csBaseRef", "csAltitud"}) {
      for (const char *tecleado : {"13,25", "13.25"})
        QTest::addRow("%s %s", casilla, tecleado) << casilla << QString::fromLatin1(tecleado);
    }
  }
  void lasBasesYLaAltitudAdmitenLosDosSeparadores() {
    QFETCH(const QString, casilla);
    QFETCH(const QString, tecleado);
    marco_->Numero(0).Localidad("Almería");
    auto &numero = marco_->Numero(0).Buscar<QDoubleSpinBox>(casilla.toLatin1().constData());
    numero.selectAll();
    QTest::keyClicks(&numero, tecleado);
    QTest::keyClick(&numero, Qt::Key_Return);
    QVERIFY2(numero.text().startsWith(Regional("13,25")), qPrintable(numero.text()));
    QCOMPARE(numero.value(), 13.25);
    numero.interpretText();
    QCOMPARE(numero.value(), 13.25);
  }

  void laBaseTecleadaEsLaDeLosGradosDia() {
    const Ventana ventana = marco_->Numero(0);
    ventana.Localidad("Almería");
    auto &base = ventana.Buscar<QDoubleSpinBox>("csBaseCal");
    base.setValue(13.25);
    const PaginaEstadisticas &pagina = ventana.Controlador().DameFormulario().DamePaginaEstadisticas();
    QCOMPARE(pagina.Bases().calefaccion, 13.25F);
  }

  void loExportadoLlevaElSeparadorRegionalYLaCabeceraElPunto() {
    const Ventana ventana = marco_->Numero(0);
    ventana.Localidad("Almería");
    ventana.Marcar("cbTemSec");
    ventana.Poner("csHorIni", 2);
    ventana.Poner("csHorFin", 2);
    Teclear(QStringLiteral("edInclinacion"), QStringLiteral("13.25"));
    Teclear(QStringLiteral("edOrientacion"), QStringLiteral("13,25"));
    ventana.Buscar<QRadioButton>("rbPuntoComa").setChecked(true);
    const auto fichero = marco_->datos.Directorio() / "Resultados/una.met";
    QVERIFY(
        ventana.Controlador().DameVistaExportacion().Escribir(QString::fromStdString(TextoDeRuta(fichero))));
    QCOMPARE(QString::fromStdString(Contenido(fichero)),
             QStringLiteral("Almería\n36.840000 -2.390000 21.000000\n"
                            "Orientación: 13.250000  Inclinación: 13.250000 Albedo: 0.200000\n"
                            "mes;dia;hora;ts;\n") +
                 Regional(QStringLiteral("1;1;2;10,5;\n")));
  }

private:
  void Teclear(const QString &casilla, const QString &texto) const {
    auto &control = marco_->Numero(0).Buscar<QLineEdit>(casilla.toLatin1().constData());
    control.selectAll();
    QTest::keyClicks(&control, texto);
  }

  std::optional<MarcoPrueba> marco_;
};

TESMO_PRUEBA_QT(PruebaDecimales)
#include "Decimales_prueba.moc"
