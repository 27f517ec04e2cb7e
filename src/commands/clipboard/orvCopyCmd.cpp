#include "commands/clipboard/orvCopyCmd.h"

#include <new>

#include "platform/OpenVesk/KGlobal.h"
#include "plugin/FlagRow.h"
#include "plugin/flagReading.h"

using ORV_v1::CopyCommand;
using ORV_v1::CopyPasteCommandBase;
using ORV_v1::PortDataType;
using ORV_v1::StringArray;

namespace {

// The names have no "-" of their own.
constexpr FlagRow kFlags[] = {
    multiUse({"src", "sourceNode", kText}),
    multiUse({"san", "sourceAnnotation", kText}),
};

/// Whether nobody sits in front of the host. It is asked once: that does not change.
bool runsInBatch() {
  static const bool batch = [] {
    int answer = 0;
    KGlobal::executeCommand("about -batch", answer, false, false);
    return answer == 1;
  }();
  return batch;
}

/// Each use may name several, as a list. Names that are not there are passed over.
void addSources(const FlagReading& flag, CopyCommand& command,
                bool (CopyCommand::*add)(const char*)) {
  flag.forEachUse([&](const KArgList& use) {
    StringArray names;
    unserializePortValues(use.asString(0), names, ORV_v1::AddRefWrapper<PortDataType>());
    for (const char* name : names) (command.*add)(name);
    return true;
  });
}

}  // namespace

KPxCommand* orvCopyCmd::creator() { return new (std::nothrow) orvCopyCmd; }

KSyntax orvCopyCmd::createSyntax() {
  KSyntax syntax;
  addStringArgument(syntax);
  addFlags(syntax, kFlags);
  addStringArgument(syntax);
  return syntax;
}

bool orvCopyCmd::isUndoable() const { return false; }

/// Of a container that is not there the user is told nothing.
KStatus orvCopyCmd::parseArgs(const KArgList& args) {
  KStatus status;
  const KArgDatabase db(syntax(), args, &status);
  status = parseContainer(db, status);
  if (!status) return status;
  ORV_v1::Container* container = findContainer(containerName);
  if (!container) return StatusFailure;
  status = requireArgument(db, 1, compoundPath);
  if (!status) return status;
  if (!requireCompound(compoundPath)) return StatusFailure;
  copyCommand.setParentCompound(container, compoundPath.asUTF8());
  addSources({db, "src"}, copyCommand, &CopyCommand::addSourceNode);
  addSources({db, "san"}, copyCommand, &CopyCommand::addSourceAnnotation);
  return StatusSuccess;
}

/// In batch the clipboard of the system is left alone. A paste goes by what the last copy chose.
KStatus orvCopyCmd::doIt(const KArgList& args) {
  clearResult();
  const KStatus status = parseArgs(args);
  if (!status) return status;
  if (!requireCompound(compoundPath)) return StatusFailure;
  CopyPasteCommandBase::setUseLocalClipboard(runsInBatch());
  return copyCommand.doit() ? StatusSuccess : StatusFailure;
}

KStatus orvCopyCmd::undoIt() { return StatusSuccess; }

KStatus orvCopyCmd::redoIt() { return StatusSuccess; }
