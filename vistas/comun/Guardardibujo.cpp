#include "vistas/comun/Guardardibujo.h"

#include "core/Ficheros.h"
#include "core/Mensajes.h"
#include "vistas/comun/Dialogoguardar.h"

#include <QBuffer>
#include <QFileInfo>
#include <QPaintEngine>
#include <QPainter>
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

bool RecortaElDestino(const QPainter &pintor) {
  const QPaintEngine *motor = pintor.paintEngine();
  return motor == nullptr || motor->type() != QPaintEngine::SVG;
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
  QStringList filtros;
  for (const QString &extension : extensiones) filtros << Filtro(extension);
  PedirGuardar(padre, contexto,
               {nombre, QObject::tr("Guardar imagen"), QStringLiteral("imágenes"), QString(), filtros},
               [guardar = std::move(guardar)](const QString &ruta) {
                 const bool guardado = guardar(ruta);
                 if (!guardado) DameMensajes().Mensaje(MENSAJE_FICHERO_RESULTADO, ruta.toStdString());
                 return guardado;
               });
}

} // namespace tesmo
