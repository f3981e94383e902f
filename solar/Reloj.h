#pragma once

namespace tesmo {

/// Fecha y hora locales de un instante: mes 1..12, día 1..31, hora 0..23, minuto 0..59.
struct InstanteLocal {
  int anio;
  int mes;
  int dia;
  int hora;
  int minuto;
};

/// De dónde se toma la hora; las pruebas ponen aquí la suya.
class Reloj {
public:
  virtual ~Reloj() = default;
  [[nodiscard]] virtual InstanteLocal Ahora() const = 0;
};

/// El reloj de la máquina, en la hora local del sistema.
class RelojDelSistema : public Reloj {
public:
  [[nodiscard]] InstanteLocal Ahora() const override;
};

/// Hora solar verdadera aproximada de @p instante: quita una hora de abril a octubre (horario de verano), un
/// desfase fijo por el huso y la longitud de la región (se conserva) y la ecuación del tiempo de Spencer
/// (1971). No se lleva a 0..24: de madrugada puede salir negativa.
[[nodiscard]] float HoraSolarDeReloj(const InstanteLocal &instante);

} // namespace tesmo
