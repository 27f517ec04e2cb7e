// Gestures that move things: boxes and notes, the corner of a note, a port among its like.

#include <QHash>
#include <QSet>

#include "standalone/widgets/compound/edits/PortEdits.h"
#include "standalone/widgets/compound/edits/WireEdits.h"
#include "standalone/widgets/compound/input/Gesture.h"
#include "standalone/widgets/compound/paint/NotePainter.h"
#include "standalone/widgets/compound/scene/Placement.h"

namespace orvuilib {

using orvlib::NodeChange;

namespace {

/// With a size that a note can have.
QRectF sized(const QRectF& bounds, const QPointF& size) {
  return {bounds.topLeft(), QSizeF(size.x(), size.y()).expandedTo(kSmallestNote)};
}

/// Whether the graph still says that the note lies there, or says nothing.
bool stays(const LevelScene& scene, const NoteItem& note, const QRectF& bounds) {
  const orvlib::AnnotationObject& annotation = *note.annotation;
  const auto& metadata = annotation.metadata();
  const auto at = placement::pointIn(metadata, placement::kPosition);
  const auto size = placement::pointIn(metadata, placement::kSize);
  return annotation.parent() == scene.level() &&
         at.value_or(bounds.topLeft()) == bounds.topLeft() &&
         (!size || sized(bounds, *size).size() == bounds.size());
}

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
    offset_ = offsetTo(point);
    putAll(offset_);
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
    putAll({});
    bench_.canvas.setHovered(nullptr, nullptr);
  }

  bool outlives(std::span<const NodeChange> changes) const override {
    constexpr unsigned char kMoves = orvlib::kPlaceChange | orvlib::kMetadataChange;
    return std::ranges::all_of(changes, [this](const NodeChange& change) {
      if (change.node.get() == bench_.scene.levelNode()) return levelStays();
      const auto found = held_.constFind(change.node.get());
      return found == held_.constEnd() || !(change.bits & kMoves) || isThere(starts_[*found]);
    });
  }

  /// What was read anew is where the graph has it.
  void graphFollowed() override {
    putAll(offset_);
    findWire();
  }

 private:
  struct Start {
    BoxItem* box = nullptr;
    NoteItem* note = nullptr;
    QPointF position;
  };

  bool isThere(const Start& start) const {
    const LevelScene& scene = bench_.scene;
    if (start.note) return stays(scene, *start.note, {start.position, start.note->bounds.size()});
    const bool boundary = start.box->kind != BoxKind::Node;
    const auto& metadata = boundary ? scene.level()->metadata() : start.box->node->metadata();
    const auto stored = placement::pointIn(metadata, positionKeyOf(*start.box));
    return (boundary || start.box->node->parent() == scene.level()) &&
           stored.value_or(start.position) == start.position;
  }

  /// Of the boundary, and of notes, which are few.
  bool levelStays() const {
    return std::ranges::all_of(starts_, [this](const Start& start) {
      return (start.box && start.box->kind == BoxKind::Node) || isThere(start);
    });
  }

  void putAll(const QPointF& offset) {
    QRectF touched;
    for (const Start& each : starts_) touched |= put(each, each.position + offset);
    bench_.canvas.repaintArea(touched);
  }

  void add(BoxItem& box) {
    if (taken_.contains(&box)) return;
    taken_.insert(&box);
    held_.insert(box.node.get(), starts_.size());
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
  QPointF offset_;
  std::vector<Start> starts_;
  QSet<const void*> taken_;
  QHash<const orvlib::NodeObject*, std::size_t> held_;  ///< which start is that node's
};

class Resize final : public Gesture {
 public:
  Resize(Workbench& bench, NoteItem& note)
      : Gesture(bench), note_(note), before_(note.bounds), at_(before_.bottomRight()) {}

  void move(const QPointF& point, Qt::KeyboardModifiers) override {
    at_ = point;
    graphFollowed();
  }
  void finish(const QPointF& point, Qt::KeyboardModifiers) override {
    cancel();
    if (boundsTo(point) != before_ && bench_.canEdit()) {
      edits::setBounds(bench_.session, note_, boundsTo(point));
    }
  }
  void cancel() override { bench_.canvas.repaintArea(bench_.scene.move(note_, before_)); }

  bool outlives(std::span<const NodeChange>) const override {
    return stays(bench_.scene, note_, before_);
  }
  void graphFollowed() override {
    bench_.canvas.repaintArea(bench_.scene.move(note_, boundsTo(at_)));
  }

 private:
  QRectF boundsTo(const QPointF& point) const {
    return sized(before_, bench_.preferences.snapped(point) - before_.topLeft());
  }

  NoteItem& note_;
  QRectF before_;
  QPointF at_;
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

  /// The rows that it is moved among are those that were seen when it began.
  bool outlives(std::span<const NodeChange> changes) const override {
    return std::ranges::none_of(changes, [this](const NodeChange& change) {
      return change.node.get() == bench_.scene.levelNode() && change.bits & orvlib::kPortChange;
    });
  }

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
