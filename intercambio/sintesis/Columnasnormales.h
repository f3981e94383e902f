#pragma once

#include "intercambio/sintesis/Normales.h"

#include <span>
#include <string_view>

namespace tesmo {

/// Columna con una cifra del mes: su nombre, entre qué límites tiene sentido y dónde se guarda.
struct ColumnaMes {
  std::string_view nombre;
  double minimo;
  double maximo;
  double NormalesMes::*destino;
};
/// Columna con una cifra de la localidad, igual en sus doce filas.
struct ColumnaSitio {
  std::string_view nombre;
  double minimo;
  double maximo;
  double NormalesLocalidad::*destino;
};
/// Columna con un texto de la localidad, igual en sus doce filas.
struct ColumnaTexto {
  std::string_view nombre;
  std::string NormalesLocalidad::*destino;
};
/// Columna que dice de dónde sale un grupo de cifras: "medida", "calculada" o "estimada".
struct ColumnaClase {
  std::string_view nombre;
  ClaseCifra NormalesMes::*destino;
};

inline constexpr std::string_view COLUMNA_LOCALIDAD = "localidad";
inline constexpr std::string_view COLUMNA_MES = "mes";

[[nodiscard]] std::span<const ColumnaMes> ColumnasMes();
[[nodiscard]] std::span<const ColumnaSitio> ColumnasSitio();
[[nodiscard]] std::span<const ColumnaTexto> ColumnasTexto();
[[nodiscard]] std::span<const ColumnaClase> ColumnasClase();

} // namespace tesmo
