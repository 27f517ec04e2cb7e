// Gestures that change what is seen and selected, and nothing of the graph.

#include <QSet>

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
  bool edits() const override { return false; }
  bool scrollsAtEdge() const override { return false; }

 private:
  QPointF start_;
};

/// Nodes and notes that keep each other company over changes of the graph.
struct Kept {
  std::vector<orvlib::NodeRef> nodes;
  std::vector<orvlib::AnnotationRef> notes;
  QSet<const void*> all;

  void add(const BoxItem& box) {
    nodes.push_back(box.node);
    all.insert(box.node.get());
  }
  void add(const NoteItem& note) {
    notes.push_back(note.annotation);
    all.insert(note.annotation.get());
  }

  /// Selects what is still there, without what `others` holds.
  void select(LevelScene& scene, const QSet<const void*>& others) const {
    for (const auto& node : nodes) {
      BoxItem* box = others.contains(node.get()) ? nullptr : scene.find(node.get());
      if (box) scene.select(*box);
    }
    for (const auto& annotation : notes) {
      NoteItem* note = others.contains(annotation.get()) ? nullptr : scene.find(annotation.get());
      if (note) scene.select(*note);
    }
  }
};

class Band final : public Gesture {
 public:
  Band(Workbench& bench, const QPointF& start, Qt::KeyboardModifiers modifiers)
      : Gesture(bench),
        start_(start),
        end_(start),
        toggles_(modifiers & Qt::ControlModifier),
        adds_(modifiers & (Qt::ControlModifier | Qt::ShiftModifier)) {
    for (const BoxItem* box : bench.scene.selectedBoxes()) before_.add(*box);
    for (const NoteItem* note : bench.scene.selectedNotes()) before_.add(*note);
  }

  void move(const QPointF& point, Qt::KeyboardModifiers) override {
    const QRectF former = area();
    end_ = point;
    bench_.canvas.repaintArea(former | area());
    select();
  }

  void finish(const QPointF& point, Qt::KeyboardModifiers modifiers) override {
    move(point, modifiers);
    bench_.canvas.repaintArea(area());
  }

  void cancel() override {
    bench_.scene.clearSelection();
    before_.select(bench_.scene, {});
    bench_.canvas.update();
  }

  bool edits() const override { return false; }

  void graphFollowed() override {
    shown_.clear();
    select();
  }

  void paint(QPainter& painter, const PaintSettings&) override {
    const Palette& palette = bench_.scene.theme().palette();
    painter.setPen(QPen(palette.selected, 0));
    painter.setBrush(palette.band);
    painter.drawRect(area());
  }

 private:
  QRectF area() const { return QRectF(start_, end_).normalized(); }

  Kept inBand() const {
    std::vector<BoxItem*> boxes;
    bench_.scene.boxes().search(area(), [&boxes](BoxItem& box) {
      if (box.kind == BoxKind::Node) boxes.push_back(&box);
    });
    std::ranges::sort(boxes, {}, &BoxItem::serial);
    Kept held;
    for (const BoxItem* box : boxes) held.add(*box);
    bench_.scene.notes().search(area(), [this, &held](NoteItem& note) {
      if (!note.isBackdrop() || area().contains(note.bounds)) held.add(note);
    });
    return held;
  }

  /// Selects what would be selected if the button were let go now.
  void select() {
    const Kept held = inBand();
    if (selects_ && held.all == shown_) return;
    selects_ = true;
    shown_ = held.all;
    bench_.scene.clearSelection();
    if (adds_) before_.select(bench_.scene, toggles_ ? held.all : QSet<const void*>());
    held.select(bench_.scene, toggles_ ? before_.all : QSet<const void*>());
    bench_.canvas.update();
  }

  QPointF start_;
  QPointF end_;
  bool toggles_;
  bool adds_;
  Kept before_;
  QSet<const void*> shown_;
  bool selects_ = false;  ///< what is selected comes from the band
};

}  // namespace

GesturePtr makePan(Workbench& bench, const QPointF& start) {
  return std::make_unique<Pan>(bench, start);
}

GesturePtr makeBand(Workbench& bench, const QPointF& start, Qt::KeyboardModifiers modifiers) {
  return std::make_unique<Band>(bench, start, modifiers);
}

}  // namespace orvuilib
