#pragma once

#include "meteo/Estadisticas.h"

#include <QStringList>
#include <QWidget>

#include <array>
#include <optional>

class QGridLayout;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QTableWidget;

namespace tesmo {

class CasillaEntera;
class CasillaReal;

/// Página "Valores medios y globales": un botón por magnitud, las horas del día y las bases de los
/// grados-día, los resultados del período con sus unidades y la tabla de sus meses. Sólo controles.
class PaginaEstadisticas : public QWidget {
  Q_OBJECT

public:
  /// Las casillas de resultado, en su orden.
  enum class Resultado { Maximo, Minimo, Media, Calefaccion, Refrigeracion, Depresion };
  static constexpr int NUMERO_RESULTADOS = 6;
  /// Lo que se enseña de un resultado.
  struct Cifra {
    QString valor;
    QString unidad;
    QString cuando; ///< hora del extremo; vacía en los demás
  };

  explicit PaginaEstadisticas(QWidget *padre = nullptr);

  [[nodiscard]] Magnitud Elegida() const;
  /// Primera y última hora del día que cuentan, terminando antes lo que se esté tecleando.
  [[nodiscard]] std::pair<int, int> HorasDelDia() const;
  [[nodiscard]] BasesGradosDia Bases() const;

  void PonResultados(const std::array<Cifra, NUMERO_RESULTADOS> &cifras);
  /// La tabla de los meses: sus títulos y una fila por mes.
  void PonMeses(const QStringList &titulos, const QList<QStringList> &filas);
  /// Deja los resultados, sus unidades y la tabla vacíos y dice por qué.
  void Vaciar(const QString &motivo);
  [[nodiscard]] bool HayResultados() const;
  /// Los resultados como texto: una línea por cada uno, con su unidad.
  [[nodiscard]] QString TextoDeResultados() const;

signals:
  /// Se eligió una magnitud o cambiaron las horas o las bases.
  void calculoPedido();

private:
  QWidget *CrearMagnitudes();
  QGroupBox *CrearHorario();
  QGroupBox *CrearBases();
  QGroupBox *CrearResultados();
  void CrearResultado(QGridLayout &rejilla, int i);
  QGroupBox *CrearMeses();
  QLineEdit *CrearCasillaDeResultado(const QString &nombre, int letras);
  CasillaEntera *CrearHora(const char *nombre, int valor);
  CasillaReal *CrearBase(const char *nombre, float valor);

  struct Controles {
    QLabel *rotulo = nullptr;
    QLineEdit *valor = nullptr;
    QLabel *unidad = nullptr;
    QLineEdit *cuando = nullptr; ///< sólo en los extremos
  };
  std::array<QRadioButton *, NUMERO_MAGNITUDES_VISOR> botones_{};
  CasillaEntera *csVHorIni_ = nullptr;
  CasillaEntera *csVHorFin_ = nullptr;
  CasillaReal *csBaseCal_ = nullptr;
  CasillaReal *csBaseRef_ = nullptr;
  std::array<Controles, NUMERO_RESULTADOS> resultados_;
  QLabel *lbSituacion_ = nullptr;
  QTableWidget *tablaMeses_ = nullptr;
  QPushButton *btnCopiarResultados_ = nullptr;
  QPushButton *btnCopiarMeses_ = nullptr;
};

} // namespace tesmo
