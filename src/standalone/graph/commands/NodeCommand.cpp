#include "platform/ORV_1_0/NodeCommand.h"

#include <absl/container/flat_hash_set.h>

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
  NodeRef created = {};
};

struct NewIoNode {
  CompoundRef level;
  NodeKind kind;
  std::string connectTo;
  NodeRef created = {};
};

struct GoneNode {
  CompoundRef level;
  NodeRef node;
};

using Request = std::variant<NewNode, NewIoNode, GoneNode>;

/// Null for a request that is not for a node, and before it has been carried out.
const NodeObject* createdBy(const NewNode& request) { return request.created.get(); }
const NodeObject* createdBy(const NewIoNode& request) { return request.created.get(); }
const NodeObject* createdBy(const GoneNode&) { return nullptr; }

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
  absl::flat_hash_set<const NodeObject*> gone;  ///< what is to be removed
  RecordedCommand command;

  /// The level, when it is in the graph that the command works in; else null.
  CompoundObject* level(const AddRefWrapper<Compound>& compound) {
    auto* given = static_cast<CompoundObject*>(compound.get());
    if (!given || !given->node() || command.isBuilt()) return nullptr;
    return graph.bindOrKeep(given->node()->container()) ? given : nullptr;
  }

  template <class New>
  bool insert(Transaction& edits, New& request, NodeRef node) {
    if (!request.level->node()) return false;
    const unsigned int end = request.level->nodes().count();
    request.created = std::move(node);
    return edits.run(InsertNode{{request.level, request.created, end}});
  }

  bool run(Transaction& edits, NewNode& request) {
    CompoundObject& level = *request.level;
    if (!level.node()) return false;
    const NodeFactory factory(level.node()->core());
    const std::string_view base = shortName(request.definition->getName());
    const NodeRef node = factory.make(*request.definition, level.nodes().uniqueName(base));
    return node != nullptr && level.hasRoomFor(*node) && insert(edits, request, node) &&
           (request.connectTo.empty() || runConnectTo(edits, *node, request.connectTo));
  }

  bool run(Transaction& edits, NewIoNode& request) {
    CompoundObject& level = *request.level;
    if (!level.node()) return false;
    const bool input = request.kind == NodeKind::Input;
    const NodeFactory factory(level.node()->core());
    const NodeRef node =
        factory.makeIo(request.kind, level.nodes().uniqueName(input ? "input" : "output"));
    return insert(edits, request, node) &&
           (request.connectTo.empty() || runConnectIoTo(edits, *node, request.connectTo));
  }

  bool run(Transaction& edits, const GoneNode& request) {
    return request.node->parent() == request.level.get() && runRemoveNode(edits, *request.node);
  }
};

NodeCommand::NodeCommand() : rep_(nullptr) {}
NodeCommand::~NodeCommand() { delete rep_; }

bool NodeCommand::createNode(const AddRefWrapper<Compound>& compound, const char* type,
                             const char* connectTo) {
  CompoundObject* level = kCreateNode.refuses() ? nullptr : made(rep_).level(compound);
  if (!level || !type) return false;
  NodeObject::DefinitionRef definition = level->node()->core().findDefinition(type);
  if (definition == nullptr) return false;
  rep_->requests.push_back(NewNode{CompoundRef(level), std::move(definition), textOf(connectTo)});
  return true;
}

bool NodeCommand::createIONode(const AddRefWrapper<Compound>& compound, NodeFlags kind,
                               const char* connectTo) {
  CompoundObject* level = kCreateIoNode.refuses() ? nullptr : made(rep_).level(compound);
  const bool known = kind == NodeFlags::kInputNode || kind == NodeFlags::kOutputNode;
  if (!level || !known) return false;
  const NodeKind nodeKind = kind == NodeFlags::kInputNode ? NodeKind::Input : NodeKind::Output;
  rep_->requests.push_back(NewIoNode{CompoundRef(level), nodeKind, textOf(connectTo)});
  return true;
}

bool NodeCommand::removeNode(const AddRefWrapper<Compound>& compound, const char* name) {
  CompoundObject* level = kRemoveNode.refuses() ? nullptr : made(rep_).level(compound);
  NodeObject* node = level && name ? level->nodes().find(name) : nullptr;
  if (!node) return false;
  if (rep_->gone.insert(node).second) {
    rep_->requests.push_back(GoneNode{CompoundRef(level), NodeRef(node)});
  }
  return true;
}

bool NodeCommand::doit() { return !kDoit.refuses() && redo(); }

bool NodeCommand::redo() {
  if (!rep_ || rep_->requests.empty()) return !kRedo.refuses();
  return rep_->command.redo(kRedo, rep_->graph.container(), [this](Transaction& edits) {
    for (Request& request : rep_->requests) {
      if (!std::visit([&](auto& one) { return rep_->run(edits, one); }, request)) return false;
    }
    return true;
  });
}

bool NodeCommand::undo() {
  if (!rep_ || rep_->requests.empty()) return !kUndo.refuses();
  return rep_->command.undo(kUndo, rep_->graph.container());
}

StringArray NodeCommand::getCreatedNodeNames() const {
  StringArray names;
  if (!rep_ || !rep_->command.isDone()) return names;
  for (const Request& request : rep_->requests) {
    const NodeObject* node = std::visit([](const auto& one) { return createdBy(one); }, request);
    if (node) names.add(node->name().c_str());
  }
  return names;
}

}  // namespace ORV_v1
