#include "intercambio/auditoria/Textoauditoria.h"

#include "intercambio/auditoria/Hallazgos.h"

#include <cmath>
#include <cstddef>

namespace tesmo {

namespace {

constexpr std::size_t ANCHO = 100;  // columnas de la página
constexpr std::size_t SANGRIA = 16; // de lo que sigue a la marca
constexpr std::size_t TRAMOS = 12;  // de líneas que se enseñan

/// Caracteres de un texto UTF-8.
std::size_t Ancho(std::string_view texto) {
  std::size_t n = 0;
  for (char c : texto) n += (static_cast<unsigned char>(c) & 0xC0U) != 0x80U ? 1U : 0U;
  return n;
}

/// Añade @p texto a @p pagina partido por palabras, con @p primera delante de la primera línea.
void Parrafo(std::string &pagina, std::string primera, std::string_view texto) {
  primera.append(SANGRIA > Ancho(primera) ? SANGRIA - Ancho(primera) : 1, ' ');
  pagina += primera;
  std::size_t columna = SANGRIA;
  for (std::size_t inicio = 0; inicio < texto.size();) {
    const std::size_t fin = std::min(texto.find(' ', inicio), texto.size());
    const std::string_view palabra = texto.substr(inicio, fin - inicio);
    if (columna > SANGRIA && columna + 1 + Ancho(palabra) > ANCHO) {
      pagina += '\n' + std::string(SANGRIA, ' ');
      columna = SANGRIA;
    }
    if (columna > SANGRIA) pagina += ' ';
    columna += Ancho(palabra) + (columna > SANGRIA ? 1 : 0);
    pagina += palabra;
    inicio = fin + 1;
  }
  pagina += '\n';
}

std::string Grados(double valor, const char *positivo, const char *negativo) {
  return Cifra(std::abs(valor), "0.000") + "° " + (valor < 0 ? negativo : positivo);
}

std::string Recuento(const Auditoria &auditoria) {
  const auto cuantas = [&](Gravedad gravedad, const char *una, const char *varias) {
    return Cuantas(auditoria.Contar(gravedad), una, varias);
  };
  return cuantas(Gravedad::Grave, "falta grave", "faltas graves") + ", " +
         cuantas(Gravedad::Aviso, "aviso", "avisos") + ", " +
         cuantas(Gravedad::Conforme, "comprobación conforme", "comprobaciones conformes") + " y " +
         cuantas(Gravedad::NoComprobada, "sin hacer", "sin hacer");
}

void EscribirResultado(std::string &pagina, const ResultadoComprobacion &resultado) {
  const Hallazgo &hallazgo = resultado.hallazgo;
  const bool falta = hallazgo.gravedad >= Gravedad::Aviso;
  Parrafo(pagina, (falta ? "* " : "  ") + std::string(NombreGravedad(hallazgo.gravedad)),
          resultado.comprobacion->titulo + (": " + hallazgo.texto));
  if (falta && !hallazgo.lineas.empty())
    Parrafo(pagina, "",
            (hallazgo.lineas.size() == 1 ? "Línea " : "Líneas ") + TextoDeLineas(hallazgo.lineas, TRAMOS));
}

} // namespace

std::string_view NombreVeredicto(Veredicto veredicto) {
  switch (veredicto) {
  case Veredicto::Apto:
    return "apto";
  case Veredicto::AptoConAvisos:
    return "apto con avisos";
  case Veredicto::NoApto:
    break;
  }
  return "no apto";
}

std::string_view NombreGravedad(Gravedad gravedad) {
  switch (gravedad) {
  case Gravedad::NoComprobada:
    return "no comprobada";
  case Gravedad::Conforme:
    return "conforme";
  case Gravedad::Aviso:
    return "aviso";
  case Gravedad::Grave:
    break;
  }
  return "grave";
}

std::string TextoDeLineas(const std::vector<int> &lineas, std::size_t tramos) {
  std::string texto;
  for (std::size_t i = 0, fin = 0; i < lineas.size(); i = fin, --tramos) {
    if (tramos == 0) return texto + " y " + std::to_string(lineas.size() - i) + " más";
    fin = i + 1;
    while (fin < lineas.size() && lineas[fin] == lineas[fin - 1] + 1) ++fin;
    texto += (texto.empty() ? "" : ", ") + std::to_string(lineas[i]);
    if (fin - i > 1) texto += '-' + std::to_string(lineas[fin - 1]);
  }
  return texto;
}

std::string TextoDeSitio(const SitioClima &sitio) {
  std::string texto;
  const auto anadir = [&texto](const std::string &parte, const char *separador) {
    const bool vacia = parte.empty() || parte == "-" || parte == "unknown"; // así los llenan los programas
    if (!vacia) texto += (texto.empty() ? "" : separador) + parte;
  };
  anadir(sitio.nombre, "");
  anadir(sitio.pais, ", ");
  if (!std::isnan(sitio.latitud)) anadir(Grados(sitio.latitud, "N", "S"), "; ");
  if (!std::isnan(sitio.longitud)) anadir(Grados(sitio.longitud, "E", "O"), ", ");
  if (!std::isnan(sitio.altitud)) anadir(Cifra(sitio.altitud, "0") + " m", ", ");
  return texto.empty() ? "desconocido" : texto;
}

std::string TextoAuditoria(const std::string &fichero, const MateriaAuditoria &materia,
                           const Auditoria &auditoria) {
  std::string pagina = "Auditoría de fichero climático\n\n";
  Parrafo(pagina, "Fichero", fichero);
  Parrafo(pagina, "Formato", NombreFormato(materia.anio.formato));
  Parrafo(pagina, "Sitio", TextoDeSitio(materia.anio.sitio));
  Parrafo(pagina, "Veredicto",
          std::string(NombreVeredicto(auditoria.veredicto)) + " (" + Recuento(auditoria) + ")");
  pagina += '\n';
  for (const ResultadoComprobacion &resultado : auditoria.resultados) EscribirResultado(pagina, resultado);
  return pagina;
}

} // namespace tesmo
