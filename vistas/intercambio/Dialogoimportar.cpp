#include "vistas/intercambio/Dialogoimportar.h"

#include "intercambio/Extensionesclimaticas.h"
#include "intercambio/escritura/Nombrescatalogo.h"
#include "vistas/comun/Textoqt.h"
#include "vistas/intercambio/Dialogomapa.h"
#include "vistas/intercambio/Fichaimportar.h"

#include <QDir>
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
#include <array>
#include <utility>

namespace tesmo {

namespace {

QStringList Comodines() {
  QStringList comodines;
  for (const std::string_view extension : EXTENSIONES_CLIMATICAS)
    comodines << QLatin1Char('*') + QLatin1String(extension.data(), static_cast<qsizetype>(extension.size()));
  return comodines;
}

/// Los ficheros climáticos de una carpeta por orden alfabético, sin entrar en las que tenga dentro.
QStringList FicherosDeCarpeta(const QString &ruta) {
  QStringList rutas;
  for (const QFileInfo &fichero :
       QDir(ruta).entryInfoList(Comodines(), QDir::Files, QDir::Name | QDir::IgnoreCase))
    rutas << fichero.filePath();
  return rutas;
}

/// Lo que una persona dice con palabras de una importación.
constexpr std::array TEXTOS_PEDIDOS{&PeticionImportacion::nombre, &PeticionImportacion::provincia,
                                    &PeticionImportacion::zona};

/// De @p antes se conserva lo que la persona cambió de @p propuesta; lo demás, lo que se propone ahora.
PeticionImportacion ConLoTocado(const PeticionImportacion &antes, const PeticionImportacion &propuesta,
                                PeticionImportacion ahora) {
  for (const auto campo : TEXTOS_PEDIDOS) {
    if (antes.*campo != propuesta.*campo) ahora.*campo = antes.*campo;
  }
  if (antes.reemplazar != propuesta.reemplazar) ahora.reemplazar = antes.reemplazar;
  return ahora;
}

} // namespace

QString FiltroClimatico() {
  return DialogoImportar::tr("Ficheros climáticos (%1);;Todos (*)").arg(Comodines().join(QLatin1Char(' ')));
}

QStringList FicherosArrastrados(const QDropEvent &suceso) {
  QStringList rutas;
  for (const QUrl &url : suceso.mimeData()->urls()) {
    if (!url.isLocalFile()) continue;
    const QFileInfo uno(url.toLocalFile());
    if (uno.isFile()) rutas << uno.filePath();
    if (uno.isDir()) rutas << FicherosDeCarpeta(uno.filePath());
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
  Anadir(QFileDialog::getOpenFileNames(this, tr("Importar fichero climático"), {}, FiltroClimatico()));
}

void DialogoImportar::Anadir(const QStringList &rutas) {
  for (const QString &ruta : rutas) {
    const std::string utf8 = ruta.toStdString();
    const bool esta = std::ranges::any_of(ficheros_, [&](const auto &f) { return f.ruta == utf8; });
    if (esta) continue;
    ficheros_.emplace_back().ruta = utf8;
    marchas_.push_back({Estado::SinLeer, tr("por leer"), std::nullopt, {}});
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
  FicheroImportable &fichero = ficheros_[i];
  const FicheroImportable antes =
      std::exchange(fichero, PrepararFichero(fichero.ruta, servicios_.normales, fichero.mapa));
  if (const auto &pedida = marchas_[i].pedida) {
    for (const auto campo : TEXTOS_PEDIDOS) fichero.peticion.*campo = (*pedida).*campo;
    fichero.peticion.reemplazar = pedida->reemplazar;
  }
  const PeticionImportacion propuesta = std::exchange(marchas_[i].propuesta, fichero.peticion);
  fichero.peticion = ConLoTocado(antes.peticion, propuesta, fichero.peticion);
  fichero.huecosLargos = antes.huecosLargos;
  fichero.altitud = antes.altitud;
  const bool conMapa = fichero.materia.anio.formato == FormatoClima::Desconocido;
  marchas_[i].estado = fichero.legible ? Estado::Listo : Estado::Ilegible;
  marchas_[i].texto = fichero.legible ? tr("listo")
                      : conMapa       ? tr("hace falta un mapa de columnas")
                                      : tr("no se puede leer");
}

bool DialogoImportar::NombreYaImportado(std::size_t i) const {
  const auto importado = importados_.find(TextoDeCampo(ficheros_[i].peticion.nombre));
  return importado != importados_.end() && importado->second != ficheros_[i].ruta;
}

void DialogoImportar::ImportarUno(std::size_t i) {
  FicheroImportado importado;
  if (NombreYaImportado(i)) { // ni aunque se pida reemplazar: se perdería el que se acaba de importar
    importado.resultado.fallo = FalloImportacion::Peticion;
    importado.resultado.error = "otro fichero ya se ha importado con ese nombre; póngale otro";
  } else {
    importado = ImportarFichero(servicios_.directorio, ficheros_[i]);
  }
  const ResultadoImportacion &resultado = importado.resultado;
  const bool hecho = resultado.fallo == FalloImportacion::Ninguno;
  marchas_[i].estado = hecho ? Estado::Importado : Estado::Fallido;
  marchas_[i].texto = !hecho                  ? Texto(resultado.error)
                      : resultado.reemplazada ? tr("reemplazada")
                                              : tr("importada");
  resumen_ += ResumenDe(i, importado);
  if (!hecho) return;
  importados_[resultado.registro.localidad] = ficheros_[i].ruta;
  servicios_.alta(resultado.registro);
  ficha_->OfrecerProvincia(Texto(resultado.registro.provincia));
}

void DialogoImportar::reject() {
  if (trabajo_ == Trabajo::Importar) {
    cancelado_ = true; // acaba el fichero que tiene entre manos y se detiene
    return;
  }
  QDialog::reject();
}

} // namespace tesmo
