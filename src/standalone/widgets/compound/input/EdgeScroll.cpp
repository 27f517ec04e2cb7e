#include "standalone/widgets/compound/input/EdgeScroll.h"

#include <algorithm>

namespace orvuilib {
namespace {

constexpr int kInterval = 16;  // milliseconds
constexpr qreal kMargin = 22;  // pixels
constexpr qreal kFastest = 20;

/// Negative at the beginning of a length, positive at its end, 0 between them.
qreal pull(qreal at, qreal length) {
  const qreal margin = std::min(kMargin, length / 4);
  const qreal depth = at < margin ? at - margin : std::max(at - (length - margin), 0.0);
  return std::clamp(depth / kMargin, -1.0, 1.0) * kFastest;
}

}  // namespace

EdgeScroll::EdgeScroll(Canvas& canvas, std::function<void()> moved)
    : canvas_(canvas), moved_(std::move(moved)) {
  timer_.setInterval(kInterval);
  timer_.callOnTimeout(&canvas, [this] { step(); });
}

QPointF EdgeScroll::speedAt(const QPointF& pointer) const {
  return {pull(pointer.x(), canvas_.width()), pull(pointer.y(), canvas_.height())};
}

void EdgeScroll::follow(const QPointF& pointer) {
  pointer_ = pointer;
  if (speedAt(pointer).isNull()) {
    timer_.stop();
  } else if (!timer_.isActive()) {
    timer_.start();
  }
}

void EdgeScroll::step() {
  canvas_.panBy(-speedAt(pointer_));
  moved_();
}

}  // namespace orvuilib
