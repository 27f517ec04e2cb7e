#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace orvlib {

/// Puts a file of these bytes in the place of the old one, if any, at once and for good. Empty, or
/// the reason why the old one is still there. Only a regular file is replaced.
std::string writeAtomically(const std::filesystem::path& file, std::string_view bytes);

}  // namespace orvlib
