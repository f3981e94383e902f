#include "cli/Lienzostexto.h"

#include <gtest/gtest.h>

#include <sstream>

namespace tesmo::cli {
namespace {

TEST(LienzoOrdenes, UnaLineaPorLlamadaConBlancosSencillos) {
  std::ostringstream salida;
  LienzoOrdenes lienzo(salida);
  lienzo.PonColor(0x0A00FF);
  lienzo.PonGrueso(2);
  lienzo.MoverA(-3, 4);
  lienzo.LineaA(5, -600);
  EXPECT_EQ(salida.str(), "color 0x0A00FF\ngrueso 2\nmover -3 4\nlinea 5 -600\n");
}

TEST(LienzoSvg, VacioTieneTamanoYFondoBlanco) {
  const std::string svg = LienzoSvg(90, 60).Documento();
  EXPECT_NE(svg.find("width=\"90\" height=\"60\" viewBox=\"0 0 90 60\""), std::string::npos) << svg;
  EXPECT_NE(svg.find("fill=\"#FFFFFF\""), std::string::npos);
  EXPECT_EQ(svg.find("<path"), std::string::npos);
  EXPECT_TRUE(svg.ends_with("</g>\n</svg>\n"));
}

TEST(LienzoSvg, ElColorSeEscribeEnRojoVerdeAzul) {
  LienzoSvg lienzo(9, 6);
  lienzo.PonColor(0x123456); // azul 12, verde 34, rojo 56
  lienzo.LineaA(1, 1);
  EXPECT_NE(lienzo.Documento().find("stroke=\"#563412\""), std::string::npos) << lienzo.Documento();
}

TEST(LienzoSvg, LosTrazosSeguidosComparteTrazadoYCadaPlumaAbreElSuyo) {
  LienzoSvg lienzo(9, 6);
  lienzo.MoverA(1, 2);
  lienzo.LineaA(3, 4);
  lienzo.LineaA(-5, 6);
  lienzo.MoverA(0, 0);
  lienzo.LineaA(1, 0);
  lienzo.PonGrueso(2);
  lienzo.PonGrueso(1); // quien no llega a trazar no abre nada
  lienzo.LineaA(2, 0);
  lienzo.PonGrueso(2);
  lienzo.LineaA(2, 5);
  EXPECT_NE(lienzo.Documento().find("<path stroke=\"#000000\" stroke-width=\"1\" "
                                    "d=\"M1 2L3 4L-5 6M0 0L1 0L2 0\"/>\n"
                                    "<path stroke=\"#000000\" stroke-width=\"2\" d=\"M2 0L2 5\"/>\n</g>"),
            std::string::npos)
      << lienzo.Documento();
}

TEST(LienzoSvg, LosPuntosSeguidosDelMismoPixelSonUno) {
  LienzoSvg lienzo(9, 6);
  lienzo.MoverA(1, 2);
  lienzo.LineaA(1, 2); // el primero de un trazo pinta aunque no se mueva
  lienzo.LineaA(1, 2);
  lienzo.LineaA(3, 4);
  lienzo.LineaA(3, 4);
  lienzo.PonColor(0x0000FF); // con otra pluma vuelve a pintar
  lienzo.LineaA(3, 4);
  EXPECT_NE(lienzo.Documento().find("d=\"M1 2L1 2L3 4\"/>"), std::string::npos) << lienzo.Documento();
  EXPECT_NE(lienzo.Documento().find("d=\"M3 4L3 4\"/>"), std::string::npos) << lienzo.Documento();
}

} // namespace
} // namespace tesmo::cli
