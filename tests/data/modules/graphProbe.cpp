// A module with the command `graphProbe`, for transcripts about what its metadata base does.

#include "platform/OpenVesk/KFnPlugin.h"
#include "plugin/pluginMessages.h"
#include "tests/data/modules/ModuleCommand.h"
#include "tests/support/GraphProbeCommand.h"

MODULE_ENTRY const char KApiVersion[16];
const char KApiVersion[16] = "20250000";

MODULE_ENTRY KStatus initializePlugin(KObject object) {
  registerMessages();
  return KFnPlugin(object, "A vendor", "1", "Any")
      .registerCommand("graphProbe", GraphProbeCommand::creator, GraphProbeCommand::createSyntax);
}

MODULE_ENTRY KStatus uninitializePlugin(KObject object) {
  return KFnPlugin(object, "A vendor", "1", "Any").deregisterCommand("graphProbe");
}
