#pragma once

#include "vistas/grafico/Escalax.h"
#include "vistas/grafico/Repartoejes.h"

#include <QColor>
#include <QImage>
#include <QPointF>
#include <QString>
#include <QStringList>
#include <QWidget>

#include <memory>
#include <span>
#include <utility>

class QMenu;

namespace tesmo {

/// Una serie de un gráfico, sin sus valores.
struct SerieGrafico {
  QString clave;  ///< título de la serie
  QString rotulo; ///< nombre con la unidad entre paréntesis
  QString patron; ///< cifras con que se leen sus valores
  QColor color;
  double grosor = 2.0; ///< ancho de la pluma [px]
  LadoEje lado = LadoEje::Izquierdo;
  bool visible = false;
  QString leyenda = {}; ///< texto de la leyenda; vacío: la clave y el rótulo
  /// Guiones y huecos de la línea, en anchos de la pluma (QPen::setDashPattern); vacío: continua.
  QList<qreal> trazo = {};
};

/// El gráfico de líneas que usan todas las vistas: series sobre dos ejes verticales, leyenda, cursor de
/// lectura, rueda que amplía, arrastre que mueve, doble clic que vuelve al todo, y copia y guardado de la
/// imagen y los datos. Los cambios de series se acumulan hasta Redibujar().
class Grafico : public QWidget {
  Q_OBJECT

public:
  explicit Grafico(QWidget *padre = nullptr);
  ~Grafico() override;

  /// Cambia el eje horizontal y enseña todo su recorrido.
  void PonEscala(std::shared_ptr<const EscalaX> escala);
  /// Texto que se lee cuando no hay ninguna serie a la vista.
  void PonAviso(const QString &aviso);

  /// Quita todas las series.
  void Vaciar();
  /// Añade una serie cuyos puntos son (p + k, @p valores[k]), con p el Primero() de la escala (1 si no hay
  /// escala), y devuelve su índice.
  int AnadirSerie(const SerieGrafico &serie, std::span<const float> valores);
  [[nodiscard]] int NumeroSeries() const;
  [[nodiscard]] const SerieGrafico &Serie(int indice) const;
  [[nodiscard]] int NumeroPuntos(int indice) const;
  [[nodiscard]] QPointF Punto(int indice, int k) const;
  /// Mayor valor absoluto finito de la serie; 0 si no hay ninguno.
  [[nodiscard]] double MayorValor(int indice) const;
  void PonVisible(int indice, bool visible);
  void PonLado(int indice, LadoEje lado);
  void PonColor(int indice, const QColor &color);
  void PonTrazo(int indice, const QList<qreal> &trazo);
  /// Fija los límites de un eje vertical, que deja así de ajustarse a sus series. Se ve al Redibujar().
  void FijarLimites(LadoEje lado, const LimitesEje &limites);
  /// Rehace ejes y leyenda para las series a la vista y repinta.
  void Redibujar();

  /// Vuelve a enseñar todo el recorrido y ajusta los ejes verticales.
  void VerTodo();
  /// Tramo visible del eje horizontal.
  [[nodiscard]] std::pair<double, double> Tramo() const;
  void PonTramo(double desde, double hasta);
  [[nodiscard]] LimitesEje Limites(LadoEje lado) const;
  [[nodiscard]] QString TituloEje(LadoEje lado) const;
  /// El derecho sólo se ve cuando alguna serie visible lo usa.
  [[nodiscard]] bool EjeALaVista(LadoEje lado) const;
  [[nodiscard]] QStringList Leyenda() const;
  /// Rectángulo de los ejes, en coordenadas de este control [px].
  [[nodiscard]] QRect Marco() const;
  /// Lo que el cursor está leyendo, una línea por serie; vacío si el puntero no está sobre los datos.
  [[nodiscard]] QString Lectura() const;

  /// La imagen a @p escala veces el tamaño en pantalla.
  [[nodiscard]] QImage Imagen(double escala = 1.0) const;
  /// Guarda la imagen en el formato de la extensión de @p ruta (.png, .svg o .pdf; otra cosa es PNG). Si no
  /// se puede, devuelve falso y lo que hubiera en @p ruta queda como estaba.
  [[nodiscard]] bool GuardarImagen(const QString &ruta) const;
  /// Las series a la vista, en el tramo visible, como tabla separada por tabuladores.
  [[nodiscard]] QString TextoDatos() const;

public slots:
  void CopiarImagen() const;
  void CopiarDatos() const;
  /// Pregunta dónde y guarda la imagen con @p extension ("png", "svg" o "pdf").
  void PedirGuardarImagen(const QString &extension);

signals:
  /// Se va a enseñar el menú del gráfico o, con @p indice ≥ 0, el de la entrada de leyenda de una serie;
  /// quien escucha añade sus órdenes.
  void menuPreparado(QMenu *menu, int indice);

protected:
  void keyPressEvent(QKeyEvent *suceso) override;
  void resizeEvent(QResizeEvent *suceso) override;
  bool eventFilter(QObject *objeto, QEvent *suceso) override;

private:
  struct Interno;
  void ConectarRaton();
  void RehacerLeyenda();
  void RehacerEje(LadoEje lado);
  void LimitarTramo();
  void ElegirEjesDeRueda(const QPointF &donde, bool conControl);
  void MoverCursor(const QPoint &donde);
  void LeerBajoElPuntero();
  void EnsenarMenu(const QPoint &donde);
  void AnadirOrdenes(QMenu &menu);
  [[nodiscard]] int SerieEnLeyenda(const QPoint &donde) const;
  void PintarVectorial(class QPaintDevice &destino) const;

  std::unique_ptr<Interno> interno_;
};

} // namespace tesmo
