#pragma once

#include "tests/comun/ventanas/Manejo.h"

#include <QFileDialog>
#include <QPushButton>
#include <QTabWidget>

#include <optional>

namespace tesmo::prueba {

inline constexpr const char *LINEA_DE_SUPERFICIE =
    "Orientación: 0.000000  Inclinación: 90.000000 Albedo: 0.200000\n";

/// La pestaña "Archivos horarios" de una ventana recién abierta, y lo que una persona hace en ella.
class ManejoArchivosHorarios {
protected:
  void Abrir() {
    marco_.emplace();
    ventana_.emplace(marco_->Numero(0));
    auto &paginas = ventana_->Buscar<QTabWidget>("pcProgramas");
    paginas.setCurrentWidget(&ventana_->Buscar<QWidget>("tsArchivosHorarios"));
    punto_.emplace('.');
  }
  void Soltar() {
    QVERIFY(QApplication::overrideCursor() == nullptr);
    punto_.reset();
    ventana_.reset();
    marco_.reset();
  }

  void Elegir(const std::vector<const char *> &casillas) const {
    for (const char *casilla : casillas) ventana_->Marcar(casilla);
  }
  [[nodiscard]] QFileDialog *Dialogo() const {
    return ventana_->Controlador().DameFormulario().findChild<QFileDialog *>(QStringLiteral("sdGuardarRes"));
  }
  QFileDialog *Pedir() const {
    ventana_->Pulsar("btnEscribir");
    if (Dialogo() == nullptr) qFatal("no se abrió sdGuardarRes");
    return Dialogo();
  }
  void Cerrar() const { delete Dialogo(); }
  /// Pulsa "Escribir", elige un fichero del directorio base (sin extensión) y devuelve lo escrito.
  std::string Escribir(const char *nombre) const {
    auto *dialogo = Pedir();
    dialogo->setDirectory(Ruta(""));
    dialogo->selectFile(QString::fromLatin1(nombre));
    QMetaObject::invokeMethod(dialogo, "accept");
    return Contenido(marco_->datos.Directorio() / (std::string(nombre) + ".met"));
  }
  [[nodiscard]] QString Ruta(const char *nombre) const {
    return QString::fromStdString(TextoDeRuta(marco_->datos.Directorio() / nombre));
  }

  std::optional<MarcoPrueba> marco_;
  std::optional<Ventana> ventana_;
  std::optional<ConSeparador> punto_;
};

} // namespace tesmo::prueba
