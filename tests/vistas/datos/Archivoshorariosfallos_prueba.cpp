// La pestaña "Archivos horarios": lo que impide escribir, y que entonces no se escribe nada.

#include "tests/vistas/datos/Manejoarchivoshorarios.h"
#include "vistas/carta/Marcocarta.h"
#include "vistas/carta/Vistapsicrometrico.h"

#include <QFileInfo>
#include <QLineEdit>
#include <QSignalSpy>

using namespace tesmo;
using namespace tesmo::prueba;

namespace {

/// Apunta con qué cursor se vio cada mensaje.
class CursorAlAvisar : public PresentadorMensajes {
public:
  void Presentar(const std::string &, const std::string &, Icono) override {
    const QCursor *cursor = QApplication::overrideCursor();
    formas.push_back(cursor == nullptr ? Qt::ArrowCursor : cursor->shape());
  }
  std::vector<int> formas;
};

} // namespace

class PruebaArchivosHorariosFallos : public QObject, private ManejoArchivosHorarios {
  Q_OBJECT

private slots:
  void init() { Abrir(); }
  void cleanup() { Soltar(); }

  void siNoSePuedeCrearDaElMensaje60ConLaRuta() {
    ventana_->Localidad("Almería");
    const QString ruta = Ruta("no_existe/a.met");
    auto *dialogo = Pedir();
    emit dialogo->fileSelected(ruta);
    QCOMPARE(marco_->mensajes.apuntes.size(), 1U);
    QCOMPARE(marco_->mensajes.apuntes[0].texto,
             "El fichero de resultado " + ruta.toStdString() + " no se ha podido abrir.\n ");
    QVERIFY(!QFileInfo::exists(ruta));
  }

  void sinLocalidadDaElMensaje59YNoEscribeNada() {
    Pedir();
    emit Dialogo()->fileSelected(Ruta("nada.met"));
    QCOMPARE(
        marco_->mensajes.apuntes.at(0).texto,
        std::string("El fichero meteorológico asociado a la ciudad Localidad no se ha podido abrir.\n "));
    QVERIFY(!QFileInfo::exists(Ruta("nada.met")));
  }

  void siElFicheroClimaticoDesapareceDaElMensaje59YNoEscribeNada() {
    ventana_->Localidad("Almería");
    std::filesystem::remove(marco_->datos.Directorio() / "Meteo/almeria.met");
    emit Pedir()->fileSelected(Ruta("nada.met"));
    QCOMPARE(marco_->mensajes.apuntes.size(), 1U);
    QVERIFY(marco_->mensajes.apuntes[0].texto.find("Almería") != std::string::npos);
    QVERIFY(!QFileInfo::exists(Ruta("nada.met")));
  }

  void siElFicheroClimaticoDesapareceLasDemasPestanasNoSiguenEnsenandolo() {
    ventana_->Localidad("Almería");
    ventana_->Marcar("cbTS");
    ventana_->Pulsar("btnSimulacion");
    ventana_->Pulsar("btnNubes");
    Vistapsicrometrico &carta = ventana_->Controlador().DameVistaPsicrometrico();
    QVERIFY(ventana_->Chart().NumeroSeries() > 0 && !carta.Contenido().marcas.empty());
    std::filesystem::remove(marco_->datos.Directorio() / "Meteo/almeria.met");
    emit Pedir()->fileSelected(Ruta("nada.met"));
    QCOMPARE(marco_->mensajes.apuntes.size(), 1U);
    QVERIFY(!ventana_->Controlador().HayDatos());
    QCOMPARE(ventana_->Chart().NumeroSeries(), 0);
    QVERIFY(carta.Contenido().marcas.empty());
    QCOMPARE(ventana_->Buscar<QLineEdit>("edMaximo").text(), QString());
  }

  void conUnaCasillaDeLaSuperficieVaciaDaElMensaje58YNoEscribeNada_data() {
    QTest::addColumn<QString>("casilla");
    QTest::addColumn<QString>("rotulo");
    QTest::newRow("inclinación") << "edInclinacion"
                                 << "Inclinación";
    QTest::newRow("orientación") << "edOrientacion"
                                 << "Orientación";
    QTest::newRow("albedo") << "edAlbedo"
                            << "Albedo";
  }
  void conUnaCasillaDeLaSuperficieVaciaDaElMensaje58YNoEscribeNada() {
    QFETCH(const QString, casilla);
    QFETCH(const QString, rotulo);
    ventana_->Localidad("Almería");
    auto &texto = ventana_->Buscar<QLineEdit>(casilla.toLatin1().constData());
    texto.selectAll();
    QTest::keyClick(&texto, Qt::Key_Backspace);
    emit Pedir()->fileSelected(Ruta("nada.met"));
    QCOMPARE(marco_->mensajes.apuntes.size(), 1U);
    QCOMPARE(marco_->mensajes.apuntes[0].texto,
             "La casilla de " + rotulo.toStdString() + " no tiene ningún valor. Introduzca uno.\n ");
    QVERIFY(!QFileInfo::exists(Ruta("nada.met")));
  }

  void conElMensaje59ElCursorEsElRelojDeArena() {
    ventana_->Localidad("Almería");
    std::filesystem::remove(marco_->datos.Directorio() / "Meteo/almeria.met");
    CursorAlAvisar presentador;
    DameMensajes().PonPresentador(&presentador);
    emit Pedir()->fileSelected(Ruta("nada.met"));
    DameMensajes().PonPresentador(&marco_->mensajes);
    QCOMPARE(presentador.formas, std::vector<int>{Qt::WaitCursor});
  }

  void deUnFicheroCortadoSeDiceCuantasHorasHabia() {
    QSignalSpy estado(&ventana_->Controlador().DameFormulario(), &TforProgramas::estado);
    ventana_->Provincia("Cádiz");
    ventana_->Localidad("Tarifa");
    (void)Escribir("t");
    QVERIFY(estado.last().at(0).toString().contains(QStringLiteral("100 horas")));
  }

  void cancelarElDialogoNoEscribeNada() {
    ventana_->Localidad("Almería");
    QTest::keyClick(Pedir(), Qt::Key_Escape);
    QVERIFY(std::filesystem::is_empty(marco_->datos.Directorio() / "Resultados"));
  }
};

TESMO_PRUEBA_QT(PruebaArchivosHorariosFallos)
#include "Archivoshorariosfallos_prueba.moc"
