#pragma once

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/compound/edits/NodeEdits.h"

namespace orvuilib {

enum class Edge { Left, Right, Top, Bottom };

namespace edits {

/// Where the boxes would stand with that edge in one line, the line of the outermost. Those that
/// stand there already are left out.
ORVUI_EXPORT std::vector<Moved> aligned(const std::vector<BoxItem*>& boxes, Edge edge);

/// What would move when the boxes were laid out from left to right by their wires and sizes, around
/// the middle that they have now. Backdrops reach around what lay on them, which stays together; a
/// note goes with the box that it is nearest to; and with all boxes of the level its boundary comes
/// beside them. What stands there already is left out.
ORVUI_EXPORT std::vector<Moved> laidOut(const LevelScene& scene,
                                        const std::vector<BoxItem*>& boxes);

}  // namespace edits
}  // namespace orvuilib
