#pragma once

#include "standalone/host/engine/CommandRegistry.h"

namespace vesk {

// The commands on the window. They can be registered where there is none, and then say so.

void registerWorkspaceControlCommand(CommandRegistry& registry);
void registerWorkspaceCommand(CommandRegistry& registry);
void registerSnapshotCommand(CommandRegistry& registry);

/// All of them.
void registerWorkspaceCommands(CommandRegistry& registry);

}  // namespace vesk
