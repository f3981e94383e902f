#include "core/Error.h"
#include "core/Formato.h"
#include "psicro/Corrienteaire.h"
#include "psicro/Prefijoreal.h"

#include <array>

namespace tesmo {

namespace {

/// Argumentos de una orden; el que falta cuenta como texto vacío.
class Argumentos {
public:
  Argumentos(int argc, const char *const *argv) : argc_(argc), argv_(argv) {}
  [[nodiscard]] int Cuantos() const { return argc_; }
  [[nodiscard]] std::string_view Texto(int i) const {
    return argv_ != nullptr && i < argc_ && argv_[i] != nullptr ? std::string_view(argv_[i])
                                                                : std::string_view();
  }
  [[nodiscard]] float Real(int i) const { return static_cast<float>(PrefijoReal(Texto(i))); }

private:
  int argc_;
  const char *const *argv_;
};

constexpr int PALABRA = 1;
constexpr int PRIMERO = 2;
constexpr int SEGUNDO = 3;
constexpr int TERCERO = 4;

using PonEstado = void (CorrienteAire::*)(float, float, float);

template <PonEstado ponEstado>
void OrdenEstado(CorrienteAire &corriente, const Argumentos &a) {
  constexpr int SIN_PRESION = TERCERO;
  constexpr int CON_PRESION = TERCERO + 1;
  if (a.Cuantos() != SIN_PRESION && a.Cuantos() != CON_PRESION) {
    EscribirRegistro("** ARGUMENTOS NO VÁLIDOS PARA CorrienteAire::ProcesarOrden");
    return;
  }
  const float p = a.Cuantos() == CON_PRESION ? a.Real(TERCERO) : aire::PRESION_NORMAL;
  (corriente.*ponEstado)(a.Real(PRIMERO), a.Real(SEGUNDO), p);
}

void EscribirReal(long double valor) { EscribirRegistro(FormatoF(static_cast<double>(valor))); }

void FaltaUnObjeto() { EscribirRegistro("Alguno de los objetos no existe:CorrienteAire::ProcesarOrden"); }

void OrdenPonNombre(CorrienteAire &corriente, const Argumentos &a) {
  corriente.PonNombre(std::string(a.Texto(PRIMERO)));
}

void OrdenMostrar(CorrienteAire &corriente, const Argumentos & /*a*/) { corriente.mostrar(); }

void OrdenPonm(CorrienteAire &corriente, const Argumentos &a) {
  corriente.ponm(a.Real(PRIMERO), a.Texto(SEGUNDO));
}

void OrdenEscribir(CorrienteAire &corriente, const Argumentos &a) {
  corriente.escribir(std::string(a.Texto(PRIMERO)));
}

void OrdenDame(CorrienteAire &corriente, const Argumentos &a) {
  EscribirReal(corriente.dame(a.Texto(PRIMERO)));
}

void OrdenMezclar(CorrienteAire & /*corriente*/, const Argumentos &a) {
  const CorrienteAire *una = BuscarCorriente(a.Texto(PRIMERO));
  const CorrienteAire *otra = BuscarCorriente(a.Texto(SEGUNDO));
  CorrienteAire *resultado = BuscarCorriente(a.Texto(TERCERO));
  if (una == nullptr || otra == nullptr || resultado == nullptr) {
    FaltaUnObjeto();
    return;
  }
  mezclar(*una, *otra, *resultado);
}

using CalorEntre = float (*)(const CorrienteAire &, const CorrienteAire &);

template <CalorEntre calor>
void OrdenCalor(CorrienteAire & /*corriente*/, const Argumentos &a) {
  const CorrienteAire *ent = BuscarCorriente(a.Texto(PRIMERO));
  const CorrienteAire *sal = BuscarCorriente(a.Texto(SEGUNDO));
  if (ent == nullptr || sal == nullptr) {
    FaltaUnObjeto();
    return;
  }
  EscribirReal(calor(*ent, *sal));
}

struct Orden {
  std::string_view nombre;
  void (*ejecutar)(CorrienteAire &corriente, const Argumentos &a);
};

/// Gana la primera cuyo nombre es comienzo de la palabra: "dame" tapa a las dos últimas (se conserva).
constexpr std::array<Orden, 14> ORDENES{{
    {"ponNombre", OrdenPonNombre},
    {"mostrar", OrdenMostrar},
    {"ponm", OrdenPonm},
    {"pont_w", OrdenEstado<&CorrienteAire::pont_w>},
    {"pont_th", OrdenEstado<&CorrienteAire::pont_th>},
    {"pont_tr", OrdenEstado<&CorrienteAire::pont_tr>},
    {"pont_hr", OrdenEstado<&CorrienteAire::pont_hr>},
    {"pont_h", OrdenEstado<&CorrienteAire::pont_h>},
    {"ponw_h", OrdenEstado<&CorrienteAire::ponw_h>},
    {"escribir", OrdenEscribir},
    {"dame", OrdenDame},
    {"mezclar", OrdenMezclar},
    {"dameQSen", OrdenCalor<&dameQSen>},
    {"dameQLat", OrdenCalor<&dameQLat>},
}};

} // namespace

void CorrienteAire::ProcesarOrden(int argc, const char *const *argv) {
  const Argumentos a(argc, argv);
  const std::string_view palabra = a.Texto(PALABRA);
  for (const Orden &orden : ORDENES) {
    if (palabra.starts_with(orden.nombre)) {
      orden.ejecutar(*this, a);
      return;
    }
  }
  // Nombra el primer argumento en lugar de la orden, y así se conserva, erratas incluidas.
  EscribirRegistro(std::string("** La función ")
                       .append(a.Texto(PRIMERO))
                       .append(" no peretenece a la clase CorrrienteAire"));
}

} // namespace tesmo
