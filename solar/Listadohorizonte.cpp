#include "solar/Listadohorizonte.h"

#include "core/Codificacion.h"
#include "core/Formato.h"
#include "solar/Alturashorizonte.h"
#include "solar/Giroshorizonte.h"
#include "solar/Origenacimut.h"

#include <algorithm>
#include <cmath>

namespace tesmo {

namespace {

constexpr double VUELTA = 360.0;
constexpr double MEDIA_VUELTA = 180.0;
constexpr double ALTURA_MAXIMA = 100.0;    ///< hasta donde llega el programa
constexpr std::size_t ALTURAS_MINIMAS = 3; ///< con menos no hay quien distinga una lista de otra cosa
constexpr std::size_t COLUMNAS_DE_TABLA = 2;
constexpr std::size_t COLUMNAS_DE_PVGIS = 6; ///< acimut, altura y dos parejas del sol

/// Dónde están el acimut y la altura de una fila.
struct Columnas {
  ClaseListado clase;
  std::size_t acimut;
  std::size_t altura;
};

std::string Numero(double valor) { return FormatoGeneral15(valor, '.'); }

bool FilaEnLimites(const FilaNumerica &fila, const Columnas &columnas, FalloLectura &fallo) {
  const double acimut = fila.numeros[columnas.acimut];
  const double altura = fila.numeros[columnas.altura];
  if (std::fabs(acimut) > VUELTA) {
    fallo = {fila.linea, "el acimut " + Numero(acimut) + " no está entre -360 y 360"};
  } else if (std::fabs(altura) > ALTURA_MAXIMA) {
    fallo = {fila.linea, "la altura " + Numero(altura) + " no está entre -100 y 100"};
  } else {
    return true;
  }
  return false;
}

/// Las columnas de PVGIS por su título; falso si faltan.
bool ColumnasPorTitulo(const TablaNumerica &tabla, Columnas &columnas) {
  const auto titulo = [&](std::string_view nombre) {
    const auto sitio = std::find_if(tabla.columnas.begin(), tabla.columnas.end(),
                                    [&](const std::string &c) { return PlegarMinusculas(c) == nombre; });
    return static_cast<std::size_t>(sitio - tabla.columnas.begin());
  };
  columnas = {ClaseListado::Pvgis, titulo("a"), titulo("h_hor")};
  const std::size_t n = std::min(tabla.columnas.size(), tabla.filas.front().numeros.size());
  return columnas.acimut < n && columnas.altura < n;
}

bool BuscarColumnas(const TablaNumerica &tabla, Columnas &columnas, FalloLectura &fallo) {
  if (ColumnasPorTitulo(tabla, columnas)) return true;
  const std::size_t n = tabla.filas.front().numeros.size();
  if (n == COLUMNAS_DE_TABLA) {
    columnas = {ClaseListado::Tabla, 0, 1};
    return true;
  }
  if (n == COLUMNAS_DE_PVGIS) {
    columnas = {ClaseListado::Pvgis, 0, 1};
    return true;
  }
  fallo = {tabla.filas.front().linea,
           "se esperaban dos columnas, acimut y altura, y hay " + std::to_string(n)};
  return false;
}

/// Sin nadie que lo diga: un acimut negativo sólo se escribe desde el sur, y uno mayor de 180 desde el norte.
OrigenAcimut OrigenPorValores(const TablaNumerica &tabla, std::size_t columna) {
  bool pasaDeMediaVuelta = false;
  for (const FilaNumerica &fila : tabla.filas) {
    if (fila.numeros[columna] < 0.0) return OrigenAcimut::Sur;
    pasaDeMediaVuelta = pasaDeMediaVuelta || fila.numeros[columna] > MEDIA_VUELTA;
  }
  return pasaDeMediaVuelta ? OrigenAcimut::Norte : OrigenAcimut::Sur;
}

bool PonPuntos(const std::vector<FilaNumerica> &filas, const Columnas &columnas, OrigenAcimut origen,
               PerfilHorizonte &perfil, FalloLectura &fallo) {
  perfil.PonTamano(static_cast<float>(filas.size()));
  int i = 0;
  for (const FilaNumerica &fila : filas) {
    if (!FilaEnLimites(fila, columnas, fallo)) return false;
    const double acimut = fila.numeros[columnas.acimut];
    const bool norte = origen == OrigenAcimut::Norte;
    const double desdeElSur = norte ? DesdeElSur(acimut) : DentroDeLaVuelta(acimut);
    perfil.PonPunto(i++, static_cast<float>(desdeElSur), static_cast<float>(fila.numeros[columnas.altura]));
  }
  perfil = PorAcimut(perfil);
  return true;
}

bool LeerTabla(const TablaNumerica &tabla, ListadoHorizonte &listado, FalloLectura &fallo) {
  Columnas columnas{};
  if (!BuscarColumnas(tabla, columnas, fallo)) return false;
  listado.clase = columnas.clase;
  std::optional<OrigenAcimut> origen = OrigenEnTextos(tabla.textos);
  listado.origenSupuesto = !origen;
  if (!origen && columnas.clase == ClaseListado::Pvgis) origen = OrigenAcimut::Sur;
  if (!origen) origen = OrigenPorValores(tabla, columnas.acimut);
  return PonPuntos(tabla.filas, columnas, *origen, listado.perfil, fallo);
}

/// Las alturas sueltas, una por línea o todas en una, con su acimut desde el norte delante.
std::vector<FilaNumerica> AlturasConAcimut(const TablaNumerica &tabla) {
  std::vector<FilaNumerica> filas;
  for (const FilaNumerica &fila : tabla.filas) {
    for (const double altura : fila.numeros) filas.push_back({fila.linea, {0.0, altura}});
  }
  const double paso = VUELTA / static_cast<double>(filas.size());
  for (std::size_t i = 0; i < filas.size(); ++i) filas[i].numeros[0] = paso * static_cast<double>(i);
  return filas;
}

bool SonAlturas(const TablaNumerica &tabla) {
  const std::size_t n = tabla.filas.front().numeros.size();
  return n == 1 ? tabla.filas.size() >= ALTURAS_MINIMAS : tabla.filas.size() == 1 && n >= ALTURAS_MINIMAS;
}

std::string Decimal(double valor) {
  std::string texto = FormatoF(valor);
  texto.erase(texto.find_last_not_of('0') + 1);
  if (texto.back() == '.') texto.pop_back();
  return texto == "-0" ? "0" : texto;
}

} // namespace

bool LeerListado(std::string_view texto, ListadoHorizonte &listado, FalloLectura &fallo) {
  TablaNumerica tabla;
  if (!LeerTablaNumerica(texto, tabla, fallo)) return false;
  ListadoHorizonte leido;
  const bool alturas = SonAlturas(tabla);
  if (alturas) {
    leido.clase = ClaseListado::Alturas;
    leido.origenSupuesto = true;
    tabla.filas = AlturasConAcimut(tabla);
  }
  if (tabla.filas.size() > static_cast<std::size_t>(PerfilHorizonte::PUNTOS_MAXIMOS)) {
    fallo = {0, "hay más de " + std::to_string(PerfilHorizonte::PUNTOS_MAXIMOS) + " puntos"};
    return false;
  }
  const Columnas columnas{ClaseListado::Alturas, 0, 1};
  const bool hecho = alturas ? PonPuntos(tabla.filas, columnas, OrigenAcimut::Norte, leido.perfil, fallo)
                             : LeerTabla(tabla, leido, fallo);
  if (hecho) listado = std::move(leido);
  return hecho;
}

bool EsListaDeAlturas(std::string_view texto) {
  std::size_t numeros = 0;
  for (const std::string_view linea : PartirLineas(texto)) {
    const std::string_view campo = SinBlancos(linea);
    double valor = 0.0;
    if (campo.empty()) continue;
    if (!LeerNumeroDeCampo(campo, false, valor)) return false; // una coma separa: es un punto del nativo
    ++numeros;
  }
  return numeros >= ALTURAS_MINIMAS;
}

std::string TextoPvgis(const PerfilHorizonte &perfil) {
  std::string texto = "A\tH_hor\n";
  const PerfilHorizonte ordenado = PorAcimut(perfil);
  for (std::size_t i = 0; i < ordenado.X().size(); ++i) {
    texto += Decimal(ordenado.X()[i]) + "\t" + Decimal(ordenado.Y()[i]) + "\n";
  }
  return texto + "\nA: Azimuth (0 = S, 90 = W, -90 = E) (degree)\nH_hor: Horizon height (degree)\n";
}

std::string TextoTabla(const PerfilHorizonte &perfil) {
  std::string texto = "acimut_desde_norte_grados;altura_grados\n";
  const PerfilHorizonte ordenado = PorAcimut(perfil);
  for (std::size_t i = 0; i < ordenado.X().size(); ++i) {
    const double norte = ordenado.X()[i] + MEDIA_VUELTA;
    texto += Decimal(norte) + ";" + Decimal(ordenado.Y()[i]) + "\n";
  }
  return texto;
}

std::string TextoAlturas(const PerfilHorizonte &perfil) {
  constexpr int PASO = 10; // [°]
  const AlturasDeHorizonte alturas(perfil.X(), perfil.Y());
  std::string texto;
  for (int acimut = -AlturasDeHorizonte::ACIMUT_MAXIMO; acimut < AlturasDeHorizonte::ACIMUT_MAXIMO;
       acimut += PASO) {
    texto += (texto.empty() ? "" : ",") + Decimal(alturas.EnGrado(acimut));
  }
  return texto + "\n";
}

} // namespace tesmo
