#include "platform/ORV_1_0/NodeCommand.h"

#include <variant>

#include "standalone/graph/commands/ConnectTo.h"
#include "standalone/graph/commands/RecordedCommand.h"
#include "standalone/graph/edits/Wiring.h"
#include "standalone/graph/model/NameRules.h"

namespace ORV_v1 {
namespace {

using namespace orvlib;

FaultPoint kCreateNode("NodeCommand createNode");
FaultPoint kCreateIoNode("NodeCommand createIONode");
FaultPoint kRemoveNode("NodeCommand removeNode");
FaultPoint kDoit("NodeCommand doit");
FaultPoint kRedo("NodeCommand redo");
FaultPoint kUndo("NodeCommand undo");

struct NewNode {
  CompoundRef level;
  NodeObject::DefinitionRef definition;
  std::string connectTo;
};

struct NewIoNode {
  CompoundRef level;
  NodeKind kind;
  std::string connectTo;
};

struct GoneNode {
  CompoundRef level;
  std::string name;
};

using Request = std::variant<NewNode, NewIoNode, GoneNode>;

std::string textOf(const char* text) { return text ? text : ""; }

/// "add" for "core::math::add".
std::string_view shortName(std::string_view typeName) {
  const auto colon = typeName.rfind(':');
  return colon == typeName.npos ? typeName : typeName.substr(colon + 1);
}

}  // namespace

struct NodeCommand::Rep {
  GraphLink graph;
  absl::InlinedVector<Request, 1> requests;
  RecordedCommand command;
  std::vector<NodeRef> created;

  /// The level, when it is in the graph that the command works in; else null.
  CompoundObject* level(const AddRefWrapper<Compound>& compound) {
    auto* given = static_cast<CompoundObject*>(compound.get());
    if (!given || !given->node() || command.isBuilt()) return nullptr;
    return graph.bindOrKeep(given->node()->container()) ? given : nullptr;
  }

  bool insert(Transaction& edits, CompoundObject& level, const NodeRef& node) {
    if (!level.node()) return false;
    const unsigned int end = level.nodes().count();
    if (!edits.run(InsertNode{{CompoundRef(&level), node, end}})) return false;
    created.push_back(node);
    return true;
  }

  bool run(Transaction& edits, const NewNode& request) {
    CompoundObject& level = *request.level;
    if (!level.node()) return false;
    const NodeFactory factory(level.node()->core());
    const std::string_view base = shortName(request.definition->getName());
    const NodeRef node = factory.make(*request.definition, level.nodes().uniqueName(base));
    return node != nullptr && insert(edits, level, node) &&
           (request.connectTo.empty() || runConnectTo(edits, *node, request.connectTo));
  }

  bool run(Transaction& edits, const NewIoNode& request) {
    CompoundObject& level = *request.level;
    if (!level.node()) return false;
    const bool input = request.kind == NodeKind::Input;
    const NodeFactory factory(level.node()->core());
    const NodeRef node =
        factory.makeIo(request.kind, level.nodes().uniqueName(input ? "input" : "output"));
    return insert(edits, level, node) &&
           (request.connectTo.empty() || runConnectIoTo(edits, *node, request.connectTo));
  }

  bool run(Transaction& edits, const GoneNode& request) {
    NodeObject* node = request.level->nodes().find(request.name);
    return node && runRemoveNode(edits, *node);
  }
};

NodeCommand::NodeCommand() : rep_(new Rep) {}
NodeCommand::~NodeCommand() { delete rep_; }

bool NodeCommand::createNode(const AddRefWrapper<Compound>& compound, const char* type,
                             const char* connectTo) {
  CompoundObject* level = kCreateNode.refuses() ? nullptr : rep_->level(compound);
  if (!level || !type) return false;
  NodeObject::DefinitionRef definition = level->node()->core().findDefinition(type);
  if (definition == nullptr) return false;
  rep_->requests.push_back(NewNode{CompoundRef(level), std::move(definition), textOf(connectTo)});
  return true;
}

bool NodeCommand::createIONode(const AddRefWrapper<Compound>& compound, NodeFlags kind,
                               const char* connectTo) {
  CompoundObject* level = kCreateIoNode.refuses() ? nullptr : rep_->level(compound);
  const bool known = kind == NodeFlags::kInputNode || kind == NodeFlags::kOutputNode;
  if (!level || !known) return false;
  const NodeKind nodeKind = kind == NodeFlags::kInputNode ? NodeKind::Input : NodeKind::Output;
  rep_->requests.push_back(NewIoNode{CompoundRef(level), nodeKind, textOf(connectTo)});
  return true;
}

bool NodeCommand::removeNode(const AddRefWrapper<Compound>& compound, const char* name) {
  CompoundObject* level = kRemoveNode.refuses() ? nullptr : rep_->level(compound);
  if (!level || !name || !level->nodes().find(name)) return false;
  rep_->requests.push_back(GoneNode{CompoundRef(level), name});
  return true;
}

bool NodeCommand::doit() { return !kDoit.refuses() && redo(); }

bool NodeCommand::redo() {
  if (rep_->requests.empty()) return !kRedo.refuses();
  return rep_->command.redo(kRedo, rep_->graph.container(), [this](Transaction& edits) {
    rep_->created.clear();
    for (const Request& request : rep_->requests) {
      if (!std::visit([&](const auto& one) { return rep_->run(edits, one); }, request))
        return false;
    }
    return true;
  });
}

bool NodeCommand::undo() {
  if (rep_->requests.empty()) return !kUndo.refuses();
  return rep_->command.undo(kUndo, rep_->graph.container());
}

StringArray NodeCommand::getCreatedNodeNames() const {
  StringArray names;
  if (!rep_->command.isDone()) return names;
  for (const NodeRef& node : rep_->created) names.add(node->name().c_str());
  return names;
}

}  // namespace ORV_v1
