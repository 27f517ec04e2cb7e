#pragma once

#include <string>
#include <string_view>

namespace vesk {

/// What must change in `before` to get `after`, line by line: "-" and "+" lines between lines that
/// stay, with two of these around each place and "..." for the rest. Empty when nothing differs.
std::string textDiff(std::string_view before, std::string_view after);

}  // namespace vesk
