#include "standalone/widgets/compound/input/PortCursor.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "standalone/widgets/compound/paint/WirePainter.h"

namespace orvuilib {

using orvlib::PortObject;
using orvlib::PortRef;

namespace {

constexpr qreal kRing = box::kPortRadius + 4;

/// Sideways counts less: wires go that way.
qreal farness(const QPointF& way) { return std::abs(way.x()) + 2 * std::abs(way.y()); }

bool hasPorts(const BoxItem& box) {
  return std::ranges::any_of(box.portSlots, [](const PortSlot& slot) { return slot.row >= 0; });
}

/// The slot of that side whose row is nearest; null when the side has none.
const PortSlot* nearestSlot(const BoxItem& box, bool left, qreal y) {
  const PortSlot* found = nullptr;
  qreal least = std::numeric_limits<qreal>::max();
  for (const PortSlot& slot : box.portSlots) {
    const qreal away = std::abs(anchorOf(box, slot).y() - y);
    if (slot.row < 0 || slot.left != left || away >= least) continue;
    least = away;
    found = &slot;
  }
  return found;
}

}  // namespace

bool PortCursor::isShown(const PortObject& port) const {
  const auto shown = scene_.find(port);
  return shown.slot && shown.slot->port.get() == &port && shown.slot->row >= 0;
}

void PortCursor::set(PortObject& port) {
  if (!isShown(port)) return;
  port_ = PortRef(&port);
  far_ = {};
  select();
}

void PortCursor::setWire(PortObject& farEnd) {
  far_ = PortRef(&farEnd);
  select();
}

void PortCursor::clear() {
  port_ = {};
  far_ = {};
  begun_ = {};
}

void PortCursor::check() {
  if (begun_ && !isShown(*begun_)) begun_ = {};
  const bool there = port_ && isShown(*port_) && round_ == scene_.selectionRound();
  if (there && (!far_ || wire())) return;
  port_ = {};
  far_ = {};
}

void PortCursor::select() {
  const auto shown = scene_.find(*port_);
  scene_.clearSelection();
  if (!far_) scene_.select(*shown.box);
  round_ = scene_.selectionRound();
}

Wire* PortCursor::wire() const {
  const auto shown = far_ ? scene_.find(*port_) : LevelScene::Shown();
  if (!shown.box) return nullptr;
  for (const auto* list : {&shown.box->leaving, &shown.box->arriving}) {
    for (Wire* wire : *list) {
      const bool leads = wire->source.get() == port_.get() && wire->target.get() == far_.get();
      const bool comes = wire->target.get() == port_.get() && wire->source.get() == far_.get();
      if (leads || comes) return wire;
    }
  }
  return nullptr;
}

std::optional<QPointF> PortCursor::place() const {
  if (const Wire* current = wire()) return (current->start + current->end) / 2;
  const auto shown = port() ? scene_.find(*port_) : LevelScene::Shown();
  if (!shown.slot) return {};
  return anchorOf(*shown.box, *shown.slot);
}

bool PortCursor::walk(Way way, const QPointF& from) {
  check();
  if (!port_) return enter(way, from);
  return far_ ? walkWires(way) : walkPorts(way);
}

bool PortCursor::enter(Way way, const QPointF& from) {
  const auto& selected = scene_.selectedBoxes();
  const BoxItem* box = selected.empty() ? nearest(from) : selected.front();
  if (!box) return false;
  const bool left = way != Way::Right;
  return goToSide(*box, left, box->bounds.top()) || goToSide(*box, !left, box->bounds.top());
}

bool PortCursor::goToSide(const BoxItem& box, bool left, qreal y) {
  const PortSlot* slot = nearestSlot(box, left, y);
  if (slot) set(*slot->port);
  return slot;
}

/// Back to the port, on to the far end, or to another wire of the port.
bool PortCursor::walkWires(Way way) {
  if (way == Way::Up || way == Way::Down) return stepToWire(way == Way::Up ? -1 : 1);
  const bool onLeft = scene_.find(*port_).slot->left;
  PortObject& next = onLeft == (way == Way::Left) ? *far_ : *port_;
  set(next);
  return true;
}

bool PortCursor::stepToWire(int by) {
  const auto ends = farEnds();
  const auto at = std::ranges::find(ends, far_.get()) - ends.begin() + by;
  if (at < 0 || at >= static_cast<std::ptrdiff_t>(ends.size())) return false;
  setWire(*ends[static_cast<std::size_t>(at)]);
  return true;
}

bool PortCursor::walkPorts(Way way) {
  const auto at = scene_.find(*port_);
  if (way == Way::Left || way == Way::Right) return stepSideways(at, way);
  const int by = way == Way::Up ? -1 : 1;
  for (const PortSlot& slot : at.box->portSlots) {
    if (slot.left != at.slot->left || slot.row != at.slot->row + by) continue;
    set(*slot.port);
    return true;
  }
  return false;
}

/// Out of the node along a wire or to the next node; into it to its other side.
bool PortCursor::stepSideways(const LevelScene::Shown& at, Way way) {
  const BoxItem* box = at.box;
  const qreal y = anchorOf(*box, *at.slot).y();
  const bool out = at.slot->left == (way == Way::Left);
  if (out) {
    const auto ends = farEnds();
    if (!ends.empty()) {
      setWire(*ends.front());
      return true;
    }
  } else if (goToSide(*box, !at.slot->left, y)) {
    return true;
  }
  const BoxItem* next = nearest(*box, way);
  if (!next) return false;
  return goToSide(*next, way == Way::Right, y) || goToSide(*next, way == Way::Left, y);
}

/// From the upper one to the lower one.
std::vector<PortObject*> PortCursor::farEnds() const {
  std::vector<PortObject*> ends;
  for (PortObject* peer : port_->peers().items()) {
    if (isShown(*peer)) ends.push_back(peer);
  }
  std::ranges::sort(ends, {}, [this](const PortObject* end) {
    const auto shown = scene_.find(*end);
    const QPointF at = anchorOf(*shown.box, *shown.slot);
    return std::pair(at.y(), at.x());
  });
  return ends;
}

const BoxItem* PortCursor::nearest(const BoxItem& from, Way way) const {
  const BoxItem* found = nullptr;
  qreal least = std::numeric_limits<qreal>::max();
  const auto look = [&](const BoxItem& box) {
    const QPointF away = box.bounds.center() - from.bounds.center();
    const bool ahead = way == Way::Left ? away.x() < 0 : away.x() > 0;
    if (&box == &from || !ahead || !hasPorts(box) || farness(away) >= least) return;
    least = farness(away);
    found = &box;
  };
  scene_.forEachBox(look);
  look(*scene_.inputs());
  look(*scene_.outputs());
  return found;
}

const BoxItem* PortCursor::nearest(const QPointF& point) const {
  const BoxItem* found = nullptr;
  qreal least = std::numeric_limits<qreal>::max();
  const auto look = [&](const BoxItem& box) {
    const qreal away = farness(box.bounds.center() - point);
    if (!hasPorts(box) || away >= least) return;
    least = away;
    found = &box;
  };
  scene_.forEachBox(look);
  look(*scene_.inputs());
  look(*scene_.outputs());
  return found;
}

void PortCursor::paint(QPainter& painter, const PaintSettings& settings) const {
  const QColor colour = scene_.theme().palette().selected;
  const auto at = place();
  const auto begun = begun_ ? scene_.find(*begun_) : LevelScene::Shown();
  painter.setBrush(Qt::NoBrush);
  if (begun.slot) {
    const QPointF start = anchorOf(*begun.box, *begun.slot);
    painter.setPen(QPen(colour, 1.5, Qt::DotLine));
    painter.drawEllipse(start, kRing, kRing);
    const WirePainter wires(scene_.theme(), settings);
    const QColor typed = scene_.theme().typeColour(begun_->valueType().name);
    if (port() && port() != begun_.get()) {
      const bool left = begun.slot->left;
      wires.paintLoose(painter, left ? *at : start, left ? start : *at, typed);
    }
  }
  if (const Wire* current = wire()) {
    painter.setPen(QPen(colour, 2.5));
    painter.drawPath(wirePath(current->start, current->end, settings.wireStyle));
  } else if (at) {
    painter.setPen(QPen(colour, 2));
    painter.drawEllipse(*at, kRing, kRing);
  }
}

}  // namespace orvuilib
