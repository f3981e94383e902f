#include "vistas/datos/Vistaexportacion.h"

#include "app/Accion.h"
#include "app/Carga.h"
#include "app/Programa.h"
#include "app/Seleccion.h"
#include "meteo/Leermet.h"
#include "vistas/comun/Cursorocupado.h"
#include "vistas/comun/Dialogoguardar.h"
#include "vistas/comun/Panelseleccion.h"
#include "vistas/comun/Textoqt.h"
#include "vistas/datos/Paginaexportacion.h"

#include <QDir>
#include <QRegularExpression>

#include <utility>

namespace tesmo {

VistaExportacion::VistaExportacion(PaginaExportacion &pagina, PanelSeleccion &panel, Programa &programa,
                                   Seleccion &seleccion, Ventana ventana)
    : pagina_(pagina), panel_(panel), programa_(programa), seleccion_(seleccion),
      ventana_(std::move(ventana)) {}

void VistaExportacion::casillaClick(const QString &rotulo, bool puesta) {
  if (puesta) {
    pagina_.Anadir(rotulo);
  } else {
    pagina_.Quitar(rotulo);
  }
}

void VistaExportacion::btnSubirClick() { pagina_.Subir(); }

void VistaExportacion::btnBajarClick() { pagina_.Bajar(); }

/// El de la localidad, sin lo que un nombre de fichero no admite.
QString VistaExportacion::NombrePropuesto() const {
  if (!seleccion_.HayLocalidad()) return {};
  static const QRegularExpression prohibidos(QStringLiteral(R"([/\\:*?"<>|])"));
  return Texto(seleccion_.DameLocalidad()).replace(prohibidos, QStringLiteral("_")) + QStringLiteral(".met");
}

void VistaExportacion::btnEscribirClick() {
  PedirGuardar(pagina_, avisos_,
               {QStringLiteral("sdGuardarRes"),
                QObject::tr("Escribir archivo horario"),
                QStringLiteral("archivos horarios"),
                NombrePropuesto(),
                {QStringLiteral("Resultados meteorológicos(*.MET)")}},
               [this](const QString &ruta) { return Escribir(ruta); });
}

bool VistaExportacion::Escribir(const QString &ruta) {
  const CursorOcupado ocupado;
  const Accion accion(programa_);
  seleccion_.PonPeriodo(panel_.LeerPeriodo());
  if (!ventana_.cargar()) return false;
  if (PrepararDatos(programa_, seleccion_) != ResultadoCarga::Cargada) return false;
  LeerMet &datos = *programa_.DameLeerMet();
  datos.PonTexto("Separador", pagina_.Separador());
  datos.PonCabecera("Cabecera", pagina_.Cabecera());
  const std::vector<std::string> rotulos = pagina_.Rotulos();
  if (!datos.EscribirFichero(ruta.toStdString(), rotulos)) return false;
  DecirEscrito(ruta, rotulos.size());
  return true;
}

void VistaExportacion::DecirEscrito(const QString &ruta, std::size_t variables) const {
  const LeerMet &datos = *programa_.DameLeerMet();
  const auto horas = static_cast<std::size_t>(datos.HorasDelPeriodo());
  QString texto = QObject::tr("%1: escritas %2 variables de %3 horas, %4 líneas, en %5")
                      .arg(Texto(datos.Localidad()))
                      .arg(variables)
                      .arg(horas)
                      .arg(LineasDeExportacion(datos.Cabecera(), horas))
                      .arg(QDir::toNativeSeparators(ruta));
  if (!datos.Resumen().Completa())
    texto += QObject::tr(" (de la localidad sólo se pudieron leer %1 horas)").arg(datos.Resumen().registros);
  ventana_.decir(texto);
}

} // namespace tesmo
