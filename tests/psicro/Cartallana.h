#pragma once

#include <string>
#include <vector>

/// Parámetros de la carta por su nombre, con los valores con que empieza.
struct ParametrosCartaLlana {
  int dx = 0, dy = 0, v3 = 0, zoom = 1;
  float ancho = 900, alto = 600, presion = 101325;
  float tMax = 50, tMin = 0, tPaso = 5;
  float wMax = 0.03F, wMin = 0.001F, wPaso = 0.001F;
  float hMax = 120000, hMin = 0, hPaso = 10000;
  float hrMax = 100, hrMin = 0, hrPaso = 10;
  float veMin = 0.74F, veMax = 0.93F, vePaso = 0.01F;
};

/// Segunda escritura del dibujo, seguida y sin repartir en familias, para compararla llamada a llamada con la
/// del motor. Sólo para parámetros sensatos: no se guarda de pasos que no avanzan, y de lo que no es número
/// sólo en el arranque de las líneas de entalpía.
std::vector<std::string> CartaLlana(const ParametrosCartaLlana &c);
