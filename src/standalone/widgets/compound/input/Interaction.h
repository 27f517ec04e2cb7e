#pragma once

#include <QElapsedTimer>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/compound/input/Gesture.h"
#include "standalone/widgets/compound/input/Shortcuts.h"

namespace orvuilib {

/// What the editor around the canvas does when it is asked to.
class InteractionTarget {
 public:
  virtual ~InteractionTarget() = default;
  virtual void perform(Action action) = 0;
  virtual void selectionMayHaveChanged() = 0;
  virtual void renameInPlace(const Hit& hit) = 0;
  virtual void diveInto(orvlib::NodeObject& node) = 0;
  virtual void openContextMenu(const Hit& hit, const QPoint& globalPosition) = 0;
};

/// Turns what the mouse and the keys do on the canvas into gestures and actions.
class Interaction final : public CanvasInput {
 public:
  Interaction(Workbench& bench, InteractionTarget& target) : bench_(bench), target_(target) {}

  /// Gives up what is going on; everything looks as before. False when nothing was.
  bool cancel();
  bool isBusy() const { return gesture_ != nullptr; }

  /// Where the pointer is on the scene; the middle of the view when it is elsewhere.
  QPointF pointer() const;

  /// What is under the pointer.
  Hit hitAtPointer() const;

  void mousePressed(QMouseEvent& event) override;
  void mouseMoved(QMouseEvent& event) override;
  void mouseReleased(QMouseEvent& event) override;
  void doubleClicked(QMouseEvent& event) override;
  void wheelTurned(QWheelEvent& event) override;
  bool keyPressed(QKeyEvent& event) override;
  void keyReleased(QKeyEvent& event) override;
  QString toolTipAt(const QPointF& point) override;
  void pointerLeft() override;
  void paintGesture(QPainter& painter, const PaintSettings& settings) override;

 private:
  /// A button that is down and may become a click or a drag.
  struct Press {
    Qt::MouseButton button = Qt::NoButton;
    Qt::KeyboardModifiers modifiers;
    QPointF at;  ///< on the widget
    Hit hit;
  };

  GesturePtr gestureFor(const Press& press);
  GesturePtr leftGesture(const Press& press);
  void selectPressed(const Press& press);
  void click(const Press& press, const QPoint& globalPosition);
  void hover(const QPointF& point);

  template <class Item>
  void selectItem(Item& item, Qt::KeyboardModifiers modifiers);

  Workbench& bench_;
  InteractionTarget& target_;
  GesturePtr gesture_;
  Press press_;
  bool spaceDown_ = false;
  std::optional<QPointF> pointer_;  ///< on the widget
};

/// Type, description and last value of what is hit; empty where there is nothing to tell.
ORVUI_EXPORT QString toolTipFor(const Hit& hit);

}  // namespace orvuilib
