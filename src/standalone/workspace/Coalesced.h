#pragma once

#include <QTimer>
#include <functional>

namespace vesk {

/// Something that is done once for many requests, when control is back at the event loop.
class Coalesced {
 public:
  explicit Coalesced(std::function<void()> action) {
    timer_.setSingleShot(true);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, std::move(action));
  }

  void request() {
    if (!timer_.isActive()) timer_.start(0);
  }

 private:
  QTimer timer_;
};

}  // namespace vesk
