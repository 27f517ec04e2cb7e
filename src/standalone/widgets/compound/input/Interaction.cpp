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

bool isOnBoundary(const Hit& hit) { return hit.box && hit.box->kind != BoxKind::Node; }

}  // namespace

QPointF Interaction::pointer() const {
  return pointer_ ? bench_.canvas.toScene(*pointer_) : bench_.canvas.centre();
}

Hit Interaction::hitAtPointer() const { return pointer_ ? bench_.canvas.hitAt(pointer()) : Hit(); }

bool Interaction::cancel() {
  press_ = {};
  if (!gesture_) return false;
  const GesturePtr gone = std::move(gesture_);
  gone->cancel();
  return true;
}

void Interaction::mousePressed(QMouseEvent& event) {
  bench_.canvas.setFocus(Qt::MouseFocusReason);
  pointer_ = event.position();
  if (!bench_.scene.levelNode() || gesture_) return;
  bench_.canvas.setNotice({});
  press_ = {event.button(), event.modifiers(), event.position(),
            bench_.canvas.hitAt(bench_.canvas.toScene(event.position()))};
  if (event.button() == Qt::LeftButton) selectPressed(press_);
}

/// What is pressed is selected at once, so that it can be dragged on; what is selected already
/// stays so together with the rest until the button is let go.
void Interaction::selectPressed(const Press& press) {
  const Hit& hit = press.hit;
  const bool panning = spaceDown_ || (press.modifiers & Qt::AltModifier);
  if (panning || hit.onDot) return;
  if (hit.box && hit.box->kind == BoxKind::Node) selectItem(*hit.box, press.modifiers);
  if (hit.note) selectItem(*hit.note, press.modifiers);
}

template <class Item>
void Interaction::selectItem(Item& item, Qt::KeyboardModifiers modifiers) {
  LevelScene& scene = bench_.scene;
  if (modifiers & Qt::ControlModifier) {
    if (item.selected) {
      scene.deselect(item);
    } else {
      scene.select(item);
    }
  } else if (!item.selected) {
    if (!(modifiers & Qt::ShiftModifier)) scene.clearSelection();
    scene.select(item);
  }
  bench_.canvas.update();
  target_.selectionMayHaveChanged();
}

void Interaction::mouseMoved(QMouseEvent& event) {
  pointer_ = event.position();
  if (!gesture_ && press_.button != Qt::NoButton) {
    const QPointF away = event.position() - press_.at;
    if (away.manhattanLength() < QApplication::startDragDistance()) return;
    gesture_ = gestureFor(press_);
    if (!gesture_) press_ = {};
  }
  if (gesture_) {
    gesture_->move(bench_.canvas.toScene(event.position()), event.modifiers());
  } else {
    hover(event.position());
  }
}

GesturePtr Interaction::gestureFor(const Press& press) {
  const QPointF start = bench_.canvas.toScene(press.at);
  const bool byLeft = press.button == Qt::LeftButton;
  const bool pans = press.button == Qt::MiddleButton ||
                    (byLeft && (spaceDown_ || (press.modifiers & Qt::AltModifier)));
  if (pans) return makePan(bench_, start);
  return byLeft ? leftGesture(press) : nullptr;
}

GesturePtr Interaction::leftGesture(const Press& press) {
  const QPointF start = bench_.canvas.toScene(press.at);
  const Hit& hit = press.hit;
  switch (hit.part) {
    case Part::Port:
      if (hit.onDot) return bench_.canEdit() ? makeWiring(bench_, *hit.port()) : nullptr;
      if (isOnBoundary(hit)) return makePortMove(bench_, *hit.port(), start);
      return makeMove(bench_, start, nullptr);
    case Part::Title:
    case Part::Body:
    case Part::AddPort:
      return makeMove(bench_, start, isOnBoundary(hit) ? hit.box : nullptr);
    case Part::Note:
      return makeMove(bench_, start, nullptr);
    case Part::NoteHandle:
      return makeResize(bench_, *hit.note);
    case Part::Wire:
    case Part::Nothing:
      break;
  }
  return makeBand(bench_, start, press.modifiers);
}

void Interaction::mouseReleased(QMouseEvent& event) {
  pointer_ = event.position();
  if (event.button() != press_.button) return;
  const Press press = std::exchange(press_, {});
  if (const GesturePtr gesture = std::move(gesture_)) {
    // The graph changes now, and what is done is not to be given up for that.
    gesture->finish(bench_.canvas.toScene(event.position()), event.modifiers());
    target_.selectionMayHaveChanged();
    return;
  }
  click(press, event.globalPosition().toPoint());
}

void Interaction::click(const Press& press, const QPoint& globalPosition) {
  const Hit& hit = press.hit;
  if (press.button == Qt::RightButton) return target_.openContextMenu(hit, globalPosition);
  if (press.button != Qt::LeftButton) return;
  const bool adds = press.modifiers & (Qt::ShiftModifier | Qt::ControlModifier);
  if (hit.part == Part::AddPort && bench_.canEdit()) {
    const bool output =
        hit.box->kind == BoxKind::Outputs || hit.box->node->nodeKind() == orvlib::NodeKind::Output;
    edits::createLevelPort(bench_.session, output, nullptr);
    return;
  }
  if (adds) return;
  LevelScene& scene = bench_.scene;
  const bool keeps = (hit.box && hit.box->selected) || (hit.note && hit.note->selected);
  const bool alone = scene.selectedBoxes().size() + scene.selectedNotes().size() == 1;
  if (keeps && alone) return;
  scene.clearSelection();
  if (hit.box && !hit.onDot) scene.select(*hit.box);
  if (hit.note) scene.select(*hit.note);
  bench_.canvas.update();
  target_.selectionMayHaveChanged();
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
}

bool Interaction::keyPressed(QKeyEvent& event) {
  if (event.key() == Qt::Key_Space) {
    spaceDown_ = true;
    return true;
  }
  const auto action = actionFor(event.key(), event.modifiers());
  if (!action) return false;
  if (action == Action::SelectNone && cancel()) return true;
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
  if (gesture_) gesture_->paint(painter, settings);
}

}  // namespace orvuilib
