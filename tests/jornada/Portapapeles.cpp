// Escribe en la salida el texto del portapapeles: así lo leen las pruebas con ratón y teclado de verdad.

#include <QClipboard>
#include <QGuiApplication>
#include <QTextStream>

int main(int argc, char **argv) {
  const QGuiApplication aplicacion(argc, argv);
  QTextStream(stdout) << QGuiApplication::clipboard()->text();
  return 0;
}
