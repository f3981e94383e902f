#pragma once

#include "intercambio/comun/Aniocanonico.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tesmo {

struct MapaColumnas;

/// De qué avisa o por qué falla una lectura.
enum class ClaseNota : std::uint8_t {
  Fichero,             ///< falta, no es regular, no se puede abrir, o es de un formato que no se lee
  Cabecera,            ///< falta algo en la cabecera, o no se entiende
  Registro,            ///< una línea de datos sin fecha legible o con menos campos de los precisos
  Campo,               ///< un texto donde debía haber un número; vale como sin dato
  CodigoAusente,       ///< el campo lleva el código con que su formato dice que no hay dato
  ValorImposible,      ///< un número que la magnitud no puede tomar (un viento negativo); vale como sin dato
  FaltanRegistros,     ///< horas del año sin línea
  SobranRegistros,     ///< más líneas de datos que horas tiene el año
  RegistroRepetido,    ///< dos líneas de la misma hora
  FueraDeOrden,        ///< una línea de una hora anterior a la de la línea que la precede
  FechaDistinta,       ///< la fecha escrita no es la que da la posición, y manda la posición
  Bisiesto,            ///< un 29 de febrero
  HuecoInterpolado,    ///< sin dato hasta tres horas, puesto entre las vecinas
  HuecoRellenado,      ///< sin dato más horas, puesto de los días vecinos porque así se pidió
  HuecoLargo,          ///< sin dato más horas de las que se interpolan, y nada lo suple
  HuecoSinImportancia, ///< lo mismo en un campo que se puede calcular de otros: queda ausente
  CampoAusente,        ///< el fichero no trae un campo que hace falta
  Etiquetas            ///< horas de 0 a 23, o un año que no empieza el 1 de enero
};
inline constexpr std::size_t NUMERO_CLASES_NOTA = 18;

/// Un aviso o un error de lectura.
struct NotaLectura {
  ClaseNota clase = ClaseNota::Fichero;
  std::optional<Campo> campo = std::nullopt; ///< si es de uno
  int linea = 0;                             ///< desde 1; 0 si no es de ninguna
  int ultimaLinea = 0;                       ///< la misma si es de una sola
  int veces = 1;
  std::string texto = {}; ///< en español, sin fin de línea: qué, dónde y qué hacer
};

/// Cuántas veces trae un campo su código de «sin dato», y dónde.
struct CuentaAusentes {
  int veces = 0;
  int primeraLinea = 0;
  int ultimaLinea = 0;
};

/// Qué se hace con los huecos de más de HORAS_INTERPOLABLES en los campos sin los que no hay año.
enum class HuecosLargos : std::uint8_t {
  Rechazar,       ///< son errores
  RellenarVecinos ///< se rellenan con la misma hora de los días vecinos (Procedencia::Inventada)
};

/// Horas seguidas sin dato que se interpolan.
inline constexpr int HORAS_INTERPOLABLES = 3;

struct OpcionesLectura {
  HuecosLargos huecosLargos = HuecosLargos::Rechazar;
  /// Da el año, si alguna hora se pudo leer, aunque haya errores y sin tapar los huecos. Como siempre, lo
  /// imposible, los códigos de «sin dato» y una radiación de 0 todo el año quedan ausentes.
  bool paraAuditar = false;
  /// Altitud del sitio [m]: manda sobre la que el fichero diga. Vacía, la suya.
  std::optional<double> altitud = std::nullopt;
  /// Cómo leer un texto delimitado cualquiera. Si está, no se reconoce el formato: se sigue el mapa.
  std::shared_ptr<const MapaColumnas> mapa = nullptr;
};

struct ResultadoLectura {
  FormatoClima formato = FormatoClima::Desconocido;
  /// El año, con el reloj que propone su formato. Sólo si no hay errores, salvo paraAuditar.
  std::optional<AnioCanonico> anio;
  std::vector<NotaLectura> errores;
  std::vector<NotaLectura> avisos;
  std::array<CuentaAusentes, NUMERO_CAMPOS> ausentes; ///< indizada por Campo
  int registros = 0;                                  ///< líneas de datos con su fecha

  [[nodiscard]] bool SinErrores() const { return errores.empty() && anio.has_value(); }
};

/// Reconoce el formato por lo que dice @p texto, nunca por el nombre del fichero. Delimitado no se reconoce:
/// hace falta un mapa.
[[nodiscard]] FormatoClima ReconocerFormato(std::string_view texto);
/// Nombre de un formato para las personas.
[[nodiscard]] std::string_view NombreFormato(FormatoClima formato);
/// Nombre y unidad de un campo para las personas.
[[nodiscard]] std::string_view NombreCampo(Campo campo);

/// Un .met con exactamente trece números en cada línea de datos (desde la tercera): el lector de quince
/// columnas lo leería sin quejarse y todo en otro sitio.
[[nodiscard]] bool EsMetDeTreceColumnas(std::string_view texto);
/// Lo mismo de un fichero; falso si no se puede leer.
[[nodiscard]] bool EsFicheroMetDeTreceColumnas(const std::string &ruta);

/// Lee el año de un fichero ajeno. @p ruta en UTF-8, buscada sin distinguir mayúsculas si no está tal cual.
[[nodiscard]] ResultadoLectura LeerFicheroClima(const std::string &ruta,
                                                const OpcionesLectura &opciones = {});
/// Lo mismo de un texto en memoria: UTF-8 o Windows-1252, con marca de orden de bytes o sin ella, y líneas
/// que acaban en LF, CRLF o CR.
[[nodiscard]] ResultadoLectura LeerTextoClima(std::string_view texto, const OpcionesLectura &opciones = {});

} // namespace tesmo
