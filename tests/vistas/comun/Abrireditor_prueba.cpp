// Abrir un texto en el editor de la persona: cuál, sin esperar, y qué se dice cuando no se puede.

#include "tests/comun/ventanas/Manejo.h"
#include "vistas/comun/Abrireditor.h"

#include <QElapsedTimer>
#include <QSignalSpy>
#include <QStatusBar>
#include <csignal>
#include <optional>

using namespace tesmo;
using namespace tesmo::prueba;

namespace {

EntornoEditor Entorno(const char *visual, const char *editor, const QStringList &programas) {
  return {QString::fromUtf8(visual), QString::fromUtf8(editor), [programas](const QString &programa) {
            return programas.contains(programa) ? QStringLiteral("/usr/bin/") + programa : QString();
          }};
}

const QString RUTA = QStringLiteral("/datos/mi dia.met");

/// Variable de entorno mientras viva.
class ConVariable {
public:
  ConVariable(const char *nombre, const QByteArray &valor) : nombre_(nombre), anterior_(qgetenv(nombre)) {
    qputenv(nombre, valor);
  }
  ~ConVariable() { qputenv(nombre_, anterior_); }
  ConVariable(const ConVariable &) = delete;
  ConVariable &operator=(const ConVariable &) = delete;

private:
  const char *nombre_;
  QByteArray anterior_;
};

} // namespace

class PruebaAbrirEditor : public QObject {
  Q_OBJECT

private slots:
  void init() { marco_.emplace(); }
  void cleanup() { marco_.reset(); }

  void mandaVisualDespuesEditorEnUnTerminalYAlFinalElEscritorio() {
    const auto ordenes =
        OrdenesDeEditor(RUTA, Entorno("gedit -w", "nano", {"x-terminal-emulator", "xterm", "xdg-open"}));
    QCOMPARE(ordenes.size(), 3U);
    QCOMPARE(ordenes[0], (QStringList{"gedit", "-w", RUTA}));
    QCOMPARE(ordenes[1], (QStringList{"/usr/bin/x-terminal-emulator", "-e", "nano", RUTA}));
    QCOMPARE(ordenes[2], (QStringList{"xdg-open", RUTA}));
  }

  void editorSoloCuentaSiEstaPuestoYHayTerminal() {
    QCOMPARE(OrdenesDeEditor(RUTA, Entorno("", "", {"xterm", "xdg-open"})),
             std::vector<QStringList>{(QStringList{"xdg-open", RUTA})});
    QCOMPARE(OrdenesDeEditor(RUTA, Entorno("", "nano", {"xdg-open"})),
             std::vector<QStringList>{(QStringList{"xdg-open", RUTA})});
    QVERIFY(OrdenesDeEditor(RUTA, Entorno(" ", "nano", {})).empty());
  }

  void antesDeCalcularSeAbreSobreLosFicherosQueAunNoExisten() {
    const QString apuntes = Ruta("apuntes");
    const ConVariable visual("VISUAL", Guion("echo \"$1\" >> '" + apuntes + "'"));
    marco_->Numero(0).Controlador().DameFormulario().Button1Click();
    const std::string resultados = TextoDeRuta(marco_->datos.Directorio() / "Resultados");
    QTRY_COMPARE(Lineas(apuntes), (QStringList{QString::fromStdString(resultados + "/ExtreCal.met"),
                                               QString::fromStdString(resultados + "/ExtreRef.met")}));
    QVERIFY(std::filesystem::is_empty(marco_->datos.Directorio() / "Resultados"));
  }

  void despuesDeCalcularSeAbrenLosEscritos() {
    const QString apuntes = Ruta("apuntes");
    const Ventana ventana = marco_->Numero(0);
    ventana.Localidad("Almería");
    ventana.Pulsar("btnCalDiaExt");
    const ConVariable visual("VISUAL", Guion("printf '%s\\n' \"$(head -c 8 \"$1\")\" >> '" + apuntes + "'"));
    ventana.Pulsar("Button1");
    QTRY_COMPARE(Lineas(apuntes), (QStringList{"Almería", "Almería"}));
  }

  void noEsperaAQueElEditorSeCierre() {
    const QString sigue = Ruta("sigue");
    const QString fin = Ruta("fin");
    const ConVariable visual(
        "VISUAL", Guion("while [ ! -e '" + sigue + "' ]; do sleep 0.05; done; echo \"$1\" >> '" + fin + "'"));
    marco_->Numero(0).Controlador().DameFormulario().Button1Click();
    QVERIFY(!std::filesystem::exists(RutaDesdeTexto(fin.toStdString())));
    marco_->datos.Directorio().Escribir("sigue", "");
    QTRY_COMPARE(Lineas(fin).size(), 2);
  }

  void siElEditorFallaSeDiceEnLaLineaDeEstado() {
    const ConVariable visual("VISUAL", Guion("exit 3"));
    QSignalSpy estado(&marco_->Numero(0).Controlador().DameFormulario(), &TforProgramas::estado);
    marco_->Numero(0).Controlador().DameFormulario().Button1Click();
    QTRY_COMPARE(estado.count(), 2);
    QVERIFY(estado[0][0].toString().contains(QStringLiteral("ExtreCal.met")));
    QVERIFY(estado[0][0].toString().contains(QStringLiteral("código 3")));
  }

  void siNoHayConQueAbrirSeDice() {
    const ConVariable visual("VISUAL", "/no/existe/este-editor");
    const ConVariable editor("EDITOR", "");
    const ConVariable camino("PATH", "/no/existe");
    QSignalSpy estado(&marco_->Numero(0).Controlador().DameFormulario(), &TforProgramas::estado);
    marco_->Numero(0).Controlador().DameFormulario().Button1Click();
    QCOMPARE(estado.count(), 2);
    QVERIFY(estado[1][0].toString().contains(QStringLiteral("no hay ningún editor")));
  }

  void elAvisoDeUnEditorQueSobreviveALaVentanaNoTocaNada() {
    const QString sigue = Ruta("sigue");
    const QString procesos = Ruta("procesos");
    const ConVariable visual(
        "VISUAL",
        Guion("while [ ! -e '" + sigue + "' ]; do sleep 0.05; done; echo $$ >> '" + procesos + "'; exit 3"));
    marco_->Numero(0).Controlador().DameFormulario().Button1Click();
    marco_->marco.mnuCerrarClick();
    QTRY_VERIFY(marco_->marco.Controladores().empty());
    const QString dicho = QStringLiteral("lo último que se dijo");
    marco_->marco.statusBar()->showMessage(dicho);
    marco_->datos.Directorio().Escribir("sigue", "");
    QTRY_COMPARE(Lineas(procesos).size(), 2);
    // Un proceso deja de existir cuando el nuestro recoge su final, que es cuando avisa de él.
    for (const QString &proceso : Lineas(procesos)) QTRY_VERIFY(::kill(proceso.toInt(), 0) != 0);
    QCOMPARE(marco_->marco.statusBar()->currentMessage(), dicho);
  }

private:
  [[nodiscard]] QString Ruta(const std::string &nombre) const {
    return QString::fromStdString(TextoDeRuta(marco_->datos.Directorio() / nombre));
  }
  /// Un guion ejecutable con ese cuerpo, para hacer de editor.
  [[nodiscard]] QByteArray Guion(const QString &cuerpo) const {
    const std::string ruta =
        marco_->datos.Directorio().Escribir("editor.sh", "#!/bin/sh\n" + cuerpo.toStdString() + "\n");
    std::filesystem::permissions(RutaDesdeTexto(ruta), std::filesystem::perms::owner_all);
    return QByteArray::fromStdString(ruta);
  }
  /// Renglones de un fichero, sin depender del orden en que acabaron los dos programas.
  [[nodiscard]] static QStringList Lineas(const QString &ruta) {
    QStringList lineas = QString::fromStdString(Contenido(RutaDesdeTexto(ruta.toStdString())))
                             .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    lineas.sort();
    return lineas;
  }

  std::optional<MarcoPrueba> marco_;
};

TESMO_PRUEBA_QT(PruebaAbrirEditor)
#include "Abrireditor_prueba.moc"
