#pragma once

#include "platform/orvUI_1_0/OrvUiApi.h"

namespace orvUI_v1 {

/// How large the editors draw. `kScale100` goes by the height of the program's text.
enum class DPIPreset : int { kScale100 = 0, kScale150 = 1, kScale200 = 2 };

/// For the editors that are made from now on. A value without a name counts as `kScale100`.
ORVUI_EXPORT void setCustomDPIScaling(DPIPreset preset);

}  // namespace orvUI_v1
