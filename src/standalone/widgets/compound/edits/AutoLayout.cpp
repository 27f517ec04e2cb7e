#include <graphviz/gvc.h>

#include <unordered_map>

#include "standalone/widgets/compound/edits/Layout.h"

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

/// A layout of boxes, from left to right.
class Diagram {
 public:
  explicit Diagram(const std::vector<BoxItem*>& boxes)
      : graph_(agopen(text("level"), Agdirected, nullptr)) {
    agattr(graph_, AGRAPH, text("rankdir"), text("LR"));
    agattr(graph_, AGRAPH, text("nodesep"), text("0.4"));
    agattr(graph_, AGRAPH, text("ranksep"), text("1.1"));
    agattr(graph_, AGRAPH, text("splines"), text("false"));
    // With these it stays quick for thousands of nodes.
    agattr(graph_, AGRAPH, text("nslimit"), text("2"));
    agattr(graph_, AGRAPH, text("nslimit1"), text("2"));
    agattr(graph_, AGRAPH, text("mclimit"), text("0.5"));
    agattr(graph_, AGNODE, text("shape"), text("box"));
    agattr(graph_, AGNODE, text("fixedsize"), text("true"));
    agattr(graph_, AGNODE, text("label"), text(""));
    agattr(graph_, AGNODE, text("width"), text("1"));
    agattr(graph_, AGNODE, text("height"), text("1"));
    for (const BoxItem* box : boxes) addNode(*box);
    for (const BoxItem* box : boxes) addEdges(*box);
    isLaidOut_ = gvLayout(context(), graph_, "dot") == 0;
  }
  Diagram(const Diagram&) = delete;
  Diagram& operator=(const Diagram&) = delete;
  ~Diagram() {
    if (isLaidOut_) gvFreeLayout(context(), graph_);
    agclose(graph_);
  }

  bool isLaidOut() const { return isLaidOut_; }

  /// Of the box's middle; downwards, as on the canvas.
  QPointF middleOf(const BoxItem& box) const {
    Agnode_t* node = nodes_.at(&box);
    return {ND_coord(node).x, -ND_coord(node).y};
  }

 private:
  void addNode(const BoxItem& box) {
    Agnode_t* node = agnode(graph_, nullptr, 1);
    set(node, "width", box.bounds.width());
    set(node, "height", box.bounds.height());
    nodes_.emplace(&box, node);
  }

  static void set(Agnode_t* node, const char* name, qreal length) {
    QByteArray inches = QByteArray::number(length / kPointsPerInch, 'f', 4);
    agset(node, text(name), inches.data());
  }

  void addEdges(const BoxItem& box) {
    for (const Wire* wire : box.leaving) {
      const auto to = nodes_.find(wire->to);
      if (to != nodes_.end()) agedge(graph_, nodes_.at(&box), to->second, nullptr, 1);
    }
  }

  Agraph_t* graph_;
  std::unordered_map<const BoxItem*, Agnode_t*> nodes_;
  bool isLaidOut_ = false;
};

}  // namespace

std::vector<Moved> laidOut(const std::vector<BoxItem*>& boxes) {
  std::vector<Moved> moved;
  if (boxes.empty()) return moved;
  const Diagram diagram(boxes);
  if (!diagram.isLaidOut()) return moved;
  QRectF before;
  QRectF after;
  const auto placed = [&diagram](const BoxItem& box) {
    QRectF bounds = box.bounds;
    bounds.moveCenter(diagram.middleOf(box));
    return bounds;
  };
  for (const BoxItem* box : boxes) {
    before |= box->bounds;
    after |= placed(*box);
  }
  const QPointF offset = (before.center() - after.center()).toPoint();
  for (BoxItem* box : boxes) {
    const QPointF position = QPointF((placed(*box).topLeft() + offset).toPoint());
    if (position != box->bounds.topLeft()) moved.push_back({box, nullptr, position});
  }
  return moved;
}

}  // namespace orvuilib::edits
