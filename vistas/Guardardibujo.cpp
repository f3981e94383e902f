#include "vistas/Guardardibujo.h"

#include "core/Ficheros.h"
#include "core/Mensajes.h"
#include "core/Rutas.h"
#include "vistas/Textoqt.h"

#include <QBuffer>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QPdfWriter>
#include <QSvgGenerator>

namespace tesmo {

namespace {

/// Resolución en que un píxel del dibujo vectorial es un píxel de pantalla [puntos por pulgada].
constexpr int RESOLUCION = 96;
constexpr double PUNTOS_POR_PULGADA = 72.0;

void PintarPdf(QIODevice &destino, const QSize &tamano, const PintarDibujo &pintar) {
  QPdfWriter escritor(&destino);
  escritor.setResolution(RESOLUCION);
  const QSizeF puntos = QSizeF(tamano) * (PUNTOS_POR_PULGADA / RESOLUCION);
  escritor.setPageSize(QPageSize(puntos, QPageSize::Point, QString(), QPageSize::ExactMatch));
  escritor.setPageMargins(QMarginsF());
  pintar(escritor);
}

void PintarSvg(QIODevice &destino, const QSize &tamano, const QString &titulo, const PintarDibujo &pintar) {
  QSvgGenerator generador;
  generador.setOutputDevice(&destino);
  generador.setResolution(RESOLUCION);
  generador.setSize(tamano);
  generador.setViewBox(QRect(QPoint(), tamano));
  generador.setTitle(titulo);
  pintar(generador);
}

/// Directorio de la última imagen guardada, de todos los dibujos.
QString &UltimoDirectorio() {
  static QString ultimo;
  return ultimo;
}

/// Donde se guardó la última vez o, si ya no está, el de resultados o el personal.
QString DirectorioParaGuardar() {
  const QString resultados = Texto(DameConfiguracion().RutaResultados(""));
  for (const QString &directorio : {UltimoDirectorio(), resultados}) {
    if (!directorio.isEmpty() && QDir(directorio).exists()) return directorio;
  }
  return QDir::homePath();
}

QString Filtro(const QString &extension) {
  if (extension == QLatin1String("svg")) return QObject::tr("Dibujo SVG (*.svg)");
  if (extension == QLatin1String("pdf")) return QObject::tr("Documento PDF (*.pdf)");
  return QObject::tr("Imagen PNG (*.png)");
}

} // namespace

QImage ImagenDeDibujo(const QSize &tamano, double escala, const PintarDibujo &pintar) {
  QImage imagen(tamano * escala, QImage::Format_RGB32);
  imagen.setDevicePixelRatio(escala);
  pintar(imagen);
  return imagen;
}

QByteArray BytesPng(const QImage &imagen) {
  QByteArray bytes;
  QBuffer destino(&bytes);
  destino.open(QIODevice::WriteOnly);
  if (!imagen.save(&destino, "PNG")) return {};
  return bytes;
}

QByteArray DibujoVectorial(const QString &extension, const QSize &tamano, const QString &titulo,
                           const PintarDibujo &pintar) {
  QByteArray bytes;
  QBuffer destino(&bytes);
  destino.open(QIODevice::WriteOnly);
  if (extension == QLatin1String("pdf")) {
    PintarPdf(destino, tamano, pintar);
  } else {
    PintarSvg(destino, tamano, titulo, pintar);
  }
  return bytes;
}

QString ExtensionVectorial(const QString &ruta) {
  const QString extension = QFileInfo(ruta).suffix().toLower();
  const bool vectorial = extension == QLatin1String("svg") || extension == QLatin1String("pdf");
  return vectorial ? extension : QString();
}

bool GuardarDibujo(const QString &ruta, const QSize &tamano, const QString &titulo,
                   const PintarDibujo &pintar) {
  const QString extension = ExtensionVectorial(ruta);
  return EscribirBytes(ruta, extension.isEmpty()
                                 ? BytesPng(ImagenDeDibujo(tamano, ESCALA_DE_GUARDADO, pintar))
                                 : DibujoVectorial(extension, tamano, titulo, pintar));
}

bool EscribirBytes(const QString &ruta, const QByteArray &bytes) {
  return !bytes.isEmpty() &&
         EscribirFicheroEntero(RutaDesdeTexto(ruta.toStdString()),
                               {bytes.constData(), static_cast<std::size_t>(bytes.size())});
}

void PedirGuardarDibujo(QWidget &padre, const QObject &contexto, const QString &nombre,
                        const QStringList &extensiones, std::function<bool(const QString &)> guardar) {
  auto *dialogo = new QFileDialog(&padre, QObject::tr("Guardar imagen"));
  dialogo->setObjectName(nombre);
  dialogo->setAttribute(Qt::WA_DeleteOnClose);
  dialogo->setOption(QFileDialog::DontUseNativeDialog);
  dialogo->setDirectory(DirectorioParaGuardar());
  dialogo->setAcceptMode(QFileDialog::AcceptSave);
  dialogo->setDefaultSuffix(extensiones.first());
  QStringList filtros;
  for (const QString &extension : extensiones) filtros << Filtro(extension);
  dialogo->setNameFilters(filtros);
  QObject::connect(dialogo, &QFileDialog::filterSelected, dialogo, [dialogo](const QString &filtro) {
    dialogo->setDefaultSuffix(filtro.mid(filtro.indexOf(QLatin1String("*.")) + 2).chopped(1));
  });
  QObject::connect(dialogo, &QFileDialog::fileSelected, &contexto,
                   [guardar = std::move(guardar)](const QString &ruta) {
                     if (guardar(ruta)) {
                       UltimoDirectorio() = QFileInfo(ruta).absolutePath();
                     } else {
                       DameMensajes().Mensaje(MENSAJE_FICHERO_RESULTADO, ruta.toStdString());
                     }
                   });
  dialogo->open();
}

} // namespace tesmo
