#include "standalone/widgets/compound/input/Interaction.h"

#include <QApplication>
#include <QMouseEvent>
#include <QWheelEvent>
#include <cmath>

#include "standalone/widgets/compound/edits/PortEdits.h"

namespace orvuilib {

using Part = Hit::Part;

namespace {

constexpr qreal kZoomStep = 1.15;

/// Space, with which the left button pans.
bool isPanKey(const QKeyEvent& event) {
  constexpr auto kOthers = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
  return event.key() == Qt::Key_Space && !(event.modifiers() & kOthers);
}

bool isOnBoundary(const Hit& hit) { return hit.box && hit.box->kind != BoxKind::Node; }

}  // namespace

Interaction::Interaction(Workbench& bench, InteractionTarget& target)
    : bench_(bench), target_(target), cursor_(bench.scene), edgeScroll_(bench.canvas, [this] {
        if (gesture_ && pointer_) dragTo(*pointer_, press_.modifiers);
      }) {}

QPointF Interaction::pointer() const {
  return pointer_ ? bench_.canvas.toScene(*pointer_) : bench_.canvas.centre();
}

Hit Interaction::hitAtPointer() const { return pointer_ ? bench_.canvas.hitAt(pointer()) : Hit(); }

bool Interaction::cancel() {
  press_ = {};
  edgeScroll_.stop();
  if (!gesture_) return false;
  const GesturePtr gone = std::move(gesture_);
  gone->cancel();
  target_.selectionMayHaveChanged();
  return true;
}

void Interaction::interrupted() {
  spaceDown_ = false;
  cancel();
}

void Interaction::viewChanged() { target_.viewHasChanged(); }

void Interaction::graphChanges(std::span<const orvlib::NodeChange> changes) {
  if (!gesture_) return;
  const bool locked = gesture_->edits() && !bench_.session.refusal().isEmpty();
  if (locked || !gesture_->outlives(changes)) cancel();
}

void Interaction::graphFollowed() {
  cursor_.check();
  if (gesture_) {
    gesture_->graphFollowed();
  } else if (pointer_) {
    hover(*pointer_);
  }
}

void Interaction::mousePressed(QMouseEvent& event) {
  bench_.canvas.setFocus(Qt::MouseFocusReason);
  pointer_ = event.position();
  if (!bench_.scene.levelNode() || gesture_) return;
  bench_.canvas.setNotice({});
  cursor_.clear();
  press_ = {event.button(), event.modifiers(), event.position(),
            bench_.canvas.toScene(event.position())};
  if (event.button() == Qt::LeftButton) selectPressed();
}

/// What is pressed is selected at once, so that it can be dragged on; what is selected already
/// stays so together with the rest until the button is let go.
void Interaction::selectPressed() {
  const Hit hit = hitOf(press_);
  const bool panning = spaceDown_ || (press_.modifiers & Qt::AltModifier);
  if (panning || hit.onDot) return;
  if (hit.box && hit.box->kind == BoxKind::Node) pressItem(*hit.box);
  if (hit.note) pressItem(*hit.note);
}

template <class Item>
void Interaction::pressItem(Item& item) {
  LevelScene& scene = bench_.scene;
  const bool adds = press_.modifiers & (Qt::ControlModifier | Qt::ShiftModifier);
  press_.deselects = item.selected && (press_.modifiers & Qt::ControlModifier);
  if (item.selected) return;
  if (!adds) scene.clearSelection();
  scene.select(item);
  bench_.canvas.update();
  target_.selectionMayHaveChanged();
}

void Interaction::mouseMoved(QMouseEvent& event) {
  // The release went elsewhere, such as to a dialog that had opened.
  if (press_.button != Qt::NoButton && !(event.buttons() & press_.button)) cancel();
  pointer_ = event.position();
  if (!gesture_ && press_.button != Qt::NoButton) {
    const QPointF away = event.position() - press_.at;
    if (away.manhattanLength() < QApplication::startDragDistance()) return;
    gesture_ = gestureFor(press_);
    if (!gesture_) press_ = {};
  }
  if (!gesture_) return hover(event.position());
  if (gesture_->scrollsAtEdge()) edgeScroll_.follow(event.position());
  dragTo(event.position(), event.modifiers());
}

void Interaction::dragTo(const QPointF& point, Qt::KeyboardModifiers modifiers) {
  gesture_->move(bench_.canvas.toScene(point), modifiers);
}

GesturePtr Interaction::gestureFor(const Press& press) {
  const bool byLeft = press.button == Qt::LeftButton;
  const bool pans = press.button == Qt::MiddleButton ||
                    (byLeft && (spaceDown_ || (press.modifiers & Qt::AltModifier)));
  if (pans) return makePan(bench_, press.start);
  return byLeft ? leftGesture(press) : nullptr;
}

GesturePtr Interaction::leftGesture(const Press& press) {
  const Hit hit = hitOf(press);
  const bool selects = hit.part == Part::Wire || hit.part == Part::Nothing;
  if (selects) return makeBand(bench_, press.start, press.modifiers);
  if (!bench_.canEdit()) return nullptr;
  if (hit.part == Part::NoteHandle) return makeResize(bench_, *hit.note);
  if (hit.part == Part::Port && hit.onDot) return makeWiring(bench_, *hit.port());
  if (!isOnBoundary(hit)) return makeMove(bench_, press.start, nullptr);
  if (hit.part == Part::Port) return makePortMove(bench_, *hit.port(), press.start);
  return makeMove(bench_, press.start, hit.box);
}

void Interaction::mouseReleased(QMouseEvent& event) {
  pointer_ = event.position();
  if (event.button() != press_.button) return;
  const Press press = std::exchange(press_, {});
  edgeScroll_.stop();
  if (const GesturePtr gesture = std::move(gesture_)) {
    // The graph changes now, and what is done is not to be given up for that.
    gesture->finish(bench_.canvas.toScene(event.position()), event.modifiers());
    target_.selectionMayHaveChanged();
    return;
  }
  click(press, event.globalPosition().toPoint());
}

void Interaction::click(const Press& press, const QPoint& globalPosition) {
  const Hit hit = hitOf(press);
  if (press.button == Qt::RightButton) return target_.openContextMenu(hit, globalPosition);
  if (press.button != Qt::LeftButton) return;
  if (hit.part == Part::AddPort) {
    if (bench_.canEdit()) target_.addPortAt(*hit.box);
    return;
  }
  clickItems(press, hit);
  bench_.canvas.update();
  target_.selectionMayHaveChanged();
}

void Interaction::clickItems(const Press& press, const Hit& hit) {
  LevelScene& scene = bench_.scene;
  if (press.deselects) {
    if (hit.box) scene.deselect(*hit.box);
    if (hit.note) scene.deselect(*hit.note);
  }
  if (press.modifiers & (Qt::ShiftModifier | Qt::ControlModifier)) return;
  const bool keeps = (hit.box && hit.box->selected) || (hit.note && hit.note->selected);
  const bool alone = scene.selectedBoxes().size() + scene.selectedNotes().size() == 1;
  if (keeps && alone) return;
  scene.clearSelection();
  if (hit.box && !hit.onDot) scene.select(*hit.box);
  if (hit.note) scene.select(*hit.note);
}

void Interaction::doubleClicked(QMouseEvent& event) {
  if (event.button() != Qt::LeftButton || !bench_.scene.levelNode()) return;
  press_ = {};
  const Hit hit = bench_.canvas.hitAt(bench_.canvas.toScene(event.position()));
  const bool label = hit.slot && !hit.onDot && edits::compoundOfPort(*hit.port());
  if (hit.part == Part::Port && hit.onDot) {
    bench_.canvas.repaintArea(bench_.scene.toggleOpen(*hit.port()));
  } else if (hit.part == Part::Title || hit.note || (label && isOnBoundary(hit))) {
    target_.renameInPlace(hit);
  } else if (hit.box && hit.box->kind == BoxKind::Node && hit.box->node->compound()) {
    target_.diveInto(*hit.box->node);
  }
}

void Interaction::wheelTurned(QWheelEvent& event) {
  const qreal steps = event.angleDelta().y() / 120.0;
  if (steps == 0) return;
  bench_.canvas.setZoom(bench_.canvas.zoom() * std::pow(kZoomStep, steps), event.position());
  if (gesture_) dragTo(event.position(), event.modifiers());
}

bool Interaction::wantsKey(const QKeyEvent& event) const {
  return isPanKey(event) || actionFor(event.key(), event.modifiers());
}

bool Interaction::keyPressed(QKeyEvent& event) {
  if (isPanKey(event)) {
    spaceDown_ = true;
    return true;
  }
  const auto action = actionFor(event.key(), event.modifiers());
  if (!action) return false;
  // Any other key would do something else than the button that is held.
  if (gesture_) {
    if (action == Action::SelectNone) cancel();
    return true;
  }
  target_.perform(*action);
  return true;
}

void Interaction::keyReleased(QKeyEvent& event) {
  if (event.key() == Qt::Key_Space && !event.isAutoRepeat()) spaceDown_ = false;
}

void Interaction::hover(const QPointF& point) {
  const Hit hit = bench_.canvas.hitAt(bench_.canvas.toScene(point));
  bench_.canvas.setHovered(hit.box, hit.wire);
  bench_.canvas.setCursor(hit.onDot                      ? Qt::CrossCursor
                          : hit.part == Part::NoteHandle ? Qt::SizeFDiagCursor
                          : hit.part == Part::AddPort    ? Qt::PointingHandCursor
                                                         : Qt::ArrowCursor);
}

QString Interaction::toolTipAt(const QPointF& point) {
  if (!bench_.scene.levelNode()) return {};
  return toolTipFor(bench_.canvas.hitAt(bench_.canvas.toScene(point)));
}

void Interaction::pointerLeft() {
  pointer_.reset();
  bench_.canvas.setHovered(nullptr, nullptr);
}

void Interaction::paintGesture(QPainter& painter, const PaintSettings& settings) {
  cursor_.paint(painter, settings);
  if (gesture_) gesture_->paint(painter, settings);
}

}  // namespace orvuilib
