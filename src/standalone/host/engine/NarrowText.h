#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vesk::narrow {

/// Whether narrow text is UTF-8 just now: the locale says so, or knows plain ASCII only.
bool isUtf8();

/// Narrow text as UTF-8, or nothing when its bytes are not valid in the locale's encoding.
std::optional<std::string> toUtf8(std::string_view narrow);

/// The same, with U+FFFD for every byte that is not valid.
std::string toUtf8Repaired(std::string_view narrow);

/// UTF-8 as narrow text, with '?' for every character that the encoding lacks.
std::string fromUtf8(std::string_view utf8);

}  // namespace vesk::narrow
