#include "standalone/graph/model/WatchRegistry.h"

#include <algorithm>
#include <utility>

#include "standalone/graph/model/CompoundObject.h"
#include "standalone/graph/model/VertexArcs.h"

namespace orvlib {

WatchRegistry::Entry* WatchRegistry::find(const GraphVertex& vertex) {
  const auto entry = entries_.find(&vertex);
  return entry == entries_.end() ? nullptr : &entry->second;
}

void WatchRegistry::add(GraphVertex& vertex, PortObject& port) {
  entries_[&vertex].ports.push_back(&port);
  vertex.watched = true;
}

void WatchRegistry::remove(GraphVertex& vertex, PortObject& port) {
  Entry* entry = find(vertex);
  if (!entry) return;
  const auto found = std::ranges::find(entry->ports, &port);
  if (found != entry->ports.end()) entry->ports.erase(found);
  if (!entry->ports.empty()) return;
  entries_.erase(&vertex);
  vertex.watched = false;
}

std::span<PortObject* const> WatchRegistry::portsOf(const GraphVertex& vertex) const {
  const auto entry = entries_.find(&vertex);
  if (entry == entries_.end()) return {};
  return entry->second.ports;
}

void WatchRegistry::note(GraphVertex& vertex) {
  Entry* entry = find(vertex);
  if (!entry || entry->turn != Turn::Idle) return;
  entry->turn = Turn::Waiting;
  waiting_.push_back(&vertex);
}

std::vector<GraphVertex*> WatchRegistry::takeWaiting() {
  std::vector<GraphVertex*> taken;
  for (GraphVertex* vertex : std::exchange(waiting_, {})) {
    Entry* entry = find(*vertex);
    if (!entry || entry->turn != Turn::Waiting) continue;
    entry->turn = Turn::Idle;
    taken.push_back(vertex);
  }
  return taken;
}

void WatchRegistry::setAside(GraphVertex& vertex) {
  Entry* entry = find(vertex);
  NodeObject* node = nodeOf(vertex);
  if (!entry || !node) return;
  entry->turn = Turn::Aside;
  aside_[&topmost(*node)].push_back(&vertex);
}

NodeObject& WatchRegistry::topmost(NodeObject& node) {
  NodeObject* top = &node;
  while (const CompoundObject* level = top->parent()) {
    if (!level->node()) break;
    top = level->node();
  }
  return *top;
}

void WatchRegistry::bringBackWith(const NodeObject& top) {
  const auto kept = aside_.find(&top);
  if (kept == aside_.end()) return;
  const auto vertices = std::move(kept->second);
  aside_.erase(kept);
  for (GraphVertex* vertex : vertices) {
    Entry* entry = find(*vertex);
    if (!entry || entry->turn != Turn::Aside) continue;
    entry->turn = Turn::Waiting;
    waiting_.push_back(vertex);
  }
}

}  // namespace orvlib
