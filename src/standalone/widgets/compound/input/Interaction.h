#pragma once

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/compound/input/EdgeScroll.h"
#include "standalone/widgets/compound/input/Gesture.h"
#include "standalone/widgets/compound/input/PortCursor.h"
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

  /// A port is to be made of the level's, at the side of that box.
  virtual void addPortAt(const BoxItem& box) = 0;

  /// What lies over the canvas is to follow it.
  virtual void viewHasChanged() = 0;
};

/// Turns what the mouse and the keys do on the canvas into gestures and actions.
class Interaction final : public CanvasInput {
 public:
  Interaction(Workbench& bench, InteractionTarget& target);

  /// Gives up what is going on; everything looks as before. False when nothing was.
  bool cancel();
  bool isBusy() const { return gesture_ != nullptr; }

  /// The graph has changed, and the scene is about to follow: ends what cannot go on then.
  void graphChanges(std::span<const orvlib::NodeChange> changes);

  /// The scene has followed.
  void graphFollowed();

  /// What the keys are about.
  PortCursor& cursor() { return cursor_; }

  /// Where the pointer is on the scene; the middle of the view when it is elsewhere.
  QPointF pointer() const;

  /// What is under the pointer.
  Hit hitAtPointer() const;

  void mousePressed(QMouseEvent& event) override;
  void mouseMoved(QMouseEvent& event) override;
  void mouseReleased(QMouseEvent& event) override;
  void doubleClicked(QMouseEvent& event) override;
  void wheelTurned(QWheelEvent& event) override;
  bool wantsKey(const QKeyEvent& event) const override;
  bool keyPressed(QKeyEvent& event) override;
  void keyReleased(QKeyEvent& event) override;
  QString toolTipAt(const QPointF& point) override;
  void pointerLeft() override;
  void interrupted() override;
  void viewChanged() override;
  void paintGesture(QPainter& painter, const PaintSettings& settings) override;

 private:
  /// A button that is down and may become a click or a drag.
  struct Press {
    Qt::MouseButton button = Qt::NoButton;
    Qt::KeyboardModifiers modifiers;
    QPointF at;              ///< on the widget
    QPointF start;           ///< on the scene
    bool deselects = false;  ///< a click takes what is there out of the selection
  };

  /// What the press is on now: what was there when it began may be gone.
  Hit hitOf(const Press& press) const { return bench_.canvas.hitAt(press.start); }

  GesturePtr gestureFor(const Press& press);
  GesturePtr leftGesture(const Press& press);
  void selectPressed();
  void dragTo(const QPointF& point, Qt::KeyboardModifiers modifiers);
  void click(const Press& press, const QPoint& globalPosition);
  void hover(const QPointF& point);

  void clickItems(const Press& press, const Hit& hit);

  template <class Item>
  void pressItem(Item& item);

  Workbench& bench_;
  InteractionTarget& target_;
  PortCursor cursor_;
  EdgeScroll edgeScroll_;
  GesturePtr gesture_;
  Press press_;
  bool spaceDown_ = false;
  std::optional<QPointF> pointer_;  ///< on the widget
};

/// Type, description and last value of what is hit; empty where there is nothing to tell.
ORVUI_EXPORT QString toolTipFor(const Hit& hit);

}  // namespace orvuilib
