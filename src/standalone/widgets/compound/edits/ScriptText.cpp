#include "standalone/widgets/compound/edits/ScriptText.h"

#include "standalone/graph/model/AnnotationObject.h"
#include "standalone/graph/model/ContainerObject.h"
#include "standalone/graph/model/StateFlagsObject.h"
#include "standalone/graph/texts/ListText.h"
#include "standalone/graph/texts/PropertiesText.h"
#include "standalone/graph/types/ValueText.h"

namespace orvuilib {

using orvlib::CompoundObject;
using orvlib::NodeKind;
using orvlib::NodeObject;
using orvlib::NodeState;
using orvlib::PortListObject;
using orvlib::PortObject;

namespace {

/// The text in quotes, as the command language reads it.
std::string quoted(const std::string& text) {
  std::string quoted = "\"";
  for (const char each : text) {
    switch (each) {
      case '"':
      case '\\':
        quoted += {'\\', each};
        break;
      case '\n':
        quoted += "\\n";
        break;
      case '\t':
        quoted += "\\t";
        break;
      case '\r':
        quoted += "\\r";
        break;
      default:
        quoted += each;
    }
  }
  return quoted + '"';
}

/// The name that a node gets when it is added: the last part of its type, with the smallest free
/// number when that is taken.
std::string nameAtStart(const NodeObject& node, const QSet<QString>& taken) {
  const std::string type = node.typeName();
  const auto last = type.rfind("::");
  const std::string plain = last == type.npos ? type : type.substr(last + 2);
  std::string name = plain;
  for (int i = 1; taken.contains(QString::fromStdString(name)); ++i) {
    name = plain + std::to_string(i);
  }
  return name;
}

std::vector<NodeObject*> nodesOf(const CompoundObject& level) {
  std::vector<NodeObject*> nodes;
  for (NodeObject* node : level.nodes().items()) nodes.push_back(node);
  return nodes;
}

/// Writes one level after the other.
class ScriptWriter {
 public:
  explicit ScriptWriter(const std::string& container) : container_(quoted(container)) {}

  void writeLevel(const std::string& path, const std::vector<NodeObject*>& nodes) {
    QSet<QString> taken;
    for (NodeObject* node : nodes) writeNode(path, *node, taken);
    for (NodeObject* node : nodes) writeWires(*node, nodes);
  }

  std::string take() { return std::move(text_); }

 private:
  void line(const char* command, const std::string& path, const std::string& rest) {
    text_ += std::string(command) + ' ' + container_ + ' ' + quoted(path) + ' ' + rest + '\n';
  }

  void writeNode(const std::string& level, NodeObject& node, QSet<QString>& taken) {
    add(level, node, taken);
    taken.insert(QString::fromStdString(node.name()));
    const std::string path = node.fullPath();
    if (CompoundObject* compound = node.compound()) {
      writePorts(path, node);
      writeLevel(path, nodesOf(*compound));
      writeInnerWires(*compound);
    }
    writeValues(path, node.inputList());
    writeValues(path, node.outputList());
    for (const NodeState state : {NodeState::Enabled, NodeState::Frozen, NodeState::Bypassed}) {
      if (node.is(state) == (state == NodeState::Enabled)) continue;
      const std::string key(1, orvlib::StateFlagsObject::keyOf(state));
      line("orvNode", path, "-setStateFlag " + quoted(key) + (node.is(state) ? " true" : " false"));
    }
    if (node.metadata().empty()) return;
    line("orvNode", path,
         "-setMetaDataFromString " + quoted(orvlib::writeProperties(node.metadata())));
  }

  void add(const std::string& level, const NodeObject& node, const QSet<QString>& taken) {
    std::string given;
    if (node.nodeKind() == NodeKind::Compound) {
      given = node.name();
      line("orvCompound", level, "-create " + quoted(given));
    } else if (node.hasOwnPorts()) {
      given = nameAtStart(node, taken);
      line("orvCompound", level, "-addNode " + quoted(node.typeName()));
    } else {
      given = nameAtStart(node, taken);
      const bool input = node.nodeKind() == NodeKind::Input;
      line("orvCompound", level, std::string("-addIONode ") + (input ? "true" : "false"));
    }
    if (given == node.name()) return;
    line("orvCompound", level, "-renameNode " + quoted(given) + ' ' + quoted(node.name()));
  }

  void writePorts(const std::string& path, NodeObject& node) {
    const auto write = [this, &path](const PortListObject& ports, const char* flag) {
      for (const PortObject* port : ports.items()) {
        std::string rest = flag + quoted(port->name()) + ' ' + quoted(port->valueType().name);
        if (port->flags()) rest += " -portFlags " + std::to_string(port->flags());
        line("orvCompound", path, rest);
      }
    };
    write(node.inputList(), "-createInputPort ");
    write(node.outputList(), "-createOutputPort ");
  }

  void writeValues(const std::string& path, const PortListObject& ports) {
    for (const PortObject* port : ports.items()) {
      if (!port->ownValue() || !port->isSettable() || port->isInner()) continue;
      const auto texts = orvlib::printValue(*port->ownValue());
      const char* command = port->node()->compound() ? "orvCompound" : "orvNode";
      line(
          command, path,
          "-setPortDefaultValues " + quoted(port->name()) + ' ' + quoted(orvlib::writeList(texts)));
    }
  }

  void writeWires(const NodeObject& node, const std::vector<NodeObject*>& nodes) {
    const QSet<const NodeObject*> among(nodes.begin(), nodes.end());
    for (PortObject* input : node.inputList().items()) {
      if (!input->isInner()) writeWiresInto(*input, &among);
    }
  }

  /// Into the compound's outputs, and out of its inputs.
  void writeInnerWires(CompoundObject& compound) {
    for (PortObject* output : compound.outputs().items()) writeWiresInto(*output, nullptr);
    for (PortObject* input : compound.inputs().items()) {
      for (PortObject* target : input->peers().items()) {
        // Those straight to an output are written already.
        if (!target->isInner()) connect(*input, *target);
      }
    }
  }

  void writeWiresInto(PortObject& target, const QSet<const NodeObject*>* among) {
    for (PortObject* source : target.peers().items()) {
      if (!among || (among->contains(source->node()) && !source->isInner())) {
        connect(*source, target);
      }
    }
    if (const PortListObject* children = target.madeChildren()) {
      for (PortObject* child : children->items()) writeWiresInto(*child, among);
    }
  }

  /// A member of a fan-in port comes with its connection.
  void connect(const PortObject& source, const PortObject& target) {
    const bool member = target.kind() == orvlib::PortKind::Member;
    const PortObject& into = member ? *target.above() : target;
    text_ += "orvConnect " + container_ + ' ' + quoted(source.fullPath()) + ' ' +
             quoted(into.fullPath()) + '\n';
  }

  std::string container_;
  std::string text_;
};

}  // namespace

QString selectionAsScript(const LevelScene& scene) {
  if (scene.selectedBoxes().empty()) return {};
  const orvlib::ContainerObject* container = scene.levelNode()->container();
  if (!container) return {};
  // In the order of the level, so that the copies stand in it too.
  std::vector<NodeObject*> nodes;
  for (NodeObject* node : scene.level()->nodes().items()) {
    const BoxItem* box = scene.find(node);
    if (box && box->selected) nodes.push_back(node);
  }
  ScriptWriter writer(container->containerName());
  writer.writeLevel(scene.levelNode()->fullPath(), nodes);
  return QString::fromStdString(writer.take());
}

}  // namespace orvuilib
