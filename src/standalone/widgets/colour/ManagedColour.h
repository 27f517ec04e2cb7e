#pragma once

#include <QColor>

#include "platform/orvUI_1_0/HIGColor.h"
#include "platform/orvUI_1_0/OrvUiApi.h"

namespace orvuilib {

// Colours through the colour management that is registered; without any they stay as they are.

/// From the rendering space into the mixing space, and back.
ORVUI_EXPORT orvUI_v1::HIGColor toMixing(const orvUI_v1::HIGColor& colour);
ORVUI_EXPORT orvUI_v1::HIGColor fromMixing(const orvUI_v1::HIGColor& colour);

/// As it is painted. What the screen cannot show is cut off; what is no number is 0.
ORVUI_EXPORT QColor toScreen(const orvUI_v1::HIGColor& colour);

/// From a colour of the screen.
ORVUI_EXPORT orvUI_v1::HIGColor fromScreen(const QColor& colour);

/// Where a component stands on a slider from 0 to `maximum`, 0 to 1, and the component that a
/// position means.
ORVUI_EXPORT float toSliderPosition(float component, float maximum);
ORVUI_EXPORT float fromSliderPosition(float position, float maximum);

}  // namespace orvuilib
