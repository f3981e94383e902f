#include "core/Objetobase.h"
#include "tests/comun/Apoyos.h"

#include <gtest/gtest.h>

using namespace tesmo;
using namespace tesmo::prueba;

namespace {

class Mudo : public ObjetoBase {
public:
  Mudo() : ObjetoBase("Mudo") {}
};

class VistaNula : public Observador {
public:
  void ObjetoCambiado(const ObjetoBase &) override {}
};

} // namespace

TEST(ObjetoBase, RecienConstruidoNoTieneMarcasNiObservador) {
  const Mudo objeto;
  EXPECT_FALSE(objeto.MarcaLectura());
  EXPECT_FALSE(objeto.MarcaAcumulada());
  EXPECT_EQ(objeto.Vista(), nullptr);
  EXPECT_EQ(objeto.Nombre(), "Mudo");
  EXPECT_EQ(objeto.nombreClase(), "");
}

TEST(ObjetoBase, UnaClaveDesconocidaSeIgnoraSinAvisar) {
  MensajesApuntados mensajes;
  RegistroApuntado registro;
  Mudo objeto;
  float real = 1.5F;
  std::int32_t entero = 7;
  std::int32_t estado = 9;
  bool logico = true;
  objeto.PonTexto("Latitud", "37");
  objeto.DameReal("Latitud", real);
  objeto.DameEntero("Mes", entero);
  objeto.DameLogico("Es de día", logico);
  objeto.DameEstado("Mes", estado);
  objeto.ProcesarOrden(0, nullptr);
  EXPECT_EQ(objeto.DameTexto("Latitud"), "");
  EXPECT_EQ(real, 1.5F);
  EXPECT_EQ(entero, 7);
  EXPECT_EQ(estado, 9);
  EXPECT_TRUE(logico);
  EXPECT_TRUE(mensajes.apuntes.empty());
  EXPECT_TRUE(registro.textos.empty());
}

TEST(ObjetoBase, SeAsociaYSeDesasociaDeSuVista) {
  Mudo objeto;
  VistaNula vista;
  objeto.AsociarVista(&vista);
  EXPECT_EQ(objeto.Vista(), &vista);
  objeto.DesasociarVista();
  EXPECT_EQ(objeto.Vista(), nullptr);
}

TEST(EntradaValidada, ConComaRegionalUnPuntoSeLeeIgual) {
  const ConSeparador coma(',');
  Mudo objeto;
  EXPECT_EQ(objeto.LeerReal("36.84", -89, 89, 1), 36.84F);
  EXPECT_EQ(objeto.LeerReal("36,84", -89, 89, 1), 36.84F);
}

TEST(EntradaValidada, ConPuntoRegionalUnaComaSeLeeIgual) {
  const ConSeparador punto('.');
  Mudo objeto;
  EXPECT_EQ(objeto.LeerReal("36,84", -89, 89, 1), 36.84F);
}

TEST(EntradaValidada, UnSeparadorEnElUltimoCaracterNoSeConvierte) {
  const ConSeparador coma(',');
  Mudo objeto;
  EXPECT_EQ(objeto.LeerReal("5.", 0, 89, 1), 1.0F) << "el punto final no es el separador regional";
  EXPECT_TRUE(objeto.MarcaLectura());
  Mudo otro;
  EXPECT_EQ(otro.LeerReal("5,", 0, 89, 1), 5.0F);
}

TEST(EntradaValidada, PasarDelMaximoLoDiceYTomaElDefecto) {
  MensajesApuntados mensajes;
  Mudo objeto;
  EXPECT_EQ(objeto.LeerReal("95", -89, 89, 1), 1.0F);
  ASSERT_EQ(mensajes.apuntes.size(), 1U);
  EXPECT_EQ(mensajes.apuntes[0].texto, "95.000000 > 89.000000 (máximo), valor por defecto: 1.000000");
  EXPECT_EQ(mensajes.apuntes[0].titulo, "Error");
  EXPECT_EQ(mensajes.apuntes[0].icono, Icono::Ninguno);
}

TEST(EntradaValidada, NoLlegarAlMinimoLoDice) {
  MensajesApuntados mensajes;
  Mudo objeto;
  EXPECT_EQ(objeto.LeerReal("-90,5", -89, 89, 1), 1.0F);
  EXPECT_EQ(mensajes.apuntes.at(0).texto, "-90.500000 < -89.000000 (mínimo), valor por defecto: 1.000000");
}

TEST(EntradaValidada, LosTextosEnterosVanSinAcentos) {
  MensajesApuntados mensajes;
  Mudo objeto;
  EXPECT_EQ(objeto.LeerEntero("13", 1, 12, 1), 1);
  EXPECT_EQ(objeto.LeerEntero("0", 1, 12, 1), 1);
  ASSERT_EQ(mensajes.apuntes.size(), 2U);
  EXPECT_EQ(mensajes.apuntes[0].texto, "13 > 12 (maximo), valor por defecto: 1");
  EXPECT_EQ(mensajes.apuntes[1].texto, "0 < 1 (minimo), valor por defecto: 1");
}

TEST(EntradaValidada, UnEnteroSeTruncaHaciaCeroAntesDeCompararlo) {
  MensajesApuntados mensajes;
  Mudo objeto;
  EXPECT_EQ(objeto.LeerEntero("3.9", 1, 12, 1), 3);
  EXPECT_EQ(objeto.LeerEntero("-3.9", -5, 12, 1), -3);
  EXPECT_EQ(objeto.LeerEntero("12.9", 1, 12, 1), 12);
  EXPECT_EQ(objeto.LeerEntero("-0.9", 0, 12, 1), 0);
  EXPECT_TRUE(mensajes.apuntes.empty());
  EXPECT_EQ(objeto.LeerEntero("1e30", 1, 12, 4), 4) << "se satura, no desborda";
}

TEST(EntradaValidada, UnValorIgualAlLimiteSeAdmiteCallando) {
  MensajesApuntados mensajes;
  Mudo objeto;
  EXPECT_EQ(objeto.LeerReal("89", -89, 89, 1), 89.0F);
  EXPECT_EQ(objeto.LeerEntero("12", 1, 12, 1), 12);
  EXPECT_TRUE(mensajes.apuntes.empty());
  EXPECT_FALSE(objeto.MarcaLectura());
}

TEST(EntradaValidada, LoQueNoSePuedeLeerTomaElDefectoSinCaja) {
  MensajesApuntados mensajes;
  for (const char *texto :
       {"", "   ", "abc", "1.2.3", "1,2.3", "12a", "nan", "inf", "1 000", "0x10", "1e", "-", "."}) {
    Mudo objeto;
    EXPECT_EQ(objeto.LeerReal(texto, -89, 89, 7), 7.0F) << texto;
    EXPECT_TRUE(objeto.MarcaLectura()) << texto;
    EXPECT_TRUE(objeto.MarcaAcumulada()) << texto;
  }
  EXPECT_TRUE(mensajes.apuntes.empty());
}

TEST(EntradaValidada, ElDefectoNoSeComparaConLosLimites) {
  Mudo objeto;
  EXPECT_EQ(objeto.LeerReal("x", 0, 1, 50), 50.0F);
}

TEST(EntradaValidada, LaMarcaAcumuladaDuraHastaQueSeLimpia) {
  Mudo objeto;
  float valor = 0;
  std::int32_t estado = ENTRADA_BLANCO;
  objeto.ActualizarReal(valor, estado, "malo", 0, 10, 3);
  EXPECT_FALSE(objeto.MarcaLectura()) << "la actualización la limpia";
  EXPECT_TRUE(objeto.MarcaAcumulada());
  objeto.ActualizarReal(valor, estado, "4", 0, 10, 3);
  EXPECT_TRUE(objeto.MarcaAcumulada());
  objeto.LimpiarMarcaAcumulada();
  EXPECT_FALSE(objeto.MarcaAcumulada());
}

TEST(EntradaValidada, TeclearElMismoValorNoCambiaNada) {
  Mudo objeto;
  float valor = 0;
  std::int32_t estado = ENTRADA_BLANCO;
  objeto.ActualizarReal(valor, estado, "4", 0, 10, 3);
  EXPECT_EQ(estado, ENTRADA_TECLEADA);
  objeto.ActualizarReal(valor, estado, "4,0", 0, 10, 3);
  EXPECT_EQ(estado, ENTRADA_TECLEADA);
  EXPECT_EQ(valor, 4.0F);
}

TEST(EntradaValidada, UnValorIgualAlQueHayDejaElEstadoEnBlanco) {
  Mudo objeto;
  float valor = 90;
  std::int32_t estado = ENTRADA_BLANCO;
  objeto.ActualizarReal(valor, estado, "90", 0, 180, 90);
  EXPECT_EQ(estado, ENTRADA_BLANCO);
}

TEST(EntradaValidada, UnTextoVacioEsInvalidoEnRealesYEnteros) {
  Mudo objeto;
  float real = 5;
  std::int32_t entero = 5;
  std::int32_t estadoReal = ENTRADA_TECLEADA;
  std::int32_t estadoEntero = ENTRADA_TECLEADA;
  objeto.ActualizarReal(real, estadoReal, "", 0, 10, 3);
  objeto.ActualizarEntero(entero, estadoEntero, "", 0, 10, 3);
  EXPECT_EQ(real, 3.0F);
  EXPECT_EQ(entero, 3);
  EXPECT_EQ(estadoReal, ENTRADA_INVALIDA);
  EXPECT_EQ(estadoEntero, ENTRADA_INVALIDA);
}

TEST(EntradaValidada, DeInvalidoSeSaleConElMismoValor) {
  Mudo objeto;
  float valor = 3;
  std::int32_t estado = ENTRADA_INVALIDA;
  objeto.ActualizarReal(valor, estado, "3", 0, 10, 1);
  EXPECT_EQ(estado, ENTRADA_TECLEADA);
}

TEST(EntradaValidada, UnTextoIgualAlBlancoDejaElCampoEnBlanco) {
  std::string valor = "a";
  std::int32_t estado = ENTRADA_BLANCO;
  ObjetoBase::ActualizarTexto(valor, estado, "b", "");
  EXPECT_EQ(valor, "b");
  EXPECT_EQ(estado, ENTRADA_TECLEADA);
  ObjetoBase::ActualizarTexto(valor, estado, "", "");
  EXPECT_EQ(valor, "");
  EXPECT_EQ(estado, ENTRADA_BLANCO);
}
