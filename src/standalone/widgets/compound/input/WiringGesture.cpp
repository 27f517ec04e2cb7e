#include <QHash>

#include "standalone/widgets/compound/edits/PortEdits.h"
#include "standalone/widgets/compound/edits/WireEdits.h"
#include "standalone/widgets/compound/input/Gesture.h"

namespace orvuilib {
namespace {

using edits::Joint;
using orvlib::PortObject;
using orvlib::PortRef;

class Wiring final : public Gesture {
 public:
  Wiring(Workbench& bench, PortObject& port) : Gesture(bench), fixed_(&port) {
    // The end of a wire at an input is taken off; an output and a fan-in port begin a new one.
    if (port.isInput() && port.source() && !port.isFanInPort()) {
      taken_ = Joint{PortRef(port.source()), PortRef(&port)};
      fixed_ = taken_->source;
    }
    graphFollowed();
    end_ = start_;
    bench.canvas.setAccepts([this](const PortObject& other) { return accepts(other); });
  }

  void move(const QPointF& point, Qt::KeyboardModifiers) override {
    const QRectF before = area();
    const Hit hit = bench_.canvas.hitAt(point);
    const bool snaps = hit.slot && accepts(*hit.port());
    end_ = snaps ? anchorOf(*hit.box, *hit.slot) : point;
    bench_.canvas.repaintArea(before | area());
  }

  void finish(const QPointF& point, Qt::KeyboardModifiers) override {
    bench_.canvas.setAccepts(nullptr);
    if (!bench_.canEdit()) return;
    const Hit hit = bench_.canvas.hitAt(point);
    if (hit.part == Hit::Part::AddPort) return dropOnBoundary(*hit.box);
    PortObject* target = targetAt(hit);
    if (target && (!taken_ || target != taken_->target.get())) return dropOnPort(*target);
    if (target || hit.isBox()) return;
    dropOnNothing(point);
  }

  void cancel() override { bench_.canvas.setAccepts(nullptr); }

  bool outlives(std::span<const orvlib::NodeChange>) const override {
    if (!isThere(*fixed_)) return false;
    return !taken_ || (isThere(*taken_->target) && taken_->target->source() == fixed_.get());
  }

  /// Other ports may fit now, and the fixed end lie elsewhere.
  void graphFollowed() override {
    accepted_.clear();
    fits_.emplace(*fixed_);
    const auto shown = bench_.scene.find(*fixed_);
    if (shown.box) start_ = anchorOf(*shown.box, *shown.slot);
    bench_.canvas.update();
  }

  void paint(QPainter& painter, const PaintSettings& settings) override {
    const Theme& theme = bench_.scene.theme();
    const WirePainter wires(theme, settings);
    const QColor colour = theme.typeColour(fixed_->valueType().name);
    if (fixed_->isInput()) {
      wires.paintLoose(painter, end_, start_, colour);
    } else {
      wires.paintLoose(painter, start_, end_, colour);
    }
  }

 private:
  bool isThere(const PortObject& port) const {
    const orvlib::NodeObject* node = port.node();
    const LevelScene& scene = bench_.scene;
    return node && (node == scene.levelNode() || node->parent() == scene.level());
  }

  /// Asked for each port at each painting, hence remembered.
  bool accepts(const PortObject& other) {
    const auto known = accepted_.constFind(&other);
    if (known != accepted_.constEnd()) return *known;
    const bool accepted =
        (taken_ && taken_->target.get() == &other) || (*fits_)(const_cast<PortObject&>(other));
    accepted_.insert(&other, accepted);
    return accepted;
  }

  /// The port that was hit, or for a node's body its first that fits; null when there is none.
  PortObject* targetAt(const Hit& hit) {
    if (hit.slot) return accepts(*hit.port()) ? hit.port() : nullptr;
    const bool body = hit.isBox() && hit.box->kind == BoxKind::Node;
    return body ? edits::firstFitting(*fixed_, *hit.box->node) : nullptr;
  }

  void dropOnPort(PortObject& target) {
    const auto joint = edits::jointOf(*fixed_, target);
    if (!joint) return;
    if (taken_) {
      edits::moveWire(bench_.session, *taken_, *joint);
    } else {
      edits::makeWire(bench_.session, *joint);
    }
  }

  /// An output of a node becomes one of the level, and an input one of its inputs.
  void dropOnBoundary(const BoxItem& boundary) {
    const bool output =
        boundary.kind == BoxKind::Outputs || boundary.node->nodeKind() == orvlib::NodeKind::Output;
    if (output == !fixed_->isInput()) edits::createLevelPort(bench_.session, output, fixed_.get());
  }

  void dropOnNothing(const QPointF& point) {
    if (taken_) return edits::removeWires(bench_.session, {*taken_});
    bench_.openNodeMenu({point, fixed_.get()});
  }

  QRectF area() const { return wireBounds(start_, end_) | wireBounds(end_, start_); }

  PortRef fixed_;
  std::optional<Joint> taken_;
  std::optional<edits::JoinTest> fits_;
  QPointF start_;
  QPointF end_;
  QHash<const PortObject*, bool> accepted_;
};

}  // namespace

GesturePtr makeWiring(Workbench& bench, PortObject& port) {
  return std::make_unique<Wiring>(bench, port);
}

}  // namespace orvuilib
