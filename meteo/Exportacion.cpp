#include "meteo/Exportacion.h"

#include "core/Formato.h"

#include <array>
#include <charconv>

namespace tesmo {

namespace {

/// Lo que ocupa de ordinario un valor escrito ("-12.3", "54321"); sólo ahorra crecimientos del búfer.
constexpr std::size_t ANCHO_HABITUAL = 8;

} // namespace

ColumnaExportacion::ColumnaExportacion(const FichaMagnitud &ficha, std::span<const float> valores,
                                       char decimal)
    : nombre_(ficha.columna) {
  const PatronNumero patron(ficha.patron);
  texto_.reserve(valores.size() * ANCHO_HABITUAL);
  fines_.reserve(valores.size());
  for (const float valor : valores) {
    patron.Escribir(texto_, static_cast<double>(valor), decimal);
    fines_.push_back(static_cast<std::uint32_t>(texto_.size()));
  }
}

std::string_view ColumnaExportacion::Valor(std::size_t k) const {
  if (k >= fines_.size()) return {};
  const std::size_t desde = k == 0 ? 0 : fines_[k - 1];
  return std::string_view(texto_).substr(desde, fines_[k] - desde);
}

namespace {

void AnadirEntero(std::string &texto, int valor) {
  std::array<char, 12> bufer{}; // -2147483648
  const auto [fin, error] = std::to_chars(bufer.data(), bufer.data() + bufer.size(), valor);
  texto.append(bufer.data(), fin);
}

std::string TextoEncabezamiento(const EncabezamientoExportacion &e) {
  std::string texto;
  if (e.cabecera) {
    texto += e.localidad + "\n";
    texto += FormatoF(e.latitud) + " " + FormatoF(e.longitud) + " " + FormatoF(e.tercerDato) + "\n";
  }
  texto += "Orientación: " + FormatoF(e.orientacion) + "  Inclinación: " + FormatoF(e.inclinacion) +
           " Albedo: " + FormatoF(e.albedo) + "\n";
  return texto;
}

} // namespace

std::string TextoExportacion(const EncabezamientoExportacion &encabezamiento,
                             const std::vector<ColumnaExportacion> &columnas, FechaHora inicio,
                             std::size_t horas) {
  constexpr std::size_t CAMPOS_DE_FECHA = 3;
  const std::string &separador = encabezamiento.separador;
  std::string texto = TextoEncabezamiento(encabezamiento);
  texto.reserve(texto.size() +
                (horas + 1) * (columnas.size() + CAMPOS_DE_FECHA) * (ANCHO_HABITUAL + separador.size()));
  for (const char *campo : {"mes", "dia", "hora"}) texto.append(campo).append(separador);
  for (const ColumnaExportacion &columna : columnas) texto.append(columna.Nombre()).append(separador);
  texto += '\n';
  for (std::size_t k = 0; k < horas; ++k) {
    for (const int campo : {inicio.mes, inicio.dia, inicio.hora}) {
      AnadirEntero(texto, campo);
      texto += separador;
    }
    for (const ColumnaExportacion &columna : columnas) texto.append(columna.Valor(k)).append(separador);
    texto += '\n';
    SiguienteHora(inicio.mes, inicio.dia, inicio.hora);
  }
  return texto;
}

} // namespace tesmo
