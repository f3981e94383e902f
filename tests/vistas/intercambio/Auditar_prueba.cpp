// Auditar ficheros climáticos desde la ventana.

#include "tests/vistas/intercambio/Manejoimportar.h"
#include "vistas/intercambio/Dialogoauditar.h"
#include "vistas/intercambio/Dialogomapa.h"

#include <QTimer>

using namespace tesmo;
using namespace tesmo::prueba;

class PruebaAuditar : public QObject, private ManejoImportar {
  Q_OBJECT

private slots:
  void init() { marco_.emplace(); }
  void cleanup() { marco_.reset(); }

  void auditarPreguntaPorLosFicheros() {
    QCOMPARE(AlRechazar([this] { marco_->Orden("mnuAuditar").trigger(); }), QStringLiteral("QFileDialog"));
    QVERIFY(marco_->marco.findChild<DialogoAuditar *>() == nullptr);
  }

  void laAuditoriaEnsenaUnaPaginaPorFicheroYSeGuarda() {
    DialogoAuditar dialogo({});
    dialogo.Auditar({Escribir("uno.epw", LineasEpw()), Escribir("dos.csv", LineasTmy3())});
    const QString paginas = Pagina(dialogo, "mePagina");
    QCOMPARE(paginas.count(QStringLiteral("Auditoría de fichero climático")), 2);
    QVERIFY(paginas.contains(QStringLiteral("uno.epw")) && paginas.contains(QStringLiteral("dos.csv")));
    QVERIFY(!Control<QPushButton>(dialogo, "btnMapa").isEnabled());
    QVERIFY(dialogo.Guardar(Ruta("auditoria.txt")));
    QCOMPARE(QString::fromStdString(Contenido(Ruta("auditoria.txt").toStdString())), paginas);
  }

  void loQueNoEsDeNingunFormatoSeAuditaConUnMapa() {
    DialogoAuditar dialogo({});
    dialogo.Auditar({Escribir("uno.epw", LineasEpw()), Escribir("dos.txt", LineasDelimitado())});
    const QString sinMapa = Pagina(dialogo, "mePagina");
    const QString mapa =
        QString::fromStdString(marco_->datos.Directorio().Escribir("uno.mapa", MapaDePrueba()));
    QTimer::singleShot(0, this, [&mapa] {
      auto *deMapa = qobject_cast<DialogoMapa *>(QApplication::activeModalWidget());
      if (deMapa == nullptr) return;
      deMapa->AbrirMapa(mapa);
      deMapa->accept();
    });
    Pulsar(dialogo, "btnMapa");
    const QString conMapa = Pagina(dialogo, "mePagina");
    const QStringList antes = sinMapa.split(QStringLiteral("\n\n\n")),
                      ahora = conMapa.split(QStringLiteral("\n\n\n"));
    QVERIFY2(conMapa != sinMapa, qPrintable(conMapa));
    QCOMPARE(ahora.constFirst(), antes.constFirst()); // la del EPW no cambia
    QVERIFY2(conMapa.count(QStringLiteral("8760")) > sinMapa.count(QStringLiteral("8760")),
             qPrintable(conMapa));
    QVERIFY(Control<QPushButton>(dialogo, "btnMapa").isEnabled()); // se puede corregir
  }
};

TESMO_PRUEBA_QT(PruebaAuditar)
#include "Auditar_prueba.moc"
