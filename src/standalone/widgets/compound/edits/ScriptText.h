#pragma once

#include <QString>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/compound/scene/LevelScene.h"

namespace orvuilib {

/// What is selected as lines of the command language, which make the same nodes, values, states,
/// metadata and connections in an empty level. Of compounds all that is inside comes along. Empty
/// when nothing is selected.
ORVUI_EXPORT QString selectionAsScript(const LevelScene& scene);

}  // namespace orvuilib
