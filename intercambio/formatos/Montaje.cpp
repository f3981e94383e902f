#include "intercambio/formatos/Montaje.h"

#include "core/Calendario.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace tesmo {

namespace {

constexpr std::size_t HORAS = static_cast<std::size_t>(HORAS_DEL_ANIO);

bool EsBisiesto(const FilaClima &fila) { return fila.mes == 2 && fila.dia == 29; }

/// Cuántas filas seguidas llevan, por lo común, la misma etiqueta: 1 en un año horario.
int RegistrosPorHora(const std::vector<FilaClima> &filas) {
  const auto etiqueta = [](const FilaClima &f) { return std::tuple(f.anio, f.mes, f.dia, f.hora); };
  std::size_t distintas = 1;
  for (std::size_t i = 1; i < filas.size(); ++i)
    distintas += etiqueta(filas[i]) != etiqueta(filas[i - 1]) ? 1U : 0U;
  return static_cast<int>(std::lround(static_cast<double>(filas.size()) / static_cast<double>(distintas)));
}

/// Lleva las filas a sus posiciones y apunta lo que no encaja.
class Montador {
public:
  Montador(const std::vector<FilaClima> &filas, AnioCanonico &anio, Cuaderno &cuaderno)
      : filas_(filas), anio_(anio), cuaderno_(cuaderno) {}

  void Montar() {
    if (RechazarMasDeUnAnio()) return;
    DecidirEtiquetas();
    RechazarBisiestos();
    for (const FilaClima &fila : filas_) Colocar(fila);
    ContarRegistros();
    ComprobarVueltas();
    AvisarDeFaltas();
  }

private:
  /// Con varios registros por hora, o con varios años, decir que cada uno repite otra hora no ayuda.
  bool RechazarMasDeUnAnio() {
    const int porHora = RegistrosPorHora(filas_);
    const int registros = cuaderno_.Resultado().registros;
    if (porHora < 2 && registros < 2 * HORAS_DEL_ANIO) return false;
    cuaderno_.Error({.clase = ClaseNota::SobranRegistros,
                     .linea = filas_.front().linea,
                     .veces = registros - (porHora < 2 ? HORAS_DEL_ANIO : registros / porHora),
                     .texto = porHora < 2
                                  ? "hay " + std::to_string(registros) + " líneas de datos y un año tiene " +
                                        std::to_string(HORAS_DEL_ANIO) +
                                        " horas: parecen varios años; deje uno solo"
                                  : "hay " + std::to_string(porHora) + " registros por hora (" +
                                        TextoLineas(filas_.front().linea,
                                                    filas_[static_cast<std::size_t>(porHora - 1)].linea) +
                                        ", y así los demás); deje uno, con la media de los de su hora"});
    return true;
  }

  void DecidirEtiquetas() {
    const auto esCero = [](const FilaClima &fila) { return fila.hora == 0; };
    const auto esVeinticuatro = [](const FilaClima &fila) { return fila.hora == HORAS_DEL_DIA; };
    const bool hayCero = std::any_of(filas_.begin(), filas_.end(), esCero);
    const bool hay24 = std::any_of(filas_.begin(), filas_.end(), esVeinticuatro);
    // Si la primera etiqueta no es 0, los ceros son el final del día anterior.
    deCeroA23_ = hayCero && !hay24 && filas_.front().hora == 0;
    if (!deCeroA23_) return;
    cuaderno_.Aviso({.clase = ClaseNota::Etiquetas,
                     .linea = filas_.front().linea,
                     .texto = "las horas van de 0 a 23: la 0 se toma como la hora 1 del día"});
  }

  void RechazarBisiestos() {
    const auto primera = std::find_if(filas_.begin(), filas_.end(), EsBisiesto);
    if (primera == filas_.end()) return;
    const auto ultima = std::find_if(filas_.rbegin(), filas_.rend(), EsBisiesto);
    bisiestos_ = static_cast<int>(std::count_if(filas_.begin(), filas_.end(), EsBisiesto));
    cuaderno_.Error({.clase = ClaseNota::Bisiesto,
                     .linea = primera->linea,
                     .ultimaLinea = ultima->linea,
                     .veces = bisiestos_,
                     .texto = TextoLineas(primera->linea, ultima->linea) +
                              ": son del 29 de febrero, y el año es de 365 días; quítelas del fichero"});
  }

  void Colocar(const FilaClima &fila) {
    if (EsBisiesto(fila)) return;
    const int posicion = Posicion(fila);
    if (posicion < 0) return AvisarDeFecha(fila);
    const auto i = static_cast<std::size_t>(posicion);
    if (anio_.lineas[i] != 0) return RechazarRepetida(fila, posicion);
    ComprobarOrden(fila, posicion);
    anio_.lineas[i] = fila.linea;
    anio_.anios[i] = fila.anio;
    for (std::size_t c = 0; c < NUMERO_CAMPOS; ++c)
      anio_.series[c].Poner(i, fila.valores[c], Procedencia::Copiada);
  }

  [[nodiscard]] int Posicion(const FilaClima &fila) const {
    if (deCeroA23_) return PosicionEtiqueta(fila.mes, fila.dia, fila.hora + 1);
    if (fila.hora != 0) return PosicionEtiqueta(fila.mes, fila.dia, fila.hora);
    // El 0 del 1 de marzo cierra el 28 de febrero, y el del 1 de enero, el año.
    const int primera = PosicionEtiqueta(fila.mes, fila.dia, 1);
    return primera < 0 ? -1 : (primera + HORAS_DEL_ANIO - 1) % HORAS_DEL_ANIO;
  }

  void ComprobarOrden(const FilaClima &fila, int posicion) {
    if (primeraPosicion_ < 0) primeraPosicion_ = posicion;
    if (posicion < ultimaPosicion_) {
      ++vueltas_;
      lineaVuelta_ = fila.linea;
      if (vueltas_ > 1) Desordenada(fila.linea);
    }
    ultimaPosicion_ = posicion;
  }

  void Desordenada(int linea) {
    cuaderno_.Error(
        {.clase = ClaseNota::FueraDeOrden,
         .linea = linea,
         .texto = "línea " + std::to_string(linea) +
                  ": su fecha es anterior a la de la línea de antes; ordene el fichero por fechas"});
  }

  /// Una sola vuelta atrás vale si el año entero cabe en ella: de julio a junio, por ejemplo.
  void ComprobarVueltas() {
    if (vueltas_ == 0) return;
    if (vueltas_ > 1 || ultimaPosicion_ >= primeraPosicion_) return Desordenada(lineaVuelta_);
    cuaderno_.Aviso({.clase = ClaseNota::Etiquetas,
                     .linea = filas_.front().linea,
                     .texto = "el año empieza el " + TextoHora(primeraPosicion_) +
                              " y da la vuelta en la línea " + std::to_string(lineaVuelta_) +
                              "; se ha puesto de enero a diciembre"});
  }

  void RechazarRepetida(const FilaClima &fila, int posicion) {
    const int anterior = anio_.lineas[static_cast<std::size_t>(posicion)];
    cuaderno_.Error({.clase = ClaseNota::RegistroRepetido,
                     .linea = fila.linea,
                     .texto = "línea " + std::to_string(fila.linea) + ": repite la hora de la línea " +
                              std::to_string(anterior) + " (" + TextoHora(posicion) +
                              "); hace falta un solo registro por hora"});
  }

  void AvisarDeFecha(const FilaClima &fila) {
    --cuaderno_.Resultado().registros;
    cuaderno_.Aviso({.clase = ClaseNota::Registro,
                     .linea = fila.linea,
                     .texto = "línea " + std::to_string(fila.linea) + ": no hay mes " +
                              std::to_string(fila.mes) + ", día " + std::to_string(fila.dia) + ", hora " +
                              std::to_string(fila.hora) + "; esa hora se da por no escrita"});
  }

  void ContarRegistros() {
    const int registros = cuaderno_.Resultado().registros;
    if (registros - bisiestos_ <= HORAS_DEL_ANIO) return;
    cuaderno_.Error({.clase = ClaseNota::SobranRegistros,
                     .linea = filas_.back().linea,
                     .veces = registros - bisiestos_ - HORAS_DEL_ANIO,
                     .texto = "hay " + std::to_string(registros) + " líneas de datos y un año tiene " +
                              std::to_string(HORAS_DEL_ANIO) +
                              " horas; deje un solo año con un registro por hora"});
  }

  void AvisarDeFaltas() {
    for (std::size_t i = 0; i < HORAS; ++i) {
      if (anio_.lineas[i] != 0) continue;
      std::size_t fin = i;
      while (fin < HORAS && anio_.lineas[fin] == 0) ++fin;
      AvisarDeTramo(i, fin - 1);
      i = fin;
    }
  }

  void AvisarDeTramo(std::size_t primera, std::size_t ultima) {
    const int antes = primera == 0 ? 0 : anio_.lineas[primera - 1];
    const int despues = ultima + 1 == HORAS ? 0 : anio_.lineas[ultima + 1];
    const int horas = static_cast<int>(ultima - primera + 1);
    cuaderno_.Aviso({.clase = ClaseNota::FaltanRegistros,
                     .linea = antes != 0 ? antes : despues,
                     .ultimaLinea = despues != 0 ? despues : antes,
                     .veces = horas,
                     .texto = (horas == 1 ? "falta 1 registro, el del "
                                          : "faltan " + std::to_string(horas) + " registros, del ") +
                              TextoHora(static_cast<int>(primera)) +
                              (horas == 1 ? "" : " al " + TextoHora(static_cast<int>(ultima))) +
                              (antes != 0 ? ", tras la línea " + std::to_string(antes) : "")});
  }

  const std::vector<FilaClima> &filas_;
  AnioCanonico &anio_;
  Cuaderno &cuaderno_;
  bool deCeroA23_ = false;
  int bisiestos_ = 0;
  int primeraPosicion_ = -1;
  int ultimaPosicion_ = -1;
  int vueltas_ = 0;
  int lineaVuelta_ = 0;
};

} // namespace

int PosicionEtiqueta(int mes, int dia, int hora) {
  if (mes < 1 || mes > static_cast<int>(MESES_DEL_ANIO) || hora < 1 || hora > HORAS_DEL_DIA) return -1;
  return dia >= 1 && dia <= DiasDelMes(mes) ? IndiceHora(mes, dia, hora) : -1;
}

void MontarAnio(const std::vector<FilaClima> &filas, AnioCanonico &anio, Cuaderno &cuaderno) {
  if (filas.empty()) {
    cuaderno.Error({.clase = ClaseNota::FaltanRegistros,
                    .texto = "no hay ninguna línea de datos que se entienda; compruebe que el fichero está "
                             "entero y es del formato que dice"});
    return;
  }
  Montador(filas, anio, cuaderno).Montar();
}

} // namespace tesmo
