#include "standalone/widgets/compound/view/Hit.h"

#include <QLineF>
#include <cmath>

#include "standalone/widgets/compound/paint/NotePainter.h"

namespace orvuilib {
namespace {

BoxItem* topBoxNear(const LevelScene& scene, const QPointF& point) {
  const QRectF near(point.x() - box::kPortReach, point.y(), 2 * box::kPortReach, 0);
  BoxItem* top = nullptr;
  scene.boxes().search(near, [&top](BoxItem& box) {
    if (!top || box.serial > top->serial) top = &box;
  });
  return top;
}

const PortSlot* slotAt(const BoxItem& box, const QPointF& point, bool& onDot) {
  for (const PortSlot& slot : box.portSlots) {
    if (slot.row < 0) continue;
    const QPointF away = anchorOf(box, slot) - point;
    onDot = std::abs(away.x()) <= box::kPortReach && std::abs(away.y()) <= box::kRow / 2;
    if (onDot || rowOf(box, slot).contains(point)) return &slot;
  }
  return nullptr;
}

/// False when the point is beside the box after all.
bool hitBox(BoxItem& box, const QPointF& point, Hit& hit) {
  hit.slot = slotAt(box, point, hit.onDot);
  const bool inside = box.bounds.contains(point);
  if (!inside && !hit.onDot) return false;
  hit.box = &box;
  const bool addsPorts = box.kind != BoxKind::Node || (!box.node->compound() && compoundOf(box));
  if (hit.slot) {
    hit.part = Hit::Part::Port;
  } else if (addsPorts && addRowOf(box).contains(point)) {
    hit.part = Hit::Part::AddPort;
  } else {
    hit.part = point.y() < box.bounds.top() + box::kTitle ? Hit::Part::Title : Hit::Part::Body;
  }
  return true;
}

Wire* wireAt(const LevelScene& scene, const QPointF& point, WireStyle style, qreal reach) {
  Wire* nearest = nullptr;
  qreal least = reach;
  const QRectF near(point - QPointF(reach, reach), QSizeF(2 * reach, 2 * reach));
  scene.wires().search(near, [&](Wire& wire) {
    const qreal distance = distanceToWire(point, wire.start, wire.end, style);
    if (distance > least) return;
    least = distance;
    nearest = &wire;
  });
  return nearest;
}

/// Sticky notes lie above backdrops, and smaller backdrops above larger ones.
NoteItem* noteAt(const LevelScene& scene, const QPointF& point) {
  NoteItem* top = nullptr;
  const auto area = [](const NoteItem& note) { return note.bounds.width() * note.bounds.height(); };
  scene.notes().search(QRectF(point, QSizeF(0, 0)), [&](NoteItem& note) {
    if (!headOf(note).contains(point) && !handleOf(note).contains(point)) return;
    const bool above = !top || (top->isBackdrop() && !note.isBackdrop()) || area(note) < area(*top);
    if (above) top = &note;
  });
  return top;
}

}  // namespace

Hit hitAt(const LevelScene& scene, const QPointF& point, WireStyle style, qreal reach) {
  Hit hit;
  BoxItem* box = topBoxNear(scene, point);
  if (box && hitBox(*box, point, hit)) return hit;
  hit = {};
  hit.wire = wireAt(scene, point, style, box::kWireReach * std::max(reach, 1.0));
  if (hit.wire) {
    hit.part = Hit::Part::Wire;
    return hit;
  }
  hit.note = noteAt(scene, point);
  if (!hit.note) return hit;
  hit.part = handleOf(*hit.note).contains(point) ? Hit::Part::NoteHandle : Hit::Part::Note;
  return hit;
}

Wire* wireThrough(const LevelScene& scene, const BoxItem& box, WireStyle style) {
  Wire* through = nullptr;
  const QPointF centre = box.bounds.center();
  const QLineF across(QPointF(box.bounds.left(), centre.y()),
                      QPointF(box.bounds.right(), centre.y()));
  const QLineF down(QPointF(centre.x(), box.bounds.top()),
                    QPointF(centre.x(), box.bounds.bottom()));
  scene.wires().search(box.bounds, [&](Wire& wire) {
    if (wire.from == &box || wire.to == &box) return;
    if (wireCrosses(wire.start, wire.end, style, across) ||
        wireCrosses(wire.start, wire.end, style, down)) {
      through = &wire;
    }
  });
  return through;
}

}  // namespace orvuilib
