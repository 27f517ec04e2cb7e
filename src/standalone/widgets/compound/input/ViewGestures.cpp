// Gestures that change what is seen and selected, and nothing of the graph.

#include "standalone/widgets/compound/input/Gesture.h"

namespace orvuilib {
namespace {

class Pan final : public Gesture {
 public:
  Pan(Workbench& bench, const QPointF& start) : Gesture(bench), start_(start) {}

  /// What was under the pointer stays there.
  void move(const QPointF& point, Qt::KeyboardModifiers) override {
    const Canvas& canvas = bench_.canvas;
    bench_.canvas.panBy(canvas.toWidget(point) - canvas.toWidget(start_));
  }
  void finish(const QPointF& point, Qt::KeyboardModifiers modifiers) override {
    move(point, modifiers);
  }
  void cancel() override {}

 private:
  QPointF start_;
};

class Band final : public Gesture {
 public:
  Band(Workbench& bench, const QPointF& start, Qt::KeyboardModifiers modifiers)
      : Gesture(bench), start_(start), end_(start), modifiers_(modifiers) {}

  void move(const QPointF& point, Qt::KeyboardModifiers) override {
    const QRectF before = area();
    end_ = point;
    bench_.canvas.repaintArea(before | area());
  }

  void finish(const QPointF& point, Qt::KeyboardModifiers) override {
    end_ = point;
    LevelScene& scene = bench_.scene;
    const bool toggles = modifiers_ & Qt::ControlModifier;
    if (!toggles && !(modifiers_ & Qt::ShiftModifier)) scene.clearSelection();
    std::vector<BoxItem*> boxes;
    scene.boxes().search(area(), [&boxes](BoxItem& box) { boxes.push_back(&box); });
    std::ranges::sort(boxes, {}, &BoxItem::serial);
    for (BoxItem* box : boxes) take(*box, toggles);
    std::vector<NoteItem*> notes;
    scene.notes().search(area(), [this, &notes](NoteItem& note) {
      if (area().contains(note.bounds)) notes.push_back(&note);
    });
    for (NoteItem* note : notes) take(*note, toggles);
    bench_.canvas.update();
  }

  void cancel() override { bench_.canvas.repaintArea(area()); }

  void paint(QPainter& painter, const PaintSettings&) override {
    const Palette& palette = bench_.scene.theme().palette();
    painter.setPen(QPen(palette.selected, 0));
    painter.setBrush(palette.band);
    painter.drawRect(area());
  }

 private:
  QRectF area() const { return QRectF(start_, end_).normalized(); }

  template <class Item>
  void take(Item& item, bool toggles) {
    if (toggles && item.selected) {
      bench_.scene.deselect(item);
    } else {
      bench_.scene.select(item);
    }
  }

  QPointF start_;
  QPointF end_;
  Qt::KeyboardModifiers modifiers_;
};

}  // namespace

GesturePtr makePan(Workbench& bench, const QPointF& start) {
  return std::make_unique<Pan>(bench, start);
}

GesturePtr makeBand(Workbench& bench, const QPointF& start, Qt::KeyboardModifiers modifiers) {
  return std::make_unique<Band>(bench, start, modifiers);
}

}  // namespace orvuilib
