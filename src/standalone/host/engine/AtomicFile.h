#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vesk {

// Files as a whole. Only regular files are touched: a device may have no end, and a rename would
// put a file in its place.

/// The bytes of a file, or nothing and the reason.
std::optional<std::string> readWholeFile(const std::string& path, std::string& reason);

/// Puts a file of these bytes in the place of the old one, if any, at once. Empty, or the reason
/// why the old one is still there.
std::string writeAtomically(const std::string& path, std::string_view bytes);

}  // namespace vesk
