#include "localidades/Lectorlocalidades.h"

#include "core/Codificacion.h"
#include "core/Varios.h"

#include <algorithm>

namespace tesmo {

namespace {

constexpr std::size_t BYTES_LINEA = 299; ///< sin contar el fin de línea
constexpr std::size_t BYTES_CAMPO = 49;
constexpr int REPETICIONES_MAXIMAS = 10000; ///< una cuenta disparatada no llena la memoria
constexpr std::size_t PRIMER_NUMERO = 6;    ///< posición del primer campo numérico
constexpr std::string_view MARCA_UTF8 = "\xEF\xBB\xBF";

/// Va dando las líneas del fichero en bytes, sin su fin de línea.
class Lineas {
public:
  Lineas(std::string_view texto, bool utf8) : resto_(texto), utf8_(utf8) {}
  [[nodiscard]] bool Quedan() const { return !resto_.empty(); }
  [[nodiscard]] int Numero() const { return numero_; }
  [[nodiscard]] bool Partida() const { return partida_; }

  std::string_view Siguiente() {
    if (!partida_) ++numero_;
    // No se mira más allá de una línea con su CR LF: así el coste no depende de lo que quede por leer.
    const std::string_view cerca = resto_.substr(0, BYTES_LINEA + 2);
    const std::size_t fin = std::min(cerca.find('\n'), cerca.size());
    std::string_view linea = cerca.substr(0, fin);
    if (linea.ends_with('\r')) linea.remove_suffix(1);
    partida_ = linea.size() > BYTES_LINEA;
    if (partida_) linea = utf8_ ? RecortarUtf8(linea, BYTES_LINEA) : linea.substr(0, BYTES_LINEA);
    resto_.remove_prefix(partida_ ? linea.size() : std::min(fin + 1, resto_.size()));
    return linea.substr(0, linea.find('\0'));
  }

private:
  std::string_view resto_;
  bool utf8_; ///< una línea larga no se parte entonces en medio de un carácter
  int numero_ = 0;
  bool partida_ = false; ///< la última línea dada sigue en la próxima
};

/// Los trozos de una línea entre comas; tras cada coma se saltan los blancos y las tabulaciones.
std::vector<std::string_view> Trocear(std::string_view linea) {
  std::vector<std::string_view> trozos;
  while (true) {
    const std::size_t coma = linea.find(',');
    trozos.push_back(linea.substr(0, coma));
    if (coma == std::string_view::npos) return trozos;
    linea.remove_prefix(coma + 1);
    linea.remove_prefix(std::min(linea.find_first_not_of(" \t"), linea.size()));
  }
}

/// Lee los bloques de un fichero y dice lo que encuentra mal en ellos.
class Lector {
public:
  Lector(std::string_view contenido, const std::string &fichero, const AvisoLocalidades &aviso)
      : lineas_(contenido, EsUtf8(contenido)), utf8_(EsUtf8(contenido)), fichero_(fichero), aviso_(aviso) {}

  std::vector<std::unique_ptr<ObjetoCiudad>> Leer() {
    while (lineas_.Quedan()) LeerBloque(LeerCuenta());
    return std::move(registros_);
  }

private:
  void Avisar(const std::string &que) const {
    if (aviso_) aviso_(fichero_ + ": línea " + std::to_string(lineas_.Numero()) + ": " + que);
  }

  void TomarLinea() {
    linea_ = lineas_.Siguiente();
    if (lineas_.Partida()) Avisar("pasa de 299 bytes; lo que sigue cuenta como otra línea");
  }

  int LeerCuenta() {
    TomarLinea();
    const std::string_view campo = Trocear(linea_).front();
    const bool blanca = campo.find_first_not_of(" \t") == std::string_view::npos;
    const std::size_t cifra = std::min(campo.find_first_not_of(" \t"), campo.size());
    if (blanca || (campo[cifra] >= '0' && campo[cifra] <= '9')) return PrefijoEntero(campo);
    Avisar("campo 1: no es el número de localidades de un bloque");
    return 0;
  }

  void LeerBloque(int cuenta) {
    for (; cuenta > 0 && lineas_.Quedan(); --cuenta) {
      TomarLinea();
      AnadirRegistro();
    }
    if (cuenta <= 0) return;
    Avisar("al bloque le faltan " + std::to_string(cuenta) + " líneas; se repite la última");
    callado_ = true; // los defectos de la línea repetida ya se dijeron
    for (int i = std::min(cuenta, REPETICIONES_MAXIMAS); i > 0; --i) AnadirRegistro();
  }

  void AnadirRegistro() {
    const std::vector<std::string_view> trozos = Trocear(linea_);
    AvisarCuentaDeCampos(trozos.size());
    CamposLocalidad campos;
    for (std::size_t i = 0; i < std::min(trozos.size(), CAMPOS_LOCALIDAD); ++i)
      campos[i] = Campo(trozos[i], i);
    const std::size_t presentes = trozos.size();
    registros_.push_back(std::make_unique<ObjetoCiudad>(CrearObjetoCiudad(campos, [&](std::size_t i) {
      if (i < presentes) AvisarCampo(i, "\"" + campos[i] + "\" no es un número; se toma 0");
    })));
  }

  std::string Campo(std::string_view bytes, std::size_t posicion) const {
    if (bytes.size() > BYTES_CAMPO) AvisarCampo(posicion, "pasa de 49 bytes; se corta");
    if (!utf8_) return DesdeWindows1252(bytes.substr(0, BYTES_CAMPO));
    return std::string(RecortarUtf8(bytes, BYTES_CAMPO));
  }

  void AvisarCuentaDeCampos(std::size_t cuantos) const {
    if (cuantos > CAMPOS_LOCALIDAD) AvisarCampo(CAMPOS_LOCALIDAD, "sobra, y los que le sigan");
    for (std::size_t i = cuantos; i < CAMPOS_LOCALIDAD; ++i)
      AvisarCampo(i, i < PRIMER_NUMERO ? "falta; queda vacío" : "falta; se toma 0");
  }

  void AvisarCampo(std::size_t posicion, const std::string &que) const {
    if (!callado_) Avisar("campo " + std::to_string(posicion + 1) + ": " + que);
  }

  Lineas lineas_;
  std::string_view linea_; ///< no se vacía al acabarse el fichero: la última línea se repite
  bool utf8_;
  bool callado_ = false;
  const std::string &fichero_;
  const AvisoLocalidades &aviso_;
  std::vector<std::unique_ptr<ObjetoCiudad>> registros_;
};

} // namespace

ObjetoCiudad CrearObjetoCiudad(const CamposLocalidad &campos, const std::function<void(std::size_t)> &malo) {
  const auto numero = [&](std::size_t posicion) {
    bool correcto = true;
    const float valor = TextoARealOCero(campos[posicion], correcto);
    if (!correcto && malo) malo(posicion);
    return valor;
  };
  ObjetoCiudad ciudad;
  ciudad.localidad = campos[0];
  ciudad.localidadCorta = campos[1];
  ciudad.provincia = campos[2];
  ciudad.cuarto = campos[3];
  ciudad.localidadRef = campos[4];
  ciudad.fichero = campos[5];
  ciudad.latitud = numero(PRIMER_NUMERO);
  ciudad.longitud = numero(PRIMER_NUMERO + 1);
  ciudad.longitudRef = numero(PRIMER_NUMERO + 2);
  ciudad.decimo = numero(PRIMER_NUMERO + 3);
  ciudad.undecimo = numero(PRIMER_NUMERO + 4);
  return ciudad;
}

std::vector<std::unique_ptr<ObjetoCiudad>>
LeerLocalidades(std::string_view contenido, const std::string &fichero, const AvisoLocalidades &aviso) {
  if (contenido.starts_with(MARCA_UTF8)) contenido.remove_prefix(MARCA_UTF8.size());
  return Lector(contenido, fichero, aviso).Leer();
}

} // namespace tesmo
