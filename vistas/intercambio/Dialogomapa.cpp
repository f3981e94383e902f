#include "vistas/intercambio/Dialogomapa.h"

#include "core/Codificacion.h"
#include "core/Ficheros.h"
#include "core/Formato.h"
#include "core/Varios.h"
#include "intercambio/formatos/Cabeceras.h"
#include "intercambio/formatos/Clavesmapa.h"
#include "intercambio/formatos/Filas.h"
#include "intercambio/formatos/Unidadesclima.h"
#include "vistas/comun/Casillanumero.h"
#include "vistas/comun/Textoqt.h"
#include "vistas/intercambio/Papelcolumna.h"

#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTableWidget>

#include <algorithm>
#include <cmath>

namespace tesmo {

namespace {

/// Columnas de la tabla del diálogo.
enum { NUMERO, ROTULO, MUESTRA, PAPEL, UNIDAD };
constexpr std::size_t COLUMNAS_MAXIMAS = 60;

template <typename T, std::size_t N>
int SitioDe(const std::array<Palabra<T>, N> &palabras, T valor) {
  const auto sitio = std::ranges::find(palabras, valor, &Palabra<T>::valor);
  return sitio == palabras.end() ? 0 : static_cast<int>(sitio - palabras.begin());
}
template <typename T, std::size_t N>
T ValorDe(const std::array<Palabra<T>, N> &palabras, const QComboBox &lista) {
  return palabras[static_cast<std::size_t>(std::max(0, lista.currentIndex()))].valor;
}

double NumeroONada(const QString &texto) {
  std::string ajustado = texto.trimmed().toStdString();
  AjustarSeparador(ajustado);
  return TextoAReal(ajustado).value_or(AUSENTE);
}

/// Las líneas número @p primera y siguiente de un texto, desde 1; vacías si no llega.
std::array<std::vector<std::string>, 2> DosFilas(const std::string &texto, int primera, char separador) {
  std::array<std::vector<std::string>, 2> filas;
  Lineas lineas(texto);
  CamposLinea campos;
  for (std::string_view linea; lineas.Siguiente(linea);) {
    const int cual = lineas.Numero() - primera;
    if (cual < 0) continue;
    if (cual > 1) break;
    PartirLinea(linea, separador, COLUMNAS_MAXIMAS, campos);
    filas[static_cast<std::size_t>(cual)].assign(campos.begin(), campos.end());
  }
  return filas;
}

} // namespace

QComboBox *DialogoMapa::Papel(int fila) const {
  return qobject_cast<QComboBox *>(tabla_->cellWidget(fila, PAPEL));
}
QComboBox *DialogoMapa::Unidad(int fila) const {
  return qobject_cast<QComboBox *>(tabla_->cellWidget(fila, UNIDAD));
}

void DialogoMapa::Decir(const std::string &texto) { lbAviso_->setText(Texto(texto)); }

/// Rehace la tabla: una fila por columna del texto, con su rótulo y su primer valor.
void DialogoMapa::LeerFilas() {
  const MapaColumnas anterior = Mapa();
  const char separador = ValorDe(SEPARADORES, *cbSeparador_);
  const int cabecera = csCabecera_->value();
  const auto [rotulos, muestra] = DosFilas(texto_, std::max(cabecera, 1), separador);
  const std::vector<std::string> &valores = cabecera == 0 ? rotulos : muestra;
  tabla_->setRowCount(0);
  for (std::size_t i = 0; i < std::max(valores.size(), rotulos.size()); ++i) {
    tabla_->insertRow(static_cast<int>(i));
    PonerFila(static_cast<int>(i), i < valores.size() ? valores[i] : std::string(),
              cabecera > 0 && i < rotulos.size() ? rotulos[i] : std::string());
  }
  tabla_->resizeColumnsToContents();
  for (std::size_t papel = 0; papel < PAPELES_DE_FECHA.size(); ++papel)
    ElegirColumna(anterior.*PAPELES_DE_FECHA[papel].destino, static_cast<int>(papel) + 1, {});
  for (const ColumnaMapa &columna : anterior.columnas)
    ElegirColumna(columna.columna, PapelDeCampo(columna.campo), columna.unidad);
}

void DialogoMapa::PonerFila(int fila, const std::string &muestra, const std::string &rotulo) {
  tabla_->setItem(fila, NUMERO, new QTableWidgetItem(QString::number(fila + 1)));
  tabla_->setItem(fila, ROTULO, new QTableWidgetItem(Texto(rotulo)));
  tabla_->setItem(fila, MUESTRA, new QTableWidgetItem(Texto(muestra)));
  auto *papel = new QComboBox;
  papel->setObjectName(QStringLiteral("cbPapel%1").arg(fila + 1));
  for (const std::string &nombre : NombresDePapel()) papel->addItem(Texto(nombre));
  auto *unidad = new QComboBox;
  unidad->setObjectName(QStringLiteral("cbUnidad%1").arg(fila + 1));
  tabla_->setCellWidget(fila, PAPEL, papel);
  tabla_->setCellWidget(fila, UNIDAD, unidad);
  connect(papel, &QComboBox::currentIndexChanged, this, [this, fila] { CambiarPapel(fila); });
  CambiarPapel(fila);
}

void DialogoMapa::CambiarPapel(int fila) {
  QComboBox *unidad = Unidad(fila);
  unidad->clear();
  const auto campo = CampoDePapel(Papel(fila)->currentIndex());
  if (campo) {
    for (const UnidadClima &una : UnidadesDe(*campo)) unidad->addItem(Texto(una.nombre));
  }
  unidad->setEnabled(unidad->count() > 1);
}

/// @p columna por su número o por su rótulo.
void DialogoMapa::ElegirColumna(const std::string &columna, int papel, const std::string &unidad) {
  if (columna.empty()) return;
  for (int fila = 0; fila < tabla_->rowCount(); ++fila) {
    if (std::to_string(fila + 1) != columna && tabla_->item(fila, ROTULO)->text() != Texto(columna)) continue;
    Papel(fila)->setCurrentIndex(papel);
    if (!unidad.empty()) Unidad(fila)->setCurrentText(Texto(unidad));
    return;
  }
}

MapaColumnas DialogoMapa::Mapa() const {
  MapaColumnas mapa;
  mapa.nombre = edNombre_->text().trimmed().toStdString();
  // El cruce del ecuador con el meridiano 0 está en el mar: es que no se ha dicho dónde es.
  const bool dicho = csLatitud_->value() != 0.0 || csLongitud_->value() != 0.0;
  mapa.latitud = dicho ? csLatitud_->value() : AUSENTE;
  mapa.longitud = dicho ? csLongitud_->value() : AUSENTE;
  mapa.altitud = csAltitud_->Valor().value_or(AUSENTE);
  mapa.separador = ValorDe(SEPARADORES, *cbSeparador_);
  mapa.comaDecimal = ValorDe(DECIMALES, *cbDecimal_);
  mapa.lineasCabecera = csCabecera_->value();
  mapa.sinDato = NumeroONada(edSinDato_->text());
  mapa.orden = ValorDe(ORDENES, *cbOrden_);
  mapa.reloj = {ValorDe(RELOJES, *cbTiempo_), csHuso_->Valor().value_or(0.0), csDesfase_->value()};
  mapa.husoDeLongitud = !csHuso_->Valor();
  for (int fila = 0; fila < tabla_->rowCount(); ++fila) {
    const int papel = Papel(fila)->currentIndex();
    const std::string columna = std::to_string(fila + 1);
    if (const auto campo = CampoDePapel(papel))
      mapa.columnas.push_back({*campo, columna, Unidad(fila)->currentText().toStdString()});
    else if (papel > 0)
      mapa.*PAPELES_DE_FECHA[static_cast<std::size_t>(papel - 1)].destino = columna;
  }
  return mapa;
}

void DialogoMapa::Poner(const MapaColumnas &mapa) {
  const auto oCero = [](double valor) { return std::isnan(valor) ? 0.0 : valor; };
  edNombre_->setText(Texto(mapa.nombre));
  csLatitud_->setValue(oCero(mapa.latitud));
  csLongitud_->setValue(oCero(mapa.longitud));
  csAltitud_->PonValor(std::isnan(mapa.altitud) ? std::nullopt : std::optional(mapa.altitud));
  edSinDato_->setText(std::isnan(mapa.sinDato) ? QString() : Texto(FormatoGeneral15(mapa.sinDato, ',')));
  cbDecimal_->setCurrentIndex(SitioDe(DECIMALES, mapa.comaDecimal));
  cbOrden_->setCurrentIndex(SitioDe(ORDENES, mapa.orden));
  cbTiempo_->setCurrentIndex(SitioDe(RELOJES, mapa.reloj.tiempo));
  csDesfase_->setValue(mapa.reloj.desfaseMin);
  csHuso_->PonValor(mapa.husoDeLongitud ? std::nullopt : std::optional(mapa.reloj.husoHoras));
  {
    const QSignalBlocker separador(cbSeparador_), cabecera(csCabecera_);
    cbSeparador_->setCurrentIndex(SitioDe(SEPARADORES, mapa.separador));
    csCabecera_->setValue(mapa.lineasCabecera);
  }
  tabla_->setRowCount(0); // lo elegido antes ya no vale
  LeerFilas();
  for (std::size_t papel = 0; papel < PAPELES_DE_FECHA.size(); ++papel)
    ElegirColumna(mapa.*PAPELES_DE_FECHA[papel].destino, static_cast<int>(papel) + 1, {});
  for (const ColumnaMapa &columna : mapa.columnas)
    ElegirColumna(columna.columna, PapelDeCampo(columna.campo), columna.unidad);
}

bool DialogoMapa::AbrirMapa(const QString &ruta) {
  const auto texto = LeerFicheroEntero(RutaDesdeTexto(ruta.toStdString()));
  if (!texto) {
    Decir("No se puede abrir el mapa.");
    return false;
  }
  const ResultadoMapa leido = LeerMapa(*texto);
  if (!leido.mapa) {
    Decir(leido.errores.empty() ? "El mapa no se entiende." : leido.errores.front().texto);
    return false;
  }
  Poner(*leido.mapa);
  Decir({});
  return true;
}

bool DialogoMapa::GuardarMapa(const QString &ruta) {
  const bool hecho = EscribirFicheroEntero(RutaDesdeTexto(ruta.toStdString()), EscribirMapa(Mapa()));
  Decir(hecho ? "Mapa guardado." : "No se puede escribir el mapa.");
  return hecho;
}

void DialogoMapa::accept() {
  // Lo que el lector no entendería se dice aquí, con el diálogo abierto.
  const ResultadoMapa leido = LeerMapa(EscribirMapa(Mapa()));
  if (leido.mapa && std::isnan(leido.mapa->latitud)) return Decir("Diga la latitud y la longitud del sitio.");
  if (leido.mapa) return QDialog::accept();
  Decir(leido.errores.empty() ? "El mapa no está completo." : leido.errores.front().texto);
}

void DialogoMapa::PedirAbrir() {
  const QString ruta =
      QFileDialog::getOpenFileName(this, tr("Abrir mapa de columnas"), {}, tr("Mapas (*.mapa);;Todos (*)"));
  if (!ruta.isEmpty()) AbrirMapa(ruta);
}

void DialogoMapa::PedirGuardar() {
  QFileDialog dialogo(this, tr("Guardar mapa de columnas"), {}, tr("Mapas (*.mapa)"));
  dialogo.setAcceptMode(QFileDialog::AcceptSave);
  dialogo.setDefaultSuffix(QStringLiteral("mapa"));
  if (dialogo.exec() == QDialog::Accepted) GuardarMapa(dialogo.selectedFiles().constFirst());
}

} // namespace tesmo
