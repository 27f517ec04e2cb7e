#include "commands/compound/orvCompoundCmd.h"
#include "platform/ORV_1_0/NodeList.h"
#include "plugin/fromUTF8.h"
#include "plugin/refuse.h"

using ORV_v1::AddRefWrapper;
using ORV_v1::Compound;
using ORV_v1::Container;
using ORV_v1::Node;
using ORV_v1::NodeFlags;

bool orvCompoundCmd::parseCreate(Parse& parse) {
  newCompoundName = parse.text();
  return true;
}

bool orvCompoundCmd::parseExplode(Parse& parse) {
  compoundsToExplode = parse.uses();
  return true;
}

/// All nodes of the line connect to the same port.
bool orvCompoundCmd::parseConnectTo(Parse& parse) {
  parse.connectTo = parse.text();
  return true;
}

bool orvCompoundCmd::parseAddNode(Parse& parse) {
  return parse.forEachUse([&](const KArgList& use) {
    addNodeCommand.createNode(parse.compound, use.asString(0).asUTF8(), parse.connectTo.asUTF8());
    return true;
  });
}

bool orvCompoundCmd::parseAddIONode(Parse& parse) {
  return parse.forEachUse([&](const KArgList& use) {
    const NodeFlags kind = use.asBool(0) ? NodeFlags::kInputNode : NodeFlags::kOutputNode;
    addNodeCommand.createIONode(parse.compound, kind, parse.connectTo.asUTF8());
    return true;
  });
}

bool orvCompoundCmd::parseMoveAnnotationIn(Parse& parse) {
  annotationsToMove = parse.uses();
  return true;
}

bool orvCompoundCmd::parseRemoveNode(Parse& parse) {
  return parse.forEachUse([&](const KArgList& use) {
    removeNodeCommand.removeNode(parse.compound, use.asString(0).asUTF8());
    return true;
  });
}

bool orvCompoundCmd::parseMoveNodeIn(Parse& parse) {
  nodesToMove = parse.uses();
  return true;
}

/// Whether there is such a node is asked when the rename is carried out: another one of the same
/// line may have given it that name.
bool orvCompoundCmd::parseRenameNode(Parse& parse) {
  renames.resize(parse.db.numberOfFlagUses(parse.flag));
  auto next = renames.begin();
  return parse.forEachUse([&](const KArgList& use) {
    next->from = use.asString(0).asUTF8();
    next->to = use.asString(1).asUTF8();
    ++next;
    return true;
  });
}

/// Tells the commands that make and explode compounds what to work on. False when there is nothing
/// of a name to explode.
bool orvCompoundCmd::prime(Compound& compound) {
  if (!editFlags.isFlagSet(EditActionFlags(kEditCreate | kEditExplode))) return true;
  const AddRefWrapper<Node> node = compound.getAsNode();
  Container* container = node->getContainer();
  const ORV_v1::Namable path = node->getFullPathName();
  if (editFlags.isFlagSet(kEditCreate)) primeCreate(container, path.getName());
  return !editFlags.isFlagSet(kEditExplode) || primeExplode(container, path.getName());
}

/// What is not there to be moved in is left out with a warning, and the compound is made.
void orvCompoundCmd::primeCreate(Container* container, const char* path) {
  createCommand.setParentCompound(container, path);
  createCommand.setNewCompoundName(newCompoundName.asUTF8());
  for (const KString& name : nodesToMove) {
    if (!createCommand.addNodeToMove(name.asUTF8())) {
      displayWarning(rNodeNotMovedWarning, name, newCompoundName);
    }
  }
  for (const KString& name : annotationsToMove) {
    if (!createCommand.addAnnotationToMove(name.asUTF8())) {
      displayWarning(rAnnotationNotMovedWarning, name, newCompoundName);
    }
  }
}

/// Unlike what is to be moved in, what is to be exploded must be there, on purpose.
bool orvCompoundCmd::primeExplode(Container* container, const char* path) {
  explodeCommand.setParentCompound(container, path);
  for (const KString& name : compoundsToExplode) {
    if (!explodeCommand.addCompoundToExplode(name.asUTF8())) {
      return refuse(rNodeNameNotFoundError, name, compoundPath);
    }
  }
  return true;
}

bool orvCompoundCmd::createCompound(Compound&) {
  if (!createCommand.doit()) return refuse(rCreateCompoundError);
  setResult(fromUTF8(createCommand.getCreatedCompoundPath().toChar()));
  return true;
}

bool orvCompoundCmd::explodeCompounds(Compound&) {
  if (!explodeCommand.doit()) return false;
  const unsigned int count = explodeCommand.getCreatedNodeCount();
  for (unsigned int i = 0; i < count; ++i) {
    appendToResult(fromUTF8(explodeCommand.getCreatedNodeName(i)));
  }
  return true;
}

bool orvCompoundCmd::addNodes(Compound&) {
  if (!addNodeCommand.redo()) return false;
  KStringArray names;
  toKStringArray(addNodeCommand.getCreatedNodeNames(), names);
  appendToResult(names);
  return true;
}

/// A removal that cannot be made does not fail the line.
bool orvCompoundCmd::removeNodes(Compound&) {
  removeNodeCommand.redo();
  return true;
}

/// A node that is not there is told of and passed over. It is never undone from then on, also when
/// a later redo finds it.
bool orvCompoundCmd::renameNodes(Compound& compound) {
  for (NodeRename& rename : renames) {
    const AddRefWrapper<Node> node = compound.getChildNodes()[rename.from.c_str()];
    if (node) {
      node->setName(rename.to.c_str());
      rename.actual = node->getName();
    } else {
      rename.failed = true;
      displayError(rNodeNameNotFoundError, fromUTF8(rename.from.c_str()), compoundPath);
    }
  }
  return true;
}

void orvCompoundCmd::undoAddNodes(Compound&) { addNodeCommand.undo(); }

void orvCompoundCmd::undoRemoveNodes(Compound&) { removeNodeCommand.undo(); }

void orvCompoundCmd::undoCreate(Compound&) { createCommand.undo(); }

void orvCompoundCmd::undoExplode(Compound&) { explodeCommand.undo(); }

/// Undo walks the records forward too: the order is part of the behaviour. Where the old name is
/// taken by then, the node gets another, and a redo looks for that one.
void orvCompoundCmd::undoRenames(Compound& compound) {
  for (NodeRename& rename : renames) {
    if (rename.failed) continue;
    const AddRefWrapper<Node> node = compound.getChildNodes()[rename.actual.c_str()];
    if (!node) continue;
    node->setName(rename.from.c_str());
    rename.from = node->getName();
  }
}
