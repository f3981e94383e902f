#include "tests/extremos/Referencia.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <sstream>
#include <tuple>

namespace referencia {
namespace {

const double PI = 3.14159265358979323846;
const int DIAS[13] = {0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

double fi(double x) { return std::exp(-x * x / 2) / std::sqrt(6.283185); }

// Φ en 80·h, por Simpson con 80 intervalos de ancho h desde 0.
double PHI(double cota) {
  const double h = 0.0125 * cota;
  double s = 0.5;
  for (int k = 3; k <= 81; k += 2) s += (fi((k - 3) * h) + 4 * fi((k - 2) * h) + fi((k - 1) * h)) * h / 3;
  return s;
}

double puntoDeCola(double q) {
  const double h = 0.05;
  double antes = 0.5;
  for (int k = 3; k <= 81; k += 2) {
    const double s = antes + (fi((k - 3) * h) + 4 * fi((k - 2) * h) + fi((k - 1) * h)) * h / 3;
    if (s >= 1 - q) return (k - 3) * h + 2 * h * ((1 - q) - antes) / (s - antes);
    antes = s;
  }
  return 4.0;
}

struct Curva {
  double c[100] = {};
  int lo = 50, hi = -49;
  double en(int k) const { return k < -49 || k > 50 ? 0.0 : c[k + 49]; }
  void acumular() {
    for (int k = lo + 1; k <= hi; k++) c[k + 49] += c[k + 48];
  }
  void normalizar() {
    double m = 0;
    for (double v : c) m = std::max(m, v);
    for (double &v : c) v /= m;
  }
  double valor(double p) const { return en(static_cast<int>(p)); }
  double buscar(double p) const {
    for (int k = lo; k <= hi; k++) {
      if (en(k) > p) return (p - en(k - 1)) / (en(k) - en(k - 1)) + (k - 1) + 1.0;
    }
    return valor(p);
  }
};

// Los datos van en reales de 32 bits, como están declarados: una muestra a una diezmillonésima de un grado
// entero caería si no en otro.
struct Zona {
  float a1, f1, a2, f2;
  int maxRef;
};

Curva horasDelMes(double tx, double tn, double sx, double sn, const Zona &z, int dias, double cola) {
  const int N = 15;
  const double zmax = puntoDeCola(1 / (dias * cola));
  const double w = 2 * zmax / N;
  double p[16], zz[16];
  for (int i = 1; i <= 8; i++) {
    const double arriba = zmax - (i - 1) * w, abajo = zmax - i * w;
    const double d = PHI(arriba) - PHI(abajo);
    p[i] = std::fabs(d);
    zz[i] = (fi(abajo) - fi(arriba)) / d;
  }
  for (int i = 9; i <= 15; i++) {
    zz[i] = -zz[16 - i];
    p[i] = p[16 - i];
  }
  double suma = 0;
  for (int i = 1; i <= 15; i++) suma += p[i];
  p[8] += 1 - suma;
  Curva r;
  for (int i = 1; i <= 15; i++) {
    int cuenta[100] = {};
    const double Tx = tx + sx * zz[i], Tn = tn + sn * zz[i];
    for (int j = 1; j <= 72; j++) {
      const double t = j / 3.0;
      const double T =
          (z.a1 * std::cos((15 * t - z.f1) * 0.017453292) + z.a2 * std::cos((30 * t - z.f2) * 0.017453292)) *
              (Tx - Tn) / 2 +
          (Tx + Tn) / 2;
      int g = static_cast<int>(T);
      if (T < 0 && T != g) g--;
      g = std::min(50, std::max(-49, g));
      cuenta[g + 49]++;
      r.lo = std::min(r.lo, g);
      r.hi = std::max(r.hi, g);
    }
    for (int k = 0; k < 100; k++) r.c[k] += cuenta[k] * p[i] / 72 * 24 * dias;
  }
  return r;
}

double tg(double grados) { return std::tan(grados * PI / 180); }
double sn(double grados) { return std::sin(grados * PI / 180); }
double cs(double grados) { return std::cos(grados * PI / 180); }

double salidaDelSol(double latitud, int mes) {
  int n = 15;
  for (int m = 1; m < mes; m++) n += DIAS[m];
  const double d = 23.45 * std::sin(PI * 2 * (284 + n) / 365.0);
  const double c = -tg(latitud) * tg(d);
  return 12 - std::acos(c) * 12 / PI;
}

void temperaturas(double min, double max, double tr, double tm, std::array<double, 24> &T) {
  const double pi = 3.1415926, M = (max + min) / 2, A = (max - min) / 2;
  for (int h = 1; h <= 24; h++) {
    const double t = h - 0.5;
    double &v = T[static_cast<std::size_t>(h - 1)];
    if (t <= tr) {
      v = M + A * std::cos((t - tm + 24) * pi / (24 - tm + tr));
    } else if (t <= tm) {
      v = M - A * std::cos((t - tr) * pi / (tm - tr));
    } else {
      v = M + A * std::cos((t - tm) * pi / (24 - tm + tr));
    }
  }
}

struct Solar {
  double ws, H0;
};
Solar solar(double latitud, int mes) {
  const double n = (mes - 1) * 30.4 + 15, d = 23.45 * std::sin(2 * PI * (284 + n) / 365);
  const double c = -tg(latitud) * tg(d);
  double ws = std::atan(std::sqrt(1 - c * c) / c);
  if (ws < 0) ws += PI;
  const double E0 = 1 + 0.033 * std::cos(360 * n / 365);
  return {ws, 24 / PI * E0 * 1353 * (cs(latitud) * cs(d) * std::sin(ws) + ws * sn(latitud) * sn(d))};
}

double claridad(double K, double F) {
  const double g[6] = {0, -2.112, 0.126, 2.366, 4.669, 8.24}, km[6] = {0, 0.69, 0.74, 0.76, 0.79, 0.82};
  auto k = [&](int c) {
    const double e = std::exp(0.05 * g[c]);
    return std::log(e - F * (e - std::exp(g[c] * km[c]))) / g[c];
  };
  if (K <= 0.3) return k(1);
  if (K > 0.7) return k(5);
  const int c = K <= 0.4 ? 1 : K <= 0.5 ? 2 : K <= 0.6 ? 3 : 4;
  return k(c) + (k(c + 1) - k(c)) * (K - (0.2 + 0.1 * c)) / 0.1;
}

void radiacion(double H, const Solar &s, Dia &dia, double &k) {
  k = H / s.H0;
  const double f = k <= 0.17 ? 0.99
                   : k < 0.75
                       ? 1.188 - 2.272 * k + 9.473 * k * k - 21.856 * k * k * k + 14.648 * k * k * k * k
                   : k < 0.8 ? 0.632 - 0.54 * k
                             : 0.2;
  double Hb = H - f * H;
  if (Hb < 0) Hb = 0;
  const double Hd = H - Hb;
  const double a = 0.409 + 0.5016 * std::sin(s.ws - 1.047), b = 0.6609 - 0.4767 * std::sin(s.ws - 1.047);
  for (int i = 1; i <= 7; i++) {
    const double w = 15 * (i + 4.5 - 12) * 0.017453292;
    double rd = 0.1308997 * (std::cos(w) - std::cos(s.ws)) / (std::sin(s.ws) - s.ws * std::cos(s.ws));
    double rg = (a + b * std::cos(w)) * rd;
    rd = std::max(0.0, rd);
    rg = std::max(0.0, rg);
    for (int pos : {i, 15 - i}) {
      const auto hora = static_cast<std::size_t>(pos + 5 - 1);
      dia.rdif[hora] = std::max(0.0, rd * Hd);
      dia.rdir[hora] = std::max(0.0, rg * H - rd * Hd);
    }
  }
}

double psat(double TF) {
  const double T = (TF + 459.688) * 5 / 9, th = 273.16 / T;
  double l;
  if (T < 273.16) {
    l = -9.09718 * (th - 1) - 3.56654 * std::log10(th) + 0.876793 * (1 - 1 / th) + std::log10(0.0060273);
  } else {
    l = 10.79586 * (1 - th) + 5.02808 * std::log10(th) +
        1.50474e-4 * (1 - std::pow(10, -8.29692 * (1 / th - 1))) +
        4.2873e-4 * (std::pow(10, 4.76955 * (1 - th)) - 1) + std::log10(0.0060273);
  }
  return std::pow(10, l) * 29.921;
}
double rocio(double pw) {
  const double a = std::log(pw);
  const double TdF =
      pw >= 0.18063 ? 79.05 + 30.579 * a + 1.8893 * a * a : 71.98 + 24.873 * a + 0.8927 * a * a;
  return (TdF - 32) * 5 / 9;
}
void saturada(double T, double hr, double P, double &w, double &td) {
  const double pw = psat(T * 1.8 + 32) * hr * 0.01;
  w = 0.62198 * pw / (P - pw);
  td = rocio(pw);
}
void estado(double T, double w, double P, double &hr, double &td) {
  const double pw = w * P / (w + 0.62198);
  hr = pw / psat(T * 1.8 + 32);
  td = rocio(pw);
}

void humedad(double gkg, double alt, Dia &dia) {
  const double w = gkg * 0.001, P = 29.921 - alt * 0.00322;
  double Tmax = -1000, sinUso = 0, td = 0;
  for (double T : dia.text) Tmax = std::max(Tmax, T);
  estado(Tmax, w, P, sinUso, td);
  for (std::size_t h = 0; h < 24; h++) {
    if (td + 1 >= dia.text[h]) {
      dia.hrel[h] = 0.9;
      saturada(dia.text[h], 90, P, dia.habs[h], dia.trocio[h]);
    } else {
      double otro = 0;
      estado(dia.text[h], w, P, dia.hrel[h], otro);
      dia.habs[h] = w;
      dia.trocio[h] = td;
    }
    dia.habs[h] *= 1000;
    dia.hrel[h] *= 100;
  }
}

void cielo(double k, Dia &dia) {
  double d = 1 - (k - 0.25) * 2.0833333;
  d = std::min(1.0, std::max(0.0, d));
  const double N = 10 * d, C = 1 + 0.0224 * N - 0.0035 * N * N + 0.00028 * N * N * N;
  for (std::size_t h = 0; h < 24; h++) {
    const double e = C * (0.787 + 0.0028 * dia.trocio[h]);
    dia.tcielo[h] = std::pow(e, 0.25) * (dia.text[h] + 273) - 273;
  }
}

struct Registro {
  std::string zona;
  float latitud = 0, cola = 0, fila[7][13] = {};
  double alt = 0, wcal = -1, wref = -1;
};

bool leer(const std::string &gdr, const std::string &clave, Registro &r) {
  std::istringstream e(gdr);
  std::string linea;
  for (int n = 0; n < 177 && std::getline(e, linea); n++) {
    std::istringstream c(linea);
    std::string nombre, cola;
    double nada;
    c >> nombre >> r.zona >> r.latitud >> nada >> nada >> r.cola;
    if (nombre != clave) {
      for (int i = 0; i < 6; i++) std::getline(e, linea);
      continue;
    }
    while (c >> cola) {
      if (cola.substr(0, 4) == "ALT=") r.alt = std::atof(cola.c_str() + 4);
      if (cola.substr(0, 5) == "WCAL=") r.wcal = std::atof(cola.c_str() + 5);
      if (cola.substr(0, 5) == "WREF=") r.wref = std::atof(cola.c_str() + 5);
    }
    for (int f = 1; f <= 6; f++) {
      for (int m = 1; m <= 12; m++) e >> r.fila[f][m];
    }
    return true;
  }
  return false;
}

std::vector<double> lista(const Curva &c) { return {c.c, c.c + 100}; }

} // namespace

Salida Calcular(const std::string &gdr, const Entrada &e) {
  Salida s;
  Registro r;
  if (!leer(gdr, e.clave, r)) return s;
  s.hallado = true;
  s.latitud = r.latitud;
  s.cola = r.cola;
  const Zona z = r.zona == "COSTA" ? Zona{0.9141667F, 219.81667F, 0.23916666F, 18.616667F, 13}
                                   : Zona{0.92083335F, 236.00084F, 0.2175F, 62.370834F, 15};
  s.salidaCal = salidaDelSol(r.latitud, e.mesCal);
  s.salidaRef = salidaDelSol(r.latitud, e.mesRef);

  Curva tempCal, tempRef, mesCal, mesRef, enero, julio;
  double horasCal = 0, horasRef = 0;
  for (int m = 1; m <= 12; m++) {
    const Curva h = horasDelMes(r.fila[1][m], r.fila[2][m], r.fila[3][m], r.fila[4][m], z, DIAS[m], r.cola);
    Curva entre744 = h;
    for (double &v : entre744.c) v /= 744; // 744 horas, tenga el mes los días que tenga
    if (m == e.mesCal) mesCal = entre744;
    if (m == e.mesRef) mesRef = entre744;
    if (m == 1) enero = entre744;
    if (m == 7) julio = entre744;
    for (auto [marca, curva, horas] : {std::tuple(&e.temporadaCal, &tempCal, &horasCal),
                                       std::tuple(&e.temporadaRef, &tempRef, &horasRef)}) {
      if ((*marca)[static_cast<std::size_t>(m)] != 1) continue;
      *horas += DIAS[m] * 24;
      curva->lo = std::min(curva->lo, h.lo);
      curva->hi = std::max(curva->hi, h.hi);
      for (int k = 0; k < 100; k++) curva->c[k] += h.c[k];
    }
  }
  for (double &v : tempCal.c) v /= horasCal;
  for (double &v : tempRef.c) v /= horasRef;
  for (Curva *c : {&tempCal, &tempRef, &mesCal, &mesRef, &enero, &julio}) c->acumular();
  for (Curva *c : {&mesCal, &mesRef, &enero, &julio}) c->normalizar();
  for (const Curva *c : {&tempCal, &tempRef, &enero, &julio, &mesCal, &mesRef})
    s.acumuladas.push_back(lista(*c));

  s.t1 = s.t1mes = tempCal.buscar((100 - e.percentilCal) * 0.01);
  s.t2 = s.t2mes = tempRef.buscar((100 - e.percentilRef) * 0.01);
  s.f1 = mesCal.valor(s.t1);
  s.f2 = mesRef.valor(s.t2);
  s.fj = enero.valor(s.t1);
  s.fl = julio.valor(s.t2);
  if (e.mesCal != 1) s.t1mes = mesCal.buscar(s.fj);
  if (e.mesRef != 7) s.t2mes = mesRef.buscar(s.fl);

  const double rangoCal = r.fila[1][e.mesCal] - r.fila[2][e.mesCal];
  const double rangoRef = r.fila[1][e.mesRef] - r.fila[2][e.mesRef];
  temperaturas(s.t1mes, s.t1mes + rangoCal, s.salidaCal, 14, s.cal.text);
  temperaturas(s.t2mes - rangoRef, s.t2mes, s.salidaRef, z.maxRef, s.ref.text);

  const Solar sc = solar(r.latitud, e.mesCal), sr = solar(r.latitud, e.mesRef);
  s.h0cal = sc.H0;
  s.h0ref = sr.H0;
  s.Kcal = r.fila[5][e.mesCal] * 0.2777777851 / sc.H0;
  s.Kref = r.fila[5][e.mesRef] * 0.2777777851 / sr.H0;
  s.hcal = claridad(s.Kcal, s.f1) * sc.H0;
  s.href = claridad(s.Kref, s.f2) * sr.H0;
  radiacion(s.hcal, sc, s.cal, s.kcal);
  radiacion(s.href, sr, s.ref, s.kref);

  s.alt = r.alt;
  const double P = 29.921 - r.alt * 0.00322, seco = r.zona == "COSTA" ? 0 : 2;
  double nada = 0;
  saturada(r.fila[2][e.mesCal] - seco, 100, P, s.wcal, nada);
  saturada(r.fila[2][e.mesRef] - seco, 100, P, s.wref, nada);
  s.wcal = r.wcal >= 0 ? r.wcal : s.wcal * 1000;
  s.wref = r.wref >= 0 ? r.wref : s.wref * 1000;
  humedad(s.wcal, r.alt, s.cal);
  humedad(s.wref, r.alt, s.ref);
  cielo(s.kcal, s.cal);
  cielo(s.kref, s.ref);
  return s;
}

} // namespace referencia
