#pragma once

#include <QPainter>
#include <functional>

#include "standalone/widgets/compound/paint/Detail.h"
#include "standalone/widgets/compound/paint/WireRaster.h"
#include "standalone/widgets/compound/scene/LevelScene.h"

namespace orvuilib {

/// Draws boxes, with as much as the zoom lets one see.
class BoxPainter {
 public:
  /// Whether a wire that is being made could end at the port; null when none is.
  using Accepts = std::function<bool(const orvlib::PortObject&)>;

  BoxPainter(const Theme& theme, const PaintSettings& settings, const Accepts& accepts)
      : theme_(theme), settings_(settings), accepts_(accepts) {}

  void paint(QPainter& painter, BoxItem& box, bool hovered) const;

  /// All of them, quickly, as seen from far away.
  void paintFar(WireRaster& raster, const std::vector<BoxItem*>& boxes) const;

  void paintValue(QPainter& painter, const ValueLabel& value) const;

 private:
  void paintBody(QPainter& painter, const BoxItem& box, bool hovered) const;
  void paintInnerEdge(QPainter& painter, const BoxItem& box) const;
  void paintMarks(QPainter& painter, const BoxItem& box) const;
  void paintPort(QPainter& painter, const BoxItem& box, const PortSlot& slot,
                 const QStaticText& label) const;
  void paintDot(QPainter& painter, const PortSlot& slot, const QPointF& at) const;
  void paintAddRow(QPainter& painter, const BoxItem& box) const;
  BoxTexts& textsOf(BoxItem& box) const;

  const Theme& theme_;
  const PaintSettings& settings_;
  const Accepts& accepts_;
};

}  // namespace orvuilib
