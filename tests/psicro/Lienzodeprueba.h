#pragma once

#include "psicro/Lienzo.h"

#include <cstdio>
#include <string>
#include <vector>

/// Lienzo que apunta cada llamada como una línea de texto: "color 0xBBGGRR", "grueso N", "mover X Y" o
/// "linea X Y".
class LienzoDePrueba : public tesmo::Lienzo {
public:
  struct Punto {
    int x, y;
    bool traza;
  };

  void PonColor(tesmo::ColorBgr color) override {
    char texto[24];
    std::snprintf(texto, sizeof texto, "color 0x%06X", color);
    llamadas.emplace_back(texto);
  }
  void PonGrueso(int grueso) override { llamadas.push_back("grueso " + std::to_string(grueso)); }
  void MoverA(int x, int y) override { Apuntar("mover ", {x, y, false}); }
  void LineaA(int x, int y) override { Apuntar("linea ", {x, y, true}); }

  std::vector<std::string> llamadas;
  std::vector<Punto> puntos;

private:
  void Apuntar(const char *nombre, Punto punto) {
    llamadas.push_back(nombre + std::to_string(punto.x) + ' ' + std::to_string(punto.y));
    puntos.push_back(punto);
  }
};
