#include "vistas/datos/Gruposmagnitud.h"

#include "vistas/comun/Textoqt.h"

#include <QGroupBox>
#include <QVBoxLayout>

namespace tesmo {

namespace {

constexpr std::array<const char *, GRUPOS.size()> NOMBRES{"gbBasicas", "gbPsicrometricas", "gbRadiacion"};

} // namespace

QGroupBox *CrearGrupoMagnitudes(GrupoMagnitud grupo, const QString &sufijo, std::span<const Magnitud> orden,
                                const std::function<QWidget *(const FichaMagnitud &)> &crear) {
  const auto sitio = static_cast<std::size_t>(grupo);
  auto *caja = new QGroupBox(Texto(ROTULOS_DE_GRUPO.at(sitio)));
  caja->setObjectName(QString::fromLatin1(NOMBRES.at(sitio)) + sufijo);
  auto *pila = new QVBoxLayout(caja);
  pila->setContentsMargins(6, 2, 6, 2);
  pila->setSpacing(0);
  for (const Magnitud magnitud : orden) {
    if (Ficha(magnitud).grupo == grupo) pila->addWidget(crear(Ficha(magnitud)));
  }
  return caja;
}

} // namespace tesmo
