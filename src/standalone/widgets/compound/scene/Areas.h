#pragma once

#include <QRectF>
#include <algorithm>
#include <vector>

namespace orvuilib {

/// Parts of the canvas, few enough to be painted one by one: what overlaps is united, and when
/// there are many, what is near to one another.
class Areas {
 public:
  static constexpr std::size_t kMost = 16;

  Areas() = default;
  Areas(const QRectF& area) { add(area); }

  /// A null area is none.
  void add(const QRectF& area) {
    if (area.isNull()) return;
    const auto partner = std::ranges::min_element(
        rects_, {}, [&area](const QRectF& rect) { return lossOf(rect, area); });
    const bool unites =
        partner != rects_.end() && (rects_.size() == kMost || lossOf(*partner, area) <= 0);
    if (unites) {
      *partner |= area;
    } else {
      rects_.push_back(area);
    }
  }
  void add(const Areas& other) {
    for (const QRectF& rect : other.rects_) add(rect);
  }
  template <class More>
  Areas& operator|=(const More& more) {
    add(more);
    return *this;
  }

  bool isEmpty() const { return rects_.empty(); }
  const std::vector<QRectF>& rects() const { return rects_; }

  /// What all of them lie in; null when there are none.
  QRectF bounds() const {
    QRectF all;
    for (const QRectF& rect : rects_) all |= rect;
    return all;
  }

 private:
  static qreal sizeOf(const QRectF& area) { return area.width() * area.height(); }

  /// How much would be painted in vain if the two were one.
  static qreal lossOf(const QRectF& a, const QRectF& b) {
    return sizeOf(a | b) - sizeOf(a) - sizeOf(b);
  }

  std::vector<QRectF> rects_;
};

}  // namespace orvuilib
