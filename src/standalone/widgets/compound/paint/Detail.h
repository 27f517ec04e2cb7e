#pragma once

#include <QPointF>

#include "standalone/widgets/compound/scene/WireShape.h"

namespace orvuilib {

/// How much of a scene can be made out at a zoom.
enum class Detail {
  Far,    ///< a node is a patch of colour
  Near,   ///< titles can be read
  Close,  ///< ports too
};

/// `zoom` in pixels a unit.
inline Detail detailAt(qreal zoom) {
  if (zoom < 0.3) return Detail::Far;
  return zoom < 0.6 ? Detail::Near : Detail::Close;
}

/// What the painters of one picture share.
struct PaintSettings {
  /// From units of the scene to pixels: `origin + point * zoom`.
  qreal zoom = 1;
  QPointF origin;

  Detail detail = Detail::Close;
  WireStyle wireStyle = WireStyle::Curved;
  bool showValues = true;

  /// Whether it is offered to add ports.
  bool editable = true;
};

}  // namespace orvuilib
