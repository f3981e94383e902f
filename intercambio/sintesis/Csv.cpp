#include "intercambio/sintesis/Csv.h"

namespace tesmo {

namespace {

constexpr std::string_view MARCA_ORDEN_BYTES = "\xEF\xBB\xBF";

std::string_view SinBlancos(std::string_view texto) {
  const std::size_t desde = texto.find_first_not_of(" \t");
  if (desde == std::string_view::npos) return {};
  return texto.substr(desde, texto.find_last_not_of(" \t") - desde + 1);
}

/// Recorre el texto carácter a carácter llevando la cuenta de las líneas.
class Lector {
public:
  explicit Lector(std::string_view texto) : texto_(texto) {}

  [[nodiscard]] bool Fin() const { return posicion_ >= texto_.size(); }

  /// Salta la línea si está en blanco o es un comentario.
  bool SaltarVacia() {
    const std::size_t fin = texto_.find('\n', posicion_);
    const std::string_view linea =
        texto_.substr(posicion_, fin == std::string_view::npos ? fin : fin - posicion_);
    if (!linea.starts_with('#') && linea.find_first_not_of(" \t\r") != std::string_view::npos) return false;
    posicion_ = fin == std::string_view::npos ? texto_.size() : fin + 1;
    ++linea_;
    return true;
  }

  RegistroCsv Registro() {
    RegistroCsv registro{linea_, {}};
    do registro.campos.push_back(Campo());
    while (Toma(','));
    Toma('\r');
    if (Toma('\n')) ++linea_;
    return registro;
  }

private:
  bool Toma(char c) {
    if (Fin() || texto_[posicion_] != c) return false;
    ++posicion_;
    return true;
  }

  std::string Campo() {
    const std::size_t primero = texto_.find_first_not_of(" \t", posicion_);
    if (primero == std::string_view::npos || texto_[primero] != '"')
      return std::string(SinBlancos(HastaSeparador()));
    posicion_ = primero + 1;
    std::string campo = Entrecomillado();
    campo += SinBlancos(HastaSeparador());
    return campo;
  }

  std::string_view HastaSeparador() {
    const std::size_t desde = posicion_;
    posicion_ = texto_.find_first_of(",\n", desde);
    if (posicion_ == std::string_view::npos) posicion_ = texto_.size();
    const bool retorno = posicion_ > desde && texto_[posicion_ - 1] == '\r' &&
                         !(posicion_ < texto_.size() && texto_[posicion_] == ',');
    if (retorno) --posicion_;
    return texto_.substr(desde, posicion_ - desde);
  }

  std::string Entrecomillado() {
    std::string campo;
    while (!Fin()) {
      const char c = texto_[posicion_++];
      if (c == '"' && !Toma('"')) break;
      if (c == '\n') ++linea_;
      campo += c;
    }
    return campo;
  }

  std::string_view texto_;
  std::size_t posicion_ = 0;
  std::size_t linea_ = 1;
};

} // namespace

std::vector<RegistroCsv> PartirCsv(std::string_view texto) {
  if (texto.starts_with(MARCA_ORDEN_BYTES)) texto.remove_prefix(MARCA_ORDEN_BYTES.size());
  std::vector<RegistroCsv> registros;
  for (Lector lector(texto); !lector.Fin();) {
    if (!lector.SaltarVacia()) registros.push_back(lector.Registro());
  }
  return registros;
}

} // namespace tesmo
