#pragma once

#include <QWidget>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/compound/paint/ScenePainter.h"
#include "standalone/widgets/compound/view/CanvasPicture.h"
#include "standalone/widgets/compound/view/EditorPreferences.h"
#include "standalone/widgets/compound/view/Hit.h"

namespace orvuilib {

/// Gets what the user does on a canvas. Points are of the widget.
class CanvasInput {
 public:
  virtual ~CanvasInput() = default;
  virtual void mousePressed(QMouseEvent& event) = 0;
  virtual void mouseMoved(QMouseEvent& event) = 0;
  virtual void mouseReleased(QMouseEvent& event) = 0;
  virtual void doubleClicked(QMouseEvent& event) = 0;
  virtual void wheelTurned(QWheelEvent& event) = 0;

  /// Whether a key means something here; what does not is left to the window.
  virtual bool wantsKey(const QKeyEvent& event) const = 0;

  /// False for a key that means nothing.
  virtual bool keyPressed(QKeyEvent& event) = 0;
  virtual void keyReleased(QKeyEvent& event) = 0;
  virtual QString toolTipAt(const QPointF& point) = 0;
  virtual void pointerLeft() = 0;

  /// The focus, the window or the canvas itself is gone: no release of what is held down may come.
  virtual void interrupted() = 0;

  /// Another part of the scene is seen, or a part of another size.
  virtual void viewChanged() = 0;

  /// Draws, in units of the canvas, what is going on.
  virtual void paintGesture(QPainter& painter, const PaintSettings& settings) = 0;
};

/// The view on a scene: pan, zoom, and painting of no more than is seen. It changes nothing of the
/// scene.
class ORVUI_EXPORT Canvas final : public QWidget {
 public:
  static constexpr qreal kSmallestZoom = 0.02;
  static constexpr qreal kLargestZoom = 4;

  Canvas(LevelScene& scene, const EditorPreferences& preferences, QWidget* parent);

  /// Not owned; null is nobody.
  void setInput(CanvasInput* input) { input_ = input; }

  QPointF toScene(const QPointF& point) const;
  QPointF toWidget(const QPointF& point) const;
  QRectF toWidget(const QRectF& area) const;

  /// What of the scene is seen.
  QRectF visibleArea() const;

  /// 1 is the size at which things are meant to be seen.
  qreal zoom() const { return zoom_; }

  /// `fixed`, a point of the widget, keeps its place.
  void setZoom(qreal zoom, const QPointF& fixed);
  void panBy(const QPointF& pixels);
  void centreOn(const QPointF& point);

  /// Shows all of the area, at no more than a zoom of 1. Nothing happens for a null area.
  void fit(const QRectF& area);

  /// The point of the scene at the middle, and back to it.
  QPointF centre() const { return toScene(QPointF(width(), height()) / 2); }

  /// All of it, or what lies there, looks different. What is merely uncovered is not painted anew.
  void update();
  void repaintArea(const Areas& areas);

  Hit hitAt(const QPointF& scenePoint) const;
  void setHovered(const BoxItem* box, const Wire* wire);

  /// While a wire is made: which ports would take it.
  void setAccepts(BoxPainter::Accepts accepts);

  /// Why nothing can be edited here, which is told as long as it is so; empty when it can.
  void setReadOnly(const QString& reason);
  const QString& readOnly() const { return readOnly_; }

  /// A text that is told quietly at the lower edge; empty is none.
  void setNotice(const QString& text);
  const QString& notice() const { return notice_; }

  /// How many things the last painting drew, for measuring.
  struct Drawn {
    std::size_t boxes = 0;
    std::size_t wires = 0;
  };
  const Drawn& lastDrawn() const { return drawn_; }

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  bool focusNextPrevChild(bool next) override;

 private:
  qreal pixels() const { return zoom_ * scene_.theme().scale(); }
  PaintSettings settings() const;
  void tellOfView();
  void paintPicture(QPainter& painter);
  void paintNotice(QPainter& painter);
  QRect noticeArea() const;

  LevelScene& scene_;
  const EditorPreferences& preferences_;
  CanvasInput* input_ = nullptr;
  qreal zoom_ = 1;
  QPointF origin_;  ///< of the scene, in pixels of the widget
  SceneLook look_;  ///< but for what the zoom makes of it
  QRectF hoveredArea_;
  CanvasPicture picture_;
  QString readOnly_;
  QString notice_;
  Drawn drawn_;
};

}  // namespace orvuilib
