// A module whose entry points run lines that the build fixes. With FAILS it then deregisters its
// command and cannot start.

#include "tests/data/modules/ModuleCommand.h"

MODULE_ENTRY const char KApiVersion[16];
const char KApiVersion[16] = "20250000";

MODULE_ENTRY KStatus initializePlugin(KObject object) {
  KFnPlugin plugin(object, "A vendor", "1", "Any");
  plugin.registerCommand("fleeting", ModuleCommand::create, ModuleCommand::makeSyntax);
  KGlobal::executeCommand(AT_START, false, true);
#ifdef FAILS
  plugin.deregisterCommand("fleeting");
  return StatusFailure;
#else
  return StatusSuccess;
#endif
}

MODULE_ENTRY KStatus uninitializePlugin(KObject object) {
  KGlobal::executeCommand(AT_END, false, true);
  return KFnPlugin(object, "A vendor", "1", "Any").deregisterCommand("fleeting");
}
