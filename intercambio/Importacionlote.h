#pragma once

#include "intercambio/Aniodefichero.h"
#include "intercambio/escritura/Importacion.h"
#include "intercambio/sintesis/Normales.h"

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace tesmo {

/// Cómo se importan muchos ficheros.
struct OpcionesLote {
  PeticionImportacion peticion; ///< la de todos; sin nombre, el de cada uno (NombreDeLocalidad)
  EleccionReloj reloj;
  OpcionesLectura lectura;
  unsigned hilos = 0; ///< 0: uno por núcleo
  /// Por la posición de cada fichero: si es de formato desconocido, no es un error y se salta. Los que no
  /// están, no se saltan.
  std::vector<bool> saltarDesconocidos = {};
  std::vector<NormalesLocalidad> normales = {}; ///< de las del lugar se propone la zona
};

/// Lo que pasó con un fichero de un lote.
struct FicheroDeLote {
  std::string ruta;
  std::string nombre; ///< de su localidad; vacío si no se llegó a tener año
  bool saltado = false;
  AnioDeFichero anio;
  ResultadoImportacion importacion; ///< si el año se pudo hacer
};

/// Se llama con cada fichero, por el orden de la lista y en el hilo que llamó a ImportarLote.
using AlImportarUno = std::function<void(std::size_t posicion, const FicheroDeLote &fichero)>;

/// Importa @p rutas en @p directorio. Los ficheros se leen y convierten en varios hilos; el catálogo se
/// escribe en uno, por el orden de la lista, de modo que el resultado no depende de los hilos. Dos ficheros
/// del lote que den el mismo nombre no se pisan: el segundo falla aunque se pida reemplazar.
void ImportarLote(const std::string &directorio, const std::vector<std::string> &rutas,
                  const OpcionesLote &opciones, const AlImportarUno &alImportar);

/// ¿Dice algo un nombre de sitio? Algunos programas escriben «unknown» o un guion en el que no saben.
[[nodiscard]] bool DiceAlgo(const std::string &nombre);
/// El nombre de localidad de un fichero: el de su sitio o, si no dice nada, el del fichero.
[[nodiscard]] std::string NombreDeLocalidad(const std::string &ruta, const SitioClima &sitio);

} // namespace tesmo
