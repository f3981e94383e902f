#include "intercambio/auditoria/Comprobaciones.h"
#include "intercambio/auditoria/Hallazgos.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>

namespace tesmo {

namespace {

/// Números con que los formatos corrientes dicen que no hay dato en un campo. Uno que el lector de su formato
/// conoce llega ya como ausente; el que sigue aquí se tomaría por una medida.
struct CodigosDeCampo {
  Campo campo;
  std::array<double, 6> codigos; ///< los que sobran repiten uno
};
constexpr double NINGUNO = 1e300;
constexpr std::array<CodigosDeCampo, 12> CODIGOS{{
    {Campo::TemperaturaSeca, {99.9, 999.0, 9999.0, -99.9, -999.0, -9999.0}},
    {Campo::TemperaturaRocio, {99.9, 999.0, 9999.0, -99.9, -999.0, -9999.0}},
    {Campo::TemperaturaCielo, {99.9, 999.0, 9999.0, -99.9, -999.0, -9999.0}},
    {Campo::HumedadRelativa, {999.0, 9999.0, 999.9, -99.0, -999.0, -9999.0}},
    {Campo::HumedadAbsoluta, {99.9, 999.0, 9999.0, -1.0, -999.0, -9999.0}},
    // 99999 Pa es una presión corriente cerca del mar: no es código
    {Campo::Presion, {999999.0, -9999.0, 9999.0, 999900.0, -999.0, -9900.0}},
    // 999 W/m² es una radiación corriente: no es código
    {Campo::GlobalHorizontal, {9999.0, 99999.0, -99.0, -999.0, -9999.0, -9900.0}},
    {Campo::DirectaNormal, {9999.0, 99999.0, -99.0, -999.0, -9999.0, -9900.0}},
    {Campo::DirectaHorizontal, {9999.0, 99999.0, -99.0, -999.0, -9999.0, -9900.0}},
    {Campo::DifusaHorizontal, {9999.0, 99999.0, -99.0, -999.0, -9999.0, -9900.0}},
    {Campo::VelocidadViento, {99.0, 99.9, 999.0, 999.9, -999.0, -9900.0}},
    {Campo::DireccionViento, {999.0, 9999.0, -99.0, -999.0, -9999.0, NINGUNO}},
}};

bool EsCodigo(const CodigosDeCampo &campo, double valor) {
  return std::any_of(campo.codigos.begin(), campo.codigos.end(),
                     [valor](double codigo) { return std::abs(valor - codigo) < 1e-6; });
}

/// Campos de los que alguno de cada grupo hace falta para tener un año.
constexpr std::array<Campo, 6> CAMPOS_PRECISOS{Campo::TemperaturaSeca, Campo::HumedadRelativa,
                                               Campo::HumedadAbsoluta, Campo::DifusaHorizontal,
                                               Campo::VelocidadViento, Campo::DireccionViento};

} // namespace

Hallazgo MirarRegistros(const MateriaAuditoria &materia) {
  Hallazgo hallazgo =
      DeNotas(materia,
              {ClaseNota::Fichero, ClaseNota::Cabecera, ClaseNota::Registro, ClaseNota::FaltanRegistros,
               ClaseNota::SobranRegistros, ClaseNota::Bisiesto, ClaseNota::CampoAusente},
              std::to_string(HORAS_DEL_ANIO) + " registros, el año entero");
  if (materia.registros == HORAS_DEL_ANIO || hallazgo.gravedad == Gravedad::Grave) return hallazgo;
  hallazgo.gravedad = Gravedad::Grave;
  hallazgo.texto = std::to_string(materia.registros) + " registros en vez de " +
                   std::to_string(HORAS_DEL_ANIO) +
                   (hallazgo.texto.empty() || materia.avisos.empty() ? "" : "; " + hallazgo.texto);
  return hallazgo;
}

Hallazgo MirarOrden(const MateriaAuditoria &materia) {
  Hallazgo hallazgo = DeNotas(
      materia,
      {ClaseNota::RegistroRepetido, ClaseNota::FueraDeOrden, ClaseNota::FechaDistinta, ClaseNota::Etiquetas},
      "las fechas van seguidas");
  if (hallazgo.gravedad != Gravedad::Conforme) return hallazgo;
  HorasMalas malas;
  int anterior = 0;
  for (std::size_t i = 0; i < materia.anio.lineas.size(); ++i) {
    const int linea = materia.anio.lineas[i];
    if (linea == 0) continue;
    if (linea < anterior) malas.push_back(i);
    anterior = linea;
  }
  if (malas.empty()) return hallazgo;
  return ConLineas(Gravedad::Grave, "registros antes de su fecha: " + std::to_string(malas.size()), materia,
                   malas);
}

Hallazgo MirarCodigos(const MateriaAuditoria &materia) {
  HorasMalas malas;
  std::string campos;
  for (const CodigosDeCampo &campo : CODIGOS) {
    const std::vector<double> &valores = Valores(materia, campo.campo);
    const std::size_t antes = malas.size();
    for (std::size_t i = 0; i < valores.size(); ++i) {
      if (EsCodigo(campo, valores[i])) malas.push_back(i);
    }
    if (malas.size() == antes) continue;
    campos += (campos.empty() ? "" : "; ") + std::string(NombreCampo(campo.campo)) + ", " +
              Cuantas(malas.size() - antes);
  }
  if (malas.empty()) return Conforme("ninguno tomado por medida");
  return ConLineas(Gravedad::Grave, "códigos de dato ausente que pasarían por medidas: " + campos, materia,
                   malas);
}

Hallazgo MirarHuecos(const MateriaAuditoria &materia) {
  Hallazgo hallazgo = DeNotas(
      materia,
      {ClaseNota::Campo, ClaseNota::HuecoInterpolado, ClaseNota::HuecoRellenado, ClaseNota::HuecoLargo},
      "ninguna");
  HorasMalas malas;
  for (Campo campo : CAMPOS_PRECISOS) {
    if (!Trae(materia, campo)) continue;
    const std::vector<double> &valores = Valores(materia, campo);
    for (std::size_t i = 0; i < valores.size(); ++i) {
      if (std::isnan(valores[i]) && materia.anio.lineas[i] > 0) malas.push_back(i);
    }
  }
  if (malas.empty()) return hallazgo;
  const Gravedad gravedad = std::max(hallazgo.gravedad, Gravedad::Aviso);
  const std::string texto = hallazgo.gravedad == Gravedad::Conforme
                                ? "falta algún dato en " + Cuantas(malas.size())
                                : hallazgo.texto;
  return ConLineas(gravedad, texto, materia, malas);
}

} // namespace tesmo
