// A module that takes nothing back when it is unloaded, and says that it failed.

#include "platform/OpenVesk/KSceneMessage.h"
#include "tests/data/modules/ModuleCommand.h"

MODULE_ENTRY const char KApiVersion[16];
const char KApiVersion[16] = "20250000";

namespace {

void exiting(void* line) {
  if (line) KGlobal::executeCommand(static_cast<const char*>(line), false, false);
  KGlobal::displayWarning("untidy: the program exits");
}

}  // namespace

MODULE_ENTRY KStatus initializePlugin(KObject object) {
  KFnPlugin plugin(object, nullptr, nullptr, "20250000");
  KSceneMessage::addCallback(KSceneMessage::kExiting, exiting);
  plugin.registerCommand("untidy", ModuleCommand::create, ModuleCommand::makeSyntax);
  return plugin.registerCommand("untidyToo", ModuleCommand::create, ModuleCommand::makeSyntax);
}

MODULE_ENTRY KStatus uninitializePlugin(KObject) { return StatusFailure; }
