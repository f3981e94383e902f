#include "app/Manejoventana.h"

#include "app/Ventanaprogramas.h"
#include "meteo/Magnitudes.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QSpinBox>

#include <utility>

namespace tesmo {

QWidget &ManejoVentana::Raiz() const { return ventana_; }

void ManejoVentana::Elegir(const QString &selector, const QString &texto) const {
  auto &lista = Buscar<QComboBox>(selector);
  const int sitio = lista.findText(texto);
  if (sitio < 0)
    throw std::runtime_error("no hay «" + texto.toStdString() + "» en " + selector.toStdString());
  lista.setCurrentIndex(sitio);
}

void ManejoVentana::PonCasilla(const QString &nombre, int valor) const {
  Buscar<QSpinBox>(nombre).setValue(valor);
}

/// Primero el final del año: así ninguna regla del período mueve lo ya puesto.
void ManejoVentana::PonPeriodo(const FechaHora &inicio, const FechaHora &fin) const {
  for (const auto &[fecha, sufijo] :
       {std::pair{FechaHora{12, 31, 24}, "Fin"}, std::pair{inicio, "Ini"}, std::pair{fin, "Fin"}}) {
    PonCasilla(QStringLiteral("csMes") + QLatin1String(sufijo), fecha.mes);
    PonCasilla(QStringLiteral("csDia") + QLatin1String(sufijo), fecha.dia);
    PonCasilla(QStringLiteral("csHor") + QLatin1String(sufijo), fecha.hora);
  }
}

void ManejoVentana::Marcar(const QStringList &codigos) const {
  for (std::size_t i = 0; i < NUMERO_MAGNITUDES_VISOR; ++i) {
    const QString codigo = QString::fromUtf8(MAGNITUDES[i].codigo.data());
    Buscar<QCheckBox>(QStringLiteral("cb") + codigo).setChecked(codigos.contains(codigo));
  }
}

void ManejoVentana::Pulsar(const QString &nombre) const {
  Buscar<QAbstractButton>(nombre).click();
  QApplication::processEvents();
}

} // namespace tesmo
