#include "standalone/widgets/parameters/GraphFollower.h"

#include <algorithm>

namespace orvuilib {

using orvlib::ContainerObject;
using orvlib::CoreRef;
using orvlib::NodeChange;
using orvlib::NodeObject;
using orvlib::NodeRef;

namespace {

/// What matters wherever it happens: a path, a level that goes, the name of a source, and a lock.
unsigned char bitsOfOther(const NodeChange& change) {
  constexpr unsigned char kEverywhere = orvlib::kContentChange | orvlib::kIdentityChange;
  const unsigned char lock = change.node->compound() ? orvlib::kMetadataChange : 0;
  return change.bits & (kEverywhere | lock);
}

}  // namespace

GraphFollower::GraphFollower(std::function<void(unsigned char)> changed)
    : changed_(std::move(changed)) {
  timer_.setSingleShot(true);
  timer_.setInterval(0);
  QObject::connect(&timer_, &QTimer::timeout, [this] { tell(); });
}

GraphFollower::~GraphFollower() { release(); }

void GraphFollower::release() {
  for (const CoreRef& graph : graphs_) {
    if (graph->container()) graph->container()->removeListener(*this);
  }
  graphs_.clear();
}

void GraphFollower::follow(std::span<const NodeRef> nodes) {
  release();
  nodes_.clear();
  for (const NodeRef& node : nodes) {
    nodes_.insert(node.get());
    // The ports of an input or output node belong to the level's own node.
    if (node->parent() && !node->hasOwnPorts()) nodes_.insert(node->parent()->node());
    const auto isSame = [&node](const CoreRef& graph) { return graph.get() == &node->core(); };
    if (std::ranges::any_of(graphs_, isSame)) continue;
    if (!node->core().container()) continue;
    node->core().container()->addListener(*this);
    graphs_.emplace_back(&node->core());
  }
}

void GraphFollower::note(unsigned char bits) {
  bits_ |= bits;
  if (!timer_.isActive()) timer_.start();
}

void GraphFollower::graphChanged(ContainerObject&, std::span<const NodeChange> changes) {
  unsigned char bits = 0;
  for (const NodeChange& change : changes) {
    const bool isFollowed = nodes_.contains(change.node.get());
    bits |= isFollowed ? change.bits : bitsOfOther(change);
  }
  if (bits != 0 || all_) note(bits);
}

void GraphFollower::graphGoes(ContainerObject& container) {
  container.removeListener(*this);
  std::erase_if(graphs_, [&](const CoreRef& graph) { return graph.get() == &container.core(); });
  note(orvlib::kContentChange);
}

void GraphFollower::tell() {
  const unsigned char bits = std::exchange(bits_, 0);
  changed_(bits);
}

}  // namespace orvuilib
