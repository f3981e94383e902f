#include "vistas/comun/Casillanumero.h"

#include "core/Configuracionregional.h"
#include "core/Formato.h"
#include "core/Varios.h"
#include "vistas/comun/Textoqt.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace tesmo {

namespace {

bool EsSeparador(QChar c) { return c == '.' || c == ','; }
bool EsSigno(QChar c) { return c == '+' || c == '-'; }
bool EsCifra(QChar c) { return c >= '0' && c <= '9'; }

/// El texto de una casilla: el número y lo que la casilla pone a sus lados.
struct Partes {
  QString prefijo;
  QString numero;
  QString sufijo;

  template <class Casilla>
  Partes(const Casilla &casilla, const QString &texto) : numero(texto) {
    if (!casilla.prefix().isEmpty() && numero.startsWith(casilla.prefix())) {
      prefijo = casilla.prefix();
      numero.remove(0, prefijo.size());
    }
    if (!casilla.suffix().isEmpty() && numero.endsWith(casilla.suffix())) {
      sufijo = casilla.suffix();
      numero.chop(sufijo.size());
    }
  }
  [[nodiscard]] QString Juntas() const { return prefijo + numero + sufijo; }
};

/// Cifras y separadores en cualquier orden, y un signo delante: lo que no llega a número se ve al terminar.
bool SePuedeTeclear(const QString &numero) {
  const QString limpio = numero.trimmed();
  return std::all_of(limpio.begin(), limpio.end(), [&limpio](const QChar &c) {
    return EsCifra(c) || EsSeparador(c) || (EsSigno(c) && &c == limpio.begin());
  });
}

void PonSeparadorRegional(QString &numero) {
  const QChar separador = QLatin1Char(Configuracionregional::SeparadorDecimal());
  for (QChar &c : numero) {
    if (EsSeparador(c)) c = separador;
  }
}

std::optional<double> Leer(QString numero) {
  PonSeparadorRegional(numero);
  return TextoAReal(numero.toStdString());
}

/// Lo que la casilla guarda de lo leído, antes de mirar sus límites.
double Guardado(const QSpinBox &, double valor) { return std::trunc(valor); }
double Guardado(const QDoubleSpinBox &casilla, double valor) {
  return Leer(casilla.textFromValue(valor)).value_or(valor);
}

template <class Casilla>
std::optional<double> Leer(const Casilla &casilla, const QString &texto) {
  const std::optional<double> valor = Leer(Partes(casilla, texto).numero);
  return valor ? std::optional(Guardado(casilla, *valor)) : std::nullopt;
}

template <class Casilla>
double Limitar(const Casilla &casilla, double valor) {
  return std::clamp<double>(valor, casilla.minimum(), casilla.maximum());
}

template <class Casilla>
QValidator::State Validar(const Casilla &casilla, QString &texto) {
  Partes partes(casilla, texto);
  if (!SePuedeTeclear(partes.numero)) return QValidator::Invalid;
  PonSeparadorRegional(partes.numero);
  texto = partes.Juntas();
  const std::optional<double> valor = Leer(casilla, texto);
  const bool vale = valor && Limitar(casilla, *valor) == *valor;
  return vale ? QValidator::Acceptable : QValidator::Intermediate;
}

} // namespace

CasillaEntera::CasillaEntera(QWidget *padre) : QSpinBox(padre) {}

QValidator::State CasillaEntera::validate(QString &texto, int & /*cursor*/) const {
  return Validar(*this, texto);
}

void CasillaEntera::fixup(QString &texto) const {
  if (const auto valor = Leer(*this, texto))
    texto = prefix() + textFromValue(static_cast<int>(Limitar(*this, *valor))) + suffix();
}

int CasillaEntera::valueFromText(const QString &texto) const {
  return static_cast<int>(Limitar(*this, Leer(*this, texto).value_or(value())));
}

CasillaReal::CasillaReal(QWidget *padre) : QDoubleSpinBox(padre) {}

QValidator::State CasillaReal::validate(QString &texto, int & /*cursor*/) const {
  return Validar(*this, texto);
}

void CasillaReal::fixup(QString &texto) const {
  if (const auto valor = Leer(*this, texto))
    texto = prefix() + textFromValue(Limitar(*this, *valor)) + suffix();
}

double CasillaReal::valueFromText(const QString &texto) const {
  return Limitar(*this, Leer(*this, texto).value_or(value()));
}

QString CasillaReal::textFromValue(double valor) const {
  const std::string decimales(static_cast<std::size_t>(decimals()), '0');
  return Texto(FormatearPatron(valor, decimales.empty() ? "0" : "0." + decimales));
}

namespace {

/// Donde el puntero deje el cursor entre las palabras de @p especial se puede teclear: de @p numero, con el
/// cursor en @p cursor, queda lo tecleado. Vacío si lo que hay tras el cursor no es el final de @p especial.
std::optional<QString> TecleadoEntre(const QString &especial, const QString &numero, qsizetype cursor) {
  const QString detras = numero.mid(cursor);
  if (!especial.endsWith(detras)) return std::nullopt;
  const auto distinto = std::mismatch(numero.begin(), numero.begin() + cursor, especial.begin(),
                                      especial.end() - detras.size());
  const qsizetype delante = distinto.first - numero.begin();
  return numero.mid(delante, cursor - delante);
}

} // namespace

/// «Sin valor» es el mínimo de la casilla, una última cifra por debajo del menor número.
CasillaOpcional::CasillaOpcional(double menor, double mayor, int decimales, const QString &sinValor,
                                 QWidget *padre)
    : CasillaReal(padre) {
  setDecimals(decimales);
  setRange(menor - std::pow(10.0, -decimales), mayor);
  setSpecialValueText(sinValor);
  setValue(minimum());
}

std::optional<double> CasillaOpcional::Valor() const {
  return value() == minimum() ? std::nullopt : std::optional(value());
}

void CasillaOpcional::PonValor(std::optional<double> valor) { setValue(valor.value_or(minimum())); }

void CasillaOpcional::stepBy(int pasos) {
  if (Valor()) return CasillaReal::stepBy(pasos);
  setValue(std::clamp(0.0, minimum(), maximum()));
}

QValidator::State CasillaOpcional::validate(QString &texto, int &cursor) const {
  if (texto == specialValueText()) return QValidator::Acceptable;
  const QValidator::State estado = CasillaReal::validate(texto, cursor);
  if (estado != QValidator::Invalid) return estado;
  Partes partes(*this, texto);
  const qsizetype sitio = std::clamp<qsizetype>(cursor - partes.prefijo.size(), 0, partes.numero.size());
  const auto tecleado = TecleadoEntre(specialValueText(), partes.numero, sitio);
  if (!tecleado || !SePuedeTeclear(*tecleado)) return QValidator::Invalid;
  partes.numero = *tecleado;
  texto = partes.Juntas();
  cursor = static_cast<int>(partes.prefijo.size() + tecleado->size());
  return CasillaReal::validate(texto, cursor);
}

void CasillaOpcional::fixup(QString &texto) const {
  if (Partes(*this, texto).numero.trimmed().isEmpty())
    texto = specialValueText();
  else
    CasillaReal::fixup(texto);
}

double CasillaOpcional::valueFromText(const QString &texto) const {
  return texto == specialValueText() ? minimum() : CasillaReal::valueFromText(texto);
}

} // namespace tesmo
