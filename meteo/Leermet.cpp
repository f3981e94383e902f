#include "meteo/Leermet.h"

#include "core/Configuracionregional.h"
#include "core/Ficheros.h"
#include "core/Mensajes.h"

#include <algorithm>

namespace tesmo {

namespace {

/// Límites y valor por defecto de los parámetros tecleados de la superficie.
struct LimitesReal {
  float minimo;
  float maximo;
  float porDefecto;
};
constexpr LimitesReal INCLINACION{0.0F, 180.0F, 90.0F};
constexpr LimitesReal ORIENTACION{-180.0F, 180.0F, 0.0F};
constexpr LimitesReal ALBEDO{0.0F, 1.0F, 0.2F};

/// La parte de @p tramo que cae dentro de una serie de @p horas valores.
TramoHoras Recortar(TramoHoras tramo, std::size_t horas) {
  const int total = static_cast<int>(horas);
  return {std::clamp(tramo.primera, 0, total), std::clamp(tramo.ultima, -1, total - 1)};
}

} // namespace

LeerMet::LeerMet() : ObjetoBase("LeerMet") {}

bool LeerMet::LeerFichero(const std::string &ruta) {
  const std::filesystem::path fichero = BuscarSinMayusculas(RutaDesdeTexto(ruta));
  std::error_code error;
  if (!std::filesystem::is_regular_file(fichero, error)) return false;
  // El que está y no se puede leer es como uno vacío: las horas conservan lo que tenían.
  resumen_ = LeerTextoMet(LeerFicheroEntero(fichero).value_or(std::string()), sitio_, leidas_);
  ++carga_;
  return true;
}

void LeerMet::PonAnio(const SitioMet &sitio, SeriesLeidas series) {
  sitio_ = sitio;
  leidas_ = std::move(series);
  resumen_ = {HORAS_DEL_ANIO, 0};
  ++carga_;
}

std::string LeerMet::DameTexto(std::string_view clave) const {
  return clave == "Variable" ? variable_ : std::string();
}

void LeerMet::PonTexto(std::string_view clave, const std::string &texto) {
  const auto teclear = [&](float &valor, std::int32_t &estado, const LimitesReal &limites) {
    if (texto.empty()) {
      valor = limites.porDefecto;
      estado = ENTRADA_BLANCO;
    } else {
      ActualizarReal(valor, estado, texto, limites.minimo, limites.maximo, limites.porDefecto);
    }
  };
  if (clave == "Separador") separador_ = texto;
  if (clave == "Localidad") localidad_ = texto;
  if (clave == "Provincia") provincia_ = texto;
  if (clave == "Variable") variable_ = texto;
  if (clave == "Inclinación") teclear(superficie_.inclinacion, estadoInclinacion_, INCLINACION);
  if (clave == "Orientación") teclear(superficie_.orientacion, estadoOrientacion_, ORIENTACION);
  if (clave == "Albedo") teclear(superficie_.albedo, estadoAlbedo_, ALBEDO);
}

void LeerMet::PonCabecera(std::string_view clave, bool puesta) {
  if (clave == "Cabecera") cabecera_ = puesta;
}

void LeerMet::PonPeriodo(int mesIni, int diaIni, int horaIni, int mesFin, int diaFin, int horaFin) {
  periodo_ = {{mesIni, diaIni, horaIni}, {mesFin, diaFin, horaFin}};
  tramo_ = {IndiceHora(mesIni, diaIni, horaIni), IndiceHora(mesFin, diaFin, horaFin)};
}

void LeerMet::PonHorasDelDia(int primera, int ultima) {
  primeraHoraDelDia_ = primera;
  ultimaHoraDelDia_ = ultima;
}

void LeerMet::ReservarDerivadas(int horas) {
  derivadas_.Reservar(horas);
  derivadasPresentes_ = true;
  claveAire_.reset();
  claveSol_.reset();
}

void LeerMet::LiberarDerivadas() {
  if (!derivadasPresentes_) return;
  derivadas_.Liberar();
  derivadasPresentes_ = false;
  claveAire_.reset();
  claveSol_.reset();
}

const SerieHoraria &LeerMet::Serie(const FuenteMagnitud &fuente) const {
  if (fuente.derivada) return derivadas_[static_cast<SerieDerivada>(fuente.indice)];
  return leidas_[static_cast<SerieAlmacenada>(fuente.indice)];
}

int LeerMet::HorasDelPeriodo() const {
  const TramoHoras tramo = TramoEnAnio();
  return std::max(0, tramo.ultima - tramo.primera + 1);
}

TramoHoras LeerMet::TramoEnAnio() const { return Recortar(tramo_, static_cast<std::size_t>(HORAS_DEL_ANIO)); }

FechaHora LeerMet::InicioEnAnio() const { return tramo_.primera < 0 ? FechaDeIndice(0) : periodo_.inicio; }

void LeerMet::DameSerie(std::string_view rotulo, float *destino) const {
  const FichaMagnitud *ficha = BuscarPorRotulo(rotulo);
  if (ficha == nullptr) return;
  const SerieHoraria &serie = Serie(ficha->fuente);
  const TramoHoras tramo = Recortar(TramoEnAnio(), serie.size());
  const float escala = ficha->fuente.escala;
  for (int i = tramo.primera; i <= tramo.ultima; ++i) {
    *destino++ = serie[static_cast<std::size_t>(i)] * escala;
  }
}

void LeerMet::DameTramo(SerieAlmacenada serie, float *destino, int primera, int ultima) const {
  const SerieHoraria &origen = leidas_[serie];
  const TramoHoras tramo = Recortar({primera, ultima}, origen.size());
  for (int i = tramo.primera; i <= tramo.ultima; ++i) {
    destino[i] = origen[static_cast<std::size_t>(i)];
  }
}

void LeerMet::PrepararColumnas(const std::vector<std::string> &rotulos) {
  columnas_.clear();
  const char decimal = Configuracionregional::SeparadorDecimal();
  std::vector<float> valores(static_cast<std::size_t>(HorasDelPeriodo()));
  for (const std::string &rotulo : rotulos) {
    const FichaMagnitud *ficha = BuscarPorRotulo(rotulo);
    if (ficha == nullptr || !SeExporta(*ficha)) continue;
    std::fill(valores.begin(), valores.end(), 0.0F); // lo que no se haya derivado sale a cero
    DameSerie(rotulo, valores.data());
    columnas_.emplace_back(*ficha, valores, decimal);
  }
}

EncabezamientoExportacion LeerMet::Encabezamiento() const {
  return {cabecera_,
          localidad_,
          sitio_.latitud,
          sitio_.longitud,
          sitio_.tercerDato,
          superficie_.orientacion,
          superficie_.inclinacion,
          superficie_.albedo,
          separador_};
}

bool LeerMet::EscribirFichero(const std::string &ruta, const std::vector<std::string> &rotulos) {
  PrepararColumnas(rotulos);
  const auto horas = static_cast<std::size_t>(HorasDelPeriodo());
  const std::string texto = TextoExportacion(Encabezamiento(), columnas_, InicioEnAnio(), horas);
  if (EscribirFicheroEntero(RutaDesdeTexto(ruta), texto)) return true;
  DameMensajes().Mensaje(MENSAJE_FICHERO_RESULTADO, ruta);
  return false;
}

} // namespace tesmo
