#include "standalone/graph/published/Instances.h"

#include <algorithm>

#include "standalone/graph/library/RuntimeRegistry.h"
#include "standalone/graph/model/Mutator.h"
#include "standalone/graph/storage/GraphText.h"

namespace orvlib {
namespace {

/// How many references lie inside each other at most. Each is made by the reading of the one around
/// it, for which there must be room.
constexpr std::size_t kMostNested = 250;

/// The published compounds whose instances are being made, each inside of the one before.
struct Making {
  std::vector<std::string_view> open;

  /// Whether one was to be made inside of itself, since the outermost one began.
  bool looped = false;
};

Making& making() {
  static Making the;
  return the;
}

class OpenInstance {
 public:
  explicit OpenInstance(std::string_view name) {
    if (making().open.empty()) making().looped = false;
    making().open.push_back(name);
  }
  ~OpenInstance() { making().open.pop_back(); }
  OpenInstance(const OpenInstance&) = delete;
  OpenInstance& operator=(const OpenInstance&) = delete;
};

void takeValues(const NodeObject& from, NodeObject& to) {
  for (PortListObject* list : {&to.inputList(), &to.outputList()}) {
    for (PortObject* port : list->items()) {
      const PortObject* given = from.port(port->name());
      if (!given || given->direction() != port->direction()) continue;
      if (given->valueType().name != port->valueType().name) continue;
      auto value = given->ownValue() ? std::make_unique<const Value>(*given->ownValue()) : nullptr;
      Mutator::exchangeValue(*port, value);
    }
  }
}

}  // namespace

void reportNoInstance(const GraphCore& core, const std::string& name, const std::string& reason) {
  const RuntimeRegistry* registry = RuntimeRegistry::current();
  const ORV_v1::Runtime* runtime = registry ? registry->find(core.runtime()) : nullptr;
  if (!runtime) return;
  const std::string file = ORV_v1::GraphAccess::loaded(*runtime).compoundFile(name);
  registry->report({{file, 0, 0, "there can be no '" + name + "': " + reason}});
}

NodeRef makeInstance(GraphCore& core, ORV_v1::NodeDefinition& definition, std::string name) {
  const auto description = ORV_v1::GraphAccess::sharedDescription(definition);
  const bool inside = std::ranges::find(making().open, description->name) != making().open.end();
  if (inside) making().looped = true;
  if (inside) return {};
  if (making().open.size() == kMostNested) {
    reportNoInstance(core, description->name, "too many references are nested");
    return {};
  }
  const OpenInstance open(description->name);
  NodeRef node = NodeFactory(core).makeCompound(std::move(name));
  const auto error = readContent(description->content, *node->compound());
  if (making().looped) {
    if (making().open.size() == 1) reportNoInstance(core, description->name, "it holds itself");
    return {};
  }
  if (error) {
    reportNoInstance(core, description->name,
                     "line " + std::to_string(error->line) + " of its content: " + error->reason);
    return {};
  }
  Mutator::setOrigin(*node->compound(), description->name, true);
  return node;
}

NodeObject::DefinitionRef offeredOrigin(const CompoundObject& compound) {
  const NodeObject* node = compound.node();
  if (!node || compound.origin().empty()) return {};
  auto definition = node->core().findDefinition(compound.origin());
  const bool published =
      definition != nullptr && !ORV_v1::GraphAccess::describe(*definition).content.empty();
  return published ? definition : NodeObject::DefinitionRef();
}

bool holdsPublishedContent(const CompoundObject& compound) {
  const auto definition = offeredOrigin(compound);
  if (definition == nullptr) return true;
  const NodeObject& node = *compound.node();
  const NodeRef instance = makeInstance(node.core(), *definition, node.name());
  if (instance == nullptr || !mayHold(compound, *instance->compound())) return true;
  takeValues(node, *instance);
  Mutator::setOrigin(*instance->compound(), compound.origin(), compound.isReference());
  return writeContent(*instance->compound()) == writeContent(compound);
}

bool mayHold(const CompoundObject& compound, const CompoundObject& content) {
  return compound.hasRoomForContentOf(content) || content.countHeight() <= compound.countHeight();
}

bool refersTo(const CompoundObject& compound, std::string_view name) {
  std::vector<const CompoundObject*> open{&compound};
  while (!open.empty()) {
    const CompoundObject* level = open.back();
    open.pop_back();
    for (const NodeObject* node : level->nodes().items()) {
      if (node->nodeKind() == NodeKind::Placeholder && node->typeName() == name) return true;
      const CompoundObject* inside = node->compound();
      if (!inside) continue;
      if (inside->isReference() && inside->origin() == name) return true;
      open.push_back(inside);
    }
  }
  return false;
}

}  // namespace orvlib
