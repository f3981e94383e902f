#include "core/Error.h"
#include "core/Formato.h"
#include "psicro/Corrienteaire.h"

namespace tesmo {

namespace {

void EscribirMagnitud(std::string rotulo, long double valor, std::string_view final = {}) {
  rotulo += FormatoF(static_cast<double>(valor));
  rotulo += final;
  EscribirRegistro(rotulo);
}

} // namespace

void CorrienteAire::mostrar() const {
  EscribirMagnitud("Caudal masico (kg/s): ", m_);
  EscribirMagnitud("Temperatura (C): ", t_, " ");
  EscribirMagnitud("Presion (Pa): ", p_);
  EscribirMagnitud("Humedad Absoluta (kg agua/kg a.s.): ", w_);
  EscribirMagnitud("Humedad Relativa (%): ", humedadRelativa());
  EscribirMagnitud("Temperatura de Rocio (C): ", temperaturaRocio());
  EscribirMagnitud("Temperatura humeda (C): ", temperaturaHumeda());
  EscribirMagnitud("Entalpia (J/kg): ", entalpia());
  EscribirMagnitud("Densidad (kg/m^3): ", densidad());
}

void CorrienteAire::escribir(const std::string &ruta) const {
  AbrirRegistro(ruta);
  mostrar();
  CerrarRegistro();
}

} // namespace tesmo
