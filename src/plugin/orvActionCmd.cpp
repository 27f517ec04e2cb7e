#include "plugin/orvActionCmd.h"

#include <new>

#include "plugin/FlagRow.h"
#include "plugin/fromUTF8.h"
#include "plugin/pluginMessages.h"

using ORV_v1::AddRefWrapper;
using ORV_v1::Host;
using ORV_v1::NodeLibrary;
using ORV_v1::Runtime;

namespace {

/// The flags are declared and read back without a leading "-".
constexpr FlagRow kFlags[] = {
    {"rt", "runTimes"},
    {"lib", "libraries", KSyntax::ArgString},
    {"fp", "flushProxies", KSyntax::ArgString},
    {"lpt", "listPortTypes", KSyntax::ArgString},
    {"nd", "nodes", KSyntax::ArgString, KSyntax::ArgString},
    {"unn", "useNiceName"},
};

/// The flags that name a runtime, in the order in which they are read: the last one given wins.
struct RuntimeFlagRow {
  const char* flag;
  orvActionCmd::orvActionFlags action;
};

constexpr RuntimeFlagRow kRuntimeFlags[] = {
    {"lib", orvActionCmd::kActionLibraries},
    {"fp", orvActionCmd::kActionFlushProxies},
    {"lpt", orvActionCmd::kActionListPortTypes},
};

KStatus refuseArgument(const char* flag, const char* type) {
  displayError(rMetaCommandBadArguments, flag, type);
  return StatusFailure;
}

}  // namespace

KPxCommand* orvActionCmd::creator() { return new (std::nothrow) orvActionCmd; }

KSyntax orvActionCmd::createSyntax() {
  KSyntax syntax;
  syntax.enableQuery(true);
  syntax.enableEdit(false);
  addFlags(syntax, kFlags);
  return syntax;
}

KStatus orvActionCmd::parseArgs(const KArgList& args) {
  KStatus status;
  const KArgDatabase db(syntax(), args, &status);
  if (!status) {
    displayError(rParsingError);
    return status;
  }
  // The syntax has no edit mode; this holds should it ever gain one.
  if (db.isEdit()) {
    displayError(rMetaCommandNoEdit);
    status = StatusFailure;
  }
  if (db.isFlagSet("rt")) actionFlags.setFlag(kActionRunTimes);
  if (db.isFlagSet("unn")) actionFlags.setFlag(kActionUseNiceName);
  for (const RuntimeFlagRow& row : kRuntimeFlags) {
    if (!db.isFlagSet(row.flag)) continue;
    actionFlags.setFlag(row.action);
    if (!db.getFlagArgument(row.flag, 0, runtimeName)) status = refuseArgument(row.flag, "STRING");
  }
  parseNodes(db, status);
  return status;
}

void orvActionCmd::parseNodes(const KArgDatabase& db, KStatus& status) {
  if (!db.isFlagSet("nd")) return;
  actionFlags.setFlag(kActionNodes);
  const bool read =
      db.getFlagArgument("nd", 0, runtimeName) && db.getFlagArgument("nd", 1, libraryName);
  if (!read) status = refuseArgument("nd", "STRING STRING");
}

/// Each action that sets a result replaces the one before, and port types shut out nodes.
KStatus orvActionCmd::doIt(const KArgList& args) {
  clearResult();
  const KStatus status = parseArgs(args);
  if (!status) return status;

  const Host host;
  if (actionFlags.isFlagSet(kActionRunTimes)) listRuntimes(host);
  if (actionFlags.isFlagSet(kActionLibraries)) listLibraries(host);
  if (actionFlags.isFlagSet(kActionFlushProxies)) flushProxies(host);
  if (actionFlags.isFlagSet(kActionListPortTypes)) return listPortTypes(host);
  if (actionFlags.isFlagSet(kActionNodes)) return listNodes(host);
  return StatusSuccess;
}

Runtime* orvActionCmd::runtime(const Host& host) const {
  return host.getRuntimeByName(runtimeName.asUTF8());
}

AddRefWrapper<NodeLibrary> orvActionCmd::rootLibrary(const Host& host) const {
  const Runtime* found = runtime(host);
  return found ? found->getRootLibrary() : AddRefWrapper<NodeLibrary>();
}

template <class Object>
KString orvActionCmd::shownName(const Object& object) const {
  const bool nice = actionFlags.isFlagSet(kActionUseNiceName);
  return fromUTF8(nice ? object.getNiceName() : object.getName());
}

void orvActionCmd::listRuntimes(const Host& host) const {
  KStringArray names;
  for (unsigned int i = 0; i < host.getNumberOfRuntimes(); ++i) {
    names.append(fromUTF8(host.getRuntimeAt(i)->getName()));
  }
  setResult(names);
}

void orvActionCmd::listLibraries(const Host& host) const {
  const Runtime* found = runtime(host);
  if (!found) return;
  KStringArray names;
  const AddRefWrapper<NodeLibrary> root = found->getRootLibrary();
  if (root) {
    names.append(shownName(*root));
    appendSubLibraries(*root, names);
  }
  setResult(names);
}

void orvActionCmd::appendSubLibraries(const NodeLibrary& library, KStringArray& names) const {
  for (unsigned int i = 0; i < library.getNumberOfSubLibraries(); ++i) {
    const AddRefWrapper<NodeLibrary> child = library.getSubLibraryAt(i);
    names.append(shownName(*child));
    appendSubLibraries(*child, names);
  }
}

void orvActionCmd::flushProxies(const Host& host) const {
  if (Runtime* found = runtime(host)) found->forceRebuildCompounds();
}

/// An unknown runtime fails without a word here and in `listNodes`, and is passed over by the two
/// actions above: scripts rely on the difference.
KStatus orvActionCmd::listPortTypes(const Host& host) const {
  const Runtime* found = runtime(host);
  if (!found) return StatusFailure;
  KStringArray names;
  for (unsigned int i = 0; i < found->getNumberOfPortTypes(); ++i) {
    names.append(fromUTF8(found->getPortTypeAt(i)->getName()));
  }
  setResult(names);
  return StatusSuccess;
}

KStatus orvActionCmd::listNodes(const Host& host) const {
  if (!rootLibrary(host)) return StatusFailure;
  const AddRefWrapper<NodeLibrary> library = NodeLibrary::findLibrary(libraryName.asUTF8());
  if (!library) return StatusFailure;
  KStringArray names;
  for (unsigned int i = 0; i < library->getNumberOfNodes(); ++i) {
    names.append(shownName(*library->getNodeAt(i)));
  }
  setResult(names);
  return StatusSuccess;
}
