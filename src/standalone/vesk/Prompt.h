#pragma once

#include <string>

#include "standalone/vesk/LineSource.h"

namespace vesk {

class CommandRegistry;

/// Lines typed at a prompt, with completion and a history that is kept in `historyFile` unless that
/// is empty.
LineSource promptLines(const CommandRegistry& registry, const std::string& historyFile);

}  // namespace vesk
