#include "vistas/datos/Vistaestadisticas.h"

#include "app/Accion.h"
#include "app/Carga.h"
#include "app/Programa.h"
#include "core/Calendario.h"
#include "core/Formato.h"
#include "meteo/Leermet.h"
#include "vistas/comun/Cursorocupado.h"
#include "vistas/comun/Panelseleccion.h"
#include "vistas/comun/Textoqt.h"
#include "vistas/datos/Paginaestadisticas.h"

#include <QPointer>

#include <utility>

namespace tesmo {

namespace {

constexpr std::string_view PATRON_GRADOS_DIA = "0.0";
/// Cifras de una magnitud que no se exporta y por eso no tiene patrón.
constexpr std::string_view PATRON_SIN_FICHA = "0.00";
const QString GRADOS_DIA = QStringLiteral("Grados-día");
/// Lo que se pone donde ninguna hora cuenta.
const QString NADA = QStringLiteral("—");

using Cifras = std::array<QString, PaginaEstadisticas::NUMERO_RESULTADOS>;

bool FormaGradosDia(Magnitud magnitud) { return Ficha(magnitud).rutina == RutinaEstadistica::Temperatura; }

/// Los seis números como texto; vacíos los grados-día de lo que no es una temperatura.
Cifras Textos(Magnitud magnitud, const ResultadoEstadisticas &r) {
  const std::string_view propio = Ficha(magnitud).patron;
  const std::string_view patron = propio.empty() ? PATRON_SIN_FICHA : propio;
  Cifras textos;
  const std::array<float, 6> valores{
      r.maximo, r.minimo, r.media, r.gradosDiaCalefaccion, r.gradosDiaRefrigeracion, r.tercerSumatorio};
  for (std::size_t i = 0; i < textos.size(); ++i) {
    const bool gradosDia = i >= static_cast<std::size_t>(PaginaEstadisticas::Resultado::Calefaccion);
    if (gradosDia && !FormaGradosDia(magnitud)) continue;
    textos[i] =
        Texto(FormatearPatron(static_cast<double>(valores[i]), gradosDia ? PATRON_GRADOS_DIA : patron));
  }
  return textos;
}

QString TextoFecha(const std::optional<FechaHora> &fecha) {
  if (!fecha) return {};
  return QObject::tr("%1 de %2, hora %3").arg(fecha->dia).arg(Texto(NombreMes(fecha->mes))).arg(fecha->hora);
}

QString TextoFechaEnElMes(const std::optional<FechaHora> &fecha) {
  if (!fecha) return NADA;
  return QObject::tr("día %1, h %2").arg(fecha->dia).arg(fecha->hora);
}

QStringList FilaDelMes(Magnitud magnitud, const EstadisticasDelMes &mes) {
  const ResultadoEstadisticas &r = mes.resultado;
  QStringList fila{Texto(ConMayuscula(NombreMes(mes.mes)))};
  const Cifras textos = Textos(magnitud, r);
  const auto texto = [&](std::size_t i) { return r.horas > 0 ? textos[i] : NADA; };
  fila << texto(0) << TextoFechaEnElMes(r.fechaMaximo) << texto(1) << TextoFechaEnElMes(r.fechaMinimo)
       << texto(2);
  if (FormaGradosDia(magnitud)) fila << texto(3) << texto(4) << texto(5);
  return fila;
}

} // namespace

VistaEstadisticas::VistaEstadisticas(PaginaEstadisticas &pagina, PanelSeleccion &panel, Programa &programa,
                                     Seleccion &seleccion, std::function<void(const QString &)> decir)
    : pagina_(pagina), panel_(panel), programa_(programa), seleccion_(seleccion), decir_(std::move(decir)) {
  QObject::connect(&pagina_, &PaginaEstadisticas::calculoPedido, &avisos_, [this] { Calcular(); });
  // La selección vive más que esta vista.
  seleccion_.AlCambiar([this, viva = QPointer<QObject>(&avisos_)](Seleccion::Cambio cambio) {
    if (viva) SeleccionCambiada(cambio);
  });
}

void VistaEstadisticas::SeleccionCambiada(Seleccion::Cambio cambio) {
  if (!pagina_.HayResultados()) return;
  switch (cambio) {
  case Seleccion::Cambio::Superficie:
  case Seleccion::Cambio::Altitud:
    pagina_.Vaciar(
        QObject::tr("La superficie o la altitud cambiaron: pulse «Actualizar» o elija una variable."));
    break;
  case Seleccion::Cambio::Periodo:
    cambioPeriodo();
    break;
  case Seleccion::Cambio::Provincia:
  case Seleccion::Cambio::Localidad:
    pagina_.Vaciar({});
    break;
  }
}

void VistaEstadisticas::cambioPeriodo() {
  pagina_.Vaciar(QObject::tr("Período cambiado: pulse «Actualizar» o elija una variable."));
}

void VistaEstadisticas::Calcular() {
  if (!seleccion_.HayLocalidad()) {
    pagina_.Vaciar(QObject::tr("Elija una localidad."));
    return;
  }
  const CursorOcupado ocupado;
  const Accion accion(programa_);
  seleccion_.PonPeriodo(panel_.LeerPeriodo());
  if (PrepararDatos(programa_, seleccion_) != ResultadoCarga::Cargada) {
    pagina_.Vaciar({});
    return;
  }
  LeerMet &datos = *programa_.DameLeerMet();
  const auto [primera, ultima] = pagina_.HorasDelDia();
  datos.PonHorasDelDia(primera, ultima);
  const Magnitud magnitud = pagina_.Elegida();
  const ResultadoEstadisticas resultado = datos.DameEstadisticas(magnitud, pagina_.Bases());
  Ensenar(magnitud, resultado);
  EnsenarMeses(magnitud, datos.DameEstadisticasPorMes(magnitud, pagina_.Bases()));
  if (resultado.horas == 0) decir_(QObject::tr("Ninguna hora del período cuenta en estos valores."));
}

void VistaEstadisticas::Ensenar(Magnitud magnitud, const ResultadoEstadisticas &resultado) {
  const Cifras textos = Textos(magnitud, resultado);
  std::array<PaginaEstadisticas::Cifra, PaginaEstadisticas::NUMERO_RESULTADOS> cifras;
  for (std::size_t i = 0; i < cifras.size(); ++i) {
    const bool gradosDia = i >= static_cast<std::size_t>(PaginaEstadisticas::Resultado::Calefaccion);
    if (textos[i].isEmpty()) continue;
    cifras[i] = {textos[i], gradosDia ? GRADOS_DIA : Texto(resultado.unidad), {}};
  }
  cifras[0].cuando = TextoFecha(resultado.fechaMaximo);
  cifras[1].cuando = TextoFecha(resultado.fechaMinimo);
  pagina_.PonResultados(cifras);
}

void VistaEstadisticas::EnsenarMeses(Magnitud magnitud, const std::vector<EstadisticasDelMes> &meses) {
  const QString unidad = Texto(Unidad(magnitud));
  const auto conUnidad = [&unidad](const QString &titulo) { return titulo + " (" + unidad + ")"; };
  QStringList titulos{QObject::tr("Mes"),    conUnidad(QObject::tr("Máximo")),
                      QObject::tr("Cuándo"), conUnidad(QObject::tr("Mínimo")),
                      QObject::tr("Cuándo"), conUnidad(QObject::tr("Media"))};
  if (FormaGradosDia(magnitud))
    titulos << QObject::tr("GD calefacción") << QObject::tr("GD refrigeración")
            << QObject::tr("Depresión (GD)");
  QList<QStringList> filas;
  for (const EstadisticasDelMes &mes : meses) filas << FilaDelMes(magnitud, mes);
  pagina_.PonMeses(titulos, filas);
}

} // namespace tesmo
