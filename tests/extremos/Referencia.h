#pragma once

#include <array>
#include <string>
#include <vector>

/// Segunda escritura del cálculo de los días de proyecto: llana, en doble precisión, de arriba abajo y sin
/// nada del programa.
namespace referencia {

struct Entrada {
  std::string clave;
  double percentilCal = 99, percentilRef = 1;
  std::array<int, 13> temporadaCal{}, temporadaRef{}; // del 1 al 12
  int mesCal = 1, mesRef = 7;
};

struct Dia {
  std::array<double, 24> text{}, tcielo{}, trocio{}, rdir{}, rdif{}, habs{}, hrel{};
};

struct Salida {
  bool hallado = false;
  double latitud = 0, cola = 0, salidaCal = 0, salidaRef = 0;
  double t1 = 0, t2 = 0, t1mes = 0, t2mes = 0;
  double f1 = 0, f2 = 0, fj = 0, fl = 0;
  double Kcal = 0, Kref = 0, kcal = 0, kref = 0, h0cal = 0, h0ref = 0, hcal = 0, href = 0;
  double alt = 0, wcal = 0, wref = 0;
  std::vector<std::vector<double>> acumuladas; // seis, de cien grados
  Dia cal, ref;
};

/// @p gdr: el texto del fichero de estadísticas, bien formado.
Salida Calcular(const std::string &gdr, const Entrada &entrada);

} // namespace referencia
