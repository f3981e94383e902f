#include "tests/intercambio/escritura/Apoyosescritura.h"

#include "meteo/Fecha.h"

#include <algorithm>
#include <sys/wait.h>
#include <unistd.h>

namespace tesmo::prueba {

namespace {

void Llenar(SerieCanonica &serie, const std::function<double(const FechaHora &)> &valor) {
  for (int i = 0; i < HORAS_DEL_ANIO; ++i)
    serie.Poner(static_cast<std::size_t>(i), valor(FechaDeIndice(i)), Procedencia::Copiada);
}

} // namespace

AnioSolar AnioAMano() {
  AnioSolar anio;
  anio.sitio = {"Prueba", "Region", "ESP", "1", 37.25, -3.5, 680.0};
  anio.husoHoras = 1;
  const auto constante = [](double valor) { return [valor](const FechaHora &) { return valor; }; };
  Llenar(anio[SerieAlmacenada::TemperaturaSeca], [](const FechaHora &f) {
    const double deLaHora = f.hora == 1 ? -5.0 : f.hora == 13 ? 5.0 : 0.0;
    return f.mes + (f.dia % 2 == 1 ? 1.0 : -1.0) + deLaHora;
  });
  Llenar(anio[SerieAlmacenada::TemperaturaCielo], constante(-12.0));
  Llenar(anio[SerieAlmacenada::RadiacionDirecta],
         [](const FechaHora &f) { return f.hora == 12 || f.hora == 13 ? 300.0 : 0.0; });
  Llenar(anio[SerieAlmacenada::RadiacionDifusa],
         [](const FechaHora &f) { return f.hora >= 9 && f.hora <= 16 ? 100.0 : 0.0; });
  Llenar(anio[SerieAlmacenada::HumedadAbsoluta], [](const FechaHora &f) { return f.mes / 1000.0; });
  Llenar(anio[SerieAlmacenada::HumedadRelativa], constante(50.0));
  Llenar(anio[SerieAlmacenada::VelocidadViento], constante(2.5));
  Llenar(anio[SerieAlmacenada::DireccionViento], constante(270.0));
  Llenar(anio[SerieAlmacenada::Acimut], constante(-30.25));
  Llenar(anio[SerieAlmacenada::Cenit], constante(45.5));
  Llenar(anio.presion, constante(93500.0));
  return anio;
}

bool MuereTras(int pasos, const std::function<void(const std::function<void()> &)> &accion) {
  const pid_t hijo = fork();
  if (hijo == 0) {
    int quedan = pasos;
    accion([&quedan] {
      if (--quedan == 0) _exit(1);
    });
    _exit(0);
  }
  int estado = 0;
  return hijo > 0 && waitpid(hijo, &estado, 0) == hijo && WIFEXITED(estado) && WEXITSTATUS(estado) == 0;
}

} // namespace tesmo::prueba
