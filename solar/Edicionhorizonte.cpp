#include "solar/Edicionhorizonte.h"

#include "solar/Posicionsolar.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tesmo {

namespace {

/// Con dos puntos, el tercero los lleva antes a su altura.
constexpr std::size_t PUNTOS_QUE_SE_IGUALAN = 2;

/// Un perfil leído puede traer acimutes que no son números: van detrás, o el orden no sería un orden.
bool AntesPorAcimut(const PuntoHorizonte &a, const PuntoHorizonte &b) {
  if (std::isnan(a.acimut) || std::isnan(b.acimut)) return !std::isnan(a.acimut) && std::isnan(b.acimut);
  return a.acimut < b.acimut;
}

double Distancia(float a, float b) { return std::fabs(static_cast<double>(a) - b); }

} // namespace

void EdicionHorizonte::Tomar(const PerfilHorizonte &perfil) {
  Proponer(perfil);
  pendiente_ = false;
}

void EdicionHorizonte::Proponer(const PerfilHorizonte &perfil) {
  PuntosHorizonte leidos = PuntosDe(perfil);
  if (leidos != puntos_) Guardar();
  Poner(std::move(leidos));
}

bool EdicionHorizonte::CopiarEn(PosicionSolar &sol) {
  if (!pendiente_) return false;
  CopiarHorizonte(Perfil(), sol);
  pendiente_ = false;
  return true;
}

PerfilHorizonte EdicionHorizonte::Perfil() const { return PerfilDe(puntos_); }

bool EdicionHorizonte::PulsarIzquierdo(float acimut, float altura, bool mayusculas, AlcanceRaton alcance) {
  if (!mayusculas) return false;
  const int antes = elegido_;
  elegido_ = MasCercano(acimut, altura, alcance);
  arrastrando_ = elegido_ != NINGUNO;
  movido_ = false;
  return elegido_ != antes;
}

bool EdicionHorizonte::Mover(float altura) {
  if (!Arrastrando() || std::isnan(altura)) return false;
  const auto i = static_cast<std::size_t>(elegido_);
  const float nueva = std::clamp(altura, 0.0F, ALTURA_MAXIMA);
  if (serie_[i].altura == nueva) return false;
  if (!movido_) Guardar(); // todo el arrastre se deshace de una vez
  movido_ = true;
  serie_[i].altura = nueva;
  puntos_ = serie_;
  pendiente_ = true;
  return true;
}

bool EdicionHorizonte::SoltarIzquierdo(float acimut, float altura, bool mayusculas) {
  if (arrastrando_) {
    arrastrando_ = false;
    return false;
  }
  return !mayusculas && Anadir(acimut, altura);
}

bool EdicionHorizonte::PulsarDerecho(float acimut, float altura) {
  return Borrar(MasCercano(acimut, altura, {ALCANCE_DE_BORRADO, ALCANCE_DE_BORRADO}));
}

bool EdicionHorizonte::BorrarElegido() { return Borrar(elegido_); }

bool EdicionHorizonte::Deshacer() { return Volver(anteriores_, posteriores_); }

bool EdicionHorizonte::Rehacer() { return Volver(posteriores_, anteriores_); }

bool EdicionHorizonte::CabeEn(float acimut, float altura) const {
  if (!(std::fabs(acimut) <= ACIMUT_MAXIMO) || !(altura >= 0.0F && altura <= ALTURA_MAXIMA)) return false;
  if (serie_.size() >= static_cast<std::size_t>(PerfilHorizonte::PUNTOS_MAXIMOS)) return false;
  for (std::size_t i = 0; i + 1 < serie_.size(); ++i) { // el último no estorba: se conserva
    if (Distancia(serie_[i].acimut, acimut) <= SEPARACION) return false;
  }
  return true;
}

bool EdicionHorizonte::Anadir(float acimut, float altura) {
  if (!CabeEn(acimut, altura)) return false;
  PuntosHorizonte serie = serie_;
  if (serie.size() == PUNTOS_QUE_SE_IGUALAN) {
    for (PuntoHorizonte &punto : serie) punto.altura = altura;
  }
  const PuntoHorizonte nuevo{acimut, altura};
  const auto sitio = serie.insert(std::upper_bound(serie.begin(), serie.end(), nuevo, AntesPorAcimut), nuevo);
  if (elegido_ != NINGUNO && sitio - serie.begin() <= elegido_) ++elegido_;
  Cambiar(std::move(serie));
  return true;
}

bool EdicionHorizonte::Borrar(int indice) {
  if (indice == NINGUNO) return false;
  PuntosHorizonte serie = serie_;
  serie.erase(serie.begin() + indice);
  if (indice == elegido_) {
    elegido_ = NINGUNO;
  } else if (indice < elegido_) {
    --elegido_;
  }
  Cambiar(std::move(serie));
  return true;
}

int EdicionHorizonte::MasCercano(float acimut, float altura, AlcanceRaton alcance) const {
  int hallado = NINGUNO;
  double menor = std::numeric_limits<double>::infinity();
  for (std::size_t i = 0; i < serie_.size(); ++i) {
    const double x = Distancia(serie_[i].acimut, acimut);
    const double y = Distancia(serie_[i].altura, altura);
    if (!(x <= alcance.acimut && y <= alcance.altura)) continue;
    const double distancia = std::hypot(x / alcance.acimut, y / alcance.altura);
    if (hallado != NINGUNO && !(distancia < menor)) continue;
    menor = distancia;
    hallado = static_cast<int>(i);
  }
  return hallado;
}

void EdicionHorizonte::Guardar() {
  if (anteriores_.size() == PASOS) anteriores_.erase(anteriores_.begin());
  anteriores_.push_back(puntos_);
  posteriores_.clear();
}

void EdicionHorizonte::Cambiar(PuntosHorizonte serie) {
  Guardar();
  movido_ = false;
  puntos_ = serie;
  serie_ = std::move(serie);
  pendiente_ = true;
}

void EdicionHorizonte::Poner(PuntosHorizonte puntos) {
  puntos_ = std::move(puntos);
  serie_ = puntos_;
  std::stable_sort(serie_.begin(), serie_.end(), AntesPorAcimut);
  elegido_ = NINGUNO;
  pendiente_ = true;
}

bool EdicionHorizonte::Volver(std::vector<PuntosHorizonte> &desde, std::vector<PuntosHorizonte> &hacia) {
  if (desde.empty()) return false;
  hacia.push_back(puntos_);
  PuntosHorizonte puntos = std::move(desde.back());
  desde.pop_back();
  Poner(std::move(puntos));
  return true;
}

void CopiarHorizonte(const PerfilHorizonte &perfil, PosicionSolar &sol) {
  sol.PonTamanoHorizonte(static_cast<float>(perfil.Tamano()));
  for (int i = 0; i < perfil.Tamano(); ++i) {
    const auto k = static_cast<std::size_t>(i);
    sol.PonPuntoHorizonte(i, perfil.X()[k], perfil.Y()[k]);
  }
}

} // namespace tesmo
