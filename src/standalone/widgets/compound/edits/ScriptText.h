#pragma once

#include <QString>

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/compound/scene/LevelScene.h"

namespace orvuilib {

/// What is selected as lines of the command language. They make the same nodes, notes, values,
/// states, metadata, watch points and connections, with all that is inside of compounds, on the
/// level of that path: under the same names where these are free, under others where not. What is
/// there already is not touched. Empty when nothing is selected.
ORVUI_EXPORT QString selectionAsScript(const LevelScene& scene);

}  // namespace orvuilib
