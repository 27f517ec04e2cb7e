#pragma once

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/compound/edits/NodeEdits.h"

namespace orvuilib {

enum class Edge { Left, Right, Top, Bottom };

namespace edits {

/// Where the boxes would stand with that edge in one line, the line of the outermost. Those that
/// stand there already are left out.
ORVUI_EXPORT std::vector<Moved> aligned(const std::vector<BoxItem*>& boxes, Edge edge);

/// Where the boxes would stand when laid out from left to right by their wires and sizes, around
/// the middle that they have now. Those that stand there already are left out.
ORVUI_EXPORT std::vector<Moved> laidOut(const std::vector<BoxItem*>& boxes);

}  // namespace edits
}  // namespace orvuilib
