// A module as it should be: a command, a scene callback, and nothing left at its end.

#include "platform/OpenVesk/KMessage.h"
#include "platform/OpenVesk/KSceneMessage.h"
#include "tests/data/modules/ModuleCommand.h"

MODULE_ENTRY const char KApiVersion[16];
const char KApiVersion[16] = "20250000";

namespace {

std::uint64_t callback = 0;

void exiting(void*) { KGlobal::displayWarning("good: the program exits"); }

}  // namespace

MODULE_ENTRY KStatus initializePlugin(KObject object) {
  KStatus status;
  KFnPlugin plugin(object, "A vendor", "1.2.3", "Any", &status);
  if (!status) return status;
  callback = KSceneMessage::addCallback(KSceneMessage::kExiting, exiting, nullptr, &status);
  if (!status) return status;
  return plugin.registerCommand("good", ModuleCommand::create, ModuleCommand::makeSyntax);
}

MODULE_ENTRY KStatus uninitializePlugin(KObject object) {
  KFnPlugin plugin(object, "A vendor", "1.2.3", "Any");
  KGlobal::displayWarning("good: unloading");
  KMessage::removeCallback(callback);
  return plugin.deregisterCommand("good");
}
