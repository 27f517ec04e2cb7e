#include "platform/ORV_1_0/MetadataCommand.h"

#include <optional>
#include <variant>
#include <vector>

#include "standalone/graph/commands/RecordedCommand.h"

namespace ORV_v1 {
namespace {

using namespace orvlib;

FaultPoint kSetCompound("MetadataCommand setParentCompound");
FaultPoint kSetNode("MetadataCommand setParentNode");
FaultPoint kSetWatchPoint("MetadataCommand setParentWatchPoint");
FaultPoint kSet("MetadataCommand setMetadata");
FaultPoint kAdd("MetadataCommand addMetadata");
FaultPoint kRemove("MetadataCommand removeMetadata");
FaultPoint kClear("MetadataCommand clearMetadata");
FaultPoint kSetAll("MetadataCommand setFromPropertyList");
FaultPoint kDoit("MetadataCommand doit");
FaultPoint kRedo("MetadataCommand redo");
FaultPoint kUndo("MetadataCommand undo");

struct SetKey {
  std::string key;
  std::vector<std::string> values;

  void change(Properties& set) const { set.set(key, values); }
};

struct AddValue {
  std::string key;
  std::string value;

  void change(Properties& set) const { set.addValue(key, value); }
};

struct RemoveValue {
  std::string key;
  std::string value;

  void change(Properties& set) const { set.removeValue(key, value); }
};

struct ClearKey {
  std::string key;

  void change(Properties& set) const { set.clear(key); }
};

struct ReplaceAll {
  Properties properties;

  void change(Properties& set) const { set = properties; }
};

using Request = std::variant<SetKey, AddValue, RemoveValue, ClearKey, ReplaceAll>;

bool isKey(const char* key) { return key && *key; }

std::string textOf(const char* text) { return text ? text : ""; }

/// Both faces of a compound's port have the same path. The first of these that carries a watch
/// point is meant.
WatchPointObject* findWatchPoint(const ContainerObject& graph, const char* path) {
  constexpr unsigned int kSearches[][2] = {{Container::kSearchInput, Container::kSearchInner},
                                           {Container::kSearchEither, Container::kSearchOuter},
                                           {Container::kSearchEither, Container::kSearchInner}};
  for (const auto& [ioType, mode] : kSearches) {
    const PortObject* port = graph.findPort(path, ioType, mode);
    if (port && port->watchPoint()) return port->watchPoint();
  }
  return nullptr;
}

using Owner = std::variant<NodeRef, CompoundRef, WatchPointRef>;

// The node that the metadata is at; null when there is none any more.
const NodeObject* nodeOf(const NodeObject& node) { return &node; }
const NodeObject* nodeOf(const CompoundObject& compound) { return compound.node(); }
const NodeObject* nodeOf(const WatchPointObject& watched) {
  return watched.port() ? watched.port()->node() : nullptr;
}

}  // namespace

struct MetadataCommand::Rep {
  GraphLink graph;
  std::optional<Owner> owner;
  absl::InlinedVector<Request, 1> requests;
  RecordedCommand command;

  /// `find` gives the object in a graph by its path, or null.
  template <class Find>
  bool bind(Container* container, const char* path, Find find) {
    auto* given = static_cast<ContainerObject*>(container);
    if (!given || !path || command.isBuilt()) return false;
    auto* found = find(*given, path);
    if (!found) return false;
    graph.bind(*given);
    owner = AddRefWrapper(found);
    return true;
  }

  bool record(const char* key, Request request) {
    if (!isKey(key) || command.isBuilt()) return false;
    requests.push_back(std::move(request));
    return true;
  }

  /// Whether the object is in the graph that it was found in. It may have left since.
  bool isOwnerThere() const {
    if (!owner) return false;
    const NodeObject* node = std::visit([](const auto& found) { return nodeOf(*found); }, *owner);
    return node && node->container() && node->container() == graph.container();
  }

  bool run(Transaction& edits) {
    const auto setOf = [](const auto& object) { return object->metadata(); };
    Properties set = std::visit(setOf, *owner);
    for (const Request& request : requests) {
      std::visit([&set](const auto& one) { one.change(set); }, request);
    }
    const auto toEdit = [](const auto& found) -> SetMetadata::Owner { return found; };
    return edits.run(SetMetadata{std::visit(toEdit, *owner), std::move(set)});
  }
};

MetadataCommand::MetadataCommand() : rep_(nullptr) {}
MetadataCommand::~MetadataCommand() { delete rep_; }

bool MetadataCommand::setParentCompound(Container* container, const char* path) {
  return !kSetCompound.refuses() &&
         made(rep_).bind(container, path, [](const ContainerObject& graph, const char* text) {
           return graph.findCompound(text);
         });
}

bool MetadataCommand::setParentNode(Container* container, const char* path) {
  return !kSetNode.refuses() &&
         made(rep_).bind(container, path, [](const ContainerObject& graph, const char* text) {
           return graph.findNode(text);
         });
}

bool MetadataCommand::setParentWatchPoint(Container* container, const char* path) {
  return !kSetWatchPoint.refuses() && made(rep_).bind(container, path, findWatchPoint);
}

bool MetadataCommand::setMetadata(const char* key, const StringArray& values) {
  return !kSet.refuses() &&
         made(rep_).record(key, SetKey{textOf(key), GraphAccess::textsOf(values)});
}

bool MetadataCommand::addMetadata(const char* key, const char* value) {
  return !kAdd.refuses() && made(rep_).record(key, AddValue{textOf(key), textOf(value)});
}

bool MetadataCommand::removeMetadata(const char* key, const char* value) {
  return !kRemove.refuses() && made(rep_).record(key, RemoveValue{textOf(key), textOf(value)});
}

bool MetadataCommand::clearMetadata(const char* key) {
  return !kClear.refuses() && made(rep_).record(key, ClearKey{textOf(key)});
}

bool MetadataCommand::setFromPropertyList(const PropertyList& properties) {
  if (kSetAll.refuses() || made(rep_).command.isBuilt()) return false;
  rep_->requests.push_back(ReplaceAll{GraphAccess::propertiesOf(properties)});
  return true;
}

bool MetadataCommand::doit() { return !kDoit.refuses() && redo(); }

bool MetadataCommand::redo() {
  if (!rep_ || rep_->requests.empty()) return !kRedo.refuses();
  if (!rep_->isOwnerThere()) return false;
  return rep_->command.redo(kRedo, rep_->graph.container(),
                            [this](Transaction& edits) { return rep_->run(edits); });
}

void MetadataCommand::undo() {
  if (rep_ && !rep_->requests.empty()) rep_->command.undo(kUndo, rep_->graph.container());
}

}  // namespace ORV_v1
