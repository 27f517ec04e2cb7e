#include "standalone/widgets/compound/edits/Frames.h"

#include <algorithm>

namespace orvuilib::edits {
namespace {

qreal areaOf(const QRectF& bounds) { return bounds.width() * bounds.height(); }

std::vector<Frame> backdropsBySize(const LevelScene& scene) {
  std::vector<Frame> frames;
  for (orvlib::AnnotationObject* annotation : scene.level()->annotations().items()) {
    NoteItem* note = scene.find(annotation);
    if (note && note->isBackdrop()) frames.push_back({note, Frame::kNone, {}, {}});
  }
  std::ranges::stable_sort(frames, {},
                           [](const Frame& frame) { return areaOf(frame.backdrop->bounds); });
  return frames;
}

void findOuter(std::vector<Frame>& frames) {
  for (std::size_t i = 0; i < frames.size(); ++i) {
    for (std::size_t j = i + 1; j < frames.size() && frames[i].outer == Frame::kNone; ++j) {
      const bool lies = frames[j].backdrop->bounds.contains(frames[i].backdrop->bounds);
      if (lies) frames[i].outer = static_cast<int>(j);
    }
  }
}

}  // namespace

std::vector<Frame> framesOf(const LevelScene& scene) {
  std::vector<Frame> frames = backdropsBySize(scene);
  findOuter(frames);
  QSet<const void*> taken;
  for (Frame& frame : frames) {
    const QRectF area = frame.backdrop->bounds;
    const auto take = [&taken, &area](const auto& item) {
      if (!area.contains(item.bounds) || taken.contains(&item)) return false;
      taken.insert(&item);
      return true;
    };
    scene.boxes().search(area, [&](BoxItem& box) {
      if (box.kind == BoxKind::Node && take(box)) frame.boxes.push_back(&box);
    });
    scene.notes().search(area, [&](NoteItem& note) {
      if (!note.isBackdrop() && take(note)) frame.notes.push_back(&note);
    });
  }
  return frames;
}

}  // namespace orvuilib::edits
