// Elegir provincia y localidad: título, carga, fallos y cursor de ocupado.

#include "app/Presentadorventanas.h"
#include "localidades/Ciudad.h"
#include "meteo/Leermet.h"
#include "tests/comun/ventanas/Manejo.h"

#include <QComboBox>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>
#include <optional>

using namespace tesmo;
using namespace tesmo::prueba;

class PruebaLocalidad : public QObject {
  Q_OBJECT

private slots:
  void init() { marco_.emplace(); }
  void cleanup() {
    QVERIFY(QApplication::overrideCursor() == nullptr); // por el camino que fuese, el cursor volvió
    marco_.reset();
  }

  void alAbrirNoHayLocalidadElegida() {
    const Ventana ventana = marco_->Numero(0);
    QCOMPARE(ventana.Titulo(), QStringLiteral("Sin Nombre1"));
    QCOMPARE(ventana.Localidad(), QStringLiteral("Localidad"));
    auto &provincias = ventana.Buscar<QComboBox>("cbProvincias");
    QCOMPARE(provincias.count(), 3);
    QCOMPARE(provincias.itemText(1), QStringLiteral("Granada"));
    QCOMPARE(ventana.Buscar<QComboBox>("cbLocalidades").count(), 3);
  }

  void elegirLocalidadPoneElTituloYCargaSuFichero() {
    const Ventana ventana = marco_->Numero(0);
    QSignalSpy estado(&ventana.Controlador().DameFormulario(), &TforProgramas::estado);
    ventana.Localidad("Almería");
    QCOMPARE(ventana.Titulo(), QStringLiteral("Almería-Almería"));
    QVERIFY(ventana.Controlador().HayDatos());
    QCOMPARE(ventana.Controlador().DameLeerMet()->TercerDato(), 21.0F);
    QVERIFY(marco_->mensajes.apuntes.empty());
    QVERIFY(estado.last().at(0).toString().contains(QStringLiteral("8760")));
  }

  void elFicheroQueFaltaDaElMensaje59YNoDejaNadaCargado() {
    const Ventana ventana = marco_->Numero(0);
    ventana.Localidad("Almería");
    ventana.Pulsar("btnSimulacion");
    ventana.Provincia("Granada");
    ventana.Localidad("Motril");
    QCOMPARE(ventana.Titulo(), QStringLiteral("Motril-Granada"));
    QCOMPARE(marco_->mensajes.apuntes.size(), 1U);
    QCOMPARE(marco_->mensajes.apuntes[0].texto,
             std::string("El fichero meteorológico asociado a la ciudad Motril no se ha podido abrir.\n "));
    QCOMPARE(marco_->mensajes.apuntes[0].titulo, std::string("Información"));
    QVERIFY(!ventana.Controlador().HayDatos());
    QCOMPARE(ventana.Chart().NumeroSeries(), 0);
    ventana.Pulsar("btnSimulacion"); // lo vuelve a intentar y lo vuelve a decir
    QCOMPARE(marco_->mensajes.apuntes.size(), 2U);
    QCOMPARE(ventana.Chart().NumeroSeries(), 0);
  }

  void sinLocalidadLosBotonesDanElMensaje59YNoCambiaNada_data() {
    QTest::addColumn<QString>("boton");
    QTest::newRow("Visualizar") << "btnSimulacion";
    QTest::newRow("Actualizar") << "btnActualizar";
  }
  void sinLocalidadLosBotonesDanElMensaje59YNoCambiaNada() {
    QFETCH(const QString, boton);
    const Ventana ventana = marco_->Numero(0);
    ventana.Pulsar(boton.toLatin1().constData());
    QCOMPARE(marco_->mensajes.apuntes.size(), 1U);
    QCOMPARE(
        marco_->mensajes.apuntes[0].texto,
        std::string("El fichero meteorológico asociado a la ciudad Localidad no se ha podido abrir.\n "));
    QCOMPARE(ventana.Titulo(), QStringLiteral("Sin Nombre1"));
    QCOMPARE(ventana.Chart().NumeroSeries(), 0);
    QVERIFY(!ventana.Controlador().HayDatos());
  }

  void cambiarDeProvinciaVuelveALocalidadSinCargarNada() {
    const Ventana ventana = marco_->Numero(0);
    ventana.Localidad("Almería");
    ventana.Pulsar("btnSimulacion");
    ventana.Provincia("Granada");
    QCOMPARE(ventana.Localidad(), QStringLiteral("Localidad"));
    QCOMPARE(ventana.Titulo(), QStringLiteral("Sin Nombre1"));
    QCOMPARE(ventana.Chart().NumeroSeries(), 0);
    QVERIFY(!ventana.Controlador().HayDatos());
    QVERIFY(marco_->mensajes.apuntes.empty());
    QCOMPARE(ventana.Buscar<QComboBox>("cbLocalidades").itemText(2), QStringLiteral("Motril"));
  }

  void otraLocalidadRehaceElGraficoQueSeEstabaViendo() {
    const Ventana ventana = marco_->Numero(0);
    ventana.Marcar("cbTS");
    ventana.Localidad("Almería");
    QCOMPARE(ventana.Chart().NumeroSeries(), 0); // aún no se había pedido ningún gráfico
    ventana.Pulsar("btnSimulacion");
    QCOMPARE(ventana.Chart().Punto(0, 2).y(),
             double(DatosPrueba::TemperaturaSeca(2, DatosPrueba::BASE_ALMERIA)));
    ventana.Localidad("Níjar");
    QCOMPARE(ventana.Chart().NumeroSeries(), 21);
    QCOMPARE(ventana.Chart().Punto(0, 2).y(),
             double(DatosPrueba::TemperaturaSeca(2, DatosPrueba::BASE_ALMERIA + 1.0F)));
    QVERIFY(ventana.Chart().Serie(0).visible);
  }

  void volverALocalidadQuitaLoQueHabia() {
    const Ventana ventana = marco_->Numero(0);
    ventana.Localidad("Almería");
    ventana.Pulsar("btnSimulacion");
    ventana.Localidad("Localidad");
    QCOMPARE(ventana.Titulo(), QStringLiteral("Sin Nombre1"));
    QCOMPARE(ventana.Chart().NumeroSeries(), 0);
    QVERIFY(!ventana.Controlador().HayDatos());
    QVERIFY(marco_->mensajes.apuntes.empty());
  }

  void actualizarVuelveALeerElFichero() {
    const Ventana ventana = marco_->Numero(0);
    ventana.Localidad("Almería");
    const std::string texto = Contenido(marco_->datos.Directorio() / "Meteo/granada.met");
    marco_->datos.Directorio().Escribir("Meteo/almeria.met", texto);
    ventana.Pulsar("btnActualizar");
    QCOMPARE(ventana.Chart().NumeroSeries(), 21);
    QCOMPARE(ventana.Chart().Punto(0, 0).y(), double(DatosPrueba::BASE_GRANADA));
  }

  void siElFicheroDesapareceActualizarQuitaElGrafico() {
    const Ventana ventana = marco_->Numero(0);
    ventana.Localidad("Almería");
    ventana.Pulsar("btnSimulacion");
    std::filesystem::remove(marco_->datos.Directorio() / "Meteo/almeria.met");
    ventana.Pulsar("btnActualizar");
    QCOMPARE(marco_->mensajes.apuntes.size(), 1U);
    QCOMPARE(ventana.Chart().NumeroSeries(), 0);
    QVERIFY(!ventana.Controlador().HayDatos());
  }

  void unFicheroCortadoSeCargaYSeDiceEnLaLineaDeEstado() {
    const Ventana ventana = marco_->Numero(0);
    QSignalSpy estado(&ventana.Controlador().DameFormulario(), &TforProgramas::estado);
    ventana.Provincia("Cádiz");
    ventana.Localidad("Tarifa");
    QVERIFY(ventana.Controlador().HayDatos());
    QVERIFY(marco_->mensajes.apuntes.empty());
    QVERIFY(estado.last().at(0).toString().contains(QStringLiteral("100 de las 8760")));
  }

  void elAvisoDeFicheroCortadoQuedaALaVistaConElGrafico() {
    const Ventana ventana = marco_->Numero(0);
    QSignalSpy estado(&ventana.Controlador().DameFormulario(), &TforProgramas::estado);
    const auto ultimo = [&] { return estado.last().at(0).toString(); };
    ventana.Localidad("Almería");
    ventana.Pulsar("btnSimulacion");
    QVERIFY(ultimo().contains(QStringLiteral("Rueda")));
    ventana.Provincia("Cádiz");
    ventana.Localidad("Tarifa");
    for (const char *boton : {"btnSimulacion", "btnActualizar"}) {
      estado.clear();
      ventana.Pulsar(boton);
      QCOMPARE(ventana.Chart().NumeroSeries(), 21);
      QVERIFY2(ultimo().contains(QStringLiteral("100 de las 8760")), boton);
    }
    // Otra vez la misma, ahora con un gráfico a la vista.
    ventana.Localidad("Localidad");
    estado.clear();
    ventana.Localidad("Tarifa");
    QVERIFY(ultimo().contains(QStringLiteral("100 de las 8760")));
  }

  void visualizarTrasUnaCargaFallidaDiceLoQueLee() {
    const Ventana ventana = marco_->Numero(0);
    QSignalSpy estado(&ventana.Controlador().DameFormulario(), &TforProgramas::estado);
    ventana.Provincia("Granada");
    ventana.Localidad("Motril"); // su fichero aún no está
    marco_->datos.Directorio().Escribir("Meteo/falta.met",
                                        Contenido(marco_->datos.Directorio() / "Meteo/tarifa.met"));
    ventana.Pulsar("btnSimulacion");
    QCOMPARE(ventana.Chart().NumeroSeries(), 21);
    QVERIFY(estado.last().at(0).toString().contains(QStringLiteral("100 de las 8760")));
  }

  void siLaElegidaSeVaAOtraProvinciaLaVentanaVuelveALocalidad() {
    const Ventana ventana = marco_->Numero(0);
    ventana.Localidad("Níjar");
    ventana.Pulsar("btnSimulacion");
    Mudar("Níjar", "Granada");
    QCOMPARE(ventana.Buscar<QComboBox>("cbProvincias").currentText(), QStringLiteral("Almería"));
    ComprobarSinLocalidad(ventana);
  }

  void siEraLaUnicaDeSuProvinciaLaVentanaPasaAOtra() {
    const Ventana ventana = marco_->Numero(0);
    ventana.Provincia("Cádiz");
    ventana.Localidad("Tarifa");
    ventana.Pulsar("btnSimulacion");
    Mudar("Tarifa", "Granada");
    const auto &provincias = ventana.Buscar<QComboBox>("cbProvincias");
    QCOMPARE(provincias.findText(QStringLiteral("Cádiz")), -1);
    QCOMPARE(provincias.currentText().toStdString(), ventana.Controlador().DameSeleccion().DameProvincia());
    ComprobarSinLocalidad(ventana);
  }

  void siLaElegidaSeReemplazaEnSuProvinciaSeVuelveALeer() {
    const Ventana ventana = marco_->Numero(0);
    ventana.Localidad("Níjar");
    ventana.Pulsar("btnSimulacion");
    marco_->datos.Directorio().Escribir("Meteo/nijar.met",
                                        Contenido(marco_->datos.Directorio() / "Meteo/granada.met"));
    Mudar("Níjar", "Almería");
    QCOMPARE(ventana.Titulo(), QStringLiteral("Níjar-Almería"));
    QCOMPARE(ventana.Chart().Punto(0, 0).y(), double(DatosPrueba::BASE_GRANADA));
  }

  void laAltitudQueNoSeCreeSeDiceConElSeparadorRegional() {
    const ConSeparador coma(',');
    std::string texto = Contenido(marco_->datos.Directorio() / "Meteo/nijar.met");
    const std::string altitud = " 21.000000 ";
    const std::size_t sitio = texto.find(altitud);
    QVERIFY(sitio != std::string::npos);
    marco_->datos.Directorio().Escribir("Meteo/nijar.met", texto.replace(sitio, altitud.size(), " 9000.5 "));
    QSignalSpy estado(&marco_->Numero(0).Controlador().DameFormulario(), &TforProgramas::estado);
    marco_->Numero(0).Localidad("Níjar");
    const QString dicho = estado.last().at(0).toString();
    QVERIFY2(dicho.contains(QStringLiteral("9000,5 m, no está entre -500 y 9000")), qPrintable(dicho));
  }

  void elMensajeEsUnaCajaModalEnCastellanoConLaFlecha() {
    PresentadorVentanas presentador;
    PresentadorMensajes *anterior = DameMensajes().PonPresentador(&presentador);
    QString titulo;
    QString boton;
    Qt::CursorShape cursor = Qt::WaitCursor;
    bool modal = false;
    QTimer::singleShot(0, [&] {
      auto *caja = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
      if (!caja) return;
      titulo = caja->windowTitle();
      boton = caja->button(QMessageBox::Ok)->text();
      modal = caja->isModal();
      if (const QCursor *puesto = QApplication::overrideCursor()) cursor = puesto->shape();
      caja->accept();
    });
    marco_->Numero(0).Pulsar("btnActualizar");
    DameMensajes().PonPresentador(anterior);
    QCOMPARE(titulo, QStringLiteral("Información"));
    QCOMPARE(boton, QStringLiteral("Aceptar"));
    QVERIFY(modal);
    QCOMPARE(cursor, Qt::ArrowCursor);
  }

private:
  /// Reemplaza una localidad con su provincia cambiada, como una importación.
  static void Mudar(const char *localidad, const char *provincia) {
    const ObjetoCiudad *actual = DameBaseDeLocalidades().BuscarLocalidad(localidad);
    QVERIFY(actual != nullptr);
    ObjetoCiudad registro = *actual;
    registro.provincia = provincia;
    DameBaseDeLocalidades().PonRegistro(registro);
  }
  void ComprobarSinLocalidad(const Ventana &ventana) const {
    QCOMPARE(ventana.Localidad(), QStringLiteral("Localidad"));
    QVERIFY(!ventana.Controlador().DameSeleccion().HayLocalidad());
    QCOMPARE(ventana.Titulo(), QStringLiteral("Sin Nombre1"));
    QCOMPARE(ventana.Chart().NumeroSeries(), 0);
    QVERIFY(!ventana.Controlador().HayDatos());
    QVERIFY(marco_->mensajes.apuntes.empty());
  }

  std::optional<MarcoPrueba> marco_;
};

TESMO_PRUEBA_QT(PruebaLocalidad)
#include "Localidad_prueba.moc"
