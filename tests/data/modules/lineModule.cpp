// A module whose entry points run lines that the build fixes, or leave one for idle time. With
// FAILS it then deregisters its command and cannot start.

#include "tests/data/modules/ModuleCommand.h"

MODULE_ENTRY const char KApiVersion[16];
const char KApiVersion[16] = "20250000";

MODULE_ENTRY KStatus initializePlugin(KObject object) {
  KFnPlugin plugin(object, "A vendor", "1", "Any");
  plugin.registerCommand("fleeting", ModuleCommand::create, ModuleCommand::makeSyntax);
#ifdef ON_IDLE
  KGlobal::executeCommandOnIdle(ON_IDLE, true);
#else
  KGlobal::executeCommand(AT_START, false, true);
#endif
#ifdef FAILS
  plugin.deregisterCommand("fleeting");
  return StatusFailure;
#else
  return StatusSuccess;
#endif
}

MODULE_ENTRY KStatus uninitializePlugin(KObject object) {
#ifndef ON_IDLE
  KGlobal::executeCommand(AT_END, false, true);
#endif
  return KFnPlugin(object, "A vendor", "1", "Any").deregisterCommand("fleeting");
}
