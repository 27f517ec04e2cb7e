#pragma once

#include <functional>
#include <optional>
#include <string>

#include "standalone/vesk/ProgramOptions.h"

namespace vesk {

/// A line with the place it comes from, such as "script.vesk:12".
struct PlacedLine {
  std::string text;
  std::string place;
};

/// Gives one line after the other, and nothing at the end.
using LineSource = std::function<std::optional<PlacedLine>()>;

/// The lines of one input. Nothing, and the reason, when a script cannot be read.
std::optional<LineSource> openInput(const ProgramOptions::Input& input, std::size_t number,
                                    std::string& reason);

/// The lines of standard input, each as soon as it is there.
LineSource standardInput();

}  // namespace vesk
