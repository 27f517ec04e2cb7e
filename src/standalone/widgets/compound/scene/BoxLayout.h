#pragma once

#include <QPointF>
#include <QSet>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/compound/scene/Items.h"
#include "standalone/widgets/look/Theme.h"

namespace orvuilib {

/// The measures of a box, in units of the canvas.
namespace box {

inline constexpr qreal kTitle = 24;
inline constexpr qreal kRow = 19;
inline constexpr qreal kFoot = 6;
inline constexpr qreal kLabelInset = 12;
inline constexpr qreal kIndent = 10;
inline constexpr qreal kColumnGap = 22;
inline constexpr qreal kNarrowest = 96;
inline constexpr qreal kWidest = 260;
inline constexpr qreal kPortRadius = 4.5;

/// How near to a port's dot counts as on it.
inline constexpr qreal kPortReach = 9;
inline constexpr qreal kWireReach = 6;

}  // namespace box

/// The ports that are shown with their components.
using OpenPorts = QSet<const orvlib::PortObject*>;

/// Fills in the slots, the size, and what goes with them; the box keeps its top left corner, and
/// must be in no grid.
void layOut(BoxItem& box, const OpenPorts& open, const Theme& theme);

/// The metadata key that says where the box is: of its node, or for a boundary of the level.
const char* positionKeyOf(const BoxItem& box);

/// The title of a box.
ORVUI_EXPORT QString titleOf(const BoxItem& box);

/// The label of a slot.
ORVUI_EXPORT QString labelOf(const PortSlot& slot);

/// Where the wires of a slot end.
ORVUI_EXPORT QPointF anchorOf(const BoxItem& box, const PortSlot& slot);

/// The whole row of a slot, on its side of the box; empty for a slot without a row.
ORVUI_EXPORT QRectF rowOf(const BoxItem& box, const PortSlot& slot);

/// The row below the ports of a boundary, where ports are added.
ORVUI_EXPORT QRectF addRowOf(const BoxItem& box);

/// The slot of the port, or of the nearest shown port above it; null when there is none.
const PortSlot* slotFor(const BoxItem& box, const orvlib::PortObject& port);

/// The level that a boundary box or a node stands for, when a port is to be made there; null for a
/// plain node.
orvlib::CompoundObject* compoundOf(const BoxItem& box);

/// The watch point on either face of the port; null without one.
orvlib::WatchPointObject* watchOf(const orvlib::PortObject& port);

}  // namespace orvuilib
