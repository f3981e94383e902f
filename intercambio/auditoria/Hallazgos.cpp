#include "intercambio/auditoria/Hallazgos.h"

#include "core/Formato.h"
#include "intercambio/comun/Perfilmensual.h"

#include <algorithm>

namespace tesmo {

namespace {

bool EsUna(ClaseNota clase, std::initializer_list<ClaseNota> clases) {
  return std::find(clases.begin(), clases.end(), clase) != clases.end();
}

void OrdenarLineas(std::vector<int> &lineas) {
  std::sort(lineas.begin(), lineas.end());
  lineas.erase(std::unique(lineas.begin(), lineas.end()), lineas.end());
}

} // namespace

Hallazgo ConLineas(Gravedad gravedad, std::string texto, const MateriaAuditoria &materia,
                   const HorasMalas &horas) {
  Hallazgo hallazgo{gravedad, std::move(texto), {}};
  for (std::size_t hora : horas) {
    if (materia.anio.lineas[hora] > 0) hallazgo.lineas.push_back(materia.anio.lineas[hora]);
  }
  OrdenarLineas(hallazgo.lineas);
  return hallazgo;
}

Hallazgo DeNotas(const MateriaAuditoria &materia, std::initializer_list<ClaseNota> clases,
                 const std::string &conforme) {
  Hallazgo hallazgo = Conforme(conforme);
  const auto anadir = [&](const std::vector<NotaLectura> &notas, Gravedad gravedad) {
    for (const NotaLectura &nota : notas) {
      if (!EsUna(nota.clase, clases)) continue;
      if (hallazgo.gravedad == Gravedad::Conforme) hallazgo.texto.clear();
      hallazgo.gravedad = std::max(hallazgo.gravedad, gravedad);
      hallazgo.texto += (hallazgo.texto.empty() ? "" : "; ") + nota.texto;
      if (nota.linea > 0) hallazgo.lineas.push_back(nota.linea);
      if (nota.ultimaLinea > nota.linea) hallazgo.lineas.push_back(nota.ultimaLinea);
    }
  };
  anadir(materia.errores, Gravedad::Grave);
  anadir(materia.avisos, Gravedad::Aviso);
  OrdenarLineas(hallazgo.lineas);
  return hallazgo;
}

std::string Cuantas(std::size_t n, std::string_view uno, std::string_view varios) {
  return std::to_string(n) + ' ' + std::string(n == 1 ? uno : varios);
}

std::string Cifra(double valor, std::string_view patron) { return FormatearPatron(valor, patron); }

bool Trae(const MateriaAuditoria &materia, Campo campo) {
  const std::vector<double> &valores = Valores(materia, campo);
  return std::any_of(valores.begin(), valores.end(), [](double v) { return !std::isnan(v); });
}

double MediaDe(const std::vector<double> &valores) {
  double suma = 0.0;
  std::size_t n = 0;
  for (double valor : valores) {
    if (std::isnan(valor)) continue;
    suma += valor;
    ++n;
  }
  return n == 0 ? AUSENTE : suma / static_cast<double>(n);
}

double MedianaDe(std::vector<double> &valores) {
  if (valores.empty()) return AUSENTE;
  const auto mitad = valores.begin() + static_cast<std::ptrdiff_t>(valores.size() / 2);
  std::nth_element(valores.begin(), mitad, valores.end());
  return *mitad;
}

} // namespace tesmo
