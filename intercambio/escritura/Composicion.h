#pragma once

#include <string>
#include <string_view>

namespace tesmo {

/// @p texto (UTF-8) con cada letra latina y su acento suelto detrás, como los nombres de fichero de algunos
/// sistemas, en una sola letra acentuada, si la hay de U+00C0 a U+00FF. Lo demás queda como está.
[[nodiscard]] std::string ComponerAcentos(std::string_view texto);

} // namespace tesmo
