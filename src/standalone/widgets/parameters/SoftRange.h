#pragma once

#include "platform/orvUI_1_0/OrvUiApi.h"
#include "standalone/widgets/parameters/ParameterPreferences.h"
#include "standalone/widgets/parameters/ParameterRow.h"

namespace orvuilib {

/// What the slider of a row with a single number spans. The first that there is: the range that the
/// user gave it; the port's metadata "softMin" and "softMax", or "min" and "max"; a round range
/// that holds `number` and the default.
ORVUI_EXPORT NumberRange softRange(const ParameterRow& row, double number);

}  // namespace orvuilib
