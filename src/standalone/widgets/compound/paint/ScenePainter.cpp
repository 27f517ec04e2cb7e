#include "standalone/widgets/compound/paint/ScenePainter.h"

#include <algorithm>

#include "standalone/widgets/compound/paint/NotePainter.h"

namespace orvuilib {
namespace {

/// How far things reach over their bounds: ports over the edges of boxes, for one.
constexpr qreal kReach = 12;

/// Larger ones below.
bool isBelow(const NoteItem* note, const NoteItem* other) {
  const auto size = [](const NoteItem& each) { return each.bounds.width() * each.bounds.height(); };
  return size(*note) > size(*other);
}

}  // namespace

void ScenePainter::paint(QImage& picture, const QRect& area) {
  const PaintSettings& settings = look_.settings;
  const QRectF wanted((area.topLeft() - settings.origin) / settings.zoom,
                      QSizeF(area.size()) / settings.zoom);
  part_ = wanted.adjusted(-kReach, -kReach, kReach, kReach);
  boxes_.clear();
  wires_.clear();
  notes_.clear();
  scene_.boxes().search(part_, [this](BoxItem& box) { boxes_.push_back(&box); });
  scene_.wires().search(part_, [this](Wire& wire) { wires_.push_back(&wire); });
  scene_.notes().search(part_, [this](NoteItem& note) { notes_.push_back(&note); });
  std::ranges::sort(boxes_, {}, &BoxItem::serial);
  std::ranges::sort(notes_, isBelow);
  boxCount_ += boxes_.size();
  wireCount_ += wires_.size();
  {
    QPainter painter(&picture);
    begin(painter, area);
    paintBackground(painter, area);
    paintNotes(painter, true);
  }
  paintWires(picture, area);
  QPainter painter(&picture);
  begin(painter, area);
  paintBoxes(painter);
  paintNotes(painter, false);
}

void ScenePainter::begin(QPainter& painter, const QRect& area) const {
  painter.setClipRect(area);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setRenderHint(QPainter::TextAntialiasing);
  painter.translate(look_.settings.origin);
  painter.scale(look_.settings.zoom, look_.settings.zoom);
}

void ScenePainter::paintBackground(QPainter& painter, const QRect& area) const {
  const Palette& palette = scene_.theme().palette();
  painter.save();
  painter.resetTransform();
  painter.fillRect(area, palette.canvas);
  paintGrid(painter, area, look_.gridStep, look_.settings, palette);
  painter.restore();
}

void ScenePainter::paintNotes(QPainter& painter, bool backdrops) const {
  for (const NoteItem* note : notes_) {
    if (note->isBackdrop() == backdrops) {
      paintNote(painter, *note, scene_.theme(), look_.settings);
    }
  }
}

/// Far away boxes are patches, which are quicker drawn in the same way as wires.
void ScenePainter::paintWires(QImage& picture, const QRect& area) const {
  WireRaster raster(picture, area);
  WirePainter(scene_.theme(), look_.settings).paint(raster, wires_, look_.hoveredWire);
  if (look_.settings.detail != Detail::Far) return;
  BoxPainter(scene_.theme(), look_.settings, look_.accepts).paintFar(raster, boxes_);
}

/// A value lies below the boxes, so that it never hides a text of theirs.
void ScenePainter::paintBoxes(QPainter& painter) const {
  const PaintSettings& settings = look_.settings;
  if (settings.detail == Detail::Far) return;
  const BoxPainter painting(scene_.theme(), settings, look_.accepts);
  for (const BoxItem* box : scene_.watchedBoxes()) {
    for (const ValueLabel& value : box->values) {
      const bool shows = settings.showValues && !value.text.isEmpty();
      if (shows && value.bounds.intersects(part_)) painting.paintValue(painter, value);
    }
  }
  for (BoxItem* box : boxes_) painting.paint(painter, *box, box == look_.hoveredBox);
}

}  // namespace orvuilib
