#pragma once

#include <QColor>
#include <QString>

#include <cstdint>
#include <string_view>

namespace tesmo {

/// Texto UTF-8 de los motores como texto de Qt.
[[nodiscard]] inline QString Texto(std::string_view utf8) {
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

/// Color 0x00BBGGRR como color de Qt.
[[nodiscard]] inline QColor Color(std::uint32_t bgr) {
  constexpr std::uint32_t OCTETO = 0xFFU;
  return {static_cast<int>(bgr & OCTETO), static_cast<int>((bgr >> 8U) & OCTETO),
          static_cast<int>((bgr >> 16U) & OCTETO)};
}

/// Color de Qt como color 0x00BBGGRR.
[[nodiscard]] inline std::uint32_t EnteroDeColor(const QColor &color) {
  return static_cast<std::uint32_t>(color.red()) | static_cast<std::uint32_t>(color.green()) << 8U |
         static_cast<std::uint32_t>(color.blue()) << 16U;
}

} // namespace tesmo
