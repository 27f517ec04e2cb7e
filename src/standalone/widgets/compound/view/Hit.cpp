#include "standalone/widgets/compound/view/Hit.h"

#include <QLineF>
#include <cmath>

#include "standalone/widgets/compound/paint/NotePainter.h"

namespace orvuilib {
namespace {

/// Of a port whose label is not painted, the dot alone.
const PortSlot* slotAt(const BoxItem& box, const QPointF& point, Detail detail, bool& onDot) {
  onDot = false;
  if (detail == Detail::Far) return nullptr;
  for (const PortSlot& slot : box.portSlots) {
    if (slot.row < 0) continue;
    const QPointF away = anchorOf(box, slot) - point;
    onDot = std::abs(away.x()) <= box::kPortReach && std::abs(away.y()) <= box::kRow / 2;
    if (onDot) return &slot;
    if (detail == Detail::Close && rowOf(box, slot).contains(point)) return &slot;
  }
  return nullptr;
}

bool isAddRow(const BoxItem& box, const QPointF& point, const PaintSettings& settings) {
  if (settings.detail != Detail::Close || !settings.editable) return false;
  const bool addsPorts = box.kind != BoxKind::Node || (!box.node->compound() && compoundOf(box));
  return addsPorts && addRowOf(box).contains(point);
}

/// False when the point is beside the box after all.
bool hitBox(BoxItem& box, const QPointF& point, const PaintSettings& settings, Hit& hit) {
  hit.slot = slotAt(box, point, settings.detail, hit.onDot);
  const bool inside = box.bounds.contains(point);
  if (!inside && !hit.onDot) return false;
  hit.box = &box;
  const bool inTitle = point.y() < box.bounds.top() + box::kTitle;
  if (hit.slot) {
    hit.part = Hit::Part::Port;
  } else if (isAddRow(box, point, settings)) {
    hit.part = Hit::Part::AddPort;
  } else {
    hit.part = inTitle && settings.detail != Detail::Far ? Hit::Part::Title : Hit::Part::Body;
  }
  return true;
}

/// Dots reach over the edges of their boxes.
bool hitTopBox(const LevelScene& scene, const QPointF& point, const PaintSettings& settings,
               Hit& hit) {
  const QRectF near(point.x() - box::kPortReach, point.y(), 2 * box::kPortReach, 0);
  scene.boxes().search(near, [&](BoxItem& box) {
    Hit here;
    if (hit.box && box.serial < hit.box->serial) return;
    if (hitBox(box, point, settings, here)) hit = here;
  });
  return hit.box;
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

bool isOnHandle(const NoteItem& note, const QPointF& point, Detail detail) {
  return detail != Detail::Far && handleOf(note).contains(point);
}

/// Smaller ones lie above larger ones. A backdrop is taken by its head and its handle.
NoteItem* noteAt(const LevelScene& scene, const QPointF& point, bool backdrops, Detail detail) {
  NoteItem* top = nullptr;
  const auto area = [](const NoteItem& note) { return note.bounds.width() * note.bounds.height(); };
  scene.notes().search(QRectF(point, QSizeF(0, 0)), [&](NoteItem& note) {
    if (note.isBackdrop() != backdrops) return;
    if (!headOf(note).contains(point) && !isOnHandle(note, point, detail)) return;
    if (!top || area(note) < area(*top)) top = &note;
  });
  return top;
}

bool hitNote(const LevelScene& scene, const QPointF& point, bool backdrops, Detail detail,
             Hit& hit) {
  hit.note = noteAt(scene, point, backdrops, detail);
  if (!hit.note) return false;
  hit.part = isOnHandle(*hit.note, point, detail) ? Hit::Part::NoteHandle : Hit::Part::Note;
  return true;
}

}  // namespace

/// From above: sticky notes, boxes, wires, backdrops.
Hit hitAt(const LevelScene& scene, const QPointF& point, const PaintSettings& settings) {
  Hit hit;
  if (hitNote(scene, point, false, settings.detail, hit)) return hit;
  if (hitTopBox(scene, point, settings, hit)) return hit;
  const qreal reach = box::kWireReach * std::max(1 / settings.zoom, 1.0);
  hit.wire = wireAt(scene, point, settings.wireStyle, reach);
  if (hit.wire) {
    hit.part = Hit::Part::Wire;
  } else {
    hitNote(scene, point, true, settings.detail, hit);
  }
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
