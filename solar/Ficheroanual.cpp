#include "solar/Ficheroanual.h"

#include "core/Calendario.h"
#include "core/Ficheros.h"
#include "core/Formato.h"
#include "core/Mensajes.h"
#include "solar/Soldeldia.h"

#include <array>
#include <cmath>

namespace tesmo {

namespace {

constexpr float MEDIA_HORA = 0.5F;
constexpr int MESES = static_cast<int>(DIAS_DEL_MES.size());
/// La línea más larga: "12 24 24 -179.999999 -89.999999 179.999999".
constexpr std::size_t ANCHO_DE_LINEA = 48;

/// Un ángulo con "%f". De un real de 32 bits menor que 360 el millón de veces cabe exacto en un doble, así
/// que redondear al entero par más cercano es lo mismo que redondear su desarrollo decimal.
void AnadirAngulo(std::string &texto, float angulo) {
  constexpr double MILLON = 1e6;
  constexpr float VUELTA = 360.0F;
  constexpr std::size_t DECIMALES = 6;
  if (!(std::fabs(angulo) < VUELTA)) {
    texto += FormatoF(angulo);
    return;
  }
  auto unidades = static_cast<unsigned>(std::nearbyint(std::fabs(static_cast<double>(angulo)) * MILLON));
  std::array<char, 12> bufer{}; // signo, tres cifras, punto y seis decimales
  std::size_t i = bufer.size();
  for (std::size_t cifras = 0; unidades != 0 || cifras <= DECIMALES; ++cifras) {
    if (cifras == DECIMALES) bufer[--i] = '.';
    bufer[--i] = static_cast<char>('0' + unidades % 10U);
    unidades /= 10U;
  }
  if (std::signbit(angulo)) bufer[--i] = '-';
  texto.append(&bufer[i], bufer.size() - i);
}

void AnadirLinea(std::string &texto, const std::string &comienzo, const AngulosSolares &angulos) {
  texto += comienzo;
  AnadirAngulo(texto, angulos.acimut);
  texto += ' ';
  AnadirAngulo(texto, angulos.altura);
  texto += ' ';
  AnadirAngulo(texto, angulos.cenit);
  texto += '\n';
}

/// "mes hora hora " de las veinticuatro líneas de un día.
std::array<std::string, HORAS_DEL_DIA> Comienzos(int mes) {
  std::array<std::string, HORAS_DEL_DIA> comienzos;
  const std::string principio = std::to_string(mes) + ' ';
  for (std::size_t i = 0; i < comienzos.size(); ++i) {
    const std::string hora = std::to_string(i + 1) + ' ';
    comienzos[i] = principio;
    comienzos[i].append(hora).append(hora);
  }
  return comienzos;
}

} // namespace

std::string TextoAnual(float latitud) {
  std::string texto = "Latitud = " + FormatoF(latitud) + "\n";
  texto.reserve(texto.size() + HORAS_DEL_ANIO * ANCHO_DE_LINEA);
  for (int mes = 1; mes <= MESES; ++mes) {
    const auto comienzos = Comienzos(mes);
    for (int dia = 1; dia <= DiasDelMes(mes); ++dia) {
      const SolDelDia sol(latitud, mes, dia);
      for (int h = 1; h <= HORAS_DEL_DIA; ++h) {
        const AngulosSolares angulos = sol.En(static_cast<float>(h) + MEDIA_HORA).angulos;
        AnadirLinea(texto, comienzos[static_cast<std::size_t>(h - 1)], angulos);
      }
    }
  }
  return texto;
}

bool EscribirFicheroAnual(float latitud, const std::string &ruta) {
  if (EscribirFicheroEntero(RutaDesdeTexto(ruta), TextoAnual(latitud))) return true;
  DameMensajes().Mensaje(MENSAJE_FICHERO, ruta);
  return false;
}

} // namespace tesmo
