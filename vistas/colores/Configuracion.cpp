#include "vistas/colores/Configuracion.h"

#include "core/Codificacion.h"
#include "core/Ficheros.h"
#include "core/Formato.h"
#include "core/Lectorclaves.h"
#include "core/Rutas.h"

#include <algorithm>
#include <memory>

namespace tesmo {

namespace {

std::unique_ptr<Configuracion> &Compartida() {
  static std::unique_ptr<Configuracion> tabla;
  return tabla;
}

constexpr const char *FICHERO = "tesmo.inp";
constexpr const char *TITULO_DEL_FICHERO = "Configuración para el programa Tesmo-A\n";
/// Columnas de la clave en el fichero: el '=' va en la siguiente.
constexpr std::size_t ANCHO_CLAVE = 11;

/// La altura se escribe con esta clave, que al leer no se busca, y tras ella va otra vez la humedad absoluta
/// (las dos cosas se conservan).
constexpr std::string_view CLAVE_ESCRITA_DE_LA_ALTURA = "COLOR-AL";

void AnadirLinea(std::string &texto, std::string_view clave, std::uint32_t color) {
  texto.append(clave).append(ANCHO_CLAVE - clave.size(), ' ');
  texto.append("= ").append(FormatoF(static_cast<double>(color))).append("\n");
}

/// Un color de 24 bits; lo que se sale queda en el extremo.
std::uint32_t ColorLeido(float valor) {
  constexpr float BLANCO = 0xFFFFFF;
  return static_cast<std::uint32_t>(std::clamp(valor, 0.0F, BLANCO));
}

bool EsIndice(int i) { return i >= 0 && i < static_cast<int>(NUMERO_MAGNITUDES_VISOR); }

} // namespace

Configuracion::Configuracion() {
  for (std::size_t i = 0; i < colores_.size(); ++i) colores_[i] = MAGNITUDES[i].color;
}

std::uint32_t Configuracion::dameColor(int i, std::uint32_t porDefecto) const {
  return EsIndice(i) ? colores_[static_cast<std::size_t>(i)] : porDefecto;
}

void Configuracion::ponColor(int i, std::uint32_t color) {
  if (EsIndice(i)) colores_[static_cast<std::size_t>(i)] = color;
}

void Configuracion::leer() {
  if (sinGuardar_) return;
  const auto lector = LeerFicheroDeClaves(RutaDesdeTexto(DameConfiguracion().RutaPrograma(FICHERO)));
  if (lector) Tomar(*lector);
}

void Configuracion::leerTexto(std::string_view contenido) { Tomar(LectorClaves(contenido)); }

void Configuracion::Tomar(const LectorClaves &lector) {
  float valor = 0.0F; // una para todas: la clave que falta repite el color de la anterior (se conserva)
  for (std::size_t i = 0; i < colores_.size(); ++i) {
    lector.LeerClaveReal(std::string(MAGNITUDES[i].claveColor) + " ", valor);
    colores_[i] = ColorLeido(valor);
  }
}

std::string Configuracion::Bytes() const {
  std::string texto = AWindows1252(TITULO_DEL_FICHERO);
  for (std::size_t i = 0; i < colores_.size(); ++i) {
    if (MAGNITUDES[i].magnitud != Magnitud::Al) {
      AnadirLinea(texto, MAGNITUDES[i].claveColor, colores_[i]);
      continue;
    }
    AnadirLinea(texto, CLAVE_ESCRITA_DE_LA_ALTURA, colores_[i]);
    AnadirLinea(texto, Ficha(Magnitud::HA).claveColor, colores_[static_cast<std::size_t>(Magnitud::HA)]);
  }
  return texto;
}

bool Configuracion::escribirConfiguracion() {
  sinGuardar_ = !EscribirFicheroEntero(RutaDesdeTexto(DameConfiguracion().RutaPrograma(FICHERO)), Bytes());
  return !sinGuardar_;
}

Configuracion &DameTablaDeColores() {
  if (!Compartida()) Compartida() = std::make_unique<Configuracion>();
  return *Compartida();
}

void LiberarTablaDeColores() { Compartida().reset(); }

} // namespace tesmo
