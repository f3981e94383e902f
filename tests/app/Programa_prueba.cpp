#include "app/Programa.h"

#include "core/Rutas.h"
#include "extremos/Diasextremos.h"
#include "localidades/Ciudad.h"
#include "meteo/Leermet.h"
#include "psicro/Corrienteaire.h"
#include "psicro/Psicrometrico.h"
#include "solar/Posicionsolar.h"
#include "tests/comun/Apoyos.h"

#include <gtest/gtest.h>

#include <new>

namespace tesmo {
namespace {

using Sucesos = std::vector<std::string>;

/// Motor que apunta cuándo se crea y cuándo se destruye.
template <class Motor>
class Anotado : public Motor {
public:
  explicit Anotado(Sucesos &sucesos) : sucesos_(sucesos) { sucesos_.push_back("+" + this->Nombre()); }
  ~Anotado() override { sucesos_.push_back("-" + this->Nombre()); }

private:
  Sucesos &sucesos_;
};

template <class Motor>
std::function<std::shared_ptr<Motor>()> Anotando(Sucesos &sucesos) {
  return [&sucesos] { return std::make_shared<Anotado<Motor>>(sucesos); };
}

FabricaMotores FabricaAnotada(Sucesos &sucesos) {
  return {Anotando<DiasExtremos>(sucesos), Anotando<PosicionSolar>(sucesos), Anotando<LeerMet>(sucesos),
          Anotando<Psicro>(sucesos)};
}

const Sucesos CREACION{"+DiasExtremos", "+PosicionSolar", "+LeerMet", "+Psicro"};
const Sucesos DESTRUCCION{"-DiasExtremos", "-PosicionSolar", "-LeerMet", "-Psicro"};

class ProgramaYMotores : public ::testing::Test {
protected:
  void SetUp() override {
    IniciarConfiguracion(base_.Ruta().string());
    LiberarBaseDeLocalidades();
  }
  void TearDown() override {
    LiberarBaseDeLocalidades();
    LiberarConfiguracion();
    std::filesystem::current_path(directorio_);
  }
  prueba::DirectorioTemporal base_;
  std::filesystem::path directorio_ = std::filesystem::current_path();
  prueba::MensajesApuntados mensajes_;
  Sucesos sucesos_;
};

TEST_F(ProgramaYMotores, SeLlamaProgramasYTieneLosCuatroMotoresYLaBase) {
  const Programa programa;
  EXPECT_EQ(programa.Nombre(), "Programas");
  ASSERT_NE(programa.DameDiasExtremos(), nullptr);
  ASSERT_NE(programa.DamePosicionSolar(), nullptr);
  ASSERT_NE(programa.DameLeerMet(), nullptr);
  ASSERT_NE(programa.DamePsicro(), nullptr);
  EXPECT_EQ(programa.DameLocalidades(), &DameBaseDeLocalidades());
  EXPECT_FALSE(programa.HayDatos());
}

TEST_F(ProgramaYMotores, CreaYDestruyeLosMotoresEnSuOrden) {
  {
    const Programa programa(FabricaAnotada(sucesos_));
    EXPECT_EQ(sucesos_, CREACION);
    sucesos_.clear();
  }
  EXPECT_EQ(sucesos_, DESTRUCCION);
}

TEST_F(ProgramaYMotores, LasCopiasCompartenMotoresYMuerenConLaUltima) {
  auto copia = std::make_unique<Programa>(FabricaAnotada(sucesos_));
  {
    const Programa original = *copia;
    EXPECT_EQ(original.DameLeerMet(), copia->DameLeerMet());
    EXPECT_EQ(original.DameLocalidades(), copia->DameLocalidades());
    EXPECT_EQ(original.Nombre(), "Programas");
    sucesos_.clear();
  }
  EXPECT_TRUE(sucesos_.empty());
  copia.reset();
  EXPECT_EQ(sucesos_, DESTRUCCION);
}

TEST_F(ProgramaYMotores, DestruirLosMotoresDeUnaCopiaDejaNulosLosDeTodas) {
  const Programa enLista(FabricaAnotada(sucesos_));
  sucesos_.clear();
  {
    Programa deLaVentana = enLista;
    deLaVentana.PonLocalidadCargada("Rota");
    deLaVentana.DestruirMotores();
    EXPECT_EQ(sucesos_, DESTRUCCION);
    deLaVentana.DestruirMotores();
  }
  EXPECT_EQ(sucesos_, DESTRUCCION);
  EXPECT_EQ(enLista.DameDiasExtremos(), nullptr);
  EXPECT_EQ(enLista.DamePosicionSolar(), nullptr);
  EXPECT_EQ(enLista.DameLeerMet(), nullptr);
  EXPECT_EQ(enLista.DamePsicro(), nullptr);
  EXPECT_FALSE(enLista.HayDatos());
  EXPECT_NE(enLista.DameLocalidades(), nullptr);
}

TEST_F(ProgramaYMotores, TodaCargaSeAvisaUnaVezYLaVenTodasLasCopias) {
  Programa programa;
  Programa copia(programa);
  std::vector<std::string> avisos;
  programa.AlCargar([&] { avisos.push_back("1 " + copia.DameLocalidadCargada()); });
  copia.AlCargar([&] { avisos.push_back("2 " + copia.DameLocalidadCargada()); });
  copia.PonLocalidadCargada("Rota");
  programa.PonLocalidadCargada({});
  EXPECT_EQ(avisos, (std::vector<std::string>{"1 Rota", "2 Rota", "1 ", "2 "}));
}

TEST_F(ProgramaYMotores, SinMemoriaParaUnMotorSigueConLosDemas) {
  FabricaMotores fabrica = FabricaAnotada(sucesos_);
  fabrica.leerMet = []() -> std::shared_ptr<LeerMet> { throw std::bad_alloc(); };
  fabrica.diasExtremos = nullptr;
  {
    const Programa programa(fabrica);
    EXPECT_EQ(programa.DameLeerMet(), nullptr);
    EXPECT_EQ(programa.DameDiasExtremos(), nullptr);
    EXPECT_NE(programa.DamePsicro(), nullptr);
  }
  EXPECT_EQ(sucesos_, (Sucesos{"+PosicionSolar", "+Psicro", "-PosicionSolar", "-Psicro"}));
}

TEST_F(ProgramaYMotores, LaBaseDeLocalidadesSobreviveALosProgramas) {
  BaseDeLocalidades &base = DameBaseDeLocalidades();
  base.PonTexto("Ciudad", "Rota");
  { const Programa programa; }
  EXPECT_EQ(DameBaseDeLocalidades().DameTexto("Ciudad"), "Rota");
  EXPECT_EQ(&DameBaseDeLocalidades(), &base);
}

TEST_F(ProgramaYMotores, LaBaseSeSueltaDespuesDeLosMotores) {
  struct MotorAtento : DiasExtremos {
    std::weak_ptr<BaseDeLocalidades> base;
    bool *viva = nullptr;
    ~MotorAtento() override { *viva = !base.expired(); }
  };
  bool viva = false;
  FabricaMotores fabrica = FabricaMotores::DeLaAplicacion();
  fabrica.diasExtremos = [&viva] {
    auto motor = std::make_shared<MotorAtento>();
    motor->base = CompartirBaseDeLocalidades();
    motor->viva = &viva;
    return motor;
  };
  {
    const Programa programa(fabrica);
    LiberarBaseDeLocalidades(); // ya sólo la sostiene el programa
  }
  EXPECT_TRUE(viva);
}

TEST_F(ProgramaYMotores, ClaveDesconocidaIgnoradaPorTodosLosMotores) {
  const Programa programa;
  mensajes_.apuntes.clear(); // el de la base de localidades, que aquí falta
  const float presion = programa.DamePsicro()->dameParametro(15);
  CorrienteAire aire;
  for (ObjetoBase *motor :
       {static_cast<ObjetoBase *>(&aire), static_cast<ObjetoBase *>(programa.DameDiasExtremos()),
        static_cast<ObjetoBase *>(programa.DameLeerMet()),
        static_cast<ObjetoBase *>(programa.DamePosicionSolar()),
        static_cast<ObjetoBase *>(programa.DamePsicro())}) {
    motor->PonTexto("Clave inventada", "99");
    EXPECT_EQ(motor->DameTexto("Clave inventada"), "") << motor->Nombre();
    EXPECT_FALSE(motor->MarcaAcumulada()) << motor->Nombre();
  }
  EXPECT_EQ(programa.DamePsicro()->dameParametro(15), presion);
  EXPECT_EQ(programa.DamePosicionSolar()->DameTexto("Inclinación"), "90.00");
  EXPECT_EQ(programa.DameLeerMet()->DameTexto("Variable"), "");
  EXPECT_TRUE(mensajes_.apuntes.empty());
}

} // namespace
} // namespace tesmo
