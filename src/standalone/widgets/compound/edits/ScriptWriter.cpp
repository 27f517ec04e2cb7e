#include "standalone/widgets/compound/edits/ScriptWriter.h"

#include "standalone/graph/model/AnnotationObject.h"
#include "standalone/graph/model/NameTable.h"
#include "standalone/graph/model/StateFlagsObject.h"
#include "standalone/graph/texts/PropertiesText.h"

namespace orvuilib {

using orvlib::AnnotationObject;
using orvlib::CompoundObject;
using orvlib::NodeKind;
using orvlib::NodeObject;
using orvlib::NodeState;
using orvlib::PortListObject;
using orvlib::PortObject;

namespace {

const char* escapeOf(char character) {
  switch (character) {
    case '"':
      return "\\\"";
    case '\\':
      return "\\\\";
    case '\n':
      return "\\n";
    case '\t':
      return "\\t";
    case '\r':
      return "\\r";
    default:
      return nullptr;
  }
}

bool isIo(const NodeObject& node) {
  return node.nodeKind() == NodeKind::Input || node.nodeKind() == NodeKind::Output;
}

/// A compound whose content is its own, and not that of a published one.
bool isOpenCompound(const NodeObject& node) {
  return node.compound() && !node.compound()->isReference();
}

std::string pathBelow(const std::string& level, const std::string& name) {
  return (level == "/" ? "" : level) + '/' + name;
}

/// The name that a node wants when it is added: the last part of its type.
std::string nameAtStart(const NodeObject& node) {
  if (node.nodeKind() == NodeKind::Input) return "input";
  if (node.nodeKind() == NodeKind::Output) return "output";
  const std::string type = node.typeName();
  const auto colon = type.rfind(':');
  return colon == type.npos ? type : type.substr(colon + 1);
}

}  // namespace

std::string quoted(const std::string& text) {
  std::string quoted = "\"";
  for (const char each : text) {
    const char* escape = escapeOf(each);
    if (escape) {
      quoted += escape;
    } else {
      quoted += each;
    }
  }
  return quoted + '"';
}

void ScriptWriter::line(const char* command, const std::string& path, const std::string& rest) {
  text_ += std::string(command) + ' ' + container_ + ' ' + quoted(path) + ' ' + rest + '\n';
}

void ScriptWriter::write(const std::string& path, const Nodes& nodes, const Notes& notes) {
  Nodes written;
  for (NodeObject* node : nodes) {
    if (!isIo(*node)) written.push_back(node);
  }
  chosen_ = {written.begin(), written.end()};
  chosenFrom_ = written.empty() ? nullptr : written.front()->parent();
  writeNodes(path, written);
  writeNotes(path, notes);
}

void ScriptWriter::writeLevel(const std::string& path, CompoundObject& compound) {
  const auto& nodes = compound.nodes().items();
  const auto& notes = compound.annotations().items();
  writeNodes(path, Nodes(nodes.begin(), nodes.end()));
  writeNotes(path, Notes(notes.begin(), notes.end()));
}

/// Names are given in the order of the level, so that each is free when it is asked for. Wires are
/// written from their sources: these keep them in the order in which they are made.
void ScriptWriter::writeNodes(const std::string& path, const Nodes& nodes) {
  orvlib::NameTable<NodeObject> names;
  for (NodeObject* node : nodes) {
    const std::string given = names.uniqueName(nameAtStart(*node));
    names.add(node->name(), node);
    if (isIo(*node)) {
      const bool input = node->nodeKind() == NodeKind::Input;
      line("orvCompound", path, std::string("-addIONode ") + (input ? "true" : "false"));
    } else if (isOpenCompound(*node)) {
      line("orvCompound", path, "-create " + quoted(node->name()));
    } else {
      line("orvCompound", path, "-addNode " + quoted(node->typeName()));
    }
    if (!isOpenCompound(*node) && given != node->name()) {
      line("orvCompound", path, "-renameNode " + quoted(given) + ' ' + quoted(node->name()));
    }
    writeNode(pathBelow(path, node->name()), *node);
  }
  for (const NodeObject* node : nodes) {
    if (isIo(*node)) continue;
    for (const PortObject* output : node->outputList().items()) writeWiresFrom(path, *output);
  }
}

/// The lock of a compound comes last: nothing could be made in it any more.
void ScriptWriter::writeNode(const std::string& path, NodeObject& node) {
  if (!isIo(node) && !(node.compound() && node.compound()->isReference())) {
    writeOwnPorts(path, node);
  }
  if (isOpenCompound(node)) writeContent(path, *node.compound());
  if (!isIo(node)) writePortSettings(path, node);
  writeStates(path, node);
  writeMetadata("orvNode", path, node.metadata());
  if (isOpenCompound(node)) writeMetadata("orvCompound", path, node.compound()->metadata());
}

void ScriptWriter::writeContent(const std::string& path, CompoundObject& compound) {
  writeLevel(path, compound);
  for (const PortObject* input : compound.inputs().items()) writeWiresFrom(path, *input);
  for (const NodeObject* node : compound.nodes().items()) {
    if (isIo(*node)) writeShown(path, *node);
  }
}

void ScriptWriter::writeShown(const std::string& path, const NodeObject& node) {
  const bool input = node.nodeKind() == NodeKind::Input;
  for (const PortObject* port : (input ? node.outputList() : node.inputList()).items()) {
    line("orvCompound", path,
         "-movePortToIONode " + quoted(port->name()) + ' ' + quoted(node.name()));
  }
}

void ScriptWriter::writeStates(const std::string& path, const NodeObject& node) {
  for (const NodeState state : {NodeState::Enabled, NodeState::Frozen, NodeState::Bypassed}) {
    if (node.is(state) == (state == NodeState::Enabled)) continue;
    const std::string key(1, orvlib::StateFlagsObject::keyOf(state));
    line("orvNode", path, "-setStateFlag " + quoted(key) + (node.is(state) ? " true" : " false"));
  }
}

void ScriptWriter::writeMetadata(const char* command, const std::string& path,
                                 const orvlib::Properties& metadata) {
  if (metadata.empty()) return;
  line(command, path, "-setMetaDataFromString " + quoted(orvlib::writeProperties(metadata)));
}

/// A sticky note wants the name "note" when it is added.
void ScriptWriter::writeNotes(const std::string& path, const Notes& notes) {
  orvlib::NameTable<AnnotationObject> names;
  for (AnnotationObject* note : notes) {
    const bool backdrop = note->kind() == orvlib::AnnotationKind::Backdrop;
    const std::string given = backdrop ? note->name() : names.uniqueName("note");
    names.add(note->name(), note);
    line("orvCompound", path, (backdrop ? "-addBackdrop " : "-addStickyNote ") + quoted(given));
    if (given != note->name()) {
      line("orvCompound", path, "-renameAnnotation " + quoted(given) + ' ' + quoted(note->name()));
    }
    writeNoteMetadata(path, *note);
  }
}

/// Of several values of a key the first is written: there is no line for more.
void ScriptWriter::writeNoteMetadata(const std::string& path, const AnnotationObject& note) {
  for (const orvlib::Property& property : note.metadata().all()) {
    line("orvCompound", path,
         "-setAnnotationMetaDataValue " + quoted(note.name()) + ' ' + quoted(property.key) + ' ' +
             quoted(property.values.front()));
  }
}

bool ScriptWriter::isChosen(const PortObject& port) const {
  const NodeObject* node = port.node();
  if (!port.isInner() && node->parent() != chosenFrom_) return true;
  return port.isInner() ? node->compound() != chosenFrom_ : chosen_.contains(node);
}

void ScriptWriter::writeWiresFrom(const std::string& path, const PortObject& source) {
  const auto pathOf = [&path](const PortObject& port) {
    const std::string level = port.isInner() ? path : pathBelow(path, port.node()->name());
    return quoted(level + '.' + port.fullName());
  };
  for (const PortObject* target : source.peers().items()) {
    if (!isChosen(*target)) continue;
    text_ += "orvConnect " + container_ + ' ' + pathOf(source) + ' ' + pathOf(*target) + '\n';
  }
  const PortListObject* below = source.madeChildren();
  if (!below) return;
  for (const PortObject* child : below->items()) writeWiresFrom(path, *child);
}

}  // namespace orvuilib
