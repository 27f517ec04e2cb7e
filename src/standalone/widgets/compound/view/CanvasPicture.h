#pragma once

#include <QImage>
#include <QRegion>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/compound/scene/Areas.h"

namespace orvuilib {

/// What a canvas shows of its scene, as a picture in the device's pixels. Only what is stale is
/// painted anew; a look that is moved by whole pixels takes the picture along.
class ORVUI_EXPORT CanvasPicture {
 public:
  /// From units of the scene to pixels of the picture: `origin + point * zoom`.
  struct Look {
    QPointF origin;
    qreal zoom = 1;
  };

  void setAllStale() { allStale_ = true; }

  /// In units of the scene.
  void setStale(const QRectF& area) { stale_.add(area); }

  /// Looks at the scene so from now on. `ratio` is how many pixels make one of the widget.
  void look(const QSize& size, qreal ratio, const Look& look);

  /// Calls `paint(QImage&, const QRect& area)` for each part that is stale, in pixels; nothing is
  /// stale then.
  template <class Paint>
  void bringUpToDate(Paint paint) {
    image_.setDevicePixelRatio(1);
    for (const QRect& area : takeStale()) paint(image_, area);
    image_.setDevicePixelRatio(ratio_);
  }

  /// As it was last looked at: the picture may differ from what was asked for by less than one can
  /// see.
  const Look& look() const { return look_; }

  /// In pixels of the widget.
  const QImage& image() const { return image_; }

 private:
  void scroll(const QPoint& by);
  QRegion takeStale();

  QImage image_;
  qreal ratio_ = 1;
  Look look_;
  bool allStale_ = true;
  Areas stale_;
  QRegion uncovered_;  ///< by scrolling, in pixels
};

}  // namespace orvuilib
