#pragma once

#include <QPainter>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/compound/paint/Detail.h"
#include "standalone/widgets/compound/paint/WireRaster.h"
#include "standalone/widgets/compound/scene/LevelScene.h"

namespace orvuilib {

/// Draws wires, all of a picture at once.
class WirePainter {
 public:
  WirePainter(const Theme& theme, const PaintSettings& settings)
      : theme_(theme), settings_(settings) {}

  /// Those that are hovered or belong to what is selected are lit, and lie above the others.
  void paint(WireRaster& raster, const std::vector<Wire*>& wires, const Wire* hovered) const;

  /// A wire that is being made.
  void paintLoose(QPainter& painter, const QPointF& start, const QPointF& end,
                  const QColor& colour) const;

 private:
  void paintFar(WireRaster& raster, const std::vector<Wire*>& wires) const;
  void paintOne(WireRaster& raster, const Wire& wire, qreal width) const;

  const Theme& theme_;
  const PaintSettings& settings_;
};

}  // namespace orvuilib
