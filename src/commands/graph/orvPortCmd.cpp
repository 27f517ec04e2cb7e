#include "commands/graph/orvPortCmd.h"

#include <new>

#include "platform/ORV_1_0/ChangeBracket.h"
#include "plugin/FlagRow.h"
#include "plugin/pluginMessages.h"

using ORV_v1::Compound;
using ORV_v1::Container;
using ORV_v1::Node;
using ORV_v1::QueryPortFlags;

namespace {

// The names have no "-" of their own.
constexpr FlagRow kFlags[] = {
    {"set", "setFlag", kUnsigned},
    {"cl", "clear", kUnsigned},
    {"qf", "queryFlags"},
};

}  // namespace

KPxCommand* orvPortCmd::creator() { return new (std::nothrow) orvPortCmd; }

KSyntax orvPortCmd::createSyntax() {
  KSyntax syntax;
  addStringArgument(syntax);
  addFlags(syntax, kFlags);
  addStringArgument(syntax);
  syntax.addArg(KSyntax::ArgUnsigned);
  syntax.addArg(KSyntax::ArgUnsigned);
  return syntax;
}

bool orvPortCmd::isUndoable() const { return true; }

orvPortCmd::PortHandle orvPortCmd::findPort() const {
  Container* container = findContainer(containerName);
  if (!container) return PortHandle();
  return container->findPortFromPath(portPath.asUTF8(),
                                     static_cast<Container::ESearchIOType>(searchIOType),
                                     static_cast<Container::ESearchMode>(searchMode));
}

KStatus orvPortCmd::parseArgs(const KArgList& args) {
  KStatus status;
  const KArgDatabase db(syntax(), args, &status);
  status = parseContainer(db, status);
  if (!status) return status;
  status = requireArgument(db, 1, portPath);
  if (status) status = requireArgument(db, 2, searchIOType);
  if (status) status = requireArgument(db, 3, searchMode);
  if (!status) return status;
  parseFlags(db);
  return StatusSuccess;
}

/// The query is answered here, ahead of what the same line changes. A port that is not there has no
/// flags to give: the result stays empty, and `redoIt` fails.
void orvPortCmd::parseFlags(const KArgDatabase& db) {
  const PortHandle port = findPort();
  record(db, port, "set", QueryPortFlags::kSet);
  record(db, port, "cl", QueryPortFlags::kClear);
  if (port && db.isFlagSet("qf")) setResult(static_cast<unsigned int>(port->getFlags()));
}

void orvPortCmd::record(const KArgDatabase& db, const PortHandle& port, const char* flag,
                        QueryPortFlags operation) {
  unsigned int bits = 0;
  if (!db.getFlagArgument(flag, 0, bits)) return;
  portCommand.handlePortFlags(port, static_cast<Container::ESearchIOType>(searchIOType),
                              static_cast<Container::ESearchMode>(searchMode),
                              static_cast<ORV_v1::PortFlags>(bits), operation);
}

/// Every code but success stops here. The result is not cleared: reading the line has set it.
KStatus orvPortCmd::doIt(const KArgList& args) {
  const KStatus status = parseArgs(args);
  return status ? redoIt() : status;
}

template <class Edit>
KStatus orvPortCmd::runInBracket(Edit edit) {
  const PortHandle port = findPort();
  const ORV_v1::AddRefWrapper<Node> node =
      port ? port->getParentNode() : ORV_v1::AddRefWrapper<Node>();
  if (!node) return StatusFailure;
  // The top compound is in no other: its ports are edited in itself.
  ORV_v1::AddRefWrapper<Compound> level = node->getParentCompound();
  if (!level) level = node->asCompound();
  const ORV_v1::ChangeBracket bracket = node->getContainer()->makeChangeBracket(level.get());
  edit();
  return StatusSuccess;
}

KStatus orvPortCmd::redoIt() {
  return runInBracket([this] {
    if (isUndoable()) portCommand.redo();
  });
}

KStatus orvPortCmd::undoIt() {
  return runInBracket([this] { portCommand.undo(); });
}
