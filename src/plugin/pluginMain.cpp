#include <cstdint>

#include "commands/clipboard/orvCopyCmd.h"
#include "commands/clipboard/orvPasteCmd.h"
#include "commands/clipboard/orvWatchPointCmd.h"
#include "commands/compound/orvCompoundCmd.h"
#include "commands/graph/orvConnectCmd.h"
#include "commands/graph/orvNodeCmd.h"
#include "commands/graph/orvPortCmd.h"
#include "editors/editorRegistry.h"
#include "editors/orvCompoundEditorCmd.h"
#include "editors/orvParameterEditorCmd.h"
#include "editors/parameterPanels.h"
#include "platform/OpenVesk/KFnPlugin.h"
#include "platform/OpenVesk/KMessage.h"
#include "platform/OpenVesk/KSceneMessage.h"
#include "plugin/orvActionCmd.h"
#include "plugin/orvChangeBracketCmd.h"
#include "plugin/pluginMessages.h"
#include "plugin/pluginName.h"

namespace {

constexpr const char* kVendor = "Tolvane, Inc.";
constexpr const char* kVersion = "2.1.0.178";
constexpr const char* kRequiredHost = "Any";

std::uint64_t sceneCallbackId = 0;

struct CommandRow {
  const char* name;
  KFnPlugin::Creator creator;
  KFnPlugin::SyntaxFunction syntax;

  /// Whether it counts that the command comes up and goes down.
  bool counts = true;
};

/// In the order in which the commands come up and go down.
constexpr CommandRow kCommands[] = {
    {"orvCompoundEditor", orvCompoundEditorCmd::creator, orvCompoundEditorCmd::createSyntax},
    {"orvCompoundEditorWindow", orvCompoundEditorCmd::creator, orvCompoundEditorCmd::createSyntax,
     false},
    {"orvParameterEditor", orvParameterEditorCmd::creator, orvParameterEditorCmd::createSyntax},
    {"orv", orvActionCmd::creator, orvActionCmd::createSyntax},
    {"orvChangeBracket", orvChangeBracketCmd::creator, orvChangeBracketCmd::createSyntax},
    {"orvCompound", orvCompoundCmd::creator, orvCompoundCmd::createSyntax},
    {"orvConnect", orvConnectCmd::creator, orvConnectCmd::createSyntax},
    {"orvCopy", orvCopyCmd::creator, orvCopyCmd::createSyntax},
    {"orvNode", orvNodeCmd::creator, orvNodeCmd::createSyntax},
    {"orvPaste", orvPasteCmd::creator, orvPasteCmd::createSyntax},
    {"orvWatchPoint", orvWatchPointCmd::creator, orvWatchPointCmd::createSyntax},
    {"orvPort", orvPortCmd::creator, orvPortCmd::createSyntax},
};

void registerCommand(KFnPlugin& plugin, const CommandRow& row, KStatus& status) {
  const KStatus registered = plugin.registerCommand(row.name, row.creator, row.syntax);
  if (!row.counts) return;
  status = registered;
  if (!status) displayError(rRegisterCommandError, row.name);
}

void deregisterCommand(KFnPlugin& plugin, const CommandRow& row, KStatus& status) {
  const KStatus deregistered = plugin.deregisterCommand(row.name);
  if (row.counts) status = deregistered;
}

void removeSceneCallback() {
  if (sceneCallbackId == 0) return;
  KMessage::removeCallback(sceneCallbackId);
  sceneCallbackId = 0;
}

/// By host commands: while the module's own are still there.
void closePanels() {
  closeCompoundEditors();
  closeParameterEditors();
}

/// The program is about to exit.
void onSceneMessage(void*) {
  removeSceneCallback();
  closePanels();
}

}  // namespace

extern "C" {

VESK_EXPORT extern const char KApiVersion[16];
const char KApiVersion[16] = "20250000";

VESK_EXPORT extern const unsigned char TLVN_PLUGIN_SIGNATURE[64];
const unsigned char TLVN_PLUGIN_SIGNATURE[64] = {};

/// Each registration replaces the status and none stops the sequence, so the load fails only with
/// the last command: a module that lacks one of the others is still worth having.
VESK_EXPORT KStatus initializePlugin(KObject object) {
  KStatus status;
  KFnPlugin plugin(object, kVendor, kVersion, kRequiredHost, &status);
  registerMessages();
  pluginName = plugin.name();
  for (const CommandRow& row : kCommands) registerCommand(plugin, row, status);
  sceneCallbackId = KSceneMessage::addCallback(KSceneMessage::kExiting, onSceneMessage);
  return status;
}

/// Deregisters in the order of registration, and reports the status of the last command.
VESK_EXPORT KStatus uninitializePlugin(KObject object) {
  KStatus status;
  KFnPlugin plugin(object, kVendor, kVersion, kRequiredHost, &status);
  removeSceneCallback();
  closePanels();
  for (const CommandRow& row : kCommands) deregisterCommand(plugin, row, status);
  return status;
}

}  // extern "C"
