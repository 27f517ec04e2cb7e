#include <algorithm>

#include "standalone/widgets/compound/edits/Diagram.h"
#include "standalone/widgets/compound/edits/Layout.h"

namespace orvuilib::edits {
namespace {

/// How far the boundary is from what it bounds, and a note from a box that it would lie on.
constexpr qreal kBoundaryGap = 140;
constexpr qreal kNoteGap = 16;

qreal distanceBetween(const QRectF& a, const QRectF& b) {
  const qreal x = std::max({0.0, a.left() - b.right(), b.left() - a.right()});
  const qreal y = std::max({0.0, a.top() - b.bottom(), b.top() - a.bottom()});
  return x * x + y * y;
}

/// Where everything comes to be when some boxes are laid out.
class Plan {
 public:
  Plan(const LevelScene& scene, const std::vector<BoxItem*>& boxes)
      : scene_(scene), boxes_(boxes), frames_(framesOf(scene)) {}

  std::vector<Moved> make() {
    if (!placeBoxes()) return {};
    placeNotes();
    placeFrames();
    if (boxes_.size() == scene_.boxCount()) placeBoundary();
    return std::move(moved_);
  }

 private:
  bool placeBoxes() {
    const Diagram diagram(boxes_, frames_);
    if (!diagram.isLaidOut()) return false;
    QRectF before;
    QRectF after;
    for (const BoxItem* box : boxes_) {
      QRectF& place = places_[box] = box->bounds;
      before |= place;
      place.moveCenter(diagram.middleOf(*box));
      after |= place;
    }
    const QPointF offset = (before.center() - after.center()).toPoint();
    for (BoxItem* box : boxes_) {
      QRectF& place = places_.at(box);
      place.moveTopLeft(QPointF((place.topLeft() + offset).toPoint()));
      if (place != box->bounds) moved_.push_back({box, nullptr, place.topLeft()});
    }
    return true;
  }

  /// Where it comes to be, or is and stays.
  template <class Item>
  QRectF placeOf(const Item& item) const {
    const auto found = places_.find(&item);
    return found == places_.end() ? item.bounds : found->second;
  }

  const BoxItem* nearestTo(const NoteItem& note) const {
    const BoxItem* nearest = nullptr;
    qreal least = 0;
    for (orvlib::NodeObject* node : scene_.level()->nodes().items()) {
      const BoxItem* box = scene_.find(node);
      const qreal distance = distanceBetween(note.bounds, box->bounds);
      if (nearest && distance >= least) continue;
      nearest = box;
      least = distance;
    }
    return nearest;
  }

  /// A note goes where the box goes that it is nearest to.
  void placeNotes() {
    for (orvlib::AnnotationObject* annotation : scene_.level()->annotations().items()) {
      NoteItem* note = scene_.find(annotation);
      const BoxItem* box = note->isBackdrop() ? nullptr : nearestTo(*note);
      if (!box || !places_.contains(box)) continue;
      const QRectF place = placeBeside(*note, *box);
      places_[note] = place;
      if (place != note->bounds) moved_.push_back({nullptr, note, place.topLeft()});
    }
  }

  /// Where it was beside its box, or else where it lies on no box; above, below, left, right.
  QRectF placeBeside(const NoteItem& note, const BoxItem& box) const {
    const QRectF at = placeOf(box);
    const QSizeF size = note.bounds.size();
    const QRectF same = note.bounds.translated(at.topLeft() - box.bounds.topLeft());
    const QPointF corners[] = {same.topLeft(),
                               {at.left(), at.top() - size.height() - kNoteGap},
                               {at.left(), at.bottom() + kNoteGap},
                               {at.left() - size.width() - kNoteGap, at.top()},
                               {at.right() + kNoteGap, at.top()}};
    for (const QPointF& corner : corners) {
      if (isFree({corner, size})) return {corner, size};
    }
    return same;
  }

  bool isFree(const QRectF& place) const {
    bool free = true;
    scene_.forEachBox([&](const BoxItem& box) { free &= !placeOf(box).intersects(place); });
    return free;
  }

  /// A backdrop reaches around what lay on it; the inner ones come first.
  void placeFrames() {
    std::vector<QRectF> contents(frames_.size());
    for (std::size_t i = 0; i < frames_.size(); ++i) {
      const Frame& frame = frames_[i];
      for (const BoxItem* box : frame.boxes) contents[i] |= placeOf(*box);
      for (const NoteItem* note : frame.notes) contents[i] |= placeOf(*note);
      const bool touched = std::ranges::any_of(
          frame.boxes, [this](const BoxItem* box) { return places_.contains(box); });
      if (touched || touchedFrames_.contains(static_cast<int>(i))) fit(frame, contents[i]);
      if (frame.outer == Frame::kNone) continue;
      contents[static_cast<std::size_t>(frame.outer)] |= placeOf(*frame.backdrop);
    }
  }

  void fit(const Frame& frame, const QRectF& content) {
    const QRectF place = backdropAround(content);
    places_[frame.backdrop] = place;
    touchedFrames_.insert(frame.outer);
    if (place == frame.backdrop->bounds) return;
    moved_.push_back({nullptr, frame.backdrop, place.topLeft(), place.size()});
  }

  void placeBoundary() {
    QRectF all;
    for (const auto& [item, place] : places_) all |= place;
    scene_.forEachNote([&](const NoteItem& note) { all |= placeOf(note); });
    const auto put = [this, &all](BoxItem& box, qreal x) {
      const qreal y = all.center().y() - box.bounds.height() / 2;
      const QPointF corner = QPointF(QPointF(x, y).toPoint());
      if (corner != box.bounds.topLeft()) moved_.push_back({&box, nullptr, corner});
    };
    put(*scene_.inputs(), all.left() - kBoundaryGap - scene_.inputs()->bounds.width());
    put(*scene_.outputs(), all.right() + kBoundaryGap);
  }

  const LevelScene& scene_;
  const std::vector<BoxItem*>& boxes_;
  std::vector<Frame> frames_;
  std::unordered_map<const void*, QRectF> places_;
  QSet<int> touchedFrames_;
  std::vector<Moved> moved_;
};

}  // namespace

std::vector<Moved> laidOut(const LevelScene& scene, const std::vector<BoxItem*>& boxes) {
  if (boxes.empty()) return {};
  return Plan(scene, boxes).make();
}

}  // namespace orvuilib::edits
