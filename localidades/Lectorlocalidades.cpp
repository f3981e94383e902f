#include "localidades/Lectorlocalidades.h"

#include "core/Varios.h"
#include "localidades/Lineaslocalidades.h"

#include <algorithm>

namespace tesmo {

namespace {

constexpr int REPETICIONES_MAXIMAS = 10000; ///< una cuenta disparatada no llena la memoria
constexpr std::size_t PRIMER_NUMERO = 6;    ///< posición del primer campo numérico

/// Lee los bloques de un fichero y dice lo que encuentra mal en ellos.
class Lector {
public:
  Lector(std::string_view contenido, const std::string &fichero, const AvisoLocalidades &aviso)
      : lineas_(contenido), fichero_(fichero), aviso_(aviso) {}

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
    if (const std::optional<int> cuenta = CuentaDeLocalidades(linea_)) return *cuenta;
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
    const std::vector<std::string_view> trozos = TrocearLineaDeLocalidades(linea_);
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
    if (bytes.size() > BYTES_CAMPO_LOCALIDADES) AvisarCampo(posicion, "pasa de 49 bytes; se corta");
    return CampoDeLocalidades(bytes, lineas_.Utf8());
  }

  void AvisarCuentaDeCampos(std::size_t cuantos) const {
    if (cuantos > CAMPOS_LOCALIDAD) AvisarCampo(CAMPOS_LOCALIDAD, "sobra, y los que le sigan");
    for (std::size_t i = cuantos; i < CAMPOS_LOCALIDAD; ++i)
      AvisarCampo(i, i < PRIMER_NUMERO ? "falta; queda vacío" : "falta; se toma 0");
  }

  void AvisarCampo(std::size_t posicion, const std::string &que) const {
    if (!callado_) Avisar("campo " + std::to_string(posicion + 1) + ": " + que);
  }

  LineasLocalidades lineas_;
  std::string_view linea_; ///< no se vacía al acabarse el fichero: la última línea se repite
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
  return Lector(contenido, fichero, aviso).Leer();
}

} // namespace tesmo
