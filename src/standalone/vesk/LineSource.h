#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "standalone/vesk/ProgramOptions.h"

namespace vesk {

/// A line with the place it comes from, such as "script.vesk:12".
struct PlacedLine {
  std::string text;
  std::string place;
};

/// Gives one line after the other, and nothing at the end.
using LineSource = std::function<std::optional<PlacedLine>()>;

/// The lines of all inputs, in order. The scripts are read whole at once: nothing, and the reason,
/// when one of them cannot be.
std::optional<LineSource> openInputs(const std::vector<ProgramOptions::Input>& inputs,
                                     std::string& reason);

/// The lines of standard input, each as soon as it is there.
LineSource standardInput();

}  // namespace vesk
