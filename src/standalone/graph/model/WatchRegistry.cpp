#include "standalone/graph/model/WatchRegistry.h"

#include <algorithm>
#include <utility>

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
  if (!entry) return;
  entry->turn = Turn::Aside;
  aside_.push_back(&vertex);
}

void WatchRegistry::bringBack() {
  for (GraphVertex* vertex : std::exchange(aside_, {})) {
    Entry* entry = find(*vertex);
    if (!entry || entry->turn != Turn::Aside) continue;
    entry->turn = Turn::Waiting;
    waiting_.push_back(vertex);
  }
}

}  // namespace orvlib
