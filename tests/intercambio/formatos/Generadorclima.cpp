#include "tests/intercambio/formatos/Generadorclima.h"

#include "core/Calendario.h"
#include "core/Formato.h"

#include <algorithm>

namespace tesmo::prueba {

namespace {

std::string Texto(int numero) { return std::to_string(numero); }

std::string Decimas(int decimas, char separador = '.') {
  std::string texto;
  PatronNumero("0.0").Escribir(texto, decimas / 10.0, separador);
  return texto;
}

std::string DosCifras(int numero) { return (numero < 10 ? "0" : "") + Texto(numero); }

std::string RegistroEpw(int i) {
  const HoraDePrueba h = HoraPrueba(i);
  const auto campo = [](int valor) { return Texto(valor) + ","; };
  return campo(AnioDelMes(h.mes)) + campo(h.mes) + campo(h.dia) + campo(h.hora) + "60,?9?9?9?9E0," +
         Decimas(h.temperatura) + "," + Decimas(h.temperatura - 50) + "," + campo(h.humedad) +
         campo(h.presion) + "0,0," + campo(h.infrarroja) + campo(h.global) + campo(h.normal) +
         campo(h.difusa) + "999999,999999,999999,9999," + campo(h.direccion) + Decimas(h.viento) +
         ",7,5,16.1,77777,9,999999999,139,0.07,0,88,0.2,0.0,1.0";
}

LineasFichero CabeceraEpw() {
  return {"LOCATION,Almena,Granada,ESP,Hecho a mano,084180,37.18,-3.78,1.0,567.0",
          "DESIGN CONDITIONS,0",
          "TYPICAL/EXTREME PERIODS,0",
          "GROUND TEMPERATURES,0",
          "HOLIDAYS/DAYLIGHT SAVINGS,No,0,0,0",
          "COMMENTS 1,Hecho a mano",
          "COMMENTS 2,Nada",
          "DATA PERIODS,1,1,Data,Sunday, 1/ 1,12/31"};
}

std::string RegistroPvgis(int i) {
  const HoraDePrueba h = HoraPrueba(i);
  return Texto(AnioDelMes(h.mes)) + DosCifras(h.mes) + DosCifras(h.dia) + ":" + DosCifras(h.hora - 1) +
         "00," + Decimas(h.temperatura) + "," + Texto(h.humedad) + ".0," + Texto(h.global) + ".0," +
         Texto(h.normal) + ".0," + Texto(h.difusa) + ".0," + Texto(h.infrarroja) + ".0," + Decimas(h.viento) +
         "," + Texto(h.direccion) + ".0," + Texto(h.presion) + ".0";
}

std::string RegistroTmy3(int i) {
  const HoraDePrueba h = HoraPrueba(i);
  return DosCifras(h.mes) + "/" + DosCifras(h.dia) + "/" + Texto(AnioDelMes(h.mes)) + "," +
         DosCifras(h.hora) + ":00," + Texto(h.global) + ",1," + Texto(h.normal) + ",1," + Texto(h.difusa) +
         ",7," + Decimas(h.temperatura) + ",A," + Decimas(h.temperatura - 50) + "," + Texto(h.humedad) + "," +
         Texto(h.presion / 100) + "," + Texto(h.direccion) + "," + Decimas(h.viento) + ",5";
}

std::string MetComun(int i) {
  const HoraDePrueba h = HoraPrueba(i);
  return Texto(h.mes) + " " + Texto(h.dia) + " " + Texto(h.hora) + " " + Decimas(h.temperatura) + " " +
         Decimas(h.temperatura - 120) + " " + Texto(h.global - h.difusa) + " " + Texto(h.difusa) + " 0.00" +
         Texto(500 + i % 300) + " " + Texto(h.humedad) + " " + Decimas(h.viento) + " " + Texto(h.direccion) +
         " -12.5 67.25";
}

template <typename Registro>
LineasFichero Completar(LineasFichero lineas, Registro registro) {
  for (int i = 0; i < HORAS_DEL_ANIO; ++i) lineas.push_back(registro(i));
  return lineas;
}

} // namespace

int AnioDelMes(int mes) { return 1999 + (mes * 7) % 12; }

HoraDePrueba HoraPrueba(int i) {
  const int diaDelAnio = i / HORAS_DEL_DIA;
  int mes = 12;
  while (DIAS_ANTES_DEL_MES[static_cast<std::size_t>(mes - 1)] > diaDelAnio) --mes;
  const int hora = i % HORAS_DEL_DIA + 1;
  const bool esDeDia = hora >= 8 && hora <= 18;
  const int altura = esDeDia ? 6 - std::abs(hora - 13) : 0; // de 1 a 6
  return {.mes = mes,
          .dia = diaDelAnio - DIAS_ANTES_DEL_MES[static_cast<std::size_t>(mes - 1)] + 1,
          .hora = hora,
          .temperatura = i % 400 - 100,
          .humedad = 30 + i % 60,
          .presion = 94000 + (i % 20) * 100,
          .global = altura * 120,
          .normal = altura * 110,
          .difusa = altura * 40,
          .infrarroja = 250 + i % 100,
          .viento = i % 80,
          .direccion = (i * 7) % 360};
}

LineasFichero LineasEpw() { return Completar(CabeceraEpw(), RegistroEpw); }

LineasFichero LineasPvgisEpw() {
  LineasFichero lineas = LineasEpw();
  lineas[0] = "LOCATION,unknown,-,unknown,ECMWF/ERA,unknown,37.18,-3.78,1,567";
  lineas[6] = "COMMENTS 2,Irradiance Time Offset (h):-0.8";
  return lineas;
}

LineasFichero LineasPvgisCsv() {
  LineasFichero lineas{"Latitude (decimal degrees): 37.180", "Longitude (decimal degrees): -3.780",
                       "Elevation (m): 567.0", "Irradiance Time Offset (h): 0.2000", "month,year"};
  for (int mes = 1; mes <= 12; ++mes) lineas.push_back(Texto(mes) + "," + Texto(AnioDelMes(mes)));
  lineas.emplace_back("time(UTC),T2m,RH,G(h),Gb(n),Gd(h),IR(h),WS10m,WD10m,SP");
  lineas = Completar(std::move(lineas), RegistroPvgis);
  lineas.insert(lineas.end(), {"", "T2m: 2-m air temperature (degree Celsius)", "RH: relative humidity (%)",
                               "", "PVGIS (c) European Union, 2001-2025"});
  return lineas;
}

LineasFichero LineasTmy3() {
  return Completar(
      {"723456,\"ALMENA, EAST\",GR,-6.0,37.180,-93.780,567",
       "Date (MM/DD/YYYY),Time (HH:MM),GHI (W/m^2),GHI source,DNI (W/m^2),DNI source,DHI (W/m^2),"
       "TotCld (tenths),Dry-bulb (C),Dry-bulb source,Dew-point (C),RHum (%),Pressure (mbar),"
       "Wdir (degrees),Wspd (m/s),OpqCld (tenths)"},
      RegistroTmy3);
}

LineasFichero LineasMetTrece() { return Completar({"almena.met", "37.18 -3.78 567 15"}, MetComun); }

LineasFichero LineasMetQuince() {
  return Completar({"Almena", "37.18 -3.78 567 15"}, [](int i) { return MetComun(i) + " 0 0"; });
}

LineasFichero LineasDelimitado() {
  return Completar({"fecha;Temp;HR;P;G;D;viento;rumbo"}, [](int i) {
    const HoraDePrueba h = HoraPrueba(i);
    const auto decimal = [](int decimas) { return Decimas(decimas, ',') + ";"; };
    return DosCifras(h.dia) + "/" + DosCifras(h.mes) + "/2014 " + DosCifras(h.hora - 1) + ":00;" +
           decimal(h.temperatura) + decimal(h.humedad * 10) + decimal(h.presion / 10) +
           decimal(h.global * 10) + decimal(h.difusa * 10) + decimal(h.viento * 36) + Texto(h.direccion);
  });
}

std::string MapaDePrueba() {
  return "# Un fichero de estación\n"
         "nombre = Almena\n"
         "latitud = 37.18\nlongitud = -3.78\naltitud = 567\n"
         "separador = punto y coma\ndecimal = coma\n"
         "lineas de cabecera = 1\n"
         "sin dato = -9999\n"
         "fecha = 1\norden de la fecha = dia mes año\n"
         "reloj = oficial\nhuso = 1\ndesfase = -30\n"
         "Temperatura seca = Temp [°C]\n"
         "humedad relativa = HR [%]\n"
         "presión = 4 [hPa]\n"
         "radiacion global horizontal = G [W/m2]\n"
         "radiación difusa horizontal = 6\n"
         "velocidad del viento = viento [km/h]\n"
         "direccion del viento = rumbo\n";
}

std::string Unir(const LineasFichero &lineas, const std::string &fin) {
  std::string texto;
  for (const std::string &linea : lineas) texto += linea + fin;
  return texto;
}

void CambiarCampo(std::string &linea, std::size_t campo, const std::string &valor, char separador) {
  std::size_t desde = 0;
  for (std::size_t i = 0; i < campo; ++i) desde = linea.find(separador, desde) + 1;
  linea.replace(desde, std::min(linea.find(separador, desde), linea.size()) - desde, valor);
}

double Valor(const AnioCanonico &anio, Campo campo, int i) {
  return anio[campo].valores[static_cast<std::size_t>(i)];
}

NotaLectura NotaDe(const std::vector<NotaLectura> &notas, ClaseNota clase) {
  const auto hallada =
      std::find_if(notas.begin(), notas.end(), [clase](const NotaLectura &n) { return n.clase == clase; });
  return hallada == notas.end() ? NotaLectura{.veces = 0} : *hallada;
}

int CuantasDe(const std::vector<NotaLectura> &notas, ClaseNota clase) {
  return static_cast<int>(
      std::count_if(notas.begin(), notas.end(), [clase](const NotaLectura &n) { return n.clase == clase; }));
}

std::string Textos(const std::vector<NotaLectura> &notas) {
  std::string textos;
  for (const NotaLectura &nota : notas) textos += nota.texto + "\n";
  return textos;
}

} // namespace tesmo::prueba
