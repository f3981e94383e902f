#include "tests/psicro/Cartallana.h"

#include "psicro/Corrienteaire.h"
#include "psicro/Saturacion.h"
#include "tests/psicro/Buscaraizllana.h"

#include <cmath>

using namespace tesmo;

std::vector<std::string> CartaLlana(const ParametrosCartaLlana &c) {
  std::vector<std::string> salida;
  CorrienteAire s;
  const auto W = [&s] { return double(s.dame("w")); };
  const auto x = [&c](double t) { return float(double(c.ancho) / c.tMax * t); };
  const auto y = [&c](double w) { return float(-double(c.alto) / c.wMax * (w - c.wMax)); };
  const auto pixel = [&salida](const char *que, double X, double Y) {
    salida.push_back(que + std::to_string(long(X)) + " " + std::to_string(long(Y)));
  };
  const auto mover = [&](double t, double w) {
    pixel("mover ", (x(t) - double(c.dx)) * c.zoom, (y(w) - double(c.dy)) * c.zoom);
  };
  const auto linea = [&](double t, double w) {
    pixel("linea ", (x(t) - double(c.dx)) * c.zoom, (y(w) - double(c.dy)) * c.zoom);
  };
  const auto resolver = [](float inicio, auto &&residuo) {
    EstadoBuscaRaiz e;
    e.tolerancia = 1e-5;
    float z = inicio;
    bool listo = false;
    int k = 0;
    do {
      const float f = residuo(z);
      z = float(BuscaRaizLlana(e, z, f, k, listo));
      ++k;
    } while (!listo && k < 30);
    return z;
  };

  salida.emplace_back("color 0x0000FF");
  for (float w = c.wMin; w <= c.wMax; w += c.wPaso) {
    s.pont_w(c.tMax, w, c.presion);
    float t = float(s.dame("tr"));
    mover(t, w);
    for (; t <= c.tMax + 30; t += c.tPaso) linea(t, w);
  }

  salida.emplace_back("color 0x808000");
  for (int fi = int(c.hrMin); float(fi) <= c.hrMax; fi = int(double(fi) + double(c.hrPaso))) {
    s.pont_hr(0, float(fi), c.presion);
    if (c.zoom == 1)
      pixel("mover ", 0, y(W()));
    else
      pixel("mover ", (c.v3 - double(c.ancho)) * c.zoom, (y(W()) - double(c.dx)) * c.zoom);
    for (int t = 1; float(t) <= c.tMax + 10; ++t) {
      s.pont_hr(float(t), float(fi), c.presion);
      linea(t, W());
    }
  }

  salida.emplace_back("color 0xFF00FF");
  for (int t = int(c.tMin); float(t) <= c.tMax; t = int(double(t) + double(c.tPaso))) {
    s.pont_hr(float(t), 100, c.presion);
    const double ws = W();
    if (c.zoom == 1)
      pixel("mover ", x(t), y(ws) - double(c.dy));
    else
      mover(t, ws);
    for (float w = 0; w <= ws; w += c.wPaso) linea(t, w);
  }

  salida.emplace_back("color 0x000000");
  bool desdeAbajo = true;
  float t0 = 0;
  for (long h = long(c.hMin); float(h) <= c.hMax; h = long(double(h) + double(c.hPaso))) {
    double ti = 0;
    double wi = 0;
    if (desdeAbajo) {
      t0 = resolver(t0, [&](float t) {
        s.pont_w(t, 0, c.presion);
        return float((long double)(h)-s.dame("h"));
      });
      ti = t0;
    }
    if (!desdeAbajo || t0 > c.tMax) {
      desdeAbajo = false;
      s.pont_h(c.tMax, float(h), c.presion);
      ti = c.tMax;
      wi = W();
    }
    if (wi <= c.wMax) {
      const float ts = resolver(0, [&](float t) {
        s.pont_hr(t, 100, c.presion);
        return float((long double)(h)-s.dame("h"));
      });
      if (ts > c.tMin && std::isfinite(ti)) {
        s.pont_hr(ts, 100, c.presion);
        mover(ti, wi);
        linea(ts, W());
      }
    }
  }

  salida.emplace_back("color 0x000080");
  for (float v = c.veMin; v <= c.veMax + 0.1; v += c.vePaso) {
    const double seco = double(v) * c.presion / 287 - 273.15;
    const float t = resolver(0, [&](float z) {
      return float(v - (z + 273.15) * 287 / (c.presion - double(presionSaturacion(z))));
    });
    const double ps = presionSaturacion(t);
    s.pont_w(t, float(0.6219779385109357 * ps / (c.presion - ps)), c.presion);
    mover(double(s.dame("t")), W());
    linea(seco, 0);
  }
  return salida;
}
