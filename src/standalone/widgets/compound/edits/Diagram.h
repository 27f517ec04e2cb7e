#pragma once

#include <QPointF>
#include <unordered_map>

#include "standalone/widgets/compound/edits/Frames.h"

struct Agraph_s;
struct Agnode_s;

namespace orvuilib::edits {

/// A layout of boxes by Graphviz: from left to right by their wires, with their real sizes, and
/// with what lies on one backdrop together.
class Diagram {
 public:
  Diagram(const std::vector<BoxItem*>& boxes, const std::vector<Frame>& frames);
  Diagram(const Diagram&) = delete;
  Diagram& operator=(const Diagram&) = delete;
  ~Diagram();

  /// False when Graphviz gave up.
  bool isLaidOut() const { return isLaidOut_; }

  /// Of the box's middle; downwards, as on the canvas.
  QPointF middleOf(const BoxItem& box) const;

 private:
  void addNode(const BoxItem& box);
  void addEdges(const BoxItem& box);
  void addFrames(const std::vector<Frame>& frames);

  Agraph_s* graph_;
  std::unordered_map<const BoxItem*, Agnode_s*> nodes_;
  bool isLaidOut_ = false;
};

}  // namespace orvuilib::edits
