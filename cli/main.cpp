#include "cli/Lineadeordenes.h"

#include <iostream>

int main(int argc, char **argv) {
  const std::vector<std::string> argumentos(argv + (argc > 0 ? 1 : 0), argv + argc);
  return tesmo::cli::Ejecutar(argumentos, std::cout, std::cerr);
}
