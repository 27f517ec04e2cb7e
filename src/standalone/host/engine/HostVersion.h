#pragma once

#include <string_view>

namespace vesk {

/// What a module's `KApiVersion` must say.
inline constexpr std::string_view kApiVersion = "20250000";

/// The version of the host itself.
inline constexpr std::string_view kHostVersion = "2.1.0";

}  // namespace vesk
