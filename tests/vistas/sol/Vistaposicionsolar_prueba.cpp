// La página "Posicion solar  ": casillas, momento, caminos del sol, fichero del año, superficie e imagen.

#include "app/Carga.h"
#include "core/Ficheros.h"
#include "core/Formato.h"
#include "meteo/Leermet.h"
#include "solar/Ficheroanual.h"
#include "tests/comun/ventanas/Ventanasolar.h"
#include "vistas/sol/Paginaposicionsolar.h"

#include <QFileDialog>
#include <QGroupBox>

#include <algorithm>
#include <optional>

using namespace tesmo;
using namespace tesmo::prueba;

class PruebaPosicionSolar : public QObject {
  Q_OBJECT

private slots:
  void init() { v_.emplace(); }
  void cleanup() {
    QVERIFY(QApplication::overrideCursor() == nullptr);
    v_.reset();
  }

  void laPestanaEstaEntreLosDiasExtremosYLaCarta() {
    auto &paginas = v_->Control<QTabWidget>("pcProgramas");
    const int sitio = paginas.indexOf(&v_->Control<QWidget>("tsPosicionSolar"));
    QCOMPARE(paginas.tabText(sitio), QStringLiteral("Posicion solar  "));
    QCOMPARE(paginas.tabText(sitio - 1), QStringLiteral("Resultados Dias extremos"));
    QCOMPARE(paginas.tabText(sitio + 1), QStringLiteral("Psicrométrico  "));
  }

  void losControlesTienenSusRotulos() {
    const std::vector<std::pair<const char *, QString>> botones{
        {"btnMomento", "Este momento"}, {"btnDia", "Este día"},    {"btnMeses", "Todos los Meses"},
        {"btnImprimir", "Imprimir"},    {"btnFichero", "GENERAR"}, {"btnAbrirPerfil", "Abrir"},
        {"btnGuardarPerfil", "Guardar"}};
    for (const auto &[nombre, texto] : botones) QCOMPARE(v_->Control<QPushButton>(nombre).text(), texto);
    QCOMPARE(v_->Control<QGroupBox>("gbCalculos").title(), QStringLiteral("Calculo Posiciones Solares"));
    QCOMPARE(v_->Control<QGroupBox>("gbHorizonte").title(), QStringLiteral(" Perfil de horizonte  "));
    QCOMPARE(v_->Control<QGroupBox>("gbSuperficie").title(), QStringLiteral("Superficie Inclinada"));
    QStringList rotulos;
    for (const QLabel *rotulo : v_->Control<QWidget>("tsPosicionSolar").findChildren<QLabel *>())
      rotulos << rotulo->text();
    for (const char *texto : {"Mes", "Dia", "Hora Solar", "Azimuth", "Altura", "Orientación", "Inclinación",
                              "Albedo del terreno"})
      QVERIFY2(rotulos.contains(QString::fromUtf8(texto)), texto);
  }

  void imprimirNoHaceNadaYLoDice() {
    const auto &boton = v_->Control<QPushButton>("btnImprimir");
    QVERIFY(!boton.isEnabled());
    QVERIFY(boton.toolTip().contains(v_->Control<QPushButton>("btnGuardarImagen").text()));
  }

  void lasCasillasEmpiezanEnElReloj() {
    QCOMPARE(v_->Casilla("edMes"), QStringLiteral("6"));
    QCOMPARE(v_->Casilla("edDia"), QStringLiteral("21"));
    QCOMPARE(v_->Casilla("edHora"), Patron(HoraSolarDeReloj(MEDIODIA_DE_JUNIO)));
    QCOMPARE(v_->Casilla("edAcimut"), QString());
    QCOMPARE(v_->Casilla("edAltura"), QString());
  }

  void unaHoraNegativaSeEnsenaDentroDelDiaYElObjetoLaConserva() {
    v_.reset();
    const InstanteLocal madrugada{2025, 1, 15, 0, 30};
    v_.emplace(madrugada);
    const float hora = HoraSolarDeReloj(madrugada);
    QVERIFY(hora < 0.0F);
    float guardada = 0.0F;
    v_->Sol().DameReal("Hora", guardada);
    QCOMPARE(guardada, hora);
    QCOMPARE(v_->Casilla("edHora"), Patron(hora + 24.0F));
  }

  void cargarYActualizarNoCambianLaHoraNegativaDelObjeto() {
    v_.reset();
    v_.emplace(InstanteLocal{2025, 1, 15, 0, 30});
    const auto hora = [this] {
      float valor = 0.0F;
      v_->Sol().DameReal("Hora", valor);
      return valor;
    };
    const auto estado = [this] {
      std::int32_t valor = 0;
      v_->Sol().DameEstado("Hora", valor);
      return valor;
    };
    const float antes = hora();
    const std::int32_t estadoAntes = estado();
    QVERIFY(antes < 0.0F);
    v_->ventana.Localidad("Almería");
    v_->ventana.Pulsar("btnActualizar");
    QCOMPARE(hora(), antes);
    QCOMPARE(estado(), estadoAntes);
    v_->ventana.Pulsar("btnMomento"); // éste sí copia lo que enseña la casilla
    QVERIFY(hora() > 0.0F);
  }

  void unaFechaEquivocadaNoSeDiceDesdeOtraPestana() {
    v_->Teclear("edMes", "13");
    v_->ventana.Localidad("Almería");
    v_->ventana.Pulsar("btnActualizar");
    QVERIFY(v_->mensajes.apuntes.empty());
    QCOMPARE(v_->Casilla("edMes"), QStringLiteral("13"));
    v_->ventana.Pulsar("btnDia");
    QCOMPARE(v_->mensajes.apuntes.size(), std::size_t(1));
  }

  void elMomentoDeDiaEnsenaAcimutYAltura() {
    v_->PonLatitud("36.84");
    v_->PonFecha("6", "21", "12");
    v_->ventana.Pulsar("btnMomento");
    // La declinación del día 172 es 23,45 sen(2π 456/365) = 23,45º: altura 90 − 36,84 + 23,45.
    QCOMPARE(v_->Casilla("edAltura"), Patron(76.61));
    QCOMPARE(v_->Casilla("edAcimut"), Patron(0.0));
    QCOMPARE(v_->Rotulo("lbMomento"), QStringLiteral("¡Es de día!"));
    const auto &momento = v_->Vista().Contenido().momento;
    QVERIFY(momento.has_value());
    QVERIFY(std::abs(momento->altura - 76.61F) < 0.005F);
  }

  void elMomentoDeNocheVaciaLasDosCasillas() {
    v_->PonFecha("6", "21", "12");
    v_->ventana.Pulsar("btnMomento");
    v_->Teclear("edHora", "2");
    v_->ventana.Pulsar("btnMomento");
    QCOMPARE(v_->Casilla("edAcimut"), QString());
    QCOMPARE(v_->Casilla("edAltura"), QString());
    QCOMPARE(v_->Rotulo("lbMomento"), QStringLiteral("¡Es de noche!"));
    QVERIFY(!v_->Vista().Contenido().momento.has_value());
  }

  void losResultadosNuncaVuelvenAlObjeto() {
    v_->PonFecha("6", "21", "9");
    v_->ventana.Pulsar("btnMomento");
    QVERIFY(v_->Casilla("edAltura") != QString());
    v_->ventana.Pulsar("btnMomento");
    float altura = -1.0F;
    v_->Sol().DameReal("Altura", altura);
    QCOMPARE(altura, 0.0F);
    QVERIFY(v_->mensajes.apuntes.empty()); // un acimut negativo daría el mensaje del mínimo
  }

  void elPuntoDelMomentoVaSobreSuCurva() {
    v_->PonFecha("3", "10", "9");
    v_->ventana.Pulsar("btnMeses");
    v_->ventana.Pulsar("btnMomento");
    QCOMPARE(v_->Vista().Contenido().dibujo, DibujoSolar::Meses); // su curva ya estaba a la vista
    v_->Teclear("edDia", "25");
    v_->ventana.Pulsar("btnMomento");
    QCOMPARE(v_->Vista().Contenido().dibujo, DibujoSolar::Dia);
    QVERIFY(v_->Vista().Contenido().titulo.ends_with("Mes = 03, Día = 25"));
    v_->ventana.Pulsar("btnDia");
    QVERIFY(!v_->Vista().Contenido().momento.has_value());
  }

  void laCartaEstaEscondidaHastaElPrimerDibujo() {
    QVERIFY(v_->Control<GraficoSolar>("graPosSol").isHidden());
    QVERIFY(v_->Control<GraficoSolar>("graHueco").isVisible());
    v_->ventana.Pulsar("btnDia");
    QVERIFY(v_->Carta().isVisible());
    QVERIFY(v_->Control<GraficoSolar>("graHueco").isHidden());
  }

  void esteDiaDibujaSuCurvaYEscondeLosMeses() {
    v_->PonLatitud("36.84");
    v_->PonFecha("6", "21");
    v_->ventana.Pulsar("btnMeses");
    v_->ventana.Pulsar("btnDia");
    const ContenidoSolar &contenido = v_->Vista().Contenido();
    QCOMPARE(contenido.dibujo, DibujoSolar::Dia);
    QCOMPARE(contenido.titulo, std::string("Latitud = 36.84, Mes = 06, Día = 21"));
    QVERIFY(v_->Control<QLabel>("stMeses").isHidden());
    const SalidaPuesta horas = v_->Sol().CalcularSalidaPuesta(36.84F, 6, 21);
    QCOMPARE(contenido.dia.front().t, horas.salida + 0.01F);
    QVERIFY(contenido.dia.back().t <= horas.puesta && contenido.dia.back().t > horas.puesta - 0.02F);
    QCOMPARE(contenido.horas[12].size(), std::size_t(1));
    QVERIFY(contenido.horas[4].empty() && contenido.horas[20].empty());
  }

  void todosLosMesesDibujaDoceCurvasYSuOrden() {
    v_->PonLatitud("36.84");
    v_->PonFecha("1", "15");
    v_->ventana.Pulsar("btnMeses");
    const ContenidoSolar &contenido = v_->Vista().Contenido();
    QCOMPARE(contenido.titulo, std::string("Latitud = 36.84, día 15 de todos los meses"));
    for (const CurvaSolar &mes : contenido.meses) QVERIFY(mes.size() > 900); // más de nueve horas de sol
    QCOMPARE(contenido.horas[12].size(), std::size_t(12));
    QVERIFY(v_->Control<QLabel>("stMeses").isVisible());
    QCOMPARE(v_->Rotulo("stMeses"), QStringLiteral("Jun Jul May Ago Abr Sep Mar Oct Feb Nov Ene Dic"));
  }

  void conLatitudCeroLosMesesVanEnElOrdenDelSur() {
    v_->PonLatitud("0");
    v_->ventana.Pulsar("btnMeses");
    QCOMPARE(v_->Rotulo("stMeses"), QStringLiteral("Dic Ene Nov Feb Oct Mar Sep Abr Ago May Jul Jun"));
  }

  void enElPoloEnDiciembreEsteDiaNoDibujaNada() {
    const QSignalSpy estado(&v_->controlador.DameFormulario(), &TforProgramas::estado);
    v_->PonLatitud("89");
    v_->PonFecha("12", "21");
    v_->ventana.Pulsar("btnDia");
    const ContenidoSolar &contenido = v_->Vista().Contenido();
    QVERIFY(contenido.dia.empty());
    for (const CurvaSolar &hora : contenido.horas) QVERIFY(hora.empty());
    QVERIFY(estado.last().at(0).toString().contains(QStringLiteral("no sale")));
    v_->Teclear("edMes", "6");
    v_->ventana.Pulsar("btnDia");
    QVERIFY(estado.last().at(0).toString().contains(QStringLiteral("no se pone")));
  }

  void alDibujarUnDiaSeDicenSalidaYPuesta() {
    const QSignalSpy estado(&v_->controlador.DameFormulario(), &TforProgramas::estado);
    v_->PonLatitud("0");
    v_->ventana.Pulsar("btnDia");
    QVERIFY(estado.last().at(0).toString().contains(Patron(6.0))); // en el ecuador el día dura doce horas
    QVERIFY(estado.last().at(0).toString().contains(Patron(18.0)));
  }

  void enElPoloEnJunioLaCurvaVaDeMenosUnaAVeinticinco() {
    v_->PonLatitud("89");
    v_->PonFecha("6", "21");
    v_->ventana.Pulsar("btnDia");
    const CurvaSolar &curva = v_->Vista().Contenido().dia;
    QCOMPARE(curva.front().t, -1.0F + 0.01F);
    QVERIFY(curva.back().t <= 25.0F && curva.back().t > 24.98F);
    QCOMPARE(curva[1].t, curva[0].t + 0.01F);
  }

  void loQueNoValeSeDiceYQuedaElValorDeFabrica_data() {
    QTest::addColumn<QString>("casilla");
    QTest::addColumn<QString>("texto");
    QTest::addColumn<QString>("mensaje");
    QTest::addColumn<QString>("queda");
    const QString ilegible = QStringLiteral("La casilla \"%1\" contiene un valor incorrecto.\n ");
    QTest::newRow("mes 13") << "edMes"
                            << "13"
                            << "13 > 12 (maximo), valor por defecto: 1"
                            << "1";
    QTest::newRow("día 0") << "edDia"
                           << "0"
                           << "0 < 1 (minimo), valor por defecto: 1"
                           << "1";
    QTest::newRow("hora 25") << "edHora"
                             << "25"
                             << "25.000000 > 24.000000 (máximo), valor por defecto: 0.000000"
                             << "0.00";
    QTest::newRow("mes vacío") << "edMes"
                               << "" << ilegible.arg("Mes") << "1";
    QTest::newRow("día con letras") << "edDia"
                                    << "veinte" << ilegible.arg("Dia") << "1";
    QTest::newRow("dos comas") << "edHora"
                               << "1,2,3" << ilegible.arg("Hora Solar") << "0.00";
    QTest::newRow("albedo 2") << "edAlbedo"
                              << "2"
                              << "2.000000 > 1.000000 (máximo), valor por defecto: 0.200000"
                              << "0.20";
    QTest::newRow("orientación con letras") << "edOrientacion"
                                            << "sur" << ilegible.arg("Orientación") << "0.00";
    QTest::newRow("albedo con letras") << "edAlbedo"
                                       << "gris" << ilegible.arg("Albedo") << "0.20";
  }
  void loQueNoValeSeDiceYQuedaElValorDeFabrica() {
    QFETCH(const QString, casilla);
    QFETCH(const QString, texto);
    QFETCH(const QString, mensaje);
    QFETCH(const QString, queda);
    const ConSeparador punto('.');
    v_->Teclear(casilla.toLatin1().constData(), texto.toUtf8().constData());
    v_->ventana.Pulsar("btnDia");
    QCOMPARE(v_->mensajes.apuntes.size(), std::size_t(1));
    QCOMPARE(Texto(v_->mensajes.apuntes[0].texto), mensaje);
    QCOMPARE(v_->Casilla(casilla.toLatin1().constData()), queda);
    v_->ventana.Pulsar("btnDia"); // ya no hay nada que decir
    QCOMPARE(v_->mensajes.apuntes.size(), std::size_t(1));
  }

  void laHoraAdmiteComaYPunto() {
    v_->PonFecha("6", "21", "10,5");
    v_->ventana.Pulsar("btnMomento");
    const QString coma = v_->Casilla("edAltura");
    v_->Teclear("edHora", "10.5");
    v_->ventana.Pulsar("btnMomento");
    QCOMPARE(v_->Casilla("edAltura"), coma);
    QVERIFY(v_->mensajes.apuntes.empty());
  }

  void unDiaQueElMesNoTieneCuentaEnElSiguiente() {
    v_->PonFecha("2", "31");
    v_->ventana.Pulsar("btnDia");
    const CurvaSolar febrero = v_->Vista().Contenido().dia;
    v_->PonFecha("3", "3");
    v_->ventana.Pulsar("btnDia");
    QVERIFY(febrero == v_->Vista().Contenido().dia);
  }

  void laLatitudEsLaDeLaLocalidadYCambiarlaRehaceElDibujo() {
    v_->ventana.Localidad("Almería");
    v_->ventana.Pulsar("btnMeses");
    QVERIFY(v_->Vista().Contenido().titulo.starts_with("Latitud = 36.84"));
    v_->ventana.Localidad("Níjar");
    QVERIFY(v_->Vista().Contenido().titulo.starts_with("Latitud = 36.97"));
    QCOMPARE(v_->Vista().Contenido().dibujo, DibujoSolar::Meses);
  }

  void cambiarDeLocalidadVaciaElMomentoSinDecirNada() {
    v_->ventana.Localidad("Almería");
    v_->PonFecha("6", "21", "12");
    v_->ventana.Pulsar("btnMomento");
    QVERIFY(!v_->Casilla("edAltura").isEmpty());
    const QSignalSpy estado(&v_->controlador.DameFormulario(), &TforProgramas::estado);
    v_->PonLatitud("40");
    v_->Vista().localidadCambiada();
    QCOMPARE(v_->Casilla("edAcimut"), QString());
    QCOMPARE(v_->Casilla("edAltura"), QString());
    QCOMPARE(v_->Rotulo("lbMomento"), QString());
    QVERIFY(!v_->Vista().Contenido().momento.has_value());
    QVERIFY(v_->Vista().Contenido().titulo.starts_with("Latitud = 40.00")); // se rehace, callando
    QCOMPARE(estado.size(), 0);
    v_->ventana.Pulsar("btnMeses");
    QCOMPARE(estado.size(), 1);
    v_->Vista().localidadCambiada();
    QCOMPARE(estado.size(), 1);
  }

  void generarEscribeElAnioEnElDirectorioBase() {
    v_->PonLatitud("36.84");
    v_->ventana.Pulsar("btnFichero");
    const auto escrito = LeerFicheroEntero(v_->datos.Directorio() / "FPS.TXT");
    QVERIFY(escrito.has_value());
    QCOMPARE(*escrito, TextoAnual(36.84F));
    QCOMPARE(std::count(escrito->begin(), escrito->end(), '\n'), 8761);
    QVERIFY(escrito->starts_with("Latitud = 36.840000\n1 1 1 0.000000 0.000000 90.000000\n"));
  }

  void siElFicheroDelAnioNoSePuedeEscribirEsElMensajeCero() {
    std::filesystem::create_directory(v_->datos.Directorio() / "FPS.TXT");
    v_->ventana.Pulsar("btnFichero");
    QCOMPARE(v_->mensajes.apuntes.size(), std::size_t(1));
    QCOMPARE(v_->mensajes.apuntes[0].texto,
             "No se puede abrir el fichero: " + v_->Fichero("FPS.TXT") + ".\n");
    QCOMPARE(v_->mensajes.apuntes[0].titulo, std::string("Información"));
  }

  void laSuperficieEsLaDeLaSeleccionYLlegaALaIrradiancia() {
    QCOMPARE(v_->Casilla("edInclinacion"), QStringLiteral("90"));
    QCOMPARE(v_->Casilla("edOrientacion"), QStringLiteral("0"));
    QCOMPARE(v_->Casilla("edAlbedo"), QStringLiteral("0.2"));
    v_->ventana.Localidad("Almería");
    v_->Teclear("edInclinacion", "30");
    v_->Teclear("edOrientacion", "-45");
    const Seleccion::Superficie &superficie = v_->controlador.DameSeleccion().DameSuperficie();
    QCOMPARE(superficie.inclinacion, std::string("30"));
    QCOMPARE(superficie.orientacion, std::string("-45"));
    v_->ventana.Pulsar("btnActualizar");
    float orientacion = 0.0F;
    v_->Sol().DameReal("Orientación", orientacion);
    QCOMPARE(v_->controlador.DameLeerMet()->Superficie().inclinacion, 30.0F);
    QCOMPARE(orientacion, -45.0F);
  }

  void unaSuperficieFueraDeLimitesSeDiceUnaSolaVez() {
    v_->ventana.Localidad("Almería");
    v_->Teclear("edInclinacion", "200");
    v_->ventana.Pulsar("btnActualizar");
    QCOMPARE(v_->mensajes.apuntes.size(), std::size_t(1));
    QCOMPARE(v_->Casilla("edInclinacion"), Patron(90.0));
    QCOMPARE(Texto(v_->controlador.DameSeleccion().DameSuperficie().inclinacion), Patron(90.0));
  }

  void unaCasillaDeSuperficieVaciaEsElMensaje58() {
    v_->ventana.Localidad("Almería");
    v_->Teclear("edAlbedo", "");
    v_->ventana.Pulsar("btnActualizar");
    QCOMPARE(v_->mensajes.apuntes.size(), std::size_t(1));
    QCOMPARE(v_->mensajes.apuntes[0].texto,
             std::string("La casilla de Albedo no tiene ningún valor. Introduzca uno.\n "));
    QCOMPARE(v_->Casilla("edAlbedo"), QString());
  }

  void laImagenLlevaTituloOrdenYCardinales() {
    v_->PonLatitud("36.84");
    v_->ventana.Pulsar("btnMeses");
    const QString ruta = QString::fromStdString(v_->Fichero("carta.svg"));
    v_->ventana.Pulsar("btnGuardarImagen");
    auto *dialogo = v_->Control<QWidget>("tsPosicionSolar").findChild<QFileDialog *>("sdGuardarCartaSolar");
    QVERIFY(dialogo != nullptr);
    emit dialogo->fileSelected(ruta);
    const auto svg = LeerFicheroEntero(v_->datos.Directorio() / "carta.svg");
    QVERIFY(svg.has_value());
    for (const char *texto : {"de todos los meses", "Jun Jul May", ">S<", ">E<", ">O<", ">N<", "Acimut Solar",
                              "Altura Solar", "12 h"})
      QVERIFY2(QString::fromStdString(*svg).remove(' ').remove('\n').contains(
                   QString::fromUtf8(texto).remove(' ')),
               texto);
    QVERIFY(v_->Vista().GuardarImagen(QString::fromStdString(v_->Fichero("carta.png"))));
    QVERIFY(v_->Vista().GuardarImagen(QString::fromStdString(v_->Fichero("carta.pdf"))));
    QVERIFY(!v_->Vista().GuardarImagen(QString::fromStdString(v_->Fichero("no/hay/carta.png"))));
  }

  void cadaDibujoEnsenaSoloLoSuyo() {
    v_->PonFecha("6", "21");
    v_->ventana.Pulsar("btnDia");
    const QImage dia = v_->Carta().Imagen(1.0);
    v_->ventana.Pulsar("btnMeses");
    QVERIFY(v_->Carta().Imagen(1.0) != dia);
    v_->ventana.Pulsar("btnDia");
    QCOMPARE(v_->Carta().Imagen(1.0), dia);
  }

  void laVentanaSePuedeCerrarConLaPestanaDelante() {
    v_->ventana.Pulsar("btnMeses");
    v_->controlador.DameFormulario().close();
    v_.reset();
    v_.emplace();
  }

private:
  static QString Patron(double valor) { return Texto(FormatearPatron(valor, "0.00")); }

  std::optional<VentanaSolar> v_;
};

TESMO_PRUEBA_QT(PruebaPosicionSolar)
#include "Vistaposicionsolar_prueba.moc"
