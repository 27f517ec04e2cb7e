#pragma once

#include "standalone/host/engine/CommandRegistry.h"

namespace vesk::colour {

/// The host's command by which a user turns colour management on and off, chooses spaces and views,
/// and asks for them.
void registerColorManagementCommand(CommandRegistry& registry);

}  // namespace vesk::colour
