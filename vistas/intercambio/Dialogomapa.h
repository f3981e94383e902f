#pragma once

#include "intercambio/formatos/Mapacolumnas.h"

#include <QDialog>

#include <string>

class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QTableWidget;

namespace tesmo {

class CasillaEntera;
class CasillaOpcional;
class CasillaReal;

/// Dice qué es cada columna de un texto delimitado, dónde está el sitio y qué reloj tiene. El mapa se guarda
/// en un fichero y se vuelve a usar con otros.
class DialogoMapa : public QDialog {
  Q_OBJECT

public:
  /// @p fichero, el texto que se va a leer; @p mapa, el que ya tuviera, si lo tiene.
  DialogoMapa(const QString &fichero, const MapaColumnas *mapa, QWidget *padre = nullptr);

  [[nodiscard]] MapaColumnas Mapa() const;
  void Poner(const MapaColumnas &mapa);
  /// Toma el mapa del fichero @p ruta; falso, y nada cambia, si no se entiende: se dice en el diálogo.
  bool AbrirMapa(const QString &ruta);
  bool GuardarMapa(const QString &ruta);

public slots:
  /// Sólo si el mapa está completo.
  void accept() override;

private:
  QWidget *CrearTexto();
  QWidget *CrearSitio();
  QWidget *CrearBotones();
  void AnadirReloj(QFormLayout &forma);
  void PedirAbrir();
  void PedirGuardar();
  void LeerFilas();
  void PonerFila(int fila, const std::string &muestra, const std::string &rotulo);
  void CambiarPapel(int fila);
  void ElegirColumna(const std::string &columna, int papel, const std::string &unidad);
  [[nodiscard]] QComboBox *Papel(int fila) const;
  [[nodiscard]] QComboBox *Unidad(int fila) const;
  void Decir(const std::string &texto);

  std::string texto_; ///< el principio del fichero
  QComboBox *cbSeparador_ = nullptr;
  QComboBox *cbDecimal_ = nullptr;
  QComboBox *cbOrden_ = nullptr;
  CasillaEntera *csCabecera_ = nullptr;
  QLineEdit *edSinDato_ = nullptr;
  QLineEdit *edNombre_ = nullptr;
  CasillaReal *csLatitud_ = nullptr;
  CasillaReal *csLongitud_ = nullptr;
  CasillaOpcional *csAltitud_ = nullptr;
  QComboBox *cbTiempo_ = nullptr;
  CasillaReal *csDesfase_ = nullptr;
  CasillaOpcional *csHuso_ = nullptr;
  QTableWidget *tabla_ = nullptr;
  QLabel *lbAviso_ = nullptr;
};

} // namespace tesmo
