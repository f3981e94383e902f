#include "localidades/Lectorlocalidades.h"

#include "core/Codificacion.h"

#include <gtest/gtest.h>

#include <chrono>
#include <random>

namespace tesmo {
namespace {

constexpr std::chrono::milliseconds DURACION{2500};
constexpr std::size_t REGISTROS_MAXIMOS = 20000; ///< las líneas de la semilla más 10 000 repetidas

const std::string SEMILLA =
    "2,Almería\r\nAlmería,Almeria,Almería,Capital,Almería,almeria.met,36.84,-2.39,-15,21,0\n"
    "Rota , Rota,\tCádiz,x,Cádiz,rota.met,36,64,-6.35,-15,21,0,de más\n\n"
    "1\nMotril,Motril,Granada\n3\nJa\xE9n,Jaen,Ja\xE9n,x,y,jaen.met,37.8,-3.8,-15,580,1";

void Mutar(std::string &texto, std::mt19937 &azar) {
  static const std::string TROZOS[] = {
      "\n",  ",",           "\r\n", "99999999999", std::string(1, '\0'),  "\xC3",
      "ñ",   "-",           "\t",   "1e999",       std::string(400, 'x'), "0x",
      "nan", "\xEF\xBB\xBF"};
  const auto en = [&](std::size_t n) { return std::uniform_int_distribution<std::size_t>(0, n)(azar); };
  const std::size_t donde = en(texto.size());
  switch (en(3)) {
  case 0:
    texto.insert(donde, TROZOS[en(std::size(TROZOS) - 1)]);
    break;
  case 1:
    texto.erase(donde, en(20));
    break;
  case 2:
    texto.insert(donde, texto.substr(en(texto.size()), en(60)));
    break;
  default:
    if (donde < texto.size()) texto[donde] = static_cast<char>(en(255));
  }
}

void Comprobar(const ObjetoCiudad &ciudad) {
  for (const std::string *texto : {&ciudad.localidad, &ciudad.localidadCorta, &ciudad.provincia,
                                   &ciudad.cuarto, &ciudad.localidadRef, &ciudad.fichero}) {
    ASSERT_TRUE(EsUtf8(*texto)) << *texto;
    ASSERT_LE(texto->size(), 49U * 3U); // un byte de Windows-1252 puede dar tres de UTF-8
    ASSERT_EQ(texto->find_first_of(",\n"), std::string::npos) << *texto;
  }
  ASSERT_FALSE(ciudad.latitud != ciudad.latitud);
}

TEST(FuzzDeLocalidades, MutacionesSinDesbordarNiTextosRotos) {
  std::mt19937 azar(20240601);
  const auto fin = std::chrono::steady_clock::now() + DURACION;
  int leidos = 0;
  while (std::chrono::steady_clock::now() < fin) {
    std::string texto = SEMILLA;
    for (int i = std::uniform_int_distribution<int>(1, 12)(azar); i > 0; --i) Mutar(texto, azar);
    const auto registros = LeerLocalidades(
        texto, "f", [](const std::string &aviso) { ASSERT_TRUE(aviso.starts_with("f: línea ")) << aviso; });
    ASSERT_LE(registros.size(), REGISTROS_MAXIMOS);
    if (!registros.empty()) Comprobar(*registros.front());
    for (std::size_t i = 0; i < std::min<std::size_t>(registros.size(), 12); ++i) Comprobar(*registros[i]);
    if (HasFatalFailure()) FAIL() << "con el texto: " << texto;
    ++leidos;
  }
  EXPECT_GT(leidos, 100);
}

} // namespace
} // namespace tesmo
