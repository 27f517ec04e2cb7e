#pragma once

#include <QTimer>
#include <functional>

#include "standalone/widgets/compound/view/Canvas.h"

namespace orvuilib {

/// Moves the view on while something is dragged to an edge of the canvas, the faster the nearer.
class EdgeScroll {
 public:
  /// `moved` hears of each step.
  EdgeScroll(Canvas& canvas, std::function<void()> moved);

  /// The pointer of the drag is here, a point of the widget.
  void follow(const QPointF& pointer);
  void stop() { timer_.stop(); }

 private:
  QPointF speedAt(const QPointF& pointer) const;
  void step();

  Canvas& canvas_;
  std::function<void()> moved_;
  QPointF pointer_;
  QTimer timer_;
};

}  // namespace orvuilib
