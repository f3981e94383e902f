#include "core/Objetobase.h"

#include "core/Codificacion.h"
#include "core/Formato.h"
#include "core/Mensajes.h"
#include "core/Varios.h"

#include <cmath>
#include <limits>

namespace tesmo {

namespace {

/// Búfer de las cajas de la entrada validada: 250 caracteres con el terminador.
constexpr std::size_t BUFER_MENSAJE = 249;

std::int32_t TruncarA32(double valor) {
  constexpr double MENOR = std::numeric_limits<std::int32_t>::min();
  constexpr double MAYOR = std::numeric_limits<std::int32_t>::max();
  return static_cast<std::int32_t>(std::trunc(std::fmin(std::fmax(valor, MENOR), MAYOR)));
}

} // namespace

ObjetoBase::ObjetoBase(std::string nombre) : nombre_(std::move(nombre)) {}
ObjetoBase::~ObjetoBase() = default;

void ObjetoBase::ProcesarOrden(int, const char *const *) {}
std::string ObjetoBase::nombreClase() const { return {}; }
void ObjetoBase::AsociarVista(Observador *vista) { vista_ = vista; }
void ObjetoBase::DesasociarVista() { vista_ = nullptr; }
void ObjetoBase::Reservada6() {}
std::string ObjetoBase::DameTexto(std::string_view) const { return {}; }
void ObjetoBase::DameReal(std::string_view, float &) const {}
void ObjetoBase::Reservada9(std::string_view) const {}
void ObjetoBase::DameEntero(std::string_view, std::int32_t &) const {}
void ObjetoBase::DameLogico(std::string_view, bool &) const {}
void ObjetoBase::DameEstado(std::string_view, std::int32_t &) const {}
void ObjetoBase::Reservada13(std::string_view) const {}
void ObjetoBase::PonTexto(std::string_view, const std::string &) {}
void ObjetoBase::Reservada15() {}
void ObjetoBase::Reservada16() {}
void ObjetoBase::Reservada17() {}

void ObjetoBase::AjustarSeparador(std::string &texto) { tesmo::AjustarSeparador(texto); }

namespace {

std::string EnTexto(float valor) { return FormatoF(valor); }
std::string EnTexto(std::int32_t valor) { return std::to_string(valor); }

/// Cómo nombran los límites las cajas de la entrada validada.
struct NombresDeLimites {
  std::string_view maximo;
  std::string_view minimo;
};

/// Devuelve @p valor si está en los límites; si no, lo dice en una caja y devuelve @p porDefecto.
template <typename T>
T EnLimites(T valor, T minimo, T maximo, T porDefecto, const NombresDeLimites &nombres, bool &fallo) {
  const bool grande = valor > maximo;
  if (!grande && !(valor < minimo)) return valor;
  std::string texto = EnTexto(valor) + (grande ? " > " : " < ") + EnTexto(grande ? maximo : minimo);
  texto.append(" (").append(grande ? nombres.maximo : nombres.minimo);
  texto.append("), valor por defecto: ").append(EnTexto(porDefecto));
  DameMensajes().MensajeDeEntrada(std::string(RecortarUtf8(texto, BUFER_MENSAJE)));
  fallo = true;
  return porDefecto;
}

} // namespace

float ObjetoBase::LeerReal(const std::string &texto, float minimo, float maximo, float porDefecto) {
  float valor = porDefecto;
  if (const std::optional<double> leido = RealTecleado(texto)) {
    valor = EnLimites(static_cast<float>(*leido), minimo, maximo, porDefecto, {"máximo", "mínimo"},
                      marcaLectura_);
  } else {
    marcaLectura_ = true;
  }
  marcaAcumulada_ = marcaAcumulada_ || marcaLectura_;
  return valor;
}

std::int32_t ObjetoBase::LeerEntero(const std::string &texto, std::int32_t minimo, std::int32_t maximo,
                                    std::int32_t porDefecto) {
  std::int32_t valor = porDefecto;
  if (const std::optional<double> leido = RealTecleado(texto)) {
    // Sin acentos, al contrario que en los reales: se conserva.
    valor = EnLimites(TruncarA32(*leido), minimo, maximo, porDefecto, {"maximo", "minimo"}, marcaLectura_);
  } else {
    marcaLectura_ = true;
  }
  marcaAcumulada_ = marcaAcumulada_ || marcaLectura_;
  return valor;
}

namespace {

/// Paso común de las actualizaciones: decide el estado del campo y si el valor leído se guarda.
template <typename T>
void Actualizar(T &valor, std::int32_t &estado, T leido, bool fallo, bool vacio) {
  if (fallo) estado = ENTRADA_INVALIDA;
  if (estado != ENTRADA_INVALIDA && leido == valor) return;
  valor = leido;
  estado = vacio ? ENTRADA_BLANCO : ENTRADA_TECLEADA;
  if (fallo) estado = ENTRADA_INVALIDA;
}

} // namespace

void ObjetoBase::ActualizarReal(float &valor, std::int32_t &estado, const std::string &texto, float minimo,
                                float maximo, float porDefecto) {
  const float leido = LeerReal(texto, minimo, maximo, porDefecto);
  Actualizar(valor, estado, leido, marcaLectura_, texto.empty());
  marcaLectura_ = false;
}

void ObjetoBase::ActualizarEntero(std::int32_t &valor, std::int32_t &estado, const std::string &texto,
                                  std::int32_t minimo, std::int32_t maximo, std::int32_t porDefecto) {
  const std::int32_t leido = LeerEntero(texto, minimo, maximo, porDefecto);
  Actualizar(valor, estado, leido, marcaLectura_, texto.empty());
  marcaLectura_ = false;
}

void ObjetoBase::ActualizarTexto(std::string &valor, std::int32_t &estado, const std::string &texto,
                                 const std::string &blanco) {
  if (texto != valor) {
    valor = texto;
    estado = ENTRADA_TECLEADA;
  }
  if (texto == blanco) estado = ENTRADA_BLANCO;
}

} // namespace tesmo
