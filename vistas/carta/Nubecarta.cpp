#include "vistas/carta/Nubecarta.h"

#include <QCoreApplication>
#include <QLocale>

#include <array>
#include <cmath>

namespace tesmo {

namespace {

constexpr int HORAS = 24;
constexpr int MESES = 12;

/// Color saturado del tono @p tono [°, 0 a 360) (fórmula HSV → RGB en su forma compacta).
ColorBgr DeTono(double tono) {
  constexpr double SEXTO = 60.0;
  constexpr double CLARIDAD = 0.85 * 255.0;
  const auto canal = [tono](double desfase) {
    const double k = std::fmod(desfase + tono / SEXTO, 6.0);
    return static_cast<ColorBgr>(CLARIDAD * (1.0 - std::max(0.0, std::min({k, 4.0 - k, 1.0}))));
  };
  return canal(5.0) | canal(3.0) << 8U | canal(1.0) << 16U;
}

/// Vuelta entera de tonos en @p pasos, desde el azul hacia el verde: el invierno y la noche quedan fríos.
ColorBgr DeRueda(int paso, int pasos) {
  constexpr double VUELTA = 360.0;
  constexpr double AZUL = 240.0;
  return DeTono(std::fmod(AZUL - VUELTA * paso / pasos + VUELTA, VUELTA));
}

struct FichaEstacion {
  const char *nombre;
  ColorBgr color;
};
constexpr std::array<FichaEstacion, 4> ESTACIONES{{{QT_TRANSLATE_NOOP("NubeCarta", "Invierno"), 0xC86400},
                                                   {QT_TRANSLATE_NOOP("NubeCarta", "Primavera"), 0x32A028},
                                                   {QT_TRANSLATE_NOOP("NubeCarta", "Verano"), 0x2828DC},
                                                   {QT_TRANSLATE_NOOP("NubeCarta", "Otoño"), 0x0082E6}}};

constexpr int MESES_DE_ESTACION = 3;
const FichaEstacion &EstacionDe(int mes) {
  return ESTACIONES[static_cast<std::size_t>(mes % MESES / MESES_DE_ESTACION)];
}

} // namespace

ColorBgr ColorDeMarca(const MarcaNube &marca, ColoreoNube coloreo) {
  switch (coloreo) {
  case ColoreoNube::Hora:
    return DeRueda(marca.hora - 1, HORAS);
  case ColoreoNube::Mes:
    return DeRueda(marca.mes - 1, MESES);
  case ColoreoNube::Estacion:
    return EstacionDe(marca.mes).color;
  default:
    return marca.color;
  }
}

std::vector<EntradaNube> LeyendaDeNube(ColoreoNube coloreo) {
  std::vector<EntradaNube> leyenda;
  const QLocale espanol(QLocale::Spanish);
  if (coloreo == ColoreoNube::Hora) {
    for (int i = 0; i < HORAS; ++i)
      leyenda.push_back({QCoreApplication::translate("NubeCarta", "%1 h").arg(i + 1), DeRueda(i, HORAS)});
  } else if (coloreo == ColoreoNube::Mes) {
    for (int i = 0; i < MESES; ++i)
      leyenda.push_back({espanol.standaloneMonthName(i + 1, QLocale::LongFormat), DeRueda(i, MESES)});
  } else if (coloreo == ColoreoNube::Estacion) {
    for (const FichaEstacion &estacion : ESTACIONES)
      leyenda.push_back({QCoreApplication::translate("NubeCarta", estacion.nombre), estacion.color});
  }
  return leyenda;
}

} // namespace tesmo
