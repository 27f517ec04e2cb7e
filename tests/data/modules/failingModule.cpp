// A module that cannot start, with or without having registered a command.

#include "tests/data/modules/ModuleCommand.h"

MODULE_ENTRY const char KApiVersion[16];
const char KApiVersion[16] = "20250000";

MODULE_ENTRY KStatus initializePlugin(KObject object) {
  KFnPlugin plugin(object, "A vendor", "1", "Any");
#ifdef LEAVES_A_COMMAND
  plugin.registerCommand("leftover", ModuleCommand::create, ModuleCommand::makeSyntax);
#endif
  return StatusBadArgument;
}

MODULE_ENTRY KStatus uninitializePlugin(KObject) { return StatusSuccess; }
