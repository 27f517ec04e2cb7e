#include "standalone/graph/commands/ExplodeCompound.h"

#include <absl/container/flat_hash_map.h>

#include <algorithm>

#include "standalone/graph/commands/PortValues.h"
#include "standalone/graph/edits/Wiring.h"
#include "standalone/graph/types/Conversion.h"

namespace orvlib {
namespace {

std::string joinedPath(const std::string& path, const std::string& name) {
  if (path.empty() || name.empty()) return path + name;
  return path + '.' + name;
}

PortObject* childOf(PortObject& port, const std::string& path) {
  return path.empty() ? &port : port.descendant(path);
}

}  // namespace

ExplodeCompound::ExplodeCompound(Transaction& edits, NodeObject& compound)
    : edits_(edits), node_(compound), inside_(*compound.compound()) {}

bool ExplodeCompound::run(std::vector<NodeRef>& created) {
  const CompoundRef level(node_.parent());
  if (level == nullptr || inside_.isReference() || inside_.isLocked()) return false;
  if (!collect() || !runBreak() || !runLetGo()) return false;
  // The compound goes first, so that its name is free for what it held.
  if (!edits_.run(RemoveNode{{level, NodeRef(&node_), 0}})) return false;
  return runMove(*level, created) && runPassValues() && runJoin();
}

/// The face of each port that values go into: from outside or from inside.
std::vector<PortObject*> ExplodeCompound::takingFaces() const {
  std::vector<PortObject*> faces;
  for (PortObject* port : node_.inputList().items()) faces.push_back(port);
  for (PortObject* port : node_.outputList().items()) faces.push_back(port->twin());
  return faces;
}

bool ExplodeCompound::collect() {
  for (PortObject* taking : takingFaces()) {
    if (!collectFeeds(*taking)) return false;
    if (taking->hasPeers()) continue;
    Rest rest{taking, {}};
    if (!reachFrom(*taking->twin(), "", "", false, rest.reached)) return false;
    if (!reachChildren(*taking->twin(), "", rest.reached)) return false;
    if (!rest.reached.empty()) rests_.push_back(std::move(rest));
  }
  std::ranges::stable_sort(feeds_, {}, &Feed::place);
  return true;
}

/// Of the port and of those below it.
bool ExplodeCompound::collectFeeds(PortObject& taking) {
  PortObject* source = taking.source();
  // What comes out of the compound itself has been followed to here.
  if (source && !isFace(*source)) {
    Feed feed{PortRef(source), source->peers().indexOf(&taking), {}};
    if (!reach(taking, "", feed.reached)) return false;
    for (const Reached& one : feed.reached) joined_.insert(one.target);
    feeds_.push_back(std::move(feed));
  }
  const PortListObject* children = taking.madeChildren();
  if (!children) return true;
  for (PortObject* child : children->items()) {
    if (!collectFeeds(*child)) return false;
  }
  return true;
}

/// Follows a value through the compound's port: to what is connected to the ports above and below
/// the one of the same path on the other face, and to that one itself.
bool ExplodeCompound::reach(PortObject& taking, const std::string& below,
                            std::vector<Reached>& reached) const {
  PortObject* giving = taking.root().twin();
  const std::string path = taking.above() ? taking.fullName() : "";
  std::string rest = path.substr(std::min(path.size(), taking.root().name().size() + 1));
  const bool isMember = taking.kind() == PortKind::Member;
  while (giving) {
    if (!reachFrom(*giving, rest, below, isMember, reached)) return false;
    if (rest.empty()) return reachChildren(*giving, below, reached);
    const auto dot = rest.find('.');
    giving = giving->child(rest.substr(0, dot));
    rest = dot == rest.npos ? "" : rest.substr(dot + 1);
  }
  return true;
}

/// What is connected to the port, of which the value is the part `rest`.
bool ExplodeCompound::reachFrom(PortObject& giving, const std::string& rest,
                                const std::string& below, bool isMember,
                                std::vector<Reached>& reached) const {
  for (PortObject* target : giving.peers().items()) {
    PortObject* part = isMember && target->isFanInPort() ? target : childOf(*target, rest);
    if (!part) return false;
    if (!isFace(*part)) {
      reached.push_back({part, below});
    } else if (!reach(*part, below, reached)) {
      return false;
    }
  }
  return true;
}

bool ExplodeCompound::reachChildren(PortObject& giving, const std::string& below,
                                    std::vector<Reached>& reached) const {
  const PortListObject* children = giving.madeChildren();
  if (!children) return true;
  for (PortObject* child : children->items()) {
    const std::string path = joinedPath(below, child->name());
    if (!reachFrom(*child, "", path, false, reached)) return false;
    if (!reachChildren(*child, path, reached)) return false;
  }
  return true;
}

bool ExplodeCompound::runBreak() {
  for (PortObject* taking : takingFaces()) {
    if (!runBreakFace(*taking) || !runBreakFace(*taking->twin())) return false;
  }
  return true;
}

/// A member of a fan-in port stays when it is connected again.
bool ExplodeCompound::runBreakFace(PortObject& face) {
  while (face.hasPeers()) {
    PortObject& peer = *face.peers().at(face.peers().count() - 1);
    PortObject& source = face.isInput() ? peer : face;
    PortObject& target = face.isInput() ? face : peer;
    const bool stays = joined_.contains(&target) || isFace(target);
    const bool done = stays ? edits_.run(Disconnect{{PortRef(&source), PortRef(&target)}})
                            : runDisconnect(edits_, source, target);
    if (!done) return false;
  }
  const PortListObject* children = face.madeChildren();
  if (!children) return true;
  for (PortObject* child : children->items()) {
    if (!runBreakFace(*child)) return false;
  }
  return true;
}

/// Its input/output nodes have nothing to show any more.
bool ExplodeCompound::runLetGo() {
  std::vector<NodeObject*> shows;
  for (NodeObject* node : inside_.nodes().items()) {
    const bool io = node->nodeKind() == NodeKind::Input || node->nodeKind() == NodeKind::Output;
    if (io) shows.push_back(node);
  }
  for (NodeObject* node : shows) {
    if (!runRemoveNode(edits_, *node)) return false;
  }
  return true;
}

bool ExplodeCompound::runMove(CompoundObject& level, std::vector<NodeRef>& created) {
  const auto& children = inside_.nodes().items();
  for (NodeObject* node : std::vector<NodeObject*>(children.begin(), children.end())) {
    std::string name = level.nodes().uniqueName(node->name());
    const unsigned int end = level.nodes().count();
    if (!edits_.run(MoveNode{NodeRef(node), CompoundRef(&level), end, std::move(name)})) {
      return false;
    }
    created.emplace_back(node);
  }
  const auto& notes = inside_.annotations().items();
  for (AnnotationObject* note : std::vector<AnnotationObject*>(notes.begin(), notes.end())) {
    const AnnotationRef moved(note);
    if (!edits_.run(RemoveAnnotation{{CompoundRef(&inside_), moved, 0}})) return false;
    std::string name = level.annotations().uniqueName(note->name());
    if (name != note->name() && !edits_.run(RenameAnnotation{moved, std::move(name)})) {
      return false;
    }
    const unsigned int end = level.annotations().count();
    if (!edits_.run(InsertAnnotation{{CompoundRef(&level), moved, end}})) return false;
  }
  return true;
}

bool ExplodeCompound::runPassValues() {
  for (const Rest& rest : rests_) {
    for (const Reached& reached : rest.reached) {
      if (!runPassValue(rest, reached)) return false;
    }
  }
  return true;
}

bool ExplodeCompound::runPassValue(const Rest& rest, const Reached& reached) {
  PortObject& target = *reached.target;
  const PortObject* port = childOf(*rest.port, reached.below);
  if (!port || !target.isSettable() || joined_.contains(&target)) return true;
  const std::optional<Value> value = port->settableValue();
  if (!value || !canConvert(port->valueType(), target.valueType())) return true;
  Value passed = convert(*value, port->valueType(), target.valueType());
  return sameValue(passed, *target.settableValue()) ||
         runSetValue(edits_, target, std::move(passed));
}

/// What is joined takes the place that the compound's port had at the source.
bool ExplodeCompound::runJoin() {
  absl::flat_hash_map<const PortObject*, int> shifts;
  for (const Feed& feed : feeds_) {
    int& shift = shifts[feed.source.get()];
    unsigned int place = feed.place + static_cast<unsigned int>(shift);
    for (const Reached& reached : feed.reached) {
      if (!runJoin(feed, reached, place)) return false;
      if (reached.below.empty()) ++place;
    }
    shift = static_cast<int>(place) - static_cast<int>(feed.place) - 1;
  }
  return true;
}

bool ExplodeCompound::runJoin(const Feed& feed, const Reached& reached, unsigned int place) {
  PortObject* source = childOf(*feed.source, reached.below);
  if (!source) return false;
  if (reached.target->isFanInPort()) {
    return runConnect(edits_, *source, *reached.target, Occupied::Refuse);
  }
  if (!reached.below.empty()) place = ~0u;
  return edits_.run(Connect{{PortRef(source), PortRef(reached.target), {place, 0}}});
}

}  // namespace orvlib
