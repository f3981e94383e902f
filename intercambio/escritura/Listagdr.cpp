#include "intercambio/escritura/Listagdr.h"

#include "core/Lectornumeros.h"
#include "intercambio/escritura/Lineastexto.h"

#include <algorithm>

namespace tesmo {

ListaGdr::ListaGdr(std::string contenido)
    : contenido_(std::move(contenido)), utf8_(EsUtf8(contenido_)),
      sitios_(extremos::SituarRegistrosGdr(contenido_)) {}

const extremos::SitioRegistroGdr *ListaGdr::Sitio(std::string_view corto) const {
  const auto sitio =
      std::find_if(sitios_.begin(), sitios_.end(), [&](const auto &otro) { return otro.clave == corto; });
  return sitio == sitios_.end() ? nullptr : &*sitio;
}

std::string ListaGdr::ZonaDe(std::string_view corto) const {
  const extremos::SitioRegistroGdr *sitio = Sitio(corto);
  if (sitio == nullptr) return {};
  LectorNumeros lector(std::string_view(contenido_).substr(sitio->inicio, sitio->fin - sitio->inicio));
  (void)lector.Palabra();
  return std::string(lector.Palabra());
}

VistaDeGdr ListaGdr::Poner(const FichaGdr &ficha) {
  const std::string texto = EnBytes(TextoRegistroGdr(ficha, FinDeLineaDe(contenido_)), utf8_);
  if (const extremos::SitioRegistroGdr *sitio = Sitio(ficha.corto)) {
    contenido_.replace(sitio->inicio, sitio->fin - sitio->inicio, texto);
  } else {
    if (!contenido_.empty() && contenido_.back() != '\n') contenido_ += FinDeLineaDe(contenido_);
    contenido_ += texto;
  }
  sitios_ = extremos::SituarRegistrosGdr(contenido_);
  return Comprobar(ficha);
}

VistaDeGdr ListaGdr::Comprobar(const FichaGdr &ficha) const {
  extremos::RegistroGdr registro;
  const auto lectura = extremos::LeerRegistroGdr(contenido_, ficha.corto, "GDR.TXT", registro);
  if (lectura == extremos::LecturaGdr::Leido) return VistaDeGdr::Encontrado;
  return Sitio(ficha.corto) != nullptr ? VistaDeGdr::PasaDelLimite : VistaDeGdr::Desordenado;
}

} // namespace tesmo
