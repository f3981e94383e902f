#pragma once

#include <QWidget>

class QTextBrowser;

namespace tesmo {

/// Ventana del manual: una página con sus enlaces, y botones de portada, atrás y adelante.
class VentanaAyuda : public QWidget {
  Q_OBJECT

public:
  explicit VentanaAyuda(QWidget *padre);

  /// Enseña @p pagina (nombre y, si acaso, "#sitio") del manual de @p directorio y se pone delante.
  void Ensenar(const QString &directorio, const QString &pagina);

private:
  QTextBrowser *tbManual_ = nullptr;
};

} // namespace tesmo
