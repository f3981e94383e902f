#include "tests/cli/Proceso.h"
#include "tests/comun/Lugares.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>

namespace tesmo::prueba {
namespace {

/// tesmo-cli corriente en un terminal fingido.
class Terminal {
public:
  explicit Terminal(const std::string &directorio) {
    maestro_ = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
    if (maestro_ < 0 || grantpt(maestro_) != 0 || unlockpt(maestro_) != 0) return;
    const std::string esclavo = ptsname(maestro_);
    hijo_ = fork();
    if (hijo_ != 0) return;
    setsid();
    const int terminal = open(esclavo.c_str(), O_RDWR);
    setenv("TERM", "xterm", 1);
    setenv("INPUTRC", "/dev/null", 1);
    const std::string programa = tesmo::prueba::Programas() + "/tesmo-cli";
    if (terminal >= 0 && dup2(terminal, 0) >= 0 && dup2(terminal, 1) >= 0 && dup2(terminal, 2) >= 0 &&
        chdir(directorio.c_str()) == 0)
      execl(programa.c_str(), programa.c_str(), "corriente", static_cast<char *>(nullptr));
    _exit(127);
  }
  ~Terminal() {
    close(maestro_);
    if (hijo_ > 0) kill(hijo_, SIGKILL);
    static_cast<void>(Estado());
  }
  Terminal(const Terminal &) = delete;
  Terminal &operator=(const Terminal &) = delete;

  /// Teclea y espera a que aparezca @p esperado; devuelve lo visto desde la vez anterior.
  std::string Teclear(const std::string &teclas, const std::string &esperado) {
    static_cast<void>(!write(maestro_, teclas.data(), teclas.size()));
    std::string visto;
    while (visto.find(esperado) == std::string::npos && Leer(visto)) {
    }
    return visto;
  }
  int Estado() {
    int estado = -1;
    if (hijo_ > 0) waitpid(hijo_, &estado, 0);
    hijo_ = -1;
    return WIFEXITED(estado) ? WEXITSTATUS(estado) : -1;
  }

private:
  bool Leer(std::string &visto) const {
    constexpr int PACIENCIA = 20000; // [ms]
    pollfd espera{maestro_, POLLIN, 0};
    char bufer[512];
    if (poll(&espera, 1, PACIENCIA) <= 0) return false;
    const ssize_t leidos = read(maestro_, bufer, sizeof bufer);
    if (leidos <= 0) return false;
    visto.append(bufer, static_cast<std::size_t>(leidos));
    return true;
  }
  int maestro_ = -1;
  pid_t hijo_ = -1;
};

class CorrienteTecleada : public LineaDeOrdenes {
protected:
  void SetUp() override {
    LineaDeOrdenes::SetUp();
    if (access("/dev/ptmx", R_OK | W_OK) != 0) GTEST_SKIP() << "no hay terminales fingidos";
  }
};

constexpr const char *AVISO = "tesmo> ";

TEST_F(CorrienteTecleada, EnsenaElAvisoEjecutaYSale) {
  Terminal terminal(trabajo_);
  EXPECT_NE(terminal.Teclear("", AVISO).find("«ayuda»"), std::string::npos);
  terminal.Teclear("aire pont_w 12 0\n", AVISO);
  EXPECT_NE(terminal.Teclear("aire dame t\n", AVISO).find("12.000000\r\n"), std::string::npos);
  EXPECT_NE(terminal.Teclear("ayuda\n", AVISO).find("mezclar A B RESULTADO"), std::string::npos);
  terminal.Teclear("salir\n", "\n");
  EXPECT_EQ(terminal.Estado(), 0);
}

TEST_F(CorrienteTecleada, ElTabuladorCompletaNombresYOrdenes) {
  Terminal terminal(trabajo_);
  terminal.Teclear("", AVISO);
  terminal.Teclear("exterior pont_w 7 0\n", AVISO);
  EXPECT_NE(terminal.Teclear("ex\tda\tt\n", AVISO).find("7.000000\r\n"), std::string::npos);
}

TEST_F(CorrienteTecleada, LaFlechaArribaTraeLaLineaAnterior) {
  Terminal terminal(trabajo_);
  terminal.Teclear("", AVISO);
  terminal.Teclear("a dame p\n", AVISO);
  EXPECT_NE(terminal.Teclear("\x1b[A\n", AVISO).find("101325.000000\r\n"), std::string::npos);
}

TEST_F(CorrienteTecleada, ControlDTermina) {
  Terminal terminal(trabajo_);
  terminal.Teclear("", AVISO);
  terminal.Teclear("\x04", "\n");
  EXPECT_EQ(terminal.Estado(), 0);
}

} // namespace
} // namespace tesmo::prueba
