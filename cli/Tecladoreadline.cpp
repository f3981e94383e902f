#include "cli/Teclado.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <unistd.h>

#include <readline/history.h>
#include <readline/readline.h>

namespace tesmo::cli {

namespace {

/// La biblioteca llama a funciones sueltas: lo que necesitan vive aquí mientras se pide una línea.
struct Pedida {
  const Completar *completar = nullptr;
  std::vector<std::string> candidatos;
};
Pedida pedida;

/// Da los candidatos que empiezan por @p prefijo, uno por llamada. La biblioteca libera cada texto.
char *SiguienteCandidato(const char *prefijo, int llamada) {
  static std::size_t siguiente = 0;
  if (llamada == 0) siguiente = 0;
  while (siguiente < pedida.candidatos.size()) {
    const std::string &candidato = pedida.candidatos[siguiente++];
    if (candidato.starts_with(prefijo)) return strdup(candidato.c_str());
  }
  return nullptr;
}

char **CompletarPalabra(const char *palabra, int inicio, int /*fin*/) {
  const std::string escrito(rl_line_buffer, static_cast<std::size_t>(inicio));
  pedida.candidatos = (*pedida.completar)(escrito);
  if (pedida.candidatos.empty()) return nullptr; // la biblioteca prueba con nombres de fichero
  rl_attempted_completion_over = 1;
  return rl_completion_matches(palabra, SiguienteCandidato);
}

void Preparar() {
  rl_readline_name = "tesmo";
  rl_attempted_completion_function = CompletarPalabra;
  rl_basic_word_break_characters = " \t\"";
  // Con la salida en un fichero, el aviso no va a él.
  if (isatty(STDOUT_FILENO) == 0) rl_outstream = stderr;
}

} // namespace

bool EntradaEsTerminal() { return isatty(STDIN_FILENO) != 0; }

std::optional<std::string> LeerLineaTecleada(const std::string &aviso, const Completar &completar) {
  Preparar();
  pedida.completar = &completar;
  const std::unique_ptr<char, void (*)(void *)> linea(readline(aviso.c_str()), std::free);
  pedida.completar = nullptr;
  if (linea == nullptr) return std::nullopt;
  if (*linea != '\0') add_history(linea.get());
  return std::string(linea.get());
}

} // namespace tesmo::cli
