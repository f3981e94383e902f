#pragma once

#include "core/Configuracionregional.h"
#include "core/Error.h"
#include "core/Ficheros.h"
#include "core/Mensajes.h"

#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

/// Piezas que comparten las pruebas de todas las carpetas.
namespace tesmo::prueba {

/// Directorio propio de una prueba; desaparece con ella.
class DirectorioTemporal {
public:
  DirectorioTemporal();
  ~DirectorioTemporal();
  DirectorioTemporal(const DirectorioTemporal &) = delete;
  DirectorioTemporal &operator=(const DirectorioTemporal &) = delete;

  [[nodiscard]] const std::filesystem::path &Ruta() const { return ruta_; }
  [[nodiscard]] std::filesystem::path operator/(const std::string &nombre) const {
    return ruta_ / RutaDesdeTexto(nombre);
  }
  /// Escribe un fichero, creando sus directorios, y devuelve su ruta como texto.
  std::string Escribir(const std::string &nombre, const std::string &contenido) const;

private:
  std::filesystem::path ruta_;
};

/// Presentador que apunta los mensajes; repone el anterior al morir.
class MensajesApuntados : public PresentadorMensajes {
public:
  struct Apunte {
    std::string texto, titulo;
    Icono icono;
  };
  MensajesApuntados() : anterior_(DameMensajes().PonPresentador(this)) {}
  ~MensajesApuntados() override { DameMensajes().PonPresentador(anterior_); }
  void Presentar(const std::string &texto, const std::string &titulo, Icono icono) override {
    apuntes.push_back({texto, titulo, icono});
  }
  std::vector<Apunte> apuntes;

private:
  PresentadorMensajes *anterior_;
};

/// Registro de diagnósticos en memoria; se cierra al morir.
class RegistroApuntado {
public:
  RegistroApuntado() {
    AbrirRegistroEn([this](std::string_view texto) { textos.emplace_back(texto); });
  }
  ~RegistroApuntado() { CerrarRegistro(); }
  std::vector<std::string> textos;
};

/// Separador decimal regional mientras viva.
class ConSeparador {
public:
  explicit ConSeparador(char separador) : anterior_(Configuracionregional::SeparadorDecimal()) {
    Configuracionregional::PonSeparadorDecimal(separador);
  }
  ~ConSeparador() { Configuracionregional::PonSeparadorDecimal(anterior_); }

private:
  char anterior_;
};

/// Contenido de un fichero; texto vacío si no se puede leer.
[[nodiscard]] std::string Contenido(const std::filesystem::path &ruta);

/// Ejecuta @p accion en un proceso sin privilegios (usuario 65534) y dice si devolvió verdadero. Hace falta
/// porque a root no lo detienen los permisos de los ficheros. El proceso trabaja en @p directorio, al que
/// entra antes de soltarlos: con rutas relativas llega a él aunque los directorios de encima estén cerrados.
[[nodiscard]] bool SinPrivilegios(const std::filesystem::path &directorio,
                                  const std::function<bool()> &accion);
/// Lo mismo en el directorio de trabajo de la prueba.
[[nodiscard]] bool SinPrivilegios(const std::function<bool()> &accion);

} // namespace tesmo::prueba
