#include "app/Programa.h"

#include "extremos/Diasextremos.h"
#include "localidades/Ciudad.h"
#include "meteo/Leermet.h"
#include "psicro/Psicrometrico.h"
#include "solar/Posicionsolar.h"

#include <new>
#include <utility>
#include <vector>

namespace tesmo {

/// Lo que comparten las copias de un programa.
struct Programa::Motores {
  std::shared_ptr<DiasExtremos> diasExtremos;
  std::shared_ptr<PosicionSolar> posicionSolar;
  std::shared_ptr<LeerMet> leerMet;
  std::shared_ptr<Psicro> psicro;
  std::string localidadCargada;
  std::vector<std::function<void()>> alCargar;
  Accion *accion = nullptr;

  Motores() = default;
  Motores(const Motores &) = delete;
  Motores &operator=(const Motores &) = delete;
  ~Motores() { Destruir(); }

  /// Por el orden de creación, que no es el que seguirían los miembros.
  void Destruir() {
    localidadCargada.clear();
    diasExtremos.reset();
    posicionSolar.reset();
    leerMet.reset();
    psicro.reset();
  }
};

namespace {

/// El motor que dé @p crear, o nulo si no hay con qué crearlo o falta memoria.
template <class Motor>
std::shared_ptr<Motor> Crear(const std::function<std::shared_ptr<Motor>()> &crear) {
  try {
    return crear ? crear() : nullptr;
  } catch (const std::bad_alloc &) {
    return nullptr;
  }
}

template <class Motor>
std::shared_ptr<Motor> PorDefecto() {
  return std::make_shared<Motor>();
}

} // namespace

FabricaMotores FabricaMotores::DeLaAplicacion() {
  return {PorDefecto<DiasExtremos>, PorDefecto<PosicionSolar>, PorDefecto<LeerMet>, PorDefecto<Psicro>};
}

Programa::Programa() : Programa(FabricaMotores::DeLaAplicacion()) {}

Programa::Programa(const FabricaMotores &fabrica)
    : ObjetoBase("Programas"), motores_(std::make_shared<Motores>()) {
  motores_->diasExtremos = Crear(fabrica.diasExtremos);
  motores_->posicionSolar = Crear(fabrica.posicionSolar);
  motores_->leerMet = Crear(fabrica.leerMet);
  motores_->psicro = Crear(fabrica.psicro);
  localidades_ = CompartirBaseDeLocalidades();
}

Programa::~Programa() = default;

DiasExtremos *Programa::DameDiasExtremos() const { return motores_->diasExtremos.get(); }
PosicionSolar *Programa::DamePosicionSolar() const { return motores_->posicionSolar.get(); }
LeerMet *Programa::DameLeerMet() const { return motores_->leerMet.get(); }
Psicro *Programa::DamePsicro() const { return motores_->psicro.get(); }
BaseDeLocalidades *Programa::DameLocalidades() const { return localidades_.get(); }

void Programa::DestruirMotores() { motores_->Destruir(); }

bool Programa::HayDatos() const { return !motores_->localidadCargada.empty(); }
const std::string &Programa::DameLocalidadCargada() const { return motores_->localidadCargada; }

void Programa::PonLocalidadCargada(const std::string &localidad) {
  motores_->localidadCargada = localidad;
  // Un aviso puede inscribir otros: se recorre por posición y se llama a una copia.
  for (std::size_t i = 0; i < motores_->alCargar.size(); ++i) {
    const auto aviso = motores_->alCargar[i];
    aviso();
  }
}

void Programa::AlCargar(std::function<void()> aviso) { motores_->alCargar.push_back(std::move(aviso)); }

Accion *Programa::DameAccion() const { return motores_->accion; }
void Programa::PonAccion(Accion *accion) { motores_->accion = accion; }

} // namespace tesmo
