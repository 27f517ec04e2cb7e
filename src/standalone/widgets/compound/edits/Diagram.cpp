#include "standalone/widgets/compound/edits/Diagram.h"

#include <graphviz/gvc.h>

#include <algorithm>
#include <utility>

namespace orvuilib::edits {
namespace {

/// Graphviz measures nodes in inches and places them in points.
constexpr qreal kPointsPerInch = 72;

char* text(const char* literal) { return const_cast<char*>(literal); }

/// Reading its configuration takes Graphviz a while; the context is kept. Never destroyed: its
/// plug-ins are not made for leaving at the end of a program.
GVC_t* context() {
  static GVC_t* only = [] {
    agseterr(AGMAX);
    return gvContext();
  }();
  return only;
}

void setLength(Agnode_t* node, const char* name, qreal length) {
  QByteArray inches = QByteArray::number(length / kPointsPerInch, 'f', 4);
  agset(node, text(name), inches.data());
}

constexpr std::pair<const char*, const char*> kGraphAttributes[] = {
    {"rankdir", "LR"},
    {"nodesep", "0.4"},
    {"ranksep", "1.1"},
    {"splines", "false"},
    // With these it stays quick for thousands of nodes.
    {"nslimit", "2"},
    {"nslimit1", "2"},
    {"mclimit", "0.5"},
};

constexpr std::pair<const char*, const char*> kNodeAttributes[] = {
    {"shape", "box"}, {"fixedsize", "true"}, {"label", ""}, {"width", "1"}, {"height", "1"},
};

}  // namespace

Diagram::Diagram(const std::vector<BoxItem*>& boxes, const std::vector<Frame>& frames)
    : graph_(agopen(text("level"), Agdirected, nullptr)) {
  for (const auto& [name, value] : kGraphAttributes) {
    agattr(graph_, AGRAPH, text(name), text(value));
  }
  for (const auto& [name, value] : kNodeAttributes) {
    agattr(graph_, AGNODE, text(name), text(value));
  }
  for (const BoxItem* box : boxes) addNode(*box);
  for (const BoxItem* box : boxes) addEdges(*box);
  addFrames(frames);
  isLaidOut_ = gvLayout(context(), graph_, "dot") == 0;
}

Diagram::~Diagram() {
  if (isLaidOut_) gvFreeLayout(context(), graph_);
  agclose(graph_);
}

QPointF Diagram::middleOf(const BoxItem& box) const {
  Agnode_t* node = nodes_.at(&box);
  return {ND_coord(node).x, -ND_coord(node).y};
}

void Diagram::addNode(const BoxItem& box) {
  Agnode_t* node = agnode(graph_, nullptr, 1);
  setLength(node, "width", box.bounds.width());
  setLength(node, "height", box.bounds.height());
  nodes_.emplace(&box, node);
}

void Diagram::addEdges(const BoxItem& box) {
  for (const Wire* wire : box.leaving) {
    const auto to = nodes_.find(wire->to);
    if (to != nodes_.end()) agedge(graph_, nodes_.at(&box), to->second, nullptr, 1);
  }
}

/// The outer ones first: a cluster is made in the one that it lies in.
void Diagram::addFrames(const std::vector<Frame>& frames) {
  std::vector<Agraph_t*> clusters(frames.size(), nullptr);
  for (std::size_t i = frames.size(); i-- > 0;) {
    const Frame& frame = frames[i];
    const bool inner = frame.outer != Frame::kNone;
    Agraph_t* outer = inner ? clusters[static_cast<std::size_t>(frame.outer)] : graph_;
    QByteArray name = "cluster" + QByteArray::number(qulonglong(i));
    clusters[i] = agsubg(outer, name.data(), 1);
    agsafeset(clusters[i], text("margin"), text("44"), text(""));
    for (const BoxItem* box : frame.boxes) {
      const auto node = nodes_.find(box);
      if (node != nodes_.end()) agsubnode(clusters[i], node->second, 1);
    }
  }
}

}  // namespace orvuilib::edits
