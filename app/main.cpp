// Tesmo: la aplicación de ventanas.

#include "app/Aplicacion.h"
#include "app/Demostracion.h"
#include "app/Imagenesmanual.h"
#include "app/Presentadorventanas.h"
#include "app/Ventanaprincipal.h"
#include "core/Rutas.h"
#include "intercambio/escritura/Importacion.h"
#include "localidades/Ciudad.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QTextStream>

#include <cstdlib>

namespace {

constexpr int USO_INCORRECTO = 2;

struct Opciones {
  QString demostracion; ///< directorio donde dejarla; vacío: trabajo normal
  QString imagenes;     ///< directorio donde dejar las del manual; vacío: ninguna
  QString base;         ///< directorio de config.ini; vacío: el del programa
};

/// Las rutas son del directorio donde se escribió la orden: se resuelven antes de que la configuración lo
/// cambie.
QString RutaAbsoluta(const QString &ruta) {
  return ruta.isEmpty() ? ruta : QDir::current().absoluteFilePath(ruta);
}

/// Las de Qt que se admiten en la orden; las atiende QApplication y aquí sólo se dejan pasar.
QList<QCommandLineOption> OpcionesDeQt() {
  QList<QCommandLineOption> opciones;
  for (const QString &nombre : {QStringLiteral("platform"), QStringLiteral("style")}) {
    opciones.emplace_back(nombre, QString(), QStringLiteral("VALOR"));
    opciones.back().setFlags(QCommandLineOption::HiddenFromHelp);
  }
  return opciones;
}

/// Se leen antes de abrir la aplicación de ventanas: la ayuda y los errores no necesitan pantalla.
Opciones LeerOpciones(int argc, char **argv) {
  QCoreApplication sinVentanas(argc, argv);
  tesmo::PonTextosDeQt(sinVentanas);
  const QCommandLineOption demostracion(
      QStringLiteral("demostracion"),
      QStringLiteral(
          "Hace el trabajo principal sin esperar a nadie y deja imágenes y resultados en DIRECTORIO."),
      QStringLiteral("DIRECTORIO"));
  const QCommandLineOption imagenes(QStringLiteral("imagenes"),
                                    QStringLiteral("Deja en DIRECTORIO las imágenes del manual."),
                                    QStringLiteral("DIRECTORIO"));
  const QCommandLineOption base(
      QStringLiteral("base"),
      QStringLiteral("Directorio donde está config.ini (por defecto, el del programa)."),
      QStringLiteral("DIRECTORIO"));
  const QCommandLineOption ayuda({QStringLiteral("h"), QStringLiteral("help"), QStringLiteral("ayuda")},
                                 QStringLiteral("Enseña esta ayuda."));
  QCommandLineParser lector;
  lector.setApplicationDescription(
      QStringLiteral("Año meteorológico típico, aire húmedo y sol para la edificación."));
  lector.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
  lector.addOptions(QList<QCommandLineOption>{demostracion, imagenes, base, ayuda} + OpcionesDeQt());
  if (!lector.parse(QCoreApplication::arguments()) || !lector.positionalArguments().isEmpty()) {
    QTextStream(stderr) << (lector.errorText().isEmpty()
                                ? QStringLiteral("Argumento de más: ") + lector.positionalArguments().value(0)
                                : lector.errorText())
                        << "\n";
    std::exit(USO_INCORRECTO);
  }
  if (lector.isSet(ayuda)) {
    QTextStream(stdout) << lector.helpText();
    std::exit(EXIT_SUCCESS);
  }
  return {RutaAbsoluta(lector.value(demostracion)), RutaAbsoluta(lector.value(imagenes)),
          RutaAbsoluta(lector.value(base))};
}

/// Antes de que nadie lea las localidades: una importación que quedó a medias se termina o se deshace.
void AcabarImportacion() {
  const std::string hecho = tesmo::RecuperarImportacion(tesmo::DameConfiguracion().RutaMeteo(""));
  if (!hecho.empty()) QTextStream(stderr) << "Aviso: " << QString::fromStdString(hecho) << "\n";
}

} // namespace

int main(int argc, char **argv) {
  const Opciones opciones = LeerOpciones(argc, argv);
  QApplication aplicacion(argc, argv);
  tesmo::PrepararAplicacion(aplicacion);
  tesmo::PonAvisoLocalidades([](const std::string &aviso) {
    QTextStream(stderr) << "Aviso: " << QString::fromStdString(aviso) << "\n";
  });
  if (!opciones.base.isEmpty()) tesmo::IniciarConfiguracion(opciones.base.toStdString());
  AcabarImportacion();
  if (!opciones.demostracion.isEmpty()) {
    return tesmo::EjecutarDemostracion(opciones.demostracion) ? EXIT_SUCCESS : EXIT_FAILURE;
  }
  if (!opciones.imagenes.isEmpty())
    return tesmo::HacerImagenesDelManual(opciones.imagenes) ? EXIT_SUCCESS : EXIT_FAILURE;
  tesmo::PresentadorVentanas presentador;
  tesmo::DameMensajes().PonPresentador(&presentador);
  tesmo::TforPrincipal marco;
  marco.Presentar();
  const int resultado = QApplication::exec();
  tesmo::DameMensajes().PonPresentador(nullptr);
  return resultado;
}
