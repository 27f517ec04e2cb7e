// Gestures that move things: boxes and notes, the corner of a note, a port among its like.

#include <QSet>

#include "standalone/widgets/compound/edits/PortEdits.h"
#include "standalone/widgets/compound/edits/WireEdits.h"
#include "standalone/widgets/compound/input/Gesture.h"
#include "standalone/widgets/compound/paint/NotePainter.h"

namespace orvuilib {
namespace {

class Move final : public Gesture {
 public:
  Move(Workbench& bench, const QPointF& start, BoxItem* boundary) : Gesture(bench), start_(start) {
    if (boundary) {
      add(*boundary);
      return;
    }
    for (BoxItem* box : bench.scene.selectedBoxes()) add(*box);
    for (NoteItem* note : bench.scene.selectedNotes()) add(*note);
    for (NoteItem* note : bench.scene.selectedNotes()) {
      if (note->isBackdrop()) addContent(note->bounds);
    }
  }

  void move(const QPointF& point, Qt::KeyboardModifiers) override {
    QRectF touched;
    const QPointF offset = offsetTo(point);
    for (const Start& each : starts_) touched |= put(each, each.position + offset);
    bench_.canvas.repaintArea(touched);
    findWire();
  }

  /// On the canvas all goes back first: where things are is for the graph to say.
  void finish(const QPointF& point, Qt::KeyboardModifiers) override {
    const Wire* insertInto = findWire();
    const QPointF offset = offsetTo(point);
    cancel();
    if (offset.isNull() || !bench_.canEdit()) return;
    std::vector<edits::Moved> moved;
    for (const Start& each : starts_) {
      moved.push_back({each.box, each.note, each.position + offset});
    }
    edits::move(bench_.session, moved, insertInto);
  }

  void cancel() override {
    QRectF touched;
    for (const Start& each : starts_) touched |= put(each, each.position);
    bench_.canvas.setHovered(nullptr, nullptr);
    bench_.canvas.repaintArea(touched);
  }

 private:
  struct Start {
    BoxItem* box = nullptr;
    NoteItem* note = nullptr;
    QPointF position;
  };

  void add(BoxItem& box) {
    if (taken_.contains(&box)) return;
    taken_.insert(&box);
    starts_.push_back({&box, nullptr, box.bounds.topLeft()});
    bench_.scene.raise(box);
  }
  void add(NoteItem& note) {
    if (taken_.contains(&note)) return;
    taken_.insert(&note);
    starts_.push_back({nullptr, &note, note.bounds.topLeft()});
  }

  void addContent(const QRectF& area) {
    bench_.scene.boxes().search(area, [this, &area](BoxItem& box) {
      if (box.kind == BoxKind::Node && area.contains(box.bounds)) add(box);
    });
    bench_.scene.notes().search(area, [this, &area](NoteItem& note) {
      if (area.contains(note.bounds)) add(note);
    });
  }

  /// The first thing keeps to the grid, and the others keep to it.
  QPointF offsetTo(const QPointF& point) const {
    if (starts_.empty()) return {};
    const QPointF first = starts_.front().position;
    return bench_.preferences.snapped(first + point - start_) - first;
  }

  QRectF put(const Start& each, const QPointF& position) {
    if (each.box) return bench_.scene.move(*each.box, position);
    return bench_.scene.move(*each.note, QRectF(position, each.note->bounds.size()));
  }

  /// The wire that a node let go here is put into, lit; null when there is none.
  const Wire* findWire() {
    const bool single = starts_.size() == 1 && starts_[0].box &&
                        starts_[0].box->kind == BoxKind::Node && bench_.session.refusal().isEmpty();
    if (!single) return nullptr;
    const Wire* wire = wireThrough(bench_.scene, *starts_[0].box, bench_.preferences.wireStyle);
    if (wire && !edits::canInsert(*wire, *starts_[0].box->node)) wire = nullptr;
    bench_.canvas.setHovered(nullptr, wire);
    return wire;
  }

  QPointF start_;
  std::vector<Start> starts_;
  QSet<const void*> taken_;
};

class Resize final : public Gesture {
 public:
  Resize(Workbench& bench, NoteItem& note) : Gesture(bench), note_(note), before_(note.bounds) {}

  void move(const QPointF& point, Qt::KeyboardModifiers) override {
    bench_.canvas.repaintArea(bench_.scene.move(note_, boundsTo(point)));
  }
  void finish(const QPointF& point, Qt::KeyboardModifiers) override {
    cancel();
    if (boundsTo(point) != before_ && bench_.canEdit()) {
      edits::setBounds(bench_.session, note_, boundsTo(point));
    }
  }
  void cancel() override { bench_.canvas.repaintArea(bench_.scene.move(note_, before_)); }

 private:
  QRectF boundsTo(const QPointF& point) const {
    const QPointF corner = bench_.preferences.snapped(point);
    return {before_.topLeft(), QSizeF(std::max(corner.x() - before_.left(), 60.0),
                                      std::max(corner.y() - before_.top(), 40.0))};
  }

  NoteItem& note_;
  QRectF before_;
};

class PortMove final : public Gesture {
 public:
  PortMove(Workbench& bench, orvlib::PortObject& port, const QPointF& start)
      : Gesture(bench), port_(&port), at_(start) {}

  void move(const QPointF& point, Qt::KeyboardModifiers) override {
    at_ = point;
    bench_.canvas.update();
  }
  void finish(const QPointF& point, Qt::KeyboardModifiers) override {
    const BoxItem* box = bench_.scene.find(*port_).box;
    const int places = box ? edits::portDropAt(*box, *port_, point.y()).places : 0;
    if (places != 0 && bench_.canEdit()) edits::movePort(bench_.session, *port_, places);
    bench_.canvas.update();
  }
  void cancel() override { bench_.canvas.update(); }

  void paint(QPainter& painter, const PaintSettings&) override {
    painter.setFont(bench_.scene.theme().font());
    painter.setPen(bench_.scene.theme().palette().selected);
    painter.drawText(at_ + QPointF(10, 4), QString::fromStdString(port_->name()));
    const BoxItem* box = bench_.scene.find(*port_).box;
    const edits::PortDrop drop = box ? edits::portDropAt(*box, *port_, at_.y()) : edits::PortDrop();
    if (drop.places == 0) return;
    painter.setPen(QPen(bench_.scene.theme().palette().selected, 2));
    painter.drawLine(QLineF(box->bounds.left(), drop.line, box->bounds.right(), drop.line));
  }

 private:
  orvlib::PortRef port_;
  QPointF at_;
};

}  // namespace

GesturePtr makeMove(Workbench& bench, const QPointF& start, BoxItem* boundary) {
  return std::make_unique<Move>(bench, start, boundary);
}

GesturePtr makeResize(Workbench& bench, NoteItem& note) {
  return std::make_unique<Resize>(bench, note);
}

GesturePtr makePortMove(Workbench& bench, orvlib::PortObject& port, const QPointF& start) {
  return std::make_unique<PortMove>(bench, port, start);
}

}  // namespace orvuilib
