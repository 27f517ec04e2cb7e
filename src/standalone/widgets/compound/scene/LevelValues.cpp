// The values that are shown beside watched ports.

#include "standalone/widgets/compound/scene/LevelScene.h"
#include "standalone/widgets/compound/scene/ShownValue.h"

namespace orvuilib {

namespace {

constexpr qreal kBeside = 10;
constexpr qreal kHeight = 17;
constexpr qreal kPadding = 6;
constexpr qreal kBelow = 4;

/// Tells records from one another: 0 is none.
std::uint64_t latestOf(const orvlib::WatchPointObject& watchPoint) {
  return watchPoint.records().empty() ? 0 : watchPoint.records().back().evaluation + 1;
}

}  // namespace

bool LevelScene::isFree(const QRectF& area, const BoxItem& but) const {
  bool free = true;
  boxGrid_.search(area, [&](const BoxItem& box) { free = free && &box == &but; });
  return free;
}

/// Beside the port. Where another box stands there, below the own one; `hung` counts those of its
/// side.
QRectF LevelScene::placeOfValue(const BoxItem& box, const PortSlot& slot, const QString& text,
                                int& hung) const {
  const QPointF anchor = anchorOf(box, slot);
  QRectF place(0, 0, theme_.textWidth(text) + 2 * kPadding, kHeight);
  place.moveCenter(anchor);
  const QRectF beside = slot.left ? place.translated(-place.width() / 2 - kBeside, 0)
                                  : place.translated(place.width() / 2 + kBeside, 0);
  if (isFree(beside, box)) return beside;
  const qreal top = box.bounds.bottom() + kBelow + hung * (kHeight + 2);
  place.moveTop(top);
  if (slot.left) {
    place.moveLeft(box.bounds.left());
  } else {
    place.moveRight(box.bounds.right());
  }
  if (!isFree(place, box)) return beside;
  ++hung;
  return place;
}

void LevelScene::readValues(BoxItem& box) {
  box.values.clear();
  if (!box.watched) return;
  int hung[2] = {0, 0};
  for (const PortSlot& slot : box.portSlots) {
    const orvlib::WatchPointObject* watchPoint = slot.row >= 0 ? watchOf(*slot.port) : nullptr;
    if (!watchPoint) continue;
    ValueLabel label{latestOf(*watchPoint), lastValueOf(*watchPoint), {}, slot.colour};
    if (!label.text.isEmpty()) label.bounds = placeOfValue(box, slot, label.text, hung[slot.left]);
    box.values.push_back(std::move(label));
  }
}

/// Whether a watched port has recorded since its value was read.
bool LevelScene::hasNewValues(const BoxItem& box) {
  std::size_t i = 0;
  for (const PortSlot& slot : box.portSlots) {
    const orvlib::WatchPointObject* watchPoint = slot.row >= 0 ? watchOf(*slot.port) : nullptr;
    if (!watchPoint) continue;
    if (i == box.values.size() || box.values[i++].latest != latestOf(*watchPoint)) return true;
  }
  return i != box.values.size();
}

Areas LevelScene::followValues(bool thingsMoved) {
  Areas touched;
  for (BoxItem* box : watched_) {
    if (!thingsMoved && !hasNewValues(*box)) continue;
    const std::vector<ValueLabel> before = std::exchange(box->values, {});
    readValues(*box);
    const std::size_t count = std::max(before.size(), box->values.size());
    for (std::size_t i = 0; i < count; ++i) {
      const ValueLabel* was = i < before.size() ? &before[i] : nullptr;
      const ValueLabel* is = i < box->values.size() ? &box->values[i] : nullptr;
      if (was && is && was->looksLike(*is)) continue;
      if (was) touched |= was->bounds;
      if (is) touched |= is->bounds;
    }
  }
  return touched;
}

}  // namespace orvuilib
