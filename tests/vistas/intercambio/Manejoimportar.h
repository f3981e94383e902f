#pragma once

#include "tests/comun/ventanas/Manejo.h"
#include "tests/intercambio/formatos/Generadorclima.h"
#include "vistas/intercambio/Dialogoimportar.h"

#include <QAction>
#include <QPlainTextEdit>
#include <QPushButton>

#include <optional>

namespace tesmo::prueba {

inline constexpr int ESPERA = 30000; ///< [ms]; con la máquina cargada un fichero tarda

/// El diálogo de importar sobre el marco de prueba, y lo que una persona hace con él.
class ManejoImportar {
protected:
  [[nodiscard]] DialogoImportar &Abrir() const {
    marco_->Orden("mnuImportar").trigger();
    return *marco_->marco.findChild<DialogoImportar *>();
  }
  [[nodiscard]] QString Ruta(const char *nombre) const {
    return QString::fromStdString(TextoDeRuta(marco_->datos.Directorio() / nombre));
  }
  [[nodiscard]] QString Escribir(const char *nombre, const LineasFichero &lineas) const {
    return QString::fromStdString(marco_->datos.Directorio().Escribir(nombre, Unir(lineas)));
  }
  template <typename C>
  [[nodiscard]] static C &Control(const QWidget &dialogo, const char *nombre) {
    auto *control = dialogo.findChild<C *>(QString::fromLatin1(nombre));
    if (control == nullptr) qFatal("falta el control %s", nombre);
    return *control;
  }
  static void Pulsar(const QWidget &dialogo, const char *boton) {
    QTest::mouseClick(&Control<QPushButton>(dialogo, boton), Qt::LeftButton);
  }
  [[nodiscard]] static QString Pagina(const QWidget &dialogo, const char *nombre) {
    return Control<QPlainTextEdit>(dialogo, nombre).toPlainText();
  }

  std::optional<MarcoPrueba> marco_;
};

} // namespace tesmo::prueba
