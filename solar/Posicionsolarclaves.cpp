// Los valores con nombre de PosicionSolar: qué claves hay, con qué límites se teclean y cómo se enseñan.

#include "core/Ficheros.h"
#include "core/Formato.h"
#include "solar/Posicionsolar.h"

#include <algorithm>

namespace tesmo {

namespace {

constexpr std::string_view ES_DE_DIA = "Es de día";
constexpr std::string_view PATRON_REAL = "0.00";
constexpr std::string_view PATRON_ENTERO = "0";

} // namespace

struct PosicionSolar::CampoReal {
  std::string_view clave;
  float PosicionSolar::*campo;
  Estado estado;
  float minimo;
  float maximo;
  float porDefecto;
};

struct PosicionSolar::CampoEntero {
  std::string_view clave;
  std::int32_t PosicionSolar::*campo;
  Estado estado;
  std::int32_t minimo;
  std::int32_t maximo;
  std::int32_t porDefecto;
};

// Límites y valores por defecto propios del programa: la latitud 1 y el tope 10000 también (se conservan).
const std::array<PosicionSolar::CampoReal, 7> PosicionSolar::CAMPOS_REALES{{
    {"Latitud", &PosicionSolar::latitud_, ESTADO_LATITUD, -89.0F, 89.0F, 1.0F},
    {"Hora", &PosicionSolar::hora_, ESTADO_HORA, 0.0F, 24.0F, 0.0F},
    {"Acimut", &PosicionSolar::acimut_, ESTADO_ACIMUT, 0.0F, 10000.0F, 0.0F},
    {"Altura", &PosicionSolar::altura_, ESTADO_ALTURA, 0.0F, 10000.0F, 0.0F},
    {"Inclinación", &PosicionSolar::inclinacion_, ESTADO_INCLINACION, 0.0F, 180.0F, 90.0F},
    {"Orientación", &PosicionSolar::orientacion_, ESTADO_ORIENTACION, -180.0F, 180.0F, 0.0F},
    {"Albedo", &PosicionSolar::albedo_, ESTADO_ALBEDO, 0.0F, 1.0F, 0.2F},
}};

const std::array<PosicionSolar::CampoEntero, 2> PosicionSolar::CAMPOS_ENTEROS{{
    {"Mes", &PosicionSolar::mes_, ESTADO_MES, 1, 12, 1},
    {"Día", &PosicionSolar::dia_, ESTADO_DIA, 1, 31, 1},
}};

const PosicionSolar::CampoReal *PosicionSolar::BuscarReal(std::string_view clave) {
  for (const CampoReal &campo : CAMPOS_REALES) {
    if (campo.clave == clave) return &campo;
  }
  return nullptr;
}

const PosicionSolar::CampoEntero *PosicionSolar::BuscarEntero(std::string_view clave) {
  for (const CampoEntero &campo : CAMPOS_ENTEROS) {
    if (campo.clave == clave) return &campo;
  }
  return nullptr;
}

std::string PosicionSolar::DameTexto(std::string_view clave) const {
  if (const CampoReal *c = BuscarReal(clave)) return FormatearPatron(this->*c->campo, PATRON_REAL);
  if (const CampoEntero *c = BuscarEntero(clave)) return FormatearPatron(this->*c->campo, PATRON_ENTERO);
  if (clave == ES_DE_DIA) return esDeDia_ ? "Es de día" : "Es de noche";
  return {};
}

void PosicionSolar::DameReal(std::string_view clave, float &valor) const {
  if (const CampoReal *c = BuscarReal(clave)) valor = this->*c->campo;
  if (const CampoEntero *c = BuscarEntero(clave)) valor = static_cast<float>(this->*c->campo);
}

void PosicionSolar::DameEntero(std::string_view clave, std::int32_t &valor) const {
  if (const CampoEntero *c = BuscarEntero(clave)) valor = this->*c->campo;
  if (clave == "Tamaño horizonte") valor = horizonte_.Tamano();
}

void PosicionSolar::DameLogico(std::string_view clave, bool &valor) const {
  if (clave == ES_DE_DIA) valor = esDeDia_;
}

void PosicionSolar::DameEstado(std::string_view clave, std::int32_t &estado) const {
  if (const CampoReal *c = BuscarReal(clave)) estado = estados_[c->estado];
  if (const CampoEntero *c = BuscarEntero(clave)) estado = estados_[c->estado];
  if (clave == ES_DE_DIA) estado = estados_[ESTADO_ES_DE_DIA];
}

void PosicionSolar::PonTexto(std::string_view clave, const std::string &texto) {
  if (const CampoReal *c = BuscarReal(clave)) {
    ActualizarReal(this->*c->campo, estados_[c->estado], texto, c->minimo, c->maximo, c->porDefecto);
  }
  if (const CampoEntero *c = BuscarEntero(clave)) {
    ActualizarEntero(this->*c->campo, estados_[c->estado], texto, c->minimo, c->maximo, c->porDefecto);
  }
}

void PosicionSolar::DameVector(std::string_view clave, float *bufer) const {
  if (clave == "Horizonte X") std::copy(HorizonteX().begin(), HorizonteX().end(), bufer);
  if (clave == "Horizonte Y") std::copy(HorizonteY().begin(), HorizonteY().end(), bufer);
}

bool PosicionSolar::LeerHorizonte(const std::string &ruta) {
  const std::optional<std::string> contenido = LeerFicheroEntero(RutaDesdeTexto(ruta));
  return contenido && LeerPerfil(*contenido, horizonte_);
}

bool PosicionSolar::GuardarHorizonte(const std::string &ruta) const {
  return EscribirFicheroEntero(RutaDesdeTexto(ruta), TextoDePerfil(horizonte_));
}

} // namespace tesmo
