#pragma once

#include "standalone/host/engine/CommandRegistry.h"

namespace vesk {

/// Registers `evaluate`, which asks a graph of the scene for the value of a port.
void registerEvaluateCommand(CommandRegistry& registry);

}  // namespace vesk
