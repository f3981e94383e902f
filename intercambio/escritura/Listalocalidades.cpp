#include "intercambio/escritura/Listalocalidades.h"

#include "intercambio/escritura/Lineastexto.h"
#include "localidades/Lineaslocalidades.h"

namespace tesmo {

namespace {

constexpr std::size_t CAMPO_NOMBRE = 0;
constexpr std::size_t CAMPO_PROVINCIA = 2;

} // namespace

ListaLocalidades::ListaLocalidades(std::string contenido)
    : contenido_(std::move(contenido)), utf8_(LineasLocalidades(contenido_).Utf8()),
      fin_(FinDeLineaDe(contenido_)) {
  Situar();
}

std::vector<CamposLocalidad> ListaLocalidades::Localidades() const {
  std::vector<CamposLocalidad> todas;
  for (const BloqueDeLocalidades &bloque : bloques_)
    for (const LineaDeBloque &linea : bloque.lineas) todas.push_back(linea.campos);
  return todas;
}

std::optional<CamposLocalidad> ListaLocalidades::Buscar(std::string_view nombre) const {
  const std::optional<Sitio> sitio = SitioDeNombre(nombre);
  if (!sitio) return std::nullopt;
  return bloques_[sitio->bloque].lineas[sitio->linea].campos;
}

std::string ListaLocalidades::ComoSeLeera(std::string_view texto) const {
  return CampoDeLocalidades(EnBytes(texto, utf8_), utf8_);
}

std::optional<ListaLocalidades::Sitio> ListaLocalidades::SitioDeNombre(std::string_view nombre) const {
  for (std::size_t b = 0; b < bloques_.size(); ++b)
    for (std::size_t i = 0; i < bloques_[b].lineas.size(); ++i)
      if (bloques_[b].lineas[i].campos[CAMPO_NOMBRE] == nombre) return Sitio{b, i};
  return std::nullopt;
}

std::optional<ListaLocalidades::Sitio> ListaLocalidades::UltimoDeProvincia(std::string_view provincia) const {
  for (std::size_t b = bloques_.size(); b-- > 0;)
    for (std::size_t i = bloques_[b].lineas.size(); i-- > 0;)
      if (bloques_[b].lineas[i].campos[CAMPO_PROVINCIA] == provincia) return Sitio{b, i};
  return std::nullopt;
}

void ListaLocalidades::Sustituir(std::size_t inicio, std::size_t fin, std::string_view por) {
  contenido_.replace(inicio, fin - inicio, por);
}

void ListaLocalidades::PonerCuenta(std::size_t bloque, std::size_t cuenta) {
  Sustituir(bloques_[bloque].inicioCuenta, bloques_[bloque].finCuenta, std::to_string(cuenta));
}

void ListaLocalidades::CorregirUltimaCuenta() {
  if (bloques_.empty()) return;
  const BloqueDeLocalidades &ultimo = bloques_.back();
  if (static_cast<std::size_t>(ultimo.cuenta) == ultimo.lineas.size()) return;
  PonerCuenta(bloques_.size() - 1, ultimo.lineas.size());
  cuentaCorregida_ = true;
  Situar();
}

void ListaLocalidades::Quitar(Sitio sitio) {
  // De abajo arriba: así las posiciones de lo de encima siguen valiendo.
  const BloqueDeLocalidades bloque = bloques_[sitio.bloque];
  Sustituir(bloque.lineas[sitio.linea].inicio, bloque.lineas[sitio.linea].fin, "");
  PonerCuenta(sitio.bloque, bloque.lineas.size() - 1);
  Situar();
}

void ListaLocalidades::Insertar(const std::string &linea, const std::string &provincia) {
  if (!contenido_.empty() && contenido_.back() != '\n') {
    contenido_ += fin_;
    Situar();
  }
  if (const std::optional<Sitio> ultimo = UltimoDeProvincia(provincia)) {
    const BloqueDeLocalidades bloque = bloques_[ultimo->bloque];
    const std::size_t donde = bloque.lineas[ultimo->linea].fin;
    Sustituir(donde, donde, linea + fin_);
    PonerCuenta(ultimo->bloque, bloque.lineas.size() + 1);
  } else {
    contenido_ += "1" + fin_ + linea + fin_;
  }
  Situar();
}

bool ListaLocalidades::Poner(const FichaLocalidad &ficha) {
  const std::string linea = EnBytes(LineaDeLocalidad(ficha), utf8_);
  if (linea.size() > BYTES_LINEA_LOCALIDADES) return false;
  const std::string nombre = ComoSeLeera(ficha.nombre);
  const std::string provincia = ComoSeLeera(ficha.provincia);
  CorregirUltimaCuenta();
  const std::optional<Sitio> sitio = SitioDeNombre(nombre);
  if (!sitio) {
    Insertar(linea, provincia);
    return true;
  }
  const LineaDeBloque anterior = bloques_[sitio->bloque].lineas[sitio->linea];
  if (anterior.campos[CAMPO_PROVINCIA] == provincia) {
    const std::string_view bytes =
        std::string_view(contenido_).substr(anterior.inicio, anterior.fin - anterior.inicio);
    Sustituir(anterior.inicio, anterior.inicio + bytes.find_last_not_of("\r\n") + 1, linea);
    Situar();
  } else {
    Quitar(*sitio);
    Insertar(linea, provincia);
  }
  return true;
}

} // namespace tesmo
