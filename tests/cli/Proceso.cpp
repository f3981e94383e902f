#include "tests/cli/Proceso.h"

#include "core/Formato.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace tesmo::prueba {

namespace {

std::vector<std::string> Partir(const std::string &texto, char separador) {
  std::vector<std::string> partes(1);
  for (const char c : texto) {
    if (c == separador) {
      partes.emplace_back();
    } else {
      partes.back() += c;
    }
  }
  return partes;
}

struct Canales {
  std::string entrada, salida, error;
};

[[noreturn]] void Sustituir(const std::vector<std::string> &argumentos, const std::string &directorio,
                            const Canales &canales) {
  std::vector<char *> argv;
  argv.reserve(argumentos.size() + 1);
  for (const std::string &argumento : argumentos) argv.push_back(const_cast<char *>(argumento.c_str()));
  argv.push_back(nullptr);
  const int modo = O_WRONLY | O_CREAT | O_TRUNC;
  const int i = open(canales.entrada.c_str(), O_RDONLY);
  const int s = open(canales.salida.c_str(), modo, 0600);
  const int e = open(canales.error.c_str(), modo, 0600);
  if (i >= 0 && s >= 0 && e >= 0 && dup2(i, STDIN_FILENO) >= 0 && dup2(s, STDOUT_FILENO) >= 0 &&
      dup2(e, STDERR_FILENO) >= 0 && chdir(directorio.c_str()) == 0)
    execv(argv[0], argv.data());
  _exit(127);
}

} // namespace

std::vector<std::string> Ejecucion::Lineas() const {
  std::vector<std::string> lineas = Partir(salida, '\n');
  if (lineas.back().empty()) lineas.pop_back();
  return lineas;
}

std::vector<std::string> Campos(const std::string &linea) { return Partir(linea, '\t'); }

void LineaDeOrdenes::SetUp() {
  raiz_.Escribir("base/config.ini", "Directorios de prueba\nMET = Meteo\\\n");
  raiz_.Escribir("base/Meteo/LocalidadesCC",
                 "2\nJa\xE9n,Jaen,Ja\xE9n,c,Ja\xE9n,jaen.met,37.5,-3.75,-15,580,0\n"
                 "Perdida,Perdida,Ja\xE9n,c,Ja\xE9n,nohay.met,37,-3,-15,0,0\n"
                 "1\nRota,Rota,C\xE1"
                 "diz,c,C\xE1"
                 "diz,rota.met,36.5,-6.25,-15,21,0\n");
  raiz_.Escribir("base/Meteo/jaen.met", Met());
  raiz_.Escribir("base/Meteo/rota.met", Met());
  std::filesystem::create_directories(trabajo_);
}

std::string LineaDeOrdenes::Met() {
  std::string texto = "cabecera\n36.5 -6.25 21.0 15.0\n";
  for (int i = 0; i < 48; ++i)
    texto += "1 " + std::to_string(i / 24 + 1) + " " + std::to_string(i % 24 + 1) + " " + FormatoF(i / 4.0) +
             " -3.5 " + std::to_string(100 + i) + " 50 0.005 60 2.5 90 10 60 0 0\n";
  return texto;
}

Ejecucion LineaDeOrdenes::Orden(const std::vector<std::string> &argumentos, const std::string &salida,
                                const std::string &entrada) const {
  std::vector<std::string> todos{programa_};
  todos.insert(todos.end(), argumentos.begin(), argumentos.end());
  const std::string ficheroSalida = salida.empty() ? (raiz_ / "salida.txt").string() : salida;
  const std::string ficheroError = (raiz_ / "error.txt").string();
  const pid_t hijo = fork();
  if (hijo == 0) Sustituir(todos, trabajo_, {entrada, ficheroSalida, ficheroError});
  int estado = 0;
  if (hijo < 0 || waitpid(hijo, &estado, 0) != hijo || !WIFEXITED(estado)) return {};
  return {WEXITSTATUS(estado), salida.empty() ? Contenido(ficheroSalida) : std::string(),
          Contenido(ficheroError)};
}

Ejecucion LineaDeOrdenes::ConBase(std::vector<std::string> argumentos) const {
  argumentos.insert(argumentos.end(), {"--base", base_});
  return Orden(argumentos);
}

} // namespace tesmo::prueba
