#pragma once

#include "intercambio/Ficheroimportable.h"
#include "localidades/Objetociudad.h"

#include <QDialog>
#include <QStringList>

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

class QDragEnterEvent;
class QDropEvent;
class QLabel;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;
class QTableWidget;
class QTabWidget;

namespace tesmo {

class FichaImportar;

/// Lo que el diálogo de importar necesita del programa.
struct ServiciosImportar {
  std::string directorio;                         ///< el de los datos meteorológicos
  std::vector<NormalesLocalidad> normales;        ///< las del programa
  std::vector<std::string> provincias;            ///< las que ya hay
  std::function<void(const ObjetoCiudad &)> alta; ///< da de alta en la base en memoria
};

/// Importa ficheros climáticos ajenos: los prepara y los importa de uno en uno, sin dejar de atender a la
/// persona, y al final dice qué pasó con cada uno.
class DialogoImportar : public QDialog {
  Q_OBJECT

public:
  explicit DialogoImportar(ServiciosImportar servicios, QWidget *padre = nullptr);

  /// Añade ficheros a la lista y los va preparando; los que ya están no se repiten.
  void Anadir(const QStringList &rutas);
  /// Lo mismo con la localidad que ya existe y que este fichero ha de reemplazar.
  void AnadirParaReemplazar(const QString &ruta, const PeticionImportacion &peticion);
  /// Importa todos los que se puedan.
  void Importar();
  /// Ficheros de la lista, en su orden.
  [[nodiscard]] const std::deque<FicheroImportable> &Ficheros() const { return ficheros_; }
  [[nodiscard]] bool Trabajando() const { return trabajo_ != Trabajo::Ninguno; }

public slots:
  void reject() override;

protected:
  void dragEnterEvent(QDragEnterEvent *suceso) override;
  void dropEvent(QDropEvent *suceso) override;

private:
  enum Columna { Fichero, Formato, Dictamen, Localidad, Provincia, Situacion, NUMERO_COLUMNAS };
  enum class Trabajo { Ninguno, Preparar, Importar };
  /// En qué va cada fichero de la lista.
  enum class Estado { SinLeer, Listo, Ilegible, Importado, Fallido };
  struct Marcha {
    Estado estado = Estado::SinLeer;
    QString texto;
    std::optional<PeticionImportacion> pedida; ///< la que trae puesta, en vez de la que se propondría
    PeticionImportacion propuesta; ///< la que se le puso al leerlo, para saber qué tocó la persona
  };

  QWidget *CrearLista();
  QWidget *CrearDetalle();
  QWidget *CrearPie();
  void PedirFicheros();
  void PedirMapa();
  void Quitar();
  void ProvinciaParaTodos();
  void Empezar(Trabajo trabajo);
  void Paso();
  void Acabar();
  void PrepararUno(std::size_t i);
  void ImportarUno(std::size_t i);
  /// ¿Se ha importado ya otro fichero con el nombre del @p i?
  [[nodiscard]] bool NombreYaImportado(std::size_t i) const;
  [[nodiscard]] std::optional<std::size_t> Siguiente() const;
  [[nodiscard]] std::size_t Contar(Estado estado) const;
  [[nodiscard]] std::optional<std::size_t> Elegido() const;
  void EnsenarFila(std::size_t i);
  void EnsenarElegido();
  void EnsenarBotones();
  void EscribirResumen();
  [[nodiscard]] QString ResumenDe(std::size_t i, const FicheroImportado &importado) const;

  ServiciosImportar servicios_;
  std::deque<FicheroImportable> ficheros_; ///< no se mueven: la ficha apunta al elegido
  std::vector<Marcha> marchas_;
  /// Fichero de cada localidad importada: su fila puede cambiar de nombre o quitarse.
  std::map<std::string, std::string> importados_;
  Trabajo trabajo_ = Trabajo::Ninguno;
  bool cancelado_ = false;
  std::size_t hechos_ = 0;
  std::size_t porHacer_ = 0;
  QString resumen_;

  QTableWidget *tabla_ = nullptr;
  QTabWidget *fichas_ = nullptr;
  QPlainTextEdit *meAuditoria_ = nullptr;
  QPlainTextEdit *meResumen_ = nullptr;
  FichaImportar *ficha_ = nullptr;
  QProgressBar *progreso_ = nullptr;
  QLabel *lbEstado_ = nullptr;
  QPushButton *btnAnadir_ = nullptr;
  QPushButton *btnQuitar_ = nullptr;
  QPushButton *btnMapa_ = nullptr;
  QPushButton *btnImportar_ = nullptr;
  QPushButton *btnCancelar_ = nullptr;
  QPushButton *btnCerrar_ = nullptr;
};

/// El filtro de los diálogos que preguntan por ficheros climáticos.
[[nodiscard]] QString FiltroClimatico();
/// Las rutas de los ficheros de lo que se arrastra, y los climáticos de sus carpetas; vacío si no trae
/// ninguno.
[[nodiscard]] QStringList FicherosArrastrados(const QDropEvent &suceso);

} // namespace tesmo
