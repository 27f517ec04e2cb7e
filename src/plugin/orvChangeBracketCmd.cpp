#include "plugin/orvChangeBracketCmd.h"

#include <new>

#include "plugin/FlagRow.h"
#include "plugin/pluginMessages.h"

namespace {

constexpr FlagRow kFlags[] = {
    {"-c", "-close"},
    {"-o", "-open"},
};

}  // namespace

KPxCommand* orvChangeBracketCmd::creator() { return new (std::nothrow) orvChangeBracketCmd; }

KSyntax orvChangeBracketCmd::createSyntax() {
  KSyntax syntax;
  addStringArgument(syntax);
  addFlags(syntax, kFlags);
  addStringArgument(syntax);
  return syntax;
}

KStatus orvChangeBracketCmd::parseArgs(const KArgList& args) {
  KStatus status;
  const KArgDatabase db(syntax(), args, &status);
  status = parseContainer(db, status);
  if (!status) return status;
  // The path may be left out.
  db.getCommandArgument(1, bracketNodePath);
  closeBracket = db.isFlagSet("-c");
  openBracket = db.isFlagSet("-o");
  return status;
}

KStatus orvChangeBracketCmd::doIt(const KArgList& args) {
  clearResult();
  const KStatus status = parseArgs(args);
  return status ? redoIt() : status;
}

bool orvChangeBracketCmd::findTarget(Target& target) const {
  target.container = requireContainer();
  if (!target.container) return false;
  target.client = target.container;
  if (bracketNodePath.length() == 0) return true;
  target.compound = requireCompound(*target.container, bracketNodePath);
  target.client = target.compound.get();
  return target.client != nullptr;
}

/// Both flags together close, and their undo opens again: closing is asked first in both.
KStatus orvChangeBracketCmd::redoIt() {
  Target target;
  if (!findTarget(target)) return StatusFailure;
  if (closeBracket) {
    setResult(target.container->closeChangeBracket(target.client));
  } else if (openBracket) {
    setResult(target.container->openChangeBracket(target.client));
  } else {
    setResult(target.client->activeChangeBracket());
  }
  return StatusSuccess;
}

KStatus orvChangeBracketCmd::undoIt() {
  Target target;
  if (!findTarget(target)) return StatusFailure;
  if (closeBracket) {
    setResult(target.container->openChangeBracket(target.client));
  } else if (openBracket) {
    setResult(target.container->closeChangeBracket(target.client));
  } else {
    return StatusFailure;
  }
  return StatusSuccess;
}

bool orvChangeBracketCmd::isUndoable() const { return closeBracket || openBracket; }
