// La página "Resultados Dias extremos": gráficos, lista, escala común, cifras y ficheros.

#include "extremos/Diasextremos.h"
#include "tests/comun/ventanas/Manejo.h"
#include "vistas/extremos/Seriesextremos.h"

#include <QClipboard>
#include <QGroupBox>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QSplitter>
#include <QTabWidget>
#include <optional>

using namespace tesmo;
using namespace tesmo::prueba;

class PruebaResultadosExtremos : public QObject {
  Q_OBJECT

private slots:
  void init() { marco_.emplace(); }
  void cleanup() {
    QVERIFY(QApplication::overrideCursor() == nullptr);
    marco_.reset();
  }

  void unCalculoLogradoEnsenaLaPestana() {
    const Ventana ventana = Calculada();
    const auto &paginas = ventana.Buscar<QTabWidget>("pcProgramas");
    QVERIFY(paginas.isTabVisible(2));
    QCOMPARE(paginas.currentIndex(), 2);
    QVERIFY(marco_->mensajes.apuntes.empty());
    QCOMPARE(ventana.Buscar<QGroupBox>("gbCal").title(), QStringLiteral("Calefacción  "));
    QCOMPARE(ventana.Buscar<QGroupBox>("gbRef").title(), QStringLiteral("Refrigeración   "));
    const auto &reparto = ventana.Buscar<QSplitter>("Splitter2");
    QCOMPARE(reparto.orientation(), Qt::Vertical);
    QCOMPARE(reparto.widget(0)->objectName(), QStringLiteral("gbCal"));
    QCOMPARE(reparto.widget(1)->objectName(), QStringLiteral("gbRef"));
    QVERIFY(ventana.Buscar<QWidget>("panelLista").findChild<QListWidget *>("CheckListBox1"));
  }

  void cadaGraficoTieneSusSieteSeriesDe24Puntos() {
    const Ventana ventana = Calculada();
    const extremos::ResultadoDias &resultado = ventana.Controlador().DameDiasExtremos()->Resultado();
    const QStringList titulos{"T.Ext", "T.Rocío", "T.Cielo", "R.Dir", "R.Dif", "H.Abs", "H.Rel"};
    for (const auto &[nombre, dia] : {std::pair{"graDiaExtCal", &resultado.calefaccion.dia},
                                      std::pair{"graDiaExtRef", &resultado.refrigeracion.dia}}) {
      const auto &grafico = ventana.Buscar<Grafico>(nombre);
      QCOMPARE(grafico.NumeroSeries(), 7);
      for (int i = 0; i < 7; ++i) {
        QCOMPARE(grafico.Serie(i).clave, titulos[i]);
        QCOMPARE(grafico.Serie(i).grosor, 2.0);
        QCOMPARE(grafico.Serie(i).lado, i == 3 || i == 4 ? LadoEje::Derecho : LadoEje::Izquierdo);
        QCOMPARE(grafico.NumeroPuntos(i), 24);
        const auto &valores = dia->*SERIES_EXTREMOS[static_cast<std::size_t>(i)].valores;
        for (int h = 0; h < 24; ++h)
          QCOMPARE(grafico.Punto(i, h), QPointF(h, double(valores[static_cast<std::size_t>(h)])));
      }
    }
    // Los dos días no son el mismo, ni dos series la misma.
    QVERIFY(resultado.refrigeracion.dia.exterior[12] > resultado.calefaccion.dia.exterior[12] + 10.0F);
    QVERIFY(resultado.refrigeracion.dia.directa[11] > resultado.refrigeracion.dia.difusa[11]);
  }

  void alPrincipioSoloSeVeLaTemperaturaExterior() {
    const Ventana ventana = Calculada();
    const auto &lista = Lista(ventana);
    const QStringList textos{"Temperatura Exterior",
                             "Temperatura de Rocío",
                             "Temperatura de Cielo",
                             "Radiación Directa (Eje derecho)",
                             "Radiación Difusa (Eje derecho)",
                             "Humedad Absoluta",
                             "Humedad Relativa"};
    QCOMPARE(lista.count(), 7);
    for (int i = 0; i < 7; ++i) {
      QCOMPARE(lista.item(i)->text(), textos[i]);
      QCOMPARE(lista.item(i)->checkState(), i == 0 ? Qt::Checked : Qt::Unchecked);
    }
    for (const Grafico *grafico : Graficos(ventana)) {
      QCOMPARE(grafico->Leyenda(), QStringList{"T.Ext (ºC)"});
      QVERIFY(!grafico->EjeALaVista(LadoEje::Derecho));
      QCOMPARE(grafico->TituloEje(LadoEje::Izquierdo), QStringLiteral("Temperatura exterior (ºC)"));
    }
  }

  void calcularOtraVezVaciaAntesLaLista() {
    const Ventana ventana = Calculada();
    Marcar(ventana, 3);
    ventana.Pulsar("btnCalDiaExt");
    QCOMPARE(Lista(ventana).count(), 7);
    QCOMPARE(Lista(ventana).item(3)->checkState(), Qt::Unchecked);
    for (const Grafico *grafico : Graficos(ventana)) QCOMPARE(grafico->NumeroSeries(), 7);
  }

  void lasMarcadasSeVenEnLosDosConLaMismaEscala() {
    const Ventana ventana = Calculada();
    Marcar(ventana, 3);
    Marcar(ventana, 4);
    const extremos::ResultadoDias &resultado = ventana.Controlador().DameDiasExtremos()->Resultado();
    const double radiacion = double(*std::ranges::max_element(resultado.refrigeracion.dia.directa));
    const double temperatura = double(*std::ranges::max_element(resultado.refrigeracion.dia.exterior));
    QVERIFY(radiacion > 300.0);
    for (const Grafico *grafico : Graficos(ventana)) {
      QCOMPARE(grafico->Leyenda(), (QStringList{"T.Ext (ºC)", "R.Dir (W/m²)", "R.Dif (W/m²)"}));
      QVERIFY(grafico->EjeALaVista(LadoEje::Derecho));
      QCOMPARE(grafico->TituloEje(LadoEje::Derecho), QStringLiteral("W/m²"));
      QCOMPARE(grafico->Limites(LadoEje::Derecho).maximo, 1.1 * radiacion);
      QCOMPARE(grafico->Limites(LadoEje::Derecho).minimo, -3.0);
      QCOMPARE(grafico->Limites(LadoEje::Izquierdo).maximo, 1.1 * temperatura);
      QCOMPARE(grafico->Limites(LadoEje::Izquierdo).minimo, -3.0);
    }
  }

  void sinNadaMarcadoLosDosEjesVanDeMenosTresAUnoConUno() {
    const Ventana ventana = Calculada();
    Marcar(ventana, 0, false);
    for (const Grafico *grafico : Graficos(ventana)) {
      QVERIFY(grafico->Leyenda().isEmpty());
      for (const LadoEje lado : {LadoEje::Izquierdo, LadoEje::Derecho}) {
        QCOMPARE(grafico->Limites(lado).minimo, -3.0);
        QCOMPARE(grafico->Limites(lado).maximo, 1.1);
      }
    }
  }

  void pulsarEnElNombreValeComoEnLaCasilla() {
    const Ventana ventana = Calculada();
    auto &lista = Lista(ventana);
    const QRect renglon = lista.visualItemRect(lista.item(1));
    const auto pulsar = [&](const QPoint &donde) {
      QTest::mouseClick(lista.viewport(), Qt::LeftButton, Qt::NoModifier, donde);
    };
    pulsar(renglon.center());
    QVERIFY(Graficos(ventana)[0]->Serie(1).visible);
    const QPoint casilla(renglon.left() + 10, renglon.center().y());
    pulsar(casilla);
    QVERIFY(!Graficos(ventana)[1]->Serie(1).visible);
    // Soltar fuera de la lista no cuenta, ni entonces ni en el siguiente.
    QTest::mousePress(lista.viewport(), Qt::LeftButton, Qt::NoModifier, renglon.center());
    QTest::mouseRelease(lista.viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(-20, -20));
    pulsar(casilla);
    QVERIFY(Graficos(ventana)[0]->Serie(1).visible);
  }

  void elPunteroLeeLaHoraYLosValores() {
    const Ventana ventana = Calculada();
    const Grafico &grafico = *Graficos(ventana)[1];
    auto *trazo = grafico.findChild<QWidget *>(QStringLiteral("trazo"));
    const QRect marco = grafico.Marco();
    QTest::mouseMove(trazo, QPoint(marco.left() + marco.width() * 14 / 24 + 3, marco.center().y()));
    QTRY_VERIFY2(grafico.Lectura().startsWith(QStringLiteral("Hora 14 (de 14 a 15 h solares)")),
                 qPrintable(grafico.Lectura()));
    QVERIFY(grafico.Lectura().contains(QStringLiteral("Temperatura exterior: ")));
    const QString datos = grafico.TextoDatos();
    QCOMPARE(datos.count(QLatin1Char('\n')), 25);
    QVERIFY(datos.startsWith(QStringLiteral("hora\tTemperatura exterior (ºC)\n0\t")));
    QVERIFY(datos.contains(QStringLiteral("\n23\t")));
  }

  void laImagenDeCadaGraficoSeGuarda() {
    const Ventana ventana = Calculada();
    for (const Grafico *grafico : Graficos(ventana)) {
      const auto ruta = marco_->datos.Directorio() / (grafico->objectName().toStdString() + ".png");
      QVERIFY(grafico->GuardarImagen(QString::fromStdString(TextoDeRuta(ruta))));
      QVERIFY(std::filesystem::file_size(ruta) > 1000);
    }
  }

  void lasCifrasSePuedenSeleccionarYCopiar() {
    const Ventana ventana = Calculada("Granada", "Granada");
    auto &cifras = ventana.Buscar<QPlainTextEdit>("edDerivacion");
    QVERIFY(cifras.isReadOnly());
    QVERIFY(cifras.textInteractionFlags().testFlag(Qt::TextSelectableByMouse));
    QVERIFY(cifras.toPlainText().contains(QStringLiteral("Granada (Granada)")));
    QVERIFY(cifras.toPlainText().contains(QStringLiteral("Origen de la humedad\tWCAL=\tWREF=")));
    QVERIFY(cifras.toPlainText().contains(QStringLiteral("Humedad absoluta (g/kg)\t4.50\t9.00")));
    cifras.selectAll();
    cifras.copy();
    QCOMPARE(QApplication::clipboard()->text(), cifras.toPlainText());
    QApplication::clipboard()->clear();
    ventana.Pulsar("btnCopiarDerivacion");
    QCOMPARE(QApplication::clipboard()->text(), cifras.toPlainText());
  }

  void alAcabarQuedanEscritosLosDosFicherosYElInforme() {
    const Ventana ventana = Calculada();
    const auto &directorio = marco_->datos.Directorio();
    QVERIFY(Contenido(directorio / "Resultados/extreCal.met").starts_with("Almería Almería\nmes\t"));
    QVERIFY(Contenido(directorio / "Resultados/extreRef.met").find("\n7\t15\t23\t") != std::string::npos);
    const std::string uno = Contenido(directorio / "salida.txt");
    QVERIFY(uno.starts_with("Almeria\n0.010000 0.990000\n"));
    ventana.Pulsar("btnCalDiaExt");
    QCOMPARE(Contenido(directorio / "salida.txt"), uno + uno);
  }

  void siNoSePuedenEscribirSeDiceYLosResultadosSeVen() {
    std::filesystem::remove(marco_->datos.Directorio() / "Resultados");
    const Ventana ventana = marco_->Numero(0);
    ventana.Localidad("Almería");
    QSignalSpy estado(&ventana.Controlador().DameFormulario(), &TforProgramas::estado);
    ventana.Pulsar("btnCalDiaExt");
    QVERIFY(estado.last().at(0).toString().startsWith(QStringLiteral("No se pudieron escribir")));
    QVERIFY(ventana.Buscar<QTabWidget>("pcProgramas").isTabVisible(2));
    QVERIFY(marco_->mensajes.apuntes.empty());
  }

  void trasUnFalloLaPestanaQuedaEscondidaYNoSeEscribeNada() {
    const Ventana ventana = Calculada();
    const auto resultados = marco_->datos.Directorio() / "Resultados";
    std::filesystem::remove(marco_->datos.Directorio() / "Meteo/GDR.TXT");
    std::filesystem::remove(resultados / "extreCal.met");
    std::filesystem::remove(resultados / "extreRef.met");
    ventana.Pulsar("btnCalDiaExt");
    QCOMPARE(marco_->mensajes.apuntes.size(), 1U);
    QVERIFY(!ventana.Buscar<QTabWidget>("pcProgramas").isTabVisible(2));
    QVERIFY(std::filesystem::is_empty(resultados));
    // Sin la falta, el siguiente cálculo vuelve a enseñarla.
    marco_->datos.Directorio().Escribir("Meteo/GDR.TXT", DatosPrueba::RegistroGdr("Almeria X 36.84 0 0 10"));
    ventana.Pulsar("btnCalDiaExt");
    QVERIFY(ventana.Buscar<QTabWidget>("pcProgramas").isTabVisible(2));
  }

  void otraLocalidadEscondeLosResultadosDeLaAnterior() {
    const Ventana ventana = Calculada();
    ventana.Localidad("Níjar");
    const auto &paginas = ventana.Buscar<QTabWidget>("pcProgramas");
    QVERIFY(!paginas.isTabVisible(2));
    QCOMPARE(paginas.currentIndex(), 1);
    QCOMPARE(Lista(ventana).count(), 0);
    for (const Grafico *grafico : Graficos(ventana)) QCOMPARE(grafico->NumeroSeries(), 0);
  }

  void cadaVentanaTieneSusDias() {
    const Ventana una = Calculada();
    marco_->marco.mnuNuevoClick();
    const Ventana otra = marco_->Numero(1);
    QVERIFY(!otra.Buscar<QTabWidget>("pcProgramas").isTabVisible(2));
    otra.Provincia("Granada");
    otra.Localidad("Granada");
    otra.Pulsar("btnCalDiaExt");
    QVERIFY(otra.Buscar<QTabWidget>("pcProgramas").isTabVisible(2));
    QVERIFY(una.Buscar<QPlainTextEdit>("edDerivacion").toPlainText().startsWith(QStringLiteral("Almería")));
  }

  void elMarcoVaciaElInformeAlEmpezar() {
    const auto ruta = marco_->datos.Directorio().Escribir("salida.txt", "de otra ejecución\n");
    const TforPrincipal otro;
    QVERIFY(std::filesystem::exists(RutaDesdeTexto(ruta)));
    QCOMPARE(Contenido(RutaDesdeTexto(ruta)), std::string());
  }

private:
  [[nodiscard]] Ventana Calculada(const char *provincia = "Almería",
                                  const char *localidad = "Almería") const {
    const Ventana ventana = marco_->Numero(0);
    ventana.Provincia(provincia);
    ventana.Localidad(localidad);
    ventana.Pulsar("btnCalDiaExt");
    return ventana;
  }
  [[nodiscard]] static QListWidget &Lista(const Ventana &ventana) {
    return ventana.Buscar<QListWidget>("CheckListBox1");
  }
  [[nodiscard]] static std::array<Grafico *, 2> Graficos(const Ventana &ventana) {
    return {&ventana.Buscar<Grafico>("graDiaExtCal"), &ventana.Buscar<Grafico>("graDiaExtRef")};
  }
  static void Marcar(const Ventana &ventana, int elemento, bool marcado = true) {
    Lista(ventana).item(elemento)->setCheckState(marcado ? Qt::Checked : Qt::Unchecked);
  }

  std::optional<MarcoPrueba> marco_;
};

TESMO_PRUEBA_QT(PruebaResultadosExtremos)
#include "Diasextremos_prueba.moc"
