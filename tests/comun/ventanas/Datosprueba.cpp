#include "tests/comun/ventanas/Datosprueba.h"

#include "core/Calendario.h"
#include "core/Formato.h"
#include "core/Rutas.h"
#include "localidades/Ciudad.h"

namespace tesmo::prueba {

namespace {

/// Un año con sol de 8 a 17 h, aire a medio saturar y viento constante.
std::string TextoMet(float base, int registros, float altitud = DatosPrueba::ALTITUD_COSTA) {
  // Con FormatoF: lo que sigue a la región escribiría comas.
  std::string texto = "Datos de prueba\n36.84 -2.39 " + FormatoF(altitud) + " 15.0\n";
  for (int i = 0; i < registros; ++i) {
    const int hora = i % HORAS_DEL_DIA + 1;
    const bool deDia = hora >= 8 && hora <= 17;
    const float seca = DatosPrueba::TemperaturaSeca(i, base);
    texto += "1 1 " + std::to_string(hora) + " " + FormatoF(seca) + " " + FormatoF(seca - 10.0F);
    texto += deDia ? " 400 120" : " 0 0";
    texto += " 0.007 50 3.5 " + FormatoF(DatosPrueba::DireccionViento(i)) + " ";
    texto += std::to_string(deDia ? (hora - 13) * 12 : 0) + (deDia ? " 50.0 0 0\n" : " 90.0 0 0\n");
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

std::string DatosPrueba::RegistroGdr(const std::string &cabecera) {
  return cabecera + "\n"
                    "16.9 17.6 19.6 21.4 24.1 27.9 30.5 31 28.4 24.5 20.5 17.9\n"
                    "8.3 9 10.6 12.5 15.2 18.9 21.7 22.4 20 16.3 12.3 9.6\n"
                    "2.1 2.2 2.5 2.4 3 3.3 3.1 3 2.9 2.4 2.4 2\n"
                    "2.1 2.1 2.2 2 2.3 2.2 2 2.1 2.3 2.4 2.5 2.3\n"
                    "10000 13400 17500 21800 25400 28000 27100 23900 19000 14300 10800 9100\n"
                    "67 67 65 62 63 61 60 63 65 68 67 67\n";
}

DatosPrueba::DatosPrueba() {
  directorio_.Escribir("config.ini", "Directorios de prueba\nMET = Meteo/\nRES = Resultados/\nEXE = ./\n");
  directorio_.Escribir("Meteo/LocalidadesCC", LOCALIDADES);
  directorio_.Escribir("Meteo/almeria.met", TextoMet(BASE_ALMERIA, HORAS_DEL_ANIO));
  directorio_.Escribir("Meteo/nijar.met", TextoMet(BASE_ALMERIA + 1.0F, HORAS_DEL_ANIO));
  directorio_.Escribir("Meteo/granada.met", TextoMet(BASE_GRANADA, HORAS_DEL_ANIO, ALTITUD_GRANADA));
  directorio_.Escribir("Meteo/tarifa.met", TextoMet(BASE_ALMERIA, REGISTROS_CORTADO));
  directorio_.Escribir("Meteo/GDR.TXT",
                       RegistroGdr("Almeria COSTA 36.84 -2.39 15 10 ALT=21") +
                           RegistroGdr("Granada INTERIOR 37.18 -3.6 15 10 ALT=680 WCAL=4.5 WREF=9"));
  std::filesystem::create_directories(directorio_ / "Resultados");
  LiberarBaseDeLocalidades();
  IniciarConfiguracion(TextoDeRuta(directorio_.Ruta()));
}

DatosPrueba::~DatosPrueba() {
  LiberarBaseDeLocalidades();
  LiberarConfiguracion();
}

} // namespace tesmo::prueba
