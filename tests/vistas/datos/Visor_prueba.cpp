// La página "Visualizar datos": casillas, series, ejes y colores.

#include "app/Programa.h"
#include "app/Seleccion.h"
#include "meteo/Leermet.h"
#include "tests/comun/ventanas/Manejo.h"
#include "vistas/colores/Configuracion.h"
#include "vistas/comun/Panelseleccion.h"
#include "vistas/comun/Textoqt.h"
#include "vistas/datos/Paginaentorno.h"
#include "vistas/datos/Vistaentorno.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QIcon>
#include <QPushButton>
#include <QTabWidget>
#include <filesystem>
#include <optional>
#include <set>

using namespace tesmo;
using namespace tesmo::prueba;

namespace {

const QStringList CLAVES{"ts",     "rd",      "rdif", "w",       "vv",     "dv",  "cenith",
                         "altura", "azimuth", "tc",   "tr",      "th",     "hr",  "entalpia",
                         "ve",     "ce",      "dn",   "directa", "difusa", "ref", "global"};

struct CasillaEsperada {
  const char *nombre;
  const char *rotulo;
};

/// Las 21 casillas, en el orden de sus series.
constexpr CasillaEsperada CASILLAS[] = {
    {"cbTS", "Temperatura seca (ºC)"},
    {"cbRSDr", "Radiación solar directa (W/m²)"},
    {"cbRSDf", "Radiación solar difusa (W/m²)"},
    {"cbHA", "Humedad absoluta (g/kg)"},
    {"cbVV", "Velocidad del viento (m/s)"},
    {"cbDV", "Dirección del viento (º N)"},
    {"cbC", "Cenith (º)"},
    {"cbAl", "Altura (º)"},
    {"cbAz", "Azimuth (º)"},
    {"cbTC", "Temperatura de cielo (ºC)"},
    {"cbTR", "Temperatura de rocío (ºC)"},
    {"cbTH", "Temperatura húmeda (ºC)"},
    {"cbHR", "Humedad relativa (%)"},
    {"cbE", "Entalpía (J/kg)"},
    {"cbVE", "Volumen específico (m³/kg)"},
    {"cbCE", "Calor específico (J/(kg K))"},
    {"cbDN", "Directa normal (W/m²)"},
    {"cbDr", "Directa (W/m²)"},
    {"cbDf", "Difusa (W/m²)"},
    {"cbR", "Reflejada (W/m²)"},
    {"cbG", "Global (W/m²)"},
};

/// Centro de la entrada @p i de la leyenda, que reparte el ancho en columnas iguales.
QPoint CentroDeEntrada(const Grafico &grafico, int i) {
  const int ancho = grafico.width() / static_cast<int>(grafico.Leyenda().size());
  return {i * ancho + 20, 8};
}

} // namespace

class PruebaVisor : public QObject {
  Q_OBJECT

private slots:
  void init() { marco_.emplace(); }
  void cleanup() { marco_.reset(); }

  void lasCasillasVanEnSusTresGruposConSuRotulo() {
    const Ventana ventana = marco_->Numero(0);
    for (const auto &[nombre, rotulo] : CASILLAS) {
      QCOMPARE(ventana.Casilla(nombre).text(), QString::fromUtf8(rotulo));
    }
    const auto grupo = [&](const char *casilla) {
      return qobject_cast<QGroupBox *>(ventana.Casilla(casilla).parentWidget())->title();
    };
    QCOMPARE(grupo("cbTS"), QStringLiteral("Magnitudes básicas"));
    QCOMPARE(grupo("cbTH"), QStringLiteral("Magnitudes psicrométricas"));
    QCOMPARE(grupo("cbG"), QStringLiteral("Magnitudes radiación"));
    const auto casillas = ventana.Buscar<QWidget>("tsDatosGenerales").findChildren<QCheckBox *>();
    QCOMPARE(casillas.size(), 21 + 1); // y la de los trazos
    for (const QCheckBox *casilla : casillas) QVERIFY(!casilla->isChecked());
    QCOMPARE(ventana.Buscar<QTabWidget>("pcProgramas").tabText(0), QStringLiteral("Visualizar datos"));
    QCOMPARE(ventana.Buscar<QPushButton>("btnSimulacion").text().remove(QLatin1Char('&')),
             QStringLiteral("Visualizar"));
  }

  void cadaCasillaLlevaLaMuestraDeSuColor() {
    const Ventana ventana = marco_->Numero(0);
    for (std::size_t i = 0; i < NUMERO_MAGNITUDES_VISOR; ++i) {
      const std::string nombre = "cb" + std::string(MAGNITUDES[i].codigo);
      const QCheckBox &casilla = ventana.Casilla(nombre.c_str());
      const QImage muestra = casilla.icon().pixmap(casilla.iconSize()).toImage();
      QCOMPARE(muestra.pixelColor(muestra.rect().center()), Color(MAGNITUDES[i].color));
    }
  }

  void sinFicheroDeColoresSonLosDeFabrica() {
    QVERIFY(!std::filesystem::exists(marco_->datos.Directorio() / "tesmo.inp"));
    const Ventana ventana = marco_->Numero(0);
    ventana.Localidad("Almería");
    ventana.Pulsar("btnSimulacion");
    QCOMPARE(ventana.Chart().Serie(0).color, QColor("#FF8080"));
    QCOMPARE(ventana.Chart().Serie(20).color, QColor("#DA9BDB"));
  }

  void deFabricaSeDibujan24PuntosPorSerie() {
    const Ventana ventana = marco_->Numero(0);
    ventana.Localidad("Almería");
    ventana.Pulsar("btnSimulacion");
    const Grafico &grafico = ventana.Chart();
    QCOMPARE(grafico.NumeroSeries(), 21);
    for (int i = 0; i < 21; ++i) {
      QCOMPARE(grafico.NumeroPuntos(i), 24);
      QCOMPARE(grafico.Serie(i).clave, CLAVES[i]);
      QCOMPARE(grafico.Serie(i).grosor, 2.0);
      QCOMPARE(grafico.Serie(i).lado, LadoEje::Izquierdo);
      QCOMPARE(grafico.Serie(i).color, Color(MAGNITUDES[static_cast<std::size_t>(i)].color));
    }
    for (int k = 0; k < 24; ++k) {
      QCOMPARE(grafico.Punto(0, k),
               QPointF(k + 1, DatosPrueba::TemperaturaSeca(k, DatosPrueba::BASE_ALMERIA)));
    }
    QCOMPARE(grafico.Punto(3, 0).y(), double(0.007F * 1000.0F));
  }

  void cadaSerieDibujaLoQueElLectorDaPorSuRotulo() {
    const Ventana ventana = marco_->Numero(0);
    ventana.Localidad("Almería");
    ventana.Poner("csMesFin", 7);
    ventana.Poner("csMesIni", 7);
    ventana.Pulsar("btnSimulacion");
    const Grafico &grafico = ventana.Chart();
    std::set<std::vector<float>> distintas;
    for (int i = 0; i < 21; ++i) {
      std::vector<float> valores(24, -1.0F);
      ventana.Controlador().DameLeerMet()->DameSerie(CASILLAS[i].rotulo, valores.data());
      QCOMPARE(grafico.NumeroPuntos(i), 24);
      QCOMPARE(grafico.Serie(i).rotulo, QString::fromUtf8(CASILLAS[i].rotulo));
      for (int k = 0; k < 24; ++k) {
        QCOMPARE(grafico.Punto(i, k), QPointF(k + 1, valores[static_cast<std::size_t>(k)]));
      }
      distintas.insert(valores);
    }
    QVERIFY(distintas.size() > 15); // hay radiaciones que coinciden, pero no todo es lo mismo
  }

  void unaSerieSinDerivarNoRepiteLaAnterior() {
    FabricaMotores fabrica = FabricaMotores::DeLaAplicacion();
    fabrica.psicro = {}; // sin él no se deriva nada
    Programa programa(fabrica);
    Seleccion seleccion;
    PaginaEntorno pagina;
    PanelSeleccion panel;
    Vistaentorno vista(pagina, panel, programa, seleccion, DameTablaDeColores());
    seleccion.PonProvincia("Almería");
    seleccion.PonLocalidad("Almería");
    QVERIFY(vista.visualizar());
    for (int k = 0; k < 24; ++k) {
      QCOMPARE(pagina.DameGrafico().Punto(6, k).y(), k >= 7 && k <= 16 ? 50.0 : 90.0); // cenit, del fichero
      QCOMPARE(pagina.DameGrafico().Punto(7, k).y(), 0.0);                             // altura, sin derivar
    }
  }

  void visualizarSinCasillasConstruyeLas21YNoMuestraNinguna() {
    const Ventana ventana = marco_->Numero(0);
    ventana.Localidad("Almería");
    ventana.Pulsar("btnSimulacion");
    QCOMPARE(ventana.Chart().NumeroSeries(), 21);
    for (int i = 0; i < 21; ++i) QVERIFY(!ventana.Chart().Serie(i).visible);
    QVERIFY(ventana.Chart().Leyenda().isEmpty());
    QVERIFY(marco_->mensajes.apuntes.empty());
  }

  void elAnioEnteroDa8760Puntos() {
    const Ventana ventana = marco_->Numero(0);
    ventana.Localidad("Almería");
    ventana.PonAnioEntero();
    ventana.Pulsar("btnSimulacion");
    for (int i = 0; i < 21; ++i) QCOMPARE(ventana.Chart().NumeroPuntos(i), 8760);
    QCOMPARE(ventana.Chart().Punto(5, 8759), QPointF(8760.0, DatosPrueba::DireccionViento(8759)));
  }

  void unPeriodoEnMedioDelAnioEmpiezaEnLaHoraUno() {
    const Ventana ventana = marco_->Numero(0);
    ventana.Localidad("Almería");
    ventana.Poner("csMesFin", 7);
    ventana.Poner("csMesIni", 7);
    ventana.Poner("csHorIni", 13);
    ventana.Pulsar("btnSimulacion");
    QCOMPARE(ventana.Chart().NumeroPuntos(5), 12);
    QCOMPARE(ventana.Chart().Punto(5, 0), QPointF(1.0, DatosPrueba::DireccionViento(181 * 24 + 12)));
  }

  void lasCasillasMuestranYOcultanSinRehacer() {
    const Ventana ventana = marco_->Numero(0);
    ventana.Localidad("Almería");
    ventana.Marcar("cbTS");
    ventana.Pulsar("btnSimulacion");
    QCOMPARE(ventana.Chart().Leyenda(), QStringList{"ts: Temperatura seca (ºC)"});
    ventana.Marcar("cbHR");
    QVERIFY(ventana.Chart().Serie(12).visible);
    QCOMPARE(ventana.Chart().Leyenda().size(), 2);
    ventana.Marcar("cbTS", false);
    QCOMPARE(ventana.Chart().Leyenda(), QStringList{"hr: Humedad relativa (%)"});
    QCOMPARE(ventana.Chart().TituloEje(LadoEje::Izquierdo), QStringLiteral("Humedad relativa (%)"));
  }

  void elMenuDeLaCasillaPoneLaVariableEnElEjeDerecho() {
    const Ventana ventana = marco_->Numero(0);
    ventana.Localidad("Almería");
    ventana.Marcar("cbTS");
    ventana.Marcar("cbE");
    ventana.Pulsar("btnSimulacion");
    QVERIFY(!ventana.Chart().EjeALaVista(LadoEje::Derecho));
    ElegirEnMenu(ventana.Casilla("cbE"), QPoint(5, 5), "acEjeDerecho");
    QCOMPARE(ventana.Chart().Serie(13).lado, LadoEje::Derecho);
    QVERIFY(ventana.Chart().EjeALaVista(LadoEje::Derecho));
    QCOMPARE(ventana.Chart().TituloEje(LadoEje::Derecho), QStringLiteral("Entalpía (J/kg)"));
    QVERIFY(ventana.Chart().Limites(LadoEje::Izquierdo).maximo < 100.0);
    QVERIFY(ventana.Chart().Limites(LadoEje::Derecho).maximo > 10000.0);
    ventana.Pulsar("btnSimulacion"); // la elección es de la variable, no de la serie
    QCOMPARE(ventana.Chart().Serie(13).lado, LadoEje::Derecho);
    ElegirEnMenu(ventana.Casilla("cbE"), QPoint(5, 5), "acEjeDerecho");
    QCOMPARE(ventana.Chart().Serie(13).lado, LadoEje::Izquierdo);
  }

  void elMenuReparteLosEjesPorUnidad() {
    const Ventana ventana = marco_->Numero(0);
    ventana.Localidad("Almería");
    ventana.Marcar("cbTS");
    ventana.Marcar("cbE");
    ventana.Pulsar("btnSimulacion");
    ElegirEnMenu(ventana.Casilla("cbTS"), QPoint(5, 5), "acEjesPorUnidad");
    QVERIFY(ventana.Chart().Serie(0).lado != ventana.Chart().Serie(13).lado);
  }

  void elMenuDeLaLeyendaHaceLoMismo() {
    const Ventana ventana = marco_->Numero(0);
    ventana.Localidad("Almería");
    ventana.Marcar("cbTS");
    ventana.Marcar("cbHR");
    ventana.Pulsar("btnSimulacion");
    QWidget &trazo = *ventana.Chart().findChild<QWidget *>(QStringLiteral("trazo"));
    ElegirEnMenu(trazo, CentroDeEntrada(ventana.Chart(), 1), "acEjeDerecho");
    QCOMPARE(ventana.Chart().Serie(12).lado, LadoEje::Derecho);
    QCOMPARE(ventana.Chart().Serie(0).lado, LadoEje::Izquierdo);
  }

  void ejesPorUnidadReparteDeUnaVez() {
    const Ventana ventana = marco_->Numero(0);
    ventana.Localidad("Almería");
    for (const char *casilla : {"cbTS", "cbTH", "cbE"}) ventana.Marcar(casilla);
    ventana.Pulsar("btnSimulacion");
    ventana.Pulsar("btnEjesPorUnidad");
    QCOMPARE(ventana.Chart().Serie(0).lado, LadoEje::Izquierdo);
    QCOMPARE(ventana.Chart().Serie(11).lado, LadoEje::Izquierdo);
    QCOMPARE(ventana.Chart().Serie(13).lado, LadoEje::Derecho);
    QCOMPARE(ventana.Chart().Serie(9).lado, LadoEje::Izquierdo); // sin marcar, pero de la misma unidad
    QCOMPARE(ventana.Chart().TituloEje(LadoEje::Izquierdo), QStringLiteral("ºC"));
  }

  void ejesPorUnidadAntesDeVisualizarRepartePorLosValores() {
    const Ventana ventana = marco_->Numero(0);
    ventana.Localidad("Almería");
    for (const char *casilla : {"cbTS", "cbHR", "cbE"}) ventana.Marcar(casilla);
    ventana.Pulsar("btnEjesPorUnidad");
    ventana.Pulsar("btnSimulacion");
    const Grafico &grafico = ventana.Chart();
    QCOMPARE(grafico.Serie(0).lado, LadoEje::Izquierdo);
    QCOMPARE(grafico.Serie(12).lado, LadoEje::Izquierdo);
    QCOMPARE(grafico.Serie(13).lado, LadoEje::Derecho);
    ElegirEnMenu(ventana.Casilla("cbHR"), QPoint(5, 5), "acEjeDerecho");
    ventana.Pulsar("btnSimulacion"); // el reparto ya se hizo: no deshace lo elegido a mano
    QCOMPARE(grafico.Serie(12).lado, LadoEje::Derecho);
  }

  void elegirUnEjeAManoAnulaElRepartoPendiente() {
    const Ventana ventana = marco_->Numero(0);
    ventana.Localidad("Almería");
    for (const char *casilla : {"cbTS", "cbHR", "cbE"}) ventana.Marcar(casilla);
    ventana.Pulsar("btnEjesPorUnidad");
    ElegirEnMenu(ventana.Casilla("cbHR"), QPoint(5, 5), "acEjeDerecho");
    ventana.Pulsar("btnSimulacion");
    QCOMPARE(ventana.Chart().Serie(12).lado, LadoEje::Derecho);
    QCOMPARE(ventana.Chart().Serie(13).lado, LadoEje::Izquierdo);
  }

  void dosVentanasNoSeMezclan() {
    marco_->marco.mnuNuevoClick();
    const Ventana una = marco_->Numero(0);
    const Ventana otra = marco_->Numero(1);
    una.Localidad("Almería");
    una.Pulsar("btnSimulacion");
    otra.Provincia("Granada");
    otra.Localidad("Granada");
    otra.Poner("csHorFin", 6);
    otra.Pulsar("btnSimulacion");
    QCOMPARE(una.Chart().NumeroPuntos(0), 24);
    QCOMPARE(otra.Chart().NumeroPuntos(0), 6);
    una.Pulsar("btnActualizar"); // pregunta por su localidad, no por la última elegida
    QCOMPARE(una.Chart().Punto(0, 0).y(), double(DatosPrueba::BASE_ALMERIA));
    QCOMPARE(otra.Chart().Punto(0, 0).y(), double(DatosPrueba::BASE_GRANADA));
    QCOMPARE(una.Titulo(), QStringLiteral("Almería-Almería"));
    QCOMPARE(otra.Titulo(), QStringLiteral("Granada-Granada"));
  }

  void elOrdenDeTabulacionEsElDeLectura() {
    const Ventana ventana = marco_->Numero(0);
    QWidget *control = &ventana.Casilla("cbTS");
    QStringList orden;
    do { // las páginas que no están delante no cuentan
      const bool llega = control->isVisible() && control->focusPolicy() & Qt::TabFocus;
      if (llega && !control->objectName().startsWith(QLatin1String("qt_")))
        orden.append(control->objectName());
      control = control->nextInFocusChain();
    } while (control != &ventana.Casilla("cbTS"));
    const QStringList esperado{"cbTS",       "cbG",          "btnSimulacion", "btnEjesPorUnidad",
                               "graEntorno", "cbProvincias", "cbLocalidades", "csMesIni",
                               "csDiaIni",   "csHorIni",     "csMesFin",      "csDiaFin",
                               "csHorFin",   "btnActualizar"};
    qsizetype anterior = -1;
    for (const QString &nombre : esperado) {
      QVERIFY2(orden.indexOf(nombre) > anterior, qPrintable(nombre + " en " + orden.join(' ')));
      anterior = orden.indexOf(nombre);
    }
  }

private:
  std::optional<MarcoPrueba> marco_;
};

TESMO_PRUEBA_QT(PruebaVisor)
#include "Visor_prueba.moc"
