#include "tests/vistas/Datosprueba.h"

#include "core/Calendario.h"
#include "core/Rutas.h"
#include "localidades/Ciudad.h"

#include <cstdio>

namespace tesmo::prueba {

namespace {

/// Un año con sol de 8 a 17 h, aire a medio saturar y viento constante.
std::string TextoMet(float base, int registros) {
  std::string texto = "Datos de prueba\n36.84 -2.39 21.0 15.0\n";
  char linea[200];
  for (int i = 0; i < registros; ++i) {
    const int hora = i % HORAS_DEL_DIA + 1;
    const bool deDia = hora >= 8 && hora <= 17;
    std::snprintf(linea, sizeof linea, "1 1 %d %.1f %.1f %d %d 0.007 50 3.5 %.1f %d %.1f 0 0\n", hora,
                  DatosPrueba::TemperaturaSeca(i, base), DatosPrueba::TemperaturaSeca(i, base) - 10.0F,
                  deDia ? 400 : 0, deDia ? 120 : 0, DatosPrueba::DireccionViento(i),
                  deDia ? (hora - 13) * 12 : 0, deDia ? 50.0 : 90.0);
    texto += linea;
  }
  return texto;
}

constexpr const char *LOCALIDADES =
    "2\n"
    "Almería, Almeria, Almería, x, Almería, almeria.met, 36.84, -2.39, 0, 21, 0\n"
    "Níjar, Nijar, Almería, x, Almería, nijar.met, 36.97, -2.21, 0, 356, 0\n"
    "2\n"
    "Granada, Granada, Granada, x, Granada, granada.met, 37.18, -3.60, 0, 680, 0\n"
    "Motril, Motril, Granada, x, Granada, falta.met, 36.74, -3.52, 0, 40, 0\n"
    "1\n"
    "Tarifa, Tarifa, Cádiz, x, Cádiz, tarifa.met, 36.01, -5.60, 0, 32, 0\n";

} // namespace

float DatosPrueba::TemperaturaSeca(int hora, float base) {
  return base + 0.5F * static_cast<float>(hora % HORAS_DEL_DIA);
}

float DatosPrueba::DireccionViento(int hora) { return 0.5F * static_cast<float>(hora % 720); }

DatosPrueba::DatosPrueba() {
  directorio_.Escribir("config.ini", "Directorios de prueba\nMET = Meteo/\nRES = Resultados/\nEXE = ./\n");
  directorio_.Escribir("Meteo/LocalidadesCC", LOCALIDADES);
  directorio_.Escribir("Meteo/almeria.met", TextoMet(BASE_ALMERIA, HORAS_DEL_ANIO));
  directorio_.Escribir("Meteo/nijar.met", TextoMet(BASE_ALMERIA + 1.0F, HORAS_DEL_ANIO));
  directorio_.Escribir("Meteo/granada.met", TextoMet(BASE_GRANADA, HORAS_DEL_ANIO));
  directorio_.Escribir("Meteo/tarifa.met", TextoMet(BASE_ALMERIA, REGISTROS_CORTADO));
  LiberarBaseDeLocalidades();
  IniciarConfiguracion(TextoDeRuta(directorio_.Ruta()));
}

DatosPrueba::~DatosPrueba() {
  LiberarBaseDeLocalidades();
  LiberarConfiguracion();
}

} // namespace tesmo::prueba
