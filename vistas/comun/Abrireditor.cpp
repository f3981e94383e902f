#include "vistas/comun/Abrireditor.h"

#include "vistas/comun/Lanzarprograma.h"
#include <QDir>
#include <QObject>
#include <QProcess>
#include <QStandardPaths>

namespace tesmo {

namespace {

#ifndef Q_OS_WIN
/// Terminales que aceptan "-e orden argumentos…", el elegido por el usuario del sistema primero.
constexpr const char *TERMINALES[] = {"x-terminal-emulator", "konsole", "xfce4-terminal", "xterm"};
#ifdef Q_OS_MACOS
constexpr const char *ABRIDOR[] = {"open", "-t"};
#else
constexpr const char *ABRIDOR[] = {"xdg-open"};
#endif

QString BuscarTerminal(const EntornoEditor &entorno) {
  for (const char *terminal : TERMINALES) {
    const QString ruta = entorno.buscar(QString::fromLatin1(terminal));
    if (!ruta.isEmpty()) return ruta;
  }
  return {};
}
#endif

} // namespace

EntornoEditor EntornoEditor::DelSistema() {
  return {qEnvironmentVariable("VISUAL"), qEnvironmentVariable("EDITOR"),
          [](const QString &programa) { return QStandardPaths::findExecutable(programa); }};
}

std::vector<QStringList> OrdenesDeEditor(const QString &ruta, const EntornoEditor &entorno) {
#ifdef Q_OS_WIN
  Q_UNUSED(entorno)
  return {{QStringLiteral("notepad.EXE"), QDir::toNativeSeparators(ruta)}};
#else
  std::vector<QStringList> ordenes;
  const QStringList visual = QProcess::splitCommand(entorno.visual);
  if (!visual.isEmpty()) ordenes.push_back(visual + QStringList{ruta});
  const QStringList editor = QProcess::splitCommand(entorno.editor);
  const QString terminal = editor.isEmpty() ? QString() : BuscarTerminal(entorno);
  if (!terminal.isEmpty())
    ordenes.push_back(QStringList{terminal, QStringLiteral("-e")} + editor + QStringList{ruta});
  QStringList abridor;
  for (const char *palabra : ABRIDOR) abridor.append(QString::fromLatin1(palabra));
  if (!entorno.buscar(abridor.front()).isEmpty()) ordenes.push_back(abridor + QStringList{ruta});
  return ordenes;
#endif
}

void AbrirEditor(const QString &ruta, std::function<void(const QString &)> alFallar) {
  for (const QStringList &orden : OrdenesDeEditor(ruta, EntornoEditor::DelSistema())) {
    if (LanzarPrograma(orden, alFallar)) return;
  }
  alFallar(QObject::tr("no hay ningún editor de textos: ponga uno en la variable VISUAL"));
}

} // namespace tesmo
