#include <algorithm>

#include "standalone/widgets/compound/edits/Layout.h"

namespace orvuilib::edits {
namespace {

qreal edgeOf(const QRectF& bounds, Edge edge) {
  switch (edge) {
    case Edge::Left:
      return bounds.left();
    case Edge::Right:
      return bounds.right();
    case Edge::Top:
      return bounds.top();
    case Edge::Bottom:
      break;
  }
  return bounds.bottom();
}

bool isHorizontal(Edge edge) { return edge == Edge::Left || edge == Edge::Right; }

}  // namespace

std::vector<Moved> aligned(const std::vector<BoxItem*>& boxes, Edge edge) {
  std::vector<Moved> moved;
  if (boxes.empty()) return moved;
  const bool least = edge == Edge::Left || edge == Edge::Top;
  qreal line = edgeOf(boxes.front()->bounds, edge);
  for (const BoxItem* box : boxes) {
    const qreal at = edgeOf(box->bounds, edge);
    line = least ? std::min(line, at) : std::max(line, at);
  }
  for (BoxItem* box : boxes) {
    const qreal offset = line - edgeOf(box->bounds, edge);
    if (offset == 0) continue;
    const QPointF by = isHorizontal(edge) ? QPointF(offset, 0) : QPointF(0, offset);
    moved.push_back({box, nullptr, box->bounds.topLeft() + by});
  }
  return moved;
}

}  // namespace orvuilib::edits
