#include "vistas/intercambio/Dialogoimportar.h"

#include "intercambio/auditoria/Textoauditoria.h"
#include "vistas/intercambio/Dialogomapa.h"
#include "vistas/intercambio/Fichaimportar.h"
#include "vistas/comun/Textoqt.h"

#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QTimer>
#include <QUrl>

#include <algorithm>

namespace tesmo {

QStringList FicherosArrastrados(const QDropEvent &suceso) {
  QStringList rutas;
  for (const QUrl &url : suceso.mimeData()->urls()) {
    if (url.isLocalFile() && QFileInfo(url.toLocalFile()).isFile()) rutas << url.toLocalFile();
  }
  return rutas;
}

void DialogoImportar::dragEnterEvent(QDragEnterEvent *suceso) {
  if (!FicherosArrastrados(*suceso).isEmpty()) suceso->acceptProposedAction();
}

void DialogoImportar::dropEvent(QDropEvent *suceso) {
  Anadir(FicherosArrastrados(*suceso));
  suceso->acceptProposedAction();
}

void DialogoImportar::PedirFicheros() {
  Anadir(QFileDialog::getOpenFileNames(this, tr("Importar fichero climático"), {},
                                       tr("Ficheros climáticos (*.epw *.csv *.met *.txt *.dat);;Todos (*)")));
}

void DialogoImportar::Anadir(const QStringList &rutas) {
  for (const QString &ruta : rutas) {
    const std::string utf8 = ruta.toStdString();
    const bool esta = std::ranges::any_of(ficheros_, [&](const auto &f) { return f.ruta == utf8; });
    if (esta) continue;
    ficheros_.emplace_back().ruta = utf8;
    marchas_.push_back({Estado::SinLeer, tr("por leer"), std::nullopt});
    tabla_->insertRow(tabla_->rowCount());
    EnsenarFila(ficheros_.size() - 1);
  }
  if (!Elegido() && !ficheros_.empty()) tabla_->selectRow(0);
  if (!Trabajando() && Contar(Estado::SinLeer) > 0) Empezar(Trabajo::Preparar);
}

void DialogoImportar::AnadirParaReemplazar(const QString &ruta, const PeticionImportacion &peticion) {
  const std::size_t antes = ficheros_.size();
  Anadir({ruta});
  if (ficheros_.size() > antes) marchas_.back().pedida = peticion;
}

void DialogoImportar::Quitar() {
  const auto i = Elegido();
  if (!i || Trabajando()) return;
  ficha_->Poner(nullptr);
  ficheros_.erase(ficheros_.begin() + static_cast<std::ptrdiff_t>(*i));
  marchas_.erase(marchas_.begin() + static_cast<std::ptrdiff_t>(*i));
  tabla_->removeRow(static_cast<int>(*i));
  EnsenarElegido();
}

void DialogoImportar::PedirMapa() {
  const auto i = Elegido();
  if (!i || Trabajando()) return;
  DialogoMapa dialogo(Texto(ficheros_[*i].ruta), ficheros_[*i].mapa.get(), this);
  if (dialogo.exec() != QDialog::Accepted) return;
  ficheros_[*i].mapa = std::make_shared<MapaColumnas>(dialogo.Mapa());
  marchas_[*i].estado = Estado::SinLeer;
  Empezar(Trabajo::Preparar);
}

void DialogoImportar::ProvinciaParaTodos() {
  const auto elegido = Elegido();
  if (!elegido) return;
  for (std::size_t i = 0; i < ficheros_.size(); ++i) {
    if (marchas_[i].estado == Estado::Importado) continue;
    ficheros_[i].peticion.provincia = ficheros_[*elegido].peticion.provincia;
    EnsenarFila(i);
  }
}

void DialogoImportar::Importar() {
  if (Trabajando()) return;
  resumen_.clear();
  for (Marcha &marcha : marchas_) {
    if (marcha.estado == Estado::Fallido) marcha.estado = Estado::Listo; // quizá ya se corrigió
  }
  Empezar(Trabajo::Importar);
}

/// El siguiente fichero al que le falta el trabajo en curso.
std::optional<std::size_t> DialogoImportar::Siguiente() const {
  const Estado espera = trabajo_ == Trabajo::Importar ? Estado::Listo : Estado::SinLeer;
  const auto sitio = std::ranges::find(marchas_, espera, &Marcha::estado);
  if (sitio == marchas_.end()) return std::nullopt;
  return static_cast<std::size_t>(sitio - marchas_.begin());
}

std::size_t DialogoImportar::Contar(Estado estado) const {
  return static_cast<std::size_t>(std::ranges::count(marchas_, estado, &Marcha::estado));
}

void DialogoImportar::Empezar(Trabajo trabajo) {
  trabajo_ = trabajo;
  cancelado_ = false;
  hechos_ = 0;
  EnsenarBotones();
  QTimer::singleShot(0, this, &DialogoImportar::Paso);
}

/// Un fichero por vuelta del bucle: la ventana sigue viva entre uno y otro.
void DialogoImportar::Paso() {
  const auto i = Siguiente();
  if (!i || cancelado_) return Acabar();
  porHacer_ = hechos_ + Contar(trabajo_ == Trabajo::Importar ? Estado::Listo : Estado::SinLeer);
  if (trabajo_ == Trabajo::Importar)
    ImportarUno(*i);
  else
    PrepararUno(*i);
  ++hechos_;
  EnsenarFila(*i);
  if (Elegido() == i) EnsenarElegido();
  progreso_->setRange(0, static_cast<int>(porHacer_));
  progreso_->setValue(static_cast<int>(hechos_));
  QTimer::singleShot(0, this, &DialogoImportar::Paso);
}

void DialogoImportar::Acabar() {
  const bool importando = trabajo_ == Trabajo::Importar;
  trabajo_ = Trabajo::Ninguno;
  if (importando) EscribirResumen();
  // Lo que se añadió mientras se importaba está por leer.
  if (!cancelado_ && Contar(Estado::SinLeer) > 0) return Empezar(Trabajo::Preparar);
  EnsenarBotones();
}

void DialogoImportar::PrepararUno(std::size_t i) {
  ficheros_[i] = PrepararFichero(ficheros_[i].ruta, servicios_.normales, ficheros_[i].mapa);
  FicheroImportable &fichero = ficheros_[i];
  if (marchas_[i].pedida) {
    const std::string origen = fichero.peticion.origen;
    fichero.peticion = *marchas_[i].pedida;
    fichero.peticion.origen = origen;
  }
  const bool conMapa = fichero.materia.anio.formato == FormatoClima::Desconocido;
  marchas_[i].estado = fichero.legible ? Estado::Listo : Estado::Ilegible;
  marchas_[i].texto = fichero.legible ? tr("listo")
                      : conMapa       ? tr("hace falta un mapa de columnas")
                                      : tr("no se puede leer");
}

void DialogoImportar::ImportarUno(std::size_t i) {
  const FicheroImportado importado = ImportarFichero(servicios_.directorio, ficheros_[i]);
  const ResultadoImportacion &resultado = importado.resultado;
  const bool hecho = resultado.fallo == FalloImportacion::Ninguno;
  marchas_[i].estado = hecho ? Estado::Importado : Estado::Fallido;
  marchas_[i].texto = !hecho                  ? Texto(resultado.error)
                      : resultado.reemplazada ? tr("reemplazada")
                                              : tr("importada");
  resumen_ += ResumenDe(i, importado);
  if (hecho) servicios_.alta(resultado.registro);
}

void DialogoImportar::reject() {
  if (trabajo_ == Trabajo::Importar) {
    cancelado_ = true; // acaba el fichero que tiene entre manos y se detiene
    return;
  }
  QDialog::reject();
}

} // namespace tesmo
