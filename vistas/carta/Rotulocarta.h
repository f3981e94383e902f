#pragma once

#include "psicro/Psicrometrico.h"

#include <QColor>
#include <QPointF>
#include <QString>

#include <string_view>

class QPainter;

namespace tesmo {

/// @p valor con el patrón de números @p patron.
[[nodiscard]] QString Cifra(double valor, std::string_view patron);
/// Color de las líneas de una familia.
[[nodiscard]] QColor ColorDe(const Psicro &carta, Familia familia);
/// Sitio de un estado, @p t [°C] y @p w [kg/kg], en píxeles de la carta.
[[nodiscard]] QPointF SitioEnCarta(const Psicro &carta, double t, double w);

/// Texto centrado en @p centro [px] y girado @p grados en el sentido de las agujas, con la pluma de @p
/// pintor.
void Rotular(QPainter &pintor, const QPointF &centro, const QString &texto, double grados = 0.0);
/// El mismo, con las letras perfiladas de blanco para que se lean sobre las líneas sin taparlas. Donde el
/// destino no recorta, nada si el centro cae fuera de lo que se recorta.
void RotularSobreLineas(QPainter &pintor, const QPointF &centro, const QString &texto, double grados = 0.0);

inline constexpr int MAXIMO_ROTULOS = 200; ///< de una familia: más no se leerían

/// Recorre los valores de una familia, de @p cada en @p cada líneas.
template <typename Accion>
void ParaCadaLinea(const Rango &rango, int cada, Accion &&accion) {
  if (!(rango.paso > 0.0F)) return;
  for (int i = 0; i < MAXIMO_ROTULOS; ++i) {
    const double valor = rango.minimo + static_cast<double>(rango.paso) * cada * i;
    if (valor > rango.maximo + rango.paso / 2.0) return;
    accion(valor);
  }
}

} // namespace tesmo
