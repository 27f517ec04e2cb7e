#pragma once

#include <QPainter>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/compound/paint/Detail.h"
#include "standalone/widgets/compound/scene/LevelScene.h"

namespace orvuilib {

/// Draws wires, all of a picture at once.
class WirePainter {
 public:
  WirePainter(const Theme& theme, const PaintSettings& settings)
      : theme_(theme), settings_(settings) {}

  void paint(QPainter& painter, const std::vector<Wire*>& wires, const Wire* hovered) const;

  /// The last values that watch points recorded.
  void paintValues(QPainter& painter, const std::vector<Wire*>& wires) const;

  /// A wire that is being made.
  void paintLoose(QPainter& painter, const QPointF& start, const QPointF& end,
                  const QColor& colour) const;

 private:
  void paintFar(QPainter& painter, const std::vector<Wire*>& wires) const;
  void paintOne(QPainter& painter, const Wire& wire, bool hovered) const;

  const Theme& theme_;
  const PaintSettings& settings_;
};

/// The last value that a watch point of the port has recorded; empty without one.
ORVUI_EXPORT QString lastValueOf(const orvlib::PortObject& port);

}  // namespace orvuilib
