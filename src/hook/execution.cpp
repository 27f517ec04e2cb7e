#include "hook/execution.h"

#include "platform/ORV_1_0/Compound.h"
#include "platform/ORV_1_0/NodeList.h"
#include "platform/OpenVesk/KGlobal.h"

using ORV_v1::AddRefWrapper;
using ORV_v1::Compound;
using ORV_v1::Node;

bool hookUndoEnabled = true;

namespace {

/// False when the result is no name.
bool readName(const KCommandResult& result, KString& name) {
  if (result.resultType() == KCommandResult::kNone) return false;
  if (result.resultType() != KCommandResult::kStringArray) return bool(result.getResult(name));
  KStringArray names;
  if (!result.getResult(names) || names.length() == 0) return false;
  name = names[0];
  return true;
}

}  // namespace

KStatus runLine(const CommandLine& line) {
  return KGlobal::executeCommand(line.toKString(), true, hookUndoEnabled);
}

bool runLineForSuccess(const CommandLine& line) {
  KCommandResult result;
  const KStatus status = KGlobal::executeCommand(line.toKString(), result, true, hookUndoEnabled);
  if (result.resultType() == KCommandResult::kNone) return bool(status);
  int value = 0;
  return (result.getResult(value) && value == 1) || status;
}

AddRefWrapper<Node> runLineForNode(const CommandLine& line,
                                   const AddRefWrapper<Compound>& compound) {
  KCommandResult result;
  KGlobal::executeCommand(line.toKString(), result, true, hookUndoEnabled);
  KString name;
  if (!readName(result, name)) return {};
  return compound->getChildNodes()[name.asUTF8()];
}

void runBracketLine(const CommandLine& line) {
  KGlobal::executeCommand(line.toKString(), false, hookUndoEnabled);
}

void runSilently(const KString& line) { KGlobal::executeCommand(line, false, false); }

KStatus runSilently(const KString& line, KCommandResult& result) {
  return KGlobal::executeCommand(line, result, false, false);
}
