#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>
#include <QStringList>

#include <functional>

class QObject;
class QPaintDevice;
class QPainter;
class QWidget;

namespace tesmo {

/// Quien pinta un dibujo de un tamaño dado en una imagen o en un documento.
using PintarDibujo = std::function<void(QPaintDevice &)>;

/// La imagen guardada dobla la resolución de la pantalla, para informes impresos.
inline constexpr double ESCALA_DE_GUARDADO = 2.0;

/// El dibujo de @p tamano [px] a @p escala píxeles por píxel de pantalla.
[[nodiscard]] QImage ImagenDeDibujo(const QSize &tamano, double escala, const PintarDibujo &pintar);
/// @p imagen como fichero PNG; vacío si no se puede.
[[nodiscard]] QByteArray BytesPng(const QImage &imagen);
/// El dibujo como SVG, o como PDF si @p extension es "pdf".
[[nodiscard]] QByteArray DibujoVectorial(const QString &extension, const QSize &tamano, const QString &titulo,
                                         const PintarDibujo &pintar);
/// ¿Recorta el destino de @p pintor a lo que diga setClipRect? Un SVG no: a quien pinta en él le toca
/// hacerlo.
[[nodiscard]] bool RecortaElDestino(const QPainter &pintor);
/// ¿Es @p ruta de un formato vectorial? Devuelve su extensión, o vacío: entonces es un PNG.
[[nodiscard]] QString ExtensionVectorial(const QString &ruta);
/// Guarda el dibujo en SVG o PDF si lo dice la extensión de @p ruta y, si no, en PNG. Si no se puede,
/// devuelve falso y lo que hubiera en @p ruta queda como estaba.
[[nodiscard]] bool GuardarDibujo(const QString &ruta, const QSize &tamano, const QString &titulo,
                                 const PintarDibujo &pintar);
/// Escribe @p bytes enteros en @p ruta; falso si no hay nada que escribir o no se puede.
[[nodiscard]] bool EscribirBytes(const QString &ruta, const QByteArray &bytes);

/// Abre un diálogo de nombre @p nombre que pregunta dónde guardar con una de las @p extensiones ("png", "svg"
/// o "pdf"), empezando en el directorio de la última vez o el de resultados, y llama a @p guardar mientras
/// viva
/// @p contexto; si devuelve falso se enseña el mensaje MENSAJE_FICHERO_RESULTADO.
void PedirGuardarDibujo(QWidget &padre, const QObject &contexto, const QString &nombre,
                        const QStringList &extensiones, std::function<bool(const QString &)> guardar);

} // namespace tesmo
